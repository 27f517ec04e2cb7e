// -saveAs, -publish, -publishGraph, and what a compound says of its origin.

#include <filesystem>

#include "testPaths.h"
#include "tests/commands/compound/CompoundWiring.h"
#include "tests/support/TemporaryFiles.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace {

/// A graph with a folder to publish to, and a compound /soft in it, which has an input, an output
/// and a node.
class PublishedQueries : public CompoundTest {
 protected:
  PublishedQueries() {
    fresh_.setPublishedFolder(files_.path("published"));
    EXPECT_TRUE(fresh_.load(VESK_SOURCE_DIR "/library").empty());
    fresh_.makeCurrent();
    run("/", "-create soft");
    run("/soft", "-createInputPort size float -createOutputPort result float");
    run("/soft", "-addNode core::math::add");
    host.session().undoQueue().clear();
  }

  const hosttest::TemporaryFiles& files() const { return files_; }
  std::string file(const std::string& name) const { return files_.path(name); }
  bool isThere(const std::string& name) const { return std::filesystem::exists(file(name)); }
  std::string published(const std::string& name) const {
    return files_.read("published/standard/" + name + ".yaml");
  }
  bool isPublished(const std::string& name) const {
    return isThere("published/standard/" + name + ".yaml");
  }
  std::string query(const std::string& flags) { return run("/soft", flags); }

 private:
  hosttest::TemporaryFiles files_;
  orvlib::RuntimeRegistry fresh_;
};

TEST_F(PublishedQueries, SavingWritesTheFileAndIsTrue) {
  EXPECT_EQ(query("-saveAs " + file("soft.yaml")), "true");
  EXPECT_TRUE(isThere("soft.yaml"));
}

TEST_F(PublishedQueries, SavingAnswersAfterAnAnnotation) {
  run("/soft", "-addBackdrop frame -setAnnotationMetaDataValue frame color red");
  EXPECT_EQ(query("-queryAnnotationMetaDataValue frame color"), "\"red\"");
  EXPECT_EQ(query("-saveAs " + file("soft.yaml") + " -queryAnnotationMetaDataValue frame color"),
            "true");
}

TEST_F(PublishedQueries, StatePortsAnswerAfterAPublishedGraph) {
  EXPECT_EQ(query("-addStatePorts s t float -publishGraph 2bad \"\" \"\" \"\""), "true");
  EXPECT_THAT(host.takeMessages(), ElementsAre(HasSubstr("2bad")));
}

TEST_F(PublishedQueries, WhatCannotBeSavedIsToldAndFalse) {
  EXPECT_EQ(query("-saveAs \"\""), "false");
  EXPECT_THAT(host.takeMessages(),
              ElementsAre("! The compound cannot be saved: no file is named."));
}

TEST_F(PublishedQueries, WhatTheLibraryRefusesToSaveIsToldAndFalse) {
  const orvlib::ArmedFault fault("Compound save");
  EXPECT_EQ(query("-saveAs " + file("soft.yaml")), "false");
  EXPECT_THAT(host.takeMessages(),
              ElementsAre("! The compound '/soft' cannot be saved: the library refused it."));
  EXPECT_FALSE(isThere("soft.yaml"));
}

TEST_F(PublishedQueries, SavingIsNoStepToUndo) {
  query("-saveAs " + file("soft.yaml"));
  EXPECT_THAT(host.steps(), IsEmpty());
}

TEST_F(PublishedQueries, WhatIsSavedHasTheEditsOfTheLine) {
  query("-saveAs " + file("soft.yaml") + " -addNode core::math::negate");
  EXPECT_THAT(files().read("soft.yaml"), HasSubstr("node negate core::math::negate"));
}

TEST_F(PublishedQueries, RedoSavesAgainAndUndoDoesNot) {
  query("-saveAs " + file("soft.yaml") + " -addNode core::math::negate");
  std::filesystem::remove(file("soft.yaml"));
  undo();
  EXPECT_FALSE(isThere("soft.yaml"));
  redo();
  EXPECT_TRUE(isThere("soft.yaml"));
}

TEST_F(PublishedQueries, ACompoundThatIsNotEditableIsSaved) {
  run("/soft", "-setMetaData locked true");
  EXPECT_EQ(query("-saveAs " + file("soft.yaml")), "true");
}

TEST_F(PublishedQueries, PublishingOffersTheCompoundAndIsTrue) {
  EXPECT_EQ(query("-publish soft \"\" \"\" false"), "true");
  EXPECT_EQ(run("/", "-addNode core::soft"), R"(["soft1"])");
}

TEST_F(PublishedQueries, PublishingTakesNameLibraryAndDescription) {
  EXPECT_EQ(query("-publish mild core::tools \"Makes it mild.\" false"), "true");
  EXPECT_THAT(published("core.tools.mild"), HasSubstr("compound: core::tools::mild\n"));
  EXPECT_THAT(published("core.tools.mild"), HasSubstr("description: \"Makes it mild.\"\n"));
}

