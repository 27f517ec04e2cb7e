#pragma once

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/compound/scene/Items.h"

namespace orvuilib {

/// Calls `visit(NodeObject&)` for each node of the level that gives `port` a value, or what is
/// below it: components and members of fan-in ports have wires of their own.
template <class Visit>
void forEachSource(const orvlib::PortObject& port, Visit& visit) {
  for (orvlib::PortObject* source : port.peers().items()) {
    orvlib::NodeObject* giver = source->isInner() ? source->root().ioNode() : source->node();
    if (giver) visit(*giver);
  }
  const orvlib::PortListObject* below = port.madeChildren();
  if (!below) return;
  for (const orvlib::PortObject* child : below->items()) forEachSource(*child, visit);
}

/// For each that gives the node a value.
template <class Visit>
void forEachSource(const orvlib::NodeObject& node, Visit visit) {
  for (const orvlib::PortObject* input : node.inputList().items()) forEachSource(*input, visit);
}

/// Puts boxes of one level, which are in no grid, into columns from `origin` on, each to the right
/// of all that it depends on.
ORVUI_EXPORT void placeInColumns(const std::vector<BoxItem*>& boxes, const QPointF& origin);

}  // namespace orvuilib
