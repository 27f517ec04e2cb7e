#include "standalone/widgets/compound/view/CanvasPicture.h"

#include <gtest/gtest.h>

#include <random>

using namespace orvuilib;

namespace {

/// A picture of a scene in which each point has a colour of its own.
class CanvasPictureTest : public testing::Test {
 protected:
  QRgb colourAt(const QPoint& pixel) const {
    const QPointF point = (QPointF(pixel) - picture.look().origin) / picture.look().zoom;
    const auto x = static_cast<unsigned>(std::lround(point.x() * 4));
    const auto y = static_cast<unsigned>(std::lround(point.y() * 4));
    return 0xff000000u | ((x * 2654435761u + y * 40503u + changes) & 0xffffff);
  }

  void bringUpToDate() {
    painted = 0;
    picture.bringUpToDate([this](QImage& image, const QRect& area) {
      ASSERT_TRUE(image.rect().contains(area));
      painted += area.width() * area.height();
      for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) image.setPixel(x, y, colourAt({x, y}));
      }
    });
  }

  void expectAllShown() {
    for (int y = 0; y < picture.image().height(); ++y) {
      for (int x = 0; x < picture.image().width(); ++x) {
        ASSERT_EQ(picture.image().pixel(x, y), colourAt({x, y})) << x << ',' << y;
      }
    }
  }

  const QSize size{60, 40};
  CanvasPicture picture;
  unsigned changes = 0;
  int painted = 0;
};

TEST_F(CanvasPictureTest, IsPaintedOnceAndThenNoMore) {
  picture.look(size, 1, {});
  bringUpToDate();
  EXPECT_EQ(painted, 60 * 40);
  picture.look(size, 1, {});
  bringUpToDate();
  EXPECT_EQ(painted, 0);
}

TEST_F(CanvasPictureTest, TakesAlongWhatIsMovedByWholePixels) {
  picture.look(size, 1, {});
  bringUpToDate();
  std::mt19937 random(5);
  QPointF origin;
  for (int i = 0; i < 60; ++i) {
    const QPoint by(static_cast<int>(random() % 21) - 10, static_cast<int>(random() % 15) - 7);
    origin += by;
    picture.look(size, 1, {origin, 1});
    bringUpToDate();
    expectAllShown();
    EXPECT_EQ(painted, 60 * 40 - (60 - std::abs(by.x())) * (40 - std::abs(by.y())));
  }
}

TEST_F(CanvasPictureTest, IsPaintedAnewForAnotherZoomSizeOrPartOfAPixel) {
  picture.look(size, 1, {});
  bringUpToDate();
  for (const CanvasPicture::Look& look : {CanvasPicture::Look{{0, 0}, 2}, {{0.5, 0}, 2}}) {
    picture.look(size, 1, look);
    bringUpToDate();
    EXPECT_EQ(painted, 60 * 40);
    expectAllShown();
  }
  picture.look({50, 50}, 1, {{0.5, 0}, 2});
  bringUpToDate();
  EXPECT_EQ(painted, 2500);
}

TEST_F(CanvasPictureTest, OfAChangePaintsItsPartWhereverItHasMoved) {
  picture.look({600, 400}, 1, {{0, 0}, 1});
  bringUpToDate();
  picture.setStale({100, 100, 20, 20});
  picture.look({600, 400}, 1, {{30, 0}, 1});
  QRegion parts;
  picture.bringUpToDate([&parts](QImage&, const QRect& area) { parts += area; });
  for (const QRect& area : {QRect(130, 100, 20, 20), QRect(0, 0, 30, 400)}) {
    EXPECT_TRUE(QRegion(area).subtracted(parts).isEmpty());
  }
  EXPECT_FALSE(parts.contains(QPoint(100, 100)));
  EXPECT_FALSE(parts.contains(QPoint(200, 200)));
}

TEST_F(CanvasPictureTest, AreasOutOfSightPaintNothing) {
  picture.look(size, 1, {});
  bringUpToDate();
  picture.setStale({1e6, 1e6, 1e5, 1e5});
  bringUpToDate();
  EXPECT_EQ(painted, 0);
}

TEST_F(CanvasPictureTest, HasTheDevicesPixels) {
  picture.look({75, 50}, 1.25, {{0, 0}, 1.25});
  bringUpToDate();
  EXPECT_EQ(picture.image().deviceIndependentSize(), QSizeF(60, 40));
}

}  // namespace
