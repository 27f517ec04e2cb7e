#include "standalone/workspace/CommandPanel.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QCompleter>
#include <QScrollBar>
#include <QTextBlock>

#include "standalone/workspace/CommandInput.h"
#include "standalone/workspace/CommandLog.h"
#include "standalone/workspace/Theme.h"
#include "tests/standalone/workspace/WindowTest.h"
#include "tests/support/ProbeCommand.h"

namespace windowtest {
namespace {

using ::testing::ElementsAre;
using ::testing::EndsWith;

class CommandPanels : public ::testing::Test {
 protected:
  CommandPanels() : input_(w_.the<vesk::CommandInput>()), log_(w_.the<vesk::CommandLog>()) {
    input_.setFocus();
    w_.takeLines();
  }

  void type(const char* text) { QTest::keyClicks(&input_, text); }
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(&input_, key, modifiers);
  }
  void enter(const char* line) {
    type(line);
    press(Qt::Key_Return);
    settle();
  }
  std::string typed() const { return input_.toPlainText().toStdString(); }
  std::string log() {
    settle();
    return log_.toPlainText().toStdString();
  }
  QColor colourOfLastLine() const {
    const QTextCursor cursor(log_.document()->lastBlock());
    QTextCursor end = cursor;
    end.movePosition(QTextCursor::EndOfBlock);
    return end.charFormat().foreground().color();
  }
  QAbstractItemView* offers() { return input_.findChild<QCompleter*>()->popup(); }

