#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/OpenVesk/KGlobal.h"
#include "tests/support/ProbeCommand.h"

namespace {

using namespace hosttest;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(UndoChunks, GatherLinesInOneStep) {
  ProbeHost host;
  host.run("undoInfo -openChunk");
  host.run("edit a; edit b");
  host.run("edit c");
  host.run("undoInfo -closeChunk");
  takeDiary();
  host.run("undo");
  EXPECT_THAT(takeDiary(), ElementsAre("undoIt edit c", "undoIt edit b", "undoIt edit a"));
  host.run("redo");
  EXPECT_THAT(takeDiary(), ElementsAre("redoIt edit a", "redoIt edit b", "redoIt edit c"));
}

TEST(UndoChunks, HaveTheNameThatTheyAreGiven) {
  ProbeHost host;
  host.run("undoInfo -openChunk -chunkName \"Move nodes\"; edit a; undoInfo -closeChunk");
  EXPECT_THAT(host.steps(), ElementsAre("Move nodes"));
}

TEST(UndoChunks, WithoutNameHaveThatOfTheirFirstStatement) {
  ProbeHost host;
  host.run("undoInfo -openChunk; edit a; edit b; undoInfo -closeChunk");
  EXPECT_THAT(host.steps(), ElementsAre("edit a"));
}

TEST(UndoChunks, NestAndTheOutermostIsTheStep) {
  ProbeHost host;
  host.run("undoInfo -ock -cn outer; edit a; undoInfo -ock -cn inner; edit b; undoInfo -cck");
  EXPECT_THAT(host.steps(), IsEmpty());
  host.run("edit c; undoInfo -cck");
  EXPECT_THAT(host.steps(), ElementsAre("outer"));
}

TEST(UndoChunks, HaveTheNameOfTheOutermostThatHasOne) {
  ProbeHost host;
  host.run("undoInfo -ock; undoInfo -ock -cn inner; edit a; undoInfo -cck; undoInfo -cck");
  EXPECT_THAT(host.steps(), ElementsAre("inner"));
}

TEST(UndoChunks, TellTheNameOfTheInnermost) {
  ProbeHost host;
  EXPECT_EQ(host.run("undoInfo -q -chunkName"), "\"\"");
  host.run("undoInfo -ock -cn outer; undoInfo -ock -cn inner");
  EXPECT_EQ(host.run("undoInfo -q -chunkName"), "\"inner\"");
  host.run("undoInfo -cck");
  EXPECT_EQ(host.run("undoInfo -q -chunkName"), "\"outer\"");
}

TEST(UndoChunks, WithoutEditsAreAStepThatUndoesNothing) {
  ProbeHost host;
  host.run("edit a; undoInfo -ock -cn nothing; undoInfo -cck");
  EXPECT_THAT(host.steps(), ElementsAre("edit a", "nothing"));
  takeDiary();
  host.run("undo");
  EXPECT_THAT(takeDiary(), IsEmpty());
  EXPECT_THAT(host.steps(), ElementsAre("edit a"));
}

TEST(UndoChunks, WithoutEditsKeepWhatWaitsForRedo) {
  ProbeHost host;
  host.run("edit a; undo; undoInfo -ock; undoInfo -cck; undo; redo; redo");
  EXPECT_EQ(host.steps().back(), "edit a");
}

TEST(UndoChunks, WithoutEditsLeaveNoStepWhileRecordingIsOff) {
  ProbeHost host;
  host.run("undoInfo -swf off; undoInfo -ock; edit a; undoInfo -cck");
  EXPECT_THAT(host.steps(), IsEmpty());
}

TEST(UndoChunks, ClosingWithoutOpeningIsRefused) {
  ProbeHost host;
  EXPECT_THAT(host.refusal("undoInfo -closeChunk"),
              ElementsAre("! undoInfo: no undo chunk is open"));
}

TEST(UndoChunks, WhileOneIsOpenNothingIsUndoneOrRedone) {
  ProbeHost host;
  host.run("edit a; edit b; undo; undoInfo -ock -cn \"a chunk\"");
  EXPECT_THAT(host.refusal("undo"),
              ElementsAre("! cannot undo: the undo chunk \"a chunk\" is still open"));
  EXPECT_THAT(host.refusal("redo"),
              ElementsAre("! cannot redo: the undo chunk \"a chunk\" is still open"));
  EXPECT_THAT(host.steps(), ElementsAre("edit a"));
}

TEST(UndoChunks, KeepTheEditsOfALineThatFails) {
  ProbeHost host;
  host.run("undoInfo -ock -cn chunk");
  host.refusal("edit a; unknown");
  host.run("undoInfo -cck");
  takeDiary();
  host.run("undo");
  EXPECT_THAT(takeDiary(), ElementsAre("undoIt edit a"));
}

TEST(UndoChunks, AreForgottenWithTheQueue) {
  ProbeHost host;
  host.run("undoInfo -ock; undoInfo -ock; edit a; undoInfo -st off; undoInfo -st on");
  EXPECT_EQ(aliveProbes(), 0);
  host.refusal("undoInfo -cck");
  host.run("edit b");
  EXPECT_THAT(host.steps(), ElementsAre("edit b"));
}

TEST(UndoChunks, CountAsOneStepOfTheLimit) {
  ProbeHost host;
  host.run("undoInfo -l 2; edit a; undoInfo -ock; edit b; edit c; edit d; undoInfo -cck");
  EXPECT_THAT(host.steps(), ElementsAre("edit a", "edit b"));
}

TEST(UndoChunks, OpenedAndClosedInsideACommandBelongToItsOneStep) {
  ProbeHost host;
  addProbe(host, "grouped",
           {.doIt =
                [](KPxCommand&, const KArgList&) {
                  return KGlobal::executeCommand("undoInfo -ock; edit a; edit b; undoInfo -cck",
                                                 false, true);
                },
            .undoable = true});
  host.run("grouped");
  EXPECT_THAT(host.steps(), ElementsAre("grouped"));
  takeDiary();
  host.run("undo");
  EXPECT_THAT(takeDiary(), ElementsAre("undoIt grouped", "undoIt edit b", "undoIt edit a"));
}

TEST(UndoChunks, OpenedAndClosedWhileAnUndoRunsLeaveNoStep) {
  ProbeHost host;
  const auto chunk = [] {
    return KGlobal::executeCommand("undoInfo -ock; edit a; undoInfo -cck", false, true);
  };
  addProbe(host, "chunky", {.undoIt = chunk, .redoIt = chunk, .undoable = true});
  host.run("edit first; chunky; undo");
  EXPECT_THAT(host.steps(), ElementsAre("edit first"));
  host.run("redo");
  EXPECT_THAT(host.steps(), ElementsAre("edit first", "chunky"));
}

TEST(UndoChunks, OpenedByACommandGatherTheLinesBehindIt) {
  ProbeHost host;
  const auto run = [](const char* line) {
    return ProbeBody{.doIt = [line](KPxCommand&, const KArgList&) {
      return KGlobal::executeCommand(line, false, true);
    }};
  };
  addProbe(host, "begin", run("undoInfo -ock -cn drag"));
  addProbe(host, "finish", run("undoInfo -cck"));
  host.run("begin");
  host.run("edit a");
  host.run("edit b");
  host.run("finish");
  EXPECT_THAT(host.steps(), ElementsAre("drag"));
}

}  // namespace
