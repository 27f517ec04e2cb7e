#include "standalone/widgets/colour/ColourSwatch.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "standalone/widgets/colour/ColourRegistry.h"
#include "standalone/widgets/colour/ManagedColour.h"

namespace orvuilib {

using orvUI_v1::HIGColor;

namespace {

void paintCheckerboard(QPainter& painter, const QRectF& area) {
  constexpr double kCell = 6.0;
  painter.fillRect(area, QColor(0xa0, 0xa0, 0xa0));
  painter.save();
  painter.setClipRect(area, Qt::IntersectClip);
  for (int row = 0; row * kCell < area.height(); ++row) {
    for (int column = row % 2; column * kCell < area.width(); column += 2) {
      const QPointF corner = area.topLeft() + QPointF(column * kCell, row * kCell);
      painter.fillRect(QRectF(corner, QSizeF(kCell, kCell)), QColor(0x70, 0x70, 0x70));
    }
  }
  painter.restore();
}

}  // namespace

/// The left half shows the colour as if it were opaque.
void paintColour(QPainter& painter, const QRectF& area, const HIGColor& colour) {
  QColor screen = toScreen(colour);
  if (screen.alpha() < 255) {
    paintCheckerboard(painter, area);
    painter.fillRect(area, screen);
    screen.setAlpha(255);
    painter.fillRect(QRectF(area.topLeft(), QSizeF(area.width() / 2, area.height())), screen);
  } else {
    painter.fillRect(area, screen);
  }
}

ColourSwatch::ColourSwatch(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::PointingHandCursor);
  connect(&ColourRegistry::instance(), &ColourRegistry::changed, this,
          qOverload<>(&QWidget::update));
}

void ColourSwatch::setColour(const HIGColor& colour) {
  colour_ = colour;
  update();
}

QSize ColourSwatch::sizeHint() const {
  const int height = fontMetrics().height() + 6;
  return {2 * height, height};
}

void ColourSwatch::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRectF area = QRectF(rect()).adjusted(1, 1, -1, -1);
  paintColour(painter, area, colour_);
  const QPalette::ColorRole frame = hasFocus() ? QPalette::Highlight : QPalette::Mid;
  painter.setPen(QPen(palette().color(frame), hasFocus() ? 2 : 1));
  painter.drawRect(area);
}

void ColourSwatch::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
    emit clicked();
  }
}

void ColourSwatch::keyPressEvent(QKeyEvent* event) {
  const int key = event->key();
  if (key != Qt::Key_Space && key != Qt::Key_Return && key != Qt::Key_Enter) {
    return QWidget::keyPressEvent(event);
  }
  emit clicked();
}

}  // namespace orvuilib
