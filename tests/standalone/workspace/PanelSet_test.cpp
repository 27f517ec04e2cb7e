#include "standalone/workspace/PanelSet.h"

#include <QApplication>
#include <QPushButton>

#include "tests/standalone/workspace/WindowTest.h"

namespace windowtest {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

/// How many widgets of the module's there are, wherever they are.
int moduleWidgets() {
  int count = 0;
  for (const QWidget* widget : QApplication::allWidgets()) {
    if (widget->objectName() == "moduleWidget") ++count;
  }
  return count;
}

class ModulePanels : public ::testing::Test {
 protected:
  ModulePanels() { w_.run("loadPlugin \"" + moduleFile("panelModule") + "\""); }
  ~ModulePanels() override {
    w_.closeWindow();
    EXPECT_EQ(moduleWidgets(), 0);
  }

  Window w_;
};

TEST_F(ModulePanels, GoWithTheModule) {
  w_.run("panelProbe one");
  w_.run("panelProbe two");
  EXPECT_EQ(moduleWidgets(), 2);
  w_.run("unloadPlugin panelModule");
  EXPECT_EQ(moduleWidgets(), 0);
  EXPECT_EQ(w_.run("workspaceControl -ls"), R"(["outliner","undoHistory","commandPanel"])");
}

TEST_F(ModulePanels, GoWithTheModuleWhenTheyAreHiddenOrJustClosed) {
  w_.run("panelProbe hidden; workspaceControl -e -visible off hidden");
  w_.host().run("workspaceControl -retain off -deleteLater on -uiScript \"panelProbe p reload\" p");
  w_.host().run("workspaceControl -e -close p; unloadPlugin panelModule");
  EXPECT_EQ(moduleWidgets(), 0);
}

TEST_F(ModulePanels, ThatOthersMadeGoWhenTheyRequireTheModule) {
  w_.run("workspaceControl -requiredPlugin panelModule a; workspaceControl b");
  w_.run("unloadPlugin panelModule");
  EXPECT_EQ(w_.run("workspaceControl -q -exists a"), "false");
  EXPECT_EQ(w_.run("workspaceControl -q -exists b"), "true");
}

TEST_F(ModulePanels, WidgetsOfTheModulesClassesGoFromEverywhere) {
  w_.run("panelProbe");
  w_.run("workspaceControl p; panelProbe p reload");
  EXPECT_EQ(moduleWidgets(), 2);
  w_.run("unloadPlugin panelModule");
  EXPECT_EQ(moduleWidgets(), 0);
  EXPECT_EQ(w_.run("workspaceControl -q -exists p"), "true");
}

TEST_F(ModulePanels, GoWithTheWindowAheadOfTheModule) {
  w_.run("panelProbe one");
  w_.closeWindow();
  EXPECT_EQ(moduleWidgets(), 0);
}

TEST_F(ModulePanels, KeepTheModuleWhileOneOfThemHandlesAnEvent) {
  w_.run("panelProbe one");
  auto* button = w_.panels().find("one")->content()->findChild<QPushButton*>("moduleWidget");
  Texts messages;
  QObject::connect(button, &QPushButton::clicked,
                   [&] { messages = w_.host().refusal("unloadPlugin panelModule"); });
  QTest::mouseClick(button, Qt::LeftButton);
  EXPECT_THAT(messages, ElementsAre("! cannot unload the plug-in \"panelModule\": its panel "
                                    "\"one\" is handling an event"));
  EXPECT_EQ(moduleWidgets(), 1);
  w_.run("unloadPlugin panelModule");
  EXPECT_EQ(moduleWidgets(), 0);
}

TEST_F(ModulePanels, APanelThatSomebodyElseDeletesIsForgotten) {
  w_.run("panelProbe one");
  delete w_.panels().find("one");
  EXPECT_EQ(w_.run("workspaceControl -q -exists one"), "false");
  EXPECT_EQ(moduleWidgets(), 0);
}

}  // namespace
}  // namespace windowtest
