#include "standalone/colour/TransformCache.h"

#include <gtest/gtest.h>

#include "standalone/colour/MixingSpace.h"
#include "tests/standalone/colour/ColourTesting.h"

namespace vesk::colour {
namespace {

using testing::kPlainConfiguration;
using testing::parse;
using testing::randomColours;
using testing::relativeError;

constexpr float kTolerance = 1e-5f;

/// Every colour space and every view of every display of the shipped configuration.
std::vector<Target> shippedTargets() {
  std::vector<Target> targets{{"ACES2065-1", ""}};
  for (const MixingSpace& space : listMixingSpaces(*parse(kShippedConfiguration))) {
    if (!space.hasViews()) targets.push_back({space.name, ""});
    for (const std::string& view : space.views) targets.push_back({space.name, view});
  }
  return targets;
}

/// Without the views whose tone curve cuts off what the display cannot show.
std::vector<Target> invertibleTargets() {
  std::vector<Target> targets = shippedTargets();
  std::erase_if(targets, [](const Target& target) { return target.view == "Film"; });
  return targets;
}

std::string nameOf(const ::testing::TestParamInfo<Target>& info) {
  std::string name = info.param.space + "_" + info.param.view;
  std::erase_if(name, [](char c) { return !std::isalnum(static_cast<unsigned char>(c)); });
  return name;
}

KColor applyOcio(const OCIO::ConstProcessorRcPtr& processor, const KColor& colour) {
  KColor result = colour;
  processor->getOptimizedCPUProcessor(OCIO::OPTIMIZATION_LOSSLESS)->applyRGBA(&result.r);
  return result;
}

class EachTarget : public ::testing::TestWithParam<Target> {
 protected:
  /// The processor that OpenColorIO gives a program that asks for it by name.
  OCIO::ConstProcessorRcPtr reference(OCIO::TransformDirection direction) const {
    const auto& [space, view] = GetParam();
    const bool forward = direction == OCIO::TRANSFORM_DIR_FORWARD;
    if (!view.empty()) {
      return config->getProcessor("ACEScg", space.c_str(), view.c_str(), direction);
    }
    return forward ? config->getProcessor("ACEScg", space.c_str())
                   : config->getProcessor(space.c_str(), "ACEScg");
  }

  OCIO::ConstConfigRcPtr config = parse(kShippedConfiguration);
  TransformCache cache{config};
};

TEST_P(EachTarget, GivesWhatOpenColorIOGivesOnTheWayThere) {
  const TransformPair transforms = cache.find(GetParam());
  const auto processor = reference(OCIO::TRANSFORM_DIR_FORWARD);
  for (const KColor& colour : randomColours(-0.5f, 8)) {
    const KColor expected = applyOcio(processor, colour);
    ASSERT_EQ(expected, transforms.apply(colour, Direction::FromRendering));
  }
}

TEST_P(EachTarget, GivesWhatOpenColorIOGivesOnTheWayBack) {
  const TransformPair transforms = cache.find(GetParam());
  const auto processor = reference(OCIO::TRANSFORM_DIR_INVERSE);
  for (const KColor& colour : randomColours(0, 1)) {
    const KColor expected = applyOcio(processor, colour);
    ASSERT_EQ(expected, transforms.apply(colour, Direction::ToRendering));
  }
}

using EachInvertibleTarget = EachTarget;

TEST_P(EachInvertibleTarget, LeadsBackForAThousandColours) {
  const TransformPair transforms = cache.find(GetParam());
  for (const KColor& colour : randomColours(-0.5f, 8)) {
    const KColor there = transforms.apply(colour, Direction::FromRendering);
    const KColor back = transforms.apply(there, Direction::ToRendering);
    ASSERT_LE(relativeError(back, colour), kTolerance) << ::testing::PrintToString(colour);
  }
}

TEST_P(EachTarget, SurvivesComponentsThatAreNoColours) {
  const TransformPair transforms = cache.find(GetParam());
  for (const KColor& colour : testing::hostileColours()) {
    for (const auto direction : {Direction::FromRendering, Direction::ToRendering}) {
      const KColor result = transforms.apply(colour, direction);
      ASSERT_TRUE(result.a == colour.a || std::isnan(colour.a));
    }
  }
}

TEST_P(EachTarget, BuildsItsTwoProcessorsOnce) {
  for (int i = 0; i < 5; ++i) cache.find(GetParam());
  EXPECT_EQ(2u, cache.size());
}

INSTANTIATE_TEST_SUITE_P(Shipped, EachTarget, ::testing::ValuesIn(shippedTargets()), nameOf);
INSTANTIATE_TEST_SUITE_P(Shipped, EachInvertibleTarget, ::testing::ValuesIn(invertibleTargets()),
                         nameOf);

TEST(TransformCache, TellsLinearSpacesFromEncodedOnes) {
  TransformCache cache(parse(kShippedConfiguration));
  EXPECT_TRUE(cache.find({"ACEScg", ""}).isLinear());
  EXPECT_TRUE(cache.find({"Linear Rec.709", ""}).isLinear());
  EXPECT_TRUE(cache.find({"sRGB Monitor", "Raw"}).isLinear());
  EXPECT_FALSE(cache.find({"sRGB Texture", ""}).isLinear());
  EXPECT_FALSE(cache.find({"ACEScct", ""}).isLinear());
  EXPECT_FALSE(cache.find({"P3-D65 Cinema", "Standard"}).isLinear());
  EXPECT_FALSE(cache.find({"sRGB Monitor", "Film"}).isLinear());
}

TEST(TransformCache, KeepsWhatTheDisplayCanShowThroughTheToneCurve) {
  constexpr float kToneCurveTolerance = 5e-3f;  // the curve's own inverse is an approximation
  TransformCache cache(parse(kShippedConfiguration));
  const TransformPair film = cache.find({"sRGB Monitor", "Film"});
  for (const KColor& shown : randomColours(0.3f, 0.7f)) {
    const KColor light = film.apply(shown, Direction::ToRendering);
    const KColor again = film.apply(light, Direction::FromRendering);
    ASSERT_LE(relativeError(again, shown), kToneCurveTolerance) << ::testing::PrintToString(shown);
  }
}

TEST(TransformCache, ThrowsWhenAFileOfTheConfigurationIsMissing) {
  TransformCache cache(parse(kPlainConfiguration));
  EXPECT_THROW(cache.find({"Broken", ""}), OCIO::Exception);
  EXPECT_THROW(cache.find({"Monitor", "Lost"}), OCIO::Exception);
  EXPECT_EQ(0u, cache.size());
}

TEST(TransformCache, ThrowsForNamesTheConfigurationLacks) {
  TransformCache cache(parse(kPlainConfiguration));
  EXPECT_THROW(cache.find({"Twilight", ""}), OCIO::Exception);
  EXPECT_THROW(cache.find({"Monitor", "Twilight"}), OCIO::Exception);
}

TEST(TransformPair, LeavesColoursAsTheyAreWhenDefaultBuilt) {
  const KColor colour(-1, 0.5f, 20, 0.25f);
  EXPECT_EQ(colour, TransformPair().apply(colour, Direction::FromRendering));
  EXPECT_EQ(colour, TransformPair().apply(colour, Direction::ToRendering));
}

}  // namespace
}  // namespace vesk::colour
