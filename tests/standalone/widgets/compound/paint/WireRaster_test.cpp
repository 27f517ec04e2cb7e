#include "standalone/widgets/compound/paint/WireRaster.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

using namespace orvuilib;

namespace {

class WireRasterTest : public testing::Test {
 protected:
  WireRasterTest() : picture(100, 80, QImage::Format_RGB32) { picture.fill(Qt::black); }

  void draw(const QPointF& from, const QPointF& to, qreal width, const QRect& clip) {
    const std::array points{from, to};
    WireRaster(picture, clip).drawLine(points, width, 0xffffffff);
  }

  /// How many pixels full of colour all of it would make.
  double amount() const {
    double sum = 0;
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) sum += qGreen(picture.pixel(x, y)) / 255.0;
    }
    return sum;
  }

  QImage picture;
};

TEST_F(WireRasterTest, ALineCoversItsLengthTimesItsWidth) {
  const QPointF from(10.3, 20.6);
  for (const QPointF& to : {QPointF(90.1, 20.6), QPointF(80, 50), QPointF(30, 75),
                            QPointF(10.3, 70), QPointF(2, 2), QPointF(60, 60.2)}) {
    for (const qreal width : {1.0, 1.5, 4.0}) {
      picture.fill(Qt::black);
      draw(from, to, width, picture.rect());
      const QPointF along = to - from;
      const double expected = std::hypot(along.x(), along.y()) * width;
      EXPECT_NEAR(amount(), expected, 0.06 * expected + width) << to.x() << ',' << to.y();
    }
  }
}

TEST_F(WireRasterTest, ALineOfManyPiecesPaintsNoColumnTwice) {
  const std::array points{QPointF(5, 40), QPointF(20.5, 40), QPointF(20.7, 40), QPointF(95, 40)};
  WireRaster(picture, picture.rect()).drawLine(points, 1, 0xff808080);
  for (int x = 5; x < 95; ++x) {
    EXPECT_NEAR(qGreen(picture.pixel(x, 39)) + qGreen(picture.pixel(x, 40)), 128, 2) << x;
  }
}

TEST_F(WireRasterTest, ACornerOfAWideLineIsFull) {
  const std::array points{QPointF(10, 20), QPointF(50, 20), QPointF(50, 60), QPointF(90, 70)};
  WireRaster(picture, picture.rect()).drawLine(points, 6, 0xffffffff);
  for (const QPoint& corner : {QPoint(51, 18), QPoint(48, 21), QPoint(48, 61)}) {
    EXPECT_EQ(qGreen(picture.pixel(corner)), 255) << corner.x() << ',' << corner.y();
  }
}

TEST_F(WireRasterTest, NothingIsPaintedBesideTheClip) {
  const QRect clip(20, 10, 30, 25);
  for (int angle = 0; angle < 360; angle += 7) {
    const QPointF away(std::cos(angle) * 5e5, std::sin(angle) * 5e5);
    draw(QPointF(30, 20) - away, QPointF(30, 20) + away, 3, clip);
  }
  EXPECT_GT(amount(), 400);
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      if (!clip.contains(x, y)) {
        ASSERT_EQ(qGreen(picture.pixel(x, y)), 0) << x << ',' << y;
      }
    }
  }
}

TEST_F(WireRasterTest, APartOfALineIsPaintedAsTheWholeIs) {
  QImage whole = picture;
  const std::array points{QPointF(-500, -90), QPointF(40, 30), QPointF(700, 200)};
  WireRaster(whole, whole.rect()).drawLine(points, 1.5, 0xff9cc57e);
  for (const QRect& part : {QRect(0, 0, 37, 80), QRect(37, 0, 63, 29), QRect(37, 29, 63, 51)}) {
    WireRaster(picture, part).drawLine(points, 1.5, 0xff9cc57e);
  }
  EXPECT_EQ(picture, whole);
}

TEST_F(WireRasterTest, ARectangleIsFilled) {
  WireRaster raster(picture, picture.rect());
  raster.fillRect({10, 20, 30, 10}, 0xffffffff);
  raster.fillRect({60, 20, 10, 30}, 0xffffffff);
  EXPECT_NEAR(amount(), 600, 1);
  EXPECT_EQ(qGreen(picture.pixel(10, 20)), 255);
  EXPECT_EQ(qGreen(picture.pixel(39, 29)), 255);
  EXPECT_EQ(qGreen(picture.pixel(69, 49)), 255);
}

}  // namespace
