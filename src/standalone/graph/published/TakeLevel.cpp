#include <algorithm>

#include "standalone/graph/model/NodeFactory.h"
#include "standalone/graph/published/Level.h"

namespace orvlib {
namespace {

/// A face, or a port below one, by its path; any other port as it is.
TakenLevel::End endOf(PortObject& port) {
  if (port.isInner()) return {PortRef(), port.fullName()};
  return {PortRef(&port), {}};
}

bool takeWire(Transaction& edits, PortObject& source, PortObject& target, TakenLevel& level) {
  const Mutator::WireIndices indices{source.peers().indexOf(&target),
                                     target.peers().indexOf(&source)};
  level.wires.push_back({endOf(source), endOf(target), indices});
  // A member inside stays where it is without its connection, which comes back.
  return edits.run(Disconnect{{PortRef(&source), PortRef(&target)}});
}

bool takeWires(Transaction& edits, PortObject& face, TakenLevel& level);

bool takeWiresBelow(Transaction& edits, PortObject& face, TakenLevel& level) {
  if (!face.madeChildren()) return true;
  const auto& items = face.madeChildren()->items();
  std::vector<PortObject*> children(items.begin(), items.end());
  for (auto child = children.rbegin(); child != children.rend(); ++child) {
    const PortRef member(*child);
    if (!takeWires(edits, *member, level)) return false;
    if (member->kind() != PortKind::Member) continue;
    if (!edits.run(RemovePort{{NodeRef(face.node()), member, 0, PortRef(&face)}})) return false;
  }
  return true;
}

bool takeWires(Transaction& edits, PortObject& face, TakenLevel& level) {
  if (!takeWiresBelow(edits, face, level)) return false;
  while (face.hasPeers()) {
    PortObject& last = *face.peers().at(face.peers().count() - 1);
    PortObject& source = face.isInput() ? last : face;
    PortObject& target = face.isInput() ? face : last;
    if (!takeWire(edits, source, target, level)) return false;
  }
  return true;
}

TakenLevel::Port stateOf(PortObject& port) {
  const Value* value = port.ownValue();
  return {PortRef(&port),
          port.name(),
          port.direction(),
          port.type(),
          port.flags(),
          port.metadata(),
          value ? std::optional<Value>(*value) : std::nullopt};
}

bool takeShown(Transaction& edits, PortObject& port, TakenLevel& level) {
  NodeObject* ioNode = port.ioNode();
  if (!ioNode) return true;
  const PortListObject& shown =
      ioNode->nodeKind() == NodeKind::Input ? ioNode->outputList() : ioNode->inputList();
  level.shown.push_back({port.name(), NodeRef(ioNode), shown.indexOf(port.twin())});
  return edits.run(SetIoNode{PortRef(&port), NodeRef(), 0});
}

bool takeState(Transaction& edits, PortObject& port, TakenLevel& level) {
  PortObject* partner = port.statePartner();
  if (!partner) return true;
  PortObject& input = port.isInput() ? port : *partner;
  PortObject& output = port.isInput() ? *partner : port;
  level.states.push_back({input.name(), output.name()});
  return edits.run(PartState{PortRef(&input), PortRef(&output)});
}

bool takePort(Transaction& edits, PortObject& port, TakenLevel& level) {
  level.ports.push_back(stateOf(port));
  return takeWires(edits, *port.twin(), level) && takeShown(edits, port, level) &&
         takeState(edits, port, level);
}

bool takePorts(Transaction& edits, NodeObject& node, TakenLevel& level) {
  for (PortListObject* list : {&node.inputList(), &node.outputList()}) {
    for (PortObject* port : list->items()) {
      if (!takePort(edits, *port, level)) return false;
    }
  }
  return true;
}

bool takeNodes(Transaction& edits, CompoundObject& compound, TakenLevel& level) {
  const CompoundRef carrier(level.carrier->compound());
  const auto& items = compound.nodes().items();
  for (NodeObject* child : std::vector<NodeObject*>(items.begin(), items.end())) {
    if (!edits.run(MoveNode{NodeRef(child), carrier, ~0u, child->name()})) return false;
  }
  return true;
}

bool takeAnnotations(Transaction& edits, CompoundObject& compound, TakenLevel& level) {
  for (AnnotationObject* annotation : compound.annotations().items()) {
    level.annotations.emplace_back(annotation);
  }
  return std::ranges::all_of(level.annotations, [&](const AnnotationRef& annotation) {
    return edits.run(RemoveAnnotation{{CompoundRef(&compound), annotation, 0}});
  });
}

}  // namespace

bool takeLevel(Transaction& edits, CompoundObject& compound, TakenLevel& level) {
  NodeObject& node = *compound.node();
  level.metadata = compound.metadata();
  level.carrier = NodeFactory(node.core()).makeCompound(node.name());
  return takePorts(edits, node, level) && takeNodes(edits, compound, level) &&
         takeAnnotations(edits, compound, level);
}

}  // namespace orvlib
