#include "standalone/graph/edits/Edits.h"

#include "standalone/graph/api/GraphAccess.h"
#include "standalone/graph/edits/WireRules.h"
#include "standalone/graph/types/Components.h"

namespace orvlib {
namespace {

using ORV_v1::GraphAccess;

bool hasWires(const PortObject& port) { return port.hasPeers() || anyConnectedBelow(port); }

bool anyHasWires(const NodeObject& node) {
  for (const PortListObject* list : {&node.inputList(), &node.outputList()}) {
    for (const PortObject* port : list->items()) {
      if (hasWires(*port)) return true;
    }
  }
  return false;
}

bool isFree(const CompoundObject& level, std::string_view name) {
  return level.node() && !level.nodes().find(name);
}

/// No edit nests compounds deeper than a stored graph may have them.
bool hasRoom(const CompoundObject& level, const NodeObject& node) {
  return level.hasRoomFor(node, CompoundObject::kDeepestStored);
}

}  // namespace

bool NodePlace::put() {
  if (node->parent() || !isFree(*level, node->name()) || !hasRoom(*level, *node)) return false;
  Mutator::insertNode(*level, *node, index);
  return true;
}

bool NodePlace::take() {
  if (node->parent() != level.get() || anyHasWires(*node)) return false;
  index = Mutator::removeNode(*node);
  return true;
}

bool MoveNode::apply() {
  if (!node->parent() || !isFree(*level, name) || !hasRoom(*level, *node)) return false;
  const CompoundRef former(node->parent());
  std::string formerName = node->name();
  const unsigned int formerIndex = Mutator::removeNode(*node);
  Mutator::renameNode(*node, std::move(name));
  Mutator::insertNode(*level, *node, index);
  level = former;
  index = formerIndex;
  name = std::move(formerName);
  return true;
}

bool RenameNode::apply() {
  if (node->parent() && !isFree(*node->parent(), name)) return false;
  std::string former = node->name();
  Mutator::renameNode(*node, std::move(name));
  name = std::move(former);
  return true;
}

bool AnnotationPlace::put() {
  if (annotation->parent() || !level->node()) return false;
  if (level->annotations().find(annotation->name())) return false;
  Mutator::insertAnnotation(*level, *annotation, index);
  return true;
}

bool AnnotationPlace::take() {
  if (annotation->parent() != level.get()) return false;
  index = Mutator::removeAnnotation(*annotation);
  return true;
}

bool RenameAnnotation::apply() {
  const CompoundObject* level = annotation->parent();
  if (level && level->annotations().find(name)) return false;
  std::string former = annotation->name();
  Mutator::renameAnnotation(*annotation, std::move(name));
  name = std::move(former);
  return true;
}

bool PortPlace::put() {
  if (above != nullptr) {
    PortListObject* members = above->isFanInPort() ? above->childList() : nullptr;
    if (!members || !above->node() || members->find(port->name())) return false;
    Mutator::insertMember(*above, *port, index);
    return true;
  }
  if (port->node() || node->port(port->name())) return false;
  Mutator::insertPort(*node, *port, index);
  return true;
}

bool PortPlace::take() {
  if (port->node() != node.get() || port->above() != above.get() || hasWires(*port)) return false;
  if (port->twin() && hasWires(*port->twin())) return false;
  if (above == nullptr && (port->ioNode() || port->statePartner())) return false;
  index = above != nullptr ? Mutator::removeMember(*port) : Mutator::removePort(*port);
  return true;
}

bool InsertPort::apply() {
  if (above != nullptr && above->hasPeers()) return false;
  return put();
}

bool RenamePort::apply() {
  const NodeObject* node = port->node();
  if (!node || port->isFixed()) return false;
  if (port->above() ? port->above()->child(name) : node->port(name)) return false;
  std::string former = port->name();
  Mutator::renamePort(*port, std::move(name));
  name = std::move(former);
  return true;
}

bool MovePort::apply() {
  if (!port->node() || port->above()) return false;
  index = Mutator::movePort(*port, index);
  return true;
}

SetPortType::SetPortType(PortRef typed, TypeRef type, std::unique_ptr<const Value> value)
    : port(std::move(typed)), part{std::move(type), std::move(value), {}, {}} {}

SetPortType::~SetPortType() {
  PortObject::orphan(part.children);
  PortObject::orphan(part.innerChildren);
}

bool SetPortType::apply() {
  if (!port->node() || port->isFixed() || anyConnectedBelow(*port)) return false;
  if (port->twin() && anyConnectedBelow(*port->twin())) return false;
  Mutator::exchangeType(*port, part);
  return true;
}

bool SetPortValue::apply() {
  if (!port->node() || (value && !isOfType(*value, *GraphAccess::typeOf(*port->type()))))
    return false;
  Mutator::exchangeValue(*port, value);
  return true;
}

bool SetPortFlags::apply() {
  if (!port->node()) return false;
  const std::uint32_t former = port->flags();
  if (((former ^ flags) & ORV_v1::kPortFanIn) && !mayChangeFanIn(*port)) return false;
  Mutator::setFlags(*port, flags);
  flags = former;
  return true;
}

bool SetIoNode::apply() {
  if (!port->node() || !port->twin()) return false;
  if (ioNode != nullptr && ioNode->parent() != port->node()->compound()) return false;
  const NodeRef former(port->ioNode());
  index = Mutator::setIoNode(*port, ioNode.get(), index);
  ioNode = former;
  return true;
}

bool PairState::apply() {
  if (input->statePartner() || output->statePartner() || input->node() != output->node()) {
    return false;
  }
  Mutator::pairState(*input, *output);
  return true;
}

bool PairState::revert() {
  if (input->statePartner() != output.get()) return false;
  Mutator::partState(*input);
  return true;
}

bool PartState::apply() { return PairState{input, output}.revert(); }

bool PartState::revert() { return PairState{input, output}.apply(); }

bool Wire::put() {
  if (!canConnect(*source, *target)) return false;
  if (!target->node()->core().orderWire(*source->vertex(), *target->vertex())) return false;
  Mutator::connect(*source, *target, indices);
  return true;
}

bool Wire::take() {
  if (!target->peers().contains(source.get())) return false;
  indices = Mutator::disconnect(*source, *target);
  return true;
}

bool SetMetadata::apply() {
  std::visit([this](auto& object) { Mutator::exchangeMetadata(*object, set); }, owner);
  return true;
}

bool SetState::apply() {
  const bool former = node->is(state);
  Mutator::setState(*node, state, on);
  on = former;
  return true;
}

bool SetOrigin::apply() {
  std::string former = compound->origin();
  const bool formerReference = compound->isReference();
  Mutator::setOrigin(*compound, std::move(origin), reference);
  origin = std::move(former);
  reference = formerReference;
  return true;
}

bool SetWatchPoint::apply() {
  if (!port->node()) return false;
  Mutator::exchangeWatchPoint(*port, watchPoint);
  return true;
}

bool SetUpWatchPoint::apply() {
  const WatchPointSetup former = watchPoint->setup();
  Mutator::setUp(*watchPoint, setup);
  setup = former;
  return true;
}

}  // namespace orvlib
