#include "platform/OpenVeskRender/KColorMixingSpaceHelper.h"

#include <gmock/gmock.h>

#include <optional>

#include "standalone/host/engine/HostAccess.h"
#include "tests/standalone/colour/ColourTesting.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using vesk::colour::ColourService;
using namespace vesk::colour::testing;

constexpr auto kToMixing = KColorMixingSpaceHelper::kRenderingToMixing;
constexpr auto kToRendering = KColorMixingSpaceHelper::kMixingToRendering;

class HelperTest : public ::testing::Test {
 protected:
  HelperTest() {
    unsetenv("OCIO");
    service.emplace(vesk::colour::ColourOptions{.warn = warnings.sink()});
  }

  WarningLog warnings;
  std::optional<ColourService> service;
  KColorMixingSpaceHelper helper;
  KStatus status;
  const KColor colour{0.2f, 0.5f, 1.5f, 0.75f};
};

TEST_F(HelperTest, NamesTheMixingSpaces) {
  const KStringArray names = helper.getMixingSpaceNames(&status);
  EXPECT_EQ(StatusSuccess, status.statusCode());
  EXPECT_THAT(HostAccess::texts(names),
              ElementsAre("ACEScg", "Linear Rec.709", "sRGB Texture", "ACEScct", "sRGB Monitor",
                          "Rec.1886 Video", "P3-D65 Cinema"));
}

TEST_F(HelperTest, SharesTheChoiceWithOtherHelpers) {
  EXPECT_TRUE(helper.setMixingSpace("ACEScct"));
  EXPECT_TRUE(KColorMixingSpaceHelper().mixingSpace() == "ACEScct");
}

TEST_F(HelperTest, AcceptsEverySpaceAndViewItNames) {
  for (const auto& space : HostAccess::texts(helper.getMixingSpaceNames(nullptr))) {
    EXPECT_TRUE(helper.setMixingSpace(HostAccess::string(space))) << space;
    EXPECT_TRUE(helper.mixingSpace() == space.c_str());
    for (const auto& view : HostAccess::texts(helper.getViewNames(nullptr))) {
      EXPECT_TRUE(helper.setView(HostAccess::string(view))) << space << " " << view;
      EXPECT_TRUE(helper.view() == view.c_str());
    }
  }
  EXPECT_THAT(warnings.texts, IsEmpty());
}

TEST_F(HelperTest, RefusesASpaceItDoesNotName) {
  helper.setMixingSpace("ACEScg");
  EXPECT_EQ(StatusBadArgument, helper.setMixingSpace("Twilight").statusCode());
  EXPECT_TRUE(helper.mixingSpace() == "ACEScg");
  EXPECT_EQ(1u, warnings.texts.size());
}

TEST_F(HelperTest, RefusesAnEmptyName) {
  EXPECT_EQ(StatusBadArgument, helper.setMixingSpace("").statusCode());
  EXPECT_TRUE(helper.mixingSpace() == "sRGB Texture");
}

TEST_F(HelperTest, RefusesAViewItDoesNotName) {
  helper.setMixingSpace("sRGB Monitor");
  EXPECT_EQ(StatusBadArgument, helper.setView("Twilight").statusCode());
  EXPECT_TRUE(helper.view() == "Standard");
}

TEST_F(HelperTest, HasViewsOnDisplays) {
  helper.setMixingSpace("sRGB Monitor");
  EXPECT_TRUE(helper.mixingSpaceHasViews());
  EXPECT_THAT(HostAccess::texts(helper.getViewNames(&status)),
              ElementsAre("Standard", "Film", "Log", "Raw"));
  EXPECT_EQ(StatusSuccess, status.statusCode());
}

TEST_F(HelperTest, HasNoViewsOnColourSpaces) {
  helper.setMixingSpace("ACEScg");
  EXPECT_FALSE(helper.mixingSpaceHasViews());
  EXPECT_EQ(0u, helper.getViewNames(&status).length());
  EXPECT_EQ(StatusFailure, status.statusCode());
  EXPECT_TRUE(helper.view() == "");
  EXPECT_EQ(StatusFailure, helper.setView("Standard").statusCode());
}

