#include "standalone/graph/evaluation/PortValues.h"

#include "standalone/graph/evaluation/NodeCache.h"
#include "standalone/graph/model/VertexArcs.h"
#include "standalone/graph/types/Components.h"
#include "standalone/graph/types/Conversion.h"
#include "standalone/graph/types/ValueText.h"

namespace orvlib {
namespace {

/// Empties a value, which keeps its storage when it is of that kind already.
void makeEmpty(Value& value, ScalarKind kind) {
  if (scalarKindOf(value) == kind) {
    std::visit([](auto& all) { all.clear(); }, value);
    return;
  }
  switch (kind) {
    case ScalarKind::Boolean:
      value.emplace<Booleans>();
      break;
    case ScalarKind::Integer:
      value.emplace<Integers>();
      break;
    case ScalarKind::Float:
      value.emplace<Floats>();
      break;
    case ScalarKind::String:
      value.emplace<Texts>();
      break;
  }
}

/// Where the cache of a node has what the output gives.
std::size_t slotOf(const NodeObject& node, const NodeCache& cache, const PortObject& output) {
  if (const PortDescription* stated = output.description()) {
    const auto& ports = node.description()->ports;
    return static_cast<std::size_t>(stated - ports.data()) - (ports.size() - cache.definedOutputs);
  }
  return cache.furtherSlots.at(&output);
}

}  // namespace

Value& PortValues::next() {
  if (used_ == made_.size()) made_.emplace_back();
  return made_[used_++];
}

const Value& PortValues::of(PortObject& port) {
  if (port.kind() == PortKind::Component && port.above()) return component(port);
  return port.isInput() ? arriving(port) : given(port);
}

const Value& PortValues::of(PortObject& port, const ValueType& type) {
  const ValueType& own = port.valueType();
  const Value& value = of(port);
  if (&own == &type || hasSameLayout(own, type)) return value;
  return next() = convert(value, own, type);
}

const Value& PortValues::given(const PortObject& output) {
  const GraphVertex* vertex = output.vertex();
  if (!vertex) return output.unconnectedValue();
  if (vertex->kind() == GraphVertex::Kind::CompoundPort) {
    return static_cast<const CompoundPortVertex*>(vertex)->value;
  }
  const auto& node = static_cast<const NodeObject&>(*vertex);
  const NodeCache* cache = node.cache();
  if (!cache || !cache->filled) return output.unconnectedValue();
  return cache->outputs[slotOf(node, *cache, output)];
}

const Value& PortValues::component(PortObject& port) {
  const std::size_t index = port.above()->madeChildren()->indexOf(&port);
  const Value& whole = of(*port.above());
  if (index >= componentCount(whole)) return port.defaultValue();
  return next() = componentsOf(whole, index, 1);
}

const Value& PortValues::arriving(PortObject& input) {
  if (PortObject* source = input.source()) return of(*source, input.valueType());
  const PortListObject* children = input.madeChildren();
  if (!children || children->count() == 0) return input.unconnectedValue();
  if (children->at(0)->kind() == PortKind::Member) {
    return gatheredFrom(*children, input.valueType());
  }
  return withComponents(input, *children);
}

const Value& PortValues::gatheredFrom(const PortListObject& members, const ValueType& type) {
  Value& all = next();
  makeEmpty(all, type.scalar);
  for (PortObject* member : members.items()) {
    const std::size_t before = mark();
    appendComponents(all, of(*member, *type.element));
    release(before);
  }
  return all;
}

const Value& PortValues::withComponents(const PortObject& input, const PortListObject& components) {
  const Value* result = &input.unconnectedValue();
  Value* changed = nullptr;
  std::size_t index = 0;
  for (PortObject* component : components.items()) {
    if (component->hasPeers()) {
      if (!changed) result = changed = &(next() = *result);
      const std::size_t before = mark();
      setComponents(*changed, index, arriving(*component));
      release(before);
    }
    ++index;
  }
  return *result;
}

}  // namespace orvlib
