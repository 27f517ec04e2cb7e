#include "standalone/widgets/compound/scene/Areas.h"

#include <gtest/gtest.h>

using namespace orvuilib;

namespace {

TEST(Areas, WhatIsFarApartStaysApart) {
  Areas areas;
  areas |= QRectF(0, 0, 10, 10);
  areas |= QRectF(1000, 1000, 10, 10);
  EXPECT_EQ(areas.rects().size(), 2u);
  EXPECT_EQ(areas.bounds(), QRectF(0, 0, 1010, 1010));
}

TEST(Areas, WhatOverlapsIsOneAndNothingIsNone) {
  Areas areas = QRectF(0, 0, 10, 10);
  areas |= QRectF(5, 0, 10, 10);
  areas |= QRectF();
  EXPECT_EQ(areas.rects(), std::vector<QRectF>{QRectF(0, 0, 15, 10)});
}

TEST(Areas, AreFewHoweverManyAreAdded) {
  Areas areas;
  for (int i = 0; i < 1000; ++i) areas |= QRectF(i % 40 * 100, i / 40 * 100, 10, 10);
  EXPECT_LE(areas.rects().size(), Areas::kMost);
  for (int i = 0; i < 1000; ++i) {
    const QPointF centre(i % 40 * 100 + 5, i / 40 * 100 + 5);
    EXPECT_TRUE(std::ranges::any_of(areas.rects(),
                                    [&](const QRectF& rect) { return rect.contains(centre); }));
  }
}

}  // namespace
