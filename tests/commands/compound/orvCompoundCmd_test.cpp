#include "tests/commands/compound/CompoundEditTesting.h"
#include "tests/support/TemporaryFiles.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

/// A graph with the nodes "a" and "b", and the compound "group" with an input "size".
class CompoundCommand : public CompoundEditTest {
 protected:
  CompoundCommand() {
    addNodes("/", {"a", "b"});
    run("/", "-create group");
    run("/group", "-createInputPort size float");
    host.session().undoQueue().clear();
  }

  bool isUndoable(const std::string& flags) {
    const std::size_t before = host.steps().size();
    run("/group", flags);
    return host.steps().size() > before;
  }
};

TEST_F(CompoundCommand, EachEditIsUndoable) {
  for (const char* flags :
       {"-create x", "-explode x", "-addNode core::math::add", "-addIONode true", "-removeNode add",
        "-renameNode input in", "-createInputPort p float", "-setPortDefaultValues size 2",
        "-addStatePorts s t float", "-setIsReferenced false", "-addBackdrop frame",
        "-setMetaData k v", "-clearMetaData k"}) {
    EXPECT_TRUE(isUndoable(flags)) << flags;
  }
}

TEST_F(CompoundCommand, AResetIsUndoableAlthoughAnUndoLeavesIt) {
  EXPECT_TRUE(isUndoable("-resetToFactory nobody"));
  EXPECT_THAT(host.takeMessages(), SizeIs(1));
}

TEST_F(CompoundCommand, AnEditThatDidNothingIsUndoable) {
  EXPECT_TRUE(isUndoable("-addNode no::such"));
  EXPECT_TRUE(isUndoable("-removeNode nobody"));
  EXPECT_TRUE(isUndoable("-removeAnnotation nobody"));
}

TEST_F(CompoundCommand, AQueryAloneIsNotUndoable) {
  const hosttest::TemporaryFiles files;
  for (const std::string flags : {"-listNodes", "-listPorts", "-queryIsEditable", "-queryMetaDatas",
                                  "-queryPortDataType size", "-canResetToFactory a"}) {
    EXPECT_FALSE(isUndoable(flags)) << flags;
    host.takeMessages();
  }
  EXPECT_FALSE(isUndoable("-saveAs \"" + files.path("group.yaml") + "\""));
  EXPECT_FALSE(isUndoable("")) << "nothing at all";
}

TEST_F(CompoundCommand, PublishingAloneIsNotUndoable) {
  EXPECT_FALSE(isUndoable("-publish x \"\" \"\" false"));
  EXPECT_FALSE(isUndoable("-publishGraph x \"\" \"\" \"\""));
  EXPECT_THAT(host.takeMessages(), SizeIs(2)) << "there is no folder to publish to";
}

TEST_F(CompoundCommand, AQueryBesideAnEditIsUndoableAndRunsAgainOnARedo) {
  EXPECT_EQ(runOpen("/", "-removeNode a -listNodes"), R"(["b","group"])");
  EXPECT_THAT(host.steps(), SizeIs(1));
  EXPECT_EQ(host.run("undoHeld"), "") << "an undo does not repeat it";
  EXPECT_EQ(host.run("redoHeld"), R"(["b","group"])");
}

TEST_F(CompoundCommand, SavingRunsAgainOnEachRedoAndAnUndoLeavesTheFile) {
  const hosttest::TemporaryFiles files;
  const std::string file = files.path("group.yaml");
  run("/group", "-addNode core::math::add -saveAs \"" + file + "\"");
  EXPECT_THAT(files.read("group.yaml"), HasSubstr("core::math::add"));
  undo();
  EXPECT_TRUE(std::filesystem::remove(file));
  redo();
  EXPECT_THAT(files.read("group.yaml"), HasSubstr("core::math::add"));
}

TEST_F(CompoundCommand, PublishingRunsAgainOnEachRedo) {
  run("/group", "-addNode core::math::add -publish x \"\" \"\" false");
  EXPECT_THAT(host.takeMessages(), SizeIs(1));
  undo();
  EXPECT_THAT(host.takeMessages(), IsEmpty());
  redo();
  EXPECT_THAT(host.takeMessages(), SizeIs(1));
}

TEST_F(CompoundCommand, WithoutArgumentsNothingIsReadAndThereIsNoContainer) {
  EXPECT_EQ(host.status("orvCompound"), StatusFailure);
  EXPECT_THAT(host.takeMessages(), ElementsAre("!  is not a DG ORV container"));
}

TEST_F(CompoundCommand, AnEditGivesItsResultAgainOnARedo) {
  EXPECT_EQ(runOpen("/", "-create x -addNode core::math::add"), R"(["/x","add"])");
  EXPECT_EQ(host.run("undoHeld"), "");
  EXPECT_EQ(host.run("redoHeld"), R"(["/x","add"])");
}

TEST_F(CompoundCommand, ALineWithoutAnEditOpensNoBracket) {
  const ChangeRounds rounds(graph);
  EXPECT_THAT(bracketAtMessages("/", "-canResetToFactory nobody"), ElementsAre(false));
  EXPECT_EQ(rounds.count, 0);
}

