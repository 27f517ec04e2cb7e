#pragma once

#include <QWidget>
#include <functional>

#include "platform/orvUI_1_0/OrvUiApi.h"

namespace orvuilib {

/// A slider for a number in a range. It shows a number beyond the range at its end, and does not
/// change it. Arrow keys move it by a step, ten times as far with Shift and a tenth with Ctrl, the
/// Page keys by ten steps, Home and End to its ends; the Menu key, or F10 with Shift, is a right
/// click.
class ORVUI_EXPORT RangeSlider final : public QWidget {
 public:
  explicit RangeSlider(QWidget* parent);

  void setRange(double least, double most);
  double least() const { return least_; }
  double most() const { return most_; }

  /// What an arrow key adds.
  void setStep(double step) { step_ = step; }

  void showNumber(double number);

  /// Several numbers that differ.
  void showMixed();

  /// Fills the slider with the colours from its least to its most number; empty for a plain one.
  void setColours(const QList<QColor>& colours);

  /// A drag, from the button or a key going down until it goes up. It is cancelled by Escape, and
  /// when the focus goes.
  std::function<void()> began;
  std::function<void(double)> moved;
  std::function<void()> ended;
  std::function<void()> cancelled;

  /// A request for the menu of the slider, at a place on the screen.
  std::function<void(QPoint)> menuAsked;

  bool isDragged() const { return dragged_ || stepping_; }
  QSize sizeHint() const override;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void moveTo(double x);
  double numberAt(double part) const;
  void step(const QKeyEvent& event);
  void end();
  void cancel();
  void paintKnob(QPainter& painter, const QPointF& centre, const QColor& accent);
  double part() const;
  QRectF track() const;

  double least_ = 0;
  double most_ = 1;
  double number_ = 0;
  bool mixed_ = false;
  double step_ = 0.01;
  bool dragged_ = false;
  bool stepping_ = false;
  QList<QColor> colours_;
};

}  // namespace orvuilib
