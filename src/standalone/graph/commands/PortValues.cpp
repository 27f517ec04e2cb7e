#include "standalone/graph/commands/PortValues.h"

#include <vector>

#include "standalone/graph/api/GraphAccess.h"
#include "standalone/graph/edits/WireRules.h"
#include "standalone/graph/edits/Wiring.h"
#include "standalone/graph/types/Components.h"
#include "standalone/graph/types/Conversion.h"

namespace orvlib {
namespace {

using ORV_v1::GraphAccess;

std::size_t placeOf(const PortObject& component) {
  return component.above()->madeChildren()->indexOf(&component);
}

bool runSetOwnValue(Transaction& edits, PortObject& port, std::unique_ptr<const Value> value) {
  return edits.run(SetPortValue{PortRef(&port), std::move(value)});
}

/// A connection of a child of a port that changes its type.
struct ChildWire {
  PortRef face;
  std::string below;  ///< the path of the child
  PortRef child;
  PortRef peer;
};

void collectChildWires(PortObject& face, PortObject& port, const std::string& path,
                       std::vector<ChildWire>& wires) {
  const PortListObject* children = port.madeChildren();
  if (!children) return;
  for (PortObject* child : children->items()) {
    const std::string below = path.empty() ? child->name() : path + '.' + child->name();
    for (PortObject* peer : child->peers().items()) {
      wires.push_back({PortRef(&face), below, PortRef(child), PortRef(peer)});
    }
    collectChildWires(face, *child, below, wires);
  }
}

bool runBreakWire(Transaction& edits, PortObject& one, PortObject& other) {
  PortObject& source = one.isInput() ? other : one;
  PortObject& target = one.isInput() ? one : other;
  // What is broken off may have been broken with its member.
  return !target.peers().contains(&source) || runDisconnect(edits, source, target);
}

/// Takes out the members that no wire took along.
bool runDropMembers(Transaction& edits, PortObject& port) {
  const PortListObject* children = port.isFanInPort() ? port.madeChildren() : nullptr;
  while (children && children->count() > 0) {
    if (!runRemovePort(edits, *children->at(children->count() - 1))) return false;
  }
  return true;
}

/// The child of that name, made when `face` takes members.
PortObject* runFindChild(Transaction& edits, PortObject& face, const std::string& path) {
  if (PortObject* found = face.descendant(path)) return found;
  if (!face.isFanInPort() || path.find('.') != path.npos) return nullptr;
  GraphCore& core = face.node()->core();
  const TypeRef type = core.elementType(face.valueType());
  if (type == nullptr) return nullptr;
  const PortRef member = NodeFactory(core).makeMember(path, type);
  const unsigned int end = face.childList()->count();
  const bool done = edits.run(InsertPort{{NodeRef(face.node()), member, end, PortRef(&face)}});
  return done ? member.get() : nullptr;
}

/// Whether a child of a port of that type could have the connection.
bool fitsChild(const PortObject& face, const ChildWire& wire) {
  const ValueType& type = face.valueType();
  if (!face.isFanInPort()) return true;
  return wire.below.find('.') == std::string::npos && canConvert(wire.peer->valueType(), type);
}

bool runRestore(Transaction& edits, const ChildWire& wire) {
  if (!fitsChild(*wire.face, wire)) return true;
  PortObject* child = runFindChild(edits, *wire.face, wire.below);
  if (!child) return !wire.face->isFanInPort();
  PortObject& source = child->isInput() ? *wire.peer : *child;
  PortObject& target = child->isInput() ? *child : *wire.peer;
  if (!canConnect(source, target)) return true;
  return edits.run(Connect{{PortRef(&source), PortRef(&target)}});
}

/// Breaks the connections of the face that a value of `type` does not fit.
bool runBreakUnfit(Transaction& edits, PortObject& face, const ValueType& type) {
  std::vector<PortObject*> unfit;
  for (PortObject* peer : face.peers().items()) {
    const bool fits =
        face.isInput() ? canConvert(peer->valueType(), type) : canConvert(type, peer->valueType());
    if (!fits) unfit.push_back(peer);
  }
  for (PortObject* peer : unfit) {
    if (!runBreakWire(edits, face, *peer)) return false;
  }
  return true;
}

/// The value of the port as one of another type; null for the default.
std::unique_ptr<const Value> convertedValue(const PortObject& port, const ValueType& type) {
  const ValueType& former = port.valueType();
  if (!port.ownValue() || !canConvert(former, type)) return nullptr;
  return std::make_unique<const Value>(convert(*port.ownValue(), former, type));
}

bool runSetOneType(Transaction& edits, PortObject& port, const TypeRef& type) {
  const auto valueType = GraphAccess::typeOf(*type);
  if (port.valueType().name == valueType->name) return true;
  std::vector<ChildWire> wires;
  std::vector<PortObject*> faces{&port};
  if (port.twin()) faces.push_back(port.twin());
  for (PortObject* face : faces) {
    if (!runBreakUnfit(edits, *face, *valueType)) return false;
    collectChildWires(*face, *face, "", wires);
  }
  for (const ChildWire& wire : wires) {
    if (!runBreakWire(edits, *wire.child, *wire.peer)) return false;
  }
  if (!runDropMembers(edits, port)) return false;
  if (!edits.run(SetPortType(PortRef(&port), type, convertedValue(port, *valueType)))) return false;
  for (const ChildWire& wire : wires) {
    if (!runRestore(edits, wire)) return false;
  }
  return true;
}

}  // namespace

bool runSetValue(Transaction& edits, PortObject& port, Value value) {
  if (!port.isSettable()) return false;
  if (port.kind() != PortKind::Component) {
    return runSetOwnValue(edits, port, std::make_unique<const Value>(std::move(value)));
  }
  Value whole = *port.above()->settableValue();
  setComponents(whole, placeOf(port), value);
  return runSetValue(edits, *port.above(), std::move(whole));
}

bool runResetValue(Transaction& edits, PortObject& port) {
  if (!port.isSettable()) return false;
  if (port.kind() != PortKind::Component) return runSetOwnValue(edits, port, nullptr);
  return runSetValue(edits, port, componentsOf(port.above()->defaultValue(), placeOf(port), 1));
}

bool runSetType(Transaction& edits, PortObject& port, const TypeRef& type) {
  PortObject& outer = port.isInner() && port.twin() ? *port.twin() : port;
  if (!outer.node() || outer.isFixed() || outer.above()) return false;
  if (!runSetOneType(edits, outer, type)) return false;
  return !outer.statePartner() || runSetOneType(edits, *outer.statePartner(), type);
}

}  // namespace orvlib
