#include "standalone/widgets/compound/paint/WirePainter.h"

#include <map>

#include "platform/ORV_1_0/QtConversions.h"
#include "standalone/graph/model/WatchPointObject.h"

namespace orvuilib {
namespace {

constexpr int kLongestValue = 28;

}  // namespace

QString lastValueOf(const orvlib::PortObject& port) {
  orvlib::WatchPointObject* watch = watchOf(port);
  ORV_v1::StringArray values;
  if (!watch || !watch->getRecordedValues("value", values) || values.size() == 0) return {};
  const QString text = ORV_v1::toQString(values[values.size() - 1]);
  return text.size() <= kLongestValue ? text : text.left(kLongestValue - 1) + QChar(0x2026);
}

void WirePainter::paint(QPainter& painter, const std::vector<Wire*>& wires,
                        const Wire* hovered) const {
  if (settings_.detail == Detail::Far) return paintFar(painter, wires);
  painter.setBrush(Qt::NoBrush);
  for (const Wire* wire : wires) paintOne(painter, *wire, wire == hovered);
}

void WirePainter::paintOne(QPainter& painter, const Wire& wire, bool hovered) const {
  const bool lit = hovered || wire.from->selected || wire.to->selected;
  // A line of one pixel is drawn many times faster than a wider one, and there are many.
  painter.setPen(QPen(QColor(wire.colour), lit ? 2.2 : 0));
  painter.drawPath(wirePath(wire.start, wire.end, settings_.wireStyle));
}

/// Straight, by colour, and without those that are shorter than a pixel or two.
void WirePainter::paintFar(QPainter& painter, const std::vector<Wire*>& wires) const {
  std::map<QRgb, QList<QLineF>> lines;
  const qreal shortest = 2 / settings_.zoom;
  for (const Wire* wire : wires) {
    const QPointF across = wire->end - wire->start;
    if (across.manhattanLength() < shortest) continue;
    lines[wire->colour].append(QLineF(wire->start, wire->end));
  }
  painter.setRenderHint(QPainter::Antialiasing, false);
  for (const auto& [colour, all] : lines) {
    QPen pen(QColor(colour).darker(150), 0);
    painter.setPen(pen);
    painter.drawLines(all);
  }
  painter.setRenderHint(QPainter::Antialiasing, true);
}

void WirePainter::paintValues(QPainter& painter, const std::vector<Wire*>& wires) const {
  painter.setFont(theme_.font());
  for (const Wire* wire : wires) {
    QString text = lastValueOf(*wire->source);
    if (text.isEmpty()) text = lastValueOf(*wire->target);
    if (text.isEmpty()) continue;
    QRectF label(0, 0, theme_.textWidth(text) + 12, 17);
    label.moveCenter(wireMiddle(wire->start, wire->end, settings_.wireStyle));
    painter.setPen(QPen(QColor(wire->colour).darker(130), 1));
    painter.setBrush(theme_.palette().field);
    painter.drawRoundedRect(label, 4, 4);
    painter.setPen(theme_.palette().text);
    painter.drawText(label, Qt::AlignCenter, text);
  }
}

void WirePainter::paintLoose(QPainter& painter, const QPointF& start, const QPointF& end,
                             const QColor& colour) const {
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(colour, 2, Qt::DashLine));
  painter.drawPath(wirePath(start, end, settings_.wireStyle));
}

}  // namespace orvuilib
