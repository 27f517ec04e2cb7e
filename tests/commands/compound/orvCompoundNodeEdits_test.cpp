#include "tests/commands/compound/CompoundEditTesting.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A graph with the nodes "a" and "b".
class CompoundNodeEdits : public CompoundEditTest {
 protected:
  CompoundNodeEdits() { addNodes("/", {"a", "b"}); }
};

TEST_F(CompoundNodeEdits, CreatingGivesThePathOfTheNewCompound) {
  EXPECT_EQ(run("/", "-create group"), R"("/group")");
  EXPECT_EQ(run("/group", "-create inner"), R"("/group/inner")");
  EXPECT_THAT(nodes("/group"), ElementsAre("inner"));
}

TEST_F(CompoundNodeEdits, ATakenNameOfANewCompoundGetsANumber) {
  EXPECT_EQ(run("/", "-create a"), R"("/a1")");
}

TEST_F(CompoundNodeEdits, NodesAndAnnotationsMoveIntoTheNewCompound) {
  run("/", "-addBackdrop frame -addStickyNote \"\"");
  EXPECT_EQ(run("/", "-create group -moveNodeIn b -moveNodeIn a -moveAnnotationIn note"),
            R"("/group")");
  EXPECT_THAT(nodes(), ElementsAre("group"));
  EXPECT_THAT(nodes("/group"), ElementsAre("b", "a"));
  EXPECT_THAT(annotations(), ElementsAre("frame"));
  EXPECT_THAT(annotations("/group"), ElementsAre("note"));
}

TEST_F(CompoundNodeEdits, ANodeThatIsNotThereIsAWarningAndTheOthersMove) {
  EXPECT_EQ(run("/", "-create group -moveNodeIn nobody -moveNodeIn b"), R"("/group")");
  EXPECT_THAT(host.takeMessages(),
              ElementsAre("? Node named nobody was not found and will not be moved into group"));
  EXPECT_THAT(nodes("/group"), ElementsAre("b"));
}

TEST_F(CompoundNodeEdits, AnAnnotationThatIsNotThereIsAWarningAndTheOthersMove) {
  run("/", "-addBackdrop frame");
  run("/", "-create group -moveAnnotationIn nothing -moveAnnotationIn frame");
  EXPECT_THAT(host.takeMessages(), ElementsAre("? Backdrop/Sticky named nothing was not found and "
                                               "will not be moved into group"));
  EXPECT_THAT(annotations("/group"), ElementsAre("frame"));
}

TEST_F(CompoundNodeEdits, TheWarningsNameTheCompoundAsItWasAskedForAndNodesComeFirst) {
  EXPECT_EQ(run("/", "-moveAnnotationIn y -moveNodeIn x -create a"), R"("/a1")");
  EXPECT_THAT(host.takeMessages(),
              ElementsAre("? Node named x was not found and will not be moved into a",
                          "? Backdrop/Sticky named y was not found and will not be moved into a"));
}

TEST_F(CompoundNodeEdits, ANodeNamedTwiceMovesOnce) {
  run("/", "-create group -moveNodeIn a -moveNodeIn a");
  EXPECT_THAT(nodes("/group"), ElementsAre("a"));
}

TEST_F(CompoundNodeEdits, ANodeNamedTwiceIsRemovedOnce) {
  sweep("/", "-removeNode a -removeNode a");
  run("/", "-removeNode a -removeNode a");
  EXPECT_FALSE(node("/a"));
}

TEST_F(CompoundNodeEdits, ACompoundNamedTwiceIsExplodedOnce) {
  run("/", "-create group -moveNodeIn a");
  sweep("/", "-explode group -explode group");
}

TEST_F(CompoundNodeEdits, WhatToMoveInMeansNothingWithoutANewCompound) {
  run("/", "-addBackdrop frame");
  host.session().undoQueue().clear();
  const std::string before = stored();
  EXPECT_EQ(run("/", "-moveNodeIn a -moveNodeIn nobody -moveAnnotationIn frame"), "");
  EXPECT_EQ(stored(), before);
  EXPECT_THAT(host.steps(), IsEmpty());
}