TEST_F(PublishedQueries, OnlyWithTheFlagDoesPublishingReplace) {
  query("-publish soft \"\" First. false");
  EXPECT_EQ(query("-publish soft \"\" Second. false"), "false");
  EXPECT_THAT(host.takeMessages(),
              ElementsAre(HasSubstr("! The compound '/soft' cannot be published as 'soft': ")));
  EXPECT_THAT(published("core.soft"), HasSubstr("First."));
  EXPECT_EQ(query("-publish soft \"\" Third. true"), "true");
  EXPECT_THAT(published("core.soft"), HasSubstr("Third."));
}

TEST_F(PublishedQueries, WhatTheLibraryRefusesToPublishIsToldAndFalse) {
  const orvlib::ArmedFault fault("Compound publish");
  EXPECT_EQ(query("-publish soft \"\" \"\" false"), "false");
  EXPECT_THAT(
      host.takeMessages(),
      ElementsAre("! The compound '/soft' cannot be published as 'soft': the library refused it."));
  EXPECT_FALSE(isPublished("core.soft"));
}

TEST_F(PublishedQueries, PublishingIsNoStepToUndo) {
  query("-publish soft \"\" \"\" false");
  EXPECT_THAT(host.steps(), IsEmpty());
}

TEST_F(PublishedQueries, RedoPublishesAgain) {
  query("-publish soft \"\" \"\" true -addBackdrop a");
  undo();
  std::filesystem::remove(file("published/standard/core.soft.yaml"));
  redo();
  EXPECT_TRUE(isPublished("core.soft"));
}

TEST_F(PublishedQueries, PublishingTheGraphTakesNameLibraryDescriptionAndFile) {
  EXPECT_EQ(query("-publishGraph whole core::tools \"All of it.\" " + file("whole.yaml")), "true");
  const std::string text = files().read("whole.yaml");
  EXPECT_THAT(text, HasSubstr("compound: core::tools::whole\n"));
  EXPECT_THAT(text, HasSubstr("description: \"All of it.\"\n"));
  EXPECT_THAT(text, HasSubstr("compound soft\n"));
}

TEST_F(PublishedQueries, PublishingTheGraphWithoutAFileOffersIt) {
  EXPECT_EQ(query("-publishGraph whole \"\" \"\" \"\""), "true");
  EXPECT_TRUE(isPublished("core.whole"));
}

TEST_F(PublishedQueries, WhatTheLibraryRefusesToPublishOfTheGraphIsToldAndFalse) {
  const orvlib::ArmedFault fault("Compound publishGraph");
  EXPECT_EQ(query("-publishGraph whole \"\" \"\" \"\""), "false");
  EXPECT_THAT(
      host.takeMessages(),
      ElementsAre("! The compound '/' cannot be published as 'whole': the library refused it."));
}

TEST_F(PublishedQueries, PublishingTheGraphIsNoStepToUndo) {
  query("-publishGraph whole \"\" \"\" \"\"");
  EXPECT_THAT(host.steps(), IsEmpty());
}

TEST_F(PublishedQueries, SavingGoesWhereTheNameOfPublishingSays) {
  EXPECT_EQ(query("-saveAs " + file("first.yaml") + " -publish " + file("second.yaml") +
                  " \"\" \"\" false"),
            "false")
      << "a path is no name to publish under";
  EXPECT_THAT(host.takeMessages(), ElementsAre(HasSubstr("is no name")));
  EXPECT_FALSE(isThere("first.yaml"));
  EXPECT_TRUE(isThere("second.yaml"));
}

TEST_F(PublishedQueries, PublishingGoesUnderTheNameOfPublishingTheGraph) {
  EXPECT_EQ(query("-publish soft \"\" \"\" false -publishGraph whole core::tools \"\" \"\""),
            "true");
  EXPECT_TRUE(isPublished("core.whole"));
  EXPECT_TRUE(isPublished("core.tools.whole"));
  EXPECT_FALSE(isPublished("core.soft"));
}

TEST_F(PublishedQueries, ShortFlagsDoTheSame) {
  EXPECT_EQ(query("-sa " + file("soft.yaml")), "true");
  EXPECT_EQ(query("-pub soft \"\" \"\" false"), "true");
  EXPECT_EQ(query("-pbg whole \"\" \"\" \"\""), "true");
  EXPECT_TRUE(isThere("soft.yaml") && isPublished("core.soft") && isPublished("core.whole"));
}

TEST_F(PublishedQueries, TheAnswerOfPublishingTakesThePlaceOfThatOfSaving) {
  const orvlib::ArmedFault fault("Compound save");
  EXPECT_EQ(query("-publish soft \"\" \"\" false -saveAs x"), "true");
  EXPECT_EQ(host.takeMessages().size(), 1u);
}

TEST_F(PublishedQueries, TheAnswerOfPublishingTheGraphTakesThePlaceOfThatOfPublishing) {
  const orvlib::ArmedFault fault("Compound publishGraph");
  EXPECT_EQ(query("-publish whole \"\" \"\" false -publishGraph whole \"\" \"\" \"\""), "false");
  EXPECT_EQ(host.takeMessages().size(), 1u);
}