TEST_F(CompoundCommand, AllEditsOfALineAreOneRoundOfChanges) {
  const ChangeRounds rounds(graph);
  run("/group",
      "-addNode core::math::add -renameNode add sum -createInputPort p float "
      "-setPortDefaultValues size 3 -setMetaData k v -addBackdrop frame");
  EXPECT_EQ(rounds.count, 1);
  undo();
  EXPECT_EQ(rounds.count, 2);
  redo();
  EXPECT_EQ(rounds.count, 3);
}

TEST_F(CompoundCommand, ChangesAreToldOfBetweenTheEditsAndTheQueries) {
  const ChangeRounds rounds(graph);
  EXPECT_EQ(run("/group", "-create x -addNode core::math::add -listPorts"),
            R"(["/group/x","add","size"])");
  EXPECT_THAT(rounds.results, ElementsAre(R"(["/group/x","add"])"));
}

TEST_F(CompoundCommand, TheBracketIsTheCompoundsAndHoldsWhileItsStagesRun) {
  EXPECT_THAT(bracketAtMessages("/group", "-renameNode nobody x -resetToFactory nobody"),
              ElementsAre(true, true));
  EXPECT_FALSE(hasOpenBracket());
}

TEST_F(CompoundCommand, QueriesRunOnceTheBracketIsClosed) {
  EXPECT_THAT(bracketAtMessages("/group", "-renameNode nobody x -canResetToFactory nobody"),
              ElementsAre(true, false));
}

TEST_F(CompoundCommand, WhatALineNeedsIsLookedForBeforeTheBracketOpens) {
  EXPECT_THAT(bracketAtMessages("/group", "-create x -moveNodeIn nobody"), ElementsAre(false));
  EXPECT_THAT(bracketAtMessages("/group", "-explode nobody"), ElementsAre(false));
}

TEST_F(CompoundCommand, StatePortsAreMadeOutsideTheBracket) {
  EXPECT_THAT(bracketAtMessages("/group", "-renameNode nobody x -addStatePorts s t nonsense"),
              ElementsAre(true, false));
  const ChangeRounds rounds(graph);
  run("/group", "-addNode core::math::add -addStatePorts s t float");
  EXPECT_EQ(rounds.count, 2);
}

TEST_F(CompoundCommand, AFailingStageClosesTheBracketToo) {
  for (const char* fault : {"MetadataCommand redo", "CreateCompoundCommand doit",
                            "NodeCommand redo", "ModifyCompoundPortCommand redo"}) {
    const orvlib::ArmedFault armed(fault);
    refusal("/group", "-setMetaData k v -create x -addNode core::math::add");
    EXPECT_TRUE(armed.refused()) << fault;
    EXPECT_FALSE(hasOpenBracket()) << fault;
  }
}

TEST_F(CompoundCommand, ACompoundThatIsNotEditableClosesTheBracketToo) {
  run("/group", "-setMetaData locked true");
  EXPECT_THAT(bracketAtMessages("/group", "-addNode core::math::add"), ElementsAre(true));
  EXPECT_FALSE(hasOpenBracket());
}

// What comes ahead of the test for an editable compound passes, and stays.

TEST_F(CompoundCommand, MetadataAloneAreChangedInACompoundThatIsNotEditable) {
  run("/group", "-setMetaData locked true");
  sweep("/group", "-setMetaData color red");
}

TEST_F(CompoundCommand, ValuesAloneAreChangedInACompoundThatIsNotEditable) {
  run("/group", "-setMetaData locked true");
  sweep("/group", "-setPortDefaultValues size 2 -setMetaData color red");
}

TEST_F(CompoundCommand, AnyOtherEditIsRefusedInACompoundThatIsNotEditable) {
  run("/group", "-addNode core::math::add -create inner");
  run("/group", "-setMetaData locked true");
  const std::string before = stored();
  for (const char* flags : {"-create x -moveNodeIn add", "-explode inner",
                            "-addNode core::math::add", "-removeNode add", "-renameNode add x",
                            "-createInputPort p float", "-addStatePorts s t float",
                            "-resetToFactory inner", "-addIONode true", "-deletePort size"}) {
    EXPECT_THAT(refusal("/group", flags), ElementsAre(kNotEditable)) << flags;
    EXPECT_EQ(stored(), before) << flags;
  }
}

TEST_F(CompoundCommand, ARefusedLineKeepsItsMetadataValuesAndAnnotations) {
  run("/group", "-setMetaData locked true");
  host.session().undoQueue().clear();
  EXPECT_THAT(refusal("/group",
                      "-setMetaData color red -setPortDefaultValues size 2 -addBackdrop "
                      "frame -addNode core::math::add -queryIsEditable"),
              ElementsAre(kNotEditable));
  EXPECT_THAT(stored(), HasSubstr("color red"));
  EXPECT_THAT(stored(), HasSubstr("value size 2"));
  EXPECT_THAT(annotations("/group"), ElementsAre("frame"));
  EXPECT_THAT(nodes("/group"), IsEmpty());
  EXPECT_THAT(host.steps(), IsEmpty()) << "nothing is kept to undo it by";
}

