#include "standalone/graph/edits/Wiring.h"

#include <vector>

#include "standalone/graph/edits/WireRules.h"
#include "standalone/graph/types/Conversion.h"

namespace orvlib {
namespace {

constexpr const char* kMemberName = "item";

/// A new member of a fan-in port for `source`; null when there can be none.
PortObject* runGrow(Transaction& edits, PortObject& fanIn) {
  GraphCore& core = fanIn.node()->core();
  const TypeRef type = core.elementType(fanIn.valueType());
  if (type == nullptr || fanIn.hasPeers()) return nullptr;
  PortListObject& members = *fanIn.childList();
  const PortRef member = NodeFactory(core).makeMember(members.uniqueName(kMemberName), type);
  InsertPort insert{{NodeRef(fanIn.node()), member, members.count(), PortRef(&fanIn)}};
  return edits.run(std::move(insert)) ? member.get() : nullptr;
}

/// Whether a connection from `source` to the fan-in port goes to a new member.
bool goesToMember(const PortObject& source, PortObject& fanIn) {
  const TypeRef element = fanIn.node()->core().elementType(fanIn.valueType());
  if (element == nullptr || source.valueType().isArray()) return false;
  return canConvert(source.valueType(), *ORV_v1::GraphAccess::typeOf(*element));
}

/// Breaks what is connected to ports below, but not to the port itself.
bool runClearBelow(Transaction& edits, PortObject& port) {
  const PortListObject* children = port.madeChildren();
  if (!children) return true;
  // A member goes with its connection, so the list changes under way.
  std::vector<PortObject*> all(children->items().begin(), children->items().end());
  for (PortObject* child : all) {
    if (!runDisconnectAll(edits, *child)) return false;
  }
  return true;
}

/// The member of a fan-in port that the port is, or is a component of; else null.
PortObject* memberOf(PortObject& port) {
  PortObject* above = port.kind() == PortKind::Component ? port.above() : &port;
  return above && above->kind() == PortKind::Member ? above : nullptr;
}

/// Makes room for a connection to `target`: it, what is above it and what is below it.
bool runDisplace(Transaction& edits, PortObject& target) {
  if (PortObject* former = target.source()) {
    if (!edits.run(Disconnect{{PortRef(former), PortRef(&target)}})) return false;
  }
  for (PortObject* above = target.above(); above; above = above->above()) {
    if (PortObject* former = above->source()) {
      if (!edits.run(Disconnect{{PortRef(former), PortRef(above)}})) return false;
    }
  }
  return runClearBelow(edits, target);
}

}  // namespace

bool runConnect(Transaction& edits, PortObject& one, PortObject& other, Occupied occupied) {
  PortObject& source = one.isInput() ? other : one;
  PortObject& given = one.isInput() ? one : other;
  if (!facesMatch(source, given) || given.peers().contains(&source)) return false;
  PortObject* target = &given;
  if (given.isFanInPort() && goesToMember(source, given)) {
    if (given.hasPeers() && (occupied == Occupied::Refuse || !runDisplace(edits, given))) {
      return false;
    }
    target = runGrow(edits, given);
    if (!target) return false;
  } else if (!canCarry(source, given)) {
    return false;
  } else if (occupied == Occupied::Displace && !runDisplace(edits, given)) {
    return false;
  }
  return edits.run(Connect{{PortRef(&source), PortRef(target)}});
}

bool runDisconnect(Transaction& edits, PortObject& source, PortObject& target) {
  if (!edits.run(Disconnect{{PortRef(&source), PortRef(&target)}})) return false;
  PortObject* member = memberOf(target);
  if (!member) return true;
  // Its components may be connected on their own; with the last of them it goes as well.
  if (member == &target && !runClearBelow(edits, target)) return false;
  if (!member->above() || member->hasPeers() || anyConnectedBelow(*member)) return true;
  return edits.run(
      RemovePort{{NodeRef(member->node()), PortRef(member), 0, PortRef(member->above())}});
}

bool runDisconnectAll(Transaction& edits, PortObject& port) {
  while (port.hasPeers()) {
    PortObject& last = *port.peers().at(port.peers().count() - 1);
    PortObject& source = port.isInput() ? last : port;
    PortObject& target = port.isInput() ? port : last;
    const PortRef kept(&port);
    if (!runDisconnect(edits, source, target)) return false;
  }
  return runClearBelow(edits, port);
}

bool runIsolate(Transaction& edits, NodeObject& node) {
  const bool shows = node.nodeKind() == NodeKind::Input || node.nodeKind() == NodeKind::Output;
  for (PortListObject* list : {&node.inputList(), &node.outputList()}) {
    const std::vector<PortObject*> ports(list->items().begin(), list->items().end());
    for (PortObject* port : ports) {
      if (shows ? !edits.run(SetIoNode{PortRef(port->twin()), NodeRef(), 0})
                : !runDisconnectAll(edits, *port)) {
        return false;
      }
    }
  }
  return true;
}

bool runRemoveNode(Transaction& edits, NodeObject& node) {
  return node.parent() && runIsolate(edits, node) &&
         edits.run(RemoveNode{{CompoundRef(node.parent()), NodeRef(&node), 0}});
}

bool runRemovePort(Transaction& edits, PortObject& port) {
  PortObject& outer = port.isInner() && port.twin() ? *port.twin() : port;
  if (!outer.node() || outer.isFixed()) return false;
  const PortRef above(outer.above());
  const NodeRef node(outer.node());
  if (!runDisconnectAll(edits, outer)) return false;
  if (PortObject* inner = outer.twin()) {
    if (!runDisconnectAll(edits, *inner)) return false;
    if (outer.ioNode() && !edits.run(SetIoNode{PortRef(&outer), NodeRef(), 0})) return false;
    if (PortObject* partner = outer.statePartner()) {
      PortObject& input = outer.isInput() ? outer : *partner;
      PortObject& output = outer.isInput() ? *partner : outer;
      if (!edits.run(PartState{PortRef(&input), PortRef(&output)})) return false;
    }
  }
  // A member is gone already when it was connected.
  if (!outer.node()) return true;
  return edits.run(RemovePort{{node, PortRef(&outer), 0, above}});
}

}  // namespace orvlib
