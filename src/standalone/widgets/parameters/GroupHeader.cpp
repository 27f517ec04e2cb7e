#include "standalone/widgets/parameters/GroupHeader.h"

#include <QKeyEvent>
#include <QPainter>
#include <algorithm>

#include "standalone/widgets/parameters/RowStyle.h"

namespace orvuilib {

GroupHeader::GroupHeader(QWidget* parent) : QAbstractButton(parent) {
  setFocusPolicy(Qt::TabFocus);
  setCursor(Qt::PointingHandCursor);
}

int GroupHeader::heightOf(const QWidget& styled) {
  return style::lineHeight(styled) + style::gap(styled);
}

void GroupHeader::showGroup(const QString& title, bool open) {
  setText(title);
  setToolTip(title);
  open_ = open;
  update();
}

/// The Space key is the button's own.
void GroupHeader::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    click();
  } else {
    QAbstractButton::keyPressEvent(event);
  }
}

void GroupHeader::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const int gap = style::gap(*this);
  const QRect bar = rect().adjusted(0, gap / 2, 0, -gap / 2);
  painter.fillRect(bar, underMouse() ? style::line(*this) : style::groupBackground(*this));
  painter.setPen(style::faintText(*this));
  const QRect arrow(gap, bar.top(), 4 * gap, bar.height());
  painter.drawText(arrow, Qt::AlignCenter, QString(QChar(open_ ? 0x25BE : 0x25B8)));
  painter.setPen(palette().color(QPalette::WindowText));
  QFont bold = font();
  bold.setBold(true);
  painter.setFont(bold);
  const QRect place = bar.adjusted(5 * gap, 0, -gap, 0);
  painter.drawText(place, Qt::AlignVCenter,
                   QFontMetrics(bold).elidedText(text(), Qt::ElideRight, place.width()));
  if (!hasFocus()) return;
  painter.setPen(QPen(palette().color(QPalette::Highlight), std::max(2, gap / 2)));
  painter.drawRect(bar.adjusted(1, 1, -1, -1));
}

}  // namespace orvuilib
