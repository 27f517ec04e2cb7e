#include "standalone/host/engine/UndoQueue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/OpenVesk/KGlobal.h"
#include "tests/support/ProbeCommand.h"

namespace {

using namespace hosttest;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(UndoQueue, UndoesTheStepsFromTheLast) {
  ProbeHost host;
  host.run("edit a; edit b");
  takeDiary();
  host.run("undo; undo");
  EXPECT_THAT(takeDiary(), ElementsAre("undoIt edit b", "undoIt edit a"));
}

TEST(UndoQueue, RedoesTheStepThatWasUndoneLast) {
  ProbeHost host;
  host.run("edit a; edit b; undo; undo");
  takeDiary();
  host.run("redo; redo");
  EXPECT_THAT(takeDiary(), ElementsAre("redoIt edit a", "redoIt edit b"));
  EXPECT_THAT(host.steps(), ElementsAre("edit a", "edit b"));
}

TEST(UndoQueue, ANewEditDropsWhatWaitsForRedo) {
  ProbeHost host;
  host.run("edit a; edit b; undo; edit c");
  EXPECT_EQ(aliveProbes(), 2);
  EXPECT_THAT(host.refusal("redo"), ElementsAre("! cannot redo: there is nothing to redo"));
  EXPECT_THAT(host.steps(), ElementsAre("edit a", "edit c"));
}

TEST(UndoQueue, WhatIsNoEditKeepsWhatWaitsForRedo) {
  ProbeHost host;
  addProbe(host, "query", {});
  host.run("edit a; undo; query; redo");
  EXPECT_THAT(host.steps(), ElementsAre("edit a"));
}

TEST(UndoQueue, SaysWhenThereIsNothingToUndo) {
  ProbeHost host;
  EXPECT_THAT(host.refusal("undo"), ElementsAre("! cannot undo: there is nothing to undo"));
}

TEST(UndoQueue, ResultsOfAnUndoOrRedoAreDropped) {
  ProbeHost host;
  const auto setResult = [] {
    KPxCommand::setResult("of the step");
    return KStatus();
  };
  addProbe(host, "loud", {.undoIt = setResult, .redoIt = setResult, .undoable = true});
  host.run("loud");
  EXPECT_EQ(host.run("undo"), "");
  EXPECT_EQ(host.run("redo"), "");
}

TEST(UndoQueue, ACommandSeesThatItIsUndoneOrRedone) {
  ProbeHost host;
  Texts seen;
  const auto look = [&] {
    seen.push_back(std::string(KGlobal::isUndoing() ? "undoing" : "") +
                   (KGlobal::isRedoing() ? "redoing" : ""));
    return KStatus();
  };
  addProbe(host, "look",
           {.doIt = [&](KPxCommand&, const KArgList&) { return look(); },
            .undoIt = look,
            .redoIt = look,
            .undoable = true});
  host.run("look; undo; redo; about -batch");
  look();
  EXPECT_THAT(seen, ElementsAre("", "undoing", "redoing", ""));
}

TEST(UndoQueue, LinesThatAnUndoRunsAreNotQueued) {
  ProbeHost host;
  const auto edit = [] { return KGlobal::executeCommand("edit inner", false, true); };
  addProbe(host, "editor", {.undoIt = edit, .redoIt = edit, .undoable = true});
  host.run("editor; undo");
  EXPECT_THAT(host.steps(), IsEmpty());
  host.run("redo");
  EXPECT_THAT(host.steps(), ElementsAre("editor"));
  EXPECT_EQ(aliveProbes(), 1);
}

TEST(UndoQueue, AnUndoInsideAnUndoIsRefused) {
  ProbeHost host;
  addProbe(host, "nested",
           {.undoIt = [] { return KGlobal::executeCommand("undo", false, true); },
            .redoIt = [] { return KGlobal::executeCommand("redo", false, true); },
            .undoable = true});
  host.run("edit a; nested");
  EXPECT_THAT(
      host.refusal("undo"),
      ElementsAre("! cannot undo: an undo or redo is running",
                  "! undo of \"nested\": 1 of 1 edits refused; the others were carried out"));
  EXPECT_THAT(
      host.refusal("redo"),
      ElementsAre("! cannot redo: an undo or redo is running",
                  "! redo of \"nested\": 1 of 1 edits refused; the others were carried out"));
  EXPECT_THAT(host.steps(), ElementsAre("edit a", "nested"));
}

TEST(UndoQueue, AnUndoInsideACommandThatHasMadeEditsIsRefused) {
  ProbeHost host;
  addProbe(host, "tangle", {.doIt = [](KPxCommand&, const KArgList&) {
             KGlobal::executeCommand("edit inner", false, true);
             return KGlobal::executeCommand("undo", false, true);
           }});
  EXPECT_THAT(host.refusal("tangle"),
              ElementsAre("! cannot undo: the running command has made edits"));
}

TEST(UndoQueue, AnUndoInsideACommandWithoutEditsReachesTheStepBeforeIt) {
  ProbeHost host;
  addProbe(host, "back", {.doIt = [](KPxCommand&, const KArgList&) {
             return KGlobal::executeCommand("undo", false, true);
           }});
  host.run("edit a; back");
  EXPECT_THAT(host.steps(), IsEmpty());
}

TEST(UndoQueue, AFailingUndoIsToldAndTheOtherEditsOfTheStepAreCarriedOut) {
  ProbeHost host;
  addProbe(host, "bad", {.undoIt = [] { return KStatus(StatusFailure); }, .undoable = true});
  host.run("undoInfo -openChunk; edit a; bad; edit b; undoInfo -closeChunk");
  takeDiary();
  EXPECT_THAT(
      host.refusal("undo"),
      ElementsAre("! undo of \"edit a\": 1 of 3 edits refused; the others were carried out"));
  EXPECT_THAT(takeDiary(), ElementsAre("undoIt edit b", "undoIt bad", "undoIt edit a"));
}

TEST(UndoQueue, AStepWhoseUndoFailsChangesSidesAllTheSame) {
  ProbeHost host;
  addProbe(host, "bad", {.undoIt = [] { return KStatus(StatusFailure); }, .undoable = true});
  host.run("edit a; bad");
  host.refusal("undo");
  EXPECT_EQ(host.run("undoInfo -q -redoName"), "\"bad\"");
  host.run("undo");
  EXPECT_THAT(host.session().undoQueue().undoneNames(), ElementsAre("edit a", "bad"));
  host.run("redo; redo");
  EXPECT_THAT(host.steps(), ElementsAre("edit a", "bad"));
}

TEST(UndoQueue, AFailingRedoIsToldAndItsStepChangesSidesAllTheSame) {
  ProbeHost host;
  addProbe(host, "bad", {.redoIt = [] { return KStatus(StatusBadArgument); }, .undoable = true});
  host.run("bad; edit a; undo; undo");
  EXPECT_THAT(host.refusal("redo"),
              ElementsAre("! redo of \"bad\": 1 of 1 edits refused; the others were carried out"));
  host.run("redo");
  EXPECT_THAT(host.steps(), ElementsAre("bad", "edit a"));
}

TEST(UndoQueue, SuspendedWithoutFlushKeepsItsStepsAndTakesNoNewOnes) {
  ProbeHost host;
  host.run("edit a; edit b; undo; undoInfo -stateWithoutFlush off; edit c");
  EXPECT_THAT(host.steps(), ElementsAre("edit a"));
  EXPECT_THAT(host.refusal("undo"), ElementsAre("! cannot undo: undo is switched off"));
  EXPECT_THAT(host.refusal("redo"), ElementsAre("! cannot redo: undo is switched off"));
  host.run("undoInfo -stateWithoutFlush on; redo; edit d");
  EXPECT_THAT(host.steps(), ElementsAre("edit a", "edit b", "edit d"));
}

TEST(UndoQueue, SwitchedOffForgetsItsSteps) {
  ProbeHost host;
  host.run("edit a; edit b; undo; undoInfo -state off");
  EXPECT_EQ(aliveProbes(), 0);
  host.run("edit c; undoInfo -state on");
  EXPECT_THAT(host.refusal("undo"), ElementsAre("! cannot undo: there is nothing to undo"));
  EXPECT_THAT(host.refusal("redo"), ElementsAre("! cannot redo: there is nothing to redo"));
}

TEST(UndoQueue, ACommandIsNotAskedWhetherItIsUndoableWhileRecordingIsOff) {
  ProbeHost host;
  host.run("undoInfo -stateWithoutFlush off; edit a");
  EXPECT_THAT(takeDiary(), ElementsAre("doIt edit a", "delete edit a"));
}

TEST(UndoQueue, ALimitDropsTheOldestSteps) {
  ProbeHost host;
  host.run("edit a; edit b; edit c; undoInfo -length 2");
  EXPECT_THAT(host.steps(), ElementsAre("edit b", "edit c"));
  host.run("edit d");
  EXPECT_THAT(host.steps(), ElementsAre("edit c", "edit d"));
  EXPECT_EQ(aliveProbes(), 2);
}

TEST(UndoQueue, ALimitHoldsForRedoneStepsToo) {
  ProbeHost host;
  host.run("edit a; edit b; undo; undo; undoInfo -length 1; redo; redo");
  EXPECT_THAT(host.steps(), ElementsAre("edit b"));
}

TEST(UndoQueue, ALimitOfZeroKeepsAllSteps) {
  ProbeHost host;
  host.run("undoInfo -length 1; undoInfo -length 0; edit a; edit b; edit c");
  EXPECT_EQ(host.steps().size(), 3u);
}

TEST(UndoQueue, ForgetsTheNewestEditsFirst) {
  ProbeHost host;
  host.run("edit a; undoInfo -ock; edit b; edit c; undoInfo -cck; edit d; edit e; undo; undo");
  host.run("undoInfo -stateWithoutFlush off");
  takeDiary();
  host.session().undoQueue().clear();
  EXPECT_THAT(takeDiary(), ElementsAre("delete edit e", "delete edit d", "delete edit c",
                                       "delete edit b", "delete edit a"));
}

TEST(UndoQueue, DropsTheNewestOfWhatWaitsForRedoFirst) {
  ProbeHost host;
  host.run("edit a; undoInfo -ock; edit b; edit c; undoInfo -cck; undo; undo");
  takeDiary();
  host.run("edit d");
  EXPECT_THAT(takeDiary(), ElementsAre("doIt edit d", "isUndoable edit d", "delete edit c",
                                       "delete edit b", "delete edit a"));
}

TEST(UndoQueue, RemovesTheNewestEditsOfAnOwnerFirst) {
  ProbeHost host;
  host.run("edit a; undoInfo -ock; edit b; edit c; undoInfo -cck; edit d; edit e; undo; undo");
  takeDiary();
  host.session().undoQueue().removeCommandsOf(nullptr);
  EXPECT_THAT(takeDiary(), ElementsAre("delete edit e", "delete edit d", "delete edit c",
                                       "delete edit b", "delete edit a"));
  EXPECT_THAT(host.steps(), IsEmpty());
}

TEST(UndoQueue, ForgettingWhileAnUndoRunsForgetsTheStepThatRunsToo) {
  ProbeHost host;
  addProbe(host, "flush",
           {.undoIt = [] { return KGlobal::executeCommand("undoInfo -st off", false, false); },
            .undoable = true});
  host.run("edit a; flush; undo; undoInfo -st on");
  EXPECT_THAT(host.steps(), IsEmpty());
  EXPECT_THAT(host.session().undoQueue().undoneNames(), IsEmpty());
  EXPECT_EQ(aliveProbes(), 0);
}

}  // namespace
