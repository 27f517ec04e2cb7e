#pragma once

#include <QWidget>

#include "platform/orvUI_1_0/HIGColor.h"
#include "platform/orvUI_1_0/OrvUiApi.h"

namespace orvuilib {

/// Paints a colour of the rendering space over a rectangle as the screen shows it, over a
/// checkerboard as far as one can see through it.
ORVUI_EXPORT void paintColour(QPainter& painter, const QRectF& area,
                              const orvUI_v1::HIGColor& colour);

/// A colour to click on.
class ORVUI_EXPORT ColourSwatch : public QWidget {
  Q_OBJECT

 public:
  explicit ColourSwatch(QWidget* parent = nullptr);

  const orvUI_v1::HIGColor& colour() const { return colour_; }
  void setColour(const orvUI_v1::HIGColor& colour);

  QSize sizeHint() const override;

 signals:
  /// By mouse, or by the space or enter key.
  void clicked();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  orvUI_v1::HIGColor colour_;
};

}  // namespace orvuilib
