#include <QPushButton>
#include <QTabBar>

#include "platform/OpenVeskUI/KQtUtil.h"
#include "tests/standalone/workspace/WindowTest.h"

namespace windowtest {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(workspaceControlCommand, RefusesInASessionWithoutAWindow) {
  hosttest::Host host;
  vesk::registerWorkspaceCommands(host.session().registry());
  for (const char* line : {"workspaceControl p", "workspaceControl -ls",
                           "workspaceControl -q -exists p", "workspaceControl -e -close p"}) {
    EXPECT_THAT(host.refusal(line),
                ElementsAre("! workspaceControl: there is no window; start vesk with --gui"));
  }
}

class Panels : public ::testing::Test {
 protected:
  std::string run(const std::string& line) { return w_.run("workspaceControl " + line); }
  std::string refusal(const std::string& line) {
    const Texts messages = w_.host().refusal("workspaceControl " + line);
    return messages.size() == 1 ? messages[0] : std::to_string(messages.size()) + " messages";
  }
  /// Docks a button into the current parent.
  static QPointer<QPushButton> fill() {
    QPointer<QPushButton> button = new QPushButton("press");
    KQtUtil::addWidgetToVeskLayout(button, KQtUtil::getCurrentParent(), KString());
    settle();
    return button;
  }

