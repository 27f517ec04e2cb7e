#include "standalone/widgets/colour/ColourSlider.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "standalone/widgets/colour/ColourRegistry.h"
#include "standalone/widgets/colour/ManagedColour.h"

namespace orvuilib {
namespace {

constexpr int kStops = 24;

/// Room for half the marker at either end.
constexpr double kMargin = 4.0;

}  // namespace

ColourSlider::ColourSlider(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  connect(&ColourRegistry::instance(), &ColourRegistry::changed, this,
          qOverload<>(&QWidget::update));
}

void ColourSlider::setColours(ColourAt colourAt) {
  colourAt_ = std::move(colourAt);
  update();
}

void ColourSlider::setPosition(float position) {
  position_ = std::clamp(position, 0.0f, 1.0f);
  update();
}

QSize ColourSlider::sizeHint() const {
  const int height = fontMetrics().height();
  return {8 * height, height + 2};
}

void ColourSlider::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF bar = QRectF(rect()).adjusted(kMargin, 3, -kMargin, -3);
  QLinearGradient colours(bar.topLeft(), bar.topRight());
  for (int i = 0; colourAt_ && i <= kStops; ++i) {
    const float at = static_cast<float>(i) / kStops;
    QColor colour = toScreen(colourAt_(at));
    colour.setAlpha(255);
    colours.setColorAt(at, colour);
  }
  painter.setPen(QPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid), 1));
  painter.setBrush(colours);
  painter.drawRoundedRect(bar, 2, 2);
  const double x = bar.left() + position_ * bar.width();
  painter.setPen(QPen(Qt::black, 1));
  painter.setBrush(Qt::white);
  painter.drawRoundedRect(QRectF(x - 2.5, 0.5, 5, height() - 1), 2, 2);
}

void ColourSlider::moveTo(double position) {
  const float before = position_;
  setPosition(static_cast<float>(position));
  if (position_ != before) emit moved(position_);
}

void ColourSlider::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  dragged_ = true;
  mouseMoveEvent(event);
}

void ColourSlider::mouseMoveEvent(QMouseEvent* event) {
  const double length = std::max(1.0, width() - 2 * kMargin);
  if (dragged_) moveTo((event->position().x() - kMargin) / length);
}

void ColourSlider::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !dragged_) return;
  dragged_ = false;
  emit finished();
}

void ColourSlider::keyPressEvent(QKeyEvent* event) {
  const double step = event->modifiers() & Qt::ShiftModifier ? 0.1 : 0.01;
  const bool less = event->key() == Qt::Key_Left || event->key() == Qt::Key_Down;
  const bool more = event->key() == Qt::Key_Right || event->key() == Qt::Key_Up;
  if (!less && !more) return QWidget::keyPressEvent(event);
  moveTo(position_ + (more ? step : -step));
  emit finished();
}

}  // namespace orvuilib
