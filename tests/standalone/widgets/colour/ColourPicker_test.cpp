#include "standalone/widgets/colour/ColourPicker.h"

#include <gmock/gmock.h>

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

#include "standalone/widgets/colour/ColourField.h"
#include "standalone/widgets/colour/ColourPalette.h"
#include "standalone/widgets/colour/ColourSlider.h"
#include "standalone/widgets/colour/ColourSwatch.h"
#include "tests/standalone/widgets/colour/ColourTesting.h"

namespace {

using orvUI_v1::HIGColor;
using orvuilib::ColourField;
using orvuilib::ColourPalette;
using orvuilib::ColourPicker;
using orvuilib::ColourSlider;
using orvuilib::ColourSwatch;
using testing::ElementsAre;

class Picker : public ColourTest {
 protected:
  Picker() {
    picker.setColour({0.25f, 0.5f, 0.75f, 1});
    picker.resize(picker.sizeHint());
    picker.show();
  }

  QDoubleSpinBox& number(int row) { return *picker.findChildren<QDoubleSpinBox*>().at(row); }
  ColourSlider& slider(int row) { return *picker.findChildren<ColourSlider*>().at(row); }
  ColourField& field() { return *picker.findChild<ColourField*>(); }

  ColourPicker picker;
  QSignalSpy changing{&picker, &ColourPicker::changing};
  QSignalSpy changed{&picker, &ColourPicker::changed};
};

TEST_F(Picker, ShowsTheColourWithoutSayingThatItChanged) {
  EXPECT_DOUBLE_EQ(number(0).value(), 0.25);
  EXPECT_DOUBLE_EQ(number(5).value(), 0.75);
  EXPECT_EQ(changing.count() + changed.count(), 0);
}

TEST_F(Picker, ASliderSaysWhereItIsAndAtItsEndThatItIsDone) {
  ColourSlider& red = slider(0);
  const int middle = red.height() / 2;
  QTest::mousePress(&red, Qt::LeftButton, {}, {red.width() / 2, middle});
  QTest::mouseMove(&red, {red.width() - 4, middle});
  EXPECT_GE(changing.count(), 2);
  EXPECT_EQ(changed.count(), 0);
  QTest::mouseRelease(&red, Qt::LeftButton, {}, {red.width() - 4, middle});
  EXPECT_EQ(changed.count(), 1);
  EXPECT_NEAR(picker.colour().r, 1.0f, 1e-6f);
  EXPECT_EQ(picker.colour().g, 0.5f);
}

TEST_F(Picker, ASliderOfABrightColourMeansTheSameAllTheWay) {
  picker.setColour({12.5f, 3, 0.75f, 1});
  ColourSlider& red = slider(0);
  const QPoint middle(red.width() / 2, red.height() / 2);
  const float green = slider(1).position();
  QTest::mousePress(&red, Qt::LeftButton, {}, middle);
  const float pixel = 12.5f / static_cast<float>(red.width() - 8);
  for (int x : {1, 2, 3, 0, -1, 0}) {
    QTest::mouseMove(&red, middle + QPoint(x, 0));
    EXPECT_NEAR(picker.colour().r, 6.25f + static_cast<float>(x) * pixel, pixel);
    EXPECT_EQ(slider(1).position(), green) << "the others stand still";
  }
  QTest::mouseRelease(&red, Qt::LeftButton, {}, middle);
  EXPECT_EQ(red.position(), 1.0f) << "the brightest component is the end again";
  EXPECT_EQ(changed.count(), 1);
}

TEST_F(Picker, AnotherColourWhileASliderMovesHasARangeOfItsOwn) {
  picker.setColour({12.5f, 3, 0.75f, 1});
  ColourSlider& red = slider(0);
  const QPoint middle(red.width() / 2, red.height() / 2);
  QTest::mousePress(&red, Qt::LeftButton, {}, middle);
  picker.setColour({0.25f, 0.5f, 0.75f, 1});
  EXPECT_EQ(red.position(), 0.25f);
  QTest::mouseMove(&red, middle);
  EXPECT_NEAR(picker.colour().r, 0.5f, 0.01f);
}

TEST_F(Picker, ANumberIsTakenAsItIsAlsoBeyondTheSlider) {
  number(0).setValue(12.5);
  EXPECT_EQ(picker.colour(), (HIGColor{12.5f, 0.5f, 0.75f, 1}));
  EXPECT_EQ(changed.count(), 1);
  EXPECT_EQ(slider(0).position(), 1.0f);
}

TEST_F(Picker, TheSquareChoosesSaturationAndValue) {
  const QRectF square = field().squareArea();
  QTest::mouseClick(&field(), Qt::LeftButton, {}, square.center().toPoint());
  EXPECT_NEAR(number(4).value(), 0.5, 0.02);
  EXPECT_NEAR(number(5).value(), 0.5, 0.02);
  EXPECT_NEAR(number(3).value(), 7.0 / 12, 1e-4) << "the hue stays";
  EXPECT_EQ(changed.count(), 1);
}

TEST_F(Picker, TheRingAndTheStripChooseTheHue) {
  const QRectF ring = field().hueArea();
  QTest::mouseClick(&field(), Qt::LeftButton, {},
                    QPointF(ring.center().x(), ring.top() + 5).toPoint());
  EXPECT_NEAR(number(3).value(), 0.25, 0.01);
  field().setShape(ColourField::kSquare);
  const QRectF strip = field().hueArea();
  QTest::mouseClick(&field(), Qt::LeftButton, {}, strip.center().toPoint());
  EXPECT_NEAR(number(3).value(), 0.5, 0.01);
}

TEST_F(Picker, TheShapeIsAPreference) {
  QTest::mouseClick(picker.findChild<QToolButton*>(QStringLiteral("shape")), Qt::LeftButton);
  EXPECT_EQ(field().shape(), ColourField::kSquare);
  const ColourPicker next;
  EXPECT_EQ(next.findChild<ColourField*>()->shape(), ColourField::kSquare);
}

TEST_F(Picker, WhatLiesBesideTheFieldIsNotTaken) {
  QTest::mouseClick(&field(), Qt::LeftButton, {}, {1, 1});
  EXPECT_EQ(changed.count(), 0);
}

TEST_F(Picker, KeysMoveInTheSquareAndTurnTheHue) {
  QTest::keyClick(&field(), Qt::Key_Up);
  EXPECT_NEAR(number(5).value(), 0.76, 1e-4);
  QTest::keyClick(&field(), Qt::Key_PageUp, Qt::ShiftModifier);
  EXPECT_NEAR(number(3).value(), 7.0 / 12 + 0.1, 1e-4);
  EXPECT_EQ(changed.count(), 2);
}

TEST_F(Picker, AHueKeyLeavesABrightColourAsBright) {
  picker.setColour({12.5f, 6, 6, 1});
  QTest::keyClick(&field(), Qt::Key_PageUp);
  EXPECT_EQ(picker.colour().r, 12.5f);
  EXPECT_NEAR(picker.colour().g, 6 + 0.06f * 6.5f, 1e-3f);
  EXPECT_NEAR(picker.colour().b, 6, 1e-3f);
}

TEST_F(Picker, AKeyMovesOnePartAlone) {
  const auto after = [this](const orvuilib::Hsv& before, Qt::Key key) {
    field().setHsv(before);
    QTest::keyClick(&field(), key);
    return field().hsv();
  };
  EXPECT_FLOAT_EQ(after({0.25f, 0.5f, 12.5f}, Qt::Key_Up).v, 12.51f) << "no brightness is the last";
  EXPECT_EQ(after({0.25f, 0.5f, 0.005f}, Qt::Key_Down).v, 0.0f);
  EXPECT_EQ(after({0.25f, 0.5f, 12.5f}, Qt::Key_Right).v, 12.5f);
  EXPECT_EQ(after({0.25f, 0.995f, 0.5f}, Qt::Key_Right).s, 1.0f);
  EXPECT_NEAR(after({0.995f, 0.5f, 0.5f}, Qt::Key_PageUp).h, 0.005f, 1e-6f);
}

TEST_F(Picker, AGreyLetsTheHueBeChosen) {
  picker.setColour({0.5f, 0.5f, 0.5f, 1});
  const QRectF ring = field().hueArea();
  QTest::mouseClick(&field(), Qt::LeftButton, {},
                    QPointF(ring.center().x(), ring.top() + 5).toPoint());
  number(4).setValue(1.0);
  EXPECT_NEAR(picker.colour().r, 0.25f, 0.02f);
  EXPECT_NEAR(picker.colour().g, 0.5f, 0.02f);
}

TEST_F(Picker, TakesACodeAndRefusesWhatIsNone) {
  auto& code = *picker.findChild<QLineEdit*>(QStringLiteral("colourCode"));
  code.selectAll();
  QTest::keyClicks(&code, "#ff0000");
  QTest::keyClick(&code, Qt::Key_Return);
  EXPECT_EQ(picker.colour(), (HIGColor{1, 0, 0, 1}));
  code.selectAll();
  QTest::keyClicks(&code, "mud");
  QTest::keyClick(&code, Qt::Key_Return);
  EXPECT_EQ(code.text(), "#ff0000");
  EXPECT_EQ(changed.count(), 1);
}

TEST_F(Picker, TheScreenGivesAColourUnlessItIsCancelled) {
  auto& dropper = *picker.findChild<QToolButton*>(QStringLiteral("eyeDropper"));
  EXPECT_FALSE(dropper.isEnabled());
  orvUI_v1::setEyeDropperHandler([](HIGColor* colour) {
    *colour = {0.1f, 0.2f, 0.3f, 1};
    return true;
  });
  picker.setColour({0, 0, 0, 0.5f});
  dropper.click();
  EXPECT_EQ(picker.colour(), (HIGColor{0.1f, 0.2f, 0.3f, 0.5f})) << "alpha is not on the screen";
  orvUI_v1::setEyeDropperHandler([](HIGColor* colour) {
    *colour = {1, 1, 1, 1};
    return false;
  });
  dropper.click();
  EXPECT_EQ(picker.colour(), (HIGColor{0.1f, 0.2f, 0.3f, 0.5f}));
}

TEST_F(Picker, FollowsAnEyeDropperThatComesAndGoes) {
  auto& dropper = *picker.findChild<QToolButton*>(QStringLiteral("eyeDropper"));
  EXPECT_FALSE(dropper.isEnabled());
  orvUI_v1::setEyeDropperHandler([](HIGColor*) { return false; });
  EXPECT_TRUE(dropper.isEnabled());
  orvUI_v1::setEyeDropperHandler(nullptr);
  EXPECT_FALSE(dropper.isEnabled());
}

TEST_F(Picker, MixesInTheSpaceAndPaintsThroughTheView) {
  HalvingHandler handler;
  EXPECT_DOUBLE_EQ(number(0).value(), 0.125) << "it follows the handler that was registered";
  number(0).setValue(0.5);
  EXPECT_EQ(picker.colour().r, 1.0f);
  handler.setEnabled(false);
  EXPECT_DOUBLE_EQ(number(0).value(), 1.0);
  handler.setEnabled(true);
  EXPECT_DOUBLE_EQ(number(0).value(), 0.5);
}

TEST_F(Picker, ChoosesSpacesAndTellsWhenOneIsRefused) {
  HalvingHandler handler;
  auto& spaces = *picker.findChild<QComboBox*>(QStringLiteral("mixingSpace"));
  EXPECT_EQ(spaces.currentText(), "Half");
  emit spaces.textActivated(QStringLiteral("Other"));
  EXPECT_EQ(handler.mixingSpace(), "Other");
  emit spaces.textActivated(QStringLiteral("Refused"));
  EXPECT_EQ(handler.mixingSpace(), "Other");
  EXPECT_EQ(spaces.currentText(), "Other");
  auto& note = *picker.findChild<QLabel*>(QStringLiteral("note"));
  EXPECT_TRUE(note.isVisible());
  EXPECT_EQ(note.text(), "Refused cannot be used");
  emit spaces.textActivated(QStringLiteral("Other"));
  EXPECT_FALSE(note.isVisible()) << "the space in force can be used";
  emit spaces.textActivated(QStringLiteral("Refused"));
  picker.setColour({0, 0, 0, 1});
  EXPECT_FALSE(note.isVisible()) << "another colour begins anew";
}

TEST_F(Picker, KeepsTheChoiceThatWasTakenAndNotTheOneRefused) {
  HalvingHandler handler;
  auto& spaces = *picker.findChild<QComboBox*>(QStringLiteral("mixingSpace"));
  const auto kept = [] {
    return orvuilib::Preferences::instance().section("colorManagement").value("mixingSpace");
  };
  emit spaces.textActivated(QStringLiteral("Other"));
  EXPECT_EQ(kept().toString(), "Other");
  emit spaces.textActivated(QStringLiteral("Refused"));
  EXPECT_EQ(kept().toString(), "Other");
}

TEST_F(Picker, KeepsTheViewOfTheSpaceThatWasChosen) {
  HalvingHandler handler;
  auto& spaces = *picker.findChild<QComboBox*>(QStringLiteral("mixingSpace"));
  auto& views = *picker.findChild<QComboBox*>(QStringLiteral("viewSpace"));
  const auto kept = [] {
    return orvuilib::Preferences::instance().section("colorManagement").value("viewSpace");
  };
  emit views.textActivated(QStringLiteral("Dim"));
  EXPECT_EQ(kept().toString(), "Dim");
  emit spaces.textActivated(QStringLiteral("Other"));
  EXPECT_EQ(kept().toString(), "Bright") << "the view that this space had";
  emit spaces.textActivated(QStringLiteral("Half"));
  EXPECT_EQ(kept().toString(), "Dim");
  emit spaces.textActivated(QStringLiteral("Plain"));
  EXPECT_TRUE(kept().isUndefined()) << "it has no views";
}

TEST_F(Picker, StandsHostileColours) {
  const float inf = std::numeric_limits<float>::infinity();
  const float nan = std::numeric_limits<float>::quiet_NaN();
  for (const HIGColor& colour :
       {HIGColor{nan, inf, -inf, nan}, HIGColor{-5, 1e38f, 0, 2}, HIGColor{inf, inf, inf, -1}}) {
    picker.setColour(colour);
    EXPECT_FALSE(picker.grab().isNull());
  }
  EXPECT_EQ(changing.count() + changed.count(), 0);
}

TEST_F(Picker, KeepsColoursInThePalette) {
  ColourPalette::keep({1, 0, 0, 1});
  ColourPalette::keep({1, 0, 0, 1});
  ColourPalette::keep({0, 1, 0, 1});
  EXPECT_THAT(ColourPalette::kept(), ElementsAre(HIGColor{1, 0, 0, 1}, HIGColor{0, 1, 0, 1}));
  ColourPalette::drop(0);
  ColourPalette::drop(7);
  EXPECT_THAT(ColourPalette::kept(), ElementsAre(HIGColor{0, 1, 0, 1}));
  QTest::qWait(0);
  auto* palette = picker.findChild<ColourPalette*>();
  auto* swatch = palette->findChild<ColourSwatch*>();
  QTest::mouseClick(swatch, Qt::LeftButton);
  EXPECT_EQ(picker.colour(), (HIGColor{0, 1, 0, 1}));
}

TEST_F(Picker, RemembersTheLastColours) {
  for (int i = 0; i < 20; ++i) ColourPalette::noteChosen({static_cast<float>(i), 0, 0, 1});
  ColourPalette::noteChosen({15, 0, 0, 1});
  const auto recent = ColourPalette::recent();
  ASSERT_EQ(recent.size(), 12u);
  EXPECT_EQ(recent[0].r, 15.0f);
  EXPECT_EQ(recent[1].r, 19.0f);
}

}  // namespace
