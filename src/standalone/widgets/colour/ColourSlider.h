#pragma once

#include <QWidget>
#include <functional>

#include "platform/orvUI_1_0/HIGColor.h"
#include "platform/orvUI_1_0/OrvUiApi.h"

namespace orvuilib {

/// A slider that shows the colours it leads to. Its position runs from 0 to 1. Arrow keys move it,
/// with shift by more.
class ORVUI_EXPORT ColourSlider : public QWidget {
  Q_OBJECT

 public:
  /// The colour, in the rendering space, that a position would give.
  using ColourAt = std::function<orvUI_v1::HIGColor(float position)>;

  explicit ColourSlider(QWidget* parent = nullptr);

  void setColours(ColourAt colourAt);

  float position() const { return position_; }

  /// What lies outside 0 to 1 is shown at the end.
  void setPosition(float position);

  QSize sizeHint() const override;

 signals:
  void moved(float position);

  /// As `ColourField::finished`.
  void finished();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void moveTo(double position);

  ColourAt colourAt_;
  float position_ = 0.0f;
  bool dragged_ = false;
};

}  // namespace orvuilib
