#include "standalone/host/engine/AtomicFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "tests/support/TemporaryFiles.h"
#include "tests/support/Unprivileged.h"

namespace vesk {
namespace {

namespace fs = std::filesystem;

class AtomicFile : public ::testing::Test {
 protected:
  std::string path(std::string_view name) const { return folder_.path(name); }

  /// The reason why a path is not read.
  static std::string whyUnread(const std::string& path) {
    std::string reason;
    EXPECT_FALSE(readWholeFile(path, reason)) << path;
    return reason;
  }

  std::size_t filesInFolder() const {
    return std::distance(fs::directory_iterator(path("")), fs::directory_iterator());
  }

  hosttest::TemporaryFiles folder_;
};

TEST_F(AtomicFile, GivesTheBytesThatWereWritten) {
  using namespace std::string_literals;
  for (const std::string& bytes : {""s, "a\0b\r\n\xFF"s, std::string(1 << 20, 'x')}) {
    EXPECT_EQ(writeAtomically(path("Größe"), bytes), "");
    std::string reason;
    EXPECT_EQ(readWholeFile(path("Größe"), reason), bytes);
    EXPECT_EQ(reason, "");
  }
  EXPECT_EQ(filesInFolder(), 1u);
}

TEST_F(AtomicFile, ReadsNothingButRegularFiles) {
  ASSERT_EQ(mkfifo(path("pipe").c_str(), 0600), 0);
  fs::create_symlink("/dev/null", path("link"));
  EXPECT_EQ(whyUnread(path("pipe")), "it is no regular file");
  EXPECT_EQ(whyUnread("/dev/null"), "it is no regular file");
  EXPECT_EQ(whyUnread(path("link")), "it is no regular file");
  EXPECT_EQ(whyUnread(path("")), "it is a folder");
}

TEST_F(AtomicFile, TellsWhyAFileCannotBeRead) {
  EXPECT_EQ(whyUnread(path("none")), "No such file or directory");
  const std::string file = folder_.write("file", "text");
  const Unprivileged user;
  EXPECT_EQ(whyUnread(file), "Permission denied");
}

TEST_F(AtomicFile, ReplacesNothingButRegularFiles) {  // never tried on a device of the machine
  ASSERT_EQ(mkfifo(path("pipe").c_str(), 0600), 0);
  fs::create_directory(path("folder"));
  fs::create_symlink("pipe", path("link"));
  EXPECT_EQ(writeAtomically(path("pipe"), "text"), "it is no regular file");
  EXPECT_EQ(writeAtomically(path("link"), "text"), "it is no regular file");
  EXPECT_EQ(writeAtomically(path("folder"), "text"), "it is a folder");
  EXPECT_TRUE(fs::is_fifo(path("pipe")));
  EXPECT_TRUE(fs::is_symlink(path("link")));
  EXPECT_EQ(filesInFolder(), 3u);
}

TEST_F(AtomicFile, IsReplacedWhereALinkLeads) {
  folder_.write("file", "old");
  fs::create_symlink("file", path("link"));
  EXPECT_EQ(writeAtomically(path("link"), "new"), "");
  EXPECT_TRUE(fs::is_symlink(path("link")));
  EXPECT_EQ(folder_.read("file"), "new");
}

TEST_F(AtomicFile, StaysWhenItCannotBeReplaced) {
  folder_.write("file", "old");
  fs::permissions(path(""), fs::perms{0555});
  {
    const Unprivileged user;
    EXPECT_EQ(writeAtomically(path("file"), "new"), "Permission denied");
  }
  fs::permissions(path(""), fs::perms{0755});
  EXPECT_EQ(folder_.read("file"), "old");
  EXPECT_EQ(writeAtomically(path("none/file"), "new"), "No such file or directory");
}

}  // namespace
}  // namespace vesk
