#pragma once

#include <QPainterPath>
#include <QPointF>
#include <QRectF>
#include <array>
#include <span>

#include "platform/orvUI_1_0/OrvUiApi.h"

namespace orvuilib {

enum class WireStyle { Curved, Straight, Angled };

/// How far a wire goes on in the direction in which it leaves its port. `zoom` is how many units of
/// the points make one of the canvas.
qreal wireReach(const QPointF& start, const QPointF& end, qreal zoom = 1);

/// Holds every style of the wire.
ORVUI_EXPORT QRectF wireBounds(const QPointF& start, const QPointF& end);

ORVUI_EXPORT QPainterPath wirePath(const QPointF& start, const QPointF& end, WireStyle style);

using WirePoints = std::array<QPointF, 65>;

/// The wire as a line through the points that are given back, which lie in `points`: as many as its
/// length needs. The ends are in pixels, `zoom` of which make a unit of the canvas.
ORVUI_EXPORT std::span<const QPointF> wirePoints(const QPointF& start, const QPointF& end,
                                                 WireStyle style, qreal zoom, WirePoints& points);

/// How far the point is from the wire.
ORVUI_EXPORT qreal distanceToWire(const QPointF& point, const QPointF& start, const QPointF& end,
                                  WireStyle style);

/// Whether the wire crosses the segment.
ORVUI_EXPORT bool wireCrosses(const QPointF& start, const QPointF& end, WireStyle style,
                              const QLineF& segment);

}  // namespace orvuilib