  Window w_;
};

TEST_F(Panels, AreThoseOfTheHostToBeginWith) {
  EXPECT_EQ(run("-ls"), R"(["outliner","undoHistory","commandPanel"])");
  EXPECT_EQ(run("-q -ls"), R"(["outliner","undoHistory","commandPanel"])");
}

TEST_F(Panels, AreMadeWithALabelAndBecomeTheCurrentParent) {
  EXPECT_EQ(run("-label \"A label\" p"), "\"p\"");
  EXPECT_EQ(KQtUtil::getCurrentParent(), w_.panels().find("p")->content());
  EXPECT_EQ(run("-q -exists p"), "true");
  EXPECT_EQ(run("-q -visible p"), "true");
  EXPECT_EQ(run("-q -label p"), "\"A label\"");
}

TEST_F(Panels, ThatAreRefusedLeaveNoCurrentParent) {
  for (const char* refused : {"outliner", "-initialWidth 0 q", "\"\""}) {
    run("-label \"A label\" -retain off -deleteLater off p");
    EXPECT_NE(w_.host().status(std::string("workspaceControl ") + refused), StatusSuccess);
    w_.host().takeMessages();
    EXPECT_EQ(KQtUtil::getCurrentParent(), nullptr) << refused;
    w_.run("workspaceControl -e -close p");
  }
}

TEST_F(Panels, HaveTheirNameForALabelUnlessOneIsGiven) {
  run("p");
  EXPECT_EQ(run("-q -label p"), "\"p\"");
}

TEST_F(Panels, AreAsTheLineSays) {
  run("-retain false -deleteLater no -loadImmediately 1 -floating true -initialWidth 320 "
      "-initialHeight 240 -requiredPlugin some -uiScript \"\" p");
  EXPECT_EQ(run("-q -retain p"), "false");
  EXPECT_EQ(run("-q -deleteLater p"), "false");
  EXPECT_EQ(run("-q -loadImmediately p"), "true");
  EXPECT_EQ(run("-q -floating p"), "true");
  EXPECT_EQ(run("-q -initialWidth p"), "320");
  EXPECT_EQ(run("-q -initialHeight p"), "240");
  EXPECT_EQ(run("-q -requiredPlugin p"), "\"some\"");
  EXPECT_EQ(run("-q -uiScript p"), "\"\"");
  EXPECT_EQ(w_.panels().find("p")->content()->size(), QSize(320, 240));
}

TEST_F(Panels, TakeAnyTextForAName) {
  for (const std::string name : {R"("say \"hi\"")", R"("Fenêtre 窗口 \\ ^1s")", R"("-dash; //")"}) {
    EXPECT_EQ(run(name), name);
    EXPECT_EQ(run("-q -exists " + name), "true");
    EXPECT_EQ(run("-e -restore " + name), "");
    run("-e -close " + name);
    EXPECT_EQ(run("-q -visible " + name), "false");
  }
}

TEST_F(Panels, NamesCountCaseAndAreCompared) {
  run("p");
  EXPECT_EQ(run("-q -exists P"), "false");
  EXPECT_EQ(refusal("p"), "! workspaceControl: a panel is named \"p\" already");
  EXPECT_EQ(refusal("outliner"), "! workspaceControl: a panel is named \"outliner\" already");
  EXPECT_EQ(refusal("\"\""), "! workspaceControl: the name of the panel is empty");
  EXPECT_EQ(refusal(""), "! workspaceControl: the name of the panel is missing");
}

TEST_F(Panels, UnknownOnesAreRefused) {
  for (const char* line : {"-e -restore gone", "-e -close gone", "-q -visible gone",
                           "-q -label gone", "-e -uiScript x gone", "-e -visible 1 gone"}) {
    EXPECT_EQ(refusal(line), "! workspaceControl: no panel is named \"gone\"");
  }
}

TEST_F(Panels, FlagsOfAnotherModeAreRefused) {
  run("p");
  EXPECT_EQ(refusal("-close p"), "! workspaceControl: -close needs edit mode (-e)");
  EXPECT_EQ(refusal("-restore p"), "! workspaceControl: -restore needs edit mode (-e)");
  EXPECT_EQ(refusal("-exists p"), "! workspaceControl: -exists needs query mode (-q)");
  EXPECT_EQ(refusal("-q -close p"), "! workspaceControl: -close needs edit mode (-e)");
  EXPECT_EQ(refusal("-e -retain off p"),
            "! workspaceControl: -retain can be given when a panel is made, and asked");
  EXPECT_EQ(refusal("-e p"), "! workspaceControl: say what to change, with its flags");
  EXPECT_EQ(refusal("-e -close -restore p"), "! workspaceControl: -close goes alone");
  EXPECT_EQ(refusal("-q p"), "! workspaceControl: ask one thing at a time, with its flag");
  EXPECT_EQ(refusal("-q -label -visible p"),
            "! workspaceControl: ask one thing at a time, with its flag");
  EXPECT_EQ(refusal("-q -exists -label p"), "! workspaceControl: ask one thing at a time");
  EXPECT_EQ(refusal("-ls p"), "! workspaceControl: -listPanels goes alone");
}

TEST_F(Panels, SizesOutOfRangeAreRefusedAndMakeNoPanel) {
  const std::string message =
      "! workspaceControl: -initialWidth and -initialHeight are from 1 to 16384";
  for (const char* line : {"-iw 0 p", "-ih -1 p", "-iw 16385 p"}) EXPECT_EQ(refusal(line), message);
  EXPECT_EQ(run("-q -exists p"), "false");
}

TEST_F(Panels, ThatAreRetainedAreHiddenAndKeepTheirContent) {
  run("p");
  const auto button = fill();
  run("-e -close p");
  EXPECT_EQ(run("-q -visible p"), "false");
  ASSERT_TRUE(button);
  run("-e -restore p");
  EXPECT_EQ(run("-q -visible p"), "true");
  EXPECT_TRUE(button->isVisible());
}

TEST_F(Panels, ThatAreNotRetainedAreUnknownOnceTheyAreClosed) {
  run("-retain off p");
  const auto button = fill();
  run("-e -close p");
  EXPECT_EQ(run("-q -exists p"), "false");
  EXPECT_FALSE(button);
  EXPECT_EQ(refusal("-e -close p"), "! workspaceControl: no panel is named \"p\"");
  EXPECT_EQ(run("p"), "\"p\"");
}

TEST_F(Panels, AreDeletedAtOnceOrWhenTheEventLoopIsReached) {
  run("-retain off -deleteLater off now");
  const auto now = fill();
  run("-retain off -deleteLater on later");
  const auto later = fill();
  w_.host().run("workspaceControl -e -close now; workspaceControl -e -close later");
  EXPECT_FALSE(now);
  EXPECT_TRUE(later);
  settle();
  EXPECT_FALSE(later);
}

TEST_F(Panels, TheNameOfAClosedOneIsFreeAtOnce) {
  run("-retain off -deleteLater on p");
  const auto button = fill();
  w_.host().run("workspaceControl -e -close p; workspaceControl p");
  EXPECT_TRUE(button);
  EXPECT_NE(KQtUtil::getCurrentParent(), button->parentWidget());
}

TEST_F(Panels, ClosedByAButtonOfTheirOwnAreDeletedWhenItIsReleased) {
  for (const char* floating : {"off", "on"}) {
    run(std::string("-retain off -deleteLater off -floating ") + floating + " p");
    const auto button = fill();
    QPointer<QWidget> panel = w_.panels().find("p");
    bool aliveInHandler = false;
    QObject::connect(button, &QPushButton::clicked, [&] {
      w_.host().run("workspaceControl -e -close p");
      aliveInHandler = button && panel;
    });
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_TRUE(aliveInHandler);
    EXPECT_FALSE(panel);
    EXPECT_FALSE(button);
    EXPECT_EQ(run("-q -exists p"), "false");
  }
}

TEST_F(Panels, ThatTheUserClosesGoByALine) {
  run("-retain off -deleteLater off \"a \\\"b\\\"\"");
  const auto button = fill();
  w_.takeLines();
  w_.panels().find("a \"b\"")->close();
  EXPECT_THAT(w_.takeLines(), ElementsAre(R"(workspaceControl -edit -close "a \"b\"")"));
  EXPECT_FALSE(button);
}

TEST_F(Panels, ShareAPlaceAsTabsAndARestoredOneComesToTheFront) {
  run("one");
  const auto first = fill();
  run("two");
  const auto second = fill();
  EXPECT_TRUE(first->visibleRegion().isEmpty());
  EXPECT_FALSE(second->visibleRegion().isEmpty());
  EXPECT_EQ(run("-q -visible one"), "true");
  run("-e -restore one");
  EXPECT_FALSE(first->visibleRegion().isEmpty());
  EXPECT_TRUE(second->visibleRegion().isEmpty());
}

TEST_F(Panels, AreShownAndHidden) {
  run("-visible off p");
  EXPECT_EQ(run("-q -visible p"), "false");
  run("-e -visible on p");
  EXPECT_EQ(run("-q -visible p"), "true");
  run("-e -visible off -label New p");
  EXPECT_EQ(run("-q -visible p"), "false");
  EXPECT_EQ(run("-q -label p"), "\"New\"");
}

TEST_F(Panels, AreFloatedAndDocked) {
  run("p");
  run("-e -floating on p");
  EXPECT_TRUE(w_.panels().find("p")->isWindow());
  run("-e -floating off p");
  EXPECT_FALSE(w_.panels().find("p")->isWindow());
}

TEST_F(Panels, RunTheLinesThatMakeTheirContentAtOnceOrWhenTheyAreFirstSeen) {
  run("-uiScript \"createNode group -name now\" a");
  EXPECT_EQ(w_.nodes(), R"(["now"])");
  run("-uiScript \"createNode group -name seen\" -loadImmediately off -visible off b");
  EXPECT_EQ(w_.nodes(), R"(["now"])");
  run("-e -visible on b");
  EXPECT_EQ(w_.nodes(), R"(["now","seen"])");
  run("-e -visible off b");
  run("-e -visible on b");
  EXPECT_EQ(w_.nodes(), R"(["now","seen"])");
}

TEST_F(Panels, ThatAreSeenRunTheLinesAsSoonAsTheyHaveThem) {
  run("-loadImmediately off p");
  run("-e -uiScript \"createNode group -name late\" p");
  EXPECT_EQ(w_.nodes(), R"(["late"])");
}

TEST_F(Panels, ThatTheirMakerFilledDoNotRunTheirLines) {
  run("p");
  const auto button = fill();
  run("-e -uiScript \"createNode group\" p");
  run("-e -close p");
  run("-e -restore p");
  EXPECT_EQ(w_.nodes(), "[]");
}

TEST_F(Panels, LinesThatFailAreToldAndTriedAgainByTheNextRestore) {
  w_.host().run("workspaceControl -uiScript \"nonsense\" p");
  EXPECT_THAT(w_.host().takeMessages(),
              ElementsAre("! unknown command \"nonsense\"",
                          "? the panel \"p\": the lines that make its content failed"));
  run("-e -uiScript \"createNode group -name again\" p");
  run("-e -restore p");
  EXPECT_EQ(w_.nodes(), R"(["again"])");
  EXPECT_TRUE(w_.panels().find("p")->isEmpty());
}

TEST_F(Panels, LinesOfTheirsAreNotTheUsers) {
  w_.takeLines();
  run("-uiScript \"createNode group\" p");
  EXPECT_THAT(w_.takeLines(), ElementsAre("workspaceControl -uiScript \"createNode group\" p"));
}

TEST_F(Panels, ThatNeedAPluginSayThatItIsMissing) {
  run("-uiScript \"createNode group\" -requiredPlugin absent p");
  EXPECT_EQ(w_.nodes(), "[]");
  const auto* note = w_.panels().find("p")->content()->findChild<QWidget*>("panelNote");
  ASSERT_NE(note, nullptr);
  EXPECT_EQ(note->property("text").toString(),
            "This panel needs the plug-in \"absent\", which is not loaded.");
}

TEST_F(Panels, APanelIsGoneWhenItsOwnLinesCloseIt) {
  run("-retain off -deleteLater off -uiScript \"workspaceControl -e -close p\" p");
  EXPECT_EQ(run("-q -exists p"), "false");
}

TEST_F(Panels, ThoseOfTheHostAreHiddenAndNeverGone) {
  run("-e -close outliner");
  EXPECT_EQ(run("-q -visible outliner"), "false");
  EXPECT_EQ(run("-q -exists outliner"), "true");
  run("-e -restore outliner");
  EXPECT_EQ(run("-q -visible outliner"), "true");
}

}  // namespace
}  // namespace windowtest
