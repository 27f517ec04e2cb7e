#include "standalone/widgets/compound/edits/Arrangement.h"

#include <algorithm>
#include <memory>

#include "standalone/widgets/compound/scene/Columns.h"
#include "standalone/widgets/compound/scene/Placement.h"

namespace orvuilib::edits {

using orvlib::NodeObject;

namespace {

constexpr qreal kBelow = 60;
constexpr qreal kNoteStep = 110;

/// The items that are selected in the order of their level's list.
template <class Item, class IndexOf>
std::vector<QPointF> cornersInOrder(std::vector<Item*> items, IndexOf indexOf) {
  std::ranges::sort(items, {}, indexOf);
  std::vector<QPointF> corners;
  for (const Item* item : items) corners.push_back(item->bounds.topLeft());
  return corners;
}

BoxItem boxFor(NodeObject& node, const Theme& theme) {
  BoxItem box;
  box.node = orvlib::NodeRef(&node);
  layOut(box, {}, theme);
  return box;
}

/// Boxes of nodes that no scene shows yet.
std::vector<BoxItem> boxesFor(const NodeRefs& nodes, const Theme& theme) {
  std::vector<BoxItem> boxes;
  for (const auto& node : nodes) {
    BoxItem& box = boxes.emplace_back(boxFor(*node, theme));
    const auto position = placement::pointIn(node->metadata(), placement::kPosition);
    box.placed = position.has_value();
    if (position) box.bounds.moveTopLeft(*position);
  }
  return boxes;
}

QRectF boundsOfPlaced(const std::vector<BoxItem>& boxes) {
  QRectF bounds;
  for (const BoxItem& box : boxes) {
    if (box.placed) bounds |= box.bounds;
  }
  return bounds;
}

void placeLoose(std::vector<BoxItem>& boxes, const QRectF& placed) {
  std::vector<BoxItem*> loose;
  for (BoxItem& box : boxes) {
    if (!box.placed) loose.push_back(&box);
  }
  placeInColumns(loose, placed.isNull() ? QPointF() : placed.bottomLeft() + QPointF(0, kBelow));
}

}  // namespace

QPointF Arrangement::corner() const {
  QPointF least = nodes.empty() ? (notes.empty() ? QPointF() : notes.front()) : nodes.front();
  const auto take = [&least](const QPointF& at) {
    least = {std::min(least.x(), at.x()), std::min(least.y(), at.y())};
  };
  std::ranges::for_each(nodes, take);
  std::ranges::for_each(notes, take);
  return least;
}

Arrangement arrangementOfSelection(const LevelScene& scene) {
  const auto& nodes = scene.level()->nodes();
  const auto& notes = scene.level()->annotations();
  const auto indexOfBox = [&nodes](const BoxItem* box) { return nodes.indexOf(box->node.get()); };
  const auto indexOfNote = [&notes](const NoteItem* note) {
    return notes.indexOf(note->annotation.get());
  };
  return {cornersInOrder(scene.selectedBoxes(), indexOfBox),
          cornersInOrder(scene.selectedNotes(), indexOfNote)};
}

Arrangement arrangementOf(const NodeRefs& nodes, const NoteRefs& notes, const Theme& theme) {
  Arrangement made;
  std::vector<BoxItem> boxes = boxesFor(nodes, theme);
  placeLoose(boxes, boundsOfPlaced(boxes));
  QRectF all;
  for (const BoxItem& box : boxes) {
    made.nodes.push_back(box.bounds.topLeft());
    all |= box.bounds;
  }
  QPointF free = all.bottomLeft() + QPointF(0, kBelow);
  for (const auto& note : notes) {
    const auto position = placement::pointIn(note->metadata(), placement::kPosition);
    made.notes.push_back(position.value_or(free));
    if (!position) free += QPointF(0, kNoteStep);
  }
  return made;
}

QSizeF boxSizeOf(NodeObject& node, const Theme& theme) { return boxFor(node, theme).bounds.size(); }

}  // namespace orvuilib::edits
