#include "standalone/widgets/parameters/RowStyle.h"

#include <QFontMetrics>
#include <algorithm>

#include "standalone/widgets/look/Theme.h"

namespace orvuilib::style {

using orvlib::ValueType;

int gap(const QWidget& widget) { return std::max(2, widget.fontMetrics().height() / 4); }

int lineHeight(const QWidget& widget) {
  return widget.fontMetrics().height() + 2 * gap(widget) + gap(widget) / 2;
}

int labelWidth(int width) { return width * 36 / 100; }

QColor mix(const QColor& first, const QColor& second, double amount) {
  const auto between = [amount](float a, float b) {
    return a + (b - a) * static_cast<float>(amount);
  };
  return QColor::fromRgbF(between(first.redF(), second.redF()),
                          between(first.greenF(), second.greenF()),
                          between(first.blueF(), second.blueF()));
}

QColor faintText(const QWidget& widget) {
  const QPalette& palette = widget.palette();
  return mix(palette.color(QPalette::WindowText), palette.color(QPalette::Window), 0.42);
}

QColor line(const QWidget& widget) {
  const QPalette& palette = widget.palette();
  return mix(palette.color(QPalette::Window), palette.color(QPalette::WindowText), 0.14);
}

QColor groupBackground(const QWidget& widget) {
  const QPalette& palette = widget.palette();
  return mix(palette.color(QPalette::Window), palette.color(QPalette::WindowText), 0.06);
}

QColor refusal() { return {0xd0, 0x5a, 0x4e}; }

QColor ofType(const ValueType& type) { return Theme::typeColour(type.name); }

}  // namespace orvuilib::style