TEST_F(CompoundCommand, AnnotationsAreNotExemptFromTheTestAndAreMadeAllTheSame) {
  run("/group", "-setMetaData locked true");
  EXPECT_THAT(refusal("/group", "-addBackdrop frame"), ElementsAre(kNotEditable));
  EXPECT_THAT(annotations("/group"), ElementsAre("frame"));
}

TEST_F(CompoundCommand, TheLineThatLocksACompoundIsItselfRefused) {
  EXPECT_THAT(refusal("/group", "-setMetaData locked true -addNode core::math::add"),
              ElementsAre(kNotEditable));
  EXPECT_FALSE(compound("/group")->isEditable());
}

TEST_F(CompoundCommand, TheLineThatUnlocksACompoundMayEditIt) {
  run("/group", "-setMetaData locked true");
  EXPECT_EQ(run("/group", "-clearMetaData locked -addNode core::math::add"), R"(["add"])");
}

TEST_F(CompoundCommand, AnUndoDoesNotAskWhetherTheCompoundIsEditable) {
  runOpen("/group", "-addNode core::math::add");
  run("/group", "-setMetaData locked true");
  EXPECT_EQ(undoIt(), StatusSuccess);
  EXPECT_THAT(nodes("/group"), IsEmpty());
  EXPECT_EQ(redoIt(), StatusFailure) << "and a redo does";
  EXPECT_THAT(host.takeMessages(), ElementsAre(kNotEditable));
}

// The order of the stages.

TEST_F(CompoundCommand, NodesAreAddedBeforePortsAreMade) {
  EXPECT_THAT(refusal("/group",
                      "-createInputPort p float -addNode core::math::negate "
                      "-connectTo p"),
              IsEmpty());
  EXPECT_EQ(run("/group", "-addNode core::math::negate -connectTo size -deletePort size"),
            R"(["negate"])");
  EXPECT_THAT(stored(), testing::Not(HasSubstr("wire")));
}

TEST_F(CompoundCommand, ExplodedNodesCannotMoveIntoTheNewCompoundOfTheLine) {
  addNodes("/group", {"inside"});
  run("/", "-create x -moveNodeIn inside -explode group");
  EXPECT_THAT(host.takeMessages(),
              ElementsAre("? Node named inside was not found and will not be moved into x"));
  EXPECT_THAT(nodes(), ElementsAre("a", "b", "x", "inside"));
}

TEST_F(CompoundCommand, ARefusedPortEditKeepsTheStagesBeforeItAndLeavesOutThoseBehind) {
  const orvlib::ArmedFault armed("ModifyCompoundPortCommand redo");
  EXPECT_THAT(refusal("/",
                      "-create x -addNode core::math::add -removeNode a -createInputPort p "
                      "float -renameNode b c -resetToFactory b -canResetToFactory b"),
              IsEmpty());
  EXPECT_TRUE(armed.refused());
  EXPECT_THAT(nodes(), ElementsAre("b", "group", "x", "add"));
}

TEST_F(CompoundCommand, PortEditsAreAskedForWithNoneOnTheLine) {
  const orvlib::ArmedFault armed("ModifyCompoundPortCommand redo");
  EXPECT_THAT(refusal("/", "-setMetaData k v"), IsEmpty());
  EXPECT_TRUE(armed.refused());
  EXPECT_THAT(stored(), HasSubstr("k v"));
}

TEST_F(CompoundCommand, ARefusedMetadataEditFailsTheLineBeforeAnythingElse) {
  const std::string before = stored();
  const orvlib::ArmedFault armed("MetadataCommand redo");
  EXPECT_THAT(refusal("/group",
                      "-setMetaData k v -setPortDefaultValues size 2 -addBackdrop frame "
                      "-addNode core::math::add -queryIsEditable"),
              IsEmpty());
  EXPECT_TRUE(armed.refused());
  EXPECT_EQ(stored(), before);
}

TEST_F(CompoundCommand, RefusedValuesAreIgnored) {
  const orvlib::ArmedFault armed("ModifyCompoundPortCommand redo");
  EXPECT_EQ(run("/group", "-setPortDefaultValues size 2 -addNode core::math::add"), R"(["add"])");
  EXPECT_TRUE(armed.refused());
  EXPECT_THAT(stored(), testing::Not(HasSubstr("value size 2")));
}

TEST_F(CompoundCommand, RefusedAnnotationsAreIgnored) {
  const orvlib::ArmedFault armed("ModifyCompoundAnnotationCommand redo");
  EXPECT_EQ(run("/group", "-addBackdrop frame -addNode core::math::add"), R"(["add"])");
  EXPECT_TRUE(armed.refused());
  EXPECT_THAT(annotations("/group"), IsEmpty());
}

}  // namespace
