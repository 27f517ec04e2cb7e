// What the command asks of the graph library, in which bracket, and undo and redo.

#include "tests/commands/graph/LibraryCalls.h"
#include "tests/commands/graph/OpenBrackets.h"
#include "tests/commands/graph/PortTesting.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class OrvPortCalls : public PortTest {
 protected:
  OrvPortCalls() {
    calls.atCall = [this] { open.push_back(openBrackets(graph, {"/", "/box"})); };
  }

  LibraryCalls calls;
  std::vector<Texts> open;
};

// --- What is asked for

TEST_F(OrvPortCalls, RecordsWithTheValuesOfTheSearch) {
  host.run("orvPort g /box.in 1 0 -set 4 -clear 3");
  EXPECT_THAT(calls.take(), ElementsAre("handlePortFlags /box.in 1 0 4 1",
                                        "handlePortFlags /box.in 1 0 3 2", "redo"));
}

TEST_F(OrvPortCalls, RecordsTheSettingFirst) {
  host.run("orvPort g /a.a 0 1 -clear 3 -set 4");
  EXPECT_THAT(calls.take(),
              ElementsAre("handlePortFlags /a.a 0 1 4 1", "handlePortFlags /a.a 0 1 3 2", "redo"));
}

TEST_F(OrvPortCalls, RecordsWithoutAPortToo) {
  refusalOf("orvPort g /nobody.a 0 1 -set 4");
  refusalOf("orvPort nothing /a.a 2 0 -clear 4");
  EXPECT_THAT(calls.take(),
              ElementsAre("handlePortFlags null 0 1 4 1", "handlePortFlags null 2 0 4 2"));
}

TEST_F(OrvPortCalls, RunsWithNothingRecorded) {
  host.run("orvPort g /a.a 0 1");
  host.run("orvPort g /a.a 0 1 -queryFlags");
  EXPECT_THAT(calls.take(), ElementsAre("redo", "redo"));
  EXPECT_THAT(host.steps(), ElementsAre("orvPort g /a.a 0 1", "orvPort g /a.a 0 1 -queryFlags"));
}

TEST_F(OrvPortCalls, RecordsZeroAndTheLargestNumber) {
  host.run("orvPort g /a.a 0 1 -set 4294967295 -clear 0");
  EXPECT_THAT(calls.take(), ElementsAre("handlePortFlags /a.a 0 1 4294967295 1",
                                        "handlePortFlags /a.a 0 1 0 2", "redo"));
}

TEST_F(OrvPortCalls, DoesNothingAfterALineThatDoesNotFit) {
  refusalOf("orvPort g /a.a 0 1 -set 4 -away", StatusBadArgument);
  refusalOf("orvPort g /a.a 0 -set 4");
  EXPECT_THAT(calls.take(), IsEmpty());
  EXPECT_THAT(host.steps(), IsEmpty());
}

TEST_F(OrvPortCalls, LeavesNoStepWithoutAPort) {
  refusalOf("orvPort g /nobody.a 0 1 -set 4");
  EXPECT_THAT(host.steps(), IsEmpty());
}

// --- What the library says is not read

TEST_F(OrvPortCalls, WorksWhateverTheLibrarySays) {
  calls.answer = [] { return false; };
  host.run("orvPort g /a.a 0 1 -set 4");
  EXPECT_THAT(host.steps(), ElementsAre("orvPort g /a.a 0 1 -set 4"));
  EXPECT_THAT(calls.take(), ElementsAre("handlePortFlags /a.a 0 1 4 1", "redo"));
}

TEST_F(OrvPortCalls, WorksAtEachFault) {
  for (const char* fault : {"ModifyNodePortCommand handlePortFlags", "ModifyNodePortCommand redo",
                            "edit setPortFlags"}) {
    const orvlib::ArmedFault armed(fault);
    host.run("orvPort g /a.a 0 1 -set 4");
    EXPECT_TRUE(armed.refused()) << fault;
    EXPECT_EQ(flags("/a.a"), 0u) << fault;
  }
}

TEST_F(OrvPortCalls, WorksWhenTheFanInBitMayNotChange) {
  host.run("orvConnect g /a.result /list.elements");
  host.run("orvPort g /list.elements 0 1 -clear 2");
  EXPECT_EQ(flags("/list.elements"), 2u);
}

TEST_F(OrvPortCalls, AnUndoWorksAtItsFault) {
  host.run("orvPort g /a.a 0 1 -set 4");
  {
    const orvlib::ArmedFault armed("ModifyNodePortCommand undo");
    undo();
    EXPECT_TRUE(armed.refused());
  }
  EXPECT_EQ(flags("/a.a"), 4u);
}

// --- The bracket

