#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/ProbeCommand.h"

namespace {

using namespace hosttest;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(UndoInfoCommand, AsksAndSetsTheState) {
  ProbeHost host;
  EXPECT_EQ(host.run("undoInfo -q -state"), "true");
  host.run("undoInfo -state off");
  EXPECT_EQ(host.run("undoInfo -q -st"), "false");
  host.run("undoInfo -st on");
  EXPECT_EQ(host.run("undoInfo -query -state"), "true");
}

TEST(UndoInfoCommand, AsksAndSetsTheStateWithoutFlush) {
  ProbeHost host;
  host.run("edit a; undoInfo -stateWithoutFlush false");
  EXPECT_EQ(host.run("undoInfo -q -stateWithoutFlush"), "false");
  EXPECT_EQ(host.run("undoInfo -q -state"), "false");
  EXPECT_THAT(host.steps(), ElementsAre("edit a"));
  host.run("undoInfo -swf 1");
  EXPECT_EQ(host.run("undoInfo -q -swf"), "true");
}

TEST(UndoInfoCommand, SettingTheStateOnKeepsTheSteps) {
  ProbeHost host;
  host.run("edit a; undoInfo -state on");
  EXPECT_THAT(host.steps(), ElementsAre("edit a"));
}

TEST(UndoInfoCommand, RefusesAStateThatIsNone) {
  ProbeHost host;
  EXPECT_THAT(host.refusal("undoInfo -state maybe"),
              ElementsAre("! undoInfo: flag -state expects true or false, not \"maybe\""));
}

TEST(UndoInfoCommand, AsksAndSetsTheLength) {
  ProbeHost host;
  EXPECT_EQ(host.run("undoInfo -q -length"), "0");
  host.run("undoInfo -length 5");
  EXPECT_EQ(host.run("undoInfo -q -l"), "5");
}

TEST(UndoInfoCommand, ALengthMayBeTheGreatestNumber) {
  ProbeHost host;
  host.run("undoInfo -length 4294967295");
  EXPECT_EQ(host.run("undoInfo -q -length"), "4294967295");
}

TEST(UndoInfoCommand, RefusesALengthBelowZero) {
  ProbeHost host;
  host.run("undoInfo -length 5");
  EXPECT_THAT(
      host.refusal("undoInfo -length -1"),
      ElementsAre(
          "! undoInfo: flag -length expects a whole number from 0 to 4294967295, not \"-1\""));
  EXPECT_EQ(host.run("undoInfo -q -length"), "5");
}

TEST(UndoInfoCommand, TellsTheNextStepToUndoAndRedo) {
  ProbeHost host;
  EXPECT_EQ(host.run("undoInfo -q -undoName"), "\"\"");
  EXPECT_EQ(host.run("undoInfo -q -redoName"), "\"\"");
  host.run("edit a; edit b; undo");
  EXPECT_EQ(host.run("undoInfo -q -un"), "\"edit a\"");
  EXPECT_EQ(host.run("undoInfo -rn"), "\"edit b\"");
}

TEST(UndoInfoCommand, PrintsTheQueue) {
  ProbeHost host;
  host.run("edit a; edit b; edit c; undo; undo; undoInfo -printQueue");
  EXPECT_THAT(host.takeMessages(),
              ElementsAre("- undo 1: edit a", "- redo 2: edit b", "- redo 3: edit c"));
  host.run("undoInfo -q -pq");
  EXPECT_EQ(host.takeMessages().size(), 3u);
}

TEST(UndoInfoCommand, PrintsNothingOfAnEmptyQueue) {
  ProbeHost host;
  host.run("undoInfo -printQueue");
  EXPECT_THAT(host.takeMessages(), IsEmpty());
}

TEST(UndoInfoCommand, ANameGoesWithAnOpeningChunkOnly) {
  ProbeHost host;
  EXPECT_THAT(host.refusal("undoInfo -chunkName a"),
              ElementsAre("! undoInfo: -chunkName goes with -openChunk"));
  EXPECT_FALSE(host.session().undoQueue().hasOpenChunk());
}

TEST(UndoInfoCommand, WithoutFlagSaysWhatIsMissing) {
  ProbeHost host;
  const auto missing = ElementsAre("! undoInfo: say what to ask or change, with one of its flags");
  EXPECT_THAT(host.refusal("undoInfo"), missing);
  EXPECT_THAT(host.refusal("undoInfo -q"), missing);
}

TEST(UndoInfoCommand, AskingOpensAndClosesNoChunk) {
  ProbeHost host;
  host.refusal("undoInfo -q -openChunk");
  EXPECT_FALSE(host.session().undoQueue().hasOpenChunk());
  host.run("undoInfo -openChunk");
  host.refusal("undoInfo -q -closeChunk");
  EXPECT_TRUE(host.session().undoQueue().hasOpenChunk());
}

TEST(UndoInfoCommand, RefusesFlagsThatContradictEachOther) {
  ProbeHost host;
  const auto refused =
      ElementsAre("! undoInfo: its flags exclude each other, but for -openChunk and -chunkName");
  for (const char* flags : {"-openChunk -closeChunk", "-state on -stateWithoutFlush off",
                            "-undoName -redoName", "-q -length -state"}) {
    EXPECT_THAT(host.refusal(std::string("undoInfo ") + flags), refused);
  }
  EXPECT_FALSE(host.session().undoQueue().hasOpenChunk());
  EXPECT_TRUE(host.session().undoQueue().isEnabled());
}

TEST(UndoInfoCommand, IsNoEditItself) {
  ProbeHost host;
  host.run("undoInfo -length 5; undoInfo -q -state");
  EXPECT_THAT(host.steps(), IsEmpty());
}

TEST(UndoAndRedoCommands, TakeNoArguments) {
  ProbeHost host;
  host.run("edit a");
  EXPECT_THAT(host.refusal("undo 2"),
              ElementsAre("! undo: too many arguments: \"2\" is one more than the 0 expected"));
  EXPECT_THAT(host.refusal("redo -x"), ElementsAre("! redo: unknown flag -x"));
  EXPECT_THAT(host.steps(), ElementsAre("edit a"));
}

}  // namespace
