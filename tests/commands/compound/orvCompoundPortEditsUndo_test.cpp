// Each port edit but that of values, done, undone, redone and undone.

#include "tests/commands/compound/CompoundWiring.h"

using testing::ElementsAre;

namespace {

/// A compound /group between two nodes, with a node inside that is connected to its ports.
class PortEditsUndo : public CompoundTest {
 protected:
  PortEditsUndo() {
    run("/", "-create group -addNode core::math::add -addNode core::math::negate");
    run("/group", "-cip a float -cip b float -cip c color3 -cop x float -cop y float");
    run("/group", "-addNode core::math::add -addIONode true -addIONode false");
    connect(graph, "/add.result", "/group.a");
    connect(graph, "/group.x", "/negate.value");
    connect(graph, "/group.a", "/group/add.a");
    connect(graph, "/group.c.g", "/group/add.b");
    connect(graph, "/group/add.result", "/group.x");
    run("/group", "-setPortDefaultValues b 2.5");
  }
};

TEST_F(PortEditsUndo, UndoGivesThePortItsFormerName) {
  sweep("/group", "-renamePort a size");
  sweep("/group", "-renamePort a b -renamePort x a");
}

TEST_F(PortEditsUndo, UndoPutsThePortBackToItsPlace) {
  sweep("/group", "-movePort a 2");
  sweep("/group", "-movePort c 0");
  sweep("/group", "-movePort x 99");
}

TEST_F(PortEditsUndo, UndoTakesThePortFromTheIONode) {
  sweep("/group", "-movePortToIONode a input");
  sweep("/group", "-movePortToIONode y output");
  run("/group", "-movePortToIONode a input");
  run("/group", "-movePortToIONode b input");
  sweep("/group", "-movePortToIONode a input");
}

TEST_F(PortEditsUndo, UndoShowsAHiddenPortAndHidesAShownOne) {
  sweep("/group", "-hidePort a true");
  run("/group", "-hidePort a true");
  sweep("/group", "-hidePort a false");
}

TEST_F(PortEditsUndo, UndoGivesThePortItsFormerTypeWithValueAndConnections) {
  sweep("/group", "-setPortDataType a string");
  sweep("/group", "-setPortDataType b int");
  sweep("/group", "-setPortDataType c vector3");
  sweep("/group", "-setPortDataType x array<string>");
}

TEST_F(PortEditsUndo, UndoGivesTheMetadataOfThePortBack) {
  sweep("/group", "-setPortMetaDataValue a k v");
  run("/group", "-setPortMetaDataValue a k v");
  sweep("/group", "-setPortMetaDataValue a k w");
  sweep("/group", "-setPortMetaDataValue a k \"\"");
}

TEST_F(PortEditsUndo, UndoBringsADeletedPortBackWithItsConnections) {
  sweep("/group", "-deletePort a");
  sweep("/group", "-deletePort c");
  sweep("/group", "-deletePort x -deletePort b -deletePort a");
}

TEST_F(PortEditsUndo, ManyEditsOfOneLineAreUndoneTogether) {
  sweep("/group",
        "-createInputPort d float -createOutputPort z float -renamePort a size -movePort size 1 "
        "-movePortToIONode size input -hidePort x true -setPortDataType b int "
        "-setPortMetaDataValue y k v -deletePort c");
}

TEST_F(PortEditsUndo, PortsAreUndoneAheadOfTheNodesThatWereAddedBeforeThem) {
  sweep("/group", "-addNode core::math::negate -connectTo b -deletePort b");
}

/// Values are asked to go ahead of ports, when the port is not there yet.
TEST_F(PortEditsUndo, AValueSetInTheLineThatDeletesThePortGoes) {
  sweep("/group", "-setPortDefaultValues b 7 -deletePort b");
}

TEST_F(PortEditsUndo, UndoSaysNothingAndFailsNothingWhenThePortsCannotBeUndone) {
  run("/group", "-hidePort b true -setMetaData k v");
  const orvlib::ArmedFault fault("ModifyCompoundPortCommand undo", 2);
  undo();
  EXPECT_TRUE(fault.refused());
  EXPECT_EQ(run("/group", "-queryMetaDatas"), "[]") << "the rest is undone";
}

}  // namespace
