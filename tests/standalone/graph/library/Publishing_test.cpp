// Which files of published compounds a runtime reads, and what becomes of them.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "standalone/graph/api/GraphAccess.h"
#include "tests/standalone/graph/RuntimeFolder.h"
#include "tests/support/Unprivileged.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> reasons(const orvlib::Diagnostics& diagnostics) {
  std::vector<std::string> result;
  for (const auto& diagnostic : diagnostics) result.push_back(diagnostic.reason);
  return result;
}

std::string compoundText(const std::string& name, const std::string& content = "x") {
  return "compound: " + name + "\nniceName: X\ndescription: X.\ncontent: " + content + "\n";
}

/// A runtime 'trial' with the library core, and a folder for what is published.
class Publishing : public testing::Test {
 protected:
  Publishing() { folder_.writeLibrary("1.yaml", "core"); }

  std::vector<std::string> load() {
    orvlib::Diagnostics diagnostics;
    runtime_ = orvlib::LoadedRuntime::load(folder_.path(), diagnostics, published_.path());
    return reasons(diagnostics);
  }

  std::string publish(const std::string& name, bool replace = false,
                      const std::string& content = "new\n", const std::string& file = "") {
    orvlib::Publication publication;
    publication.node = {name, "X", "X.", {}, content};
    publication.replace = replace;
    publication.file = file;
    return runtime_->publish(publication);
  }

  std::string contentOf(const std::string& name) const {
    const auto definition = runtime_->findNode(name);
    return definition == nullptr ? "" : ORV_v1::GraphAccess::describe(*definition).content;
  }

  std::string file(const std::string& name) const {
    return (published_.path() / "trial" / name).string();
  }

  RuntimeFolder folder_;
  TemporaryFolder published_;
  std::unique_ptr<orvlib::LoadedRuntime> runtime_;
};

TEST_F(Publishing, OffersTheCompoundAtOnceAndAfterARebuild) {
  load();
  EXPECT_EQ(publish("core::user::soft"), "");
  EXPECT_EQ(contentOf("core::user::soft"), "new\n");
  EXPECT_TRUE(std::filesystem::exists(file("core.user.soft.yaml")));
  EXPECT_THAT(reasons(runtime_->rebuild()), IsEmpty());
  EXPECT_EQ(contentOf("core::user::soft"), "new\n");
}

TEST_F(Publishing, LeavesOtherHandlesWhatTheyAre) {
  load();
  const auto pass = runtime_->findNode("core::pass");
  const auto type = runtime_->findPortType("pair");
  publish("core::soft");
  EXPECT_TRUE(runtime_->findNode("core::pass").get() == pass.get());
  EXPECT_TRUE(runtime_->findPortType("pair").get() == type.get());
}

TEST_F(Publishing, AHandleOfTheReplacedOneKeepsItsContent) {
  load();
  publish("core::soft", false, "one\n");
  const auto former = runtime_->findNode("core::soft");
  EXPECT_EQ(publish("core::soft", true, "two\n"), "");
  EXPECT_EQ(ORV_v1::GraphAccess::describe(*former).content, "one\n");
  EXPECT_EQ(contentOf("core::soft"), "two\n");
}

TEST_F(Publishing, RefusesAPublishedNameUnlessItIsToBeReplaced) {
  load();
  publish("core::soft", false, "one\n");
  EXPECT_EQ(publish("core::soft", false, "two\n"), "a compound of that name is published already");
  EXPECT_EQ(contentOf("core::soft"), "one\n");
}

TEST_F(Publishing, NeverReplacesAnotherKindOfNode) {
  load();
  EXPECT_EQ(publish("core::pass", true),
            "the library has a node of that name that is no published compound");
}

TEST_F(Publishing, NeverReplacesACompoundOfTheRuntimesFolder) {
  const std::string shipped = folder_.write("2.yaml", compoundText("core::soft"));
  load();
  EXPECT_EQ(
      publish("core::soft", true),
      "it is defined in '" + shipped + "', which is not in the folder of published compounds");
}

TEST_F(Publishing, ReplacesInTheFileThatTheCompoundIsIn) {
  published_.write("trial/other.yaml", compoundText("core::soft"));
  load();
  EXPECT_EQ(publish("core::soft", true), "");
  EXPECT_FALSE(std::filesystem::exists(file("core.soft.yaml")));
  runtime_->rebuild();
  EXPECT_EQ(contentOf("core::soft"), "new\n");
}

