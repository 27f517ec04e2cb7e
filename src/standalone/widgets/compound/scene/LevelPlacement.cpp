// Where boxes lie that the graph gives no position.

#include <algorithm>

#include "standalone/widgets/compound/scene/Columns.h"
#include "standalone/widgets/compound/scene/LevelScene.h"

namespace orvuilib {

using orvlib::NodeObject;

namespace {

constexpr qreal kRowGap = 24;
constexpr qreal kNextTo = 60;

}  // namespace

/// Those without a place of their own stand below the others and below the notes, in columns. Where
/// they stand is the same each time, so that nothing need be stored for looking at a graph.
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
  forEachNote([&placed](const NoteItem& note) {
    if (!note.isBackdrop()) placed |= note.bounds;
  });
  const QPointF origin = placed.isNull() ? QPointF() : placed.bottomLeft() + QPointF(0, 60);
  placeInColumns(loose, origin);
  forEachBox([this](BoxItem& box) { boxGrid_.insert(box); });
  lastFree_ = origin;
}

/// To the right of what it depends on, else near the last such place; below what is there already.
/// On a backdrop it may lie.
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
    const auto goBelow = [&bottom](const auto& other) {
      bottom = std::max(bottom, other.bounds.bottom() + kRowGap);
    };
    boxGrid_.search(wanted, goBelow);
    noteGrid_.search(wanted, [&goBelow](const NoteItem& note) {
      if (!note.isBackdrop()) goBelow(note);
    });
    if (bottom == wanted.top()) break;
    place.setY(bottom);
  }
  lastFree_ = place;
  return place;
}

}  // namespace orvuilib
