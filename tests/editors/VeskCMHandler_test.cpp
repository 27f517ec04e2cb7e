// The module's colour management, from the loading of the real module to its unloading.

#include <gmock/gmock.h>

#include <QJsonObject>
#include <bit>
#include <cmath>
#include <limits>
#include <random>

#include "platform/OpenVeskRender/KColorMixingSpaceHelper.h"
#include "platform/OpenVeskRender/KColorPickerUtilities.h"
#include "standalone/colour/ColourService.h"
#include "standalone/host/engine/HostAccess.h"
#include "standalone/widgets/colour/ColourRegistry.h"
#include "standalone/widgets/preferences/Preferences.h"
#include "testPaths.h"
#include "tests/standalone/colour/ColourTesting.h"
#include "tests/support/HostTest.h"

using orvUI_v1::ColorManagementHandler;
using orvUI_v1::HIGColor;

namespace {

int directionOfBase = -1;
int questionsForViews = 0;

}  // namespace

/// In place of the library's, to see what reaches it.
HIGColor ColorManagementHandler::applyMixingTransform(const HIGColor& color,
                                                      Direction direction) const {
  directionOfBase = direction;
  return color;
}

/// In place of the host's, to see whether it is asked.
KStringArray KColorMixingSpaceHelper::getViewNames(KStatus*) const {
  ++questionsForViews;
  return HostAccess::stringArray(vesk::colour::ColourService::current()->mixingSpace().views);
}

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

  ColorManagementHandler& handler() { return *orvuilib::ColourRegistry::instance().handler(); }

  static HIGColor same(const KColor& color) { return std::bit_cast<HIGColor>(color); }

  ColourService service{{.readsEnvironment = false}};
  hosttest::Host host;
};

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
  questionsForViews = 0;
  EXPECT_THAT(handler().getViewSpaceNames(), IsEmpty());
  EXPECT_EQ(questionsForViews, 0) << "the host is not asked for what is not there";
  EXPECT_EQ(handler().viewSpace(), "");
  ASSERT_TRUE(handler().setMixingSpace("sRGB Monitor"));
  EXPECT_THAT(handler().getViewSpaceNames(), ElementsAre("Standard", "Film", "Log", "Raw"));
  EXPECT_EQ(questionsForViews, 1);
  EXPECT_TRUE(handler().setViewSpace("Log"));
  EXPECT_EQ(handler().viewSpace(), "Log");
  EXPECT_EQ(service.screen().view, "Log");
}

