#include "standalone/widgets/parameters/rows/ArrayRow.h"

#include <QToolButton>

#include "standalone/widgets/colour/ColourDialog.h"
#include "standalone/widgets/colour/ColourSlider.h"
#include "standalone/widgets/parameters/rows/ArrayModel.h"
#include "standalone/widgets/parameters/rows/ElementTable.h"
#include "tests/standalone/widgets/parameters/ParameterTesting.h"

namespace orvuilib {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// Compounds "one", "two" and so on with an input "it", an array each.
class ArrayRowTest : public ParameterTest {
 protected:
  void selectArrays(const std::string& type, const std::vector<std::string>& values) {
    const char* const names[] = {"one", "two", "three"};
    std::vector<std::string> paths;
    for (std::size_t i = 0; i < values.size(); ++i) {
      const std::string name = names[i];
      host.run("orvCompound g \"/\" -create " + name);
      host.run("orvCompound g \"/" + name + "\" -createInputPort it \"" + type +
               "\" -portValues \"" + values[i] + "\"");
      paths.push_back("/" + name);
    }
    select(paths);
    before = stored();
  }

  QToolButton* button(const char* name) { return row("it")->findChild<QToolButton*>(name); }

  ElementTable* open() {
    QTest::mouseClick(button("summary"), Qt::LeftButton);
    settle();
    return part<ElementTable>("it");
  }

  void click(const char* name) {
    QTest::mouseClick(button(name), Qt::LeftButton);
    settle();
  }

  void makeCurrent(ElementTable* table, int line, int column = 0) {
    table->setFocus();
    table->setCurrentIndex(table->model()->index(line, column));
  }

  void enterCell(ElementTable* table, int line, int column, const QString& text) {
    makeCurrent(table, line, column);
    QTest::keyClick(table, Qt::Key_F2);
    auto* cell = table->findChild<QLineEdit*>();
    ASSERT_NE(cell, nullptr);
    cell->selectAll();
    QTest::keyClicks(cell, text);
    QTest::keyClick(cell, Qt::Key_Return);
    settle();
  }

  QString shown(ElementTable* table, int line, int column) {
    return table->model()->index(line, column).data().toString();
  }