TEST_F(OrvPortCalls, HasTheBracketOfTheLevelOfItsNode) {
  host.run("orvPort g /box/d.a 0 1 -set 4");
  host.run("orvPort g /a.a 0 1 -set 4");
  EXPECT_THAT(open, ElementsAre(IsEmpty(), ElementsAre("/box"), IsEmpty(), ElementsAre("/")));
}

TEST_F(OrvPortCalls, HasTheBracketOfTheLevelAroundACompoundForEitherFace) {
  host.run("orvPort g /box.in 0 1 -set 4");
  host.run("orvPort g /box.in 1 0 -set 4");
  EXPECT_THAT(open, ElementsAre(IsEmpty(), ElementsAre("/"), IsEmpty(), ElementsAre("/")));
}

TEST_F(OrvPortCalls, HasTheBracketOfTheTopCompoundForItsOwnPorts) {
  host.run("orvCompound g / -createInputPort size float");
  host.run("orvPort g /.size 1 0 -set 4");
  EXPECT_THAT(open, ElementsAre(IsEmpty(), ElementsAre("/")));
}

TEST_F(OrvPortCalls, HasTheBracketToUndoAndToRedo) {
  host.run("orvPort g /box/d.a 0 1 -set 4");
  open.clear();
  undo();
  redo();
  EXPECT_THAT(open, ElementsAre(ElementsAre("/box"), ElementsAre("/box")));
  EXPECT_FALSE(graph.activeChangeBracket());
}

// --- Undo and redo

TEST_F(OrvPortCalls, EveryEditCanBeSweptBackAndForth) {
  sweepLine("orvPort g /a.a 0 1 -set 5");
  sweepLine("orvPort g /a.a 0 1 -set 5 -cl 1");
  sweepLine("orvPort g /list.elements 0 1 -clear 2");
  sweepLine("orvPort g /box.in 1 0 -set 1");
  sweepLine("orvPort g /a.result 1 1 -set 4294967295");
}

TEST_F(OrvPortCalls, AnUndoGivesBackOnlyWhatTheLineChanged) {
  host.run("orvPort g /a.a 0 1 -set 4");
  host.run("orvPort g /a.a 0 1 -set 5");
  undo();
  EXPECT_EQ(flags("/a.a"), 4u);
}

TEST_F(OrvPortCalls, AnUndoOfAQueryChangesNothing) {
  const std::string before = stored();
  host.run("orvPort g /a.a 0 1 -qf");
  undo();
  redo();
  EXPECT_EQ(stored(), before);
}

TEST_F(OrvPortCalls, ARedoGivesNoResult) {
  host.run("orvPort g /a.a 0 1 -set 4 -qf");
  undo();
  EXPECT_EQ(host.run("redo"), "");
}

TEST_F(OrvPortCalls, UndoAndRedoFailWithoutThePort) {
  host.run("openPort g /a.a 0 1 -set 4");
  OpenPortCmd& held = command();
  host.run("orvCompound g / -renameNode a other");
  calls.take();
  EXPECT_EQ(held.undoIt().statusCode(), StatusFailure);
  EXPECT_EQ(held.redoIt().statusCode(), StatusFailure);
  EXPECT_THAT(calls.take(), IsEmpty());
  EXPECT_EQ(flags("/other.a"), 4u);
}

TEST_F(OrvPortCalls, UndoAndRedoFailWithoutTheGraph) {
  host.run("openPort g /a.a 0 1 -set 4");
  OpenPortCmd& held = command();
  host.run("rename g other");
  EXPECT_EQ(held.undoIt().statusCode(), StatusFailure);
  EXPECT_EQ(held.redoIt().statusCode(), StatusFailure);
  host.run("rename other g");
  EXPECT_EQ(held.undoIt().statusCode(), StatusSuccess);
  EXPECT_EQ(flags("/a.a"), 0u);
}

// The port is looked for anew; what was recorded keeps to the port that it was recorded for.
TEST_F(OrvPortCalls, AnUndoKeepsToThePortThatWasChanged) {
  host.run("openPort g /a.a 0 1 -set 4");
  OpenPortCmd& held = command();
  host.run("orvCompound g / -renameNode a other");
  host.run("orvCompound g / -addNode core::math::add -renameNode add a");
  EXPECT_EQ(held.undoIt().statusCode(), StatusSuccess);
  EXPECT_EQ(flags("/other.a"), 0u);
}

TEST_F(OrvPortCalls, KeepsWhatTheLineSays) {
  host.run("openPort g /a.result 2 0");
  EXPECT_STREQ(command().portPath.asUTF8(), "/a.result");
  EXPECT_EQ(command().searchIOType, 2u);
  EXPECT_EQ(command().searchMode, 0u);
}

TEST_F(OrvPortCalls, IsAlwaysUndoable) {
  const OpenPortCmd fresh;
  EXPECT_TRUE(fresh.isUndoable());
}

}  // namespace
