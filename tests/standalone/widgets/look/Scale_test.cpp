#include "standalone/widgets/look/Scale.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFont>

using namespace orvuilib;
using orvUI_v1::DPIPreset;
using orvUI_v1::setCustomDPIScaling;

namespace {

class ScaleTest : public testing::Test {
 protected:
  ~ScaleTest() override {
    setCustomDPIScaling(DPIPreset::kScale100);
    QApplication::setFont(before);
  }

  static void setText(int pixels) {
    QFont font = QApplication::font();
    font.setPixelSize(pixels);
    QApplication::setFont(font);
  }

  const QFont before = QApplication::font();
};

TEST_F(ScaleTest, GoesByTheHeightOfTheProgramsText) {
  const std::pair<int, qreal> expected[] = {{13, 1}, {16, 1.25}, {20, 1.5}, {23, 1.75}, {26, 2}};
  for (const auto& [pixels, scale] : expected) {
    setText(pixels);
    EXPECT_EQ(currentScale(), scale) << pixels;
  }
}

TEST_F(ScaleTest, IsNeverSmallerThanOne) {
  setText(7);
  EXPECT_EQ(currentScale(), 1);
}

TEST_F(ScaleTest, APresetHoldsWhateverTheText) {
  setText(13);
  setCustomDPIScaling(DPIPreset::kScale150);
  EXPECT_EQ(currentScale(), 1.5);
  setCustomDPIScaling(DPIPreset::kScale200);
  EXPECT_EQ(currentScale(), 2);
}

}  // namespace
