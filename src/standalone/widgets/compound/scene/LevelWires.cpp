// The wires of a level.

#include <algorithm>

#include "standalone/widgets/compound/scene/LevelScene.h"
#include "standalone/widgets/compound/scene/WireShape.h"

namespace orvuilib {

using orvlib::PortListObject;
using orvlib::PortObject;

namespace {

/// The port and all that are made below it.
template <class Visit>
void forEachBelow(PortObject& port, Visit& visit) {
  visit(port);
  if (const PortListObject* children = port.madeChildren()) {
    for (PortObject* child : children->items()) forEachBelow(*child, visit);
  }
}

/// Each top-level port of a box on one side, with what is below it.
template <class Visit>
void forEachPort(const BoxItem& box, bool left, Visit visit) {
  for (const PortSlot& slot : box.portSlots) {
    if (slot.left == left && slot.depth == 0) forEachBelow(*slot.port, visit);
  }
}

/// Keeps `list[index]` of each wire true.
void takeOut(std::vector<Wire*>& list, std::uint32_t index, std::uint32_t Wire::*indexOf) {
  list[index] = list.back();
  list[index]->*indexOf = index;
  list.pop_back();
}

}  // namespace

BoxItem* LevelScene::boxOf(const PortObject& port) const {
  const PortObject& root = port.root();
  orvlib::NodeObject* node = root.node();
  if (!node) return nullptr;
  if (!root.isInner()) return find(node);
  if (node != level_.get()) return nullptr;
  if (orvlib::NodeObject* shownOn = root.ioNode()) return find(shownOn);
  // Seen from inside, an input gives.
  return root.isInput() ? outputs_.get() : inputs_.get();
}

void LevelScene::addWire(PortObject& source, PortObject& target) {
  const Shown from = find(source);
  const Shown to = find(target);
  if (!from.box || !to.box) return;
  auto* wire = new Wire;
  wire->source = orvlib::PortRef(&source);
  wire->target = orvlib::PortRef(&target);
  wire->from = from.box;
  wire->to = to.box;
  wire->indexAtFrom = static_cast<std::uint32_t>(from.box->leaving.size());
  wire->indexAtTo = static_cast<std::uint32_t>(to.box->arriving.size());
  setColour(*wire);
  from.box->leaving.push_back(wire);
  to.box->arriving.push_back(wire);
  ++wireCount_;
  setEnds(*wire);
}

/// That of the type of what it carries.
void LevelScene::setColour(Wire& wire) const {
  wire.colour = theme_.typeColour(wire.source->valueType().name).rgb();
}

void LevelScene::removeWire(Wire& wire) {
  wireGrid_.remove(wire);
  takeOut(wire.from->leaving, wire.indexAtFrom, &Wire::indexAtFrom);
  takeOut(wire.to->arriving, wire.indexAtTo, &Wire::indexAtTo);
  --wireCount_;
  delete &wire;
}

void LevelScene::removeWires(BoxItem& box) {
  while (!box.arriving.empty()) removeWire(*box.arriving.back());
  while (!box.leaving.empty()) removeWire(*box.leaving.back());
}

void LevelScene::addArrivingWires(BoxItem& box) {
  forEachPort(box, true, [this](PortObject& target) {
    for (PortObject* source : target.peers().items()) addWire(*source, target);
  });
}

/// Those that were made from their other end already are left as they are.
void LevelScene::addLeavingWires(BoxItem& box) {
  QSet<std::pair<const PortObject*, const PortObject*>> made;
  for (const Wire* wire : box.leaving) made.insert({wire->source.get(), wire->target.get()});
  forEachPort(box, false, [this, &made](PortObject& source) {
    for (PortObject* target : source.peers().items()) {
      if (!made.contains(std::pair<const PortObject*, const PortObject*>(&source, target)))
        addWire(source, *target);
    }
  });
}

void LevelScene::setEnds(Wire& wire) {
  const PortSlot* from = slotFor(*wire.from, *wire.source);
  const PortSlot* to = slotFor(*wire.to, *wire.target);
  wireGrid_.remove(wire);
  if (from) wire.start = anchorOf(*wire.from, *from);
  if (to) wire.end = anchorOf(*wire.to, *to);
  wire.bounds = wireBounds(wire.start, wire.end);
  wireGrid_.insert(wire);
}

/// Makes the wires anew that end here; those that begin here are told of by their other ends.
QRectF LevelScene::rewireArriving(BoxItem& box) {
  QRectF touched;
  while (!box.arriving.empty()) {
    touched |= box.arriving.back()->bounds;
    removeWire(*box.arriving.back());
  }
  addArrivingWires(box);
  for (const Wire* wire : box.arriving) touched |= wire->bounds;
  return touched;
}

}  // namespace orvuilib
