#include "standalone/widgets/parameters/fields/NumberField.h"

#include <QKeyEvent>
#include <cmath>

namespace orvuilib {
namespace {

bool isStepKey(int key) { return key == Qt::Key_Up || key == Qt::Key_Down; }

/// Steps are counted in tenths of the smallest, so that ten steps of 0.1 give 1.
double rounded(double number, double step) {
  const double grain = step / 100;
  const double grains = number / grain;
  return std::abs(grains) < 1e15 ? std::round(grains) * grain : number;
}

}  // namespace

NumberField::NumberField(const NumberFormat& format, QWidget* parent)
    : EntryField(parent), format_(format) {
  setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

void NumberField::keyPressEvent(QKeyEvent* event) {
  if (isStepKey(event->key()) && !isReadOnly()) {
    step(event->key() == Qt::Key_Up ? 1 : -1, event->modifiers());
    return;
  }
  if (event->key() == Qt::Key_Escape && stepping_) {
    stepping_ = false;
    if (stepsCancelled) stepsCancelled();
    return;
  }
  EntryField::keyPressEvent(event);
}

/// From several values that differ there is no step.
void NumberField::step(int direction, Qt::KeyboardModifiers modifiers) {
  enter();
  bool isNumber = false;
  const double from = value().toDouble(&isNumber);
  if (isMixed() || !isNumber || !std::isfinite(from)) return;
  double step = format_.step;
  if (modifiers & Qt::ShiftModifier) step *= 10;
  if (modifiers & Qt::ControlModifier) step /= 10;
  if (format_.kind == orvlib::ScalarKind::Integer) step = std::max(1.0, std::round(step));
  const QString next = format_.print(rounded(from + direction * step, step));
  if (next == value()) return;
  stepping_ = true;
  showValue(next);
  selectAll();
  if (stepped) stepped(next);
}

void NumberField::keyReleaseEvent(QKeyEvent* event) {
  if (isStepKey(event->key()) && !event->isAutoRepeat()) endSteps();
  EntryField::keyReleaseEvent(event);
}

void NumberField::focusOutEvent(QFocusEvent* event) {
  endSteps();
  EntryField::focusOutEvent(event);
}

/// The wheel scrolls the rows, and changes no number by the way.
void NumberField::wheelEvent(QWheelEvent* event) { event->ignore(); }

void NumberField::endSteps() {
  if (!stepping_) return;
  stepping_ = false;
  if (stepsEnded) stepsEnded();
}

}  // namespace orvuilib
