// The module's colour management, from the loading of the real module to its unloading.

#include <gmock/gmock.h>

#include <bit>
#include <cmath>
#include <limits>
#include <random>

#include "platform/OpenVeskRender/KColorPickerUtilities.h"
#include "standalone/colour/ColourService.h"
#include "standalone/widgets/colour/ColourRegistry.h"
#include "standalone/widgets/preferences/Preferences.h"
#include "testPaths.h"
#include "tests/editors/ColourRecorders.h"
#include "tests/standalone/colour/ColourTesting.h"
#include "tests/support/HostTest.h"

using orvUI_v1::ColorManagementHandler;
using orvUI_v1::HIGColor;

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Direction = ColorManagementHandler::Direction;
using vesk::colour::ColourService;

constexpr const char* kModule = VESK_BUILD_DIR "/plug-ins/veskOrvPlugin.so";

/// What the host says of a direction that no enumeration names.
constexpr auto kTwo = static_cast<Direction>(2);

class CMHandler : public ::testing::Test {
 protected:
  CMHandler() { EXPECT_TRUE(host.session().plugins().load(kModule)); }
  void TearDown() override { orvuilib::Preferences::instance().replaceAll({}); }

  ColorManagementHandler& handler() { return *orvuilib::ColourRegistry::instance().handler(); }

  static HIGColor same(const KColor& color) { return std::bit_cast<HIGColor>(color); }

  ColourRecorders& recorders = ColourRecorders::instance();
  ColourService service{{.readsEnvironment = false}};
  hosttest::Host host;
};

// It is the library that forgets the handler, in the destructor of its base, and the handler that
// takes the eye-dropper away: neither is left pointing into a module that is gone.
TEST_F(CMHandler, IsThereAsLongAsTheModule) {
  ASSERT_TRUE(orvuilib::ColourRegistry::instance().handler());
  EXPECT_TRUE(orvuilib::ColourRegistry::instance().eyeDropper());
  host.run("unloadPlugin veskOrvPlugin");
  EXPECT_FALSE(orvuilib::ColourRegistry::instance().handler());
  EXPECT_FALSE(orvuilib::ColourRegistry::instance().eyeDropper());
}

TEST_F(CMHandler, OffersWhatTheHostHas) {
  EXPECT_TRUE(handler().isColorManagementAvailable());
  EXPECT_EQ(handler().getMixingSpaceNames().front(), "ACEScg");
  EXPECT_EQ(handler().getMixingSpaceNames().size(), 7);
  EXPECT_EQ(handler().mixingSpace(), "sRGB Texture");
  service.setEnabled(false);
  EXPECT_FALSE(handler().isColorManagementAvailable());
  EXPECT_THAT(handler().getMixingSpaceNames(), IsEmpty());
}

TEST_F(CMHandler, HasViewsOnlyWhereTheSpaceHas) {
  recorders.questionsForViews = 0;
  EXPECT_THAT(handler().getViewSpaceNames(), IsEmpty());
  EXPECT_EQ(recorders.questionsForViews, 0) << "the host is not asked for what is not there";
  EXPECT_EQ(handler().viewSpace(), "");
  ASSERT_TRUE(handler().setMixingSpace("sRGB Monitor"));
  EXPECT_THAT(handler().getViewSpaceNames(), ElementsAre("Standard", "Film", "Log", "Raw"));
  EXPECT_EQ(recorders.questionsForViews, 1);
  EXPECT_TRUE(handler().setViewSpace("Log"));
  EXPECT_EQ(handler().viewSpace(), "Log");
  EXPECT_EQ(service.screen().view, "Log");
}

