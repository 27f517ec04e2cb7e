#include "standalone/widgets/parameters/RowStyle.h"

#include <QFontMetrics>
#include <algorithm>

namespace orvuilib::style {

using orvlib::ScalarKind;
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

QColor ofType(const ValueType& type) {
  const ValueType& single = type.element ? *type.element : type;
  const auto& names = single.components;
  if (!names.empty() && names[0] == "r") return {0xd9, 0xa4, 0x41};
  if (names.size() > 4) return {0x8d, 0x7b, 0xc4};
  if (!names.empty()) return {0x9a, 0x72, 0xc9};
  switch (single.scalar) {
    case ScalarKind::Boolean:
      return {0xc9, 0x6a, 0x63};
    case ScalarKind::Integer:
      return {0x4f, 0xa3, 0xa5};
    case ScalarKind::Float:
      return {0x6f, 0xa8, 0x56};
    default:
      return {0x5a, 0x8f, 0xc8};
  }
}

}  // namespace orvuilib::style
