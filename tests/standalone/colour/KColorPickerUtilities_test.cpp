#include "platform/OpenVeskRender/KColorPickerUtilities.h"

#include <gtest/gtest.h>

#include <optional>

#include "tests/standalone/colour/ColourTesting.h"

namespace {

using vesk::colour::ColourService;
using namespace vesk::colour::testing;

constexpr auto kToView = KColorPickerUtilities::kRenderingToView;
constexpr auto kToRendering = KColorPickerUtilities::kViewToRendering;

/// A user who always points at the same colour, or cancels.
class FixedPicker : public vesk::colour::ScreenPicker {
 public:
  explicit FixedPicker(std::optional<KColor> colour) : colour_(colour) {}
  std::optional<KColor> pick() override { return colour_; }

 private:
  std::optional<KColor> colour_;
};

class PickerTest : public ::testing::Test {
 protected:
  PickerTest() {
    unsetenv("OCIO");
    service.emplace();
  }

  void expectNothingPicked() {
    status = StatusSuccess;
    EXPECT_EQ(KColor(0, 0, 0, 1), KColorPickerUtilities::grabColor(&status));
    EXPECT_EQ(StatusFailure, status.statusCode());
  }

  std::optional<ColourService> service;
  FixedPicker picker{KColor(0.2f, 0.4f, 0.6f)};
  KStatus status;
  const KColor colour{0.2f, 0.5f, 1.5f, 0.75f};
};

TEST_F(PickerTest, LeadsAThousandColoursToTheViewAndBack) {
  for (const KColor& random : randomColours(0, 1)) {
    const KColor shown = KColorPickerUtilities::applyViewTransform(random, kToView);
    const KColor back = KColorPickerUtilities::applyViewTransform(shown, kToRendering);
    ASSERT_LE(relativeError(back, random), 1e-5f);
  }
}

TEST_F(PickerTest, ShowsColoursAsOpenColorIODoes) {
  const auto reference = service->configuration()
                             .config
                             ->getProcessor("scene_linear", "sRGB Monitor", "Standard",
                                            vesk::colour::OCIO::TRANSFORM_DIR_FORWARD)
                             ->getDefaultCPUProcessor();
  for (const KColor& random : randomColours(0, 4)) {
    KColor expected = random;
    reference->applyRGBA(&expected.r);
    ASSERT_LE(relativeError(KColorPickerUtilities::applyViewTransform(random, kToView), expected),
              1e-5f);
  }
}

TEST_F(PickerTest, TakesEveryOtherDirectionForTheWayBack) {
  const auto other = static_cast<KColorPickerUtilities::Direction>(2);
  EXPECT_EQ(KColorPickerUtilities::applyViewTransform(colour, kToRendering),
            KColorPickerUtilities::applyViewTransform(colour, other));
}

TEST_F(PickerTest, LeavesColoursWithColourManagementOff) {
  service->setEnabled(false);
  EXPECT_EQ(colour, KColorPickerUtilities::applyViewTransform(colour, kToView));
  service.reset();
  EXPECT_EQ(colour, KColorPickerUtilities::applyViewTransform(colour, kToRendering));
}

TEST_F(PickerTest, SurvivesComponentsThatAreNoColours) {
  for (const KColor& hostile : hostileColours()) {
    KColorPickerUtilities::applyViewTransform(hostile, kToView);
    KColorPickerUtilities::applyViewTransform(hostile, kToRendering);
  }
}

TEST_F(PickerTest, GrabsAColourInTheRenderingSpace) {
  service->setScreenPicker(&picker);
  const KColor grabbed = KColorPickerUtilities::grabColor(&status);
  EXPECT_EQ(StatusSuccess, status.statusCode());
  const KColor shown = KColorPickerUtilities::applyViewTransform(grabbed, kToView);
  EXPECT_LE(relativeError(shown, {0.2f, 0.4f, 0.6f}), 1e-5f);
}

TEST_F(PickerTest, GrabsTheColourOfTheScreenWithColourManagementOff) {
  service->setScreenPicker(&picker);
  service->setEnabled(false);
  EXPECT_EQ(KColor(0.2f, 0.4f, 0.6f), KColorPickerUtilities::grabColor(nullptr));
}

TEST_F(PickerTest, GrabsBlackWithFailureWhenTheUserCancels) {
  FixedPicker cancelling{std::nullopt};
  service->setScreenPicker(&cancelling);
  expectNothingPicked();
}

TEST_F(PickerTest, GrabsBlackWithFailureWithoutAPicker) {
  expectNothingPicked();
  service->setScreenPicker(&picker);
  service->setScreenPicker(nullptr);
  expectNothingPicked();
  EXPECT_EQ(KColor(0, 0, 0, 1), KColorPickerUtilities::grabColor(nullptr));
}

TEST_F(PickerTest, GrabsBlackWithFailureWithoutAService) {
  service.reset();
  expectNothingPicked();
}

}  // namespace
