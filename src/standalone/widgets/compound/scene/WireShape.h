#pragma once

#include <QPainterPath>
#include <QPointF>
#include <QRectF>

#include "platform/orvUI_1_0/OrvUiApi.h"

namespace orvuilib {

enum class WireStyle { Curved, Straight, Angled };

/// How far a wire goes on in the direction in which it leaves its port.
qreal wireReach(const QPointF& start, const QPointF& end);

/// Holds every style of the wire.
ORVUI_EXPORT QRectF wireBounds(const QPointF& start, const QPointF& end);

ORVUI_EXPORT QPainterPath wirePath(const QPointF& start, const QPointF& end, WireStyle style);

/// The middle of the wire.
ORVUI_EXPORT QPointF wireMiddle(const QPointF& start, const QPointF& end, WireStyle style);

/// How far the point is from the wire.
ORVUI_EXPORT qreal distanceToWire(const QPointF& point, const QPointF& start, const QPointF& end,
                                  WireStyle style);

/// Whether the wire crosses the segment.
ORVUI_EXPORT bool wireCrosses(const QPointF& start, const QPointF& end, WireStyle style,
                              const QLineF& segment);

}  // namespace orvuilib
