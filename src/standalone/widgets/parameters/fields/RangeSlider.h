#pragma once

#include <QWidget>
#include <functional>

#include "platform/orvUI_1_0/OrvUiApi.h"

namespace orvuilib {

/// A slider for a number in a range. It shows a number beyond the range at its end, and does not
/// change it.
class ORVUI_EXPORT RangeSlider final : public QWidget {
 public:
  explicit RangeSlider(QWidget* parent);

  void setRange(double least, double most);
  double least() const { return least_; }
  double most() const { return most_; }

  void showNumber(double number);

  /// Several numbers that differ.
  void showMixed();

  /// Fills the slider with the colours from its least to its most number; empty for a plain one.
  void setColours(const QList<QColor>& colours);

  /// A drag, from the button going down until it goes up. It is cancelled by Escape, and when the
  /// focus goes.
  std::function<void()> began;
  std::function<void(double)> moved;
  std::function<void()> ended;
  std::function<void()> cancelled;

  /// A request for the menu of the slider, at a place on the screen.
  std::function<void(QPoint)> menuAsked;

  bool isDragged() const { return dragged_; }
  QSize sizeHint() const override;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void moveTo(double x);
  void cancel();
  double part() const;
  QRectF track() const;

  double least_ = 0;
  double most_ = 1;
  double number_ = 0;
  bool mixed_ = false;
  bool dragged_ = false;
  QList<QColor> colours_;
};

}  // namespace orvuilib
