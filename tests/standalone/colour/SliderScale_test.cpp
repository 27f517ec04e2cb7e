#include "standalone/colour/SliderScale.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace vesk::colour {
namespace {

constexpr float kLargest = std::numeric_limits<float>::max();
constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();

TEST(SliderScale, KeepsTheEndsOfTheRange) {
  EXPECT_EQ(0.0f, lightToSlider(0, 0, 1));
  EXPECT_EQ(1.0f, lightToSlider(1, 0, 1));
  EXPECT_EQ(-2.0f, sliderToLight(-2, -2, 8));
  EXPECT_NEAR(8.0f, sliderToLight(8, -2, 8), 1e-5f);
}

TEST(SliderScale, PutsMiddleGreyInTheMiddle) {
  EXPECT_NEAR(0.5f, lightToSlider(0.1841865f, 0, 1), 1e-5f);
  EXPECT_NEAR(5.0f, lightToSlider(1.841865f, 0, 10), 0.5f);
}

TEST(SliderScale, LeadsBackForAThousandValues) {
  std::mt19937 engine(7);
  std::uniform_real_distribution<float> value(-3, 12);
  for (int i = 0; i < 1000; ++i) {
    const float light = value(engine);
    const float back = sliderToLight(lightToSlider(light, -1, 5), -1, 5);
    ASSERT_NEAR(light, back, 1e-5f * std::max(1.0f, std::abs(light)));
  }
}

TEST(SliderScale, RisesWithTheLight) {
  float previous = -kInfinity;
  for (float light = -1; light < 4; light += 0.01f) {
    const float position = lightToSlider(light, 0, 1);
    ASSERT_GT(position, previous) << "at " << light;
    previous = position;
  }
}

TEST(SliderScale, GoesOnOutsideTheRange) {
  EXPECT_GT(lightToSlider(4, 0, 1), 1.0f);
  EXPECT_LT(lightToSlider(-4, 0, 1), 0.0f);
}

TEST(SliderScale, MirrorsNegativeLight) {
  EXPECT_EQ(-lightToSlider(0.3f, -1, 1), lightToSlider(-0.3f, -1, 1));
}

TEST(SliderScale, TakesARangeThatRunsBackwards) {
  EXPECT_NEAR(0.25f, sliderToLight(lightToSlider(0.25f, 1, 0), 1, 0), 1e-6f);
}

TEST(SliderScale, LeavesValuesOfAnEmptyRange) {
  EXPECT_EQ(0.7f, lightToSlider(0.7f, 2, 2));
  EXPECT_EQ(0.7f, sliderToLight(0.7f, 2, 2));
}

TEST(SliderScale, LeavesWhatIsNotFinite) {
  EXPECT_TRUE(std::isnan(lightToSlider(kNaN, 0, 1)));
  EXPECT_EQ(kInfinity, sliderToLight(kInfinity, 0, 1));
  EXPECT_EQ(0.5f, lightToSlider(0.5f, kNaN, 1));
  EXPECT_EQ(0.5f, sliderToLight(0.5f, 0, -kInfinity));
}

TEST(SliderScale, StaysFiniteForHugeValues) {
  EXPECT_TRUE(std::isfinite(sliderToLight(kLargest, 0, 1e-45f)));
  EXPECT_TRUE(std::isfinite(lightToSlider(-kLargest, 0, 1)));
  EXPECT_TRUE(std::isfinite(lightToSlider(1, -kLargest, kLargest)));
  EXPECT_TRUE(std::isfinite(sliderToLight(1, -kLargest, kLargest)));
}

}  // namespace
}  // namespace vesk::colour
