#include "standalone/widgets/compound/paint/WirePainter.h"

#include <algorithm>

namespace orvuilib {
namespace {

// In units of the canvas, and never thinner than a pixel.
constexpr qreal kWidth = 1.5;
constexpr qreal kLitWidth = 2.6;

bool isLit(const Wire& wire, const Wire* hovered) {
  return &wire == hovered || wire.from->selected || wire.to->selected;
}

}  // namespace

void WirePainter::paint(WireRaster& raster, const std::vector<Wire*>& wires,
                        const Wire* hovered) const {
  if (settings_.detail == Detail::Far) return paintFar(raster, wires);
  const qreal width = std::max(1.0, kWidth * settings_.zoom);
  for (const Wire* wire : wires) {
    if (!isLit(*wire, hovered)) paintOne(raster, *wire, width);
  }
  const qreal litWidth = std::max(2.0, kLitWidth * settings_.zoom);
  for (const Wire* wire : wires) {
    if (isLit(*wire, hovered)) paintOne(raster, *wire, litWidth);
  }
}

void WirePainter::paintOne(WireRaster& raster, const Wire& wire, qreal width) const {
  const QPointF start = settings_.origin + wire.start * settings_.zoom;
  const QPointF end = settings_.origin + wire.end * settings_.zoom;
  WirePoints points;
  raster.drawLine(wirePoints(start, end, settings_.wireStyle, settings_.zoom, points), width,
                  wire.colour);
}

/// Straight, and without those that are shorter than a pixel or two.
void WirePainter::paintFar(WireRaster& raster, const std::vector<Wire*>& wires) const {
  const qreal shortest = 2 / settings_.zoom;
  for (const Wire* wire : wires) {
    const QPointF across = wire->end - wire->start;
    if (across.manhattanLength() < shortest) continue;
    const std::array ends{settings_.origin + wire->start * settings_.zoom,
                          settings_.origin + wire->end * settings_.zoom};
    raster.drawLine(ends, 1, QColor(wire->colour).darker(150).rgb());
  }
}

void WirePainter::paintLoose(QPainter& painter, const QPointF& start, const QPointF& end,
                             const QColor& colour) const {
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(colour, 2, Qt::DashLine));
  painter.drawPath(wirePath(start, end, settings_.wireStyle));
}

}  // namespace orvuilib
