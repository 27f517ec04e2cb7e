#include "standalone/widgets/compound/paint/BoxPainter.h"

#include <map>

namespace orvuilib {

using orvlib::NodeKind;
using orvlib::NodeState;

namespace {

constexpr qreal kCorner = 3;

QStaticText prepared(const QString& text, const QFont& font) {
  QStaticText prepared(text);
  prepared.setTextFormat(Qt::PlainText);
  prepared.setPerformanceHint(QStaticText::AggressiveCaching);
  prepared.prepare(QTransform(), font);
  return prepared;
}

bool isDimmed(const BoxItem& box) {
  return box.kind == BoxKind::Node && !box.node->is(NodeState::Enabled);
}

}  // namespace

BoxTexts& BoxPainter::textsOf(BoxItem& box) const {
  if (box.texts) return *box.texts;
  box.texts = std::make_unique<BoxTexts>();
  const qreal widest = box.bounds.width() - 2 * box::kLabelInset;
  const QFontMetricsF titles(theme_.titleFont());
  box.texts->title =
      prepared(titles.elidedText(titleOf(box), Qt::ElideRight, widest - 8), theme_.titleFont());
  for (const PortSlot& slot : box.portSlots) {
    box.texts->ports.push_back(prepared(theme_.elided(labelOf(slot), widest), theme_.font()));
  }
  return *box.texts;
}

void BoxPainter::paint(QPainter& painter, BoxItem& box, bool hovered) const {
  painter.setOpacity(isDimmed(box) ? 0.5 : 1);
  paintBody(painter, box, hovered);
  BoxTexts& texts = textsOf(box);
  painter.setPen(theme_.palette().text);
  painter.setFont(theme_.titleFont());
  const qreal height = texts.title.size().height();
  painter.drawStaticText(
      box.bounds.topLeft() + QPointF(box::kLabelInset, (box::kTitle - height) / 2), texts.title);
  if (box.kind == BoxKind::Node) paintStates(painter, box);
  painter.setFont(theme_.font());
  for (std::size_t i = 0; i < box.portSlots.size(); ++i) {
    if (box.portSlots[i].row >= 0) paintPort(painter, box, box.portSlots[i], texts.ports[i]);
  }
  if (settings_.detail == Detail::Close) paintAddRow(painter, box);
  painter.setOpacity(1);
}

void BoxPainter::paintBody(QPainter& painter, const BoxItem& box, bool hovered) const {
  const Palette& palette = theme_.palette();
  const bool boundary = box.kind != BoxKind::Node;
  // Lines of one pixel are drawn many times faster than wider ones.
  QPen edge(box.selected ? palette.selected
            : hovered    ? palette.hovered
                         : palette.outline,
            box.selected ? 2 : 0);
  if (boundary) edge.setStyle(Qt::DashLine);
  painter.setPen(edge);
  painter.setBrush(boundary ? palette.boundary : palette.body);
  painter.drawRoundedRect(box.bounds, kCorner, kCorner);
  const QRectF title(box.bounds.topLeft(), QSizeF(box.bounds.width(), box::kTitle));
  painter.fillRect(title.adjusted(1.2, 1.2, -1.2, 0), QColor(box.titleColour));
  // A compound has a second edge: there is something inside.
  if (!boundary && box.node->compound()) {
    painter.setPen(QPen(QColor(box.titleColour).lighter(150), 0));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(box.bounds.adjusted(2.5, 2.5, -2.5, -2.5), kCorner - 2, kCorner - 2);
  }
}

/// A letter for each state that is not as in a new node.
void BoxPainter::paintStates(QPainter& painter, const BoxItem& box) const {
  QString letters;
  if (!box.node->is(NodeState::Enabled)) letters += QLatin1Char('D');
  if (box.node->is(NodeState::Frozen)) letters += QLatin1Char('F');
  if (box.node->is(NodeState::Bypassed)) letters += QLatin1Char('B');
  if (letters.isEmpty()) return;
  painter.setPen(theme_.palette().selected);
  const QRectF title(box.bounds.topLeft(), QSizeF(box.bounds.width() - 8, box::kTitle));
  painter.drawText(title, Qt::AlignRight | Qt::AlignVCenter, letters);
}

void BoxPainter::paintPort(QPainter& painter, const BoxItem& box, const PortSlot& slot,
                           const QStaticText& label) const {
  const QPointF anchor = anchorOf(box, slot);
  const qreal opacity = painter.opacity();
  const bool offered = accepts_ != nullptr;
  const bool accepted = offered && accepts_(*slot.port);
  if (offered && !accepted) painter.setOpacity(0.25);
  if (accepted) {
    painter.setPen(Qt::NoPen);
    QColor halo = theme_.palette().accepted;
    halo.setAlpha(90);
    painter.setBrush(halo);
    painter.drawEllipse(anchor, box::kPortRadius + 4, box::kPortRadius + 4);
  }
  paintDot(painter, slot, anchor);
  if (settings_.detail == Detail::Close) {
    painter.setPen(slot.depth > 0 ? theme_.palette().quietText : theme_.palette().text);
    const QSizeF size = label.size();
    const qreal inset = box::kLabelInset + box::kIndent * slot.depth;
    const qreal x =
        slot.left ? box.bounds.left() + inset : box.bounds.right() - inset - size.width();
    painter.drawStaticText(QPointF(x, anchor.y() - size.height() / 2), label);
  }
  painter.setOpacity(opacity);
}

/// Round for a single value, square for an array; hollow for what grows members.
void BoxPainter::paintDot(QPainter& painter, const PortSlot& slot, const QPointF& at) const {
  const QColor colour = theme_.typeColour(slot.port->valueType().name);
  const qreal radius = slot.depth > 0 ? box::kPortRadius - 1 : box::kPortRadius;
  painter.setPen(QPen(theme_.palette().outline, 0));
  painter.setBrush(colour);
  if (slot.port->isFanInPort()) {
    painter.setPen(QPen(colour, 2));
    painter.setBrush(theme_.palette().body);
  }
  const QRectF dot(at.x() - radius, at.y() - radius, 2 * radius, 2 * radius);
  if (slot.port->valueType().isArray()) {
    painter.drawRect(dot);
  } else {
    painter.drawEllipse(dot);
  }
  if (watchOf(*slot.port)) {
    painter.setPen(QPen(theme_.palette().selected, 1.5));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(at, radius + 3, radius + 3);
  }
}

void BoxPainter::paintAddRow(QPainter& painter, const BoxItem& box) const {
  const bool boundary = box.kind != BoxKind::Node || box.node->nodeKind() == NodeKind::Input ||
                        box.node->nodeKind() == NodeKind::Output;
  if (!boundary) return;
  const QRectF row = addRowOf(box);
  painter.setPen(theme_.palette().quietText);
  painter.drawText(row, Qt::AlignCenter, QStringLiteral("+ port"));
}

void BoxPainter::paintFar(QPainter& painter, const std::vector<BoxItem*>& boxes) const {
  // By colour, so that the painter changes its brush seldom.
  std::map<QRgb, QList<QRectF>> patches;
  const QRgb selected = theme_.palette().selected.rgb();
  for (const BoxItem* box : boxes) {
    const QRgb colour = QColor(box->titleColour).lighter(125).rgb();
    patches[box->selected ? selected : colour].append(box->bounds);
  }
  painter.setPen(Qt::NoPen);
  for (const auto& [colour, rects] : patches) {
    painter.setBrush(QColor(colour));
    painter.drawRects(rects);
  }
}

}  // namespace orvuilib
