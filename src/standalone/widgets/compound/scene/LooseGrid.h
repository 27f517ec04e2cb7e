#pragma once

#include <QRectF>
#include <array>
#include <cmath>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace orvuilib {

/// Where a LooseGrid keeps an item.
struct GridPlace {
  int level = -1;  ///< negative when it is in no grid
  std::uint64_t cell = 0;
  std::uint32_t index = 0;
};

/// Items by where they are, for items of all sizes. An item lies in the one cell that its centre is
/// in, on the level whose cells are as large as it is; it may therefore reach out of its cell by
/// half a cell. Insertion and removal cost the same at every size; a search looks at the cells that
/// it covers, or at those that hold anything when these are fewer. `Item` has the members
/// `QRectF bounds` and `GridPlace place`, which are the grid's while the item is in it.
template <class Item>
class LooseGrid {
 public:
  void insert(Item& item) {
    const int level = levelOf(item.bounds);
    const std::uint64_t cell = keyAt(item.bounds.center(), sizeOf(level));
    std::vector<Item*>& items = levels_[level][cell];
    item.place = {level, cell, static_cast<std::uint32_t>(items.size())};
    items.push_back(&item);
  }

  /// Nothing happens when it is in no grid.
  void remove(Item& item) {
    if (item.place.level < 0) return;
    Level& level = levels_[item.place.level];
    const auto found = level.find(item.place.cell);
    std::vector<Item*>& items = found->second;
    items[item.place.index] = items.back();
    items[item.place.index]->place.index = item.place.index;
    items.pop_back();
    if (items.empty()) level.erase(found);
    item.place.level = -1;
  }

  void clear() {
    for (Level& level : levels_) level.clear();
  }

  /// Calls `visit(Item&)` for each item whose bounds touch `area`, in no order.
  template <class Visit>
  void search(const QRectF& area, Visit visit) const {
    for (int i = 0; i < kLevels; ++i) {
      if (!levels_[i].empty()) searchLevel(i, area, visit);
    }
  }

 private:
  static constexpr int kLevels = 24;
  static constexpr qreal kFinest = 64;
  using Level = std::unordered_map<std::uint64_t, std::vector<Item*>>;

  static qreal sizeOf(int level) { return std::ldexp(kFinest, level); }

  static int levelOf(const QRectF& bounds) {
    const qreal size = std::max(bounds.width(), bounds.height());
    int level = 0;
    while (level + 1 < kLevels && sizeOf(level) < size) ++level;
    return level;
  }

  static std::int64_t column(qreal position, qreal size) {
    return static_cast<std::int64_t>(std::floor(position / size));
  }
  static std::uint64_t key(std::int64_t x, std::int64_t y) {
    return (static_cast<std::uint64_t>(x) << 32) | static_cast<std::uint32_t>(y);
  }
  static std::uint64_t keyAt(const QPointF& point, qreal size) {
    return key(column(point.x(), size), column(point.y(), size));
  }

  static bool touches(const QRectF& a, const QRectF& b) {
    return a.left() <= b.right() && b.left() <= a.right() && a.top() <= b.bottom() &&
           b.top() <= a.bottom();
  }

  template <class Visit>
  static void visitCell(const std::vector<Item*>& items, const QRectF& area, Visit& visit) {
    for (Item* item : items) {
      if (touches(item->bounds, area)) visit(*item);
    }
  }

  template <class Visit>
  void searchLevel(int index, const QRectF& area, Visit& visit) const {
    const Level& level = levels_[index];
    const qreal size = sizeOf(index);
    const qreal reach = size / 2;
    const std::int64_t left = column(area.left() - reach, size);
    const std::int64_t right = column(area.right() + reach, size);
    const std::int64_t top = column(area.top() - reach, size);
    const std::int64_t bottom = column(area.bottom() + reach, size);
    const double cells = double(right - left + 1) * double(bottom - top + 1);
    if (cells > double(level.size())) {
      for (const auto& [key, items] : level) visitCell(items, area, visit);
      return;
    }
    for (std::int64_t y = top; y <= bottom; ++y) {
      for (std::int64_t x = left; x <= right; ++x) {
        const auto found = level.find(key(x, y));
        if (found != level.end()) visitCell(found->second, area, visit);
      }
    }
  }

  std::array<Level, kLevels> levels_;
};

}  // namespace orvuilib
