#include "standalone/widgets/compound/paint/BoxPainter.h"

namespace orvuilib {

using orvlib::NodeKind;
using orvlib::NodeState;

namespace {

constexpr qreal kCorner = 3;

/// The marks of states, at the right of a title.
constexpr qreal kMark = 14;
constexpr qreal kMarkStep = 16;

QStaticText prepared(const QString& text, const QFont& font) {
  QStaticText prepared(text);
  prepared.setTextFormat(Qt::PlainText);
  prepared.setPerformanceHint(QStaticText::AggressiveCaching);
  prepared.prepare(QTransform(), font);
  return prepared;
}

bool isNodeWith(const BoxItem& box, NodeState state) {
  return box.kind == BoxKind::Node && box.node->is(state);
}

bool isDimmed(const BoxItem& box) {
  return box.kind == BoxKind::Node && !box.node->is(NodeState::Enabled);
}

/// A letter for each state that is not as in a new node.
QString marksOf(const BoxItem& box) {
  QString letters;
  if (isDimmed(box)) letters += QLatin1Char('D');
  if (isNodeWith(box, NodeState::Frozen)) letters += QLatin1Char('F');
  if (isNodeWith(box, NodeState::Bypassed)) letters += QLatin1Char('B');
  return letters;
}

QColor colourOfMark(QChar mark, const Palette& palette) {
  if (mark == QLatin1Char('F')) return palette.frozen;
  return mark == QLatin1Char('B') ? palette.bypassed : palette.quietText;
}

}  // namespace

BoxTexts& BoxPainter::textsOf(BoxItem& box) const {
  if (box.texts) return *box.texts;
  box.texts = std::make_unique<BoxTexts>();
  const qreal widest = box.bounds.width() - 2 * box::kLabelInset;
  const qreal marks = static_cast<qreal>(marksOf(box).size()) * kMarkStep;
  const QFontMetricsF titles(theme_.titleFont());
  box.texts->title =
      prepared(titles.elidedText(titleOf(box), Qt::ElideRight, widest - marks), theme_.titleFont());
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
  paintMarks(painter, box);
  painter.setFont(theme_.font());
  for (std::size_t i = 0; i < box.portSlots.size(); ++i) {
    if (box.portSlots[i].row >= 0) paintPort(painter, box, box.portSlots[i], texts.ports[i]);
  }
  if (settings_.detail == Detail::Close && settings_.editable) paintAddRow(painter, box);
  painter.setOpacity(1);
}

/// A frozen node is tinted; of a bypassed one only the outline is left.
void BoxPainter::paintBody(QPainter& painter, const BoxItem& box, bool hovered) const {
  const Palette& palette = theme_.palette();
  const bool boundary = box.kind != BoxKind::Node;
  const bool bypassed = isNodeWith(box, NodeState::Bypassed);
  const bool frozen = isNodeWith(box, NodeState::Frozen);
  // Lines of one pixel are drawn many times faster than wider ones.
  QPen edge(box.selected ? palette.selected
            : hovered    ? palette.hovered
            : bypassed   ? palette.bypassed
            : frozen     ? palette.frozen
                         : palette.outline,
            box.selected ? 2 : 0);
  if (boundary || bypassed) {
    // Dashes of a line of one pixel would begin anew in each part that is painted.
    edge.setWidthF(box.selected ? 2 : 1.2);
    edge.setStyle(Qt::DashLine);
  }
  painter.setPen(edge);
  painter.setBrush(boundary   ? palette.boundary
                   : bypassed ? palette.canvas
                   : frozen   ? palette.frozenBody
                              : palette.body);
  painter.drawRoundedRect(box.bounds, kCorner, kCorner);
  QColor title(box.titleColour);
  if (bypassed) title.setAlpha(110);
  const QRectF bar(box.bounds.topLeft(), QSizeF(box.bounds.width(), box::kTitle));
  painter.fillRect(bar.adjusted(1.2, 1.2, -1.2, 0), title);
  if (!boundary && box.node->compound()) paintInnerEdge(painter, box);
}

/// A compound has a second edge: there is something inside.
void BoxPainter::paintInnerEdge(QPainter& painter, const BoxItem& box) const {
  painter.setPen(QPen(QColor(box.titleColour).lighter(150), 0));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(box.bounds.adjusted(2.5, 2.5, -2.5, -2.5), kCorner - 2, kCorner - 2);
}

void BoxPainter::paintMarks(QPainter& painter, const BoxItem& box) const {
  const QString marks = marksOf(box);
  if (marks.isEmpty()) return;
  QRectF mark(box.bounds.right() - kMark - 6, box.bounds.top() + (box::kTitle - kMark) / 2, kMark,
              kMark);
  painter.setFont(theme_.font());
  for (auto letter = marks.crbegin(); letter != marks.crend(); ++letter) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(colourOfMark(*letter, theme_.palette()));
    painter.drawRoundedRect(mark, 3, 3);
    painter.setPen(theme_.palette().outline);
    painter.drawText(mark, Qt::AlignCenter, *letter);
    mark.translate(-kMarkStep, 0);
  }
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
  const QColor colour(slot.colour);
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

void BoxPainter::paintFar(WireRaster& raster, const std::vector<BoxItem*>& boxes) const {
  const QRgb selected = theme_.palette().selected.rgb();
  for (const BoxItem* box : boxes) {
    const QRectF area(settings_.origin + box->bounds.topLeft() * settings_.zoom,
                      box->bounds.size() * settings_.zoom);
    raster.fillRect(area, box->selected ? selected : QColor(box->titleColour).lighter(125).rgb());
  }
}

void BoxPainter::paintValue(QPainter& painter, const ValueLabel& value) const {
  painter.setFont(theme_.font());
  painter.setPen(QPen(QColor(value.colour).darker(130), 1));
  painter.setBrush(theme_.palette().field);
  painter.drawRoundedRect(value.bounds, 4, 4);
  painter.setPen(theme_.palette().text);
  painter.drawText(value.bounds, Qt::AlignCenter, value.text);
}

}  // namespace orvuilib
