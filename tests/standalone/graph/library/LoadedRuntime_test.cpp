#include "standalone/graph/library/LoadedRuntime.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/standalone/graph/RuntimeFolder.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> reasons(const orvlib::Diagnostics& diagnostics) {
  std::vector<std::string> result;
  for (const auto& diagnostic : diagnostics) result.push_back(diagnostic.reason);
  return result;
}

class LoadedRuntime : public testing::Test {
 protected:
  /// core, core::a and core::b, each with one node.
  void SetUp() override {
    folder_.writeLibrary("1.yaml", "core");
    folder_.writeLibrary("2.yaml", "core::a");
    folder_.writeLibrary("3.yaml", "core::b");
  }

  std::unique_ptr<orvlib::LoadedRuntime> loadGood() {
    auto runtime = folder_.load();
    EXPECT_THAT(reasons(folder_.diagnostics), IsEmpty());
    return runtime;
  }

  RuntimeFolder folder_;
};

TEST_F(LoadedRuntime, FindsItsLibrariesNodesAndTypesByName) {
  const auto runtime = loadGood();
  EXPECT_STREQ(runtime->findLibrary("core::a")->getName(), "core::a");
  EXPECT_STREQ(runtime->findNode("core::a::pass")->getName(), "core::a::pass");
  EXPECT_STREQ(runtime->findPortType("pair")->getName(), "pair");
}

TEST_F(LoadedRuntime, GivesNullHandlesForUnknownNames) {
  const auto runtime = loadGood();
  EXPECT_TRUE(runtime->findLibrary("a") == nullptr);
  EXPECT_TRUE(runtime->findNode("pass") == nullptr);
  EXPECT_TRUE(runtime->findPortType("") == nullptr);
}

TEST_F(LoadedRuntime, ABadFileLeavesTheOthersIn) {
  const std::string bad = folder_.write("2.yaml", "library: [\n");
  const auto runtime = folder_.load();
  ASSERT_EQ(folder_.diagnostics.size(), 1u);
  EXPECT_EQ(folder_.diagnostics[0].file, bad);
  EXPECT_TRUE(runtime->findLibrary("core::a") == nullptr);
  EXPECT_TRUE(runtime->findLibrary("core::b") != nullptr);
}

TEST_F(LoadedRuntime, TheOrderOfSubLibrariesIsThatOfTheFileNames) {
  folder_.writeLibrary("0.yaml", "core::c");
  const auto root = loadGood()->content().rootLibrary;
  ASSERT_EQ(root->getNumberOfSubLibraries(), 3u);
  EXPECT_STREQ(root->getSubLibraryAt(0)->getName(), "core::c");
  EXPECT_STREQ(root->getSubLibraryAt(1)->getName(), "core::a");
}

TEST_F(LoadedRuntime, OfTwoLibrariesWithOneNameTheFirstFileKeepsIt) {
  folder_.writeLibrary("4.yaml", "core::a", "other");
  const auto runtime = folder_.load();
  EXPECT_THAT(reasons(folder_.diagnostics),
              ElementsAre("the library 'core::a' is already defined in " +
                          (folder_.path() / "2.yaml").string()));
  EXPECT_TRUE(runtime->findNode("core::a::pass") != nullptr);
  EXPECT_TRUE(runtime->findNode("core::a::other") == nullptr);
}

TEST_F(LoadedRuntime, ALibraryWithoutItsParentIsToldAtItsName) {
  folder_.writeLibrary("4.yaml", "core::c::d");
  folder_.load();
  ASSERT_EQ(folder_.diagnostics.size(), 1u);
  EXPECT_EQ(folder_.diagnostics[0].reason,
            "the parent library 'core::c' of 'core::c::d' is not loaded");
  EXPECT_EQ(folder_.diagnostics[0].line, 1);
  EXPECT_EQ(folder_.diagnostics[0].column, 10);
}

