#include "standalone/workspace/MainWindow.h"

#include <QApplication>
#include <QPushButton>

#include "platform/OpenVesk/KGlobal.h"
#include "platform/OpenVeskUI/KQtUtil.h"
#include "standalone/workspace/CommandLog.h"
#include "tests/standalone/workspace/WindowTest.h"

namespace windowtest {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

TEST(MainWindow, IsTheOneThatIsOpen) {
  Window w;
  EXPECT_EQ(vesk::MainWindow::current(), &w.window());
  w.closeWindow();
  EXPECT_EQ(vesk::MainWindow::current(), nullptr);
  EXPECT_EQ(KQtUtil::getCurrentParent(), nullptr);
}

TEST(MainWindow, TitleTellsTheFileAndWhetherItIsSaved) {
  Window w;
  const hosttest::TemporaryFiles files;
  EXPECT_EQ(w.window().windowTitle().toStdString(), "New scene[*] \u2013 vesk");
  EXPECT_FALSE(w.window().isWindowModified());
  w.run("createNode group");
  EXPECT_TRUE(w.window().isWindowModified());
  w.run("file -saveAs \"" + files.path("shot 1.vesk") + "\"");
  EXPECT_EQ(w.window().windowTitle().toStdString(), "shot 1.vesk[*] \u2013 vesk");
  EXPECT_FALSE(w.window().isWindowModified());
}

TEST(MainWindow, LinesThatWidgetsLeaveForIdleTimeRunFromTheEventLoop) {
  Window w;
  KGlobal::executeCommandOnIdle("createNode group", false);
  EXPECT_EQ(w.session().scene().size(), 0u);
  settle();
  EXPECT_EQ(w.session().scene().size(), 1u);
}

TEST(MainWindow, FollowsTheScaleThatTheUserChooses) {
  Window w;
  const int font = w.window().font().pixelSize();
  const int log = w.the<vesk::CommandLog>().font().pixelSize();
  w.run("optionVar -intValue interfaceScale 200");
  EXPECT_EQ(w.window().font().pixelSize(), 2 * font);
  EXPECT_EQ(w.the<vesk::CommandLog>().font().pixelSize(), 2 * log);
  w.run("optionVar -intValue interfaceScale 110");
  EXPECT_EQ(w.window().font().pixelSize(), font);
}

TEST(MainWindow, ColumnsKeepTheirWidthWhenTheWindowGetsAnother) {
  Window w;
  w.run("workspaceControl -initialWidth 300 side");
  w.run("workspaceControl -initialWidth 900 -initialHeight 400 middle");
  const auto width = [&](const char* name) { return w.panels().find(name)->width(); };
  const int outliner = width("outliner");
  const int side = width("side");
  const int middle = width("middle");
  for (const int window : {1920, 1400, 1281, 2560}) {
    w.window().resize(window, 900);
    settle();
    EXPECT_EQ(width("outliner"), outliner) << window;
    EXPECT_EQ(width("undoHistory"), outliner) << window;
    EXPECT_EQ(width("side"), side) << window;
    EXPECT_EQ(width("middle"), middle + window - 1280) << window;
    EXPECT_EQ(width("commandPanel"), width("middle")) << window;
  }
}

TEST(MainWindow, ColumnsFollowTheScaleAndTheRestIsForTheOthers) {
  constexpr int kGaps = 8;  // between the panels, which are scaled too
  Window w;
  w.window().resize(1920, 1080);
  w.run("workspaceControl -initialWidth 300 side");
  const auto width = [&](const char* name) { return w.panels().find(name)->width(); };
  const int outliner = width("outliner");
  const int side = width("side");
  w.run("optionVar -intValue interfaceScale 150");
  EXPECT_NEAR(width("outliner"), outliner * 3 / 2, kGaps);
  EXPECT_EQ(width("undoHistory"), width("outliner"));
  EXPECT_NEAR(width("side"), side * 3 / 2, kGaps);
  EXPECT_EQ(w.window().width(), 1920);
  EXPECT_NEAR(width("outliner") + width("commandPanel") + width("side"), 1920, 30);
  w.run("optionVar -intValue interfaceScale 100");
  EXPECT_NEAR(width("outliner"), outliner, kGaps);
  EXPECT_NEAR(width("side"), side, kGaps);
}

TEST(MainWindow, TheScaleOfARunGoesAheadUntilTheUserChoosesAnother) {
  Window w;
  w.run("optionVar -intValue interfaceScale 125");
  vesk::WindowOptions options;
  options.scaleForThisRun = 200;
  w.reopen(options);
  EXPECT_EQ(KQtUtil::dpiScale(100), 200);
  w.run("createNode group");
  EXPECT_EQ(KQtUtil::dpiScale(100), 200);
  w.run("optionVar -intValue interfaceScale 150");
  EXPECT_EQ(KQtUtil::dpiScale(100), 150);
}

/// A window whose workspace is kept.
class Kept : public ::testing::Test {
 protected:
  Kept() : w_(options(files_.path("prefs"))) {}

