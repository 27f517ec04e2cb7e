#include "tests/commands/graph/NodeEditTesting.h"

namespace {

using hosttest::Texts;
using orvlib::ArmedFault;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class NodeCommand : public NodeEditTest {
 protected:
  bool isUndoable(const std::string& flags) {
    const std::size_t before = host.steps().size();
    run("/a", flags);
    return host.steps().size() > before;
  }
};

TEST_F(NodeCommand, EachEditIsUndoable) {
  for (const char* flags : {"-spv own 2", "-rpv own", "-spt own int", "-cip p float",
                            "-cop q float", "-dp p", "-spm own k v", "-ssf e false", "-smd k v",
                            "-amd k w", "-rmd k w", "-cmd k", "-mfs \"{}\""}) {
    EXPECT_TRUE(isUndoable(flags)) << flags;
  }
}

TEST_F(NodeCommand, AnEditThatDoesNothingIsUndoable) {
  EXPECT_TRUE(isUndoable("-ssf x false")) << "the node has no such flag";
  EXPECT_TRUE(isUndoable("-ssf e true")) << "it is on";
  EXPECT_TRUE(isUndoable("-spm nobody k v"));
  EXPECT_TRUE(isUndoable("-cmd nosuch"));
}

TEST_F(NodeCommand, AQueryAloneIsNotUndoable) {
  for (const char* flags : {"-lcn", "-lcn -ct a", "-lp", "-lp -c true", "-qpv own", "-qpt own",
                            "-qpm own k", "-lpc own", "-qtn", "-qmd k", "-qms", "-mas", ""}) {
    EXPECT_FALSE(isUndoable(flags)) << flags;
  }
}

TEST_F(NodeCommand, AllEditsOfALineAreOneStep) {
  run("/a", "-spv own 2 -cip p float -cop q int -dp out -spm a k v -smd k v -ssf f true");
  EXPECT_THAT(host.steps(), SizeIs(1));
}

TEST_F(NodeCommand, WithoutArgumentsNothingIsReadAndThereIsNoContainer) {
  EXPECT_EQ(host.status("orvNode"), StatusFailure);
  EXPECT_THAT(host.takeMessages(), ElementsAre("!  is not a DG ORV container"));
}

/// Leaves a result, then has the command do its line.
class AfterAResultCmd : public OpenNodeCmd {
 public:
  static KPxCommand* creator() { return new AfterAResultCmd; }
  KStatus doIt(const KArgList& args) override {
    appendToResult("before");
    return orvNodeCmd::doIt(args);
  }
};

TEST_F(NodeCommand, ALineStartsWithoutAResult) {
  addCommand("afterAResult", AfterAResultCmd::creator);
  EXPECT_EQ(host.run("afterAResult g \"/box/in\" -lp"), R"(["in.a","in.b","in.result"])");
  EXPECT_EQ(host.run("afterAResult g \"/box/in\" -lcn"), "");
  EXPECT_EQ(host.run("afterAResult g \"/box/in\""), "");
}

TEST_F(NodeCommand, ARedoAsksAgainAndAddsToTheResultThatThereIs) {
  EXPECT_EQ(runOpen("/box/in", "-spv a 2 -lp"), R"(["in.a","in.b","in.result"])");
  EXPECT_EQ(host.run("undoHeld"), "") << "an undo asks nothing";
  HeldNodeRedo::resultBefore = "before";
  EXPECT_EQ(host.run("redoHeld"), R"(["before","in.a","in.b","in.result"])");
  HeldNodeRedo::resultBefore.clear();
}

TEST_F(NodeCommand, AnUndoLeavesTheResultAlone) {
  runOpen("/a", "-spv own 2 -lp -qtn -qms");
  HeldNodeUndo::resultBefore = "before";
  EXPECT_EQ(host.run("undoHeld"), R"(["before"])");
  HeldNodeUndo::resultBefore.clear();
}

TEST_F(NodeCommand, ARedoAnswersWhatIsThereByThen) {
  runOpen("/a", "-spv own 2 -lp");
  host.run("undoHeld");
  run("/a", "-cip late float");
  EXPECT_EQ(host.run("redoHeld"), R"(["a.a","a.b","a.own","a.late","a.result","a.out"])");
}

TEST_F(NodeCommand, ALineWithoutAnEditOpensNoBracketAndAsksForNoEdit) {
  const ChangeRounds rounds(graph);
  EXPECT_THAT(askedBy([&] { run("/a", "-lcn -lp -qpv own -qpt own -qtn -qms"); }), IsEmpty());
  EXPECT_EQ(rounds.count, 0);
}

TEST_F(NodeCommand, AllEditsOfALineAreOneRoundOfChanges) {
  const ChangeRounds rounds(graph);
  run("/a", "-spv own 3 -cip p float -smd k v -ssf e false -ssf f true");
  EXPECT_EQ(rounds.count, 1);
  undo();
  EXPECT_EQ(rounds.count, 2);
  redo();
  EXPECT_EQ(rounds.count, 3);
}

TEST_F(NodeCommand, TheTopNodesEditsAreOneRoundOfChangesToo) {
  const ChangeRounds rounds(graph);
  run("/", "-cip p float -smd k v");
  EXPECT_EQ(rounds.count, 1);
  undo();
  EXPECT_EQ(rounds.count, 2);
  EXPECT_FALSE(hasOpenBracket());
}

TEST_F(NodeCommand, ChangesAreToldOfAheadOfTheQueries) {
  const ChangeRounds rounds(graph);
  EXPECT_EQ(run("/box/in", "-spv a 3 -lp"), R"(["in.a","in.b","in.result"])");
  EXPECT_THAT(rounds.results, ElementsAre(""));
}

TEST_F(NodeCommand, LeavesNoBracketOpen) {
  run("/box/in", "-spv a 3 -smd k v -ssf e false");
  EXPECT_FALSE(hasOpenBracket());
  undo();
  EXPECT_FALSE(hasOpenBracket());
  refusal("/box/in", "-spv a 3 -qpt nobody");
  EXPECT_FALSE(hasOpenBracket());
}

TEST_F(NodeCommand, AFailingQueryLeavesTheEditsAndNoStep) {
  EXPECT_THAT(refusal("/a", "-cip p float -smd k v -ssf f true -qpt nobody"),
              ElementsAre("! A port named nobody was not found on a"));
  EXPECT_THAT(ports("/a"), ElementsAre("a", "b", "own", "p", "result", "out"));
  EXPECT_EQ(run("/a", "-qmd k"), R"(["v"])");
  EXPECT_TRUE(isOn("/a", 'f'));
  EXPECT_THAT(host.steps(), IsEmpty());
}

TEST_F(NodeCommand, PortsAndMetadataAreEditedInALockedCompound) {
  build("/box", "-setMetaData locked true");
  sweep("/box/in", "-spv a 3");
  sweep("/box/in", "-cip p float");
  sweep("/box/in", "-smd k v");
}

// What the library refuses while it works.

TEST_F(NodeCommand, MetadataThatCannotBeSetEndTheLineWithoutAMessage) {
  for (const char* fault : {"MetadataCommand redo", "edit setMetadata"}) {
    const ArmedFault armed(fault);
    EXPECT_THAT(refusalOfAll("/a", "-smd k v -cip p float -ssf f true -qpt nobody"), IsEmpty());
    EXPECT_TRUE(armed.refused()) << fault;
    EXPECT_FALSE(hasOpenBracket()) << fault;
  }
}

TEST_F(NodeCommand, MetadataThatFoundNoNodeEndTheLineWithoutAMessage) {
  const ArmedFault armed("MetadataCommand setParentNode");
  EXPECT_THAT(refusalOfAll("/a", "-smd k v -cip p float"), IsEmpty());
  EXPECT_TRUE(armed.refused());
}

TEST_F(NodeCommand, PortsThatCannotBeEditedEndTheLineAndLeaveTheMetadata) {
  for (const char* fault : {"ModifyNodePortCommand redo", "edit setPortValue", "edit insertPort"}) {
    const ArmedFault armed(fault);
    EXPECT_THAT(refusal("/a", "-smd k v -spv own 3 -cip p float -ssf f true -qpt nobody"),
                IsEmpty());
    EXPECT_TRUE(armed.refused()) << fault;
    EXPECT_FALSE(hasOpenBracket()) << fault;
    EXPECT_EQ(run("/a", "-qmd k"), R"(["v"])") << "nothing is taken back";
    EXPECT_THAT(ports("/a"), ElementsAre("a", "b", "own", "result", "out"));
    EXPECT_THAT(values("/a.own"), ElementsAre("0"));
    EXPECT_FALSE(isOn("/a", 'f'));
    EXPECT_THAT(host.steps(), IsEmpty());
    run("/a", "-cmd k");
    host.session().undoQueue().clear();
  }
}

TEST_F(NodeCommand, EveryEditThatTheLibraryRefusesEndsTheLine) {
  const struct {
    const char* flags;
    const char* fault;
  } kEdits[] = {
      {"-spv own 3", "edit setPortValue"},
      {"-rpv own", "edit setPortValue"},
      {"-spt own int", "edit setPortType"},
      {"-cip p float", "edit insertPort"},
      {"-cop p float", "edit insertPort"},
      {"-cip p float -cpf 1", "edit setPortFlags"},
      {"-cip p float -cpo \"{a=b}\"", "edit setMetadata"},
      {"-dp own", "edit removePort"},
      {"-spm own k v", "edit setMetadata"},
  };
  run("/a", "-spv own 1");
  for (const auto& [flags, fault] : kEdits) {
    const ArmedFault armed(fault);
    EXPECT_THAT(refusalOfAll("/a", flags), IsEmpty()) << flags;
    EXPECT_TRUE(armed.refused()) << flags;
  }
}

TEST_F(NodeCommand, WhateverTheLibraryRefusesALineLeavesNoBracketAndAGraphThatCanBeEdited) {
  const std::string flags =
      "-smd k v -spv own 3 -spt own int -cip p float -cop q int -dp out -spm a k v -ssf f true";
  for (unsigned nth = 1; nth < 100; ++nth) {
    bool reached = false;
    {
      const ArmedFault armed(nth);
      host.status(line("/a", flags));
      reached = armed.refused();
    }
    host.takeMessages();
    EXPECT_FALSE(hasOpenBracket()) << nth;
    while (!host.steps().empty()) undo();
    if (!reached) {
      EXPECT_GT(nth, 15u);
      return;
    }
    run("/a", "-cmd k");
    host.session().undoQueue().clear();
  }
  FAIL() << "the faults never end";
}

}  // namespace
