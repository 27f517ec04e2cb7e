#include "standalone/graph/library/RuntimeRegistry.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "tests/standalone/graph/TemporaryFolder.h"

namespace {

using orvlib::RuntimeRegistry;
using testing::HasSubstr;

/// A runtime with its root library, both with the same nice name.
void writeRuntime(const TemporaryFolder& folder, const std::filesystem::path& place,
                  const char* name, const char* niceName) {
  std::ostringstream common;
  common << "niceName: " << niceName << "\ndescription: Text.\n";
  std::ostringstream runtime;
  runtime << "name: " << name << "\nrootLibrary: core\nportTypes: []\n" << common.str();
  folder.write(place / "runtime.yaml", runtime.str());
  folder.write(place / "core.yaml", common.str() + "library: core\n");
}

TEST(RuntimeRegistry, LoadsTheRuntimesOfSeveralFolders) {
  TemporaryFolder first;
  TemporaryFolder second;
  writeRuntime(first, "x", "one", "One");
  writeRuntime(second, "x", "two", "Two");
  RuntimeRegistry registry;
  EXPECT_TRUE(registry.load(first.path()).empty());
  EXPECT_TRUE(registry.load(second.path()).empty());
  EXPECT_STREQ(registry.at(0)->getName(), "one");
  EXPECT_STREQ(registry.at(1)->getName(), "two");
}

TEST(RuntimeRegistry, KeepsTheFirstRuntimeOfAName) {
  TemporaryFolder folder;
  writeRuntime(folder, "a", "same", "First");
  writeRuntime(folder, "b", "same", "Second");
  RuntimeRegistry registry;
  const auto diagnostics = registry.load(folder.path());
  ASSERT_EQ(diagnostics.size(), 1u);
  EXPECT_EQ(diagnostics[0].reason, "a runtime named 'same' is already loaded");
  EXPECT_EQ(diagnostics[0].file, (folder.path() / "b/runtime.yaml").string());
  EXPECT_EQ(diagnostics[0].line, 1);
  EXPECT_STREQ(registry.find("same")->getNiceName(), "First");
  EXPECT_EQ(registry.size(), 1u);
}

TEST(RuntimeRegistry, FindsALibraryInTheFirstRuntimeThatHasIt) {
  TemporaryFolder folder;
  writeRuntime(folder, "a", "one", "First");
  writeRuntime(folder, "b", "two", "Second");
  RuntimeRegistry registry;
  registry.load(folder.path());
  EXPECT_STREQ(registry.findLibrary("core")->getNiceName(), "First");
}

TEST(RuntimeRegistry, ABadRuntimeLeavesTheOthersIn) {
  TemporaryFolder folder;
  folder.write("a/runtime.yaml", "nonsense");
  writeRuntime(folder, "b", "two", "Two");
  RuntimeRegistry registry;
  EXPECT_EQ(registry.load(folder.path()).size(), 1u);
  EXPECT_NE(registry.find("two"), nullptr);
}

TEST(RuntimeRegistry, AMissingFolderIsTold) {
  RuntimeRegistry registry;
  const auto diagnostics = registry.load("/no/such/folder");
  ASSERT_EQ(diagnostics.size(), 1u);
  EXPECT_EQ(diagnostics[0].toText(),
            "/no/such/folder: the folder cannot be read: No such file or directory");
}

TEST(RuntimeRegistry, AFolderWithoutARuntimeFileIsTold) {
  TemporaryFolder folder;
  folder.write("a/core.yaml", "library: core\n");
  RuntimeRegistry registry;
  const auto diagnostics = registry.load(folder.path());
  ASSERT_EQ(diagnostics.size(), 1u);
  EXPECT_EQ(diagnostics[0].file, (folder.path() / "a/runtime.yaml").string());
  EXPECT_THAT(diagnostics[0].reason, HasSubstr("No such file"));
}

TEST(RuntimeRegistry, HiddenFoldersAndFilesArePassedOver) {
  TemporaryFolder folder;
  folder.write(".git/x", "");
  folder.write("README.md", "");
  RuntimeRegistry registry;
  EXPECT_TRUE(registry.load(folder.path()).empty());
}

TEST(RuntimeRegistry, GivesNullForAnUnknownNameAndPastTheEnd) {
  const RuntimeRegistry registry;
  EXPECT_EQ(registry.at(0), nullptr);
  EXPECT_EQ(registry.find("x"), nullptr);
  EXPECT_TRUE(registry.findLibrary("x") == nullptr);
}

TEST(RuntimeRegistry, HandsTheTroubleOfARebuildToItsHandler) {
  TemporaryFolder folder;
  writeRuntime(folder, "a", "one", "One");
  RuntimeRegistry registry;
  registry.load(folder.path());
  registry.makeCurrent();
  std::vector<std::string> told;
  registry.setDiagnosticHandler([&](const auto& diagnostic) { told.push_back(diagnostic.reason); });
  folder.write("a/core.yaml", "");
  registry.at(0)->forceRebuildCompounds();
  EXPECT_THAT(told, testing::ElementsAre("the file is empty"));
  EXPECT_TRUE(registry.findLibrary("core") != nullptr);
}

TEST(RuntimeRegistry, TheDestructorOfAnotherRegistryLeavesTheCurrentOne) {
  RuntimeRegistry registry;
  registry.makeCurrent();
  { const RuntimeRegistry other; }
  EXPECT_EQ(RuntimeRegistry::current(), &registry);
}

}  // namespace
