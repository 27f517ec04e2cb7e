#include "standalone/graph/commands/ConnectTo.h"

#include "standalone/graph/edits/WireRules.h"
#include "standalone/graph/edits/Wiring.h"

namespace orvlib {
namespace {

/// The inner face of the compound's own port of that path below it.
PortObject* ownPort(const CompoundObject& level, std::string_view path) {
  const auto dot = path.find('.');
  PortObject* outer = level.node()->port(path.substr(0, dot));
  if (!outer || !outer->twin()) return nullptr;
  return dot == path.npos ? outer->twin() : outer->twin()->descendant(path.substr(dot + 1));
}

PortObject* portOfChild(const CompoundObject& level, std::string_view path) {
  const auto dot = path.find('.');
  const NodeObject* child = level.nodes().find(path.substr(0, dot));
  return child && dot != path.npos ? child->portAt(path.substr(dot + 1)) : nullptr;
}

/// The port by its full path, on the face that is at this level.
PortObject* portByFullPath(const CompoundObject& level, std::string_view path) {
  const ContainerObject* container = level.node()->container();
  for (const unsigned int mode : {1u, 0u}) {
    PortObject* port = container ? container->findPort(path, 2, mode) : nullptr;
    if (port && wireLevel(*port) == &level) return port;
  }
  return nullptr;
}

/// Short names win over full paths.
PortObject* portAtLevel(const CompoundObject& level, std::string_view path) {
  if (PortObject* port = portOfChild(level, path)) return port;
  if (PortObject* port = ownPort(level, path)) return port;
  return portByFullPath(level, path);
}

/// The first port of the node that can be connected to `other`: of its type, else of one that
/// converts. Null when there is none.
PortObject* matchingPort(NodeObject& node, const PortObject& other) {
  const auto direction = other.isInput() ? PortDirection::Output : PortDirection::Input;
  PortObject* converting = nullptr;
  for (PortObject* port : node.list(direction).items()) {
    if (port->valueType().name == other.valueType().name) return port;
    const bool fits = other.isInput() ? canCarry(*port, other) : canCarry(other, *port);
    if (fits && !converting) converting = port;
  }
  return converting;
}

}  // namespace

bool runConnectTo(Transaction& edits, NodeObject& node, std::string_view path) {
  PortObject* other = portAtLevel(*node.parent(), path);
  PortObject* port = other ? matchingPort(node, *other) : nullptr;
  return port && runConnect(edits, *port, *other, Occupied::Displace);
}

bool runConnectIoTo(Transaction& edits, NodeObject& ioNode, std::string_view path) {
  CompoundObject& level = *ioNode.parent();
  NodeObject& owner = *level.node();
  PortObject* other = portAtLevel(level, path);
  const bool input = ioNode.nodeKind() == NodeKind::Input;
  if (!other || other->isInput() != input) return false;
  const auto direction = input ? PortDirection::Input : PortDirection::Output;
  const PortRef port =
      NodeFactory(owner.core())
          .makeCompoundPort(direction, owner.uniquePortName(other->name()), other->type());
  const unsigned int end = owner.list(direction).count();
  return edits.run(InsertPort{{NodeRef(&owner), port, end}}) &&
         edits.run(SetIoNode{port, NodeRef(&ioNode), ~0u}) &&
         runConnect(edits, *port->twin(), *other, Occupied::Displace);
}

}  // namespace orvlib
