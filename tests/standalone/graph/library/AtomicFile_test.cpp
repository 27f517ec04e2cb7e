#include <gtest/gtest.h>

#include <sys/stat.h>

#include "tests/standalone/graph/RuntimeFolder.h"
#include "tests/support/Unprivileged.h"

namespace {

/// The writing of files, by way of a definition.
class AtomicFile : public testing::Test {
 protected:
  AtomicFile() {
    runtime_.writeLibrary("1.yaml", "core");
    loaded_ = runtime_.load();
  }

  std::string write(const std::string& name, const std::string& content = "one\n") const {
    orvlib::NodeDescription node;
    node.name = "core::soft";
    node.niceName = "Soft";
    node.description = "Text.";
    node.content = content;
    return loaded_->writeDefinition(node, folder_.path() / name);
  }

  std::string text(const std::string& name) const {
    std::ifstream stream(folder_.path() / name);
    return {std::istreambuf_iterator<char>(stream), {}};
  }

  std::size_t fileCount() const {
    const std::filesystem::directory_iterator files(folder_.path());
    return static_cast<std::size_t>(std::distance(begin(files), end(files)));
  }

  RuntimeFolder runtime_;
  TemporaryFolder folder_;
  std::unique_ptr<orvlib::LoadedRuntime> loaded_;
};

TEST_F(AtomicFile, TakesThePlaceOfTheOldOneAndLeavesNoOther) {
  folder_.write("a", "old");
  EXPECT_EQ(write("a"), "");
  EXPECT_NE(text("a").find("content: |2\n  one\n"), std::string::npos);
  EXPECT_EQ(fileCount(), 1u);
}

TEST_F(AtomicFile, KeepsTheRightsOfTheOldOne) {
  const std::string file = folder_.write("a", "old");
  ASSERT_EQ(chmod(file.c_str(), 0640), 0);
  EXPECT_EQ(write("a"), "");
  struct stat now = {};
  ASSERT_EQ(stat(file.c_str(), &now), 0);
  EXPECT_EQ(now.st_mode & 0777, 0640u);
}

TEST_F(AtomicFile, ALinkStaysALink) {
  const std::string file = folder_.write("a", "old");
  std::filesystem::create_symlink("a", folder_.path() / "b");
  EXPECT_EQ(write("b"), "");
  EXPECT_TRUE(std::filesystem::is_symlink(folder_.path() / "b"));
  EXPECT_NE(text("a"), "old");
}

TEST_F(AtomicFile, LeavesAFolderAlone) {
  std::filesystem::create_directory(folder_.path() / "a");
  EXPECT_EQ(write("a"),
            "the file '" + (folder_.path() / "a").string() + "' cannot be written: it is a folder");
}

TEST_F(AtomicFile, InAFolderThatIsNotThereTellsSo) {
  EXPECT_EQ(write("no/a"), "the file '" + (folder_.path() / "no/a").string() +
                               "' cannot be written: No such file or directory");
}

TEST_F(AtomicFile, InAFolderOutOfReachLeavesTheOldOne) {
  const std::string file = folder_.write("a", "old");
  std::filesystem::permissions(folder_.path(), std::filesystem::perms(0555));
  {
    const Unprivileged user;
    EXPECT_EQ(write("a"), "the file '" + file + "' cannot be written: Permission denied");
  }
  std::filesystem::permissions(folder_.path(), std::filesystem::perms(0755));
  EXPECT_EQ(text("a"), "old");
  EXPECT_EQ(fileCount(), 1u);
}

}  // namespace