TEST_F(PublishedQueries, ALineThatFailsAmongItsEditsSavesNothing) {
  const orvlib::ArmedFault fault("ModifyCompoundPortCommand redo");
  EXPECT_THAT(refusal("/soft", "-addBackdrop a -saveAs " + file("soft.yaml")), IsEmpty());
  EXPECT_FALSE(isThere("soft.yaml"));
}

TEST_F(PublishedQueries, ACompoundOfItsOwnHasNoOrigin) {
  EXPECT_EQ(query("-specializedTypeName"), "\"\"");
  EXPECT_EQ(query("-queryIsReferenced"), "false");
  EXPECT_EQ(query("-queryIsImported"), "false");
  EXPECT_EQ(query("-queryIsEditable"), "true");
}

TEST_F(PublishedQueries, ACompoundThatWasPublishedIsACopy) {
  query("-publish soft \"\" \"\" false");
  EXPECT_EQ(query("-specializedTypeName"), "\"core::soft\"");
  EXPECT_EQ(query("-queryIsReferenced"), "false");
  EXPECT_EQ(query("-queryIsImported"), "true");
  EXPECT_EQ(query("-queryIsEditable"), "true");
}

TEST_F(PublishedQueries, OfTheQuestionsOfItsOriginWhetherItIsImportedComesLast) {
  query("-publish soft \"\" \"\" false");
  EXPECT_EQ(query("-queryIsImported -queryIsReferenced -specializedTypeName"), "true");
}

TEST_F(PublishedQueries, ANewNodeOfAPublishedTypeIsAReference) {
  query("-publish soft \"\" \"\" false");
  run("/", "-addNode core::soft");
  EXPECT_EQ(run("/soft1", "-stn"), "\"core::soft\"");
  EXPECT_EQ(run("/soft1", "-qir"), "true");
  EXPECT_EQ(run("/soft1", "-qii"), "false");
  EXPECT_EQ(run("/soft1", "-qie"), "false");
}

TEST_F(PublishedQueries, ALockedCompoundAndWhatIsInItAreNotEditable) {
  run("/soft", "-create inner");
  run("/soft", "-setMetaData locked true");
  EXPECT_EQ(query("-queryIsEditable"), "false");
  EXPECT_EQ(run("/soft/inner", "-queryIsEditable"), "false");
  EXPECT_EQ(run("/", "-queryIsEditable"), "true");
}

TEST_F(PublishedQueries, WhatIsPublishedInALineIsToldByTheQueriesOfIt) {
  EXPECT_EQ(query("-specializedTypeName -publish soft \"\" \"\" false"), "\"core::soft\"");
}

TEST_F(PublishedQueries, ACopyCanBeResetOnceItDiffers) {
  query("-publish soft \"\" \"\" false");
  EXPECT_EQ(run("/", "-canResetToFactory soft"), "false");
  run("/soft", "-addNode core::math::negate");
  EXPECT_EQ(run("/", "-canResetToFactory soft"), "true");
  EXPECT_EQ(run("/", "-crf soft"), "true");
}

TEST_F(PublishedQueries, ACompoundOfItsOwnCannotBeReset) {
  EXPECT_EQ(run("/", "-canResetToFactory soft"), "false");
}

TEST_F(PublishedQueries, WhatTheLibraryRefusesToResetCannotBeReset) {
  query("-publish soft \"\" \"\" false");
  run("/soft", "-addNode core::math::negate");
  const orvlib::ArmedFault fault("Compound canResetToFactory");
  EXPECT_EQ(run("/", "-canResetToFactory soft"), "false");
  EXPECT_TRUE(fault.refused());
}

TEST_F(PublishedQueries, ANodeThatIsNoCompoundIsToldAndIsNoFailure) {
  EXPECT_EQ(query("-canResetToFactory add"), "");
  EXPECT_THAT(host.takeMessages(), ElementsAre("! add is not a compound name"));
}

/// There is no text of the catalogue for it here, unlike for `-resetToFactory`.
TEST_F(PublishedQueries, ANameThatIsNotThereIsItselfTheMessage) {
  EXPECT_EQ(query("-canResetToFactory nosuch"), "");
  EXPECT_THAT(host.takeMessages(), ElementsAre("! nosuch"));
}

TEST_F(PublishedQueries, ThePathOfTheCompoundIsTheArgumentOfThatMessage) {
  query("-canResetToFactory \"no such node in ^1s\"");
  EXPECT_THAT(host.takeMessages(), ElementsAre("! no such node in /soft"));
}

TEST_F(PublishedQueries, OnlyNodesOfTheLevelCanBeAskedFor) {
  EXPECT_EQ(run("/", "-canResetToFactory /soft"), "");
  EXPECT_THAT(host.takeMessages(), ElementsAre("! /soft"));
}

TEST_F(PublishedQueries, AResultThatIsThereStaysWhenThereIsNothingToReset) {
  EXPECT_EQ(query("-canResetToFactory nosuch -queryIsEditable"), "true");
  EXPECT_THAT(host.takeMessages(), ElementsAre("! nosuch"));
}

TEST_F(PublishedQueries, WhetherItCanBeResetIsNoStepToUndo) {
  run("/", "-canResetToFactory soft");
  EXPECT_THAT(host.steps(), IsEmpty());
}

}  // namespace
