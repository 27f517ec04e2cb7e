#pragma once

#include <QStyle>
#include <QStyleOptionSlider>

class QPainter;

namespace vesk {

/// A flat scroll bar: a handle over its groove, and no buttons.

/// Where a part of it is; empty for the buttons.
QRect scrollBarPart(const QStyleOptionSlider& option, QStyle::SubControl part);

void drawScrollBar(const QStyleOptionSlider& option, QPainter& painter);

}  // namespace vesk
