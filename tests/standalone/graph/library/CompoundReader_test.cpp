#include "standalone/graph/library/CompoundReader.h"

#include <gtest/gtest.h>

#include "standalone/graph/api/GraphAccess.h"
#include "tests/standalone/graph/RuntimeFolder.h"

namespace {

constexpr const char* kGood =
    "compound: core::user::soft\n"
    "niceName: Soft\n"
    "description: Makes soft.\n"
    "inputs:\n"
    "  - {name: size, type: pair, default: [1, 2], description: How soft.}\n"
    "outputs:\n"
    "  - {name: result, type: float, description: What comes out.}\n"
    "content: |\n"
    "  one\n"
    "    two\n";

/// A runtime whose root library is there, and one file of a compound.
class CompoundReader : public testing::Test {
 protected:
  void SetUp() override { folder_.writeLibrary("1.yaml", "core"); }

  std::unique_ptr<orvlib::LoadedRuntime> load(const std::string& text) {
    folder_.write("2.yaml", text);
    return folder_.load();
  }

  /// What is told of a text: "line:column: reason".
  std::string told(const std::string& text) {
    load(text);
    if (folder_.diagnostics.empty()) return "";
    const std::string whole = folder_.diagnostics.front().toText();
    return whole.substr(folder_.diagnostics.front().file.size() + 1);
  }

  std::string toldWithout(const std::string& line) {
    std::string text = kGood;
    return told(text.erase(text.find(line), line.size()));
  }

  std::string toldWith(const std::string& former, const std::string& text) {
    std::string changed = kGood;
    return told(changed.replace(changed.find(former), former.size(), text));
  }

  RuntimeFolder folder_;
};

TEST_F(CompoundReader, TakesNamePortsAndContent) {
  const auto runtime = load(kGood);
  ASSERT_TRUE(folder_.diagnostics.empty()) << folder_.diagnostics[0].toText();
  const auto definition = runtime->findNode("core::user::soft");
  ASSERT_TRUE(definition != nullptr);
  const orvlib::NodeDescription& node = ORV_v1::GraphAccess::describe(*definition);
  EXPECT_EQ(node.niceName, "Soft");
  EXPECT_EQ(node.description, "Makes soft.");
  EXPECT_EQ(node.content, "one\n  two\n");
  ASSERT_EQ(node.ports.size(), 2u);
  EXPECT_EQ(node.ports[0].name, "size");
  EXPECT_EQ(node.ports[0].defaultValue, orvlib::Value(orvlib::Floats{1, 2}));
  EXPECT_EQ(node.ports[1].direction, orvlib::PortDirection::Output);
}

TEST_F(CompoundReader, MakesTheLibraryThatIsNotThere) {
  const auto runtime = load(kGood);
  const auto library = runtime->findLibrary("core::user");
  ASSERT_TRUE(library != nullptr);
  EXPECT_STREQ(library->getNiceName(), "User");
  EXPECT_STREQ(library->getNodeAt(0)->getName(), "core::user::soft");
  EXPECT_STREQ(runtime->content().rootLibrary->getSubLibraryAt(0)->getName(), "core::user");
}

TEST_F(CompoundReader, MakesEachLibraryAboveIt) {
  const auto runtime = load("compound: core::a::b::x\nniceName: X\ndescription: X.\ncontent: x\n");
  EXPECT_TRUE(runtime->findLibrary("core::a") != nullptr);
  ASSERT_TRUE(runtime->findLibrary("core::a::b") != nullptr);
  EXPECT_STREQ(runtime->findLibrary("core::a")->getSubLibraryAt(0)->getName(), "core::a::b");
}

TEST_F(CompoundReader, JoinsALibraryThatIsThere) {
  const auto runtime = load("compound: core::soft\nniceName: X\ndescription: X.\ncontent: x\n");
  const auto root = runtime->content().rootLibrary;
  ASSERT_EQ(root->getNumberOfNodes(), 2u);
  EXPECT_STREQ(root->getNodeAt(1)->getName(), "core::soft");
}

TEST_F(CompoundReader, DemandsEachKey) {
  EXPECT_EQ(toldWithout("niceName: Soft\n"), "1:1: a compound lacks the key 'niceName'");
  EXPECT_EQ(toldWithout("description: Makes soft.\n"),
            "1:1: a compound lacks the key 'description'");
  EXPECT_EQ(toldWithout("content: |\n  one\n    two\n"), "1:1: a compound lacks the key 'content'");
}

TEST_F(CompoundReader, TellsWhatIsWrongAtItsPlace) {
  EXPECT_EQ(toldWith("core::user::soft", "soft"),
            "1:11: a compound: 'soft' names no library: put one and '::' before it");
  EXPECT_EQ(toldWith("core::user::soft", "core::2"),
            "1:11: a compound: 'core::2' is no library name: use names with '::' between them");
  EXPECT_EQ(toldWith("type: pair", "type: pear"),
            "5:24: an input: the runtime has no port type 'pear'");
  EXPECT_EQ(toldWith("name: result", "name: size"),
            "7:5: node 'core::user::soft' has more than one port named 'size'");
  EXPECT_EQ(toldWith("niceName", "nice"),
            "2:1: a compound has no key 'nice'; its keys are compound, niceName, description, "
            "inputs, outputs, content");
}

TEST_F(CompoundReader, ACompoundBesideTheRootLibraryIsTold) {
  EXPECT_EQ(toldWith("core::user", "other"),
            "1:11: the compound 'other::soft' does not lie under the root library 'core'");
  EXPECT_EQ(toldWith("core::user", "cores"),
            "1:11: the compound 'cores::soft' does not lie under the root library 'core'");
}

TEST_F(CompoundReader, ACompoundWithTheNameOfANodeIsTold) {
  EXPECT_EQ(toldWith("core::user::soft", "core::pass"),
            "1:11: the compound 'core::pass' is already defined in " +
                (folder_.path() / "1.yaml").string());
}

TEST_F(CompoundReader, ACompoundWithoutARootLibraryIsTold) {
  std::filesystem::remove(folder_.path() / "1.yaml");
  EXPECT_EQ(told(kGood), "1:11: the root library 'core' of 'core::user::soft' is not loaded");
}

}  // namespace
