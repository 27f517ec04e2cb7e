// What an undo brings back, what it does not, and what the next redo makes of it.

#include "tests/commands/compound/CompoundEditTesting.h"

namespace {

using orvlib::ArmedFault;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

/// A graph with the compound "group", which has an input "size", the node "inside" that it is wired
/// to, and the backdrop "frame".
class CompoundUndo : public CompoundEditTest {
 protected:
  CompoundUndo() {
    run("/", "-create group");
    run("/group", "-createInputPort size float -addBackdrop frame");
    addNodes("/group", {"inside"});
    connect("/group.size", "/group/inside.a");
    host.session().undoQueue().clear();
  }

  /// The names of the ports of "group", inputs first.
  Texts ports() {
    Texts names;
    for (const auto& port : compound("/group")->compoundInputs()) {
      names.emplace_back(port->getName());
    }
    for (const auto& port : compound("/group")->compoundOutputs()) {
      names.emplace_back(port->getName());
    }
    return names;
  }
};

TEST_F(CompoundUndo, OfEachOtherEditIsComplete) {
  sweep("/group", "-createInputPort p float -createOutputPort q int");
  sweep("/group", "-deletePort size");
  sweep("/group", "-renamePort size s -hidePort s true -setPortMetaDataValue s k v");
  sweep("/group", "-setPortDefaultValues size 2");
  sweep("/group", "-addBackdrop more -renameAnnotation frame f -removeAnnotation more");
  sweep("/group", "-setMetaData k v -addMetaData k w");
  sweep("/group", "-addStatePorts s t float");
}

TEST_F(CompoundUndo, OfManyEditsOfOneLineIsComplete) {
  sweep("/group",
        "-create x -moveNodeIn inside -addNode core::math::negate -renameNode negate n "
        "-createOutputPort q float -renamePort size s -setMetaData k v -addBackdrop more "
        "-addStatePorts in out float");
}

TEST_F(CompoundUndo, OfMetadataAloneTouchesNothingElse) {
  run("/group", "-setMetaData k v");
  run("/group", "-addNode core::math::add");
  // The line is undone out of turn: what came after it stays.
  runOpen("/group", "-setMetaData k w");
  run("/group", "-addNode core::math::add");
  EXPECT_EQ(undoIt(), StatusSuccess);
  EXPECT_THAT(stored(), HasSubstr("k v"));
  EXPECT_THAT(nodes("/group"), ElementsAre("inside", "add", "add1"));
}

TEST_F(CompoundUndo, GivesNoResult) {
  runOpen("/", "-create x -addNode core::math::add -listNodes");
  EXPECT_EQ(host.run("undoHeld"), "");
}

TEST_F(CompoundUndo, OfACompoundThatIsGoneFailsAndChangesNothing) {
  runOpen("/group", "-addNode core::math::add -setMetaData k v");
  run("/", "-removeNode group");
  const std::string before = stored();
  EXPECT_EQ(undoIt(), StatusFailure);
  EXPECT_THAT(host.takeMessages(), ElementsAre("! /group is not a compound name"));
  EXPECT_EQ(redoIt(), StatusFailure);
  EXPECT_THAT(host.takeMessages(), ElementsAre("! /group is not a compound name"));
  EXPECT_EQ(stored(), before);
}

TEST_F(CompoundUndo, OfAGraphThatIsGoneFails) {
  runOpen("/group", "-addNode core::math::add");
  host.run("rename g other");
  EXPECT_EQ(undoIt(), StatusFailure);
  EXPECT_EQ(redoIt(), StatusFailure);
  EXPECT_THAT(host.takeMessages(),
              ElementsAre("! g is not a DG ORV container", "! g is not a DG ORV container"));
  EXPECT_THAT(nodes("/group"), ElementsAre("inside", "add"));
}

TEST_F(CompoundUndo, ReachesACompoundThatOtherLinesTookAwayAndBroughtBack) {
  const std::string empty = stored();
  run("/", "-create new");
  run("/new", "-addNode core::math::add -createInputPort p float -setMetaData k v");
  run("/new", "-renameNode add sum -setPortDefaultValues p 2 -addBackdrop more");
  run("/new", "-create deep -moveNodeIn sum");
  const std::string full = stored();
  for (int i = 0; i < 4; ++i) undo();
  EXPECT_EQ(stored(), empty);
  for (int i = 0; i < 4; ++i) redo();
  EXPECT_EQ(stored(), full);
  for (int i = 0; i < 4; ++i) undo();
  EXPECT_EQ(stored(), empty);
}

TEST_F(CompoundUndo, ARedoWorksOnAnotherCompoundThatHasTakenThePath) {
  runOpen("/group", "-renameNode inside x -addStatePorts s t float");
  EXPECT_EQ(undoIt(), StatusSuccess);
  run("/", "-removeNode group");
  run("/", "-create group");
  addNodes("/group", {"inside"});
  EXPECT_EQ(redoIt(), StatusSuccess);
  EXPECT_THAT(nodes("/group"), ElementsAre("x"));
  EXPECT_THAT(ports(), ElementsAre("s", "t"));
  EXPECT_EQ(undoIt(), StatusSuccess);
  EXPECT_THAT(nodes("/group"), ElementsAre("inside"));
  EXPECT_THAT(ports(), IsEmpty());
}

// Values and annotations are asked to go ahead of the ports, and ports ahead of the metadata,
// although values and metadata came first. What came first waits.

TEST_F(CompoundUndo, AValueGoesWhenTheLineTookAwayItsPortAfterwards) {
  sweep("/group", "-setPortDefaultValues size 2 -deletePort size");
}

TEST_F(CompoundUndo, AValueGoesWhenTheLineGaveItsPortAnotherTypeAfterwards) {
  for (const char* type : {"int", "color3", "string"}) {
    sweep("/group", std::string("-setPortDefaultValues size 2 -setPortDataType size ") + type);
  }
}

TEST_F(CompoundUndo, ALineWithEveryKindOfEditGoesAndComesBackWhole) {
  sweep(
      "/group",
      "-setPortDefaultValues size 2 -createInputPort p float -renamePort size width -addBackdrop b "
      "-renameAnnotation b c -setMetaData k v -addNode core::math::negate -addNode core::math::add "
      "-create x -renameNode negate minus -addIONode true -addStatePorts s t float");
}

/// A line with an edit of each kind, and for each what the stored form shows of it.
constexpr const char* kEveryEdit =
    "-setPortDefaultValues size 2 -createInputPort p float -addBackdrop more -setMetaData k v "
    "-addNode core::math::negate -create x";

struct RefusedUndo {
  const char* fault;
  unsigned nth;
  const char* stays;
};

// The command for values is asked ahead of the one for ports, by the same name.
constexpr RefusedUndo kRefusedUndos[] = {
    {"ModifyCompoundPortCommand undo", 1, "value size 2"},
    {"ModifyCompoundPortCommand undo", 2, "port in p float"},
    {"ModifyCompoundAnnotationCommand undo", 1, "backdrop more"},
    {"MetadataCommand undo", 1, "compound-metadata k v"},
    {"NodeCommand undo", 1, "node negate"},
    {"CreateCompoundCommand undo", 1, "compound x"},
};

class RefusedReverse : public CompoundUndo, public testing::WithParamInterface<RefusedUndo> {};

TEST_P(RefusedReverse, IsIgnoredAndTheOthersGoOn) {
  run("/group", kEveryEdit);
  for (const RefusedUndo& one : kRefusedUndos) EXPECT_THAT(stored(), HasSubstr(one.stays));
  const ArmedFault armed(GetParam().fault, GetParam().nth);
  undo();
  EXPECT_TRUE(armed.refused());
  EXPECT_FALSE(hasOpenBracket());
  for (const RefusedUndo& one : kRefusedUndos) {
    const bool isThis = std::string(one.stays) == GetParam().stays;
    EXPECT_EQ(stored().find(one.stays) != std::string::npos, isThis) << one.stays;
  }
}

INSTANTIATE_TEST_SUITE_P(OfEachKind, RefusedReverse, testing::ValuesIn(kRefusedUndos));

// State ports.

TEST_F(CompoundUndo, OfStatePortsOfAnUnknownTypeRemovesNothing) {
  runOpen("/group", "-addStatePorts s t nonsense");
  EXPECT_THAT(host.takeMessages(), ElementsAre("! Unknown port type nonsense"));
  EXPECT_EQ(command().createdStateInputPort.length(), 0u);
  EXPECT_EQ(command().createdStateOutputPort.length(), 0u);
  const std::string before = stored();
  undo();
  EXPECT_EQ(stored(), before);
}

TEST_F(CompoundUndo, TheNamesOfStatePortsStayStoredAndTakeWhatHasThemNextTime) {
  runOpen("/group", "-addStatePorts s t float");
  EXPECT_THAT(ports(), ElementsAre("size", "s", "t"));
  EXPECT_EQ(undoIt(), StatusSuccess);
  EXPECT_THAT(ports(), ElementsAre("size"));
  EXPECT_EQ(HostAccess::text(command().createdStateInputPort), "s");
  EXPECT_EQ(HostAccess::text(command().createdStateOutputPort), "t");
  run("/group", "-createInputPort s int -createOutputPort t int");
  EXPECT_EQ(undoIt(), StatusSuccess);
  EXPECT_THAT(ports(), ElementsAre("size"));
}

TEST_F(CompoundUndo, StatePortsAreLookedForInTheListOfTheirOwnDirection) {
  runOpen("/group", "-addStatePorts s t float");
  EXPECT_EQ(undoIt(), StatusSuccess);
  run("/group", "-createInputPort t int -createOutputPort s int");
  EXPECT_EQ(undoIt(), StatusSuccess);
  EXPECT_THAT(ports(), ElementsAre("size", "t", "s"));
}

TEST_F(CompoundUndo, AStatePortThatCannotBeRemovedStaysAndTheOtherGoes) {
  runOpen("/group", "-addStatePorts s t float");
  {
    const ArmedFault armed("Compound removePort");
    undo();
    EXPECT_TRUE(armed.refused());
  }
  EXPECT_THAT(ports(), ElementsAre("size", "t")) << "the output is asked for first";
}

TEST_F(CompoundUndo, OfStatePortsThatTheLibraryRefusedRemovesNothing) {
  const std::string before = stored();
  {
    const ArmedFault armed("Compound addStatePorts");
    EXPECT_EQ(runOpen("/group", "-addStatePorts s t float"), "false");
    EXPECT_TRUE(armed.refused());
  }
  EXPECT_EQ(command().createdStateOutputPort.length(), 0u);
  undo();
  EXPECT_EQ(stored(), before);
}

TEST_F(CompoundUndo, WhatOtherLinesDidToStatePortsIsDoneAgain) {
  const std::string before = stored();
  run("/group", "-addStatePorts s t float");
  run("/group", "-renamePort s u -setPortMetaDataValue t k v -setPortDataType u int");
  run("/group", "-addNode core::math::negate -connectTo u");
  run("/group", "-deletePort t");
  const std::string after = stored();
  for (int round = 0; round < 2; ++round) {
    for (int i = 0; i < 4; ++i) undo();
    EXPECT_EQ(stored(), before);
    for (int i = 0; i < 4; ++i) redo();
    EXPECT_EQ(stored(), after);
  }
}

TEST_F(CompoundUndo, APortGetsItsNameBackFromTheStatePortThatTookIt) {
  sweep("/group", "-renamePort size width -addStatePorts size t float");
  sweep("/group", "-deletePort size -addStatePorts s size float");
}

TEST_F(CompoundUndo, APortGetsItsNameBackFromAStatePortInsideABracketOfTheUser) {
  ASSERT_TRUE(graph.openChangeBracket(nullptr));
  sweep("/group", "-setPortDefaultValues size 2 -deletePort size -addStatePorts size t float");
  sweep("/group", "-renamePort size width -addStatePorts s size float -setMetaData k v");
  EXPECT_TRUE(graph.closeChangeBracket(nullptr));
}

// A redo.

TEST_F(CompoundUndo, ARedoThatFailsStillLeavesTheStagesBeforeItDone) {
  runOpen("/group", "-setMetaData k v -addNode core::math::negate -createInputPort p float");
  EXPECT_EQ(undoIt(), StatusSuccess);
  const ArmedFault armed("ModifyCompoundPortCommand redo");
  EXPECT_EQ(redoIt(), StatusFailure);
  EXPECT_TRUE(armed.refused());
  EXPECT_THAT(nodes("/group"), ElementsAre("inside", "negate"));
  EXPECT_THAT(stored(), HasSubstr("k v"));
  EXPECT_THAT(ports(), ElementsAre("size"));
  EXPECT_FALSE(hasOpenBracket());
}

TEST_F(CompoundUndo, ARedoDoesNotClearTheResultThatIsThere) {
  EXPECT_EQ(runOpen("/", "-addNode core::math::add"), R"(["add"])");
  EXPECT_EQ(undoIt(), StatusSuccess);
  HeldRedo::resultBefore = "there";
  EXPECT_EQ(host.run("redoHeld"), R"(["there","add"])");
  HeldRedo::resultBefore.clear();
}

TEST_F(CompoundUndo, ASecondRedoInARowIsRefusedByTheNodesAndChangesNothing) {
  runOpen("/group", "-addNode core::math::negate");
  const std::string before = stored();
  EXPECT_EQ(redoIt(), StatusFailure);
  EXPECT_EQ(stored(), before);
}

}  // namespace
