#include "tests/commands/compound/CompoundEditTesting.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A graph with the nodes "a", "b" and "c" in a row of wires, and the backdrop "frame".
class CompoundNodeUndo : public CompoundEditTest {
 protected:
  CompoundNodeUndo() {
    addNodes("/", {"a", "b", "c"});
    connect("/a.result", "/b.a");
    connect("/b.result", "/c.a");
    run("/", "-addBackdrop frame");
    host.session().undoQueue().clear();
  }
};

TEST_F(CompoundNodeUndo, OfCreatingIsComplete) {
  sweep("/", "-create group");
  sweep("/", "-create group -moveNodeIn b -moveAnnotationIn frame");
  sweep("/", "-create group -moveNodeIn c -moveNodeIn a");
}

TEST_F(CompoundNodeUndo, OfExplodingIsComplete) {
  run("/", "-create group -moveNodeIn b -moveAnnotationIn frame");
  run("/", "-create a1 -moveNodeIn a");
  sweep("/", "-explode group");
  sweep("/", "-explode a1 -explode group");
}

TEST_F(CompoundNodeUndo, OfAddingIsComplete) {
  sweep("/", "-addNode core::math::add -addNode core::math::absolute");
  sweep("/", "-addNode core::math::absolute -connectTo c.result");
  sweep("/", "-addIONode true -addIONode false");
  sweep("/", "-addIONode true -connectTo a.a");
}

TEST_F(CompoundNodeUndo, OfRemovingBringsBackTheWiresAndTheOrder) {
  sweep("/", "-removeNode b");
  sweep("/", "-removeNode b -removeNode a");
}

TEST_F(CompoundNodeUndo, OfRenamingIsComplete) {
  sweep("/", "-renameNode b x");
  sweep("/", "-renameNode a x -renameNode c y");
}

TEST_F(CompoundNodeUndo, OfANodeThatComesBackGivesTheSameObject) {
  const ORV_v1::AddRefWrapper<ORV_v1::Node> held = node("/b");
  run("/", "-removeNode b");
  undo();
  EXPECT_EQ(identity("/b"), held.get());
}

TEST_F(CompoundNodeUndo, TheWarningsOfALineAreNotRepeatedByARedo) {
  run("/", "-create group -moveNodeIn nobody -moveNodeIn a");
  EXPECT_THAT(host.takeMessages(), testing::SizeIs(1));
  undo();
  redo();
  EXPECT_THAT(nodes("/group"), ElementsAre("a"));
}

TEST_F(CompoundNodeUndo, AnUndoOfARenameLooksForTheNameThatTheLibraryGave) {
  runOpen("/", "-renameNode a b");
  EXPECT_THAT(nodes(), ElementsAre("b1", "b", "c"));
  undo();
  EXPECT_THAT(nodes(), ElementsAre("a", "b", "c"));
  EXPECT_EQ(command().renames[0].from, "a");
  redo();
  EXPECT_THAT(nodes(), ElementsAre("b1", "b", "c"));
  EXPECT_EQ(command().renames[0].actual, "b1");
}

TEST_F(CompoundNodeUndo, ANameThatIsTakenByTheTimeOfTheUndoGivesAnotherThatTheRedoLooksFor) {
  runOpen("/", "-renameNode a x");
  run("/", "-renameNode c a");
  EXPECT_EQ(undoIt(), StatusSuccess);
  EXPECT_THAT(nodes(), ElementsAre("a1", "b", "a"));
  EXPECT_EQ(command().renames[0].from, "a1");
  EXPECT_EQ(redoIt(), StatusSuccess);
  EXPECT_THAT(nodes(), ElementsAre("x", "b", "a"));
}

TEST_F(CompoundNodeUndo, ANodeThatHasGoneSinceItsRenameIsLeftOut) {
  runOpen("/", "-renameNode a x -renameNode c y");
  run("/", "-removeNode x");
  EXPECT_EQ(undoIt(), StatusSuccess);
  EXPECT_THAT(nodes(), ElementsAre("b", "c"));
  EXPECT_EQ(command().renames[0].from, "a");
}

