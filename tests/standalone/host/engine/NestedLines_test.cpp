#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/OpenVesk/KGlobal.h"
#include "tests/support/ProbeCommand.h"

namespace {

using namespace hosttest;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// A command that runs each of its arguments as a line; it fails when one of them does.
ProbeBody runner(bool undo = true, bool undoable = false) {
  return {.doIt =
              [undo](KPxCommand&, const KArgList& lines) {
                KStatus status;
                for (unsigned i = 0; i < lines.length() && status; ++i) {
                  status = KGlobal::executeCommand(lines.asString(i), true, undo);
                }
                return status;
              },
          .undoable = undoable};
}

TEST(NestedLines, RunAtOnce) {
  ProbeHost host;
  addProbe(host, "run", runner());
  host.run("run \"edit a\"");
  EXPECT_THAT(takeDiary(), ElementsAre("doIt run edit a", "doIt edit a", "isUndoable edit a",
                                       "isUndoable run edit a", "delete run edit a"));
}

TEST(NestedLines, HaveAResultOfTheirOwn) {
  ProbeHost host;
  int inner = 0;
  addProbe(host, "run", {.doIt = [&](KPxCommand&, const KArgList&) {
             KPxCommand::setResult("outer");
             KGlobal::executeCommand("about -batch", inner, false, false);
             return KStatus();
           }});
  EXPECT_EQ(host.run("run"), "\"outer\"");
  EXPECT_EQ(inner, 1);
}

TEST(NestedLines, TheirResultDoesNotBecomeThatOfTheirCommand) {
  ProbeHost host;
  addProbe(host, "run", runner());
  EXPECT_EQ(host.run("run \"about -batch\""), "");
}

TEST(NestedLines, FormOneUndoStepWithTheirCommand) {
  ProbeHost host;
  addProbe(host, "run", runner(true, true));
  host.run("run \"edit a; edit b\" \"edit c\"");
  EXPECT_THAT(host.steps(), ElementsAre(R"(run "edit a; edit b" "edit c")"));
  takeDiary();
  host.run("undo");
  EXPECT_THAT(takeDiary(), ElementsAre("undoIt run edit a; edit b edit c", "undoIt edit c",
                                       "undoIt edit b", "undoIt edit a"));
  host.run("redo");
  EXPECT_THAT(takeDiary(), ElementsAre("redoIt edit a", "redoIt edit b", "redoIt edit c",
                                       "redoIt run edit a; edit b edit c"));
}

TEST(NestedLines, FormOneUndoStepOfACommandThatIsNotUndoable) {
  ProbeHost host;
  addProbe(host, "run", runner());
  host.run("run \"edit a\" \"edit b\"");
  EXPECT_THAT(host.steps(), ElementsAre(R"(run "edit a" "edit b")"));
}

TEST(NestedLines, OfACommandThatFailsCanStillBeUndone) {
  ProbeHost host;
  addProbe(host, "run", runner(true, true));
  host.refusal("run \"edit a\" \"unknown\"");
  EXPECT_THAT(host.steps(), ElementsAre(R"(run "edit a" "unknown")"));
  takeDiary();
  host.run("undo");
  EXPECT_THAT(takeDiary(), ElementsAre("undoIt edit a"));
}

TEST(NestedLines, WithoutUndoAreNotQueued) {
  ProbeHost host;
  addProbe(host, "run", runner(false, false));
  host.run("run \"edit a\"");
  EXPECT_THAT(host.steps(), IsEmpty());
}

TEST(NestedLines, OfALineWithoutUndoAreNotQueuedEither) {
  ProbeHost host;
  addProbe(host, "run", runner());
  vesk::ResultValue result;
  EXPECT_TRUE(host.session().engine().run("run \"run \\\"edit a\\\"\"", result, {.undo = false}));
  EXPECT_THAT(host.steps(), IsEmpty());
}

TEST(NestedLines, AreEchoedWhenTheyAreShown) {
  ProbeHost host;
  addProbe(host, "run", runner());
  host.run("run \"edit a\"");
  EXPECT_THAT(host.takeEchoes(), ElementsAre("run \"edit a\"", "edit a"));
}

TEST(NestedLines, OfALineThatIsNotShownAreNotShownEither) {
  ProbeHost host;
  addProbe(host, "run", runner());
  host.takeEchoes();
  KGlobal::executeCommand("run \"edit a\"", false, true);
  EXPECT_THAT(host.takeEchoes(), IsEmpty());
}

TEST(NestedLines, AFailureStopsOnlyTheirOwnLine) {
  ProbeHost host;
  addProbe(host, "try", {.doIt = [](KPxCommand&, const KArgList& lines) {
             KGlobal::executeCommand(lines.asString(0), false, true);
             return KStatus();
           }});
  EXPECT_EQ(host.status("try \"unknown; edit a\"; edit b"), StatusSuccess);
  EXPECT_THAT(host.takeMessages(), ElementsAre("! unknown command \"unknown\""));
  EXPECT_THAT(host.steps(), ElementsAre("edit b"));
}

TEST(NestedLines, RefusalsNameTheCommandThatReadsItsArguments) {
  ProbeHost host;
  addProbe(host, "run", runner());
  EXPECT_THAT(host.refusal("run \"about -x\""), ElementsAre("! about: unknown flag -x"));
}

TEST(NestedLines, ALineThatCallsItselfWithoutEndIsStopped) {
  ProbeHost host;
  int calls = 0;
  addProbe(host, "again", {.doIt = [&](KPxCommand&, const KArgList&) {
             ++calls;
             return KGlobal::executeCommand("again", false, true);
           }});
  EXPECT_EQ(host.status("again"), StatusBadArgument);
  EXPECT_EQ(calls, 200);
  EXPECT_THAT(host.takeMessages(), ElementsAre("! the line is nested too deeply in commands"));
}

TEST(NestedLines, AfterADepthThatWasTooGreatLinesRunAgain) {
  ProbeHost host;
  addProbe(host, "again", {.doIt = [](KPxCommand&, const KArgList&) {
             return KGlobal::executeCommand("again", false, true);
           }});
  host.refusal("again");
  host.run("edit a");
  EXPECT_FALSE(host.session().engine().isRunning());
}

TEST(NestedLines, TheTextOfALineMayChangeWhileItRuns) {
  ProbeHost host;
  KString line("change; edit a; edit b // a text that is longer than a small buffer");
  addProbe(host, "change", {.doIt = [&](KPxCommand&, const KArgList&) {
             line = "gone, and a text of the same size stands where it was, or so it may be";
             return KStatus();
           }});
  EXPECT_TRUE(KGlobal::executeCommand(line, false, true));
  EXPECT_THAT(host.steps(), ElementsAre("edit a", "edit b"));
}

TEST(NestedLines, ACommandMayTakeItsOwnNameOutOfTheRegistry) {
  ProbeHost host;
  addProbe(host, "once", {.doIt = [&](KPxCommand& command, const KArgList&) {
             EXPECT_TRUE(host.session().registry().remove("once", nullptr));
             command.syntax();
             return KStatus();
           }});
  host.run("once");
  EXPECT_THAT(host.refusal("once"), ElementsAre("! unknown command \"once\""));
}

TEST(IntegerLines, GiveTheirInteger) {
  ProbeHost host;
  int value = 77;
  EXPECT_TRUE(KGlobal::executeCommand("mouse -mouseButtonTrackingStatus", value, false, false));
  EXPECT_EQ(value, 3);
}

TEST(IntegerLines, FailWhenTheLineGivesNone) {
  ProbeHost host;
  int value = 77;
  EXPECT_EQ(KGlobal::executeCommand("about -version", value, false, false).statusCode(),
            StatusFailure);
  EXPECT_EQ(KGlobal::executeCommand("edit a", value, false, false).statusCode(), StatusFailure);
  EXPECT_EQ(value, 77);
}

TEST(IntegerLines, GiveTheStatusOfTheirFailure) {
  ProbeHost host;
  int value = 77;
  EXPECT_EQ(KGlobal::executeCommand("unknown", value, false, false).statusCode(),
            StatusBadArgument);
  EXPECT_EQ(value, 77);
  host.takeMessages();
}

TEST(ResultLines, EmptyAResultThatIsUsedAgain) {
  ProbeHost host;
  KCommandResult result;
  EXPECT_TRUE(KGlobal::executeCommand("about -batch", result, false, false));
  EXPECT_EQ(result.resultType(), KCommandResult::kBool);
  EXPECT_TRUE(KGlobal::executeCommand("edit a", result, false, false));
  EXPECT_EQ(result.resultType(), KCommandResult::kNone);
}

}  // namespace