  std::string before;
};

TEST_F(ArrayRowTest, AnElementOfManyArraysLeavesTheirOtherElements) {
  selectArrays("array<float>", {"{1,2,3}", "{4,5}", "{6}"});
  enterCell(open(), 1, 0, "9");
  EXPECT_EQ(value("/one.it"), "{1,9,3}");
  EXPECT_EQ(value("/two.it"), "{4,9}");
  EXPECT_EQ(value("/three.it"), "6") << "it has no such element";
  EXPECT_THAT(lines(), SizeIs(2));
  expectOneStep(before);
}

TEST_F(ArrayRowTest, WhatDiffersIsShownAsSuchAndLeftByAVisit) {
  selectArrays("array<float>", {"{1,2}", "{1,5,7}"});
  ElementTable* table = open();
  ASSERT_EQ(table->model()->rowCount(), 3) << "as the longest";
  EXPECT_EQ(shown(table, 0, 0), "1");
  EXPECT_EQ(shown(table, 1, 0), QString(QChar(0x2014)));
  EXPECT_EQ(shown(table, 2, 0), QString(QChar(0x2014)));
  makeCurrent(table, 1);
  QTest::keyClick(table, Qt::Key_F2);
  QTest::keyClick(table->findChild<QLineEdit*>(), Qt::Key_Return);
  settle();
  EXPECT_THAT(lines(), IsEmpty());
}

TEST_F(ArrayRowTest, AnElementComesInEachOfTheArrays) {
  selectArrays("array<vector2>", {"{1,2,3,4}", "{5,6}"});
  click("add");
  EXPECT_EQ(value("/one.it"), "{1,2,3,4,0,0}");
  EXPECT_EQ(value("/two.it"), "{5,6,0,0}") << "at the end of each";
  expectOneStep(before);
  undo();
  settle();
  makeCurrent(open(), 0);
  click("add");
  EXPECT_EQ(value("/one.it"), "{1,2,0,0,3,4}");
  EXPECT_EQ(value("/two.it"), "{5,6,0,0}");
}

TEST_F(ArrayRowTest, AnElementGoesWhereItIs) {
  selectArrays("array<float>", {"{1,2,3}", "{4,5}"});
  makeCurrent(open(), 2);
  click("remove");
  EXPECT_EQ(value("/one.it"), "{1,2}");
  EXPECT_EQ(value("/two.it"), "{4,5}");
  expectOneStep(before);
  click("remove");
  EXPECT_EQ(value("/one.it"), "1");
  EXPECT_EQ(value("/two.it"), "4");
}

TEST_F(ArrayRowTest, ElementsAreMovedByButtonsAndKeys) {
  selectArrays("array<vector2>", {"{1,2,3,4,5,6}"});
  ElementTable* table = open();
  makeCurrent(table, 0, 1);
  click("down");
  EXPECT_EQ(value("/one.it"), "{3,4,1,2,5,6}");
  EXPECT_EQ(table->currentIndex(), table->model()->index(1, 1)) << "it stays the current one";
  expectOneStep(before);
  QTest::keyClick(table, Qt::Key_Down, Qt::AltModifier);
  settle();
  EXPECT_EQ(value("/one.it"), "{3,4,5,6,1,2}");
  QTest::keyClick(table, Qt::Key_Down, Qt::AltModifier);
  settle();
  EXPECT_EQ(value("/one.it"), "{3,4,5,6,1,2}") << "it is the last";
  QTest::keyClick(table, Qt::Key_Up, Qt::AltModifier);
  settle();
  EXPECT_EQ(value("/one.it"), "{3,4,1,2,5,6}");
}

TEST_F(ArrayRowTest, KeysAddAndRemoveElements) {
  selectArrays("array<string>", {"{a,b}"});
  ElementTable* table = open();
  makeCurrent(table, 0);
  QTest::keyClick(table, Qt::Key_Insert);
  settle();
  EXPECT_EQ(valueTexts(row("it")->row().first()), (QStringList{"a", "", "b"}));
  EXPECT_EQ(table->currentIndex().row(), 1);
  expectOneStep(before);
  QTest::keyClick(table, Qt::Key_Delete);
  settle();
  EXPECT_EQ(stored(), before);
}

TEST_F(ArrayRowTest, ANumberThatIsNoneIsRefusedWithAReason) {
  selectArrays("array<float>", {"{1,2}"});
  enterCell(open(), 0, 0, "one");
  EXPECT_EQ(stored(), before);
  auto* notice = editor.findChild<QLabel*>("notice");
  EXPECT_TRUE(notice->isVisible());
  EXPECT_FALSE(notice->text().isEmpty());
}

TEST_F(ArrayRowTest, NothingOfAnArrayIsReadWhileItIsClosed) {
  selectArrays("array<float>", {"{1,2,3}"});
  EXPECT_EQ(row("it")->findChild<ArrayModel*>()->rowCount(), 0);
  EXPECT_THAT(readState(row("it")->row()).texts, IsEmpty());
  EXPECT_TRUE(button("summary")->text().contains("3 elements"));
}

TEST_F(ArrayRowTest, AnArrayThatCannotBeEditedCanBeRead) {
  selectArrays("array<float>", {"{1,2}"});
  host.run("orvCompound g \"/\" -create outer -moveNodeIn one");
  host.run("orvCompound g \"/outer\" -setMetaData locked true");
  select({"/outer/one"});
  ElementTable* table = open();
  EXPECT_EQ(table->model()->rowCount(), 2);
  EXPECT_FALSE(button("add")->isEnabled());
  makeCurrent(table, 0);
  QTest::keyClick(table, Qt::Key_Delete);
  QTest::keyClick(table, Qt::Key_Insert);
  settle();
  EXPECT_THAT(lines(), IsEmpty());
}

/// Opens the picker of an element by its key, and mixes red into the colour.
ColourDialog* mixRed(QWidget* row, ElementTable* table) {
  QTest::keyClick(table, Qt::Key_Space);
  auto* picker = row->findChild<ColourDialog*>("picker");
  if (!picker) return nullptr;
  auto* slider = picker->findChildren<ColourSlider*>().at(0);
  const QPoint end(slider->width() - 4, slider->height() / 2);
  QTest::mousePress(slider, Qt::LeftButton, {}, {4, end.y()});
  QTest::mouseMove(slider, end);
  QTest::mouseRelease(slider, Qt::LeftButton, {}, end);
  return picker;
}

TEST_F(ArrayRowTest, ColoursHaveSwatchesWithAPicker) {
  selectArrays("array<color3>", {"{0,0,1,0,0.5,0}"});
  ElementTable* table = open();
  ASSERT_EQ(table->model()->columnCount(), 4);
  const auto swatch = table->model()->index(0, 0);
  EXPECT_EQ(swatch.data(Qt::DecorationRole).value<QColor>(), QColor(0, 0, 255));
  EXPECT_EQ(shown(table, 1, 2), "0.5");
  makeCurrent(table, 1);
  ColourDialog* picker = mixRed(row("it"), table);
  ASSERT_NE(picker, nullptr);
  settle();
  EXPECT_EQ(value("/one.it"), "{0,0,1,1,0.5,0}") << "it is seen while it is mixed";
  EXPECT_FALSE(picker->findChildren<ColourSlider*>().at(6)->isVisible()) << "no alpha";
  EXPECT_THAT(host.steps(), IsEmpty());
  picker->accept();
  settle();
  EXPECT_THAT(lines(), SizeIs(1));
  expectOneStep(before);
}

TEST_F(ArrayRowTest, EscapeInThePickerPutsTheArrayBack) {
  selectArrays("array<color3>", {"{0,0,1}"});
  ElementTable* table = open();
  makeCurrent(table, 0);
  ColourDialog* picker = mixRed(row("it"), table);
  ASSERT_NE(picker, nullptr);
  QTest::keyClick(picker, Qt::Key_Escape);
  settle();
  EXPECT_EQ(stored(), before);
  EXPECT_THAT(host.steps(), IsEmpty());
}

}  // namespace
}  // namespace orvuilib
