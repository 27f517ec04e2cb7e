#include "standalone/widgets/compound/parts/HelpLayout.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QFont>
#include <set>

using namespace orvuilib;

namespace {

QFontMetricsF metrics() { return QFontMetricsF(QFont(QStringLiteral("DejaVu Sans"), 9)); }

TEST(HelpLayout, EveryGroupStandsOnceAndInOrder) {
  const auto groups = helpGroups();
  for (const double width : {200.0, 700.0, 1400.0, 3000.0}) {
    const HelpLayout layout(groups, metrics(), 16, width);
    std::size_t next = 0;
    for (const auto& column : layout.columns()) {
      EXPECT_EQ(column.first, next);
      next += column.count;
      EXPECT_LE(HelpLayout::linesOf(groups, column.first, column.count), layout.lines());
    }
    EXPECT_EQ(next, groups.size());
  }
}

TEST(HelpLayout, ColumnsLieSideBySideWithinTheWidth) {
  for (const double width : {200.0, 700.0, 1000.0, 1400.0, 3000.0}) {
    const HelpLayout layout(helpGroups(), metrics(), 16, width);
    double right = 0;
    for (const auto& column : layout.columns()) {
      EXPECT_GE(column.left, right);
      EXPECT_GT(column.width, column.keyWidth);
      right = column.left + column.width;
    }
    EXPECT_LE(right, width);
  }
}

TEST(HelpLayout, NoTextIsCutWhereAColumnHasRoom) {
  const auto groups = helpGroups();
  const HelpLayout layout(groups, metrics(), 16, 1400);
  ASSERT_GT(layout.columns().size(), 1u);
  for (const auto& column : layout.columns()) {
    for (std::size_t i = column.first; i < column.first + column.count; ++i) {
      for (const auto& row : groups[i].rows) {
        EXPECT_LT(metrics().horizontalAdvance(row.keys), column.keyWidth);
        EXPECT_LE(metrics().horizontalAdvance(row.text), column.width - column.keyWidth);
      }
    }
  }
}

TEST(HelpLayout, MoreRoomTakesNoMoreLines) {
  const auto groups = helpGroups();
  std::size_t lines = HelpLayout::linesOf(groups, 0, groups.size());
  for (const double width : {200.0, 700.0, 1400.0, 3000.0}) {
    const HelpLayout layout(groups, metrics(), 16, width);
    EXPECT_LE(layout.lines(), lines);
    lines = layout.lines();
  }
  EXPECT_LT(lines, 25u);
}

TEST(HelpLayout, TheMouseIsThereToo) {
  const auto groups = helpGroups();
  EXPECT_EQ(groups.front().heading, "Mouse");
  std::set<QString> headings;
  for (const auto& group : groups) EXPECT_TRUE(headings.insert(group.heading).second);
}

}  // namespace
