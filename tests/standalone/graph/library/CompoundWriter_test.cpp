#include "standalone/graph/library/CompoundWriter.h"

#include <gtest/gtest.h>

#include "standalone/graph/api/GraphAccess.h"
#include "tests/standalone/graph/RuntimeFolder.h"

namespace {

/// What comes back of a description that is written to a file.
class CompoundWriter : public testing::Test {
 protected:
  CompoundWriter() {
    folder_.writeLibrary("1.yaml", "core");
    runtime_ = folder_.load();
    node_.name = "core::soft";
    node_.niceName = "Soft";
    node_.description = "Text.";
    node_.content = "one\n";
  }

  orvlib::NodeDescription back() {
    const std::string reason = runtime_->writeDefinition(node_, folder_.path() / "2.yaml");
    EXPECT_EQ(reason, "");
    EXPECT_TRUE(runtime_->rebuild().empty());
    const auto definition = runtime_->findNode("core::soft");
    return definition == nullptr ? orvlib::NodeDescription()
                                 : ORV_v1::GraphAccess::describe(*definition);
  }

  RuntimeFolder folder_;
  std::unique_ptr<orvlib::LoadedRuntime> runtime_;
  orvlib::NodeDescription node_;
};

TEST_F(CompoundWriter, KeepsEachContent) {
  for (const char* content :
       {"a\n", "a", "  a\nb\n", "\na\n", "a\n\n", "a\n\nb\n", "a\tb\n", "a\x01 b\n", "a\rb\r\n",
        "\"q\\ #: x\n", "a \n", "\xc2\x85\n", "\xc3\xa9\n", "---\nx: y\n...\n"}) {
    node_.content = content;
    EXPECT_EQ(back().content, content);
  }
}

TEST_F(CompoundWriter, KeepsNastyTexts) {
  node_.niceName = "Soft: \"#\\";
  node_.description = "Two\nlines, {a: b}";
  const auto read = back();
  EXPECT_EQ(read.niceName, node_.niceName);
  EXPECT_EQ(read.description, node_.description);
}

TEST_F(CompoundWriter, KeepsPortsTheirOrderAndDefaults) {
  const auto type = [this](const char* name) {
    return ORV_v1::GraphAccess::typeOf(*runtime_->findPortType(name));
  };
  using orvlib::PortDirection;
  node_.ports = {{"b", PortDirection::Input, type("pair"), orvlib::Floats{0.1f, -1}, false, "B."},
                 {"a", PortDirection::Input, type("array<pair>"), orvlib::Floats{}, true, "A."},
                 {"c", PortDirection::Output, type("bool"), orvlib::Booleans{false}, false, "C."}};
  const auto read = back();
  ASSERT_EQ(read.ports.size(), 3u);
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_EQ(read.ports[i].name, node_.ports[i].name);
    EXPECT_EQ(read.ports[i].direction, node_.ports[i].direction);
    EXPECT_EQ(read.ports[i].type->name, node_.ports[i].type->name);
    EXPECT_EQ(read.ports[i].defaultValue, node_.ports[i].defaultValue);
    EXPECT_EQ(read.ports[i].fanIn, node_.ports[i].fanIn);
    EXPECT_EQ(read.ports[i].description, node_.ports[i].description);
  }
}

TEST_F(CompoundWriter, RefusesWhatCouldNotBeRead) {
  const auto file = folder_.path() / "2.yaml";
  node_.content = "bad \xff\n";
  EXPECT_EQ(runtime_->writeDefinition(node_, file), "this is not UTF-8 text");
  node_.content = std::string(5 * 1024 * 1024, 'x');
  EXPECT_EQ(runtime_->writeDefinition(node_, file), "the file is larger than 4 MiB");
  EXPECT_FALSE(std::filesystem::exists(file));
}

}  // namespace
