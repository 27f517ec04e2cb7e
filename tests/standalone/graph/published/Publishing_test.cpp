#include <gmock/gmock.h>

#include "standalone/graph/edits/FaultPoints.h"
#include "testPaths.h"
#include "tests/standalone/graph/published/PublishedFixture.h"
#include "tests/support/Unprivileged.h"

namespace orvlib {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;

using Publish = PublishedFixture;

TEST_F(Publish, OffersTheCompoundInItsLibrary) {
  EXPECT_EQ(publish("soft", "core::user"), "");
  const auto library = ORV_v1::NodeLibrary::findLibrary("core::user");
  ASSERT_TRUE(library != nullptr);
  EXPECT_STREQ(library->getNodeAt(0)->getName(), "core::user::soft");
  EXPECT_TRUE(std::filesystem::exists(file("core.user.soft.yaml")));
}

TEST_F(Publish, WithoutALibraryGoesToTheRoot) {
  EXPECT_EQ(publish(), "");
  EXPECT_TRUE(isOffered("core::soft"));
}

TEST_F(Publish, MakesTheCompoundAnUnchangedCopy) {
  publish();
  EXPECT_STREQ(soft_->getSpecializedTypeName().toChar(), "core::soft");
  EXPECT_TRUE(soft_->isImported());
  EXPECT_FALSE(soft_->isReferenced());
  EXPECT_FALSE(soft_->canResetToFactory());
}

TEST_F(Publish, AnotherRegistryReadsWhatWasWritten) {
  publish();
  RuntimeRegistry other;
  other.setPublishedFolder(folder_.path());
  EXPECT_THAT(other.load(VESK_SOURCE_DIR "/library"), IsEmpty());
  EXPECT_TRUE(ORV_v1::GraphAccess::loaded(*other.find("standard")).findNode("core::soft"));
}

TEST_F(Publish, RefusesNamesThatAreNone) {
  const std::string before = stored();
  EXPECT_EQ(publish("my soft"),
            "The compound '/soft' cannot be published as 'my soft': the name 'my soft' is no name: "
            "use letters, digits and '_', not a digit first.");
  EXPECT_EQ(publish(""),
            "The compound '/soft' cannot be published as '': the name '' is no name: use letters, "
            "digits and '_', not a digit first.");
  EXPECT_EQ(publish("soft", "core:user"),
            "The compound '/soft' cannot be published as 'soft': the library 'core:user' is no "
            "library name: use names with '::' between them.");
  EXPECT_EQ(publish("soft", "other"),
            "The compound '/soft' cannot be published as 'soft': the library 'other' does not lie "
            "under the root library 'core'.");
  EXPECT_EQ(stored(), before);
  EXPECT_TRUE(std::filesystem::is_empty(folder_.path()));
}

TEST_F(Publish, TellsWhyTheLibraryRefuses) {
  publish();
  EXPECT_EQ(publish(),
            "The compound '/soft' cannot be published as 'soft': a compound of that "
            "name is published already.");
}

TEST_F(Publish, ACompoundThatWouldHoldItselfIsRefused) {
  publish();
  CompoundObject* outer = addCompound(top(), "outer");
  const auto definition = graph_.core().findDefinition("core::soft");
  insert(*outer, factory().make(*definition, "inner"));
  EXPECT_EQ(publish(*outer, "outer"), "");
  CompoundObject* third = addCompound(top(), "third");
  insert(*third, factory().make(*graph_.core().findDefinition("core::outer"), "inner"));
  EXPECT_EQ(publish(*third, "soft", "", true),
            "The compound '/third' cannot be published as 'soft': it would hold itself.");
}

TEST_F(Publish, AFaultLeavesGraphFilesAndLibrary) {
  const std::string before = stored();
  const ArmedFault fault("Compound publish");
  EXPECT_EQ(publish(),
            "The compound '/soft' cannot be published as 'soft': the library refused it.");
  EXPECT_EQ(stored(), before);
  EXPECT_FALSE(isOffered("core::soft"));
  EXPECT_TRUE(std::filesystem::is_empty(folder_.path()));
}

TEST_F(Publish, IntoAFolderOutOfReachLeavesGraphAndLibrary) {
  const std::string before = stored();
  std::filesystem::permissions(folder_.path(), std::filesystem::perms(0555));
  {
    const Unprivileged user;
    EXPECT_THAT(publish(), HasSubstr("cannot be made: Permission denied."));
  }
  EXPECT_EQ(stored(), before);
  EXPECT_FALSE(isOffered("core::soft"));
}

TEST_F(Publish, AReferenceStaysTheReferenceThatItIs) {
  publish();
  CompoundObject* reference = instance("core::soft", "one");
  EXPECT_EQ(publish(*reference, "other"), "");
  EXPECT_TRUE(reference->isReferenced());
  EXPECT_EQ(reference->origin(), "core::soft");
}

TEST_F(Publish, InThePlaceOfTheReferenceThatItLiesInWorks) {
  addCompound(*soft_, "inner");
  publish();
  const CompoundRef reference(instance("core::soft", "one"));
  const CompoundRef inner(graph_.findNode("/one/inner")->compound());
  EXPECT_EQ(publish(*inner, "soft", "", true), "");
  EXPECT_EQ(inner->node(), nullptr) << "what followed has no such level any more";
  EXPECT_EQ(reference->getChildNodes().size(), 0u);
}

TEST_F(Publish, TheValuesOfInputsAreTheDefaults) {
  PortObject* size = port("/soft.size");
  ASSERT_TRUE(
      edits_.run(SetPortValue{PortRef(size), std::make_unique<const Value>(Floats{0.75f})}));
  publish();
  const auto definition = graph_.core().findDefinition("core::soft");
  EXPECT_EQ(ORV_v1::GraphAccess::describe(*definition).ports[0].defaultValue, Value(Floats{0.75f}));
}

class Save : public PublishedFixture {
 protected:
  std::string save(const std::string& path) {
    ORV_v1::String error;
    const bool done = soft_->save(path.c_str(), error);
    EXPECT_EQ(done, error.empty());
    return error.toChar();
  }
};

TEST_F(Save, WritesADefinitionFileOfTheNodesName) {
  EXPECT_EQ(save((folder_.path() / "x.yaml").string()), "");
  std::filesystem::create_directory(folder_.path() / "standard");
  std::filesystem::rename(folder_.path() / "x.yaml", file("x.yaml"));
  fresh_.find("standard")->forceRebuildCompounds();
  EXPECT_TRUE(isOffered("core::soft"));
  EXPECT_THAT(told_, IsEmpty());
}

TEST_F(Save, OffersNothingAndChangesNothing) {
  const std::string before = stored();
  EXPECT_EQ(save((folder_.path() / "x.yaml").string()), "");
  EXPECT_FALSE(isOffered("core::soft"));
  EXPECT_EQ(stored(), before);
}

TEST_F(Save, TellsWhyNot) {
  EXPECT_EQ(save(""), "The compound cannot be saved: no file is named.");
  EXPECT_EQ(save("/no/such/file"),
            "The compound '/soft' cannot be saved: the file '/no/such/file' cannot be written: No "
            "such file or directory.");
  const ArmedFault fault("Compound save");
  EXPECT_EQ(save((folder_.path() / "x.yaml").string()),
            "The compound '/soft' cannot be saved: the library refused it.");
  EXPECT_TRUE(std::filesystem::is_empty(folder_.path()));
}

TEST_F(Save, WithoutARegistryTellsThatTheRuntimeIsGone) {
  { RuntimeRegistry().makeCurrent(); }
  EXPECT_EQ(save("/no/such/file"),
            "The compound '/soft' cannot be saved: the runtime 'standard' is not loaded.");
}

class PublishGraph : public PublishedFixture {
 protected:
  std::string publishGraph(const char* name, const std::string& path) {
    ORV_v1::String error;
    const bool done = soft_->publishGraph(name, "", "Text.", path.c_str(), error);
    EXPECT_EQ(done, error.empty());
    return error.toChar();
  }
};

TEST_F(PublishGraph, OffersTheWholeGraph) {
  EXPECT_EQ(publishGraph("all", ""), "");
  CompoundObject* all = instance("core::all", "all");
  ASSERT_TRUE(all);
  EXPECT_TRUE(all->nodes().find("soft"));
  EXPECT_TRUE(top().origin().empty());
}

TEST_F(PublishGraph, ReplacesWhatItPublishedBefore) {
  publishGraph("all", "");
  EXPECT_EQ(publishGraph("all", ""), "");
}

TEST_F(PublishGraph, ToAFileElsewhereIsNotOffered) {
  const std::string path = (folder_.path() / "x.yaml").string();
  EXPECT_EQ(publishGraph("all", path), "");
  EXPECT_TRUE(std::filesystem::exists(path));
  EXPECT_FALSE(isOffered("core::all"));
}

TEST_F(PublishGraph, ToAFileInThePublishedFolderIsOffered) {
  EXPECT_EQ(publishGraph("all", file("x.yaml")), "");
  EXPECT_TRUE(std::filesystem::exists(file("x.yaml")));
  EXPECT_TRUE(isOffered("core::all"));
}

TEST_F(PublishGraph, TellsWhyNot) {
  const ArmedFault fault("Compound publishGraph");
  EXPECT_EQ(publishGraph("all", ""),
            "The compound '/' cannot be published as 'all': the library refused it.");
  EXPECT_FALSE(isOffered("core::all"));
}

}  // namespace
}  // namespace orvlib
