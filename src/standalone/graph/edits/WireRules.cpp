#include "standalone/graph/edits/WireRules.h"

#include <algorithm>

#include "standalone/graph/model/CompoundObject.h"
#include "standalone/graph/types/Conversion.h"

namespace orvlib {
namespace {

bool anyAboveConnected(const PortObject& port) {
  for (const PortObject* above = port.above(); above; above = above->above()) {
    if (above->hasPeers()) return true;
  }
  return false;
}

/// The same of the port and of those below it.
bool connectionsMatch(const PortObject& port) {
  const auto matches = [&port](const PortObject* peer) {
    return port.isInput() ? facesMatch(*peer, port) : facesMatch(port, *peer);
  };
  if (!std::ranges::all_of(port.peers().items(), matches)) return false;
  const PortListObject* children = port.madeChildren();
  return !children || std::ranges::all_of(children->items(), [](const PortObject* child) {
    return connectionsMatch(*child);
  });
}

}  // namespace

bool connectionsMatch(const NodeObject& node) {
  // The ports that an input/output node lists are not its own.
  const auto matches = [&node](const PortObject* port) {
    return port->node() != &node || connectionsMatch(*port);
  };
  return std::ranges::all_of(node.inputList().items(), matches) &&
         std::ranges::all_of(node.outputList().items(), matches);
}

bool anyConnectedBelow(const PortObject& port) {
  const PortListObject* children = port.madeChildren();
  if (!children) return false;
  for (const PortObject* child : children->items()) {
    if (child->hasPeers() || anyConnectedBelow(*child)) return true;
  }
  return false;
}

CompoundObject* wireLevel(const PortObject& port) {
  const NodeObject* node = port.node();
  if (!node) return nullptr;
  return port.isInner() ? node->compound() : node->parent();
}

bool canCarry(const PortObject& source, const PortObject& target) {
  return canConvert(source.valueType(), target.valueType());
}

bool facesMatch(const PortObject& source, const PortObject& target) {
  const CompoundObject* level = wireLevel(source);
  return !source.isInput() && target.isInput() && level && level == wireLevel(target);
}

bool canConnect(const PortObject& source, const PortObject& target) {
  return facesMatch(source, target) && !target.hasPeers() && !anyAboveConnected(target) &&
         !anyConnectedBelow(target) && canCarry(source, target);
}

bool mayChangeFanIn(const PortObject& port) {
  // The flag says nothing of a port that is no array.
  if (!port.valueType().isArray()) return true;
  const PortObject* twin = port.twin();
  return !port.hasPeers() && (!twin || !twin->hasPeers()) &&
         (!port.madeChildren() || port.madeChildren()->count() == 0) &&
         (!twin || !twin->madeChildren() || twin->madeChildren()->count() == 0);
}

}  // namespace orvlib
