#include "standalone/workspace/MainMenu.h"

#include <QAbstractButton>
#include <QDialog>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>

#include "tests/standalone/workspace/WindowTest.h"

namespace windowtest {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

class Menus : public ::testing::Test {
 protected:
  QMenu* menu(const QString& title) {
    for (QAction* action : w_.window().menuBar()->actions()) {
      if (action->text() == title) return action->menu();
    }
    return nullptr;
  }
  static Texts entries(QMenu& menu) {
    Texts texts;
    for (const QAction* action : menu.actions()) {
      if (!action->isSeparator()) texts.push_back(action->text().toStdString());
    }
    return texts;
  }
  static QAction* entry(QMenu& menu, const QString& text) {
    for (QAction* action : menu.actions()) {
      if (action->text() == text) return action;
    }
    ADD_FAILURE() << "no entry " << text.toStdString();
    return nullptr;
  }
  void choose(const QString& title, const QString& text) {
    emit menu(title)->aboutToShow();
    entry(*menu(title), text)->trigger();
    settle();
  }
  void key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QApplication::setActiveWindow(&w_.window());
    QTest::keyClick(&w_.window(), key, modifiers);
    settle();
  }
  static void answer(QMessageBox::StandardButton button) {
    whenDialogIsUp([button](QWidget& dialog) {
      auto* box = qobject_cast<QMessageBox*>(&dialog);
      ASSERT_NE(box, nullptr);
      QTest::mouseClick(box->button(button), Qt::LeftButton);
    });
  }
  static void typePath(const std::string& path) {
    whenDialogIsUp([path](QWidget& dialog) {
      auto* edit = dialog.findChild<QLineEdit*>("fileNameEdit");
      ASSERT_NE(edit, nullptr);
      edit->setText(QString::fromStdString(path));
      QTest::keyClick(edit, Qt::Key_Return);
    });
  }

  hosttest::TemporaryFiles files_;
  Window w_;
};

TEST_F(Menus, UndoAndRedoSayWhatTheyWouldDoAndRunLines) {
  QMenu& edit = *menu("&Edit");
  EXPECT_FALSE(entry(edit, "&Undo")->isEnabled());
  EXPECT_FALSE(entry(edit, "&Redo")->isEnabled());
  w_.run("createNode group -name \"a&b\"");
  w_.takeLines();
  choose("&Edit", "&Undo createNode group -name \"a&&b\"");
  EXPECT_THAT(w_.takeLines(), ElementsAre("undo"));
  choose("&Edit", "&Redo createNode group -name \"a&&b\"");
  EXPECT_THAT(w_.takeLines(), ElementsAre("redo"));
}

TEST_F(Menus, UndoIsReachedByKeys) {
  w_.run("createNode group");
  w_.takeLines();
  key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_THAT(w_.takeLines(), ElementsAre("undo"));
  key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_THAT(w_.takeLines(), ElementsAre("redo"));
}

TEST_F(Menus, LongNamesOfStepsAreCut) {
  w_.run("createNode group -name " + std::string(300, 'x'));
  EXPECT_LT(entries(*menu("&Edit")).at(0).size(), 60u);
}

TEST_F(Menus, DeleteActsOnTheSelection) {
  EXPECT_FALSE(entry(*menu("&Edit"), "&Delete Selected Nodes")->isEnabled());
  w_.run("createNode group");
  choose("&Edit", "&Delete Selected Nodes");
  EXPECT_EQ(w_.nodes(), "[]");
}

TEST_F(Menus, AnUntouchedSceneIsReplacedWithoutAQuestion) {
  choose("&File", "&New");
  EXPECT_THAT(w_.takeLines(), ElementsAre("file -new"));
}