TEST_F(LoadedRuntime, ALibraryWhoseParentFailedIsToldAndSoAreItsOwn) {
  folder_.write("2.yaml", "library: core::a\n");
  folder_.writeLibrary("4.yaml", "core::a::c");
  folder_.writeLibrary("0.yaml", "core::a::c::d");
  folder_.load();
  EXPECT_THAT(reasons(folder_.diagnostics),
              ElementsAre("a library lacks the key 'niceName'",
                          "the parent library 'core::a' of 'core::a::c' is not loaded",
                          "the parent library 'core::a::c' of 'core::a::c::d' is not loaded"));
}

TEST_F(LoadedRuntime, ALibraryBesideTheRootIsTold) {
  folder_.writeLibrary("4.yaml", "other");
  folder_.load();
  EXPECT_THAT(reasons(folder_.diagnostics),
              ElementsAre("the library 'other' does not lie under the root library 'core'"));
}

TEST_F(LoadedRuntime, AMissingRootLibraryIsToldWhereTheRuntimeNamesIt) {
  for (const char* file : {"1.yaml", "2.yaml", "3.yaml"}) {
    std::filesystem::remove(folder_.path() / file);
  }
  const auto runtime = folder_.load();
  ASSERT_EQ(folder_.diagnostics.size(), 1u);
  EXPECT_EQ(folder_.diagnostics[0].reason, "the root library 'core' is not loaded");
  EXPECT_EQ(folder_.diagnostics[0].line, 4);
  EXPECT_TRUE(runtime->content().rootLibrary == nullptr);
}

TEST_F(LoadedRuntime, WithoutARootLibraryNoLibraryHasAPlace) {
  std::string text = RuntimeFolder::kRuntime;
  text.erase(text.find("rootLibrary"), std::string("rootLibrary: core\n").size());
  folder_.write("runtime.yaml", text);
  folder_.load();
  EXPECT_EQ(folder_.diagnostics.at(0).reason,
            "the library 'core' has no place: the runtime has no root library");
}

TEST_F(LoadedRuntime, FilesOfOtherKindsArePassedOver) {
  folder_.write("README.md", "library: [");
  loadGood();
}

TEST_F(LoadedRuntime, ARebuildTakesWhatChanged) {
  const auto runtime = loadGood();
  folder_.writeLibrary("2.yaml", "core::a", "other");
  EXPECT_THAT(reasons(runtime->rebuild()), IsEmpty());
  EXPECT_TRUE(runtime->findNode("core::a::other") != nullptr);
  EXPECT_TRUE(runtime->findNode("core::a::pass") == nullptr);
}

TEST_F(LoadedRuntime, ARebuildTakesNewFilesAndDropsThoseThatAreGone) {
  const auto runtime = loadGood();
  folder_.writeLibrary("4.yaml", "core::c");
  std::filesystem::remove(folder_.path() / "3.yaml");
  EXPECT_THAT(reasons(runtime->rebuild()), IsEmpty());
  EXPECT_TRUE(runtime->findLibrary("core::c") != nullptr);
  EXPECT_TRUE(runtime->findLibrary("core::b") == nullptr);
}

TEST_F(LoadedRuntime, ARebuildKeepsTheDefinitionsOfABadFile) {
  const auto runtime = loadGood();
  folder_.write("2.yaml", "nonsense");
  folder_.writeLibrary("3.yaml", "core::b", "other");
  EXPECT_THAT(reasons(runtime->rebuild()),
              ElementsAre("a library must be a mapping of keys to values"));
  EXPECT_TRUE(runtime->findNode("core::a::pass") != nullptr);
  EXPECT_TRUE(runtime->findNode("core::b::other") != nullptr);
}

TEST_F(LoadedRuntime, ASecondRebuildStillKeepsTheDefinitionsOfABadFile) {
  const auto runtime = loadGood();
  folder_.write("2.yaml", "nonsense");
  runtime->rebuild();
  EXPECT_EQ(runtime->rebuild().size(), 1u);
  EXPECT_TRUE(runtime->findNode("core::a::pass") != nullptr);
}

