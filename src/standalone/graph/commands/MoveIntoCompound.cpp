#include "standalone/graph/commands/MoveIntoCompound.h"

#include <algorithm>

#include "standalone/graph/commands/PortValues.h"
#include "standalone/graph/types/Conversion.h"

namespace orvlib {

MoveIntoCompound::MoveIntoCompound(Transaction& edits, CompoundObject& inside,
                                   const std::vector<NodeRef>& nodes)
    : edits_(edits), inside_(inside), nodes_(nodes) {
  for (const NodeRef& node : nodes) moving_.insert(node.get());
}

bool MoveIntoCompound::run() {
  collect();
  if (!runBreak() || !runMove()) return false;
  for (Crossing& crossing : incoming_) {
    const PortObject& first = *crossing.targets.front();
    const PortObject& named = first.kind() == PortKind::Member ? *first.above() : first;
    if (!runMakePort(crossing, PortDirection::Input, named)) return false;
    if (!runTakeValue(crossing) || !runJoin(crossing)) return false;
  }
  for (Crossing& crossing : outgoing_) {
    if (!runMakePort(crossing, PortDirection::Output, *crossing.source)) return false;
    if (!runJoin(crossing)) return false;
  }
  return true;
}

bool MoveIntoCompound::moves(const PortObject& port) const {
  return moving_.contains(port.node()) && !port.isInner();
}

void MoveIntoCompound::collect() {
  for (const NodeRef& node : nodes_) {
    for (PortObject* port : node->inputList().items()) collectPort(*port);
    for (PortObject* port : node->outputList().items()) collectPort(*port);
  }
  for (Crossing& crossing : incoming_) {
    const PeerList& peers = crossing.source->peers();
    const auto place = [&peers](const PortObject* target) { return peers.indexOf(target); };
    std::ranges::sort(crossing.targets, {}, place);
    crossing.place = place(crossing.targets.front());
  }
}

/// The connections across of the port and of those below it.
void MoveIntoCompound::collectPort(PortObject& port) {
  if (port.isInput()) {
    PortObject* source = port.source();
    if (source && !moves(*source)) {
      const auto [entry, fresh] = incomingOf_.emplace(source, incoming_.size());
      if (fresh) incoming_.push_back({source, 0, {}});
      incoming_[entry->second].targets.push_back(&port);
    }
  } else {
    Crossing crossing{&port, 0, {}};
    for (PortObject* target : port.peers().items()) {
      if (moves(*target)) continue;
      if (crossing.targets.empty()) crossing.place = port.peers().indexOf(target);
      crossing.targets.push_back(target);
    }
    if (!crossing.targets.empty()) outgoing_.push_back(std::move(crossing));
  }
  const PortListObject* children = port.madeChildren();
  if (!children) return;
  for (PortObject* child : children->items()) collectPort(*child);
}

bool MoveIntoCompound::runBreak() {
  for (const std::vector<Crossing>* all : {&incoming_, &outgoing_}) {
    for (const Crossing& crossing : *all) {
      // A member of a fan-in port stays: it is connected again at once.
      for (PortObject* target : crossing.targets) {
        if (!edits_.run(Disconnect{{PortRef(crossing.source), PortRef(target)}})) return false;
      }
    }
  }
  return true;
}

bool MoveIntoCompound::runMove() {
  for (const NodeRef& node : nodes_) {
    std::string name = inside_.nodes().uniqueName(node->name());
    const unsigned int end = inside_.nodes().count();
    if (!edits_.run(MoveNode{node, CompoundRef(&inside_), end, std::move(name)})) return false;
  }
  return true;
}

bool MoveIntoCompound::runMakePort(Crossing& crossing, PortDirection direction,
                                   const PortObject& named) {
  NodeObject& node = *inside_.node();
  crossing.outer =
      NodeFactory(node.core())
          .makeCompoundPort(direction, node.uniquePortName(named.name()), crossing.source->type());
  const unsigned int end = node.list(direction).count();
  return edits_.run(InsertPort{{NodeRef(&node), crossing.outer, end}});
}

/// The port shows the value that its first target had, for when it is disconnected.
bool MoveIntoCompound::runTakeValue(Crossing& crossing) {
  PortObject& target = *crossing.targets.front();
  const std::optional<Value> value =
      target.root().ownValue() ? target.settableValue() : std::nullopt;
  const ValueType& type = crossing.outer->valueType();
  if (!value || !canConvert(target.valueType(), type)) return true;
  return runSetValue(edits_, *crossing.outer, convert(*value, target.valueType(), type));
}

/// Connects the source to the one face, in the place of what it was connected to, and the other
/// face to the targets.
bool MoveIntoCompound::runJoin(const Crossing& crossing) {
  const bool incoming = crossing.outer->isInput();
  const PortRef inner(crossing.outer->twin());
  const PortRef& near = incoming ? crossing.outer : inner;
  const PortRef& far = incoming ? inner : crossing.outer;
  if (!edits_.run(Connect{{PortRef(crossing.source), near, {crossing.place, 0}}})) return false;
  for (PortObject* target : crossing.targets) {
    if (!edits_.run(Connect{{far, PortRef(target)}})) return false;
  }
  return true;
}

}  // namespace orvlib