TEST_F(CompoundNodeEdits, ExplodingGivesTheNamesOfTheNodesThatCameOut) {
  run("/", "-create one -moveNodeIn a");
  run("/", "-create two -moveNodeIn b");
  addNodes("/two", {"a"});
  EXPECT_EQ(run("/", "-explode two -explode one"), R"(["b","a","a1"])");
  EXPECT_THAT(nodes(), ElementsAre("b", "a", "a1"));
}

TEST_F(CompoundNodeEdits, ExplodingAnEmptyCompoundGivesNothing) {
  addCompounds("/", {"group"});
  EXPECT_EQ(run("/", "-explode group"), "");
  EXPECT_THAT(nodes(), ElementsAre("a", "b"));
}

TEST_F(CompoundNodeEdits, ACompoundToExplodeThatIsNotThereFailsTheLineBeforeAnythingIsDone) {
  addCompounds("/", {"group"});
  const std::string before = stored();
  EXPECT_THAT(refusal("/",
                      "-setMetaData k v -addBackdrop frame -explode group -explode nobody "
                      "-explode nobody2 -create more"),
              ElementsAre("! Node named nobody was not found in /"));
  EXPECT_EQ(stored(), before);
}

TEST_F(CompoundNodeEdits, TheMessageHasThePathOfTheCompound) {
  addCompounds("/", {"group"});
  EXPECT_THAT(refusal("/group", "-explode x"),
              ElementsAre("! Node named x was not found in /group"));
}

TEST_F(CompoundNodeEdits, ANodeThatIsNoCompoundIsNotFoundForExploding) {
  EXPECT_THAT(refusal("/", "-explode a"), ElementsAre("! Node named a was not found in /"));
}

// On purpose: a compound without a node is of use, an explosion of nothing is not.
TEST_F(CompoundNodeEdits, WarningsForWhatToMoveComeAheadOfTheFailureToExplode) {
  EXPECT_THAT(refusal("/", "-explode nobody -create group -moveNodeIn x"),
              ElementsAre("? Node named x was not found and will not be moved into group",
                          "! Node named nobody was not found in /"));
  EXPECT_THAT(nodes(), ElementsAre("a", "b"));
}

TEST_F(CompoundNodeEdits, ExplodingWhatTheLineItselfCreatesIsTooEarly) {
  EXPECT_THAT(refusal("/", "-create group -explode group"),
              ElementsAre("! Node named group was not found in /"));
}

TEST_F(CompoundNodeEdits, AddingGivesTheNamesOfTheNewNodesInTheOrderOfTheFlags) {
  EXPECT_EQ(run("/",
                "-addIONode true -addNode core::math::add -addIONode false -addNode "
                "core::math::multiply -addNode core::math::add"),
            R"(["add","multiply","add1","input","output"])");
}

TEST_F(CompoundNodeEdits, AnUnknownTypeIsPassedOverSilently) {
  EXPECT_EQ(run("/", "-addNode no::such -addNode core::math::multiply"), R"(["multiply"])");
  EXPECT_EQ(run("/", "-addNode no::such"), "[]");
  EXPECT_THAT(host.steps(), testing::SizeIs(4)) << "it counts as an edit all the same";
}

TEST_F(CompoundNodeEdits, AllNewNodesOfALineConnectToTheSamePort) {
  EXPECT_EQ(
      run("/", "-addNode core::math::negate -addNode core::math::absolute -connectTo a.result"),
      R"(["negate","absolute"])");
  EXPECT_THAT(stored(), testing::HasSubstr("wire a.result negate."));
  EXPECT_THAT(stored(), testing::HasSubstr("wire a.result absolute."));
}

TEST_F(CompoundNodeEdits, APortToConnectToThatIsNotThereFailsTheLineWithoutAMessage) {
  const std::string before = stored();
  EXPECT_THAT(refusal("/", "-addNode core::math::negate -connectTo nobody.result"), IsEmpty());
  EXPECT_EQ(stored(), before);
}