  static vesk::SessionOptions options(const std::string& folder) {
    vesk::SessionOptions options;
    options.preferencesFolder = folder;
    return options;
  }

  /// The window as it is when it is opened the next time.
  void nextTime() {
    w_.run("workspace -save");
    w_.reopen();
    w_.run("workspace -restore");
    w_.takeLines();
  }

  std::string file() const { return files_.path("prefs/workspace.json"); }

  hosttest::TemporaryFiles files_;
  Window w_;
};

TEST_F(Kept, PanelsComeBackAndRunTheirLinesInTheirContentArea) {
  w_.run("loadPlugin \"" + moduleFile("panelModule") + "\"");
  w_.run("panelProbe \"Fenêtre 窗口\"");
  w_.run("panelProbe two");
  w_.run("workspaceControl -e -label Other two");
  nextTime();
  EXPECT_EQ(w_.run("workspaceControl -ls"),
            R"(["outliner","undoHistory","commandPanel","Fenêtre 窗口","two"])");
  EXPECT_EQ(w_.run("workspaceControl -q -label two"), "\"Other\"");
  for (const char* name : {"Fenêtre 窗口", "two"}) {
    EXPECT_NE(w_.panels().find(name)->content()->findChild<QWidget*>("moduleWidget"), nullptr);
  }
}

TEST_F(Kept, ThePluginOfAPanelIsLoadedFromWhereItWas) {
  w_.run("loadPlugin \"" + moduleFile("panelModule") + "\"");
  w_.run("workspaceControl -requiredPlugin panelModule -uiScript \"panelProbe p reload\" p");
  w_.run("workspace -save");
  w_.run("unloadPlugin panelModule");
  w_.run("workspace -restore");
  EXPECT_NE(w_.panels().find("p")->content()->findChild<QWidget*>("moduleWidget"), nullptr);
}

TEST_F(Kept, APanelWhosePluginIsGoneSaysSoAndIsKept) {
  w_.run("workspaceControl -requiredPlugin gone -uiScript \"createNode group\" p");
  nextTime();
  EXPECT_NE(w_.panels().find("p")->content()->findChild<QWidget*>("panelNote"), nullptr);
  nextTime();
  EXPECT_EQ(w_.run("workspaceControl -q -uiScript p"), "\"createNode group\"");
  EXPECT_EQ(w_.nodes(), "[]");
}

TEST_F(Kept, WhatIsFloatingHiddenOrSizedComesBackSo) {
  w_.run("workspaceControl -uiScript \"echo\" -floating on a");
  w_.run("workspaceControl -uiScript \"echo\" b; workspaceControl -e -close b");
  w_.run("workspaceControl -e -close undoHistory");
  w_.panels().find("a")->resize(333, 222);
  w_.host().takeMessages();
  nextTime();
  w_.host().takeMessages();
  EXPECT_EQ(w_.run("workspaceControl -q -floating a"), "true");
  EXPECT_EQ(w_.panels().find("a")->size(), QSize(333, 222));
  EXPECT_EQ(w_.run("workspaceControl -q -visible b"), "false");
  EXPECT_EQ(w_.run("workspaceControl -q -visible undoHistory"), "false");
  EXPECT_EQ(w_.run("workspaceControl -q -visible outliner"), "true");
}

TEST_F(Kept, LinesOfAPanelThatWaitsRunWhenItIsFirstSeen) {
  w_.run("workspaceControl -loadImmediately off -visible off -uiScript \"createNode group\" p");
  nextTime();
  EXPECT_EQ(w_.nodes(), "[]");
  w_.run("workspaceControl -e -restore p");
  EXPECT_EQ(w_.nodes(), R"(["group"])");
}

TEST_F(Kept, PanelsWithoutLinesAreNotKept) {
  w_.run("workspaceControl p");
  nextTime();
  EXPECT_EQ(w_.run("workspaceControl -q -exists p"), "false");
}

TEST_F(Kept, RestoringReplacesThePanelsThatAreOpen) {
  w_.run("workspaceControl -uiScript \"createNode group\" p; workspace -save");
  w_.run("workspaceControl other");
  w_.run("workspace -restore");
  EXPECT_EQ(w_.run("workspaceControl -q -exists other"), "false");
  EXPECT_EQ(w_.nodes(), R"(["group","group1"])");
}

TEST_F(Kept, ResettingLeavesTheHostsOwnWhereTheyWere) {
  w_.run("workspaceControl p; workspaceControl -e -close outliner");
  w_.run("workspaceControl -e -floating on commandPanel; workspace -reset");
  EXPECT_EQ(w_.run("workspaceControl -ls"), R"(["outliner","undoHistory","commandPanel"])");
  EXPECT_EQ(w_.run("workspaceControl -q -visible outliner"), "true");
  EXPECT_EQ(w_.run("workspaceControl -q -floating commandPanel"), "false");
}

TEST_F(Kept, ADamagedFileGivesAWarningAndTheDefaultWorkspace) {
  w_.run("workspaceControl -uiScript \"createNode group\" p; workspace -save");
  files_.write("prefs/workspace.json", "{ \"version\": 1, ");
  EXPECT_EQ(w_.host().status("workspace -restore"), StatusFailure);
  const Texts messages = w_.host().takeMessages();
  ASSERT_EQ(messages.size(), 1u);
  EXPECT_THAT(messages[0], HasSubstr("? the workspace \"" + file() + "\" cannot be read: "));
  EXPECT_THAT(messages[0], HasSubstr("; the default workspace takes its place"));
  EXPECT_EQ(w_.run("workspaceControl -ls"), R"(["outliner","undoHistory","commandPanel"])");
}

TEST_F(Kept, AFileWhoseArrangementIsDamagedStillGivesItsPanels) {
  files_.write("w.json",
               R"({"version": 1, "geometry": "!!", "arrangement": "AAAA", "panels": []})");
  w_.run("workspaceControl -e -close outliner");
  w_.run("workspace -restore -file \"" + files_.path("w.json") + "\"");
  EXPECT_EQ(w_.run("workspaceControl -q -visible outliner"), "true");
}

TEST_F(Kept, AFileThatNamesAPanelOfTheHostDoesNotReplaceIt) {
  std::string text = R"({"version": 1, "geometry": "", "arrangement": "", "panels": [{)"
                     R"("name": "outliner", "label": "x", "uiScript": "createNode group",)"
                     R"("requiredPlugin": "", "pluginPath": "", "initialWidth": 1,)"
                     R"("initialHeight": 1, "retain": true, "deleteLater": true,)"
                     R"("loadImmediately": true, "floating": false, "visible": true}]})";
  files_.write("w.json", text);
  w_.run("workspace -restore -file \"" + files_.path("w.json") + "\"");
  EXPECT_EQ(w_.run("workspaceControl -q -label outliner"), "\"Outliner\"");
  EXPECT_EQ(w_.nodes(), "[]");
}

TEST(Workspace, LinesThatCannotBeCarriedOutAreRefused) {
  Window w;
  const hosttest::TemporaryFiles files;
  const auto refusal = [&](const std::string& line) { return w.host().refusal(line); };
  EXPECT_THAT(refusal("workspace"),
              ElementsAre("! workspace: one of -save, -restore and -reset is needed"));
  EXPECT_THAT(refusal("workspace -save -reset"),
              ElementsAre("! workspace: one of -save, -restore and -reset is needed"));
  EXPECT_THAT(refusal("workspace -save"),
              ElementsAre("! workspace: this session keeps no settings; name a -file"));
  EXPECT_THAT(refusal("workspace -reset -file x"),
              ElementsAre("! workspace: -file goes with -save and -restore"));
  EXPECT_THAT(refusal("workspace -restore -file \"\""),
              ElementsAre("! workspace: the path is empty"));
  const std::string absent = files.path("absent");
  EXPECT_THAT(refusal("workspace -restore -file \"" + absent + "\""),
              ElementsAre("! workspace: there is no file \"" + absent + "\""));
  const Texts unwritable = refusal("workspace -save -file /proc/none/w.json");
  ASSERT_EQ(unwritable.size(), 1u);
  EXPECT_THAT(unwritable[0], HasSubstr("! workspace: cannot write \"/proc/none/w.json\": "));
}

TEST(Workspace, RefusesWithoutAWindow) {
  Window w;
  w.closeWindow();
  EXPECT_THAT(w.host().refusal("workspace -reset"),
              ElementsAre("! workspace: there is no window; start vesk with --gui"));
}

}  // namespace
}  // namespace windowtest
