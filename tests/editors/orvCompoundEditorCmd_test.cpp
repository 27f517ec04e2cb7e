#include "editors/orvCompoundEditorCmd.h"

#include <QCoreApplication>
#include <QEvent>

#include "tests/editors/EditorTesting.h"

namespace {

using hosttest::Texts;
using testing::ElementsAre;
using testing::IsEmpty;

const std::string kMake =
    "workspaceControl -label \"Compound Editor\" -retain false -deleteLater false -loadImmediately "
    "true -floating true -initialWidth 1024 -initialHeight 600 -requiredPlugin \"the plug-in\" ";
const Texts kNotFound{"! A compound editor by that name was not found"};
const Texts kBlank{"! The compound editor must not be empty for this flag"};

class CompoundEditorCmd : public EditorTest {
 protected:
  CompoundEditorCmd() {
    host.run("orvCompound \"g\" \"/\" -addNode \"core::math::add\"");
    host.run("orvCompound \"g\" \"/\" -addNode \"core::math::negate\"");
    host.run("orvCompound \"g\" \"/\" -create \"box\"");
    host.run("orvCompound \"g\" \"/box\" -addNode \"core::math::add\"");
    host.run("orvCompound \"g\" \"/box\" -create \"inner\"");
  }

  std::string ask(const std::string& flags) { return host.run("orvCompoundEditor -q " + flags); }
};

TEST_F(CompoundEditorCmd, OpensThePanelOfItsOwnName) {
  host.run("orvCompoundEditor");
  EXPECT_THAT(
      panelLines(),
      ElementsAre(kMake + "\"orvCompoundEditorControl\"",
                  "workspaceControl -e -uiScript \"orvCompoundEditor -name "
                  "\\\"orvCompoundEditorControl\\\" -title \\\"Compound Editor\\\" -reload\" "
                  "\"orvCompoundEditorControl\""));
  const EditorEntry& entry = editorRegistry["orvCompoundEditorControl"];
  ASSERT_TRUE(entry.editor);
  EXPECT_EQ(entry.panel, panels["orvCompoundEditorControl"]);
  EXPECT_EQ(entry.editor->parentWidget(), entry.panel);
}

TEST_F(CompoundEditorCmd, BringsAPanelBackThatIsThere) {
  EditorEntry& entry = open("a");
  const auto* editor = entry.editor.data();
  host.run("orvCompoundEditor -name \"a\"");
  EXPECT_THAT(panelLines(), ElementsAre("workspaceControl -e -restore a"));
  EXPECT_EQ(entry.editor, editor);
}

TEST_F(CompoundEditorCmd, AnswersToItsSecondNameAlike) {
  host.run("orvCompoundEditorWindow -name \"a\" -title \"Other\"");
  const Texts lines = panelLines();
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_THAT(lines[0], testing::StartsWith("workspaceControl -label \"Other\""));
  EXPECT_EQ(
      lines[1],
      "workspaceControl -e -uiScript \"orvCompoundEditor -name \\\"a\\\" -title \\\"Other\\\" "
      "-reload\" \"a\"");
}

TEST_F(CompoundEditorCmd, ReloadingFillsThePanelThatTheHostMade) {
  QWidget restored;
  workspace.setCurrentParent(&restored);
  host.run("orvCompoundEditor -name \"a\" -title \"T\" -reload");
  EXPECT_THAT(panelLines(), IsEmpty());
  EXPECT_EQ(editorRegistry["a"].panel, &restored);
  ASSERT_TRUE(editorRegistry["a"].editor);
  EXPECT_EQ(editorRegistry["a"].editor->parentWidget(), &restored);
  EXPECT_EQ(ask("-name \"a\" -currentCompound"), R"([""])") << "it shows nothing yet";
}

TEST_F(CompoundEditorCmd, ReloadingAPanelThatIsThereOnlyBringsItBack) {
  open("a");
  host.run("orvCompoundEditor -name \"a\" -reload");
  EXPECT_THAT(panelLines(), ElementsAre("workspaceControl -e -restore a"));
}

TEST_F(CompoundEditorCmd, OpensAgainWhatTheUserClosed) {
  open("a");
  closeByUser("a");
  EXPECT_FALSE(editorRegistry["a"].editor);
  host.run("orvCompoundEditor -name \"a\"");
  EXPECT_THAT(panelLines(), testing::SizeIs(2));
  EXPECT_TRUE(editorRegistry["a"].editor);
}

TEST_F(CompoundEditorCmd, WithoutAPanelTheEntryStaysDead) {
  refusesPanels = true;
  host.run("orvCompoundEditor -name \"a\"");
  EXPECT_THAT(panelLines(), testing::SizeIs(2));
  EXPECT_FALSE(editorRegistry["a"].panel);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_FALSE(editorRegistry["a"].editor) << "nobody would own it";
  EXPECT_EQ(ask("-listEditors"), "");
}

TEST_F(CompoundEditorCmd, ShowsAGraph) {
  host.run("orvCompoundEditor -name \"a\" -edit \"g\"");
  EXPECT_EQ(ask("-name \"a\" -dgContainer"), "\"g\"");
  EXPECT_EQ(ask("-name \"a\" -currentCompound"), "\"/\"");
}

TEST_F(CompoundEditorCmd, AGraphThatIsDeletedLeavesABlankEditor) {
  host.run("orvCompoundEditor -name \"a\" -edit \"g\"");
  host.run("delete g");
  EXPECT_EQ(ask("-name \"a\" -currentCompound"), R"([""])");
  host.graph("g");
  EXPECT_EQ(ask("-name \"a\" -currentCompound"), R"([""])") << "another graph of the name";
  host.run("orvCompoundEditor -name \"a\" -edit \"g\"");
  EXPECT_EQ(ask("-name \"a\" -currentCompound"), "\"/\"");
  host.run("file -new -force");
  EXPECT_EQ(ask("-name \"a\" -currentCompound"), R"([""])");
}

TEST_F(CompoundEditorCmd, AGraphThatComesBackCanBeShownAgain) {
  host.run("orvCompoundEditor -name \"a\" -edit \"g\"");
  host.run("delete g");
  undo();
  host.run("orvCompoundEditor -name \"a\" -edit \"g\"");
  host.run("orvCompoundEditor -name \"a\" -selectNodes \"add\"");
  host.run("orvCompound \"g\" \"/\" -removeNode \"add\"");
  EXPECT_EQ(ask("-name \"a\" -nodeSelection"), "");
}

TEST_F(CompoundEditorCmd, BringsThePanelBackAndChangesTheGraph) {
  host.graph("h");
  host.run("orvCompoundEditor -name \"a\" -edit \"g\"");
  panelLines();
  host.run("orvCompoundEditor -name \"a\" -edit \"h\"");
  EXPECT_THAT(panelLines(), ElementsAre("workspaceControl -e -restore a"));
  EXPECT_EQ(ask("-name \"a\" -dgContainer"), "\"h\"");
}

TEST_F(CompoundEditorCmd, RefusesToShowWhatIsNoGraph) {
  EXPECT_THAT(badArgument("orvCompoundEditor -name \"a\" -edit \"nothing\""),
              ElementsAre("! nothing is not a DG ORV container"));
  EXPECT_THAT(panelLines(), IsEmpty());
  EXPECT_FALSE(editorRegistry.contains("a")) << "it fails ahead of the lookup";
}

TEST_F(CompoundEditorCmd, AGraphGoesWithNoOtherSteering) {
  open("a");
  for (const char* flags : {"-currentCompound \"box\"", "-sendKey 65 0", "-selectNodes \"add\""}) {
    EXPECT_THAT(badArgument("orvCompoundEditor -name \"a\" -edit \"g\" " + std::string(flags)),
                ElementsAre("! Edit flag cannot be combined with other flags"));
  }
  EXPECT_THAT(badArgument("orvCompoundEditor -name \"a\" -edit \"nothing\" -sendKey 65 0"),
              ElementsAre("! nothing is not a DG ORV container"));
}

TEST_F(CompoundEditorCmd, AGraphWithANodeSelectionPassesThatTest) {
  host.run("orvCompoundEditor -name \"a\" -edit \"g\"");
  host.run("orvCompoundEditor -name \"a\" -edit \"g\" -nodeSelection \"add\"");
}

TEST_F(CompoundEditorCmd, DivesByNameAndByPath) {
  host.run("orvCompoundEditor -name \"a\" -edit \"g\"");
  panelLines();
  host.run("orvCompoundEditor -name \"a\" -currentCompound \"box\"");
  EXPECT_EQ(ask("-name \"a\" -currentCompound"), "\"/box\"");
  host.run("orvCompoundEditor -name \"a\" -currentCompound \"/\"");
  EXPECT_EQ(ask("-name \"a\" -currentCompound"), "\"/\"");
  host.run("orvCompoundEditor -name \"a\" -currentCompound \"/box/inner\"");
  EXPECT_EQ(ask("-name \"a\" -currentCompound"), "\"/box/inner\"");
  EXPECT_THAT(panelLines(), IsEmpty()) << "no panel is made or brought back";
}

TEST_F(CompoundEditorCmd, RefusesToDiveIntoWhatIsNoCompound) {
  EXPECT_EQ(badArgument("orvCompoundEditor -name \"a\" -currentCompound \"box\""), kNotFound);
  open("a");
  EXPECT_EQ(badArgument("orvCompoundEditor -name \"a\" -currentCompound \"box\""), kBlank);
  host.run("orvCompoundEditor -name \"a\" -edit \"g\"");
  for (const char* target : {"add", "nothing", "/box/add", ""}) {
    EXPECT_THAT(badArgument("orvCompoundEditor -name \"a\" -currentCompound \"" +
                            std::string(target) + '"'),
                ElementsAre("! " + std::string(target) + " is not a compound name"));
  }
  EXPECT_EQ(ask("-name \"a\" -currentCompound"), "\"/\"");
}

TEST_F(CompoundEditorCmd, Selects) {
  host.run("orvCompoundEditor -name \"a\" -edit \"g\"");
  host.run("orvCompoundEditor -name \"a\" -selectNodes \"{negate,/add}\"");
  EXPECT_EQ(ask("-name \"a\" -nodeSelection"), R"(["negate","add"])");
  host.run("orvCompoundEditor -name \"a\" -nodeSelection \"box\"");
  EXPECT_EQ(ask("-name \"a\" -nodeSelection"), R"(["box"])");
}

TEST_F(CompoundEditorCmd, OfBothSelectingFlagsTheFirstCounts) {
  host.run("orvCompoundEditor -name \"a\" -edit \"g\"");
  host.run("orvCompoundEditor -name \"a\" -nodeSelection \"box\" -selectNodes \"add\"");
  EXPECT_EQ(ask("-name \"a\" -nodeSelection"), R"(["add"])");
}

TEST_F(CompoundEditorCmd, ANodeThatIsNotThereLeavesTheSelection) {
  host.run("orvCompoundEditor -name \"a\" -edit \"g\"");
  host.run("orvCompoundEditor -name \"a\" -selectNodes \"add\"");
  EXPECT_THAT(refusalOf("orvCompoundEditor -name \"a\" -selectNodes \"{negate,nothing}\""),
              ElementsAre("! nothing is not a node name"));
  EXPECT_EQ(ask("-name \"a\" -nodeSelection"), R"(["add"])");
}

TEST_F(CompoundEditorCmd, RefusesToSelect) {
  EXPECT_EQ(badArgument("orvCompoundEditor -name \"a\" -selectNodes \"add\""), kNotFound);
  open("a");
  EXPECT_EQ(badArgument("orvCompoundEditor -name \"a\" -selectNodes \"add\""), kBlank);
  host.run("orvCompoundEditor -name \"a\" -edit \"g\"");
  for (const char* flag : {"-selectNodes", "-nodeSelection"}) {
    EXPECT_THAT(badArgument("orvCompoundEditor -name \"a\" " + std::string(flag) + " \"\""),
                ElementsAre("! Wrong number of arguments provided"));
  }
}

TEST_F(CompoundEditorCmd, SendsAKey) {
  EXPECT_EQ(badArgument("orvCompoundEditor -name \"a\" -sendKey 65 0"), kNotFound);
  host.run("orvCompoundEditor -name \"a\" -edit \"g\"");
  host.run("orvCompoundEditor -name \"a\" -selectNodes \"add\"");
  panelLines();
  // Escape clears the selection.
  host.run("orvCompoundEditor -name \"a\" -sendKey " + std::to_string(Qt::Key_Escape) + " 0");
  EXPECT_EQ(ask("-name \"a\" -nodeSelection"), "");
  EXPECT_THAT(panelLines(), IsEmpty());
}

TEST_F(CompoundEditorCmd, DivesAheadOfTheKey) {
  host.run("orvCompoundEditor -name \"a\" -edit \"g\"");
  panelLines();
  // "A" with control selects all.
  host.run("orvCompoundEditor -name \"a\" -sendKey 65 " + std::to_string(Qt::ControlModifier) +
           " -currentCompound \"box\"");
  EXPECT_EQ(ask("-name \"a\" -nodeSelection"), R"(["add","inner"])");
  EXPECT_THAT(panelLines(), IsEmpty());
}

TEST_F(CompoundEditorCmd, AKeyStaysSentWhenTheSelectionFails) {
  host.run("orvCompoundEditor -name \"a\" -edit \"g\"");
  host.run("orvCompoundEditor -name \"a\" -selectNodes \"add\"");
  EXPECT_THAT(refusalOf("orvCompoundEditor -name \"a\" -selectNodes \"nothing\" -sendKey " +
                        std::to_string(Qt::Key_Escape) + " 0"),
              ElementsAre("! nothing is not a node name"));
  EXPECT_EQ(ask("-name \"a\" -nodeSelection"), "");
}

TEST_F(CompoundEditorCmd, IsNoStepOfUndo) {
  host.session().undoQueue().clear();
  host.run("orvCompoundEditor -name \"a\" -edit \"g\"");
  EXPECT_THAT(host.steps(), IsEmpty());
}

TEST_F(CompoundEditorCmd, ClosesEveryPanelThatIsThere) {
  open("a");
  open("\xC3\xA4 b");
  open("c");
  closeByUser("c");
  closeCompoundEditors();
  EXPECT_THAT(panelLines(),
              testing::UnorderedElementsAre("workspaceControl -e -close \"a\"",
                                            "workspaceControl -e -close \"\xC3\xA4 b\""));
  EXPECT_EQ(editorRegistry.size(), 3u) << "entries stay";
  closeCompoundEditors();
  EXPECT_THAT(panelLines(), IsEmpty());
}

}  // namespace
