#include "standalone/widgets/parameters/fields/RangeSlider.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>

#include "standalone/widgets/parameters/RowStyle.h"

namespace orvuilib {
namespace {

/// How far a key leads, in steps; 0 for other keys.
double stepsOf(const QKeyEvent& event) {
  double steps = event.modifiers() & Qt::ShiftModifier     ? 10
                 : event.modifiers() & Qt::ControlModifier ? 0.1
                                                           : 1;
  switch (event.key()) {
    case Qt::Key_PageUp:
      return 10;
    case Qt::Key_PageDown:
      return -10;
    case Qt::Key_Right:
    case Qt::Key_Up:
      return steps;
    case Qt::Key_Left:
    case Qt::Key_Down:
      return -steps;
    default:
      return 0;
  }
}

/// To 1, 2 or 5 times a power of ten.
double roundedDown(double number) {
  const double power = std::pow(10.0, std::floor(std::log10(number)));
  const double first = number / power;
  return power * (first >= 5 ? 5 : first >= 2 ? 2 : 1);
}

bool isMoveKey(const QKeyEvent& event) {
  return stepsOf(event) != 0 || event.key() == Qt::Key_Home || event.key() == Qt::Key_End;
}

bool isMenuKey(const QKeyEvent& event) {
  const bool withShift = event.modifiers() & Qt::ShiftModifier;
  return event.key() == Qt::Key_Menu || (event.key() == Qt::Key_F10 && withShift);
}

}  // namespace

RangeSlider::RangeSlider(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::StrongFocus);
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
  if (event->button() == Qt::LeftButton && dragged_) end();
}

void RangeSlider::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && isDragged()) {
    cancel();
  } else if (isMoveKey(*event) && !dragged_) {
    step(*event);
  } else if (isMenuKey(*event) && menuAsked && !isDragged()) {
    menuAsked(mapToGlobal(rect().center()));
  } else {
    QWidget::keyPressEvent(event);
  }
}

/// From several numbers that differ there is no step.
void RangeSlider::step(const QKeyEvent& event) {
  if (mixed_) return;
  const double to = event.key() == Qt::Key_Home  ? least_
                    : event.key() == Qt::Key_End ? most_
                                                 : number_ + stepsOf(event) * step_;
  const double number = std::clamp(to, std::min(least_, most_), std::max(least_, most_));
  if (number == number_) return;
  if (!std::exchange(stepping_, true) && began) began();
  showNumber(number);
  if (moved) moved(number);
}

void RangeSlider::keyReleaseEvent(QKeyEvent* event) {
  if (stepping_ && isMoveKey(*event) && !event->isAutoRepeat()) end();
  QWidget::keyReleaseEvent(event);
}

void RangeSlider::focusInEvent(QFocusEvent* event) {
  update();
  QWidget::focusInEvent(event);
}

/// A button or key that goes up elsewhere is not seen here.
void RangeSlider::focusOutEvent(QFocusEvent* event) {
  update();
  QWidget::focusOutEvent(event);
  if (event->reason() == Qt::PopupFocusReason) return;
  if (stepping_) end();
  if (dragged_) cancel();
}

void RangeSlider::hideEvent(QHideEvent* event) {
  if (isDragged()) cancel();
  QWidget::hideEvent(event);
}

void RangeSlider::end() {
  dragged_ = stepping_ = false;
  update();
  if (ended) ended();
}

void RangeSlider::cancel() {
  dragged_ = stepping_ = false;
  update();
  if (cancelled) cancelled();
}

void RangeSlider::contextMenuEvent(QContextMenuEvent* event) {
  if (menuAsked && !isDragged()) {
    menuAsked(event->globalPos());
  } else {
    event->ignore();
  }
}

void RangeSlider::moveTo(double x) {
  const QRectF rail = track();
  const double at = std::clamp((x - rail.left()) / std::max(1.0, rail.width()), 0.0, 1.0);
  showNumber(numberAt(at));
  if (moved) moved(number_);
}

/// What is finer than a pixel says nothing. The ends stay what they are.
double RangeSlider::numberAt(double part) const {
  const double span = most_ - least_;
  const double exact = least_ + part * span;
  const double pixel = span / std::max(1.0, track().width());
  if (part <= 0 || part >= 1 || !(pixel > 0)) return part >= 1 ? most_ : exact;
  const double grain = roundedDown(pixel);
  const double number =
      std::isfinite(grain) && grain > 0 ? std::round(exact / grain) * grain : exact;
  return std::clamp(number, least_, most_);
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
  paintKnob(painter, {x, rail.center().y()}, accent);
}

void RangeSlider::paintKnob(QPainter& painter, const QPointF& centre, const QColor& accent) {
  const double radius = height() * 0.26;
  const QColor plain = style::mix(palette().color(QPalette::WindowText), accent, 0.6);
  const QColor focus = style::mix(palette().color(QPalette::WindowText), accent, 0.2);
  painter.setPen(hasFocus() ? QPen(focus, std::max(2.0, radius / 2)) : QPen(plain, 1));
  painter.setBrush(isDragged() ? accent : palette().color(QPalette::Button));
  painter.drawEllipse(centre, radius, radius);
}

}  // namespace orvuilib
