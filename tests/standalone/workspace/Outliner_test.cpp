#include "standalone/workspace/Outliner.h"

#include <QLineEdit>

#include "standalone/workspace/NodeView.h"
#include "tests/standalone/workspace/WindowTest.h"

namespace windowtest {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Outliners : public ::testing::Test {
 protected:
  Outliners() {
    for (const char* name : {"a", "b", "c", "d"}) {
      w_.run(std::string("createNode group -name ") + name);
    }
    w_.run("select -clear");
    w_.takeLines();
  }

  vesk::NodeView& view() { return w_.the<vesk::NodeView>(); }
  QRect place(int row, int column = 0) {
    return view().visualRect(view().model()->index(row, column));
  }
  void click(int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::mouseClick(view().viewport(), Qt::LeftButton, modifiers, place(row).center());
  }
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(&view(), key, modifiers);
  }
  Texts names() {
    Texts names;
    for (int row = 0; row < view().model()->rowCount(); ++row) {
      names.push_back(view().model()->index(row, 0).data().toString().toStdString());
    }
    return names;
  }

  Window w_;
};

TEST_F(Outliners, ListNodesWithTheirTypes) {
  EXPECT_THAT(names(), ElementsAre("a", "b", "c", "d"));
  EXPECT_EQ(view().model()->index(0, 1).data(), "group");
}

TEST_F(Outliners, FollowCreationNamesDeletionUndoAndScenes) {
  w_.run("createNode locator -name e; rename a aa; delete b");
  EXPECT_THAT(names(), ElementsAre("aa", "c", "d", "e"));
  for (int i = 0; i < 3; ++i) w_.run("undo");
  EXPECT_THAT(names(), ElementsAre("a", "b", "c", "d"));
  w_.run("file -new -force");
  EXPECT_THAT(names(), IsEmpty());
}

TEST_F(Outliners, SelectByOneLineForEachGesture) {
  click(1);
  EXPECT_THAT(w_.takeLines(), ElementsAre("select \"b\""));
  click(3, Qt::ShiftModifier);
  EXPECT_THAT(w_.takeLines(), ElementsAre("select \"b\" \"c\" \"d\""));
  click(2, Qt::ControlModifier);
  EXPECT_THAT(w_.takeLines(), ElementsAre("select \"b\" \"d\""));
  press(Qt::Key_A, Qt::ControlModifier);
  EXPECT_THAT(w_.takeLines(), ElementsAre("select \"*\""));
  EXPECT_EQ(w_.run("ls -selection"), R"(["a","b","c","d"])");
}

TEST_F(Outliners, ADragOverRowsIsOneLine) {
  QTest::mousePress(view().viewport(), Qt::LeftButton, {}, place(0).center());
  for (int row = 1; row < 3; ++row) {
    QTest::mouseMove(view().viewport(), place(row).center());
    QMouseEvent move(QEvent::MouseMove, place(row).center(),
                     view().viewport()->mapToGlobal(place(row).center()), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view().viewport(), &move);
  }
  EXPECT_THAT(w_.takeLines(), IsEmpty());
  QTest::mouseRelease(view().viewport(), Qt::LeftButton, {}, place(2).center());
  EXPECT_THAT(w_.takeLines(), ElementsAre("select \"a\" \"b\" \"c\""));
}

TEST_F(Outliners, AClickOnNothingClearsTheSelection) {
  click(0);
  w_.takeLines();
  const QPoint below(10, view().viewport()->height() - 5);
  QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, below);
  EXPECT_THAT(w_.takeLines(), ElementsAre("select -clear"));
}

TEST_F(Outliners, ShowTheSelectionOfTheSceneAndRunNoLineForIt) {
  w_.run("select b d");
  EXPECT_THAT(view().selectedRowNumbers(), ElementsAre(1, 3));
  w_.run("undo");
  EXPECT_THAT(view().selectedRowNumbers(), IsEmpty());
  EXPECT_THAT(w_.takeLines(), ElementsAre("select b d", "undo"));
}

