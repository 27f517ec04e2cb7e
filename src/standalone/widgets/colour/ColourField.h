#pragma once

#include <QImage>
#include <QWidget>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/colour/Hsv.h"

namespace orvuilib {

/// Chooses hue, saturation and value of the mixing space with the mouse: a square of saturation and
/// value, and the hues in a ring around it or in a strip beside it. Arrow keys move in the square,
/// page keys turn the hue.
class ORVUI_EXPORT ColourField : public QWidget {
  Q_OBJECT

 public:
  enum Shape { kWheel, kSquare };

  explicit ColourField(QWidget* parent = nullptr);

  Shape shape() const { return shape_; }
  void setShape(Shape shape);

  const Hsv& hsv() const { return hsv_; }
  void setHsv(const Hsv& hsv);

  QSize sizeHint() const override;

  /// Where the square and the hues are; for a strip its rectangle, for a ring its outer square.
  QRectF squareArea() const;
  QRectF hueArea() const;

 signals:
  /// While the mouse is down, and with each key.
  void moved(const orvuilib::Hsv& hsv);

  /// The mouse is up again, or the key was pressed: the choice is made.
  void finished();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  enum class Part { None, Square, Hue };

  void drop();
  Part partAt(const QPointF& point) const;
  void moveTo(const QPointF& point);
  void change(const Hsv& hsv);
  float hueAt(const QPointF& point) const;
  const QImage& squareImage();
  void paintHues(QPainter& painter) const;
  void paintMarkers(QPainter& painter) const;

  Shape shape_ = kWheel;
  Hsv hsv_;
  Part dragged_ = Part::None;
  QImage square_;  ///< null when it is to be made anew
};

}  // namespace orvuilib