TEST_F(CompoundNodeEdits, ResultsOfOneLineStandInTheOrderOfTheStages) {
  run("/", "-create old -moveNodeIn b");
  EXPECT_EQ(run("/", "-addNode core::math::add -create group"), R"(["/group","add"])");
  EXPECT_EQ(run("/", "-addNode core::math::add -explode old -create more"),
            R"(["/more","b","add1"])");
}

TEST_F(CompoundNodeEdits, RemovingTakesTheNodeAndItsWires) {
  connect("/a.result", "/b.a");
  EXPECT_EQ(run("/", "-removeNode a"), "");
  EXPECT_THAT(nodes(), ElementsAre("b"));
  EXPECT_THAT(stored(), testing::Not(testing::HasSubstr("wire")));
}

TEST_F(CompoundNodeEdits, ANodeToRemoveThatIsNotThereIsPassedOverSilently) {
  run("/", "-removeNode nobody -removeNode a");
  EXPECT_THAT(nodes(), ElementsAre("b"));
}

TEST_F(CompoundNodeEdits, ANodeOfTheLineItselfIsNotThereYetToBeRemoved) {
  EXPECT_EQ(run("/", "-addNode core::math::absolute -removeNode absolute"), R"(["absolute"])");
  EXPECT_THAT(nodes(), ElementsAre("a", "b", "absolute"));
}

TEST_F(CompoundNodeEdits, ANodeIsRenamed) {
  EXPECT_EQ(run("/", "-renameNode a c"), "");
  EXPECT_THAT(nodes(), ElementsAre("c", "b"));
}

TEST_F(CompoundNodeEdits, TheNameThatTheLibraryGaveIsKept) {
  runOpen("/", "-renameNode a b");
  EXPECT_THAT(nodes(), ElementsAre("b1", "b"));
  ASSERT_EQ(command().renames.size(), 1u);
  EXPECT_EQ(command().renames[0].from, "a");
  EXPECT_EQ(command().renames[0].to, "b");
  EXPECT_EQ(command().renames[0].actual, "b1");
  EXPECT_FALSE(command().renames[0].failed);
}

TEST_F(CompoundNodeEdits, SwappingTwoNamesFindsEachUnderTheNameThatItHasByThen) {
  const auto* wasA = identity("/a");
  runOpen("/", "-renameNode a b -renameNode b a");
  EXPECT_THAT(nodes(), ElementsAre("b1", "a"));
  EXPECT_EQ(identity("/b1"), wasA);
  EXPECT_EQ(command().renames[0].actual, "b1");
  EXPECT_EQ(command().renames[1].actual, "a");
}

TEST_F(CompoundNodeEdits, ANodeToRenameThatIsNotThereIsToldOfAndTheOthersAreRenamed) {
  runOpen("/", "-renameNode nobody x -renameNode b y");
  EXPECT_THAT(host.takeMessages(), ElementsAre("! Node named nobody was not found in /"));
  EXPECT_THAT(nodes(), ElementsAre("a", "y"));
  EXPECT_TRUE(command().renames[0].failed);
  EXPECT_EQ(command().renames[0].actual, "");
  EXPECT_FALSE(command().renames[1].failed);
}

TEST_F(CompoundNodeEdits, ARenameFindsWhatTheLineCreatedAndAddedAndNotWhatItRemoved) {
  EXPECT_EQ(run("/",
                "-create g1 -addNode core::math::absolute -removeNode b -renameNode g1 group "
                "-renameNode absolute root -renameNode b c"),
            R"(["/g1","absolute"])");
  EXPECT_THAT(host.takeMessages(), ElementsAre("! Node named b was not found in /"));
  EXPECT_THAT(nodes(), ElementsAre("a", "group", "root"));
}

TEST_F(CompoundNodeEdits, AnEmptyNewNameLeavesTheNodeItsOwn) {
  runOpen("/", "-renameNode a \"\"");
  EXPECT_THAT(nodes(), ElementsAre("a", "b"));
  EXPECT_EQ(command().renames[0].actual, "a");
}

}  // namespace