TEST_F(Publishing, LeavesTheFileOfAnotherCompoundAlone) {
  published_.write("trial/core.soft.yaml", compoundText("core::hard"));
  load();
  EXPECT_EQ(publish("core::soft", true),
            "the file '" + file("core.soft.yaml") + "' holds 'core::hard'");
}

TEST_F(Publishing, LeavesADamagedFileAloneUnlessItIsToBeReplaced) {
  published_.write("trial/core.soft.yaml", "nonsense");
  EXPECT_EQ(load().size(), 1u);
  EXPECT_EQ(publish("core::soft"), "the file '" + file("core.soft.yaml") + "' is there already");
  EXPECT_EQ(publish("core::soft", true), "");
}

TEST_F(Publishing, WithoutAFolderIsRefused) {
  runtime_ = folder_.load();
  EXPECT_EQ(publish("core::soft"), "no folder for published compounds is set");
}

TEST_F(Publishing, IntoAFolderOutOfReachChangesNothing) {
  load();
  std::filesystem::permissions(published_.path(), std::filesystem::perms(0555));
  {
    const Unprivileged user;
    EXPECT_EQ(publish("core::soft"), "the folder '" + (published_.path() / "trial").string() +
                                         "' cannot be made: Permission denied");
  }
  EXPECT_TRUE(runtime_->findNode("core::soft") == nullptr);
  EXPECT_TRUE(std::filesystem::is_empty(published_.path()));
}

TEST_F(Publishing, AFileThatCannotBeWrittenTakesTheNewFoldersWithIt) {
  load();
  const std::string name(300, 'a');
  EXPECT_EQ(publish("core::" + name), "the file '" + file("core." + name + ".yaml") +
                                          "' cannot be written: File name too long");
  EXPECT_TRUE(std::filesystem::is_empty(published_.path()));
  EXPECT_TRUE(runtime_->findNode("core::" + name) == nullptr);
}

TEST_F(Publishing, TheRuntimesOwnCompoundComesBeforeThePublishedOne) {
  const std::string shipped = folder_.write("2.yaml", compoundText("core::soft", "shipped"));
  published_.write("trial/a.yaml", compoundText("core::soft", "published"));
  EXPECT_THAT(load(), ElementsAre("the compound 'core::soft' is already defined in " + shipped));
  EXPECT_EQ(contentOf("core::soft"), "shipped");
}

TEST_F(Publishing, ALibraryInThePublishedFolderIsTold) {
  published_.write("trial/a.yaml", "library: core::x\nniceName: X\ndescription: X.\n");
  EXPECT_THAT(load(), ElementsAre("a compound has no key 'library'; its keys are compound, "
                                  "niceName, description, inputs, outputs, content"));
}

TEST_F(Publishing, ARebuildKeepsTheCompoundOfABadFileAndDropsThatOfOneThatIsGone) {
  published_.write("trial/a.yaml", compoundText("core::a"));
  published_.write("trial/b.yaml", compoundText("core::b"));
  EXPECT_THAT(load(), IsEmpty());
  published_.write("trial/a.yaml", "nonsense");
  std::filesystem::remove(file("b.yaml"));
  EXPECT_EQ(runtime_->rebuild().size(), 1u);
  EXPECT_EQ(contentOf("core::a"), "x");
  EXPECT_TRUE(runtime_->findNode("core::b") == nullptr);
}

TEST_F(Publishing, ARebuildKeepsACompoundWhoseNewNameDoesNotFit) {
  published_.write("trial/a.yaml", compoundText("core::a"));
  load();
  published_.write("trial/a.yaml", compoundText("other::a"));
  EXPECT_THAT(reasons(runtime_->rebuild()),
              ElementsAre("the compound 'other::a' does not lie under the root library 'core'"));
  EXPECT_EQ(contentOf("core::a"), "x");
}

TEST_F(Publishing, AFolderThatIsNotThereIsAnEmptyOne) {
  EXPECT_THAT(load(), IsEmpty());
  EXPECT_FALSE(std::filesystem::exists(published_.path() / "trial"));
}

}  // namespace