/// What the base keeps, as it would be stored.
std::pair<QString, QString> keptByBase(const ColorManagementHandler& handler) {
  handler.saveUserPrefs();
  const QJsonObject section = orvuilib::Preferences::instance().section("colorManagement");
  orvuilib::Preferences::instance().replaceAll({});
  return {section.value("mixingSpace").toString(), section.value("viewSpace").toString()};
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

/// The module is loaded in the test.
class CMHandlerAtLoad : public ::testing::Test {
 protected:
  ~CMHandlerAtLoad() override { orvuilib::Preferences::instance().replaceAll({}); }

  ColorManagementHandler& load() {
    EXPECT_TRUE(host.session().plugins().load(kModule));
    return *orvuilib::ColourRegistry::instance().handler();
  }

  hosttest::Host host;
};

TEST_F(CMHandlerAtLoad, BeginsWithWhatTheHostHasAndWritesNothingBack) {
  ColourService service{{.readsEnvironment = false}};
  ASSERT_TRUE(service.setMixingSpace("P3-D65 Cinema"));
  ASSERT_TRUE(service.setView("Film"));
  int changes = 0;
  service.setChangeListener([&changes] { ++changes; });
  const ColorManagementHandler& handler = load();
  EXPECT_EQ(keptByBase(handler), std::pair(QString("P3-D65 Cinema"), QString("Film")));
  EXPECT_EQ(changes, 0);
}

TEST_F(CMHandlerAtLoad, IsThereWithTheHostsColourManagementOff) {
  ColourService service{{.readsEnvironment = false, .enabled = false}};
  ColorManagementHandler& handler = load();
  EXPECT_FALSE(handler.isColorManagementAvailable());
  EXPECT_TRUE(handler.enabled());
  EXPECT_EQ(handler.mixingSpace(), "");
  EXPECT_FALSE(handler.setMixingSpace("ACEScg"));
  EXPECT_EQ(keptByBase(handler), std::pair(QString(), QString()));
  service.setEnabled(true);
  EXPECT_TRUE(handler.isColorManagementAvailable());
  EXPECT_EQ(handler.mixingSpace(), "sRGB Texture");
}

TEST_F(CMHandlerAtLoad, IsThereWithoutColourManagementAtAll) {
  ColorManagementHandler& handler = load();
  EXPECT_FALSE(handler.isColorManagementAvailable());
  EXPECT_EQ(handler.mixingSpace() + handler.viewSpace(), "");
  EXPECT_THAT(handler.getMixingSpaceNames(), IsEmpty());
  const HIGColor colour{-1, 0.5f, 1e30f, 0.25f};
  EXPECT_EQ(handler.applyViewTransform(colour, ColorManagementHandler::kInverse), colour);
  EXPECT_EQ(handler.applyMixingTransform(colour, ColorManagementHandler::kInverse), colour);
  EXPECT_EQ(handler.mixingToSlider(0.25f, 0, 1), 0.25f);
  EXPECT_EQ(handler.sliderToMixing(0.25f, 0, 1), 0.25f);
}

TEST_F(CMHandlerAtLoad, ComesAgainAsOftenAsTheModuleDoes) {
  ColourService service{{.readsEnvironment = false}};
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(load().mixingSpace(), "sRGB Texture");
    host.run("unloadPlugin veskOrvPlugin");
    EXPECT_FALSE(orvuilib::ColourRegistry::instance().handler());
  }
}

TEST_F(CMHandler, TransformsAsTheHostDoes) {
  const KColorMixingSpaceHelper helper;
  for (const char* space : {"sRGB Texture", "ACEScct", "sRGB Monitor"}) {
    ASSERT_TRUE(handler().setMixingSpace(space));
    for (const KColor& color : vesk::colour::testing::randomColours(-1, 8)) {
      const HIGColor colour = same(color);
      EXPECT_EQ(handler().applyMixingTransform(colour, ColorManagementHandler::kForward),
                same(helper.applyMixingTransform(color, KColorMixingSpaceHelper::kRenderingToMixing,
                                                 nullptr)));
      EXPECT_EQ(handler().applyViewTransform(colour, ColorManagementHandler::kInverse),
                same(KColorPickerUtilities::applyViewTransform(
                    color, KColorPickerUtilities::kViewToRendering)));
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

TEST_F(CMHandler, AnyDirectionButZeroReachesTheHostAsOne) {
  const HIGColor colour{0.2f, 0.4f, 0.6f, 0.5f};
  EXPECT_EQ(handler().applyMixingTransform(colour, kTwo),
            handler().applyMixingTransform(colour, ColorManagementHandler::kInverse));
  EXPECT_EQ(handler().applyViewTransform(colour, kTwo),
            handler().applyViewTransform(colour, ColorManagementHandler::kInverse));
  EXPECT_NE(handler().applyMixingTransform(colour, kTwo),
            handler().applyMixingTransform(colour, ColorManagementHandler::kForward));
}

TEST_F(CMHandler, TheBaseGetsTheDirectionAsItIs) {
  handler().setEnabled(false);
  handler().applyMixingTransform({}, kTwo);
  EXPECT_EQ(directionOfBase, 2);
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
  orvuilib::Preferences::instance().replaceAll({});
  ASSERT_TRUE(handler().setMixingSpace("sRGB Monitor"));
  ASSERT_TRUE(handler().setViewSpace("Film"));
  handler().saveUserPrefs();
  ASSERT_TRUE(handler().setMixingSpace("ACEScg"));
  handler().restoreUserPrefs();
  EXPECT_EQ(handler().mixingSpace(), "sRGB Monitor");
  EXPECT_EQ(handler().viewSpace(), "Film");
  orvuilib::Preferences::instance().replaceAll({});
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
