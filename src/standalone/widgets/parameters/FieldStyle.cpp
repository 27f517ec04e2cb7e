#include "standalone/widgets/parameters/FieldStyle.h"

#include <QApplication>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOption>
#include <QWidget>
#include <algorithm>

#include "standalone/widgets/parameters/RowStyle.h"

namespace orvuilib {
namespace {

/// The colours of a field with that option.
struct Colours {
  QColor ground;
  QColor edge;
  QColor sign;

  explicit Colours(const QStyleOption& option) {
    const bool enabled = option.state & QStyle::State_Enabled;
    const QPalette& palette = option.palette;
    const QColor window = palette.color(QPalette::Window);
    const QColor text = palette.color(QPalette::Active, QPalette::WindowText);
    ground = palette.color(QPalette::Base);
    edge = style::mix(window, text, enabled ? 0.45 : 0.22);
    if (option.state & QStyle::State_HasFocus) edge = focusEdge(palette);
    sign = style::mix(ground, text, enabled ? 0.9 : 0.4);
  }

  static QColor focusEdge(const QPalette& palette) {
    const QColor text = palette.color(QPalette::Active, QPalette::WindowText);
    return style::mix(palette.color(QPalette::Active, QPalette::Highlight), text, 0.25);
  }
};

void paintTick(QPainter& painter, const QRectF& box) {
  QPainterPath tick;
  tick.moveTo(box.left() + box.width() * 0.24, box.top() + box.height() * 0.52);
  tick.lineTo(box.left() + box.width() * 0.43, box.top() + box.height() * 0.72);
  tick.lineTo(box.left() + box.width() * 0.77, box.top() + box.height() * 0.30);
  painter.drawPath(tick);
}

void paintCheck(QPainter& painter, const QStyleOption& option) {
  const Colours colours(option);
  const double side = std::min(option.rect.width(), option.rect.height()) - 1;
  QRectF box(0, 0, side, side);
  box.moveCenter(QRectF(option.rect).center());
  const double line = std::max(1.0, side / 12);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(colours.edge, line));
  painter.setBrush(colours.ground);
  painter.drawRoundedRect(box, side / 6, side / 6);
  painter.setPen(QPen(colours.sign, 1.8 * line, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  if (option.state & QStyle::State_On) paintTick(painter, box);
  if (option.state & QStyle::State_NoChange) {
    painter.drawLine(QPointF(box.left() + side * 0.28, box.center().y()),
                     QPointF(box.right() - side * 0.28, box.center().y()));
  }
  painter.restore();
}

void paintArrow(QPainter& painter, const QRectF& place, double size) {
  const QPointF middle = place.center();
  QPainterPath arrow;
  arrow.moveTo(middle.x() - size, middle.y() - size / 2);
  arrow.lineTo(middle.x(), middle.y() + size / 2);
  arrow.lineTo(middle.x() + size, middle.y() - size / 2);
  painter.drawPath(arrow);
}

void paintChoice(QPainter& painter, const QStyleOptionComplex& option, const QRect& arrow) {
  const Colours colours(option);
  const bool hasFocus = option.state & QStyle::State_HasFocus;
  const double line = std::max(1.0, option.fontMetrics.height() / 16.0);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(hasFocus ? QPen(colours.edge, line) : QPen(Qt::NoPen));
  painter.setBrush(colours.ground);
  painter.drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5), 2 * line, 2 * line);
  painter.setPen(QPen(colours.sign, 1.3 * line, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  paintArrow(painter, arrow, option.fontMetrics.height() / 5.0);
  painter.restore();
}

}  // namespace

/// Never destroyed: widgets may go after everything else of the program.
void FieldStyle::applyTo(QWidget& widget) {
  static FieldStyle& only = *new FieldStyle;
  widget.setStyle(&only);
}

void FieldStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
  if (element == PE_IndicatorCheckBox || element == PE_IndicatorItemViewItemCheck) {
    paintCheck(*painter, *option);
  } else {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
}

void FieldStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                    QPainter* painter, const QWidget* widget) const {
  if (control == CC_ComboBox) {
    paintChoice(*painter, *option, subControlRect(control, option, SC_ComboBoxArrow, widget));
  } else {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
  }
}

int FieldStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                            const QWidget* widget) const {
  const bool isBox = metric == PM_IndicatorWidth || metric == PM_IndicatorHeight;
  if (isBox && widget) return widget->fontMetrics().height() * 7 / 8;
  const int size = QApplication::style()->pixelMetric(metric, option, widget);
  return metric == PM_FocusFrameHMargin ? size * 3 / 4 : size;
}

}  // namespace orvuilib