TEST_F(HelperTest, LeadsAThousandColoursThereAndBackInEverySpace) {
  for (const auto& space : HostAccess::texts(helper.getMixingSpaceNames(nullptr))) {
    ASSERT_TRUE(helper.setMixingSpace(HostAccess::string(space)));
    for (const KColor& random : randomColours(0, 1)) {
      const KColor mixed = helper.applyMixingTransform(random, kToMixing, &status);
      ASSERT_TRUE(status);
      const KColor back = helper.applyMixingTransform(mixed, kToRendering, nullptr);
      ASSERT_LE(relativeError(back, random), 1e-5f) << space;
    }
  }
}

TEST_F(HelperTest, KnowsTheCodeOfMiddleGrey) {
  helper.setMixingSpace("sRGB Texture");
  const KColor mixed = helper.applyMixingTransform({0.18f, 0.18f, 0.18f}, kToMixing, nullptr);
  EXPECT_LE(relativeError(mixed, {0.46135613f, 0.46135613f, 0.46135613f}), 1e-4f);
}

TEST_F(HelperTest, TakesEveryOtherDirectionForTheWayBack) {
  const auto other = static_cast<KColorMixingSpaceHelper::Direction>(2);
  EXPECT_EQ(helper.applyMixingTransform(colour, kToRendering, nullptr),
            helper.applyMixingTransform(colour, other, nullptr));
}

TEST_F(HelperTest, LeadsSliderPositionsBackInEverySpace) {
  for (const auto& space : HostAccess::texts(helper.getMixingSpaceNames(nullptr))) {
    ASSERT_TRUE(helper.setMixingSpace(HostAccess::string(space)));
    for (const KColor& random : randomColours(-1, 2)) {
      const float position = helper.mixingToSlider(random.r, 0, 1);
      ASSERT_NEAR(random.r, helper.sliderToMixing(position, 0, 1), 1e-5f) << space;
    }
  }
}

/// With colour management off, and without a service, the host answers alike.
void expectUnmanaged(KColorMixingSpaceHelper& helper) {
  KStatus status;
  EXPECT_EQ(0u, helper.getMixingSpaceNames(&status).length());
  EXPECT_EQ(StatusFailure, status.statusCode());
  EXPECT_EQ(0u, helper.getMixingSpaceNames(nullptr).length());
  EXPECT_TRUE(helper.mixingSpace() == "");
  EXPECT_EQ(StatusFailure, helper.setMixingSpace("ACEScg").statusCode());
  EXPECT_FALSE(helper.mixingSpaceHasViews());
  EXPECT_EQ(0u, helper.getViewNames(nullptr).length());
  EXPECT_TRUE(helper.view() == "");
  EXPECT_EQ(StatusFailure, helper.setView("Standard").statusCode());
}

void expectUnchangedColours(const KColorMixingSpaceHelper& helper) {
  const KColor colour(-0.2f, 0.5f, 30, 0.5f);
  KStatus status;
  EXPECT_EQ(colour, helper.applyMixingTransform(colour, kToMixing, &status));
  EXPECT_EQ(StatusFailure, status.statusCode());
  EXPECT_EQ(colour, helper.applyMixingTransform(colour, kToRendering, nullptr));
  EXPECT_EQ(0.3f, helper.mixingToSlider(0.3f, 0, 1));
  EXPECT_EQ(0.3f, helper.sliderToMixing(0.3f, 0, 1));
}

TEST_F(HelperTest, KnowsNoSpacesWithColourManagementOff) {
  service->setEnabled(false);
  expectUnmanaged(helper);
  expectUnchangedColours(helper);
}

TEST_F(HelperTest, OutlivesTheService) {
  service.reset();
  expectUnmanaged(helper);
  expectUnchangedColours(helper);
}

TEST_F(HelperTest, ServesAServiceThatCameLater) {
  service.reset();
  service.emplace();
  EXPECT_TRUE(helper.setMixingSpace("ACEScg"));
}

TEST_F(HelperTest, SurvivesComponentsThatAreNoColours) {
  for (const auto& space : HostAccess::texts(helper.getMixingSpaceNames(nullptr))) {
    ASSERT_TRUE(helper.setMixingSpace(HostAccess::string(space)));
    for (const KColor& hostile : hostileColours()) {
      helper.applyMixingTransform(hostile, kToMixing, &status);
      ASSERT_TRUE(status);
      helper.applyMixingTransform(hostile, kToRendering, &status);
      ASSERT_TRUE(status);
      helper.mixingToSlider(hostile.r, hostile.g, hostile.b);
      helper.sliderToMixing(hostile.r, hostile.g, hostile.b);
    }
  }
}

}  // namespace
