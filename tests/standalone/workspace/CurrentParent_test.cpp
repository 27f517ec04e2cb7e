// Into which panel a module builds.

#include <QLabel>

#include "platform/OpenVesk/KGlobal.h"
#include "platform/OpenVeskUI/KQtUtil.h"
#include "tests/standalone/workspace/WindowTest.h"
#include "tests/support/ProbeCommand.h"

namespace windowtest {
namespace {

/// `module LINES...` runs lines of the host, as a module does, and notes where it would build.
class CurrentParents : public ::testing::Test {
 protected:
  CurrentParents() {
    hosttest::addProbe(w_.host(), "module", {.doIt = [this](KPxCommand&, const KArgList& lines) {
                         for (unsigned i = 0; i < lines.length(); ++i) {
                           KGlobal::executeCommand(lines.asString(i), false, false);
                         }
                         parent_ = KQtUtil::getCurrentParent();
                         return KStatus();
                       }});
  }

  /// Where a module builds after these lines, some of which may be refused.
  QWidget* parentAfter(const std::string& lines) {
    w_.host().run("module " + lines);
    w_.host().takeMessages();
    return parent_;
  }

  /// Whether it builds in that panel.
  bool buildsIn(const std::string& name, const std::string& lines) {
    const QWidget* parent = parentAfter(lines);
    const vesk::Panel* panel = w_.panels().find(name);
    return panel && panel->content() == parent;
  }

  Window w_;
  QWidget* parent_ = nullptr;
};

TEST_F(CurrentParents, IsThePanelThatTheModuleMade) {
  EXPECT_TRUE(buildsIn("p", R"("workspaceControl p" "echo" "workspaceControl -q -label p")"));
}

TEST_F(CurrentParents, IsThePanelThatTheModuleBroughtBack) {
  w_.run("workspaceControl p");
  w_.run("workspaceControl q");
  EXPECT_TRUE(buildsIn("p", R"("workspaceControl -e -restore p")"));
}

TEST_F(CurrentParents, DoesNotOutliveItsLine) {
  EXPECT_NE(parentAfter(R"("workspaceControl p")"), nullptr);
  EXPECT_EQ(parentAfter("echo"), nullptr);
}

TEST_F(CurrentParents, LastsAsLongAsWhatTheLineCalled) {
  w_.host().run("workspaceControl p");
  EXPECT_EQ(KQtUtil::getCurrentParent(), w_.panels().find("p")->content())
      << "whoever ran the line builds there";
}

TEST_F(CurrentParents, IsNotAFormerPanelWhenTheNewOneIsRefused) {
  for (const std::string refused :
       {"workspaceControl outliner", "workspaceControl -initialWidth 0 q",
        "workspaceControl -close q", "workspaceControl -retain maybe q",
        "workspaceControl -nonsense q", R"(workspaceControl \"\")",
        R"(workspaceControl -label \"a \"title\" q)"}) {
    EXPECT_EQ(parentAfter("\"workspaceControl p\" \"" + refused + '"'), nullptr) << refused;
    w_.run("workspace -reset");
  }
}

TEST_F(CurrentParents, StaysWhenAnotherLineIsRefused) {
  EXPECT_TRUE(buildsIn("p", R"("workspaceControl p" "workspaceControl -e -nonsense p")"));
  EXPECT_TRUE(buildsIn("q", R"("workspaceControl q" "nonsense" "workspaceControl -ls -q -e")"));
}

TEST_F(CurrentParents, IsNoPanelOfTheHostsOwn) {
  EXPECT_EQ(parentAfter(R"("workspaceControl -e -restore outliner")"), nullptr);
  EXPECT_EQ(parentAfter(R"("workspaceControl p" "workspaceControl -e -restore outliner")"),
            nullptr);
}

TEST_F(CurrentParents, IsThePanelWhoseLinesRun) {
  w_.run("workspaceControl p");
  w_.run("workspaceControl -uiScript \"echo; module\" q");
  EXPECT_EQ(parent_, w_.panels().find("q")->content());
  w_.host().takeMessages();
}

TEST_F(CurrentParents, LinesDoNotMakeTheContentOfTheHostsOwnPanels) {
  EXPECT_THAT(
      w_.host().refusal("workspaceControl -e -uiScript \"echo\" outliner"),
      testing::ElementsAre("! workspaceControl: no lines make the content of \"outliner\""));
}

}  // namespace
}  // namespace windowtest
