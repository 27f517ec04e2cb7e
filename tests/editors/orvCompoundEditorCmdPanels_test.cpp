// The panels of compound editors: their names, and the entries under which they are known.

#include <QCoreApplication>
#include <QEvent>

#include "tests/editors/EditorTesting.h"

namespace {

using hosttest::Texts;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

const Texts kNotFound{"! A compound editor by that name was not found"};

class CompoundEditorPanels : public EditorTest {
 protected:
  std::string ask(const std::string& flags) { return host.run("orvCompoundEditor -q " + flags); }
};

TEST_F(CompoundEditorPanels, GoByAnyNameThatTheHostCanRead) {
  for (const std::string name :
       {"a b", " ", "-x", "-name", "n;m", "^1s", "^2s ^3s", "// no line", "ä 窗口", "42"}) {
    host.run("orvCompoundEditor -name \"" + name + "\" -edit \"g\"");
    EXPECT_TRUE(panels[name]) << name;
    EXPECT_THAT(panelLines(), SizeIs(2)) << name;
    EXPECT_EQ(ask("-name \"" + name + "\" -dgContainer"), "\"g\"") << name;
    closeCompoundEditors();
    EXPECT_THAT(panelLines(), ElementsAre("workspaceControl -e -close \"" + name + '"'));
    EXPECT_FALSE(editorRegistry[name].editor) << name;
  }
}

TEST_F(CompoundEditorPanels, ATitleMayBeAnyTextThatTheHostCanRead) {
  for (const std::string title : {"", "a b", "-x", "n;m", "^3s", "窗口"}) {
    host.run("orvCompoundEditor -name \"a\" -title \"" + title + "\"");
    const Texts lines = panelLines();
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_THAT(lines[0], StartsWith("workspaceControl -label \"" + title + "\" -retain")) << title;
    EXPECT_THAT(lines[1], testing::HasSubstr(" -title \\\"" + title + "\\\" -reload\" \"a\""));
    closeByUser("a");
  }
}

/// The line that brings a panel back has the name as it is.
TEST_F(CompoundEditorPanels, ANameOfSeveralWordsIsSeveralWhenItsPanelIsBroughtBack) {
  open("a b");
  host.run("orvCompoundEditor -name \"a b\"");
  EXPECT_THAT(panelLines(), ElementsAre("workspaceControl -e -restore a b"));
  open("n;echo m");
  host.run("orvCompoundEditor -name \"n;echo m\"");
  EXPECT_THAT(panelLines(), ElementsAre("workspaceControl -e -restore n"));
  EXPECT_THAT(host.takeMessages(), ElementsAre("- m"));
}

TEST_F(CompoundEditorPanels, OfNamesThatTheHostCannotReadThereAreNone) {
  for (const std::string name : {R"(q\"uote)", R"(back\\slash)", R"(end\\)"}) {
    EXPECT_EQ(host.status("orvCompoundEditor -name \"" + name + '"'), StatusSuccess);
    EXPECT_THAT(host.takeMessages(), SizeIs(2)) << "the host's own: it reads neither line";
    EXPECT_THAT(panelLines(), IsEmpty());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(badArgument("orvCompoundEditor -q -dgContainer -name \"" + name + '"'), kNotFound);
  }
  EXPECT_EQ(ask("-listEditors"), "");
}

TEST_F(CompoundEditorPanels, EveryLineThatLooksANameUpLeavesAnEntry) {
  const std::string lines[] = {"-currentCompound \"box\"", "-sendKey 65 0", "-selectNodes \"add\"",
                               "-nodeSelection \"add\"", "-q -dgContainer"};
  for (const std::string& line : lines) {
    EXPECT_EQ(badArgument("orvCompoundEditor -name \"" + std::string(1, line[1]) + "\" " + line),
              kNotFound);
  }
  ask("-listEditors -name \"listed\"");
  Texts names;
  for (const auto& [name, entry] : editorRegistry) {
    names.push_back(name);
    EXPECT_FALSE(entry.panel || entry.editor);
  }
  EXPECT_THAT(names, testing::UnorderedElementsAre("c", "s", "n", "q", "listed"));
}

TEST_F(CompoundEditorPanels, ALineThatFailsEarlierLeavesNone) {
  for (const char* line :
       {"-listEditors", "-edit \"nothing\"", "-edit \"g\" -sendKey 65 0", "-title"}) {
    EXPECT_THAT(badArgument("orvCompoundEditor -name \"a\" " + std::string(line)), SizeIs(1));
  }
  EXPECT_THAT(badArgument("orvCompoundEditor -q -name \"a\" -reload"), SizeIs(1));
  EXPECT_TRUE(editorRegistry.empty());
}

TEST_F(CompoundEditorPanels, AnEntryIsUsedAgain) {
  EditorEntry& entry = open("a");
  closeByUser("a");
  for (int i = 0; i < 100; ++i) ask("-listEditors -name \"" + std::to_string(i) + '"');
  host.run("orvCompoundEditor -name \"a\"");
  EXPECT_EQ(&entry, &editorRegistry["a"]);
  EXPECT_EQ(entry.panel, panels["a"]);
  EXPECT_TRUE(entry.editor);
}

/// A panel whose editor is gone is no editor, and is there all the same.
class HollowPanels : public CompoundEditorPanels {
 protected:
  HollowPanels() { delete open("a").editor; }
};

TEST_F(HollowPanels, AreNoEditors) {
  EXPECT_EQ(ask("-listEditors"), "");
  EXPECT_EQ(badArgument("orvCompoundEditor -q -name \"a\""), kNotFound);
  EXPECT_EQ(badArgument("orvCompoundEditor -q"), kNotFound) << "no other is there";
  EXPECT_EQ(badArgument("orvCompoundEditor -name \"a\" -sendKey 65 0"), kNotFound);
}

TEST_F(HollowPanels, AreBroughtBackAndStayHollow) {
  host.run("orvCompoundEditor -name \"a\" -edit \"g\"");
  host.run("orvCompoundEditor -name \"a\" -reload");
  EXPECT_THAT(panelLines(),
              ElementsAre("workspaceControl -e -restore a", "workspaceControl -e -restore a"));
  EXPECT_FALSE(editorRegistry["a"].editor);
}

TEST_F(HollowPanels, AreClosed) {
  closeCompoundEditors();
  EXPECT_THAT(panelLines(), ElementsAre("workspaceControl -e -close \"a\""));
}

TEST_F(CompoundEditorPanels, AnEditorOutsideItsPanelIsNotClosedWithIt) {
  const EditorEntry& entry = open("a");
  entry.editor->setParent(nullptr);
  closeByUser("a");
  ASSERT_TRUE(entry.editor);
  closeCompoundEditors();
  EXPECT_THAT(panelLines(), IsEmpty());
  EXPECT_EQ(ask("-listEditors"), "");
  EXPECT_EQ(ask("-name \"a\""), R"([""])") << "by its name it is asked";
}

}  // namespace
