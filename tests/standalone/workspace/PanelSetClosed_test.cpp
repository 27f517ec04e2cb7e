// Panels that are closed, and brought back before they are deleted.

#include <QPushButton>

#include "platform/OpenVeskUI/KQtUtil.h"
#include "tests/standalone/workspace/WindowTest.h"

namespace windowtest {
namespace {

class ClosedPanels : public ::testing::Test {
 protected:
  /// A panel that is not retained, with a button in it.
  QPushButton& make(const std::string& flags) {
    w_.host().run("workspaceControl -retain off " + flags + " p");
    auto* button = new QPushButton("press");
    button_ = button;
    KQtUtil::addWidgetToVeskLayout(button, KQtUtil::getCurrentParent(), KString());
    settle();
    return *button;
  }

  bool isKnown() { return w_.run("workspaceControl -q -exists p") == "true"; }

  Window w_;
  QPointer<QWidget> button_;
};

TEST_F(ClosedPanels, ComeBackWithTheirContentFromWithinOneLine) {
  make("-deleteLater on");
  w_.run("workspaceControl -e -close p; workspaceControl -e -restore p");
  ASSERT_TRUE(button_);
  EXPECT_TRUE(button_->isVisible());
  EXPECT_TRUE(isKnown());
  w_.run("workspaceControl -e -close p");
  EXPECT_FALSE(button_);
  EXPECT_FALSE(isKnown());
}

TEST_F(ClosedPanels, ComeBackFromAnEventOfTheirOwn) {
  for (const char* later : {"-deleteLater on", "-deleteLater off"}) {
    QPushButton& button = make(later);
    QObject::connect(&button, &QPushButton::clicked, [&] {
      w_.host().run("workspaceControl -e -close p; workspaceControl -e -restore p");
    });
    QTest::mouseClick(&button, Qt::LeftButton);
    settle();
    ASSERT_TRUE(button_) << later;
    EXPECT_TRUE(isKnown()) << later;
    w_.run("workspaceControl -e -close p");
    EXPECT_FALSE(button_) << later;
  }
}

TEST_F(ClosedPanels, AreUnknownToAllButTheLineThatBringsThemBack) {
  make("-deleteLater on");
  w_.host().run("workspaceControl -e -close p");
  for (const char* line : {"workspaceControl -e -close p", "workspaceControl -q -label p",
                           "workspaceControl -e -label x p"}) {
    EXPECT_THAT(w_.host().refusal(line),
                testing::ElementsAre("! workspaceControl: no panel is named \"p\""));
  }
}

TEST_F(ClosedPanels, MakeRoomForANewOneOfTheName) {
  make("-deleteLater on");
  w_.host().run("workspaceControl -e -close p; workspaceControl -label New p");
  w_.run("workspaceControl -e -restore p");
  EXPECT_EQ(w_.run("workspaceControl -q -label p"), "\"New\"");
  EXPECT_FALSE(button_);
}

TEST_F(ClosedPanels, AreNotThereOnceTheyAreDeleted) {
  make("-deleteLater off");
  EXPECT_THAT(w_.host().refusal("workspaceControl -e -close p; workspaceControl -e -restore p"),
              testing::ElementsAre("! workspaceControl: no panel is named \"p\""));
}

TEST_F(ClosedPanels, ThatCameBackGoWithTheWindow) {
  make("-deleteLater on");
  w_.host().run("workspaceControl -e -close p; workspaceControl -e -restore p");
  w_.host().run("workspaceControl -e -close p");
  w_.closeWindow();
  EXPECT_FALSE(button_);
}

}  // namespace
}  // namespace windowtest
