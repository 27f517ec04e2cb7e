#pragma once

#include <QProxyStyle>

namespace vesk {

/// Qt's style "Fusion" with all sizes at the interface scale in force, flat titles of panels and
/// scroll bars, and buttons of panels as line drawings.
class WorkspaceStyle final : public QProxyStyle {
 public:
  WorkspaceStyle();

  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override;
  QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                       const QWidget* widget) const override;
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& content,
                         const QWidget* widget) const override;
  QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                     const QWidget* widget) const override;
};

}  // namespace vesk
