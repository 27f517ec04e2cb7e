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

/// Nothing happens when one of the boxes is none.
void LevelScene::addWire(BoxItem* from, PortObject& source, BoxItem* to, PortObject& target) {
  if (!from || !to) return;
  auto* wire = new Wire;
  wire->source = orvlib::PortRef(&source);
  wire->target = orvlib::PortRef(&target);
  wire->from = from;
  wire->to = to;
  wire->indexAtFrom = static_cast<std::uint32_t>(from->leaving.size());
  wire->indexAtTo = static_cast<std::uint32_t>(to->arriving.size());
  from->leaving.push_back(wire);
  to->arriving.push_back(wire);
  ++wireCount_;
  setEnds(*wire);
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
  forEachPort(box, true, [this, &box](PortObject& target) {
    for (PortObject* source : target.peers().items()) {
      addWire(find(*source).box, *source, &box, target);
    }
  });
}

/// Those that were made from their other end already are left as they are.
void LevelScene::addLeavingWires(BoxItem& box) {
  QSet<std::pair<const PortObject*, const PortObject*>> made;
  for (const Wire* wire : box.leaving) made.insert({wire->source.get(), wire->target.get()});
  forEachPort(box, false, [this, &box, &made](PortObject& source) {
    for (PortObject* target : source.peers().items()) {
      if (!made.contains(std::pair<const PortObject*, const PortObject*>(&source, target)))
        addWire(&box, source, find(*target).box, *target);
    }
  });
}

void LevelScene::setEnds(Wire& wire) {
  const PortSlot* from = slotFor(*wire.from, *wire.source);
  const PortSlot* to = slotFor(*wire.to, *wire.target);
  wireGrid_.remove(wire);
  if (from) {
    wire.start = anchorOf(*wire.from, *from);
    const bool itself = from->port.get() == wire.source.get();
    wire.colour = itself ? from->colour : theme_.typeColour(wire.source->valueType().name).rgb();
  }
  if (to) wire.end = anchorOf(*wire.to, *to);
  wire.bounds = wireBounds(wire.start, wire.end);
  wireGrid_.insert(wire);
}

/// Whether the wires that end here are the connections that there are, in their order.
bool LevelScene::isWiredAsConnected(const BoxItem& box) const {
  std::size_t count = 0;
  bool same = true;
  forEachPort(box, true, [&](const PortObject& target) {
    for (const PortObject* source : target.peers().items()) {
      if (!find(*source).box) continue;
      const Wire* wire = count < box.arriving.size() ? box.arriving[count] : nullptr;
      ++count;
      same = same && wire && wire->source.get() == source && wire->target.get() == &target;
    }
  });
  return same && count == box.arriving.size();
}

/// Makes the wires anew that end here; those that begin here are told of by their other ends.
Areas LevelScene::rewireArriving(BoxItem& box) {
  Areas touched;
  while (!box.arriving.empty()) {
    touched |= box.arriving.back()->bounds;
    removeWire(*box.arriving.back());
  }
  addArrivingWires(box);
  for (const Wire* wire : box.arriving) touched |= wire->bounds;
  return touched;
}

}  // namespace orvuilib
