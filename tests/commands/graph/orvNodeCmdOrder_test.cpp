// The order in which a line with every kind of edit asks the graph library for its work.

#include "tests/commands/graph/NodeEditTesting.h"

namespace {

using testing::ElementsAre;

class NodeOrderOfWork : public NodeEditTest {};

constexpr const char* kEveryEdit = "-ssf f true -ssf e false -spv own 2 -smd k v";

TEST_F(NodeOrderOfWork, OfARunIsMetadataPortsStates) {
  EXPECT_THAT(askedBy([&] { run("/a", kEveryEdit); }),
              ElementsAre("MetadataCommand redo", "ModifyNodePortCommand redo", "edit setState",
                          "edit setState"));
}

TEST_F(NodeOrderOfWork, OfARedoIsThatOfTheFirstRun) {
  run("/a", kEveryEdit);
  undo();
  EXPECT_THAT(askedBy([&] { redo(); }),
              ElementsAre("MetadataCommand redo", "ModifyNodePortCommand redo", "edit setState",
                          "edit setState"));
}

TEST_F(NodeOrderOfWork, OfAnUndoIsNoMirror) {
  run("/a", kEveryEdit);
  EXPECT_THAT(askedBy([&] { undo(); }),
              ElementsAre("ModifyNodePortCommand undo", "MetadataCommand undo", "edit setState",
                          "edit setState"));
}

TEST_F(NodeOrderOfWork, AnyEditAsksForThePorts) {
  run("/a", "-cip many \"array<float>\"");
  EXPECT_THAT(askedBy([&] { run("/a", "-smd k v"); }),
              ElementsAre("MetadataCommand redo", "ModifyNodePortCommand redo"));
  EXPECT_THAT(askedBy([&] { run("/a", "-ssf f true"); }),
              ElementsAre("ModifyNodePortCommand redo", "edit setState"));
}

TEST_F(NodeOrderOfWork, MetadataAreAskedForOnlyWhereTheyAreEdited) {
  EXPECT_THAT(askedBy([&] { run("/a", "-spv own 2 -qms"); }),
              ElementsAre("ModifyNodePortCommand redo"));
  EXPECT_THAT(askedBy([&] { undo(); }), ElementsAre("ModifyNodePortCommand undo"));
}

TEST_F(NodeOrderOfWork, AKeyThatTheNodeLacksAsksForNothing) {
  EXPECT_THAT(askedBy([&] { run("/a", "-ssf x true"); }),
              ElementsAre("ModifyNodePortCommand redo"));
}

}  // namespace