TEST_F(Menus, UnsavedChangesAreDroppedSavedOrKeptAsTheUserSays) {
  w_.run("createNode group");
  w_.takeLines();
  answer(QMessageBox::Cancel);
  choose("&File", "&New");
  EXPECT_THAT(w_.takeLines(), IsEmpty());
  answer(QMessageBox::Discard);
  choose("&File", "&New");
  EXPECT_THAT(w_.takeLines(), ElementsAre("file -new -force"));
  const std::string path = files_.path("a.vesk");
  w_.run("createNode group; file -saveAs \"" + path + "\"; createNode group");
  w_.takeLines();
  answer(QMessageBox::Save);
  choose("&File", "&New");
  EXPECT_THAT(w_.takeLines(), ElementsAre("file -save", "file -new"));
}

TEST_F(Menus, ASceneIsSavedUnderANameAndOpenedAgain) {
  const std::string path = files_.path("two words.vesk");
  w_.run("createNode group");
  w_.takeLines();
  typePath(path);
  choose("&File", "&Save");
  EXPECT_THAT(w_.takeLines(), ElementsAre("file -saveAs \"" + path + "\""));
  choose("&File", "&Save");
  EXPECT_THAT(w_.takeLines(), ElementsAre("file -save"));
  typePath(path);
  choose("&File", "&Open\u2026");
  EXPECT_THAT(w_.takeLines(), ElementsAre("file -open \"" + path + "\""));
  EXPECT_EQ(w_.nodes(), R"(["group"])");
}

TEST_F(Menus, QuitIsALineAndAsksForUnsavedChanges) {
  w_.run("createNode group");
  w_.takeLines();
  answer(QMessageBox::Cancel);
  choose("&File", "&Quit");
  EXPECT_FALSE(w_.session().quitRequested);
  answer(QMessageBox::Discard);
  choose("&File", "&Quit");
  EXPECT_THAT(w_.takeLines(), ElementsAre("quit"));
  EXPECT_TRUE(w_.session().quitRequested);
}

TEST_F(Menus, ClosingTheWindowQuits) {
  w_.window().close();
  EXPECT_THAT(w_.takeLines(), ElementsAre("quit"));
}

TEST_F(Menus, PanelsAreClosedAndRestoredByLines) {
  choose("&Panels", "Outliner");
  choose("&Panels", "Outliner");
  EXPECT_THAT(w_.takeLines(), ElementsAre("workspaceControl -edit -close \"outliner\"",
                                          "workspaceControl -edit -restore \"outliner\""));
}

TEST_F(Menus, PanelsThatACommandOpensAreOfferedWhileItIsThere) {
  vesk::WindowOptions options;
  options.offers = {{"Echo", "echo", "echo hello"}, {"None", "nothing", "nothing"}};
  w_.reopen(options);
  emit menu("&Panels")->aboutToShow();
  EXPECT_THAT(entries(*menu("&Panels")), Contains("Open Echo"));
  EXPECT_THAT(entries(*menu("&Panels")), Not(Contains("Open None")));
  choose("&Panels", "Open Echo");
  EXPECT_THAT(w_.host().takeMessages(), ElementsAre("- hello"));
}

TEST_F(Menus, TheWorkspaceIsSavedOnlyWhereSettingsAreKept) {
  emit menu("&Panels")->aboutToShow();
  EXPECT_FALSE(entry(*menu("&Panels"), "&Save Workspace")->isEnabled());
  choose("&Panels", "&Default Workspace");
  EXPECT_THAT(w_.takeLines(), ElementsAre("workspace -reset"));
}

TEST_F(Menus, TheScaleIsALineOnAnOptionVariable) {
  emit menu("&Panels")->aboutToShow();
  QMenu* scales = entry(*menu("&Panels"), "&Interface Scale")->menu();
  EXPECT_TRUE(entry(*scales, "100 %")->isChecked());
  entry(*scales, "150 %")->trigger();
  EXPECT_THAT(w_.takeLines(), ElementsAre("optionVar -intValue interfaceScale 150"));
}

TEST_F(Menus, HelpListsTheCommands) {
  choose("&Help", "&List of Commands");
  EXPECT_THAT(w_.takeLines(), ElementsAre("workspaceControl -edit -restore commandPanel", "help"));
}

}  // namespace
}  // namespace windowtest
