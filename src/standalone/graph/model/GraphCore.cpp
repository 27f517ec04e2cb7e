#include "standalone/graph/model/GraphCore.h"

#include "standalone/graph/library/RuntimeRegistry.h"
#include "standalone/graph/model/ContainerObject.h"
#include "standalone/graph/types/ValueText.h"

namespace orvlib {

using ORV_v1::GraphAccess;

ChangeListener::~ChangeListener() = default;

void ChangeListener::graphGoes(ContainerObject&) {}

GraphCore::GraphCore(ContainerObject& container, std::string runtimeName)
    : container_(&container), vocabulary_{std::move(runtimeName)} {}

const LoadedRuntime* GraphCore::loadedRuntime() const {
  const RuntimeRegistry* registry = RuntimeRegistry::current();
  const ORV_v1::Runtime* found = registry ? registry->find(runtime()) : nullptr;
  return found ? &GraphAccess::loaded(*found) : nullptr;
}

TypeRef GraphCore::findType(std::string_view name) const {
  const LoadedRuntime* runtime = loadedRuntime();
  return runtime ? runtime->findPortType(name) : TypeRef();
}

ORV_v1::AddRefWrapper<ORV_v1::NodeDefinition> GraphCore::findDefinition(
    std::string_view name) const {
  const LoadedRuntime* runtime = loadedRuntime();
  return runtime ? runtime->findNode(name) : ORV_v1::AddRefWrapper<ORV_v1::NodeDefinition>();
}

TypeRef GraphCore::typeOrStandIn(std::string_view name) {
  if (TypeRef known = findType(name); known != nullptr) return known;
  if (TypeRef kept = findStandIn(name); kept != nullptr) return kept;
  // Any number of texts is a value of an array of texts.
  auto element = std::make_shared<ValueType>();
  element->scalar = ScalarKind::String;
  auto type = std::make_shared<ValueType>();
  type->name = type->niceName = name;
  type->scalar = ScalarKind::String;
  type->element = std::move(element);
  type->defaultValue = zeroValue(*type);
  keepType(type);
  return findStandIn(name);
}

void GraphCore::keepType(const std::shared_ptr<const ValueType>& type) {
  vocabulary_.standIns.try_emplace(type->name, GraphAccess::makePortType(type));
}

TypeRef GraphCore::findStandIn(std::string_view name) const {
  const auto entry = vocabulary_.standIns.find(name);
  return entry == vocabulary_.standIns.end() ? TypeRef() : entry->second;
}

TypeRef GraphCore::componentType(const ValueType& type) {
  if (type.isArray() || type.components.empty()) return TypeRef();
  TypeRef& known = vocabulary_.scalarTypes[static_cast<std::size_t>(type.scalar)];
  if (known == nullptr) known = findScalarType(type.scalar);
  if (known == nullptr) known = findScalarStandIn(type.scalar);
  return known;
}

TypeRef GraphCore::findScalarType(ScalarKind scalar) const {
  const LoadedRuntime* runtime = loadedRuntime();
  if (!runtime) return TypeRef();
  for (const TypeRef& handle : runtime->content().portTypes) {
    const ValueType& type = *GraphAccess::typeOf(*handle);
    if (type.scalar == scalar && type.components.empty() && !type.isArray()) return handle;
  }
  return TypeRef();
}

TypeRef GraphCore::findScalarStandIn(ScalarKind scalar) const {
  TypeRef first;
  for (const auto& [name, handle] : vocabulary_.standIns) {
    const ValueType& type = *GraphAccess::typeOf(*handle);
    if (type.scalar != scalar || !type.components.empty() || type.isArray()) continue;
    if (first == nullptr || name < GraphAccess::typeOf(*first)->name) first = handle;
  }
  return first;
}

TypeRef GraphCore::elementType(const ValueType& type) const {
  if (!type.element) return TypeRef();
  const TypeRef known = findType(type.element->name);
  return known == nullptr ? findStandIn(type.element->name) : known;
}

const std::vector<TypeRef>& GraphCore::portTypes(ORV_v1::NodeDefinition& definition) {
  const auto entry = vocabulary_.known.find(&definition);
  if (entry != vocabulary_.known.end()) return entry->second.portTypes;
  KnownDefinition known;
  known.definition = ORV_v1::AddRefWrapper(&definition);
  for (const PortDescription& port : GraphAccess::describe(definition).ports) {
    known.portTypes.push_back(typeOrStandIn(port.type->name));
  }
  return vocabulary_.known.emplace(&definition, std::move(known)).first->second.portTypes;
}

bool GraphCore::orderWire(GraphVertex& source, GraphVertex& target) {
  return order_.insertArc(source, target);
}

void GraphCore::forget(NodeObject& node) {
  watches_.bringBack(node);
  if (node.watched) watches_.forget(node);
  if (container_) container_->forget(node);
}

}  // namespace orvlib
