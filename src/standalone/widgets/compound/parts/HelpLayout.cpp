#include "standalone/widgets/compound/parts/HelpLayout.h"

#include <algorithm>

#include "standalone/widgets/compound/input/Shortcuts.h"

namespace orvuilib {

std::vector<HelpGroup> helpGroups() {
  std::vector<HelpGroup> groups{{QStringLiteral("Mouse"), {}}};
  for (const MouseRow& row : mouseTable()) {
    groups.back().rows.push_back({QString::fromLatin1(row.gesture), QString::fromLatin1(row.text)});
  }
  for (const ShortcutRow& row : shortcutTable()) {
    const QString heading = QString::fromLatin1(row.group);
    if (groups.back().heading != heading) groups.push_back({heading, {}});
    groups.back().rows.push_back(
        {keysOf(row).join(QStringLiteral(", ")), QString::fromLatin1(row.text)});
  }
  return groups;
}

HelpLayout::HelpLayout(const std::vector<HelpGroup>& groups, const QFontMetricsF& metrics,
                       qreal gap, qreal width)
    : gap_(gap) {
  for (const HelpGroup& group : groups) {
    Widths& its = widths_.emplace_back();
    for (const auto& row : group.rows) {
      its.keys = std::max(its.keys, metrics.horizontalAdvance(row.keys));
      its.texts = std::max(its.texts, metrics.horizontalAdvance(row.text));
    }
  }
  // The lowest arrangement that is not too wide. One column always is there, cut if need be.
  std::size_t all = linesOf(groups, 0, groups.size());
  std::size_t least = 0;
  for (std::size_t i = 0; i < groups.size(); ++i) least = std::max(least, linesOf(groups, i, 1));
  for (lines_ = least; lines_ < all && !arrange(groups, lines_, width);) ++lines_;
  if (lines_ < all) return;
  arrange(groups, all, width);
  columns_.front().width = std::min(columns_.front().width, width);
  columns_.front().keyWidth = std::min(columns_.front().keyWidth, width * 2 / 5);
}

std::size_t HelpLayout::linesOf(const std::vector<HelpGroup>& groups, std::size_t first,
                                std::size_t count) {
  std::size_t lines = 0;
  for (std::size_t i = first; i < first + count; ++i) {
    lines += (i > first ? 1 : 0) + 1 + groups[i].rows.size();
  }
  return lines;
}

/// Fills columns of at most that many lines; false when they are wider than the room.
bool HelpLayout::arrange(const std::vector<HelpGroup>& groups, std::size_t most, qreal width) {
  columns_.clear();
  for (std::size_t i = 0; i < groups.size(); ++i) {
    const bool fits = !columns_.empty() &&
                      linesOf(groups, columns_.back().first, columns_.back().count + 1) <= most;
    if (!fits) columns_.push_back({0, 0, 0, i, 0});
    ++columns_.back().count;
  }
  qreal left = 0;
  for (Column& column : columns_) {
    qreal texts = 0;
    for (std::size_t i = column.first; i < column.first + column.count; ++i) {
      column.keyWidth = std::max(column.keyWidth, widths_[i].keys + gap_);
      texts = std::max(texts, widths_[i].texts);
    }
    column.left = left;
    column.width = column.keyWidth + texts + 1;
    left += column.width + 2 * gap_;
  }
  return left - 2 * gap_ <= width;
}

}  // namespace orvuilib
