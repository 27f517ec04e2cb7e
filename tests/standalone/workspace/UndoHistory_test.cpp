#include "standalone/workspace/UndoHistory.h"

#include <QApplication>

#include "tests/standalone/workspace/WindowTest.h"

namespace windowtest {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class UndoHistories : public ::testing::Test {
 protected:
  UndoHistories() {
    for (const char* name : {"a", "b", "c"}) {
      w_.run(std::string("createNode group -name ") + name);
    }
    w_.takeLines();
  }

  QListView& view() { return *w_.panels().find("undoHistory")->content()->findChild<QListView*>(); }
  void click(int row) {
    QTest::mouseClick(view().viewport(), Qt::LeftButton, {},
                      view().visualRect(view().model()->index(row, 0)).center());
    settle();
  }
  Texts rows() {
    Texts rows;
    for (int row = 0; row < view().model()->rowCount(); ++row) {
      const QModelIndex index = view().model()->index(row, 0);
      const bool undone = index.data(Qt::FontRole).value<QFont>().italic();
      rows.push_back((undone ? "undone " : "") + index.data().toString().toStdString());
    }
    return rows;
  }
  int current() { return view().currentIndex().row(); }

  Window w_;
};

TEST_F(UndoHistories, ListTheStepsAndMarkTheCurrentOne) {
  EXPECT_THAT(rows(), ElementsAre("Beginning", "createNode group -name a",
                                  "createNode group -name b", "createNode group -name c"));
  EXPECT_EQ(current(), 3);
}

TEST_F(UndoHistories, ShowWhatIsUndone) {
  w_.run("undo");
  w_.run("undo");
  EXPECT_THAT(rows(),
              ElementsAre("Beginning", "createNode group -name a",
                          "undone createNode group -name b", "undone createNode group -name c"));
  EXPECT_EQ(current(), 1);
}

TEST_F(UndoHistories, AClickGoesThereOneLineAStep) {
  click(1);
  EXPECT_THAT(w_.takeLines(), ElementsAre("undo", "undo"));
  EXPECT_EQ(w_.nodes(), R"(["a"])");
  w_.takeLines();
  click(3);
  EXPECT_THAT(w_.takeLines(), ElementsAre("redo", "redo"));
  click(0);
  EXPECT_EQ(w_.nodes(), "[]");
  EXPECT_EQ(current(), 0);
}

TEST_F(UndoHistories, AClickOnTheCurrentStepRunsNothing) {
  click(3);
  EXPECT_THAT(w_.takeLines(), IsEmpty());
}

TEST_F(UndoHistories, ReturnGoesToTheRowThatHasTheFocus) {
  view().setFocus();
  QTest::keyClick(&view(), Qt::Key_Up);
  EXPECT_THAT(w_.takeLines(), IsEmpty());
  QTest::keyClick(&view(), Qt::Key_Return);
  EXPECT_THAT(w_.takeLines(), ElementsAre("undo"));
}

TEST_F(UndoHistories, StopAtAStepThatCannotBeTaken) {
  w_.run("undoInfo -openChunk");
  click(0);
  EXPECT_EQ(w_.host().takeMessages().size(), 1u);
  EXPECT_EQ(w_.takeLines().size(), 2u);
  EXPECT_EQ(current(), 3);
  w_.run("undoInfo -closeChunk");
}

TEST_F(UndoHistories, KeepTheCurrentStepInViewWhenThereIsLessRoom) {
  for (int i = 0; i < 100; ++i) w_.host().run("createNode group");
  for (int i = 0; i < 60; ++i) w_.host().run("undo");
  settle();
  for (const int height : {900, 500, 1400}) {
    w_.window().resize(1280, height);
    settle();
    EXPECT_TRUE(view().viewport()->rect().contains(view().visualRect(view().currentIndex())));
  }
}

TEST_F(UndoHistories, ForgetWithTheQueue) {
  w_.run("undoInfo -length 1");
  EXPECT_THAT(rows(), ElementsAre("Beginning", "createNode group -name c"));
  w_.run("file -new -force");
  EXPECT_THAT(rows(), ElementsAre("Beginning"));
  EXPECT_EQ(current(), 0);
}

TEST_F(UndoHistories, NamesAreOnOneLineAndNotTooLong) {
  w_.run("undoInfo -openChunk -chunkName \"one\\ntwo\"; undoInfo -closeChunk");
  w_.run("undoInfo -openChunk -chunkName \"" + std::string(500, 'x') + "\"; undoInfo -closeChunk");
  w_.run("undoInfo -openChunk; undoInfo -closeChunk");
  EXPECT_EQ(rows().at(4), "one two");
  EXPECT_LE(rows().at(5).size(), 90u);
  EXPECT_EQ(rows().at(6), "(no name)");
}

TEST_F(UndoHistories, TenThousandStepsAreOneRefresh) {
  for (int i = 0; i < 10'000; ++i) w_.host().run("select -clear");
  int changes = 0;
  QObject::connect(view().model(), &QAbstractItemModel::dataChanged, [&] { ++changes; });
  settle();
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(view().model()->rowCount(), 10'004);
  EXPECT_EQ(current(), 10'003);
}

}  // namespace
}  // namespace windowtest
