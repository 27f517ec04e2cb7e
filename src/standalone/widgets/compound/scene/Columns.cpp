#include "standalone/widgets/compound/scene/Columns.h"

#include <algorithm>
#include <deque>
#include <unordered_map>

namespace orvuilib {

using orvlib::NodeObject;

namespace {

constexpr qreal kColumnStep = 300;
constexpr qreal kRowGap = 24;

class Columns {
 public:
  explicit Columns(const std::vector<BoxItem*>& boxes) {
    for (BoxItem* box : boxes) entries_[box->node.get()] = {box, 0, 0};
    for (BoxItem* box : boxes) count(*box);
    walk(boxes);
  }

  void place(const std::vector<BoxItem*>& boxes, const QPointF& origin) {
    std::unordered_map<int, qreal> bottoms;
    for (BoxItem* box : boxes) {
      const int column = entries_.at(box->node.get()).column;
      qreal& bottom = bottoms[column];
      box->bounds.moveTopLeft(origin + QPointF(column * kColumnStep, bottom));
      bottom += box->bounds.height() + kRowGap;
    }
  }

 private:
  struct Entry {
    BoxItem* box = nullptr;
    int column = 0;
    int waitsFor = 0;
    std::vector<Entry*> followers = {};
  };

  void count(BoxItem& box) {
    Entry& entry = entries_.at(box.node.get());
    forEachSource(*box.node, [this, &entry](NodeObject& giver) {
      const auto found = entries_.find(&giver);
      if (found == entries_.end()) return;
      found->second.followers.push_back(&entry);
      ++entry.waitsFor;
    });
  }

  void walk(const std::vector<BoxItem*>& boxes) {
    std::deque<Entry*> ready;
    for (BoxItem* box : boxes) {
      Entry& entry = entries_.at(box->node.get());
      if (entry.waitsFor == 0) ready.push_back(&entry);
    }
    for (; !ready.empty(); ready.pop_front()) {
      Entry* done = ready.front();
      for (Entry* next : done->followers) {
        next->column = std::max(next->column, done->column + 1);
        if (--next->waitsFor == 0) ready.push_back(next);
      }
    }
  }

  std::unordered_map<const NodeObject*, Entry> entries_;
};

}  // namespace

void placeInColumns(const std::vector<BoxItem*>& boxes, const QPointF& origin) {
  if (!boxes.empty()) Columns(boxes).place(boxes, origin);
}

}  // namespace orvuilib
