#include "standalone/graph/model/Mutator.h"

#include "standalone/graph/evaluation/NodeCache.h"
#include "standalone/graph/model/DirtyMarks.h"
#include "standalone/graph/model/NodeExtras.h"
#include "standalone/graph/model/PortExtras.h"

namespace orvlib {
namespace {

template <class Visit>
void forEachFace(PortObject& port, Visit visit) {
  visit(port);
  if (port.twin()) visit(*port.twin());
}

}  // namespace

void Mutator::touch(NodeObject* node, unsigned char bits) {
  if (!node) return;
  if (ContainerObject* container = node->container()) container->touch(*node, bits);
}

void Mutator::becomeDirty(PortObject& port) {
  if (GraphVertex* vertex = port.vertex()) markDirty(*vertex);
}

void Mutator::outputsChange(NodeObject& node) {
  if (node.cache_) node.cache_->forget();
  markChanged(node);
}

void Mutator::portChanges(GraphVertex& vertex, const PortObject& port) {
  if (vertex.kind() == GraphVertex::Kind::CompoundPort) {
    markChanged(vertex);
    return;
  }
  auto& node = static_cast<NodeObject&>(vertex);
  if (node.cache_) node.cache_->bound = false;
  if (port.isInput()) {
    markDirty(node);
  } else {
    outputsChange(node);
  }
}

void Mutator::watchesLeave(GraphVertex& vertex, PortObject& port) {
  if (!vertex.watched) return;
  forEachBelow(port, [&vertex](PortObject& each) {
    if (each.watchPoint()) coreOf(vertex).watches().remove(vertex, each);
  });
}

void Mutator::watchesEnter(GraphVertex& vertex, PortObject& port) {
  forEachBelow(port, [&vertex](PortObject& each) {
    if (each.watchPoint()) startWatch(vertex, each);
  });
}

void Mutator::startWatch(GraphVertex& vertex, PortObject& port) {
  WatchRegistry& watches = coreOf(vertex).watches();
  // What comes into it has perhaps not been asked for, as long as it had no effect.
  if (!vertex.watched && holdsBack(vertex)) vertex.dirty = true;
  watches.add(vertex, port);
  watches.note(vertex);
}

void Mutator::insertNode(CompoundObject& level, NodeObject& node, unsigned int index) {
  node.core().watches().bringBack(node);
  level.nodes_.insert(index, &node);
  node.parent_ = &level;
  if (node.compound_) level.raiseHeight(node.compound_->heightBound_);
  touch(level.node_, kContentChange);
  if (ContainerObject* container = node.container()) {
    container->touch(node, kPlaceChange);
    container->nodesEntered();
  }
}

unsigned int Mutator::removeNode(NodeObject& node) {
  CompoundObject& level = *node.parent_;
  ContainerObject* container = node.container();
  const NodeRef kept(&node);
  // What it takes out of a part that is out of the graph already is no longer kept with that part.
  if (!container) node.core().watches().bringBack(node);
  touch(level.node_, kContentChange);
  if (container) container->touch(node, kPlaceChange);
  node.parent_ = nullptr;
  const unsigned int index = level.nodes_.remove(&node);
  if (container) container->nodesLeft();
  return index;
}

void Mutator::renameNode(NodeObject& node, std::string name) {
  if (node.parent_) node.parent_->nodes_.beforeRename(&node);
  node.name_ = std::move(name);
  if (node.parent_) node.parent_->nodes_.afterRename(&node);
  touch(&node, kIdentityChange);
}

void Mutator::insertAnnotation(CompoundObject& level, AnnotationObject& annotation,
                               unsigned int index) {
  level.annotations_.insert(index, &annotation);
  annotation.parent_ = &level;
  touch(level.node_, kContentChange);
}

unsigned int Mutator::removeAnnotation(AnnotationObject& annotation) {
  CompoundObject& level = *annotation.parent_;
  annotation.parent_ = nullptr;
  const unsigned int index = level.annotations_.remove(&annotation);
  touch(level.node_, kContentChange);
  return index;
}

void Mutator::renameAnnotation(AnnotationObject& annotation, std::string name) {
  AnnotationListObject* list = annotation.parent_ ? &annotation.parent_->annotations_ : nullptr;
  if (list) list->beforeRename(&annotation);
  annotation.name_ = std::move(name);
  if (list) list->afterRename(&annotation);
  touch(annotation.parent_ ? annotation.parent_->node_ : nullptr, kContentChange);
}

void Mutator::insertPort(NodeObject& node, PortObject& port, unsigned int index) {
  port.node_ = &node;
  node.list(port.direction_).insert(index, &port);
  if (auto* names = node.madePortNames()) names->add(port.name(), &port);
  if (PortObject* inner = port.twin_) {
    inner->node_ = &node;
    node.compound_->list(port.direction_).insert(index, inner);
  }
  GraphVertex& vertex = *port.vertex();
  portChanges(vertex, port);
  forEachFace(port, [&vertex](PortObject& face) { watchesEnter(vertex, face); });
  touch(&node, kPortChange);
}

unsigned int Mutator::removePort(PortObject& port) {
  NodeObject& node = *port.node_;
  const PortRef kept(&port);
  GraphVertex& vertex = *port.vertex();
  forEachFace(port, [&vertex](PortObject& face) { watchesLeave(vertex, face); });
  if (auto* names = node.madePortNames()) names->remove(port.name());
  const unsigned int index = node.list(port.direction_).remove(&port);
  port.node_ = nullptr;
  if (PortObject* inner = port.twin_) {
    node.compound_->list(port.direction_).remove(inner);
    inner->node_ = nullptr;
  }
  portChanges(vertex, port);
  touch(&node, kPortChange);
  return index;
}

void Mutator::insertMember(PortObject& fanIn, PortObject& member, unsigned int index) {
  member.above_ = &fanIn;
  fanIn.childList()->insert(index, &member);
  becomeDirty(fanIn);
  watchesEnter(*fanIn.vertex(), member);
  touch(fanIn.node(), kPortChange);
}

unsigned int Mutator::removeMember(PortObject& member) {
  PortObject& fanIn = *member.above_;
  const PortRef kept(&member);
  watchesLeave(*fanIn.vertex(), member);
  const unsigned int index = fanIn.madeChildren()->remove(&member);
  member.above_ = nullptr;
  becomeDirty(fanIn);
  touch(fanIn.node(), kPortChange);
  return index;
}

unsigned int Mutator::movePort(PortObject& port, unsigned int index) {
  NodeObject& node = *port.node_;
  const PortRef kept(&port);
  PortListObject& list = node.list(port.direction_);
  const unsigned int former = list.remove(&port);
  list.insert(index, &port);
  if (PortObject* inner = port.twin_) {
    PortListObject& inside = node.compound_->list(port.direction_);
    const PortRef innerKept(inner);
    inside.remove(inner);
    inside.insert(index, inner);
  }
  // A node that is bypassed looks for its inputs in their order.
  portChanges(*port.vertex(), port);
  touch(&node, kPortChange);
  return former;
}

void Mutator::renamePort(PortObject& port, std::string name) {
  NodeObject& node = *port.node();
  const bool member = port.above_ != nullptr;
  PortListObject& list = member ? *port.above_->madeChildren() : node.list(port.direction_);
  PortListObject* inside = port.twin_ ? &node.compound_->list(port.direction_) : nullptr;
  // A member answers as its port does, but is not what the input/output node lists.
  PortListObject* shown = !member && port.ioNode() ? &ioList(*port.ioNode()) : nullptr;
  auto* names = member ? nullptr : node.madePortNames();
  if (names) names->remove(port.name());
  list.beforeRename(&port);
  if (inside) inside->beforeRename(port.twin_);
  if (shown) shown->beforeRename(port.twin_);
  port.name_ = std::make_shared<const std::string>(std::move(name));
  list.afterRename(&port);
  if (inside) inside->afterRename(port.twin_);
  if (shown) shown->afterRename(port.twin_);
  if (names) names->add(port.name(), &port);
  touch(&node, kPortChange);
}

void Mutator::exchangeChildren(PortObject& face, PortListRef& children) {
  PortObject::orphan(face.children_);
  std::swap(face.children_, children);
  const PortListObject* fresh = face.madeChildren();
  if (!fresh) return;
  for (PortObject* child : fresh->items()) child->above_ = &face;
}

void Mutator::exchangeType(PortObject& port, TypedPart& part) {
  GraphVertex& vertex = *port.vertex();
  forEachFace(port, [&vertex](PortObject& face) { watchesLeave(vertex, face); });
  std::swap(port.type_, part.type);
  std::swap(port.value_, part.value);
  exchangeChildren(port, part.children);
  if (port.twin_) exchangeChildren(*port.twin_, part.innerChildren);
  forgetState(port);
  portChanges(vertex, port);
  forEachFace(port, [&vertex](PortObject& face) { watchesEnter(vertex, face); });
  touch(port.node(), kPortChange);
}

void Mutator::exchangeValue(PortObject& port, std::unique_ptr<const Value>& value) {
  PortObject& holder = port.shared();
  std::swap(holder.value_, value);
  becomeDirty(port);
  touch(port.node(), kValueChange);
}

void Mutator::setFlags(PortObject& port, std::uint32_t flags) {
  PortObject& holder = port.shared();
  const std::uint32_t changed = holder.flags_ ^ flags;
  holder.flags_ = flags;
  // An empty list of members, or its absence, follows the flag.
  if ((changed & ORV_v1::kPortFanIn) && holder.valueType().isArray()) {
    holder.children_ = PortListRef();
    if (holder.twin_) holder.twin_->children_ = PortListRef();
  }
  touch(port.node(), kValueChange);
}

PortListObject& Mutator::ioList(NodeObject& ioNode) {
  return ioNode.nodeKind_ == NodeKind::Input ? ioNode.outputs_ : ioNode.inputs_;
}

unsigned int Mutator::setIoNode(PortObject& port, NodeObject* ioNode, unsigned int index) {
  PortObject& outer = port.shared();
  PortObject* inner = outer.twin_;
  unsigned int former = 0;
  NodeObject*& shownOn = outer.extras_->ioNode;
  if (shownOn) {
    former = ioList(*shownOn).remove(inner);
    touch(shownOn, kPortChange);
  }
  shownOn = ioNode;
  if (ioNode) {
    ioList(*ioNode).insert(index, inner);
    touch(ioNode, kPortChange);
  }
  return former;
}

void Mutator::pairState(PortObject& input, PortObject& output) {
  input.extras().statePartner = &output;
  output.extras().statePartner = &input;
  input.node()->core().stateInputs().insert(&input);
  touch(input.node(), kPortChange);
}

void Mutator::partState(PortObject& port) {
  PortObject& input = port.isInput() ? port : *port.extras_->statePartner;
  forgetState(input);
  input.node()->core().stateInputs().erase(&input);
  port.extras_->statePartner->extras_->statePartner = nullptr;
  port.extras_->statePartner = nullptr;
  touch(port.node(), kPortChange);
}

void Mutator::setHeldState(PortObject& input, std::unique_ptr<const Value> value) {
  auto& vertex = static_cast<CompoundPortVertex&>(*input.vertex());
  vertex.state = std::move(value);
  markChanged(vertex);
}

void Mutator::forgetState(PortObject& port) {
  PortObject* partner = port.statePartner();
  if (!partner) return;
  PortObject& input = port.isInput() ? port : *partner;
  if (static_cast<CompoundPortVertex&>(*input.vertex()).state) setHeldState(input, nullptr);
}

void Mutator::connect(PortObject& source, PortObject& target, WireIndices indices) {
  source.insertPeer(indices.atSource, target);
  target.insertPeer(indices.atTarget, source);
  becomeDirty(target);
  touch(source.node(), kWireChange);
  touch(target.node(), kWireChange);
}

Mutator::WireIndices Mutator::disconnect(PortObject& source, PortObject& target) {
  const WireIndices indices{source.removePeer(target), target.removePeer(source)};
  becomeDirty(target);
  touch(source.node(), kWireChange);
  touch(target.node(), kWireChange);
  return indices;
}

void Mutator::exchangeMetadata(NodeObject& node, Properties& set) {
  std::swap(node.metadata_, set);
  touch(&node, kMetadataChange);
}

void Mutator::exchangeMetadata(CompoundObject& compound, Properties& set) {
  std::swap(compound.metadata_, set);
  touch(compound.node_, kMetadataChange);
}

void Mutator::exchangeMetadata(AnnotationObject& annotation, Properties& set) {
  std::swap(annotation.metadata_, set);
  touch(annotation.parent_ ? annotation.parent_->node_ : nullptr, kContentChange);
}

void Mutator::exchangeMetadata(PortObject& port, Properties& set) {
  std::swap(port.shared().extras().metadata, set);
  touch(port.node(), kMetadataChange);
}

void Mutator::exchangeMetadata(WatchPointObject& watchPoint, Properties& set) {
  std::swap(watchPoint.metadata_, set);
  touch(watchPoint.port_ ? watchPoint.port_->node() : nullptr, kMetadataChange);
}

void Mutator::setState(NodeObject& node, NodeState state, bool on) {
  const auto bit = NodeObject::bit(state);
  node.states_ = static_cast<unsigned char>(on ? node.states_ | bit : node.states_ & ~bit);
  if (node.extras_ && node.extras_->stateFlags) {
    node.extras_->stateFlags->note(static_cast<unsigned int>(state), on);
  }
  // Whatever comes to a frozen node, it gives the same.
  if (!node.is(NodeState::Frozen)) markChanged(node);
  touch(&node, kValueChange);
}

void Mutator::setOrigin(CompoundObject& compound, std::string origin, bool reference) {
  compound.origin_ = std::move(origin);
  compound.reference_ = reference;
  touch(compound.node_, kIdentityChange);
}

void Mutator::exchangeWatchPoint(PortObject& port, WatchPointRef& watchPoint) {
  WatchPointRef former(port.watchPoint());
  GraphVertex& vertex = *port.vertex();
  if (former != nullptr) former->port_ = nullptr;
  if (watchPoint != nullptr) watchPoint->port_ = &port;
  port.extras().watchPoint = ORV_v1::AddRefWrapper<ORV_v1::WatchPoint>(watchPoint.get());
  if (former != nullptr && port.watchPoint() == nullptr) {
    port.node()->core().watches().remove(vertex, port);
  } else if (former == nullptr && port.watchPoint() != nullptr) {
    startWatch(vertex, port);
  }
  if (WatchPointObject* watched = port.watchPoint()) noteWatch(*watched);
  watchPoint = std::move(former);
  touch(port.node(), kWatchChange);
}

void Mutator::noteWatch(WatchPointObject& watchPoint) {
  watchPoint.due_ = watchPoint.setup_.enabled;
  PortObject* port = watchPoint.port_;
  GraphVertex* vertex = watchPoint.due_ && port ? port->vertex() : nullptr;
  if (vertex && vertex->watched) coreOf(*vertex).watches().note(*vertex);
}

void Mutator::setUp(WatchPointObject& watchPoint, const WatchPointSetup& setup) {
  const bool wasEnabled = watchPoint.setup_.enabled;
  watchPoint.setup_ = setup;
  if (!wasEnabled) noteWatch(watchPoint);
  touch(watchPoint.port_ ? watchPoint.port_->node() : nullptr, kWatchChange);
}

void Mutator::addInnerLine(PortObject& port, std::string line) {
  port.extras().innerLines.push_back(std::move(line));
}

}  // namespace orvlib
