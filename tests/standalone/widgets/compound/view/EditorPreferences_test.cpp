#include "standalone/widgets/compound/view/EditorPreferences.h"

#include <gtest/gtest.h>

using namespace orvuilib;

namespace {

TEST(EditorPreferences, OnlyWhatDiffersFromTheStartIsWritten) {
  EXPECT_TRUE(EditorPreferences().toJson({}).isEmpty());
  EditorPreferences changed;
  changed.snapToGrid = true;
  changed.wireStyle = WireStyle::Angled;
  changed.gridStep = 25;
  const QJsonObject section = changed.toJson({{"other", 1}});
  EXPECT_EQ(section.size(), 4);
  EXPECT_EQ(EditorPreferences::fromJson(section), changed);
}

TEST(EditorPreferences, WhatDoesNotFitCountsAsAbsent) {
  const QJsonObject section{{"showGrid", "no"},
                            {"gridStep", 0.001},
                            {"wireStyle", "knotted"},
                            {"snapToGrid", 3},
                            {"showValues", QJsonObject()}};
  EXPECT_EQ(EditorPreferences::fromJson(section), EditorPreferences());
}

TEST(EditorPreferences, PointsKeepToTheGridWhenThatIsWanted) {
  EditorPreferences preferences;
  EXPECT_EQ(preferences.snapped({7, -12}), QPointF(7, -12));
  preferences.snapToGrid = true;
  EXPECT_EQ(preferences.snapped({7, -12}), QPointF(0, -20));
}

}  // namespace
