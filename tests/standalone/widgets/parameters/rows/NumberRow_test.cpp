#include "standalone/widgets/parameters/rows/NumberRow.h"

#include <QFrame>
#include <QPushButton>

#include "standalone/widgets/parameters/ParameterPreferences.h"
#include "standalone/widgets/parameters/fields/RangePopup.h"
#include "tests/standalone/widgets/hooks/IdleHooks.h"
#include "tests/standalone/widgets/parameters/ParameterTesting.h"

namespace orvuilib {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class NumberRowTest : public ParameterTest {
 protected:
  NumberRowTest() { select({add("core::math::add", "sum")}); }

  RangeSlider* slider() { return part<RangeSlider>("a"); }

  QPoint at(double part) {
    return {static_cast<int>(slider()->width() * part), slider()->height() / 2};
  }
};

TEST_F(NumberRowTest, AnEnteredNumberIsOneLine) {
  const std::string before = stored();
  enter(entry("a"), "2.5");
  EXPECT_THAT(lines(), ElementsAre("orvNode \"g\" \"/sum\" -setPortDefaultValues \"a\" \"2.5\""));
  EXPECT_EQ(value("/sum.a"), "2.5");
  expectOneStep(before);
  EXPECT_EQ(entry("a")->text(), "2.5");
}

TEST_F(NumberRowTest, LeavingTheFieldEntersTheNumber) {
  QTest::mouseClick(entry("a"), Qt::LeftButton);
  entry("a")->selectAll();
  QTest::keyClicks(entry("a"), "3");
  QTest::keyClick(entry("a"), Qt::Key_Tab);
  EXPECT_EQ(value("/sum.a"), "3");
}

TEST_F(NumberRowTest, TheSameNumberIsNoEdit) {
  enter(entry("a"), "0");
  EXPECT_THAT(lines(), IsEmpty());
}

TEST_F(NumberRowTest, TextThatIsNoNumberIsRefusedWithAMark) {
  enter(entry("a"), "2.5");
  enter(entry("a"), "2 + 3");
  EXPECT_EQ(value("/sum.a"), "2.5");
  EXPECT_EQ(entry("a")->text(), "2.5");
  EXPECT_TRUE(entry("a")->isRefused());
  EXPECT_FALSE(entry("a")->toolTip().isEmpty());
  EXPECT_EQ(lines().size(), 1u);
}

TEST_F(NumberRowTest, NumbersOutOfTheRangeOfThePortAreRefused) {
  host.run("orvNode g \"/sum\" -setPortMetaDataValue \"a\" \"max\" \"10\"");
  settle();
  host.takeEchoes();
  enter(entry("a"), "11");
  EXPECT_TRUE(entry("a")->isRefused());
  EXPECT_THAT(lines(), IsEmpty());
  enter(entry("a"), "10");
  EXPECT_EQ(value("/sum.a"), "10");
}

TEST_F(NumberRowTest, EscapeTakesBackWhatIsBeingTyped) {
  QTest::mouseClick(entry("a"), Qt::LeftButton);
  entry("a")->selectAll();
  QTest::keyClicks(entry("a"), "9");
  QTest::keyClick(entry("a"), Qt::Key_Escape);
  EXPECT_EQ(entry("a")->text(), "0");
  QTest::keyClick(entry("a"), Qt::Key_Return);
  EXPECT_THAT(lines(), IsEmpty());
}

TEST_F(NumberRowTest, AllDigitsAreShownWhileTheFieldIsEdited) {
  host.run("orvNode g \"/sum\" -setPortDefaultValues \"a\" \"0.123456\"");
  settle();
  EXPECT_EQ(entry("a")->text(), "0.123");
  QTest::mouseClick(entry("a"), Qt::LeftButton);
  EXPECT_EQ(entry("a")->text(), "0.123456");
  host.takeEchoes();
  QTest::keyClick(entry("a"), Qt::Key_Tab);
  EXPECT_EQ(entry("a")->text(), "0.123");
  EXPECT_THAT(lines(), IsEmpty());
}

TEST_F(NumberRowTest, ArrowKeysStep) {
  EntryField* field = entry("a");
  QTest::mouseClick(field, Qt::LeftButton);
  QTest::keyClick(field, Qt::Key_Up);
  EXPECT_EQ(value("/sum.a"), "0.1");
  QTest::keyClick(field, Qt::Key_Up, Qt::ShiftModifier);
  EXPECT_EQ(value("/sum.a"), "1.1");
  QTest::keyClick(field, Qt::Key_Down, Qt::ControlModifier);
  EXPECT_EQ(value("/sum.a"), "1.09");
  EXPECT_EQ(host.steps().size(), 3u);
}

TEST_F(NumberRowTest, AKeyThatIsHeldIsOneStepOfUndo) {
  const std::string before = stored();
  EntryField* field = entry("a");
  QTest::mouseClick(field, Qt::LeftButton);
  for (int i = 0; i < 5; ++i) QTest::keyPress(field, Qt::Key_Up);
  EXPECT_EQ(value("/sum.a"), "0.5");
  EXPECT_THAT(host.steps(), IsEmpty());
  QTest::keyRelease(field, Qt::Key_Up);
  settle();
  expectOneStep(before);
}

TEST_F(NumberRowTest, ADragShowsValuesOnTheirWayAndIsOneLine) {
  const std::string before = stored();
  QTest::mousePress(slider(), Qt::LeftButton, {}, at(0.2));
  QTest::mouseMove(slider(), at(0.4));
  settle();
  const std::string onTheWay = value("/sum.a");
  EXPECT_NE(onTheWay, "0");
  EXPECT_THAT(host.steps(), IsEmpty());
  EXPECT_THAT(lines(), IsEmpty());
  QTest::mouseMove(slider(), at(0.8));
  QTest::mouseRelease(slider(), Qt::LeftButton, {}, at(0.8));
  settle();
  EXPECT_NE(value("/sum.a"), onTheWay);
  EXPECT_THAT(lines(), ElementsAre("orvNode \"g\" \"/sum\" -setPortDefaultValues \"a\" \"" +
                                   value("/sum.a") + "\""));
  expectOneStep(before);
}

TEST_F(NumberRowTest, ADragOfAValueThatWasSetIsTheOnlyLine) {
  enter(entry("a"), "0.5");
  host.session().undoQueue().clear();
  lines();
  const std::string before = stored();
  QTest::mousePress(slider(), Qt::LeftButton, {}, at(0.2));
  QTest::mouseMove(slider(), at(0.9));
  QTest::mouseRelease(slider(), Qt::LeftButton, {}, at(0.9));
  settle();
  EXPECT_THAT(lines(), ElementsAre("orvNode \"g\" \"/sum\" -setPortDefaultValues \"a\" \"" +
                                   value("/sum.a") + "\""));
  expectOneStep(before);
}

TEST_F(NumberRowTest, EscapeInADragPutsBackHowItWas) {
  const std::string before = stored();
  QTest::mousePress(slider(), Qt::LeftButton, {}, at(0.2));
  QTest::mouseMove(slider(), at(0.8));
  EXPECT_NE(stored(), before);
  QTest::keyClick(slider(), Qt::Key_Escape);
  QTest::mouseRelease(slider(), Qt::LeftButton, {}, at(0.8));
  settle();
  EXPECT_EQ(stored(), before);
  EXPECT_THAT(host.steps(), IsEmpty());
  EXPECT_THAT(lines(), IsEmpty());
  EXPECT_EQ(entry("a")->text(), "0");
}

TEST_F(NumberRowTest, ADragBackToWhereItBeganIsNoEdit) {
  enter(entry("a"), "1");
  host.session().undoQueue().clear();
  lines();
  QTest::mousePress(slider(), Qt::LeftButton, {}, at(0.5));
  QTest::mouseMove(slider(), {slider()->width(), 5});
  QTest::mouseRelease(slider(), Qt::LeftButton, {}, {slider()->width(), 5});
  settle();
  EXPECT_EQ(value("/sum.a"), "1");
  EXPECT_THAT(lines(), IsEmpty());
}

TEST_F(NumberRowTest, ASelectionInADragPutsBackHowItWas) {
  const std::string before = stored();
  QTest::mousePress(slider(), Qt::LeftButton, {}, at(0.2));
  QTest::mouseMove(slider(), at(0.8));
  SelectionModel::instance().select({});
  settle();
  EXPECT_EQ(stored(), before);
}

TEST_F(NumberRowTest, TheSliderSpansTheSoftRangeOfThePort) {
  host.run("orvNode g \"/sum\" -setPortMetaDataValue \"a\" \"softMin\" \"-2\"");
  host.run("orvNode g \"/sum\" -setPortMetaDataValue \"a\" \"softMax\" \"4\"");
  settle();
  EXPECT_EQ(slider()->least(), -2);
  EXPECT_EQ(slider()->most(), 4);
  enter(entry("a"), "40");
  EXPECT_EQ(value("/sum.a"), "40");
}

TEST_F(NumberRowTest, TheUserGivesTheSliderARange) {
  QContextMenuEvent menu(QContextMenuEvent::Mouse, at(0.5), slider()->mapToGlobal(at(0.5)));
  QApplication::sendEvent(slider(), &menu);
  auto* popup = part<RangePopup>("a");
  ASSERT_NE(popup, nullptr);
  enter(popup->findChild<QLineEdit*>("most")
            ? static_cast<EntryField*>(popup->findChild<QLineEdit*>("most"))
            : nullptr,
        "25");
  EXPECT_EQ(slider()->most(), 25);
  EXPECT_EQ(ParameterPreferences::sliderRange(row("a")->row().key), NumberRange(0, 25));
  QTest::mouseClick(popup->findChild<QPushButton*>(), Qt::LeftButton);
  settle();
  EXPECT_EQ(slider()->most(), 1);
}

TEST_F(NumberRowTest, KeysMoveTheSlider) {
  const std::string before = stored();
  slider()->setFocus();
  QTest::keyPress(slider(), Qt::Key_Right);
  QTest::keyPress(slider(), Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_EQ(value("/sum.a"), "0.11");
  EXPECT_THAT(lines(), IsEmpty());
  QTest::keyRelease(slider(), Qt::Key_Right);
  settle();
  EXPECT_THAT(lines(), ElementsAre("orvNode \"g\" \"/sum\" -setPortDefaultValues \"a\" \"0.11\""));
  expectOneStep(before);
  QTest::keyClick(slider(), Qt::Key_End);
  EXPECT_EQ(value("/sum.a"), "1");
  QTest::keyClick(slider(), Qt::Key_PageDown);
  EXPECT_EQ(value("/sum.a"), "0.9");
  QTest::keyClick(slider(), Qt::Key_Home);
  EXPECT_EQ(value("/sum.a"), "0");
}

TEST_F(NumberRowTest, EscapeTakesBackWhatKeysMoved) {
  const std::string before = stored();
  slider()->setFocus();
  QTest::keyPress(slider(), Qt::Key_PageUp);
  EXPECT_EQ(value("/sum.a"), "0.1");
  QTest::keyClick(slider(), Qt::Key_Escape);
  QTest::keyRelease(slider(), Qt::Key_PageUp);
  settle();
  EXPECT_EQ(stored(), before);
  EXPECT_THAT(lines(), IsEmpty());
}

TEST_F(NumberRowTest, ADragWhoseEndIsNotSeenIsGivenUp) {
  const std::string before = stored();
  slider()->setFocus();
  QTest::mousePress(slider(), Qt::LeftButton, {}, at(0.7));
  entry("b")->setFocus();
  QTest::mouseMove(slider(), at(0.9));
  settle();
  EXPECT_EQ(stored(), before);
  EXPECT_THAT(lines(), IsEmpty());
}

TEST_F(NumberRowTest, KeysAskForTheRangeOfTheSlider) {
  slider()->setFocus();
  QTest::keyClick(slider(), Qt::Key_F10, Qt::ShiftModifier);
  auto* popup = part<RangePopup>("a");
  ASSERT_NE(popup, nullptr);
  auto* most = popup->findChild<QLineEdit*>("most");
  QTest::keyClick(popup->findChild<QLineEdit*>("least"), Qt::Key_Tab);
  EXPECT_TRUE(most->hasFocus());
  most->selectAll();
  QTest::keyClicks(most, "25");
  QTest::keyClick(most, Qt::Key_Return);
  EXPECT_EQ(slider()->most(), 25);
  QTest::keyClick(most, Qt::Key_Escape);
  settle();
  EXPECT_EQ(row("a")->findChild<RangePopup*>(), nullptr);
}

TEST_F(NumberRowTest, ARefusedEditIsSaid) {
  IdleCommandHook idle;
  orvUI_v1::setCommandHook(&idle, nullptr);
  enter(entry("a"), "2");
  EXPECT_EQ(value("/sum.a"), "0");
  EXPECT_EQ(entry("a")->text(), "0");
  auto* notice = editor.findChild<QLabel*>("notice");
  EXPECT_TRUE(notice->isVisible());
  EXPECT_EQ(notice->text(), "The graph refused the value of a");
}

TEST_F(NumberRowTest, ResetGivesTheDefaultBack) {
  auto* reset = row("a")->findChild<QWidget*>("reset");
  EXPECT_FALSE(reset->isVisible());
  enter(entry("a"), "2");
  EXPECT_TRUE(reset->isVisible());
  host.session().undoQueue().clear();
  lines();
  const std::string before = stored();
  QTest::mouseClick(reset, Qt::LeftButton);
  settle();
  EXPECT_THAT(lines(), ElementsAre("orvNode \"g\" \"/sum\" -resetPortDefaultValues \"a\""));
  EXPECT_EQ(value("/sum.a"), "0");
  EXPECT_FALSE(reset->isVisible());
  expectOneStep(before);
}

TEST_F(NumberRowTest, IntegersStepByOne) {
  select({add("core::math::integer::add", "count")});
  QTest::mouseClick(entry("a"), Qt::LeftButton);
  QTest::keyClick(entry("a"), Qt::Key_Down, Qt::ControlModifier);
  EXPECT_EQ(value("/count.a"), "-1");
  enter(entry("a"), "1.5");
  EXPECT_TRUE(entry("a")->isRefused());
  enter(entry("a"), "2147483648");
  EXPECT_TRUE(entry("a")->isRefused());
  EXPECT_EQ(value("/count.a"), "-1");
}

TEST_F(NumberRowTest, ADragGivesNoMoreDigitsThanAPixelIsWorth) {
  for (const double part : {0.31, 0.53, 0.68}) {
    QTest::mousePress(slider(), Qt::LeftButton, {}, at(0.2));
    QTest::mouseMove(slider(), at(part));
    QTest::mouseRelease(slider(), Qt::LeftButton, {}, at(part));
    settle();
    EXPECT_NE(value("/sum.a"), "0");
    EXPECT_LE(value("/sum.a").size(), std::string("0.125").size()) << value("/sum.a");
    EXPECT_NEAR(std::stod(value("/sum.a")), part, 0.1);
  }
  QTest::mousePress(slider(), Qt::LeftButton, {}, at(0.2));
  QTest::mouseMove(slider(), at(1));
  QTest::mouseRelease(slider(), Qt::LeftButton, {}, at(1));
  settle();
  EXPECT_EQ(value("/sum.a"), "1");
}

}  // namespace
}  // namespace orvuilib
