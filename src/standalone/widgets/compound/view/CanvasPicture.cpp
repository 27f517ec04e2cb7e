#include "standalone/widgets/compound/view/CanvasPicture.h"

#include <cstring>

namespace orvuilib {
namespace {

/// Edges, dots and halos reach over what they belong to, in units of the scene.
constexpr qreal kReach = 12;

/// More parts than this are painted as one.
constexpr int kMostParts = 32;

/// Of a pixel; what is off by less looks the same.
constexpr qreal kUnseen = 0.01;

}  // namespace

void CanvasPicture::look(const QSize& size, qreal ratio, const Look& look) {
  if (image_.size() != size || ratio_ != ratio) {
    image_ = QImage(size, QImage::Format_RGB32);
    ratio_ = ratio;
    allStale_ = true;
  }
  const QPointF away = look.origin - look_.origin;
  const QPoint pixels = away.toPoint();
  const bool moved = look.zoom == look_.zoom && (away - pixels).manhattanLength() < kUnseen;
  if (allStale_ || !moved) {
    allStale_ = true;
    look_ = look;
  } else if (!pixels.isNull()) {
    scroll(pixels);
  }
}

/// Rows are copied in the order in which none is overwritten before it was.
void CanvasPicture::scroll(const QPoint& by) {
  look_.origin += by;
  const QRect kept = image_.rect() & image_.rect().translated(by);
  uncovered_ = uncovered_.translated(by) + (QRegion(image_.rect()) - kept);
  const std::size_t bytes = static_cast<std::size_t>(kept.width()) * sizeof(QRgb);
  for (int i = 0; i < kept.height(); ++i) {
    const int row = by.y() > 0 ? kept.bottom() - i : kept.top() + i;
    const uchar* from = image_.constScanLine(row - by.y()) + (kept.left() - by.x()) * sizeof(QRgb);
    std::memmove(image_.scanLine(row) + kept.left() * sizeof(QRgb), from, bytes);
  }
}

QRegion CanvasPicture::takeStale() {
  QRegion region = uncovered_;
  for (const QRectF& area : stale_.rects()) {
    const QRectF wide = area.adjusted(-kReach, -kReach, kReach, kReach);
    const QRectF pixels(look_.origin + wide.topLeft() * look_.zoom, wide.size() * look_.zoom);
    const QRectF seen = pixels.adjusted(-2, -2, 2, 2) & QRectF(image_.rect());
    region += seen.toAlignedRect();
  }
  if (allStale_) region = image_.rect();
  allStale_ = false;
  stale_ = {};
  uncovered_ = {};
  region &= image_.rect();
  return region.rectCount() > kMostParts ? QRegion(region.boundingRect()) : region;
}

}  // namespace orvuilib
