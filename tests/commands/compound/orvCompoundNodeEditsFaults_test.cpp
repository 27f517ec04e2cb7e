// What a stage says, keeps and leaves out when the graph library refuses.

#include "tests/commands/compound/CompoundEditTesting.h"

namespace {

using orvlib::ArmedFault;
using testing::ElementsAre;
using testing::IsEmpty;

/// A graph with the nodes "a" and "b", the backdrop "frame" and the compound "old" with a node
/// "in".
class CompoundNodeEditFaults : public CompoundEditTest {
 protected:
  CompoundNodeEditFaults() {
    addNodes("/", {"a", "b"});
    run("/", "-addBackdrop frame -create old");
    addNodes("/old", {"in"});
    host.session().undoQueue().clear();
  }

  /// The same refusal, with one call of the library refused.
  Texts refusalWith(const char* fault, const std::string& flags) {
    const ArmedFault armed(fault);
    EXPECT_TRUE(armed.isArmed()) << fault;
    Texts told = refusal("/", flags);
    EXPECT_TRUE(armed.refused()) << fault;
    EXPECT_FALSE(hasOpenBracket()) << fault;
    EXPECT_THAT(host.steps(), IsEmpty()) << "a line that failed is not kept";
    return told;
  }

  /// A line that works although its `nth` such call is refused; gives its result.
  std::string runWith(const char* fault, const std::string& flags, unsigned nth = 1) {
    const ArmedFault armed(fault, nth);
    EXPECT_TRUE(armed.isArmed()) << fault;
    std::string result = run("/", flags);
    EXPECT_TRUE(armed.refused()) << fault;
    return result;
  }
};

TEST_F(CompoundNodeEditFaults, ACompoundThatCannotBeMadeIsToldOfAndFailsTheLine) {
  for (const char* fault : {"CreateCompoundCommand doit", "CreateCompoundCommand redo",
                            "edit insertNode", "edit moveNode"}) {
    const std::string before = stored();
    EXPECT_THAT(refusalWith(fault, "-create group -moveNodeIn a -renameNode b c"),
                ElementsAre(kNotCreated));
    EXPECT_EQ(stored(), before) << fault;
  }
}

TEST_F(CompoundNodeEditFaults, WithoutItsParentACompoundFindsNothingToMoveAndIsNotMade) {
  const std::string before = stored();
  EXPECT_THAT(refusalWith("CreateCompoundCommand setParentCompound",
                          "-create group -moveNodeIn a -moveAnnotationIn frame"),
              ElementsAre("? Node named a was not found and will not be moved into group",
                          "? Backdrop/Sticky named frame was not found and will not be moved into "
                          "group",
                          kNotCreated));
  EXPECT_EQ(stored(), before);
}

TEST_F(CompoundNodeEditFaults, ANodeThatCannotMoveIsAWarningAndTheNextOneMoves) {
  EXPECT_EQ(runWith("CreateCompoundCommand addNodeToMove", "-create group -mi a -mi b"),
            R"("/group")");
  EXPECT_THAT(host.takeMessages(),
              ElementsAre("? Node named a was not found and will not be moved into group"));
  EXPECT_THAT(nodes(), ElementsAre("a", "old", "group"));
}

TEST_F(CompoundNodeEditFaults, AnAnnotationThatCannotMoveIsAWarningAndTheCompoundIsMade) {
  EXPECT_EQ(runWith("CreateCompoundCommand addAnnotationToMove", "-create group -mai frame"),
            R"("/group")");
  EXPECT_THAT(host.takeMessages(), ElementsAre("? Backdrop/Sticky named frame was not found and "
                                               "will not be moved into group"));
  EXPECT_THAT(annotations(), ElementsAre("frame"));
}

TEST_F(CompoundNodeEditFaults, ACompoundThatCannotBeExplodedFailsTheLineWithoutAMessage) {
  for (const char* fault :
       {"ExplodeCompoundCommand doit", "ExplodeCompoundCommand redo", "edit removeNode"}) {
    const std::string before = stored();
    EXPECT_THAT(refusalWith(fault, "-explode old -addNode core::math::absolute -renameNode a c"),
                IsEmpty());
    EXPECT_EQ(stored(), before) << fault;
  }
}

TEST_F(CompoundNodeEditFaults, ACompoundThatCannotBeNamedForExplodingEndsTheLineBeforeItsEdits) {
  for (const char* fault : {"ExplodeCompoundCommand addCompoundToExplode",
                            "ExplodeCompoundCommand setParentCompound"}) {
    const std::string before = stored();
    EXPECT_THAT(refusalWith(fault, "-setMetaData k v -addBackdrop more -explode old"),
                ElementsAre("! Node named old was not found in /"));
    EXPECT_EQ(stored(), before) << fault;
  }
}

TEST_F(CompoundNodeEditFaults, ALibraryThatCannotExplodeKeepsTheCompoundThatTheLineCreated) {
  EXPECT_THAT(refusalWith("ExplodeCompoundCommand doit", "-create group -explode old"), IsEmpty());
  EXPECT_THAT(nodes(), ElementsAre("a", "b", "old", "group"));
}

TEST_F(CompoundNodeEditFaults, NodesThatCannotBeAddedFailTheLineWithoutAMessage) {
  for (const char* fault : {"NodeCommand redo", "edit insertNode"}) {
    const std::string before = stored();
    EXPECT_THAT(refusalWith(fault,
                            "-addNode core::math::absolute -addNode core::math::add "
                            "-removeNode a -renameNode b c"),
                IsEmpty());
    EXPECT_EQ(stored(), before) << fault;
  }
}

TEST_F(CompoundNodeEditFaults, NodesThatCannotBeAddedKeepWhatTheStagesBeforeThemDid) {
  EXPECT_THAT(
      refusalWith("NodeCommand redo",
                  "-create group -explode old -addNode core::math::absolute -renameNode b c"),
      IsEmpty());
  EXPECT_THAT(nodes(), ElementsAre("a", "b", "group", "in"));
}

TEST_F(CompoundNodeEditFaults, ANodeThatCannotBeRecordedIsLeftOutAndTheOthersAreAdded) {
  EXPECT_EQ(
      runWith("NodeCommand createNode", "-addNode core::math::absolute -addNode core::math::add"),
      R"(["add"])");
  EXPECT_EQ(runWith("NodeCommand createIONode", "-addIONode true -addIONode false"),
            R"(["output"])");
}

TEST_F(CompoundNodeEditFaults, ARemovalThatCannotBeMadeIsIgnored) {
  // Without new nodes on the line, the removal is the first to be asked.
  for (const char* fault : {"NodeCommand redo", "edit removeNode", "NodeCommand removeNode"}) {
    runWith(fault, "-removeNode a -renameNode b c -renameNode c b");
    EXPECT_THAT(nodes(), ElementsAre("a", "b", "old")) << fault;
  }
}

TEST_F(CompoundNodeEditFaults, ARemovalThatCannotBeMadeKeepsTheNewNodesAndGoesOn) {
  EXPECT_EQ(
      runWith("NodeCommand redo", "-addNode core::math::absolute -removeNode a -renameNode b c", 2),
      R"(["absolute"])");
  EXPECT_THAT(nodes(), ElementsAre("a", "c", "old", "absolute"));
}

TEST_F(CompoundNodeEditFaults, ANodeThatTheLibraryDoesNotRenameKeepsItsNameAndHasNotFailed) {
  const ArmedFault armed("edit renameNode");
  runOpen("/", "-renameNode a x -renameNode b y");
  EXPECT_TRUE(armed.refused());
  EXPECT_THAT(nodes(), ElementsAre("a", "y", "old"));
  EXPECT_EQ(command().renames[0].actual, "a");
  EXPECT_FALSE(command().renames[0].failed);
}

TEST_F(CompoundNodeEditFaults, AnUndoOfACreationThatIsRefusedIsIgnored) {
  run("/", "-create group -moveNodeIn a -addNode core::math::absolute");
  {
    const ArmedFault armed("CreateCompoundCommand undo");
    undo();
    EXPECT_TRUE(armed.refused());
  }
  EXPECT_THAT(nodes(), ElementsAre("b", "old", "group")) << "the rest of the line is undone";
  EXPECT_FALSE(hasOpenBracket());
}

TEST_F(CompoundNodeEditFaults, AnUndoOfAnExplosionThatIsRefusedIsIgnored) {
  run("/", "-explode old -addNode core::math::absolute");
  const ArmedFault armed("ExplodeCompoundCommand undo");
  undo();
  EXPECT_TRUE(armed.refused());
  EXPECT_THAT(nodes(), ElementsAre("a", "b", "in"));
}

TEST_F(CompoundNodeEditFaults, AnUndoOfNewNodesThatIsRefusedIsIgnored) {
  run("/", "-addNode core::math::absolute -removeNode a");
  const ArmedFault armed("NodeCommand undo");
  undo();
  EXPECT_TRUE(armed.refused());
  EXPECT_THAT(nodes(), ElementsAre("a", "b", "old", "absolute"));
}

TEST_F(CompoundNodeEditFaults, AnUndoOfARemovalThatIsRefusedIsIgnored) {
  run("/", "-addNode core::math::absolute -removeNode a -create group");
  const ArmedFault armed("NodeCommand undo", 2);
  undo();
  EXPECT_TRUE(armed.refused());
  EXPECT_THAT(nodes(), ElementsAre("b", "old"));
}

TEST_F(CompoundNodeEditFaults, AnUndoOfARenameThatIsRefusedIsWhereTheNextRedoLooks) {
  runOpen("/", "-renameNode a x");
  {
    const ArmedFault armed("edit renameNode");
    undo();
    EXPECT_TRUE(armed.refused());
  }
  EXPECT_THAT(nodes(), ElementsAre("x", "b", "old"));
  EXPECT_EQ(command().renames[0].from, "x");
  redo();
  EXPECT_THAT(nodes(), ElementsAre("x", "b", "old"));
}

TEST_F(CompoundNodeEditFaults, ARedoThatIsRefusedFailsAsTheFirstTimeAndKeepsWhatItDid) {
  runOpen("/", "-create group -addNode core::math::absolute");
  EXPECT_EQ(undoIt(), StatusSuccess);
  {
    const ArmedFault armed("NodeCommand redo");
    EXPECT_EQ(redoIt(), StatusFailure);
    EXPECT_TRUE(armed.refused());
  }
  EXPECT_THAT(nodes(), ElementsAre("a", "b", "old", "group"));
  EXPECT_FALSE(hasOpenBracket());
  EXPECT_EQ(undoIt(), StatusSuccess);
  EXPECT_THAT(nodes(), ElementsAre("a", "b", "old"));
  {
    const ArmedFault armed("CreateCompoundCommand doit");
    EXPECT_EQ(redoIt(), StatusFailure);
    EXPECT_TRUE(armed.refused()) << "creating goes through doit on a redo too";
  }
  EXPECT_THAT(host.takeMessages(), ElementsAre(kNotCreated));
  EXPECT_THAT(nodes(), ElementsAre("a", "b", "old"));
}

TEST_F(CompoundNodeEditFaults, ARedoOfAnExplosionThatIsRefusedFailsWithoutAMessage) {
  runOpen("/", "-explode old");
  EXPECT_EQ(undoIt(), StatusSuccess);
  const std::string before = stored();
  const ArmedFault armed("ExplodeCompoundCommand doit");
  EXPECT_EQ(redoIt(), StatusFailure);
  EXPECT_TRUE(armed.refused()) << "exploding goes through doit on a redo too";
  EXPECT_EQ(stored(), before);
}

}  // namespace
