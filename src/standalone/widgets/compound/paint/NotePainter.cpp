#include "standalone/widgets/compound/paint/NotePainter.h"

#include <cmath>

namespace orvuilib {
namespace {

constexpr qreal kHead = 26;
constexpr qreal kHandle = 14;
constexpr int kCoarse = 8;

void paintHandle(QPainter& painter, const NoteItem& note) {
  const QRectF handle = handleOf(note).adjusted(3, 3, -3, -3);
  QColor colour = QColor(note.colour).lighter(150);
  painter.setPen(QPen(colour, 1.2));
  painter.drawLine(handle.bottomLeft(), handle.topRight());
  painter.drawLine(QPointF(handle.center().x(), handle.bottom()),
                   QPointF(handle.right(), handle.center().y()));
}

void paintLines(QPainter& painter, const QRectF& area, qreal step, const QColor& colour) {
  QList<QLineF> lines;
  for (qreal x = std::ceil(area.left() / step) * step; x < area.right(); x += step) {
    lines.append({x, area.top(), x, area.bottom()});
  }
  for (qreal y = std::ceil(area.top() / step) * step; y < area.bottom(); y += step) {
    lines.append({area.left(), y, area.right(), y});
  }
  painter.setPen(QPen(colour, 0));
  painter.drawLines(lines);
}

}  // namespace

QRectF handleOf(const NoteItem& note) {
  return {note.bounds.right() - kHandle, note.bounds.bottom() - kHandle, kHandle, kHandle};
}

QRectF headOf(const NoteItem& note) {
  if (!note.isBackdrop()) return note.bounds;
  return {note.bounds.left(), note.bounds.top(), note.bounds.width(), kHead};
}

void paintNote(QPainter& painter, const NoteItem& note, const Theme& theme,
               const PaintSettings& settings) {
  QColor fill(note.colour);
  fill.setAlpha(note.isBackdrop() ? 60 : 225);
  painter.setPen(note.selected ? QPen(theme.palette().selected, 2)
                               : QPen(QColor(note.colour).darker(130), 1));
  painter.setBrush(fill);
  painter.drawRoundedRect(note.bounds, 4, 4);
  if (note.isBackdrop()) {
    fill.setAlpha(150);
    painter.fillRect(headOf(note).adjusted(1, 1, -1, 0), fill);
  }
  if (settings.detail == Detail::Far) return;
  const bool light = !note.isBackdrop() && qGray(note.colour) > 120;
  painter.setPen(light ? QColor(0x2a, 0x28, 0x20) : theme.palette().text);
  painter.setFont(note.isBackdrop() ? theme.titleFont() : theme.font());
  const QRectF area = headOf(note).adjusted(10, 6, -10, note.isBackdrop() ? 0 : -6);
  painter.drawText(area, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, note.text);
  paintHandle(painter, note);
}

/// Lines that would lie too near to one another are left out.
void paintGrid(QPainter& painter, const QRectF& area, qreal step, qreal zoom,
               const Palette& palette) {
  if (step <= 0) return;
  painter.setRenderHint(QPainter::Antialiasing, false);
  if (step * zoom >= 12) paintLines(painter, area, step, palette.gridFine);
  if (step * kCoarse * zoom >= 24) paintLines(painter, area, step * kCoarse, palette.gridCoarse);
  painter.setRenderHint(QPainter::Antialiasing, true);
}

}  // namespace orvuilib
