#include "standalone/widgets/parameters/info/Records.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace orvuilib {
namespace {

TEST(SampleCurve, AShortCurveHasAColumnForEachNumber) {
  const std::vector<double> curve{1, 3, 2};
  const auto columns = sampleCurve(curve, 100);
  ASSERT_EQ(columns.size(), 3u);
  EXPECT_EQ(columns[1].least, 3);
  EXPECT_EQ(columns[1].most, 3);
}

TEST(SampleCurve, ALongCurveKeepsItsPeaks) {
  std::vector<double> curve(100000, 1.0);
  curve[70001] = 9;
  curve[70002] = -9;
  const auto columns = sampleCurve(curve, 10);
  ASSERT_EQ(columns.size(), 10u);
  EXPECT_EQ(columns[7].most, 9);
  EXPECT_EQ(columns[7].least, -9);
  EXPECT_EQ(columns[6].most, 1);
}

TEST(SampleCurve, NumbersThatAreNotFiniteLeaveAGap) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double infinite = std::numeric_limits<double>::infinity();
  const auto columns = sampleCurve(std::vector<double>{1, nan, infinite}, 3);
  EXPECT_GT(columns[1].least, columns[1].most);
  EXPECT_GT(columns[2].least, columns[2].most);
}

TEST(SampleCurve, NothingGivesNoColumns) {
  EXPECT_TRUE(sampleCurve({}, 10).empty());
  EXPECT_TRUE(sampleCurve(std::vector<double>{1}, 0).empty());
}

}  // namespace
}  // namespace orvuilib
