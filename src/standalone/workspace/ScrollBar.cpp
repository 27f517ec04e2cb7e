#include "standalone/workspace/ScrollBar.h"

#include <QPainter>
#include <algorithm>

#include "standalone/workspace/Theme.h"

namespace vesk {
namespace {

constexpr int kShortestHandle = 24;  // at 100 percent
constexpr int kGap = 3;              // around the handle, likewise

/// A stretch along the bar.
struct Stretch {
  int begin;
  int length;
};

int lengthOf(const QStyleOptionSlider& option) {
  return option.orientation == Qt::Horizontal ? option.rect.width() : option.rect.height();
}

Stretch handleOf(const QStyleOptionSlider& option) {
  const int whole = lengthOf(option);
  const double range = double(option.maximum) - option.minimum;
  if (range <= 0) return {0, whole};
  const int fair = static_cast<int>(whole * option.pageStep / (range + option.pageStep));
  const int length = std::min(std::max(fair, theme::scaled(kShortestHandle)), whole);
  const int begin = QStyle::sliderPositionFromValue(
      option.minimum, option.maximum, option.sliderPosition, whole - length, option.upsideDown);
  return {begin, length};
}

Stretch stretchOf(const QStyleOptionSlider& option, QStyle::SubControl part) {
  const Stretch handle = handleOf(option);
  const int end = handle.begin + handle.length;
  switch (part) {
    case QStyle::SC_ScrollBarSlider:
      return handle;
    case QStyle::SC_ScrollBarSubPage:
      return {0, handle.begin};
    case QStyle::SC_ScrollBarAddPage:
      return {end, lengthOf(option) - end};
    case QStyle::SC_ScrollBarGroove:
      return {0, lengthOf(option)};
    default:
      return {0, 0};
  }
}

QColor handleColour(const QStyleOptionSlider& option) {
  const bool pointedAt = option.activeSubControls & QStyle::SC_ScrollBarSlider;
  if (pointedAt && option.state & QStyle::State_Sunken) return theme::kHandlePressed;
  if (pointedAt && option.state & QStyle::State_MouseOver) return theme::kHandlePointedAt;
  return theme::kHandle;
}

}  // namespace

QRect scrollBarPart(const QStyleOptionSlider& option, QStyle::SubControl part) {
  const auto [begin, length] = stretchOf(option, part);
  if (length <= 0) return {};
  const QRect& whole = option.rect;
  const bool horizontal = option.orientation == Qt::Horizontal;
  const QRect place = horizontal ? QRect(whole.left() + begin, whole.top(), length, whole.height())
                                 : QRect(whole.left(), whole.top() + begin, whole.width(), length);
  return QStyle::visualRect(option.direction, whole, place);
}

void drawScrollBar(const QStyleOptionSlider& option, QPainter& painter) {
  painter.save();
  painter.fillRect(option.rect, option.palette.color(QPalette::Base));
  if (option.maximum > option.minimum) {
    const int gap = theme::scaled(kGap);
    const QRectF handle =
        scrollBarPart(option, QStyle::SC_ScrollBarSlider).adjusted(gap, gap, -gap, -gap);
    const double radius = std::min(handle.width(), handle.height()) / 2;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(handleColour(option));
    painter.drawRoundedRect(handle, radius, radius);
  }
  painter.restore();
}

}  // namespace vesk
