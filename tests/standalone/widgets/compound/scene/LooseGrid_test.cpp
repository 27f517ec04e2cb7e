#include "standalone/widgets/compound/scene/LooseGrid.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <deque>
#include <random>

using orvuilib::GridPlace;
using orvuilib::LooseGrid;

namespace {

struct Item {
  QRectF bounds;
  GridPlace place = {};
};

std::vector<const Item*> found(const LooseGrid<Item>& grid, const QRectF& area) {
  std::vector<const Item*> items;
  grid.search(area, [&items](Item& item) { items.push_back(&item); });
  std::ranges::sort(items);
  return items;
}

TEST(LooseGrid, FindsWhatAnAreaTouchesAsLookingAtEachDoes) {
  std::mt19937 random(3);
  std::uniform_real_distribution<double> place(-5000, 5000);
  std::exponential_distribution<double> size(1 / 200.0);
  std::deque<Item> items;
  LooseGrid<Item> grid;
  for (int i = 0; i < 3000; ++i) {
    items.push_back({{place(random), place(random), size(random), size(random)}});
    grid.insert(items.back());
  }
  for (int i = 0; i < 3000; i += 3) grid.remove(items[i]);
  for (int i = 0; i < 100; ++i) {
    const QRectF area(place(random), place(random), size(random) * 3, size(random) * 3);
    std::vector<const Item*> expected;
    for (int k = 0; k < 3000; ++k) {
      const QRectF& b = items[k].bounds;
      const bool touches = b.left() <= area.right() && area.left() <= b.right() &&
                           b.top() <= area.bottom() && area.top() <= b.bottom();
      if (k % 3 != 0 && touches) expected.push_back(&items[k]);
    }
    std::ranges::sort(expected);
    EXPECT_EQ(found(grid, area), expected);
  }
}

TEST(LooseGrid, FindsNothingAfterTheLastIsRemoved) {
  Item item{{0, 0, 10, 10}};
  LooseGrid<Item> grid;
  grid.insert(item);
  grid.remove(item);
  grid.remove(item);
  EXPECT_TRUE(found(grid, {-100, -100, 1000, 1000}).empty());
}

}  // namespace
