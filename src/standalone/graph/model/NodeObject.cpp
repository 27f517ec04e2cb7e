#include "standalone/graph/model/NodeObject.h"

#include "standalone/graph/evaluation/NodeCache.h"
#include "standalone/graph/model/ContainerObject.h"
#include "standalone/graph/model/NodeExtras.h"

namespace orvlib {

using ORV_v1::GraphAccess;

NodeObject::NodeObject(GraphCore& core, NodeKind kind, std::string name)
    : GraphVertex(Kind::Node),
      nodeKind_(kind),
      states_(bit(NodeState::Enabled)),
      core_(&core),
      name_(std::move(name)) {
  core.order().append(*this);
  if (kind == NodeKind::Compound) compound_ = CompoundRef(new CompoundObject(*this));
}

NodeObject::~NodeObject() {
  core_->forget(*this);
  if (compound_ != nullptr) compound_->node_ = nullptr;
  // An input/output node lists faces of ports that are not its own.
  for (const PortListObject* list : {&inputs_, &outputs_}) {
    for (PortObject* port : list->items()) {
      if (port->node_ != this) continue;
      port->node_ = nullptr;
      if (port->twin_) port->twin_->node_ = nullptr;
    }
  }
  core_->order().remove(*this);
}

ContainerObject* NodeObject::container() const {
  const NodeObject* node = this;
  while (node->parent_) {
    node = node->parent_->node();
    if (!node) return nullptr;
  }
  ContainerObject* container = core_->container();
  return container && &container->top() == node ? container : nullptr;
}

std::string NodeObject::typeName() const {
  switch (nodeKind_) {
    case NodeKind::Plain:
    case NodeKind::Placeholder:
      return description_->name;
    case NodeKind::Compound:
      return compound_->origin().empty() ? "compound" : compound_->origin();
    case NodeKind::Input:
      return "input";
    case NodeKind::Output:
      return "output";
  }
  return {};
}

std::string NodeObject::fullPath() const {
  const NodeObject* above = parent_ ? parent_->node() : nullptr;
  if (!above) return container() ? "/" : name_;
  std::string path = above->fullPath();
  if (path.back() != '/') path += '/';
  return path += name_;
}

PortObject* NodeObject::port(std::string_view name) const {
  if (extras_ && extras_->portNames) return extras_->portNames->find(name);
  for (const PortListObject* list : {&inputs_, &outputs_}) {
    if (PortObject* found = list->find(name)) return found;
  }
  return nullptr;
}

PortObject* NodeObject::portAt(std::string_view fullName) const {
  const auto dot = fullName.find('.');
  PortObject* found = port(fullName.substr(0, dot));
  return found && dot != fullName.npos ? found->descendant(fullName.substr(dot + 1)) : found;
}

std::string NodeObject::uniquePortName(std::string_view wanted) {
  if (!port(wanted)) return std::string(wanted);
  return portNames().uniqueName(wanted);
}

NameTable<PortObject>& NodeObject::portNames() {
  Extras& extra = extras();
  if (!extra.portNames) {
    extra.portNames = std::make_unique<NameTable<PortObject>>();
    for (const PortListObject* list : {&inputs_, &outputs_}) {
      for (PortObject* port : list->items()) extra.portNames->add(port->name(), port);
    }
  }
  return *extra.portNames;
}

NameTable<PortObject>* NodeObject::madePortNames() const {
  return extras_ ? extras_->portNames.get() : nullptr;
}

NodeObject::Extras& NodeObject::extras() {
  if (!extras_) extras_ = std::make_unique<Extras>();
  return *extras_;
}

ORV_v1::AddRefWrapper<ORV_v1::Compound> NodeObject::asCompound() {
  return ORV_v1::AddRefWrapper<ORV_v1::Compound>(compound_.get());
}

ORV_v1::Namable NodeObject::getFullPathName() { return GraphAccess::makeNamable(fullPath()); }

ORV_v1::String NodeObject::getTypeName() { return GraphAccess::makeString(typeName()); }

ORV_v1::NodeStateFlags& NodeObject::getStateFlags() {
  Extras& extra = extras();
  if (!extra.stateFlags) extra.stateFlags = std::make_unique<StateFlagsObject>(*this);
  return *extra.stateFlags;
}

ORV_v1::Container* NodeObject::clientContainer() const { return container(); }

}  // namespace orvlib
