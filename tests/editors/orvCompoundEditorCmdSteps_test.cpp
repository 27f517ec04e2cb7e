// The steps of a line, their order, and where a line ends that cannot go on.

#include "tests/editors/EditorTesting.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

class CompoundEditorSteps : public EditorTest {
 protected:
  CompoundEditorSteps() {
    host.run("orvCompound \"g\" \"/\" -addNode \"core::math::add\"");
    host.run("orvCompound \"g\" \"/\" -create \"box\"");
    host.run("orvCompound \"g\" \"/box\" -addNode \"core::math::negate\"");
    host.graph("h");
    host.run("orvCompound \"h\" \"/\" -addNode \"core::math::multiply\"");
    host.run("orvCompoundEditor -name \"a\" -edit \"g\"");
    host.run("orvCompoundEditor -name \"a\" -selectNodes \"add\"");
    panelLines();
  }

  void steer(const std::string& flags) { host.run("orvCompoundEditor -name \"a\" " + flags); }
  std::string ask(const std::string& flags) {
    return host.run("orvCompoundEditor -q -name \"a\" " + flags);
  }

  /// Graph, level and selection.
  std::string shown() { return ask("-dgContainer -currentCompound -nodeSelection"); }
};

TEST_F(CompoundEditorSteps, AnArgumentThatCannotBeReadEndsTheLineInSilence) {
  for (const std::string flags :
       {"-name", "-title", "-runtimeHint", "-name \"a\" -edit", "-name \"a\" -currentCompound",
        "-name \"a\" -selectNodes", "-name \"a\" -nodeSelection", "-name \"a\" -sendKey",
        "-name \"a\" -sendKey 65", "-name \"a\" -sendKey x 0", "-name \"a\" -sendKey 65 x",
        "-name \"a\" -sendKey 65.5 0", "-name \"a\" -sendKey 99999999999 0"}) {
    const hosttest::Texts messages = badArgument("orvCompoundEditor " + flags);
    ASSERT_THAT(messages, SizeIs(1)) << flags;
    EXPECT_THAT(messages[0], StartsWith("! orvCompoundEditor: ")) << "the host's own";
  }
  EXPECT_THAT(badArgument("orvCompoundEditor -q -name"), IsEmpty());
  EXPECT_THAT(panelLines(), IsEmpty());
  EXPECT_EQ(shown(), R"(["g","/","add"])");
  EXPECT_THAT(editorRegistry, SizeIs(1)) << "no other name was looked up";
}

TEST_F(CompoundEditorSteps, AnUnreadableNameGoesAheadOfWhatElseIsWrong) {
  EXPECT_THAT(badArgument("orvCompoundEditor -listEditors -edit \"nothing\" -name"), SizeIs(1));
  EXPECT_THAT(badArgument("orvCompoundEditor -listEditors -edit \"nothing\" -title"), SizeIs(1));
}

TEST_F(CompoundEditorSteps, AQuestionGoesAheadOfAGraphThatIsNotThere) {
  EXPECT_THAT(badArgument("orvCompoundEditor -listEditors -edit \"nothing\""),
              ElementsAre("! Command flag requires Query mode (-q)"));
}

TEST_F(CompoundEditorSteps, WhatIsSelectedIsLookedForInTheOldGraph) {
  steer("-nodeSelection \"box\" -edit \"h\"");
  EXPECT_EQ(shown(), R"(["h","/"])");
  EXPECT_THAT(panelLines(), IsEmpty()) << "selecting leaves the panel alone";
}

TEST_F(CompoundEditorSteps, ASelectionThatFailsLeavesTheGraph) {
  EXPECT_THAT(refusalOf("orvCompoundEditor -name \"a\" -edit \"h\" -nodeSelection \"multiply\""),
              ElementsAre("! multiply is not a node name"));
  EXPECT_EQ(shown(), R"(["g","/","add"])");
}

TEST_F(CompoundEditorSteps, DivesAheadOfTheSelection) {
  steer("-selectNodes \"negate\" -currentCompound \"box\"");
  EXPECT_EQ(shown(), R"(["g","/box","negate"])");
}

TEST_F(CompoundEditorSteps, StaysWhereItDivedWhenTheSelectionFails) {
  EXPECT_THAT(
      refusalOf("orvCompoundEditor -name \"a\" -currentCompound \"box\" -selectNodes \"nothing\""),
      ElementsAre("! nothing is not a node name"));
  EXPECT_EQ(shown(), R"(["g","/box"])");
}

TEST_F(CompoundEditorSteps, SendsNoKeyWhereItCannotDive) {
  EXPECT_THAT(badArgument("orvCompoundEditor -name \"a\" -currentCompound \"add\" -sendKey " +
                          std::to_string(Qt::Key_Escape) + " 0"),
              ElementsAre("! add is not a compound name"));
  EXPECT_EQ(shown(), R"(["g","/","add"])");
}

TEST_F(CompoundEditorSteps, SendsTheKeyAheadOfTheSelection) {
  steer("-selectNodes \"box\" -sendKey " + std::to_string(Qt::Key_Escape) + " 0");
  EXPECT_EQ(shown(), R"(["g","/","box"])");
}

TEST_F(CompoundEditorSteps, FillsThePanelOfTheHostAndShowsAGraph) {
  closeByUser("a");
  QWidget restored;
  workspace.setCurrentParent(&restored);
  steer("-edit \"h\" -reload");
  EXPECT_THAT(panelLines(), IsEmpty());
  EXPECT_EQ(editorRegistry["a"].panel, &restored);
  EXPECT_EQ(shown(), R"(["h","/"])");
}

TEST_F(CompoundEditorSteps, ReloadingLeavesSteeringAlone) {
  steer("-reload -selectNodes \"box\"");
  EXPECT_THAT(panelLines(), IsEmpty());
  EXPECT_EQ(shown(), R"(["g","/","box"])");
}

}  // namespace
