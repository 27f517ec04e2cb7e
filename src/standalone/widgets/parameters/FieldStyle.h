#pragma once

#include <QProxyStyle>

#include "platform/orvUI_1_0/OrvUiApi.h"

namespace orvuilib {

/// Draws check boxes, in tables too, and choice boxes: flat, as the fields beside them, and to be
/// seen on any ground.
class ORVUI_EXPORT FieldStyle final : public QProxyStyle {
 public:
  /// Gives the widget the style, which belongs to no child of it.
  static void applyTo(QWidget& widget);

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override;

  /// Boxes are as large as the text beside them, and the cells of tables a little narrower; all
  /// else is as in the program.
  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override;
};

}  // namespace orvuilib