TEST_F(CMHandler, WhatTheHostRefusesChangesNothing) {
  EXPECT_FALSE(handler().setMixingSpace("Mud"));
  EXPECT_EQ(handler().mixingSpace(), "sRGB Texture");
  EXPECT_FALSE(handler().setViewSpace("Standard")) << "the space has no views";
  EXPECT_THAT(host.takeMessages(), ::testing::SizeIs(2));
  EXPECT_EQ(keptByBase(handler()), std::pair(QString("sRGB Texture"), QString()));
  ASSERT_TRUE(handler().setMixingSpace("sRGB Monitor"));
  ASSERT_TRUE(handler().setViewSpace("Log"));
  EXPECT_FALSE(handler().setViewSpace("Mud"));
  EXPECT_THAT(host.takeMessages(), ::testing::SizeIs(1));
  EXPECT_EQ(handler().viewSpace(), "Log");
  EXPECT_EQ(keptByBase(handler()), std::pair(QString("sRGB Monitor"), QString("Log")));
}

TEST_F(CMHandler, TransformsAsTheHostDoes) {
  using vesk::colour::Direction::FromRendering;
  using vesk::colour::Direction::ToRendering;
  constexpr auto kForward = ColorManagementHandler::kForward;
  constexpr auto kInverse = ColorManagementHandler::kInverse;
  for (const char* space : {"sRGB Texture", "ACEScct", "sRGB Monitor"}) {
    ASSERT_TRUE(handler().setMixingSpace(space));
    for (const KColor& color : vesk::colour::testing::randomColours(-1, 8)) {
      const HIGColor colour = same(color);
      EXPECT_EQ(handler().applyMixingTransform(colour, kForward),
                same(service.applyMixing(color, FromRendering)));
      EXPECT_EQ(handler().applyMixingTransform(colour, kInverse),
                same(service.applyMixing(color, ToRendering)));
      EXPECT_EQ(handler().applyViewTransform(colour, kForward),
                same(service.applyView(color, FromRendering)));
      EXPECT_EQ(handler().applyViewTransform(colour, kInverse),
                same(service.applyView(color, ToRendering)));
    }
  }
}

TEST_F(CMHandler, LeadsThereAndBack) {
  for (const char* space : {"sRGB Texture", "ACEScct", "Linear Rec.709", "P3-D65 Cinema"}) {
    ASSERT_TRUE(handler().setMixingSpace(space));
    for (const KColor& color : vesk::colour::testing::randomColours(-1, 8)) {
      const HIGColor mixing =
          handler().applyMixingTransform(same(color), ColorManagementHandler::kForward);
      const HIGColor back =
          handler().applyMixingTransform(mixing, ColorManagementHandler::kInverse);
      EXPECT_LE(vesk::colour::testing::relativeError(std::bit_cast<KColor>(back), color), 1e-5f)
          << space;
    }
  }
}

TEST_F(CMHandler, LeadsViewsThereAndBack) {
  ASSERT_TRUE(handler().setMixingSpace("P3-D65 Cinema"));
  for (const char* view : {"Standard", "Log", "Raw"}) {
    ASSERT_TRUE(handler().setViewSpace(view));
    for (const KColor& color : vesk::colour::testing::randomColours(-1, 8)) {
      const HIGColor shown =
          handler().applyViewTransform(same(color), ColorManagementHandler::kForward);
      const HIGColor back = handler().applyViewTransform(shown, ColorManagementHandler::kInverse);
      EXPECT_LE(vesk::colour::testing::relativeError(std::bit_cast<KColor>(back), color), 1e-5f)
          << view;
    }
  }
}

TEST_F(CMHandler, AnyDirectionButZeroReachesTheHostAsOneAndNoStatusIsAskedFor) {
  const HIGColor colour{0.2f, 0.4f, 0.6f, 0.5f};
  for (const Direction direction :
       {ColorManagementHandler::kForward, ColorManagementHandler::kInverse, kTwo}) {
    recorders = {};
    handler().applyMixingTransform(colour, direction);
    handler().applyViewTransform(colour, direction);
    ASSERT_EQ(recorders.mixing.size(), 1u);
    ASSERT_EQ(recorders.views.size(), 1u);
    EXPECT_EQ(recorders.mixing[0].direction, direction == 0 ? 0 : 1);
    EXPECT_EQ(recorders.mixing[0].status, nullptr);
    EXPECT_EQ(recorders.views[0].direction, direction == 0 ? 0 : 1);
    EXPECT_THAT(recorders.baseDirections, IsEmpty());
  }
}

