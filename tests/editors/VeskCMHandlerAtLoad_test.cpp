// The module's colour management while the real module is loaded, and what it finds then.

#include <gmock/gmock.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QToolButton>

#include "platform/orvUI_1_0/UserPrefs.h"
#include "standalone/colour/ColourService.h"
#include "standalone/widgets/colour/ColourPicker.h"
#include "standalone/widgets/colour/ColourRegistry.h"
#include "standalone/widgets/preferences/Preferences.h"
#include "testPaths.h"
#include "tests/editors/ColourRecorders.h"
#include "tests/support/HostTest.h"

namespace {

using orvUI_v1::ColorManagementHandler;
using orvUI_v1::HIGColor;
using orvuilib::ColourRegistry;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using vesk::colour::ColourService;

constexpr const char* kModule = VESK_BUILD_DIR "/plug-ins/veskOrvPlugin.so";

/// The module is loaded in the test.
class CMHandlerAtLoad : public ::testing::Test {
 protected:
  void TearDown() override { orvuilib::Preferences::instance().replaceAll({}); }

  ColorManagementHandler& load() {
    EXPECT_TRUE(host.session().plugins().load(kModule));
    return *ColourRegistry::instance().handler();
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

/// A step of the construction: what was there when it was told.
struct Step {
  bool registered;
  QString space;
  QString view;
  bool eyeDropper;

  bool operator==(const Step&) const = default;
};

TEST_F(CMHandlerAtLoad, IsRegisteredThenTellsItsBaseSpaceAndViewThenBringsTheEyeDropper) {
  ColourService service{{.readsEnvironment = false}};
  ASSERT_TRUE(service.setMixingSpace("P3-D65 Cinema"));
  ASSERT_TRUE(service.setView("Film"));
  ColourRegistry& registry = ColourRegistry::instance();
  ColourRecorders::instance().registeredBeforeHelper = true;
  std::vector<Step> steps;
  const auto following = QObject::connect(&registry, &ColourRegistry::changed, [&] {
    std::pair<QString, QString> kept;
    if (registry.handler()) kept = keptByBase(*registry.handler());
    steps.push_back(
        {registry.handler() != nullptr, kept.first, kept.second, registry.eyeDropper() != nullptr});
  });
  load();
  QObject::disconnect(following);
  EXPECT_THAT(steps, ElementsAre(Step{true, "", "", false}, Step{true, "P3-D65 Cinema", "", false},
                                 Step{true, "P3-D65 Cinema", "Film", false},
                                 Step{true, "P3-D65 Cinema", "Film", true}));
  EXPECT_FALSE(ColourRecorders::instance().registeredBeforeHelper);
}

TEST_F(CMHandlerAtLoad, StoredPreferencesWaitUntilAnEditorOpens) {
  ColourService service{{.readsEnvironment = false}};
  orvuilib::Preferences::instance().replaceAll(
      {{"colorManagement",
        QJsonObject{{"mixingSpace", "P3-D65 Cinema"}, {"viewSpace", "Film"}, {"enabled", false}}}});
  int changes = 0;
  service.setChangeListener([&changes] { ++changes; });
  ColorManagementHandler& handler = load();
  EXPECT_EQ(changes, 0);
  EXPECT_TRUE(handler.enabled());
  EXPECT_EQ(handler.mixingSpace(), "sRGB Texture");
  EXPECT_EQ(keptByBase(handler), std::pair(QString("sRGB Texture"), QString()));
  const orvuilib::ColourPicker picker;
  EXPECT_FALSE(handler.enabled());
  EXPECT_EQ(handler.mixingSpace(), "P3-D65 Cinema");
  EXPECT_EQ(handler.viewSpace(), "Film");
}

TEST_F(CMHandlerAtLoad, PreferencesThatComeAreTakenUpAtOnce) {
  ColourService service{{.readsEnvironment = false}};
  ColorManagementHandler& handler = load();
  orvUI_v1::setUserPrefs(
      QJsonDocument(QJsonObject{{"colorManagement", QJsonObject{{"mixingSpace", "ACEScct"}}}}));
  EXPECT_EQ(handler.mixingSpace(), "ACEScct");
}

TEST_F(CMHandlerAtLoad, AnOpenPickerGetsTheEyeDropper) {
  ColourService service{{.readsEnvironment = false}};
  const orvuilib::ColourPicker picker;
  const auto& dropper = *picker.findChild<QToolButton*>("eyeDropper");
  EXPECT_FALSE(dropper.isEnabled());
  load();
  EXPECT_TRUE(dropper.isEnabled());
  host.run("unloadPlugin veskOrvPlugin");
  EXPECT_FALSE(dropper.isEnabled());
}

TEST_F(CMHandlerAtLoad, WithTheHostsColourManagementOffTheStoredChoiceStaysStored) {
  ColourService service{{.readsEnvironment = false, .enabled = false}};
  const QJsonObject stored{{"mixingSpace", "P3-D65 Cinema"}, {"viewSpace", "Film"}};
  orvuilib::Preferences::instance().replaceAll({{"colorManagement", stored}});
  load().saveUserPrefs();
  EXPECT_EQ(orvuilib::Preferences::instance().section("colorManagement"), stored);
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
    EXPECT_FALSE(ColourRegistry::instance().handler());
  }
}

}  // namespace
