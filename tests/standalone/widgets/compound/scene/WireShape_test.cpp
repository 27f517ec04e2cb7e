#include "standalone/widgets/compound/scene/WireShape.h"

#include <gtest/gtest.h>

#include <QLineF>

using namespace orvuilib;

namespace {

const WireStyle kStyles[] = {WireStyle::Curved, WireStyle::Straight, WireStyle::Angled};

TEST(WireShape, LiesInItsBoundsInEveryStyleAndDirection) {
  for (const QPointF& end :
       {QPointF(300, 80), QPointF(-200, 50), QPointF(5, -400), QPointF(0, 0)}) {
    for (const WireStyle style : kStyles) {
      const QPainterPath path = wirePath({0, 0}, end, style);
      EXPECT_TRUE(wireBounds({0, 0}, end).contains(path.boundingRect().adjusted(-1, -1, 1, 1)))
          << end.x() << ',' << end.y();
    }
  }
}

TEST(WireShape, ItsPointsAreOnItAndFarPointsAreNot) {
  for (const WireStyle style : kStyles) {
    WirePoints points;
    const auto line = wirePoints({0, 0}, {200, 100}, style, 1, points);
    EXPECT_EQ(line.front(), QPointF(0, 0));
    EXPECT_EQ(line.back(), QPointF(200, 100));
    for (const QPointF& point : line) {
      EXPECT_LT(distanceToWire(point, {0, 0}, {200, 100}, style), 1);
    }
    EXPECT_GT(distanceToWire({100, 300}, {0, 0}, {200, 100}, style), 150);
  }
}

TEST(WireShape, LooksAlikeAtEachZoom) {
  for (const WireStyle style : kStyles) {
    WirePoints points;
    for (const QPointF& point : wirePoints({0, 0}, {600, 900}, style, 3, points)) {
      EXPECT_LT(distanceToWire(point / 3, {0, 0}, {200, 300}, style), 1);
    }
  }
}

TEST(WireShape, CrossesWhatLiesAcrossIt) {
  for (const WireStyle style : kStyles) {
    EXPECT_TRUE(wireCrosses({0, 0}, {200, 0}, style, QLineF(100, -50, 100, 50)));
    EXPECT_FALSE(wireCrosses({0, 0}, {200, 0}, style, QLineF(100, 20, 100, 50)));
  }
}

}  // namespace
