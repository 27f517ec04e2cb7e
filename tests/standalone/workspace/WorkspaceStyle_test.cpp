// How lists, logs and titles look in whatever room they have.

#include <QHeaderView>
#include <QListView>
#include <QScrollBar>
#include <set>

#include "standalone/workspace/CommandLog.h"
#include "standalone/workspace/NodeView.h"
#include "standalone/workspace/Theme.h"
#include "tests/standalone/workspace/WindowTest.h"

namespace windowtest {
namespace {

class Looks : public ::testing::Test {
 protected:
  void resizeTo(int width, int height) {
    w_.window().resize(width, height);
    settle();
  }

  /// The picture of the strip above a panel's content.
  QImage title(const std::string& name) {
    vesk::Panel& panel = *w_.panels().find(name);
    const QRect strip(0, 0, panel.width(), panel.content()->y());
    EXPECT_GT(strip.height(), 10);
    return panel.grab(strip).toImage();
  }

  /// Whether the title shows the label: another label makes another picture.
  bool titleShowsLabel(const std::string& name) {
    w_.run("workspaceControl -e -label Some " + name);
    const QImage before = title(name);
    w_.run("workspaceControl -e -label Other " + name);
    return title(name) != before;
  }

  Window w_;
};

TEST_F(Looks, TheLogShowsWholeLinesDownToItsLowerEdge) {
  auto& log = w_.the<vesk::CommandLog>();
  for (int i = 0; i < 200; ++i) log.add(vesk::LogKind::Print, std::to_string(i));
  settle();
  std::set<int> gaps;
  for (int height = 700; height < 740; height += 3) {
    resizeTo(1280, height);
    QTextCursor end(log.document());
    end.movePosition(QTextCursor::End);
    gaps.insert(log.viewport()->height() - log.cursorRect(end).bottom());
  }
  EXPECT_LE(*gaps.rbegin() - *gaps.begin(), 1);
  EXPECT_LT(*gaps.rbegin(), log.cursorRect().height());
}

TEST_F(Looks, TheLastStepOfTheHistoryLiesAtTheLowerEdge) {
  for (int i = 0; i < 100; ++i) w_.host().run("createNode group");
  settle();
  auto& view = *w_.panels().find("undoHistory")->content()->findChild<QListView*>();
  for (int height = 700; height < 740; height += 3) {
    resizeTo(1280, height);
    view.scrollToBottom();
    const QRect last = view.visualRect(view.model()->index(100, 0));
    EXPECT_EQ(last.bottom(), view.viewport()->height() - 1) << height;
  }
}

TEST_F(Looks, TheColumnsOfTheOutlinerTakeTheWidthThatThereIs) {
  auto& view = w_.the<vesk::NodeView>();
  for (const int width : {2400, 1280, 700, 1500}) {
    resizeTo(width, 800);
    EXPECT_EQ(view.header()->length(), view.viewport()->width()) << width;
  }
}

TEST_F(Looks, ATitleTellsTheLabelUnlessATabDoes) {
  w_.run("workspaceControl one");
  EXPECT_TRUE(titleShowsLabel("one"));
  w_.run("workspaceControl two");
  w_.run("workspaceControl -e -restore one");
  EXPECT_FALSE(titleShowsLabel("one"));
  w_.run("workspaceControl -e -floating on two");
  EXPECT_TRUE(titleShowsLabel("one"));
}

TEST_F(Looks, AScrollBarIsAHandleWithoutButtons) {
  auto& log = w_.the<vesk::CommandLog>();
  for (int i = 0; i < 200; ++i) log.add(vesk::LogKind::Print, std::to_string(i));
  settle();
  QScrollBar& bar = *log.verticalScrollBar();
  ASSERT_GT(bar.maximum(), 0);
  const QPoint upper(bar.width() / 2, 2);
  QTest::mouseClick(&bar, Qt::LeftButton, {}, upper);
  EXPECT_EQ(bar.value(), bar.maximum() - bar.pageStep()) << "a page up";
  bar.setValue(0);
  const QImage there = bar.grab().toImage();
  EXPECT_EQ(there.pixelColor(bar.width() / 2, 8), vesk::theme::kHandle);
  EXPECT_EQ(there.pixelColor(bar.width() / 2, bar.height() - 3),
            bar.palette().color(QPalette::Base));
}

TEST_F(Looks, AScrollBarIsDraggedByItsHandleToBothEnds) {
  auto& log = w_.the<vesk::CommandLog>();
  for (int i = 0; i < 200; ++i) log.add(vesk::LogKind::Print, std::to_string(i));
  settle();
  QScrollBar& bar = *log.verticalScrollBar();
  const QPoint lower(bar.width() / 2, bar.height() - 3);
  QTest::mousePress(&bar, Qt::LeftButton, {}, lower);
  QTest::mouseMove(&bar, QPoint(lower.x(), -50));
  EXPECT_EQ(bar.value(), 0);
  QTest::mouseMove(&bar, lower);
  QTest::mouseRelease(&bar, Qt::LeftButton, {}, lower);
  EXPECT_EQ(bar.value(), bar.maximum());
}

}  // namespace
}  // namespace windowtest
