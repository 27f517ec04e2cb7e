// Resetting to what was published, and being a reference to it or not.

#include "standalone/graph/library/RuntimeRegistry.h"
#include "testPaths.h"
#include "tests/commands/compound/CompoundEditTesting.h"
#include "tests/support/TemporaryFiles.h"

namespace {

using orvlib::ArmedFault;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

/// A graph with the compounds "soft" and "hard", which hold the node "add" and are unchanged copies
/// of the published core::soft and core::hard, the compound "own", and the node "plain".
class CompoundReset : public CompoundEditTest {
 protected:
  CompoundReset() {
    runtimes_.setPublishedFolder(files_.path("published"));
    EXPECT_THAT(runtimes_.load(VESK_SOURCE_DIR "/library"), IsEmpty());
    runtimes_.makeCurrent();
    for (const std::string name : {"soft", "hard"}) {
      run("/", "-create " + name);
      run("/" + name, "-addNode core::math::add");
      EXPECT_EQ(run("/" + name, "-publish " + name + " \"\" \"Text.\" false"), "true");
    }
    run("/", "-create own -addNode core::math::add -renameNode add plain");
    host.session().undoQueue().clear();
  }

  /// Makes a copy differ from what is published.
  void change(const std::string& path) {
    run(path, "-addNode core::math::negate");
    EXPECT_TRUE(compound(path)->canResetToFactory());
  }

