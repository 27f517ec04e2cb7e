#include "standalone/widgets/parameters/RowView.h"

#include <QAction>
#include <QLineEdit>
#include <QPointer>
#include <QScrollBar>
#include <QToolButton>

#include "standalone/widgets/parameters/GroupHeader.h"
#include "standalone/widgets/parameters/ParameterPreferences.h"
#include "standalone/widgets/parameters/fields/RangePopup.h"
#include "tests/standalone/widgets/parameters/ParameterTesting.h"

namespace orvuilib {
namespace {

class RowViewTest : public ParameterTest {
 protected:
  /// A compound "box" of so many inputs, p0 and so on.
  void selectPorts(int count) {
    host.run("orvCompound g \"/\" -create \"box\"");
    std::string line = "orvCompound g \"/box\"";
    for (int i = 0; i < count; ++i) {
      line += " -createInputPort \"p" + std::to_string(i) + "\" \"float\"";
    }
    host.run(line);
    select({"/box"});
  }

  static void pressTab() {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    settle();
  }

  QLineEdit* search() { return editor.findChild<QLineEdit*>("search"); }
};

TEST_F(RowViewTest, OnlyWhatCanBeSeenHasWidgets) {
  selectPorts(500);
  EXPECT_LT(rows().widgetCount(), 60u);
  EXPECT_EQ(row("p499")->row().label, "p499");
  settle();
  EXPECT_LT(rows().widgetCount(), 60u);
}

TEST_F(RowViewTest, AThousandNodesHaveOneRowAPort) {
  std::string line = "orvCompound g \"/\"";
  for (int i = 0; i < 1000; ++i) line += " -addNode \"core::math::add\"";
  host.run(line);
  std::vector<std::string> paths;
  for (const auto& child : graph.getTopNode()->asCompound()->getChildNodes()) {
    paths.push_back(std::string("/") + child->getName());
  }
  select(paths);
  EXPECT_EQ(rows().widgetCount(), 3u);
  EXPECT_EQ(row("a")->row().ports.size(), 1000u);
}

TEST_F(RowViewTest, TheTabKeyWalksThroughAllRows) {
  selectPorts(100);
  QTest::mouseClick(entry("p0"), Qt::LeftButton);
  for (int i = 1; i < 100; ++i) {
    pressTab();
    EXPECT_NE(dynamic_cast<RangeSlider*>(QApplication::focusWidget()), nullptr) << i;
    pressTab();
  }
  auto* last = dynamic_cast<EntryField*>(QApplication::focusWidget());
  ASSERT_NE(last, nullptr);
  EXPECT_EQ(last, entry("p99"));
  QTest::keyClick(last, Qt::Key_Backtab);
  EXPECT_EQ(QApplication::focusWidget(), part<RangeSlider>("p98"));
}

TEST_F(RowViewTest, TheTabKeyComesInAtTheHeadingAndGoesOutAtTheEnd) {
  selectPorts(2);
  search()->setFocus();
  pressTab();
  EXPECT_EQ(QApplication::focusWidget(), find<GroupHeader>());
  for (int i = 0; i < 4; ++i) pressTab();
  EXPECT_EQ(QApplication::focusWidget(), part<RangeSlider>("p1"));
  pressTab();
  EXPECT_FALSE(rows().isAncestorOf(QApplication::focusWidget()));
  search()->setFocus();
  pressTab();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
  EXPECT_EQ(QApplication::focusWidget(), search());
}

TEST_F(RowViewTest, KeysCloseAndOpenAGroup) {
  selectPorts(2);
  auto* header = find<GroupHeader>();
  header->setFocus();
  QTest::keyClick(header, Qt::Key_Space);
  settle();
  EXPECT_EQ(rows().rowOf("p1"), nullptr);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  settle();
  EXPECT_NE(rows().rowOf("p1"), nullptr);
}

TEST_F(RowViewTest, TheTabKeyReachesTheResetButton) {
  selectPorts(2);
  enter(entry("p0"), "3");
  pressTab();
  pressTab();
  EXPECT_EQ(QApplication::focusWidget()->objectName(), "reset");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
  settle();
  EXPECT_EQ(value("/box.p0"), "0");
  EXPECT_TRUE(rows().isAncestorOf(QApplication::focusWidget())) << "the focus is not lost";
}

TEST_F(RowViewTest, WhatIsOpenSurvivesScrolling) {
  selectPorts(100);
  auto* slider = part<RangeSlider>("p0");
  QTest::keyClick(slider, Qt::Key_Menu);
  QPointer<RangePopup> popup = part<RangePopup>("p0");
  ASSERT_TRUE(popup);
  entry("p1")->setFocus();
  rows().verticalScrollBar()->setValue(rows().verticalScrollBar()->maximum());
  settle();
  ASSERT_TRUE(popup);
  EXPECT_TRUE(popup->isVisible());
}

TEST_F(RowViewTest, WhatHasTheFocusSurvivesScrolling) {
  selectPorts(100);
  EntryField* field = entry("p0");
  QTest::mouseClick(field, Qt::LeftButton);
  field->selectAll();
  QTest::keyClicks(field, "8");
  rows().verticalScrollBar()->setValue(rows().verticalScrollBar()->maximum());
  settle();
  EXPECT_TRUE(field->hasFocus());
  QTest::keyClick(field, Qt::Key_Return);
  EXPECT_EQ(value("/box.p0"), "8");
}

TEST_F(RowViewTest, KeepsItsPlaceWhenValuesAndPortsChange) {
  selectPorts(100);
  rows().verticalScrollBar()->setValue(500);
  settle();
  host.run("orvNode g \"/box\" -setPortDefaultValues \"p5\" \"1\"");
  host.run("orvCompound g \"/box\" -createInputPort \"more\" \"float\"");
  settle();
  EXPECT_EQ(rows().verticalScrollBar()->value(), 500);
}

TEST_F(RowViewTest, TheSearchFieldFiltersRows) {
  selectPorts(30);
  QTest::keyClicks(search(), "P2");
  settle();
  EXPECT_EQ(rows().rowOf("p1"), nullptr);
  EXPECT_NE(rows().rowOf("p2"), nullptr);
  EXPECT_NE(rows().rowOf("p29"), nullptr);
  QTest::keyClick(search(), Qt::Key_Escape);
  settle();
  EXPECT_NE(rows().rowOf("p1"), nullptr);
}

TEST_F(RowViewTest, AClickOnAHeadingClosesItsGroupForGood) {
  selectPorts(3);
  auto* header = find<GroupHeader>();
  ASSERT_NE(header, nullptr);
  QTest::mouseClick(header, Qt::LeftButton);
  settle();
  EXPECT_EQ(rows().rowOf("p1"), nullptr);
  EXPECT_FALSE(ParameterPreferences::isOpen("compound"));
  select({});
  select({"/box"});
  EXPECT_EQ(rows().rowOf("p1"), nullptr);
  QTest::keyClicks(search(), "p1");
  EXPECT_NE(rows().rowOf("p1"), nullptr);
}

TEST_F(RowViewTest, HiddenPortsHaveNoRow) {
  selectPorts(3);
  host.run("orvCompound g \"/box\" -hidePort \"p1\" true");
  settle();
  EXPECT_EQ(rows().rowOf("p1"), nullptr);
  EXPECT_NE(rows().rowOf("p2"), nullptr);
}

TEST_F(RowViewTest, TheCrossInTheSearchFieldEmptiesIt) {
  auto* clear = search()->findChild<QAction*>("clear");
  ASSERT_NE(clear, nullptr);
  EXPECT_FALSE(clear->isVisible());
  QTest::keyClicks(search(), "p1");
  EXPECT_TRUE(clear->isVisible());
  const QImage cross = clear->icon().pixmap(QSize(64, 64)).toImage();
  EXPECT_EQ(cross.width(), 64) << "it is drawn at its size";
  EXPECT_GT(cross.pixelColor(32, 32).alpha(), 0);
  EXPECT_EQ(cross.pixelColor(2, 32).alpha(), 0);
  QTest::mouseClick(search()->findChild<QToolButton*>(), Qt::LeftButton);
  EXPECT_TRUE(search()->text().isEmpty());
  EXPECT_FALSE(clear->isVisible());
}

}  // namespace
}  // namespace orvuilib
