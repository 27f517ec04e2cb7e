#include "platform/orvUI_1_0/ColorManagementHandler.h"

#include <gmock/gmock.h>

#include <QJsonDocument>
#include <QSignalSpy>
#include <memory>

#include "platform/orvUI_1_0/ParameterEditor.h"
#include "platform/orvUI_1_0/UserPrefs.h"
#include "standalone/widgets/colour/ColourPicker.h"
#include "standalone/widgets/colour/ColourRegistry.h"
#include "standalone/widgets/colour/ManagedColour.h"
#include "tests/standalone/widgets/colour/ColourTesting.h"
#include "tests/support/VirtualTable.h"

namespace {

using orvUI_v1::ColorManagementHandler;
using orvUI_v1::HIGColor;
using orvuilib::ColourRegistry;
using orvuilib::Preferences;

/// What a program must bring, and the base's bodies for all else.
class PlainHandler : public ColorManagementHandler {
 public:
  bool isColorManagementAvailable() override { return false; }
  QList<QString> getMixingSpaceNames() override { return {}; }
  QString mixingSpace() override { return {}; }
  QList<QString> getViewSpaceNames() override { return {}; }
  QString viewSpace() override { return {}; }
  HIGColor applyViewTransform(const HIGColor& colour, Direction) override { return colour; }
};

class BaseHandler : public ColourTest {};

TEST_F(BaseHandler, HasItsOperationsInTheirOrder) {
  using H = ColorManagementHandler;
  EXPECT_EQ(slotOf(&H::isColorManagementAvailable), 0);
  EXPECT_EQ(slotOf(&H::enabled), 1);
  EXPECT_EQ(slotOf(&H::setEnabled), 2);
  EXPECT_EQ(slotOf(&H::getMixingSpaceNames), 3);
  EXPECT_EQ(slotOf(&H::mixingSpace), 4);
  EXPECT_EQ(slotOf(&H::setMixingSpace), 5);
  EXPECT_EQ(slotOf(&H::getViewSpaceNames), 6);
  EXPECT_EQ(slotOf(&H::viewSpace), 7);
  EXPECT_EQ(slotOf(&H::setViewSpace), 8);
  EXPECT_EQ(slotOf(&H::applyMixingTransform), 9);
  EXPECT_EQ(slotOf(&H::mixingToSlider), 10);
  EXPECT_EQ(slotOf(&H::sliderToMixing), 11);
  EXPECT_EQ(slotOf(&H::applyViewTransform), 12);
  EXPECT_EQ(slotOf(&H::restoreUserPrefs), 13);
  EXPECT_EQ(slotOf(&H::saveUserPrefs), 14);
}

TEST_F(BaseHandler, LeavesColoursAndSlidersAsTheyAre) {
  const PlainHandler handler;
  const HIGColor colour{-1, 0.5f, 7, 0.25f};
  for (int direction : {0, 1, 2}) {
    EXPECT_EQ(handler.applyMixingTransform(
                  colour, static_cast<ColorManagementHandler::Direction>(direction)),
              colour);
  }
  EXPECT_EQ(handler.mixingToSlider(0.3f, 0, 2), 0.3f);
  EXPECT_EQ(handler.sliderToMixing(0.3f, 0, 2), 0.3f);
}

TEST_F(BaseHandler, IsEnabledAtFirst) {
  PlainHandler handler;
  EXPECT_TRUE(handler.enabled());
  handler.setEnabled(false);
  EXPECT_FALSE(handler.enabled());
}

TEST_F(BaseHandler, StoresItsChoiceAndTakesItUpAgain) {
  HalvingHandler handler;
  handler.setMixingSpace("Other");
  handler.setViewSpace("Dim");
  handler.setEnabled(false);
  handler.saveUserPrefs();
  HalvingHandler next;
  next.restoreUserPrefs();
  EXPECT_FALSE(next.enabled());
  EXPECT_EQ(next.mixingSpace(), "Other");
  EXPECT_EQ(next.viewSpace(), "Dim");
}

/// What the base stores, as the space and its view.
std::pair<QString, QString> stored() {
  const QJsonObject section = Preferences::instance().section("colorManagement");
  return {section.value("mixingSpace").toString(), section.value("viewSpace").toString()};
}

TEST_F(BaseHandler, AViewIsNotStoredWithAnotherSpace) {
  HalvingHandler handler;
  handler.setMixingSpace("Other");
  handler.setViewSpace("Dim");
  handler.saveUserPrefs();
  EXPECT_EQ(stored(), std::pair(QString("Other"), QString("Dim")));
  handler.setMixingSpace("Other");
  handler.saveUserPrefs();
  EXPECT_EQ(stored(), std::pair(QString("Other"), QString("Dim"))) << "it is no other space";
  handler.setMixingSpace("Plain");
  handler.saveUserPrefs();
  EXPECT_EQ(stored(), std::pair(QString("Plain"), QString()));
}

TEST_F(BaseHandler, WhatItWasNeverToldStaysStored) {
  Preferences::instance().replaceAll(
      {{"colorManagement", QJsonObject{{"mixingSpace", "Other"}, {"viewSpace", "Dim"}}}});
  HalvingHandler handler;
  handler.setEnabled(false);
  handler.saveUserPrefs();
  EXPECT_EQ(stored(), std::pair(QString("Other"), QString("Dim")));
  EXPECT_EQ(Preferences::instance().section("colorManagement").value("enabled"), false);
  handler.setEnabled(true);
  handler.saveUserPrefs();
  EXPECT_FALSE(Preferences::instance().section("colorManagement").contains("enabled"));
}

TEST_F(BaseHandler, WithoutStoredPreferencesNothingChanges) {
  HalvingHandler handler;
  handler.restoreUserPrefs();
  EXPECT_TRUE(handler.enabled());
  EXPECT_EQ(handler.mixingSpace(), "Half");
}

TEST_F(BaseHandler, PreferencesThatComeAreTakenUp) {
  const HalvingHandler first;
  HalvingHandler handler;
  orvUI_v1::setUserPrefs(QJsonDocument(
      QJsonObject{{"colorManagement", QJsonObject{{"mixingSpace", "Other"}, {"enabled", false}}}}));
  EXPECT_EQ(handler.mixingSpace(), "Other");
  EXPECT_FALSE(handler.enabled());
  EXPECT_TRUE(first.enabled()) << "it is registered no longer";
}

TEST_F(BaseHandler, TakesUpPreferencesThatAreThereAlreadyWhenAnEditorOpens) {
  Preferences::instance().replaceAll(
      {{"colorManagement", QJsonObject{{"mixingSpace", "Other"}, {"enabled", false}}}});
  HalvingHandler handler;
  EXPECT_EQ(handler.mixingSpace(), "Half") << "being registered is no choice";
  EXPECT_TRUE(handler.enabled());
  const orvuilib::ColourPicker first;
  EXPECT_EQ(handler.mixingSpace(), "Other");
  EXPECT_FALSE(handler.enabled());
  handler.setMixingSpace("Plain");
  const orvuilib::ColourPicker second;
  EXPECT_EQ(handler.mixingSpace(), "Plain") << "once";
}

TEST_F(BaseHandler, TakesThemUpForTheParameterEditorToo) {
  Preferences::instance().replaceAll({{"colorManagement", QJsonObject{{"mixingSpace", "Other"}}}});
  HalvingHandler handler;
  const std::unique_ptr<QWidget> editor(orvUI_v1::ParameterEditor::create(nullptr));
  EXPECT_EQ(handler.mixingSpace(), "Other");
}

TEST_F(BaseHandler, EachHandlerTakesThemUp) {
  Preferences::instance().replaceAll({{"colorManagement", QJsonObject{{"mixingSpace", "Other"}}}});
  for (int i = 0; i < 2; ++i) {
    HalvingHandler handler;
    const orvuilib::ColourPicker picker;
    EXPECT_EQ(handler.mixingSpace(), "Other");
  }
}

TEST_F(BaseHandler, AStoredSpaceThatIsRefusedLeavesTheOldOne) {
  Preferences::instance().replaceAll(
      {{"colorManagement", QJsonObject{{"mixingSpace", "Refused"}, {"enabled", "mud"}}}});
  HalvingHandler handler;
  handler.restoreUserPrefs();
  EXPECT_TRUE(handler.enabled());
  EXPECT_EQ(handler.mixingSpace(), "Half");
}

TEST_F(BaseHandler, IsForgottenWhenItGoes) {
  auto handler = std::make_unique<HalvingHandler>();
  EXPECT_EQ(ColourRegistry::instance().handler(), handler.get());
  QSignalSpy changes(&ColourRegistry::instance(), &ColourRegistry::changed);
  handler.reset();
  EXPECT_FALSE(ColourRegistry::instance().handler());
  EXPECT_EQ(changes.count(), 1);
  EXPECT_EQ(orvuilib::toMixing({0.5f, 0, 0, 1}).r, 0.5f);
}

TEST_F(BaseHandler, AnotherOneThatGoesDoesNotDisturb) {
  const auto other = std::make_unique<HalvingHandler>();
  HalvingHandler handler;
  EXPECT_EQ(ColourRegistry::instance().handler(), &handler);
  auto third = std::make_unique<PlainHandler>();
  third.reset();
  EXPECT_EQ(ColourRegistry::instance().handler(), &handler);
}

TEST_F(BaseHandler, ColoursReachTheScreenThroughTheView) {
  const HalvingHandler handler;
  EXPECT_EQ(orvuilib::toScreen({0.25f, 1, -1, 1}), QColor::fromRgbF(0.5f, 1, 0, 1));
  EXPECT_FLOAT_EQ(orvuilib::fromScreen(QColor(255, 0, 0)).r, 0.5f);
}

}  // namespace