TEST_F(Outliners, KeysMoveTheSelection) {
  click(0);
  w_.takeLines();
  press(Qt::Key_Down);
  EXPECT_THAT(w_.takeLines(), ElementsAre("select \"b\""));
}

TEST_F(Outliners, RenameInPlaceByALine) {
  click(1);
  w_.takeLines();
  press(Qt::Key_F2);
  auto* editor = view().findChild<QLineEdit*>();
  ASSERT_NE(editor, nullptr);
  QTest::keyClicks(editor, "new name");
  QTest::keyClick(editor, Qt::Key_Return);
  EXPECT_THAT(w_.takeLines(), ElementsAre("rename \"b\" \"new name\""));
  EXPECT_THAT(names(), ElementsAre("a", "new_name", "c", "d"));
}

TEST_F(Outliners, ARenameThatChangesNothingRunsNoLine) {
  click(1);
  w_.takeLines();
  for (const auto key : {Qt::Key_Return, Qt::Key_Escape}) {
    press(Qt::Key_F2);
    auto* editor = view().findChild<QLineEdit*>();
    ASSERT_NE(editor, nullptr);
    QTest::keyClick(editor, key);
    settle();
  }
  EXPECT_THAT(w_.takeLines(), IsEmpty());
}

TEST_F(Outliners, DeleteByALine) {
  click(1);
  click(2, Qt::ControlModifier);
  w_.takeLines();
  press(Qt::Key_Delete);
  EXPECT_THAT(w_.takeLines(), ElementsAre("delete \"b\" \"c\""));
  EXPECT_THAT(names(), ElementsAre("a", "d"));
  w_.run("undo");
  EXPECT_THAT(view().selectedRowNumbers(), ElementsAre(1, 2));
}

TEST_F(Outliners, ADoubleClickRunsTheLineOfTheType) {
  vesk::WindowOptions options;
  options.openers = {{"group", "echo open"}};
  w_.reopen(options);
  w_.run("createNode locator -name other");
  w_.takeLines();
  for (const int row : {1, 4}) {
    click(row);
    QTest::mouseDClick(view().viewport(), Qt::LeftButton, {}, place(row).center());
  }
  EXPECT_THAT(w_.takeLines(), ElementsAre("select \"b\"", "echo open \"b\"", "select \"other\""));
  w_.host().takeMessages();
}

TEST_F(Outliners, TheFilterLooksAtNamesAndTypes) {
  w_.run("createNode locator -name Beta");
  auto& filter = w_.the<QLineEdit>();
  QTest::keyClicks(&filter, "b");
  EXPECT_THAT(names(), ElementsAre("b", "Beta"));
  QTest::keyClicks(&filter, "zz");
  EXPECT_THAT(names(), IsEmpty());
  filter.clear();
  QTest::keyClicks(&filter, "LOCA");
  EXPECT_THAT(names(), ElementsAre("Beta"));
}

TEST_F(Outliners, NodesThatTheFilterHidesKeepTheirSelectionUntilTheUserSelects) {
  w_.run("select a b");
  w_.takeLines();
  auto& filter = w_.the<QLineEdit>();
  QTest::keyClicks(&filter, "a");
  EXPECT_EQ(w_.run("ls -selection"), R"(["a","b"])");
  QTest::keyClick(&view(), Qt::Key_Delete);
  EXPECT_THAT(w_.takeLines(), ElementsAre("ls -selection", "delete \"a\""));
}

TEST_F(Outliners, TenThousandNodesAreSelectedAndDeletedByOneLineEach) {
  w_.run("undoInfo -stateWithoutFlush off");
  std::string line;
  for (int i = 0; i < 10'000; ++i) line += "createNode group;";
  w_.run(line);
  EXPECT_EQ(view().model()->rowCount(), 10'004);
  w_.takeLines();
  press(Qt::Key_A, Qt::ControlModifier);
  EXPECT_THAT(w_.takeLines(), ElementsAre("select \"*\""));
  press(Qt::Key_Delete);
  EXPECT_EQ(w_.takeLines().size(), 1u);
  EXPECT_EQ(view().model()->rowCount(), 0);
}

}  // namespace
}  // namespace windowtest
