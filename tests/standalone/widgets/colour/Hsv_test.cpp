#include "standalone/widgets/colour/Hsv.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>
#include <random>

namespace {

using orvUI_v1::HIGColor;
using orvuilib::fromHsv;
using orvuilib::Hsv;
using orvuilib::toHsv;

TEST(Hsv, KnowsThePrimaries) {
  EXPECT_EQ(toHsv({1, 0, 0}, {}), (Hsv{0, 1, 1}));
  EXPECT_EQ(toHsv({0, 1, 0}, {}), (Hsv{1.0f / 3, 1, 1}));
  EXPECT_EQ(toHsv({0, 0, 1}, {}), (Hsv{2.0f / 3, 1, 1}));
}

TEST(Hsv, LeadsBack) {
  std::mt19937 random(3);
  std::uniform_real_distribution<float> component(0.0f, 4.0f);
  for (int i = 0; i < 1000; ++i) {
    const HIGColor colour{component(random), component(random), component(random), 0.5f};
    const HIGColor back = fromHsv(toHsv(colour, {}), colour.a);
    EXPECT_NEAR(back.r, colour.r, 1e-5f);
    EXPECT_NEAR(back.g, colour.g, 1e-5f);
    EXPECT_NEAR(back.b, colour.b, 1e-5f);
    EXPECT_EQ(back.a, 0.5f);
  }
}

TEST(Hsv, AGreyKeepsTheHueThatWasThere) {
  EXPECT_EQ(toHsv({0.5f, 0.5f, 0.5f}, {0.3f, 0.8f, 1}), (Hsv{0.3f, 0, 0.5f}));
}

TEST(Hsv, BlackKeepsHueAndSaturation) {
  EXPECT_EQ(toHsv({0, 0, 0}, {0.3f, 0.8f, 1}), (Hsv{0.3f, 0.8f, 0}));
}

TEST(Hsv, RedKeepsTheFarEndOfTheHues) {
  EXPECT_EQ(toHsv({1, 0, 0}, {1, 1, 1}).h, 1.0f);
  EXPECT_EQ(fromHsv({1, 1, 1}), fromHsv({0, 1, 1}));
}

TEST(Hsv, WhatIsNoColourGivesNumbers) {
  const float inf = std::numeric_limits<float>::infinity();
  const float nan = std::numeric_limits<float>::quiet_NaN();
  for (const HIGColor& colour : {HIGColor{-1, -2, -3}, HIGColor{nan, nan, nan}, HIGColor{inf, 0, 0},
                                 HIGColor{inf, inf, 1}, HIGColor{-inf, 1, nan}}) {
    const Hsv hsv = toHsv(colour, {});
    EXPECT_TRUE(std::isfinite(hsv.h) && std::isfinite(hsv.s) && std::isfinite(hsv.v));
  }
}

}  // namespace