// Undo walks the renames forward, as they were done: the order is part of the behaviour.

TEST_F(CompoundNodeUndo, RenamesInARowComeBackByOneStepOnly) {
  runOpen("/", "-renameNode a x -renameNode x y");
  EXPECT_THAT(nodes(), ElementsAre("y", "b", "c"));
  undo();
  EXPECT_THAT(nodes(), ElementsAre("x", "b", "c"));
}

TEST_F(CompoundNodeUndo, RenamesInARowFailInPartOnTheRedoAndAreLostForTheNextUndo) {
  runOpen("/", "-renameNode a x -renameNode x y");
  undo();
  redo();
  EXPECT_THAT(host.takeMessages(), ElementsAre("! Node named a was not found in /"));
  EXPECT_THAT(nodes(), ElementsAre("y", "b", "c"));
  EXPECT_TRUE(command().renames[0].failed);
  undo();
  EXPECT_THAT(nodes(), ElementsAre("x", "b", "c"));
}

TEST_F(CompoundNodeUndo, SwappedNamesAreTakenWhenTheFirstComesBack) {
  const auto* wasA = identity("/a");
  runOpen("/", "-renameNode a b -renameNode b a");
  EXPECT_THAT(nodes(), ElementsAre("b1", "a", "c"));
  undo();
  EXPECT_THAT(nodes(), ElementsAre("a1", "b", "c"));
  EXPECT_EQ(identity("/a1"), wasA);
  EXPECT_EQ(command().renames[0].from, "a1");
  redo();
  EXPECT_THAT(nodes(), ElementsAre("b1", "a", "c"));
}

TEST_F(CompoundNodeUndo, ARenameThatFailedIsNotUndoneAlsoWhenALaterRedoFoundItsNode) {
  runOpen("/", "-renameNode late x -renameNode a y");
  EXPECT_THAT(host.takeMessages(), ElementsAre("! Node named late was not found in /"));
  EXPECT_EQ(undoIt(), StatusSuccess);
  addNodes("/", {"late"});
  EXPECT_EQ(redoIt(), StatusSuccess);
  EXPECT_THAT(nodes(), ElementsAre("y", "b", "c", "x"));
  EXPECT_TRUE(command().renames[0].failed) << "it is never set back";
  EXPECT_EQ(command().renames[0].actual, "x");
  EXPECT_EQ(undoIt(), StatusSuccess);
  EXPECT_THAT(nodes(), ElementsAre("a", "b", "c", "x"));
}

TEST_F(CompoundNodeUndo, ARenameThatFailsOnARedoIsNotUndoneFromThenOn) {
  runOpen("/", "-renameNode a x");
  EXPECT_EQ(undoIt(), StatusSuccess);
  run("/", "-renameNode a hidden");
  EXPECT_EQ(redoIt(), StatusSuccess);
  EXPECT_THAT(host.takeMessages(), ElementsAre("! Node named a was not found in /"));
  run("/", "-renameNode hidden x");
  EXPECT_EQ(undoIt(), StatusSuccess);
  EXPECT_THAT(nodes(), ElementsAre("x", "b", "c"));
}

// Undo asks for new nodes to go before removed ones come back, and for a new compound to go before
// an exploded one comes back. What builds on the other waits for it.

TEST_F(CompoundNodeUndo, ANewNodeThatIsWiredToARemovedOneGoes) {
  sweep("/", "-addNode core::math::negate -connectTo c.result -removeNode c");
}

TEST_F(CompoundNodeUndo, ANewCompoundThatIsWiredToAnExplodedOneGoes) {
  run("/", "-create old -moveNodeIn c");
  sweep("/", "-create group -moveNodeIn b -explode old");
}

TEST_F(CompoundNodeUndo, NodesComeBackInTheirPlaces) {
  run("/", "-create old -moveNodeIn b");
  sweep("/", "-create group -moveNodeIn a -explode old -addNode core::math::add -removeNode c");
}

}  // namespace
