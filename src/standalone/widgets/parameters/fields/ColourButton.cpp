#include "standalone/widgets/parameters/fields/ColourButton.h"

#include <QPainter>
#include <QPainterPath>

#include "standalone/widgets/colour/ColourRegistry.h"
#include "standalone/widgets/colour/ColourSwatch.h"
#include "standalone/widgets/parameters/RowStyle.h"

namespace orvuilib {

ColourButton::ColourButton(QWidget* parent) : QAbstractButton(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::PointingHandCursor);
  setToolTip("Edit the colour");
  connect(&ColourRegistry::instance(), &ColourRegistry::changed, this,
          qOverload<>(&QWidget::update));
}

QSize ColourButton::sizeHint() const {
  const int side = fontMetrics().height() + style::gap(*this);
  return {side * 2, side};
}

void ColourButton::showColour(const orvUI_v1::HIGColor& colour) {
  colour_ = colour;
  mixed_ = false;
  update();
}

void ColourButton::showMixed() {
  mixed_ = true;
  update();
}

void ColourButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF place = QRectF(rect()).adjusted(1, 1, -1, -1);
  QPainterPath shape;
  shape.addRoundedRect(place, 3, 3);
  painter.save();
  painter.setClipPath(shape);
  if (mixed_) {
    painter.fillRect(place, style::groupBackground(*this));
    painter.setPen(style::faintText(*this));
    painter.drawText(place, Qt::AlignCenter, QString(QChar(0x2014)));
  } else {
    paintColour(painter, place, colour_);
  }
  painter.restore();
  const QColor edge = hasFocus() ? palette().color(QPalette::Highlight) : style::line(*this);
  painter.setPen(QPen(edge, hasFocus() ? 2 : 1));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(place, 3, 3);
}

}  // namespace orvuilib
