#pragma once

#include <QColor>
#include <QWidget>

#include "standalone/graph/types/ValueType.h"

namespace orvuilib {

/// Sizes and colours of the parameter editor. Sizes are in pixels for the widget's font; colours
/// are mixed from the widget's palette, so that they fit light and dark windows.
namespace style {

int lineHeight(const QWidget& widget);

/// A gap between what belongs together.
int gap(const QWidget& widget);

/// The width of the labels in a line of that width.
int labelWidth(int width);

/// Between the two colours: `amount` 0 is the first, 1 the second.
QColor mix(const QColor& first, const QColor& second, double amount);

QColor faintText(const QWidget& widget);
QColor line(const QWidget& widget);
QColor groupBackground(const QWidget& widget);

/// The mark of a text that was refused.
QColor refusal();

/// The colour that stands for a type of port.
QColor ofType(const orvlib::ValueType& type);

}  // namespace style
}  // namespace orvuilib
