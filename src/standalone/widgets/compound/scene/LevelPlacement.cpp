// Where boxes lie that the graph gives no position.

#include <algorithm>
#include <deque>

#include "standalone/widgets/compound/scene/LevelScene.h"

namespace orvuilib {

using orvlib::NodeObject;
using orvlib::PortObject;

namespace {

constexpr qreal kColumnStep = 300;
constexpr qreal kRowGap = 24;
constexpr qreal kNextTo = 60;

/// What a node's wires come from, on its level.
template <class Visit>
void forEachSource(const NodeObject& node, Visit visit) {
  for (PortObject* input : node.inputList().items()) {
    for (PortObject* source : input->peers().items()) {
      if (NodeObject* giver = source->node()) visit(*giver);
    }
  }
}

/// Boxes in columns, each to the right of all that it depends on.
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

/// Those without a place of their own stand below the others, in columns. Where they stand is the
/// same each time, so that nothing need be stored for looking at a graph.
void LevelScene::placeAll() {
  std::vector<BoxItem*> loose;
  QRectF placed;
  for (NodeObject* node : level()->nodes().items()) {
    BoxItem* box = find(node);
    if (box->placed) {
      placed |= box->bounds;
    } else {
      loose.push_back(box);
    }
  }
  const QPointF origin = placed.isNull() ? QPointF() : placed.bottomLeft() + QPointF(0, 60);
  if (!loose.empty()) Columns(loose).place(loose, origin);
  forEachBox([this](BoxItem& box) { boxGrid_.insert(box); });
  lastFree_ = origin;
}

/// To the right of what it depends on, else near the last such place; below what is there already.
QPointF LevelScene::freePlaceFor(const BoxItem& box) {
  QPointF place = lastFree_;
  forEachSource(*box.node, [this, &place](NodeObject& giver) {
    if (const BoxItem* source = find(&giver)) {
      place = source->bounds.topRight() + QPointF(kNextTo, 0);
    }
  });
  for (int tries = 0; tries < 64; ++tries) {
    const QRectF wanted(place, box.bounds.size());
    qreal bottom = wanted.top();
    boxGrid_.search(wanted, [&bottom](const BoxItem& other) {
      bottom = std::max(bottom, other.bounds.bottom() + kRowGap);
    });
    if (bottom == wanted.top()) break;
    place.setY(bottom);
  }
  lastFree_ = place;
  return place;
}

}  // namespace orvuilib
