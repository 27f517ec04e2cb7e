#include "standalone/widgets/compound/paint/NotePainter.h"

#include <QTextLayout>
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

/// One pixel wide, at whole pixels.
void paintLines(QPainter& painter, const QRect& area, const QPointF& origin, qreal step,
                const QColor& colour) {
  const auto first = [step](qreal from, qreal start) { return std::ceil((from - start) / step); };
  for (qreal i = first(area.left(), origin.x());; ++i) {
    const int x = qRound(origin.x() + i * step);
    if (x > area.right()) break;
    painter.fillRect(x, area.top(), 1, area.height(), colour);
  }
  for (qreal i = first(area.top(), origin.y());; ++i) {
    const int y = qRound(origin.y() + i * step);
    if (y > area.bottom()) break;
    painter.fillRect(area.left(), y, area.width(), 1, colour);
  }
}

/// Wrapped; where there is no room for all, the last line that fits says that there is more.
void paintText(QPainter& painter, const QRectF& area, const QString& text, const QFont& font) {
  QString lines = text;
  QTextLayout layout(lines.replace(QLatin1Char('\n'), QChar::LineSeparator), font);
  QTextOption option;
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  layout.setTextOption(option);
  layout.beginLayout();
  QPointF at = area.topLeft();
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(area.width());
    const bool isLast = at.y() + 2 * line.height() > area.bottom();
    const bool isAll = line.textStart() + line.textLength() >= lines.size();
    if (isLast && !isAll) {
      const QString rest = lines.mid(line.textStart()).simplified();
      const QFontMetricsF metrics(font);
      painter.drawText(at + QPointF(0, line.ascent()),
                       metrics.elidedText(rest, Qt::ElideRight, area.width()));
      break;
    }
    line.draw(&painter, at);
    at.ry() += line.height();
  }
  layout.endLayout();
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
  if (note.isBackdrop()) {
    painter.setFont(theme.titleFont());
    const QRectF area = headOf(note).adjusted(10, 0, -10, 0);
    const QFontMetricsF metrics(theme.titleFont());
    painter.drawText(area, Qt::AlignLeft | Qt::AlignVCenter,
                     metrics.elidedText(note.text.simplified(), Qt::ElideRight, area.width()));
  } else {
    painter.setFont(theme.font());
    paintText(painter, note.bounds.adjusted(10, 6, -10, -6), note.text, theme.font());
  }
  paintHandle(painter, note);
}

/// Lines that would lie too near to one another are left out.
void paintGrid(QPainter& painter, const QRect& area, qreal step, const PaintSettings& settings,
               const Palette& palette) {
  const qreal fine = step * settings.zoom;
  if (fine >= 12) paintLines(painter, area, settings.origin, fine, palette.gridFine);
  const qreal coarse = fine * kCoarse;
  if (coarse >= 24) paintLines(painter, area, settings.origin, coarse, palette.gridCoarse);
}

}  // namespace orvuilib
