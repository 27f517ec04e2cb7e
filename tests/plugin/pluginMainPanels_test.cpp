// When the module closes its panels.

#include <QApplication>
#include <QPointer>
#include <QWidget>
#include <map>

#include "standalone/host/engine/HostAccess.h"
#include "standalone/workspace/Workspace.h"
#include "tests/plugin/ModuleTesting.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Texts = std::vector<std::string>;

/// The panels of the host, by name; the test below owns them.
std::map<std::string, QPointer<QWidget>> panels;

/// The panels that were closed, each with whether the module's commands were still there.
Texts closed;

/// Makes and closes panels that are plain widgets.
class PanelCommand : public KPxCommand {
 public:
  KStatus doIt(const KArgList& arguments) override {
    const std::string name = arguments.asString(arguments.length() - 1).asUTF8();
    const std::string action = arguments.asString(arguments.length() - 2).asUTF8();
    if (arguments.asString(0) == "-label") {
      panels[name] = new QWidget;
      vesk::Workspace::current()->setCurrentParent(panels[name]);
    } else if (action == "-close") {
      delete panels[name];
      const bool there = vesk::HostSession::current()->registry().find("orvCompoundEditor") &&
                         vesk::HostSession::current()->registry().find("orvPort");
      closed.push_back(name + (there ? "" : " too late"));
    }
    return StatusSuccess;
  }
};

class PluginMainPanels : public ModuleTest {
 protected:
  PluginMainPanels() {
    closed.clear();
    session_->registry().add({"workspaceControl",
                              [] { return static_cast<KPxCommand*>(new PanelCommand); },
                              {},
                              nullptr,
                              {}});
    EXPECT_TRUE(load());
  }
  ~PluginMainPanels() override {
    for (const auto& [name, panel] : panels) delete panel;
    panels.clear();
  }

  void openAll() {
    EXPECT_TRUE(run("orvCompoundEditor -name \"graph\""));
    EXPECT_TRUE(run("orvParameterEditor"));
    EXPECT_TRUE(run("orvParameterEditor -info"));
  }

  vesk::Workspace workspace_;
};

TEST_F(PluginMainPanels, AreClosedWhileTheCommandsAreStillThere) {
  openAll();
  EXPECT_TRUE(unload());
  EXPECT_THAT(closed, ElementsAre("graph", "orvParameterEditorControl", "orvInfoPanelControl"));
}

TEST_F(PluginMainPanels, AreClosedWhenTheProgramExitsAndNoSecondTime) {
  openAll();
  session_->sceneEvents().send(vesk::SceneEvent::Exiting);
  EXPECT_THAT(closed, testing::SizeIs(3));
  closed.clear();
  EXPECT_TRUE(unload());
  EXPECT_THAT(closed, IsEmpty());
}

TEST_F(PluginMainPanels, WhatTheUserClosedIsNotClosedAgain) {
  openAll();
  delete panels["orvParameterEditorControl"];
  delete panels["graph"];
  EXPECT_TRUE(unload());
  EXPECT_THAT(closed, ElementsAre("orvInfoPanelControl"));
}

TEST_F(PluginMainPanels, NoWidgetOfTheModuleIsLeft) {
  const auto before = QApplication::allWidgets().size();
  openAll();
  EXPECT_GT(QApplication::allWidgets().size(), before);
  EXPECT_TRUE(unload());
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(QApplication::allWidgets().size(), before);
}

}  // namespace
