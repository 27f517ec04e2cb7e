#include "standalone/graph/model/PortObject.h"

#include "standalone/graph/model/GraphCore.h"
#include "standalone/graph/model/NodeObject.h"
#include "standalone/graph/model/PortExtras.h"
#include "standalone/graph/model/VertexArcs.h"
#include "standalone/graph/types/Components.h"

namespace orvlib {
namespace {

const PortListObject& noPorts() {
  static const EmbeddedList<PortListObject> none;
  return none;
}

}  // namespace

PortObject::PortObject(PortKind kind, PortDirection direction, Name portName, TypeRef type)
    : kind_(kind), direction_(direction), type_(std::move(type)), name_(std::move(portName)) {}

PortObject::~PortObject() {
  for (PortObject* peer : peers().items()) peer->removePeer(*this);
  orphan(children_);
  if (WatchPointObject* watched = watchPoint()) watched->port_ = nullptr;
  if (twin_) {
    // The face that stays behind, held by a handle, gets what this one kept for both.
    if (kind_ == PortKind::Outer) {
      twin_->name_ = name_;
      twin_->type_ = type_;
    }
    twin_->twin_ = nullptr;
    twin_->node_ = nullptr;
  }
  if (!extras_) return;
  if (PortObject* partner = extras_->statePartner) {
    partner->extras().statePartner = nullptr;
    extras_->core->stateInputs().erase(isInput() ? this : partner);
  }
  if (extras_->core == nullptr) return;
  if (extras_->vertex->watched) extras_->core->watches().forget(*extras_->vertex);
  extras_->core->order().remove(*extras_->vertex);
}

std::string PortObject::fullName() const {
  return above_ ? above_->fullName() + '.' + name() : name();
}

std::string PortObject::fullPath() const {
  const NodeObject* owner = node();
  return owner ? owner->fullPath() + '.' + fullName() : fullName();
}

const ValueType& PortObject::valueType() const { return *ORV_v1::GraphAccess::typeOf(*type()); }

bool PortObject::isFanInPort() const {
  return (flags() & ORV_v1::kPortFanIn) && isInput() && valueType().isArray();
}

const Value& PortObject::defaultValue() const {
  const PortObject& port = shared();
  return port.description_ ? port.description_->defaultValue : port.valueType().defaultValue;
}

bool PortObject::isSettable() const {
  if (kind_ == PortKind::Component) return above_ && above_->isSettable();
  return kind_ != PortKind::Member && (isInput() || !shared().description_);
}

std::optional<Value> PortObject::settableValue() const {
  if (!isSettable()) return std::nullopt;
  if (kind_ != PortKind::Component) return unconnectedValue();
  const Value whole = *above_->settableValue();
  return componentsOf(whole, above_->madeChildren()->indexOf(this), 1);
}

const Properties& PortObject::metadata() const {
  static const Properties none;
  const PortObject& port = shared();
  return port.extras_ ? port.extras_->metadata : none;
}

PortListObject* PortObject::childList() {
  if (children_ == nullptr) makeComponents();
  return madeChildren();
}

PortListObject* PortObject::madeChildren() const {
  return static_cast<PortListObject*>(children_.get());
}

void PortObject::makeComponents() {
  NodeObject* owner = node();
  const auto& valueTypeHandle = ORV_v1::GraphAccess::typeOf(*type());
  if (isFanInPort()) {
    children_ = PortListRef(new PortListObject(ListKind::Members));
    return;
  }
  if (!owner || valueTypeHandle->components.empty()) return;
  const TypeRef componentType = owner->core().componentType(*valueTypeHandle);
  if (componentType == nullptr) return;
  auto* list = new PortListObject(ListKind::Members);
  children_ = PortListRef(list);
  for (const std::string& component : valueTypeHandle->components) {
    auto* child = new PortObject(PortKind::Component, direction_, Name(valueTypeHandle, &component),
                                 componentType);
    child->above_ = this;
    list->append(child);
  }
}

void PortObject::orphan(const PortListRef& children) {
  if (children == nullptr) return;
  for (PortObject* child : static_cast<PortListObject*>(children.get())->items()) {
    child->above_ = nullptr;
    child->node_ = nullptr;
  }
}

PortObject* PortObject::child(std::string_view name) {
  const PortListObject* list = childList();
  return list ? list->find(name) : nullptr;
}

PortObject* PortObject::descendant(std::string_view path) {
  PortObject* port = this;
  while (port) {
    const auto dot = path.find('.');
    port = port->child(path.substr(0, dot));
    if (dot == path.npos) break;
    path.remove_prefix(dot + 1);
  }
  return port;
}

const PortListObject& PortObject::listedPeers() {
  if (!hasPeers() && !madePeerList()) return noPorts();
  if (!madePeerList()) {
    auto* list = new PortListObject(ListKind::Peers);
    extras().listedPeers = PortListRef(list);
    for (PortObject* peer : peers_.items()) list->append(peer);
  }
  return *madePeerList();
}

PortListObject* PortObject::madePeerList() const {
  return extras_ ? static_cast<PortListObject*>(extras_->listedPeers.get()) : nullptr;
}

void PortObject::insertPeer(unsigned int index, PortObject& peer) {
  peers_.items_.insert(index, &peer);
  if (PortListObject* listed = madePeerList()) listed->insert(index, &peer);
}

unsigned int PortObject::removePeer(PortObject& peer) {
  if (PortListObject* listed = madePeerList()) listed->remove(&peer);
  return peers_.items_.remove(&peer);
}

GraphVertex* PortObject::vertex() const {
  const PortObject& top = root();
  const PortObject& outer = top.shared();
  if (outer.kind_ == PortKind::Outer) return outer.extras_->vertex.get();
  return top.node_;
}

NodeObject* PortObject::ioNode() const {
  const PortObject& outer = root().shared();
  return outer.extras_ ? outer.extras_->ioNode : nullptr;
}

PortObject* PortObject::statePartner() const {
  const PortObject& outer = root().shared();
  return outer.extras_ ? outer.extras_->statePartner : nullptr;
}

WatchPointObject* PortObject::watchPoint() const {
  return extras_ ? static_cast<WatchPointObject*>(extras_->watchPoint.get()) : nullptr;
}

const std::vector<std::string>& PortObject::innerLines() const {
  static const std::vector<std::string> none;
  return extras_ ? extras_->innerLines : none;
}

PortObject::Extras& PortObject::extras() {
  if (!extras_) extras_ = std::make_unique<Extras>();
  return *extras_;
}

}  // namespace orvlib