 private:
  hosttest::TemporaryFiles files_;
  orvlib::RuntimeRegistry runtimes_;
};

TEST_F(CompoundReset, GivesAChangedCopyThePublishedContentAgain) {
  change("/soft");
  EXPECT_EQ(run("/", "-resetToFactory soft"), "");
  EXPECT_THAT(nodes("/soft"), ElementsAre("add"));
  EXPECT_FALSE(compound("/soft")->canResetToFactory());
}

TEST_F(CompoundReset, CountsAsAnEditAndIsNotUndone) {
  change("/soft");
  host.session().undoQueue().clear();
  run("/", "-resetToFactory soft");
  EXPECT_THAT(host.steps(), SizeIs(1));
  const std::string after = stored();
  undo();
  EXPECT_EQ(stored(), after);
}

TEST_F(CompoundReset, OnARedoThereIsNothingLeftToReset) {
  change("/soft");
  run("/", "-resetToFactory soft");
  undo();
  const std::string after = stored();
  redo();
  EXPECT_THAT(host.takeMessages(), ElementsAre("! Compound named soft cannot be reset to factory"));
  EXPECT_EQ(stored(), after);
}

TEST_F(CompoundReset, OnARedoResetsWhatHasChangedSince) {
  change("/soft");
  runOpen("/", "-resetToFactory soft");
  EXPECT_EQ(undoIt(), StatusSuccess);
  change("/soft");
  EXPECT_EQ(redoIt(), StatusSuccess);
  EXPECT_THAT(nodes("/soft"), ElementsAre("add"));
}

TEST_F(CompoundReset, OfALineUndoesItsOtherEditsAlone) {
  change("/soft");
  run("/", "-resetToFactory soft -addNode core::math::add");
  EXPECT_THAT(nodes(), ElementsAre("soft", "hard", "own", "plain", "add"));
  undo();
  EXPECT_THAT(nodes(), ElementsAre("soft", "hard", "own", "plain"));
  EXPECT_THAT(nodes("/soft"), ElementsAre("add"));
}

TEST_F(CompoundReset, TellsOfEachNameThatCannotBeResetAndGoesOn) {
  change("/soft");
  change("/hard");
  run("/",
      "-resetToFactory nobody -resetToFactory soft -resetToFactory plain -resetToFactory own "
      "-resetToFactory hard -resetToFactory soft");
  EXPECT_THAT(host.takeMessages(), ElementsAre("! Node named nobody was not found in /",
                                               "! plain is not a compound name",
                                               "! Compound named own cannot be reset to factory",
                                               "! Compound named soft cannot be reset to factory"));
  EXPECT_THAT(nodes("/soft"), ElementsAre("add"));
  EXPECT_THAT(nodes("/hard"), ElementsAre("add"));
}

TEST_F(CompoundReset, OfAnUnchangedCopyIsRefused) {
  const std::string before = stored();
  run("/", "-resetToFactory soft");
  EXPECT_THAT(host.takeMessages(), ElementsAre("! Compound named soft cannot be reset to factory"));
  EXPECT_EQ(stored(), before);
}

TEST_F(CompoundReset, OfAReferenceIsRefused) {
  run("/", "-addNode core::soft");
  run("/", "-resetToFactory soft1");
  EXPECT_THAT(host.takeMessages(),
              ElementsAre("! Compound named soft1 cannot be reset to factory"));
}

TEST_F(CompoundReset, FindsAChildByTheNameThatTheLineGaveIt) {
  change("/soft");
  run("/", "-renameNode soft mild -resetToFactory mild");
  EXPECT_THAT(nodes("/mild"), ElementsAre("add"));
}

TEST_F(CompoundReset, ThatTheLibraryCallsImpossibleIsToldOf) {
  change("/soft");
  const ArmedFault armed("Compound canResetToFactory");
  run("/", "-resetToFactory soft");
  EXPECT_TRUE(armed.refused());
  EXPECT_THAT(host.takeMessages(), ElementsAre("! Compound named soft cannot be reset to factory"));
  EXPECT_THAT(nodes("/soft"), ElementsAre("add", "negate"));
}

TEST_F(CompoundReset, ThatTheLibraryLeavesOutShowsNothing) {
  change("/soft");
  const ArmedFault armed("Compound resetToFactory");
  run("/", "-resetToFactory soft");
  EXPECT_TRUE(armed.refused());
  EXPECT_THAT(nodes("/soft"), ElementsAre("add", "negate"));
}

class CompoundReferenced : public CompoundReset {};

TEST_F(CompoundReferenced, SettingItGivesTheAnswerOfTheCompound) {
  EXPECT_EQ(run("/soft", "-setIsReferenced true"), "true");
  EXPECT_TRUE(compound("/soft")->isReferenced());
  EXPECT_EQ(run("/soft", "-setIsReferenced true"), "true");
  EXPECT_EQ(run("/soft", "-setIsReferenced false"), "true");
  EXPECT_FALSE(compound("/soft")->isReferenced());
  EXPECT_EQ(run("/own", "-setIsReferenced true"), "false");
}

TEST_F(CompoundReferenced, AnUndoSetsTheInverseAndGivesThatAnswer) {
  runOpen("/soft", "-setIsReferenced true");
  EXPECT_EQ(host.run("undoHeld"), "true");
  EXPECT_FALSE(compound("/soft")->isReferenced());
  EXPECT_EQ(host.run("redoHeld"), "true");
  EXPECT_TRUE(compound("/soft")->isReferenced());
}

TEST_F(CompoundReferenced, OfAChangedCopyBringsTheChangesBackWithAnUndo) {
  change("/soft");
  sweep("/soft", "-setIsReferenced true");
  EXPECT_THAT(nodes("/soft"), ElementsAre("add", "negate"));
}

TEST_F(CompoundReferenced, OfAReferenceIsUndone) {
  run("/", "-addNode core::soft");
  sweep("/soft1", "-setIsReferenced false");
}

// The undo is the inverse of what was asked for, not of what happened.
TEST_F(CompoundReferenced, AnUndoOfWhatWasSoAlreadyChangesIt) {
  run("/", "-addNode core::soft");
  run("/soft1", "-setIsReferenced true");
  undo();
  EXPECT_FALSE(compound("/soft1")->isReferenced());
}

TEST_F(CompoundReferenced, AnUndoOfWhatTheCompoundRefusedIsAskedForAllTheSame) {
  EXPECT_EQ(runOpen("/own", "-setIsReferenced true"), "false");
  EXPECT_EQ(host.run("undoHeld"), "true") << "it is no reference, as the undo asks";
  runOpen("/own", "-setIsReferenced false");
  EXPECT_EQ(host.run("undoHeld"), "false") << "and it cannot be one";
}

TEST_F(CompoundReferenced, ARefusalIsTheResultAndNoFailure) {
  const std::string before = stored();
  const ArmedFault armed("Compound setIsReferenced");
  EXPECT_EQ(run("/soft", "-setIsReferenced true"), "false");
  EXPECT_TRUE(armed.refused());
  EXPECT_EQ(stored(), before);
}

TEST_F(CompoundReferenced, AnUndoThatIsRefusedIsTheResultAndNoFailure) {
  runOpen("/soft", "-setIsReferenced true");
  const ArmedFault armed("Compound setIsReferenced");
  EXPECT_EQ(host.run("undoHeld"), "false");
  EXPECT_TRUE(armed.refused());
  EXPECT_TRUE(compound("/soft")->isReferenced());
}

TEST_F(CompoundReferenced, SettingItLeavesOutAllElseOfTheLine) {
  run("/", "-addNode core::soft");
  const std::string before = stored();
  const std::string flags =
      "-setMetaData k v -addBackdrop frame -addNode core::math::add -removeNode add -renameNode "
      "nobody x -createInputPort p float -addStatePorts s t float -resetToFactory nobody "
      "-listNodes -queryIsReferenced -canResetToFactory nobody -setIsReferenced false";
  EXPECT_EQ(runOpen("/soft1", flags), "true");
  EXPECT_THAT(nodes("/soft1"), ElementsAre("add"));
  {
    const ArmedFault armed("ModifyCompoundPortCommand undo");
    EXPECT_EQ(host.run("undoHeld"), "true");
    EXPECT_EQ(armed.asked(), 0u) << "the undo leaves the other edits out too";
  }
  EXPECT_EQ(stored(), before) << "nothing else was there to be undone";
  EXPECT_EQ(host.run("redoHeld"), "true");
  EXPECT_THAT(nodes("/soft1"), ElementsAre("add"));
  EXPECT_THAT(annotations("/soft1"), IsEmpty());
}

// With a bracket of the command's own, changes would be told of once the result is there.
TEST_F(CompoundReferenced, SettingItOpensNoBracket) {
  const ChangeRounds rounds(graph);
  runOpen("/soft", "-setIsReferenced true");
  EXPECT_THAT(rounds.results, ElementsAre(""));
  EXPECT_EQ(host.run("undoHeld"), "true");
  EXPECT_THAT(rounds.results, ElementsAre("", ""));
}

TEST_F(CompoundReferenced, WhatTheLineIsToMoveInIsStillLookedFor) {
  run("/soft", "-create x -moveNodeIn nobody -setIsReferenced true");
  EXPECT_THAT(host.takeMessages(),
              ElementsAre("? Node named nobody was not found and will not be moved into x"));
  EXPECT_THAT(refusal("/hard", "-explode nobody -setIsReferenced true"),
              ElementsAre("! Node named nobody was not found in /hard"));
  EXPECT_FALSE(compound("/hard")->isReferenced());
}

TEST_F(CompoundReferenced, NodesOfAReferenceCannotBeEdited) {
  run("/", "-addNode core::soft");
  EXPECT_THAT(refusal("/soft1", "-addNode core::math::add"), ElementsAre(kNotEditable));
  EXPECT_THAT(refusal("/", "-explode soft1"), IsEmpty());
  EXPECT_THAT(nodes(), ElementsAre("soft", "hard", "own", "plain", "soft1"));
}

TEST_F(CompoundReferenced, OfACompoundThatIsGoneFails) {
  runOpen("/soft", "-setIsReferenced true");
  run("/", "-removeNode soft");
  EXPECT_EQ(undoIt(), StatusFailure);
  EXPECT_EQ(redoIt(), StatusFailure);
  EXPECT_THAT(host.takeMessages(),
              ElementsAre("! /soft is not a compound name", "! /soft is not a compound name"));
}

}  // namespace
