#include "standalone/widgets/parameters/ParameterPreferences.h"

#include <gtest/gtest.h>

#include <QJsonArray>

#include "standalone/widgets/preferences/Preferences.h"

namespace orvuilib {
namespace {

class ParameterPreferencesTest : public testing::Test {
 protected:
  ParameterPreferencesTest() { Preferences::instance().replaceAll({}); }
  ~ParameterPreferencesTest() override { Preferences::instance().replaceAll({}); }

  static void store(const QJsonObject& section) {
    Preferences::instance().setSection(ParameterPreferences::kSection, section);
  }
};

TEST_F(ParameterPreferencesTest, KeepsWhatDiffersFromTheStartAlone) {
  ParameterPreferences::setDecimals(5);
  ParameterPreferences::setSliderRange("row", NumberRange(-1, 4));
  ParameterPreferences::setOpen("group", false);
  EXPECT_EQ(ParameterPreferences::decimals(), 5);
  EXPECT_EQ(ParameterPreferences::sliderRange("row"), NumberRange(-1, 4));
  EXPECT_FALSE(ParameterPreferences::isOpen("group"));
  ParameterPreferences::setDecimals(ParameterPreferences::kDecimals);
  ParameterPreferences::setSliderRange("row", std::nullopt);
  ParameterPreferences::setOpen("group", true);
  EXPECT_TRUE(Preferences::instance().all().isEmpty());
}

TEST_F(ParameterPreferencesTest, WhatDoesNotFitCountsAsAbsent) {
  store({{"decimals", 2.5},
         {"sliderRanges", QJsonObject{{"row", QJsonArray{4, 1}}}},
         {"closedGroups", 7}});
  EXPECT_EQ(ParameterPreferences::decimals(), ParameterPreferences::kDecimals);
  EXPECT_FALSE(ParameterPreferences::sliderRange("row"));
  EXPECT_TRUE(ParameterPreferences::isOpen("group"));
  store({{"decimals", 40}, {"sliderRanges", QJsonObject{{"row", QJsonArray{1, "x"}}}}});
  EXPECT_EQ(ParameterPreferences::decimals(), ParameterPreferences::kDecimals);
  EXPECT_FALSE(ParameterPreferences::sliderRange("row"));
}

}  // namespace
}  // namespace orvuilib
