#include "standalone/widgets/parameters/ReadOnlyNote.h"

#include "standalone/widgets/look/Signs.h"
#include "standalone/widgets/look/Theme.h"
#include "standalone/widgets/parameters/RowStyle.h"

namespace orvuilib {

ReadOnlyNote::ReadOnlyNote(QWidget* parent) : QLabel(parent) {
  setObjectName("readOnly");
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  const int gap = style::gap(*this);
  setContentsMargins(gap + lockSide(), gap, gap, gap);
  setAutoFillBackground(true);
  QPalette faint = palette();
  faint.setColor(QPalette::WindowText, style::faintText(*this));
  faint.setColor(QPalette::Window, style::groupBackground(*this));
  setPalette(faint);
  hide();
}

int ReadOnlyNote::lockSide() const { return fontMetrics().height() + 2 * style::gap(*this); }

void ReadOnlyNote::tell(const QString& reason) {
  setText(reason);
  setVisible(!reason.isEmpty());
}

void ReadOnlyNote::paintEvent(QPaintEvent* event) {
  QLabel::paintEvent(event);
  QPainter painter(this);
  const int side = lockSide();
  const QRectF area(style::gap(*this) / 2.0, (height() - side) / 2.0, side, side);
  paintLock(painter, area, Palette().selected);
}

}  // namespace orvuilib
