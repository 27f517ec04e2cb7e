#include "standalone/widgets/compound/edits/WireEdits.h"

#include <algorithm>

#include "standalone/graph/edits/WireRules.h"
#include "standalone/graph/types/Conversion.h"

namespace orvuilib::edits {

using orvlib::NodeKind;
using orvlib::NodeObject;
using orvlib::PortListObject;
using orvlib::PortObject;
using orvlib::PortRef;

namespace {

/// What is connected to the node on one side, on its level.
template <class Visit>
void forEachNeighbour(const PortListObject& ports, Visit visit) {
  for (PortObject* port : ports.items()) {
    for (PortObject* peer : port->peers().items()) {
      if (peer->node() && !peer->isInner()) visit(*peer->node());
    }
    if (const PortListObject* children = port->madeChildren()) forEachNeighbour(*children, visit);
  }
}

/// The node and all that surely comes before or behind it. Through compounds values may or may not
/// go.
QSet<const NodeObject*> allFrom(NodeObject& first, bool behind) {
  QSet<const NodeObject*> seen;
  std::vector<NodeObject*> open{&first};
  while (!open.empty()) {
    NodeObject* node = open.back();
    open.pop_back();
    if (!node->hasOwnPorts() || seen.contains(node)) continue;
    seen.insert(node);
    forEachNeighbour(behind ? node->outputList() : node->inputList(),
                     [&open](NodeObject& next) { open.push_back(&next); });
  }
  return seen;
}

bool hasNeighbours(const PortListObject& ports) {
  bool any = false;
  forEachNeighbour(ports, [&any](const NodeObject&) { any = true; });
  return any;
}

bool closesCircle(const PortObject& source, const PortObject& target) {
  if (source.isInner() || target.isInner()) return false;
  if (!hasNeighbours(target.node()->outputList()) || !hasNeighbours(source.node()->inputList())) {
    return source.node() == target.node();
  }
  return allFrom(*target.node(), true).contains(source.node());
}

/// For a fan-in port the type of a member counts too.
bool carries(const PortObject& source, const PortObject& target) {
  if (orvlib::canCarry(source, target)) return true;
  const auto& element = target.valueType().element;
  return target.isFanInPort() && element && orvlib::canConvert(source.valueType(), *element);
}

/// The source that a removed node passed on to the output of that type.
PortObject* passedOn(NodeObject& node, const PortObject& output) {
  PortObject* found = nullptr;
  for (PortObject* input : node.inputList().items()) {
    PortObject* source = input->source();
    if (!source || !orvlib::canConvert(source->valueType(), output.valueType())) continue;
    if (input->valueType().name == output.valueType().name) return source;
    if (!found) found = source;
  }
  return found;
}

}  // namespace

std::optional<Joint> jointOf(PortObject& one, PortObject& other) {
  if (orvlib::facesMatch(one, other)) return Joint{PortRef(&one), PortRef(&other)};
  if (orvlib::facesMatch(other, one)) return Joint{PortRef(&other), PortRef(&one)};
  return {};
}

namespace {

bool isOpenTo(const Joint& joint) {
  const PortObject& source = *joint.source;
  const PortObject& target = *joint.target;
  const bool outside = !source.isInner() && !target.isInner();
  if (outside && source.node() == target.node()) return false;
  return carries(source, target) && !target.peers().contains(&source);
}

}  // namespace

bool canJoin(PortObject& one, PortObject& other) {
  const auto joint = jointOf(one, other);
  return joint && isOpenTo(*joint) && !closesCircle(*joint->source, *joint->target);
}

JoinTest::JoinTest(PortObject& port) : port_(&port) {
  if (port.isInner() || !port.node()) return;
  (port.isInput() ? behind_ : before_) = allFrom(*port.node(), port.isInput());
}

bool JoinTest::operator()(PortObject& other) const {
  const auto joint = jointOf(*port_, other);
  if (!joint || !isOpenTo(*joint)) return false;
  if (other.isInner()) return true;
  return !before_.contains(other.node()) && !behind_.contains(other.node());
}

PortObject* firstFitting(PortObject& port, NodeObject& node) {
  const PortListObject& candidates = port.isInput() ? node.outputList() : node.inputList();
  PortObject* found = nullptr;
  for (PortObject* candidate : candidates.items()) {
    if (candidate->hasPeers() || !canJoin(port, *candidate)) continue;
    if (candidate->valueType().name == port.valueType().name) return candidate;
    if (!found) found = candidate;
  }
  return found;
}

bool fitsDefinition(PortObject& port, const orvlib::NodeDescription& definition) {
  return std::ranges::any_of(definition.ports, [&port](const orvlib::PortDescription& other) {
    const bool gives = other.direction == orvlib::PortDirection::Output;
    if (gives != port.isInput()) return false;
    if (gives) return orvlib::canConvert(*other.type, port.valueType());
    return orvlib::canConvert(port.valueType(), *other.type);
  });
}

bool connect(EditSession& session, PortObject& source, PortObject& target) {
  return session.hook().connectPorts(EditSession::handle(source), EditSession::handle(target),
                                     false);
}

bool connectToFirstFitting(EditSession& session, PortObject& port, NodeObject& node) {
  PortObject* fitting = firstFitting(port, node);
  if (!fitting) return true;
  const auto joint = jointOf(port, *fitting);
  return connect(session, *joint->source, *joint->target);
}

namespace {

bool disconnect(EditSession& session, const Joint& joint) {
  return session.hook().disconnectPorts(EditSession::handle(*joint.source),
                                        EditSession::handle(*joint.target));
}

}  // namespace

void makeWire(EditSession& session, const Joint& joint) {
  connect(session, *joint.source, *joint.target);
}

void removeWires(EditSession& session, const std::vector<Joint>& joints) {
  if (joints.size() == 1) {
    disconnect(session, joints.front());
    return;
  }
  EditStep step(session, QStringLiteral("Disconnect"));
  for (const Joint& joint : joints) step.require(disconnect(session, joint));
}

void moveWire(EditSession& session, const Joint& from, const Joint& to) {
  EditStep step(session, QStringLiteral("Move wire"));
  step.require(disconnect(session, from));
  step.require(connect(session, *to.source, *to.target));
}

bool canInsert(const Wire& wire, NodeObject& node) {
  const auto isFree = [](const PortListObject& ports) {
    return std::ranges::none_of(ports.items(), [](const PortObject* port) {
      return port->hasPeers() || orvlib::anyConnectedBelow(*port);
    });
  };
  return wire.from->node.get() != &node && wire.to->node.get() != &node &&
         isFree(node.inputList()) && isFree(node.outputList()) &&
         firstFitting(*wire.source, node) && firstFitting(*wire.target, node);
}

/// The new wire into the target takes the place of the one that was there.
bool insertNode(EditSession& session, const Joint& wire, NodeObject& node) {
  const PortRef source = wire.source;
  const PortRef target = wire.target;
  PortObject* input = firstFitting(*source, node);
  PortObject* output = firstFitting(*target, node);
  if (!input || !output) return false;
  return connect(session, *source, *input) && connect(session, *output, *target);
}

void insertIntoWire(EditSession& session, const Wire& wire, NodeObject& node) {
  EditStep step(session, QStringLiteral("Insert"));
  step.require(insertNode(session, {wire.source, wire.target}, node));
}

namespace {

/// Where the value of the removed nodes before the wire came from; null when it ends there.
PortObject* sourceBefore(const LevelScene& scene, const Wire& wire) {
  PortObject* source = wire.source.get();
  // Each step goes to another node that goes; there are no circles.
  while (source) {
    const BoxItem* giver = scene.find(*source).box;
    if (!giver || !giver->selected) return source;
    source = passedOn(*giver->node, *wire.target);
  }
  return nullptr;
}

}  // namespace

/// A member of a fan-in port goes with its wire: the fan-in port gets another one.
std::vector<Joint> jointsAround(const LevelScene& scene) {
  std::vector<Joint> joints;
  QSet<std::pair<const PortObject*, const PortObject*>> made;
  for (const BoxItem* box : scene.selectedBoxes()) {
    for (const Wire* wire : box->leaving) {
      if (wire->to->selected) continue;
      PortObject* source = sourceBefore(scene, *wire);
      const bool member = wire->target->kind() == orvlib::PortKind::Member;
      PortObject* target = member ? wire->target->above() : wire->target.get();
      if (!source || !carries(*source, *target)) continue;
      const std::pair<const PortObject*, const PortObject*> ends(source, target);
      if (made.contains(ends)) continue;
      made.insert(ends);
      joints.push_back({PortRef(source), PortRef(target)});
    }
  }
  return joints;
}

}  // namespace orvuilib::edits
