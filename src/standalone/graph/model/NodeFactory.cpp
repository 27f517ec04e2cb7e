#include "standalone/graph/model/NodeFactory.h"

#include "standalone/graph/evaluation/NodeCache.h"
#include "standalone/graph/model/GraphCore.h"
#include "standalone/graph/model/NodeExtras.h"
#include "standalone/graph/model/PortExtras.h"
#include "standalone/graph/model/VertexArcs.h"
#include "standalone/graph/published/Instances.h"

namespace orvlib {
namespace {

PortObject::Name ownName(std::string_view name) {
  return std::make_shared<const std::string>(name);
}

}  // namespace

NodeRef NodeFactory::make(ORV_v1::NodeDefinition& definition, std::string name) const {
  const bool published = !ORV_v1::GraphAccess::describe(definition).content.empty();
  return published ? makeInstance(core_, definition, std::move(name))
                   : makePlain(definition, std::move(name));
}

NodeRef NodeFactory::makePlain(ORV_v1::NodeDefinition& definition, std::string name) const {
  return makeWithPorts(NodeKind::Plain, definition, std::move(name));
}

NodeRef NodeFactory::makePlaceholder(ORV_v1::NodeDefinition& definition, std::string name) const {
  return makeWithPorts(NodeKind::Placeholder, definition, std::move(name));
}

NodeRef NodeFactory::makeWithPorts(NodeKind kind, ORV_v1::NodeDefinition& definition,
                                   std::string name) const {
  NodeRef node(new NodeObject(core_, kind, std::move(name)));
  const auto description = ORV_v1::GraphAccess::sharedDescription(definition);
  const std::vector<TypeRef>& types = core_.portTypes(definition);
  node->definition_ = NodeObject::DefinitionRef(&definition);
  node->description_ = description.get();
  for (std::size_t i = 0; i < description->ports.size(); ++i) {
    const PortDescription& stated = description->ports[i];
    auto* port = new PortObject(PortKind::Plain, stated.direction,
                                PortObject::Name(description, &stated.name), types[i]);
    port->description_ = &stated;
    port->node_ = node.get();
    if (stated.fanIn) port->flags_ = ORV_v1::kPortFanIn;
    node->list(stated.direction).append(port);
  }
  return node;
}

NodeRef NodeFactory::makeCompound(std::string name) const {
  return NodeRef(new NodeObject(core_, NodeKind::Compound, std::move(name)));
}

NodeRef NodeFactory::makeIo(NodeKind kind, std::string name) const {
  return NodeRef(new NodeObject(core_, kind, std::move(name)));
}

PortRef NodeFactory::makePort(PortDirection direction, std::string_view name, TypeRef type) const {
  return PortRef(new PortObject(PortKind::Plain, direction, ownName(name), std::move(type)));
}

PortRef NodeFactory::makeCompoundPort(PortDirection direction, std::string_view name,
                                      TypeRef type) const {
  PortRef outer(new PortObject(PortKind::Outer, direction, ownName(name), std::move(type)));
  const auto reversed =
      direction == PortDirection::Input ? PortDirection::Output : PortDirection::Input;
  PortRef inner(new PortObject(PortKind::Inner, reversed, nullptr, TypeRef()));
  outer->twin_ = inner.get();
  inner->twin_ = outer.get();
  PortObject::Extras& extras = outer->extras();
  extras.inner = std::move(inner);
  extras.core = CoreRef(&core_);
  extras.vertex = std::make_unique<CompoundPortVertex>(*outer);
  core_.order().append(*extras.vertex);
  return outer;
}

PortRef NodeFactory::makeMember(std::string_view name, TypeRef type) const {
  return PortRef(
      new PortObject(PortKind::Member, PortDirection::Input, ownName(name), std::move(type)));
}

}  // namespace orvlib