  Window w_;
  vesk::CommandInput& input_;
  vesk::CommandLog& log_;
};

TEST_F(CommandPanels, RunALineAndShowWhatCameOfIt) {
  enter("createNode group -name a");
  EXPECT_THAT(w_.takeLines(), ElementsAre("createNode group -name a"));
  EXPECT_EQ(log(), "> createNode group -name a\n= a");
  EXPECT_EQ(typed(), "");
}

TEST_F(CommandPanels, ShowEveryKindOfMessageInItsColour) {
  w_.session().messages().print("printed\ntwice");
  EXPECT_EQ(log(), ": printed\n: twice");
  EXPECT_EQ(colourOfLastLine(), vesk::theme::palette().color(QPalette::Text));
  w_.session().messages().warning("careful");
  EXPECT_THAT(log(), EndsWith("\n? careful"));
  EXPECT_EQ(colourOfLastLine(), vesk::theme::kWarning);
  w_.session().messages().error("wrong");
  EXPECT_THAT(log(), EndsWith("\n! wrong"));
  EXPECT_EQ(colourOfLastLine(), vesk::theme::kError);
  w_.host().takeMessages();
}

TEST_F(CommandPanels, SayOfALineThatFailedInSilenceThatItFailed) {
  hosttest::addProbe(w_.host(), "silent",
                     {.doIt = [](auto&, auto&) -> KStatus { return StatusFailure; }});
  enter("silent");
  EXPECT_EQ(log(), "> silent\n! it failed with status 1");
  enter("nothing");
  EXPECT_THAT(log(), EndsWith("! unknown command \"nothing\""));
  w_.host().takeMessages();
}

TEST_F(CommandPanels, ShowLinesThatOthersRun) {
  w_.run("createNode group -name b");
  EXPECT_EQ(log(), "> createNode group -name b\n= b");
}

TEST_F(CommandPanels, ShiftReturnBeginsAnotherLineAndAllRunAsLinesOfTheirOwn) {
  type("createNode group -name a");
  press(Qt::Key_Return, Qt::ShiftModifier);
  enter("createNode group -name b");
  EXPECT_THAT(w_.takeLines(), ElementsAre("createNode group -name a", "createNode group -name b"));
  EXPECT_EQ(w_.host().steps().size(), 2u);
}

TEST_F(CommandPanels, PastedLinesRunUpToTheFirstThatFails) {
  QApplication::clipboard()->setText(
      "createNode group\n// no line\n\nnonsense\ncreateNode group\n");
  input_.paste();
  EXPECT_THAT(w_.takeLines(), ElementsAre());
  press(Qt::Key_Return);
  EXPECT_THAT(w_.takeLines(), ElementsAre("createNode group", "nonsense"));
  EXPECT_THAT(w_.host().takeMessages(), ElementsAre("! unknown command \"nonsense\""));
}

TEST_F(CommandPanels, NothingRunsBehindQuit) {
  type("quit");
  press(Qt::Key_Return, Qt::ShiftModifier);
  enter("createNode group");
  EXPECT_THAT(w_.takeLines(), ElementsAre("quit"));
}

TEST_F(CommandPanels, BlankLinesDoNotRun) {
  enter("   ");
  EXPECT_THAT(w_.takeLines(), ElementsAre());
  EXPECT_EQ(typed(), "   ");
}

TEST_F(CommandPanels, UpAndDownRecallWhatRanAndWhatIsBeingTyped) {
  enter("echo one");
  enter("echo two");
  type("ec");
  press(Qt::Key_Up);
  EXPECT_EQ(typed(), "echo two");
  press(Qt::Key_Up);
  EXPECT_EQ(typed(), "echo one");
  press(Qt::Key_Up);
  EXPECT_EQ(typed(), "echo one");
  press(Qt::Key_Down);
  press(Qt::Key_Down);
  EXPECT_EQ(typed(), "ec");
  w_.host().takeMessages();
}

TEST_F(CommandPanels, UpMovesWithinALineOfManyUntilTheFirst) {
  enter("echo before");
  type("one");
  press(Qt::Key_Return, Qt::ShiftModifier);
  type("two");
  press(Qt::Key_Up);
  EXPECT_EQ(typed(), "one\ntwo");
  press(Qt::Key_Up);
  EXPECT_EQ(typed(), "echo before");
  w_.host().takeMessages();
}

TEST_F(CommandPanels, ALineThatIsRepeatedIsRememberedOnce) {
  enter("echo a");
  enter("echo b");
  enter("echo b");
  press(Qt::Key_Up);
  press(Qt::Key_Up);
  EXPECT_EQ(typed(), "echo a");
  w_.host().takeMessages();
}

TEST_F(CommandPanels, TabCompletesWhatIsAlone) {
  type("createN");
  press(Qt::Key_Tab);
  EXPECT_EQ(typed(), "createNode ");
  type("group -n");
  press(Qt::Key_Tab);
  EXPECT_EQ(typed(), "createNode group -name ");
}

TEST_F(CommandPanels, TabOffersWhatFitsAndReturnTakesIt) {
  type("work");
  press(Qt::Key_Tab);
  EXPECT_EQ(typed(), "workspace");
  ASSERT_TRUE(offers()->isVisible());
  EXPECT_EQ(offers()->model()->rowCount(), 2);
  QTest::keyClick(offers(), Qt::Key_Down);
  QTest::keyClick(offers(), Qt::Key_Return);
  EXPECT_EQ(typed(), "workspaceControl ");
  EXPECT_FALSE(offers()->isVisible());
  EXPECT_THAT(w_.takeLines(), ElementsAre());
}

TEST_F(CommandPanels, TypingOnOrEscapeEndsAnOffer) {
  type("u");
  press(Qt::Key_Tab);
  ASSERT_TRUE(offers()->isVisible());
  EXPECT_EQ(typed(), "un");
  QTest::keyClick(offers(), Qt::Key_D);
  EXPECT_FALSE(offers()->isVisible());
  EXPECT_EQ(typed(), "und");
  press(Qt::Key_Tab);
  QTest::keyClick(offers(), Qt::Key_Escape);
  EXPECT_FALSE(offers()->isVisible());
  EXPECT_EQ(typed(), "undo");
}

TEST_F(CommandPanels, TabInAnEmptyLineLeavesIt) {
  press(Qt::Key_Tab);
  EXPECT_FALSE(input_.hasFocus());
}

TEST_F(CommandPanels, EscapeEmptiesTheLine) {
  type("echo");
  press(Qt::Key_Escape);
  EXPECT_EQ(typed(), "");
}

TEST_F(CommandPanels, TheInputGrowsWithItsLinesToALimit) {
  const int one = input_.height();
  press(Qt::Key_Return, Qt::ShiftModifier);
  const int two = input_.height();
  EXPECT_GT(two, one);
  for (int i = 0; i < 30; ++i) press(Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(input_.height(), one + 7 * (two - one));
}

TEST_F(CommandPanels, TheLogKeepsTenThousandLinesAndCutsLongOnes) {
  for (int i = 0; i < 30'000; ++i) log_.add(vesk::LogKind::Print, std::to_string(i));
  log_.add(vesk::LogKind::Print, std::string(5000, 'x'));
  settle();
  EXPECT_EQ(log_.blockCount(), 10'000);
  EXPECT_EQ(log_.document()->lastBlock().text().size(), 2 + 2000 + 2);
  EXPECT_EQ(log_.document()->findBlockByNumber(9998).text(), ": 29999");
}

TEST_F(CommandPanels, TheLogStaysAtItsEndWhenItIsResized) {
  for (int i = 0; i < 200; ++i) log_.add(vesk::LogKind::Print, std::to_string(i));
  settle();
  for (const int height : {400, 500, 900}) {
    w_.window().resize(1280, height);
    settle();
    EXPECT_EQ(log_.verticalScrollBar()->value(), log_.verticalScrollBar()->maximum()) << height;
  }
}

TEST_F(CommandPanels, LinesThatAreNotEchoedStayOut) {
  vesk::ResultValue result;
  w_.session().engine().run("createNode group", result, {.display = false});
  EXPECT_EQ(log(), "");
}

TEST_F(CommandPanels, APanelThatIsGoneHearsNothing) {
  w_.closeWindow();
  w_.host().run("echo still");
  EXPECT_THAT(w_.host().takeMessages(), ElementsAre("- still"));
}

}  // namespace
}  // namespace windowtest