TEST_F(LoadedRuntime, ARebuildKeepsALibraryWhoseNewNameDoesNotFit) {
  const auto runtime = loadGood();
  folder_.writeLibrary("3.yaml", "core::a", "other");
  EXPECT_EQ(runtime->rebuild().size(), 1u);
  EXPECT_TRUE(runtime->findNode("core::a::pass") != nullptr);
  EXPECT_TRUE(runtime->findNode("core::b::pass") != nullptr);
}

TEST_F(LoadedRuntime, ARebuildTellsOnceOfALibraryWhoseParentIsGone) {
  folder_.writeLibrary("4.yaml", "core::b::c");
  const auto runtime = loadGood();
  std::filesystem::remove(folder_.path() / "3.yaml");
  EXPECT_THAT(reasons(runtime->rebuild()),
              ElementsAre("the parent library 'core::b' of 'core::b::c' is not loaded"));
  EXPECT_TRUE(runtime->findLibrary("core::b::c") == nullptr);
}

TEST_F(LoadedRuntime, ARebuildKeepsTheTypesOfABadRuntimeFile) {
  const auto runtime = loadGood();
  folder_.write("runtime.yaml", "nonsense");
  EXPECT_EQ(runtime->rebuild().size(), 1u);
  EXPECT_TRUE(runtime->findPortType("pair") != nullptr);
}

TEST_F(LoadedRuntime, ARebuildTakesNewTypes) {
  const auto runtime = loadGood();
  folder_.write("runtime.yaml",
                std::string(RuntimeFolder::kRuntime) +
                    "  - {name: text, niceName: Text, description: Text., scalar: string}\n");
  EXPECT_THAT(reasons(runtime->rebuild()), IsEmpty());
  EXPECT_TRUE(runtime->findPortType("text") != nullptr);
}

TEST_F(LoadedRuntime, ARebuildDoesNotRenameTheRuntime) {
  const auto runtime = loadGood();
  std::string text = RuntimeFolder::kRuntime;
  folder_.write("runtime.yaml", text.replace(0, 11, "name: other"));
  EXPECT_THAT(reasons(runtime->rebuild()),
              ElementsAre("the loaded runtime 'trial' cannot become 'other'"));
  EXPECT_EQ(runtime->description().name, "trial");
}

TEST_F(LoadedRuntime, ARebuildDoesNotTakeARootLibraryThatIsNotThere) {
  const auto runtime = loadGood();
  std::string text = RuntimeFolder::kRuntime;
  const auto at = text.find("rootLibrary: core");
  folder_.write("runtime.yaml", text.replace(at, 17, "rootLibrary: kore"));
  EXPECT_THAT(reasons(runtime->rebuild()), ElementsAre("the root library 'kore' is not loaded"));
  EXPECT_STREQ(runtime->content().rootLibrary->getName(), "core");
  EXPECT_TRUE(runtime->findNode("core::a::pass") != nullptr);
}

TEST_F(LoadedRuntime, ARebuildKeepsARootLibraryWhoseFileNowNamesAnother) {
  const auto runtime = loadGood();
  folder_.writeLibrary("1.yaml", "kore");
  EXPECT_THAT(reasons(runtime->rebuild()),
              ElementsAre("the library 'kore' does not lie under the root library 'core'"));
  EXPECT_TRUE(runtime->findNode("core::pass") != nullptr);
}

TEST_F(LoadedRuntime, AHandleFromBeforeARebuildKeepsItsContent) {
  const auto runtime = loadGood();
  const auto library = runtime->findLibrary("core::a");
  const auto type = runtime->findPortType("pair");
  folder_.writeLibrary("2.yaml", "core::a", "other");
  runtime->rebuild();
  EXPECT_STREQ(library->getNodeAt(0)->getName(), "core::a::pass");
  EXPECT_STREQ(type->getName(), "pair");
}

TEST_F(LoadedRuntime, ARebuildWithoutItsFolderKeepsTheTypesAndTellsWhy) {
  const auto runtime = loadGood();
  std::filesystem::remove_all(folder_.path());
  EXPECT_FALSE(runtime->rebuild().empty());
  EXPECT_TRUE(runtime->findPortType("pair") != nullptr);
}

}  // namespace
