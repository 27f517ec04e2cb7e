#include "standalone/widgets/compound/scene/WireShape.h"

#include <QLineF>
#include <algorithm>
#include <array>
#include <cmath>

namespace orvuilib {
namespace {

constexpr int kPieces = 16;

QPointF onCurve(const QPointF& start, const QPointF& end, const QPointF& reach, qreal t) {
  const qreal s = 1 - t;
  return start * (s * s * s) + (start + reach) * (3 * s * s * t) + (end - reach) * (3 * s * t * t) +
         end * (t * t * t);
}

/// The wire as a line of pieces.
std::array<QPointF, kPieces + 1> pieces(const QPointF& start, const QPointF& end, WireStyle style) {
  std::array<QPointF, kPieces + 1> points;
  const QPointF reach(wireReach(start, end), 0);
  const qreal middle = (start.x() + end.x()) / 2;
  for (int i = 0; i <= kPieces; ++i) {
    const qreal t = qreal(i) / kPieces;
    if (style == WireStyle::Curved) points[i] = onCurve(start, end, reach, t);
    if (style == WireStyle::Straight) points[i] = start + (end - start) * t;
    if (style != WireStyle::Angled) continue;
    const bool before = i < kPieces / 2;
    points[i] = QPointF(middle, before ? start.y() : end.y());
  }
  points.front() = start;
  points.back() = end;
  return points;
}

qreal distance(const QPointF& point, const QPointF& from, const QPointF& to) {
  const QPointF along = to - from;
  const qreal length = QPointF::dotProduct(along, along);
  const qreal t = length > 0 ? QPointF::dotProduct(point - from, along) / length : 0;
  const QPointF nearest = from + along * std::clamp(t, 0.0, 1.0);
  return std::hypot(point.x() - nearest.x(), point.y() - nearest.y());
}

}  // namespace

qreal wireReach(const QPointF& start, const QPointF& end, qreal zoom) {
  const qreal across = std::abs(end.x() - start.x());
  const qreal down = std::abs(end.y() - start.y());
  const qreal wanted = end.x() > start.x() ? across / 2 : across / 3 + 40 * zoom;
  return std::clamp(wanted, std::min(30.0 * zoom, (across + down) / 3), 180.0 * zoom);
}

QRectF wireBounds(const QPointF& start, const QPointF& end) {
  const qreal reach = wireReach(start, end);
  const qreal left = std::min({start.x(), end.x() - reach, end.x()});
  const qreal right = std::max({end.x(), start.x() + reach, start.x()});
  const qreal top = std::min(start.y(), end.y());
  const qreal bottom = std::max(start.y(), end.y());
  return QRectF(QPointF(left, top), QPointF(right, bottom)).adjusted(-3, -3, 3, 3);
}

QPainterPath wirePath(const QPointF& start, const QPointF& end, WireStyle style) {
  QPainterPath path(start);
  if (style == WireStyle::Curved) {
    const QPointF reach(wireReach(start, end), 0);
    path.cubicTo(start + reach, end - reach, end);
    return path;
  }
  if (style == WireStyle::Angled) {
    const qreal middle = (start.x() + end.x()) / 2;
    path.lineTo(middle, start.y());
    path.lineTo(middle, end.y());
  }
  path.lineTo(end);
  return path;
}

std::span<const QPointF> wirePoints(const QPointF& start, const QPointF& end, WireStyle style,
                                    qreal zoom, WirePoints& points) {
  const auto between = [&](int count) {
    points.front() = start;
    points[static_cast<std::size_t>(count)] = end;
    return std::span<const QPointF>(points.data(), static_cast<std::size_t>(count) + 1);
  };
  if (style == WireStyle::Straight) return between(1);
  if (style == WireStyle::Angled) {
    const qreal middle = (start.x() + end.x()) / 2;
    points[1] = {middle, start.y()};
    points[2] = {middle, end.y()};
    return between(3);
  }
  const QPointF reach(wireReach(start, end, zoom), 0);
  const qreal wanted = std::sqrt((end - start).manhattanLength()) * 1.2;
  const int count = static_cast<int>(std::clamp<qreal>(wanted, 8, points.size() - 1));
  for (int i = 1; i < count; ++i) {
    points[static_cast<std::size_t>(i)] = onCurve(start, end, reach, qreal(i) / count);
  }
  return between(count);
}

qreal distanceToWire(const QPointF& point, const QPointF& start, const QPointF& end,
                     WireStyle style) {
  const auto points = pieces(start, end, style);
  qreal nearest = distance(point, points[0], points[1]);
  for (int i = 1; i < kPieces; ++i) {
    nearest = std::min(nearest, distance(point, points[i], points[i + 1]));
  }
  return nearest;
}

bool wireCrosses(const QPointF& start, const QPointF& end, WireStyle style, const QLineF& segment) {
  const auto points = pieces(start, end, style);
  for (int i = 0; i < kPieces; ++i) {
    const QLineF piece(points[i], points[i + 1]);
    if (piece.intersects(segment, nullptr) == QLineF::BoundedIntersection) return true;
  }
  return false;
}

}  // namespace orvuilib