TEST_F(CMHandler, TheBaseGetsTheDirectionAsItIsAndTheHostIsNotAsked) {
  const auto transformBoth = [this] {
    recorders = {};
    handler().applyMixingTransform({}, kTwo);
    handler().applyViewTransform({}, kTwo);
    EXPECT_THAT(recorders.baseDirections, ElementsAre(2));
    EXPECT_EQ(recorders.mixing.size() + recorders.views.size(), 0u);
  };
  handler().setEnabled(false);
  transformBoth();
  handler().setEnabled(true);
  service.setEnabled(false);
  transformBoth();
}

TEST_F(CMHandler, DisabledItLeavesEverythingAsItIs) {
  ASSERT_TRUE(handler().setMixingSpace("ACEScg"));
  const HIGColor colour{0.2f, -0.4f, 6.0f, 0.5f};
  EXPECT_NE(handler().mixingToSlider(0.25f, 0, 1), 0.25f) << "a linear space is laid out";
  handler().setEnabled(false);
  EXPECT_EQ(handler().mixingSpace(), "ACEScg");
  EXPECT_EQ(handler().applyMixingTransform(colour, ColorManagementHandler::kForward), colour);
  EXPECT_EQ(handler().applyViewTransform(colour, ColorManagementHandler::kForward), colour);
  EXPECT_EQ(handler().mixingToSlider(0.25f, 0, 1), 0.25f);
  EXPECT_EQ(handler().sliderToMixing(0.25f, 0, 1), 0.25f);
}

TEST_F(CMHandler, WithoutASpaceAColourStaysBitForBit) {
  service.setEnabled(false);
  EXPECT_EQ(handler().mixingSpace(), "");
  for (const KColor& color : vesk::colour::testing::hostileColours()) {
    const HIGColor seen =
        handler().applyViewTransform(same(color), ColorManagementHandler::kForward);
    EXPECT_EQ(std::memcmp(&seen, &color, sizeof color), 0);
  }
}

TEST_F(CMHandler, SlidersGoThereAndBack) {
  ASSERT_TRUE(handler().setMixingSpace("ACEScg"));
  for (float value : {0.0f, 0.1f, 0.5f, 1.0f}) {
    const float position = handler().mixingToSlider(value, 0, 1);
    EXPECT_NEAR(handler().sliderToMixing(position, 0, 1), value, 1e-5f);
  }
}

TEST_F(CMHandler, ItsChoiceIsStoredAndComesBack) {
  ASSERT_TRUE(handler().setMixingSpace("sRGB Monitor"));
  ASSERT_TRUE(handler().setViewSpace("Film"));
  handler().saveUserPrefs();
  ASSERT_TRUE(handler().setMixingSpace("ACEScg"));
  handler().restoreUserPrefs();
  EXPECT_EQ(handler().mixingSpace(), "sRGB Monitor");
  EXPECT_EQ(handler().viewSpace(), "Film");
}

class Picker final : public vesk::colour::ScreenPicker {
 public:
  std::optional<KColor> pick() override { return answer; }
  std::optional<KColor> answer;
};

TEST_F(CMHandler, TheEyeDropperAsksTheHost) {
  Picker picker;
  service.setScreenPicker(&picker);
  picker.answer = KColor(0.5f, 0.25f, 1, 1);
  HIGColor color;
  EXPECT_TRUE(orvuilib::ColourRegistry::instance().eyeDropper()(&color));
  EXPECT_EQ(color, same(KColorPickerUtilities::applyViewTransform(
                       *picker.answer, KColorPickerUtilities::kViewToRendering)));
  picker.answer.reset();
  EXPECT_FALSE(orvuilib::ColourRegistry::instance().eyeDropper()(&color));
  EXPECT_EQ(color, (HIGColor{0, 0, 0, 1})) << "a cancelled pick overwrites the colour all the same";
  service.setScreenPicker(nullptr);
}

}  // namespace
