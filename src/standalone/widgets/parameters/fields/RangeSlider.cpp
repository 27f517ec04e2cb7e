#include "standalone/widgets/parameters/fields/RangeSlider.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "standalone/widgets/parameters/RowStyle.h"

namespace orvuilib {

RangeSlider::RangeSlider(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::ClickFocus);
  // A release that went elsewhere is seen by a move without a button.
  setMouseTracking(true);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize RangeSlider::sizeHint() const {
  const int height = fontMetrics().height() + style::gap(*this);
  return {height * 3, height};
}

void RangeSlider::setRange(double least, double most) {
  least_ = least;
  most_ = most;
  update();
}

void RangeSlider::showNumber(double number) {
  number_ = number;
  mixed_ = false;
  update();
}

void RangeSlider::showMixed() {
  mixed_ = true;
  update();
}

void RangeSlider::setColours(const QList<QColor>& colours) {
  colours_ = colours;
  update();
}

void RangeSlider::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || dragged_) return;
  dragged_ = true;
  if (began) began();
  moveTo(event->position().x());
}

void RangeSlider::mouseMoveEvent(QMouseEvent* event) {
  if (!dragged_) return;
  if (!(event->buttons() & Qt::LeftButton)) return cancel();
  moveTo(event->position().x());
}

void RangeSlider::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !dragged_) return;
  dragged_ = false;
  update();
  if (ended) ended();
}

void RangeSlider::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && dragged_) {
    cancel();
  } else {
    QWidget::keyPressEvent(event);
  }
}

void RangeSlider::hideEvent(QHideEvent* event) {
  if (dragged_) cancel();
  QWidget::hideEvent(event);
}

void RangeSlider::focusOutEvent(QFocusEvent* event) {
  if (dragged_) cancel();
  QWidget::focusOutEvent(event);
}

void RangeSlider::cancel() {
  dragged_ = false;
  update();
  if (cancelled) cancelled();
}

void RangeSlider::contextMenuEvent(QContextMenuEvent* event) {
  if (menuAsked && !dragged_) {
    menuAsked(event->globalPos());
  } else {
    event->ignore();
  }
}

void RangeSlider::moveTo(double x) {
  const QRectF rail = track();
  const double at = std::clamp((x - rail.left()) / std::max(1.0, rail.width()), 0.0, 1.0);
  showNumber(least_ + at * (most_ - least_));
  if (moved) moved(number_);
}

double RangeSlider::part() const {
  if (std::isnan(number_) || !(most_ > least_)) return 0;
  return std::clamp((number_ - least_) / (most_ - least_), 0.0, 1.0);
}

QRectF RangeSlider::track() const {
  const double radius = height() * 0.26;
  const double thickness = colours_.isEmpty() ? height() * 0.16 : height() * 0.5;
  return {radius + 1, (height() - thickness) / 2.0, width() - 2 * radius - 2, thickness};
}

void RangeSlider::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  const QRectF rail = track();
  const double round = rail.height() / 2;
  QLinearGradient fill(rail.topLeft(), rail.topRight());
  for (int i = 0; i < colours_.size(); ++i) {
    fill.setColorAt(i / std::max(1.0, colours_.size() - 1.0), colours_[i]);
  }
  const QColor rest =
      style::mix(palette().color(QPalette::Window), palette().color(QPalette::WindowText), 0.2);
  painter.setBrush(colours_.isEmpty() ? QBrush(rest) : QBrush(fill));
  painter.drawRoundedRect(rail, round, round);
  if (mixed_) return;
  const QColor accent =
      palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::Highlight);
  const double x = rail.left() + part() * rail.width();
  if (colours_.isEmpty()) {
    painter.setBrush(style::mix(accent, palette().color(QPalette::Window), 0.25));
    painter.drawRoundedRect(QRectF(rail.topLeft(), QPointF(x, rail.bottom())), round, round);
  }
  const double radius = height() * 0.26;
  painter.setPen(QPen(style::mix(palette().color(QPalette::WindowText), accent, 0.6), 1));
  painter.setBrush(dragged_ ? accent : palette().color(QPalette::Button));
  painter.drawEllipse(QPointF(x, rail.center().y()), radius, radius);
}

}  // namespace orvuilib
