#include "standalone/graph/evaluation/NodeComputer.h"

#include <algorithm>

#include "standalone/graph/types/Conversion.h"

namespace orvlib {
namespace {

/// The ports of a definition on a node, by the definition's order.
std::vector<PortObject*> definedPorts(const NodeObject& node) {
  if (!node.description()) return {};
  const auto& stated = node.description()->ports;
  std::vector<PortObject*> ports(stated.size());
  for (const PortListObject* list : {&node.inputList(), &node.outputList()}) {
    for (PortObject* port : list->items()) {
      if (port->description()) ports[port->description() - stated.data()] = port;
    }
  }
  return ports;
}

/// Types are looked up by name, so after a runtime was changed they may be others than those that
/// the definition had.
bool isAsDefined(const std::vector<PortObject*>& ports) {
  return std::ranges::all_of(ports, [](const PortObject* port) {
    return port && hasSameLayout(port->valueType(), *port->description()->type);
  });
}

void bindFurtherOutputs(const NodeObject& node, NodeCache& cache) {
  cache.furtherSlots.clear();
  unsigned int slot = cache.definedOutputs;
  for (const PortObject* port : node.outputList().items()) {
    if (!port->description()) cache.furtherSlots.emplace(port, slot++);
  }
}

void bind(const NodeObject& node, NodeCache& cache) {
  std::vector<PortObject*> ports = definedPorts(node);
  // A stand-in may have the name of a definition that is another one now.
  const bool computes = node.nodeKind() == NodeKind::Plain && isAsDefined(ports);
  cache.kernel = computes ? findKernel(*node.description()) : nullptr;
  const auto isOutput = [](const PortDescription& port) {
    return port.direction == PortDirection::Output;
  };
  cache.definedOutputs = 0;
  if (node.description()) {
    cache.definedOutputs =
        static_cast<unsigned int>(std::ranges::count_if(node.description()->ports, isOutput));
  }
  ports.resize(ports.size() - cache.definedOutputs);
  cache.inputs = std::move(ports);
  bindFurtherOutputs(node, cache);
  cache.bound = true;
}

/// Gives each output of the node that has one its slot in the cache, in the order of the slots that
/// it has there, and calls `fill` with both.
template <class Fill>
void fillOutputs(const NodeObject& node, NodeCache& cache, Fill fill) {
  std::size_t further = cache.definedOutputs;
  const std::size_t first =
      node.description() ? node.description()->ports.size() - cache.definedOutputs : 0;
  for (PortObject* port : node.outputList().items()) {
    const PortDescription* stated = port->description();
    const std::size_t slot =
        stated ? static_cast<std::size_t>(stated - node.description()->ports.data()) - first
               : further++;
    fill(*port, cache.outputs[slot]);
  }
}

bool isSameType(const ValueType& one, const ValueType& other) {
  return &one == &other || one.name == other.name;
}

/// The input that a bypassed node passes on to an output of that type; null when none fits.
PortObject* passedOn(const NodeObject& node, const ValueType& type) {
  PortObject* convertible = nullptr;
  for (PortObject* input : node.inputList().items()) {
    if (isSameType(input->valueType(), type)) return input;
    if (!convertible && canConvert(input->valueType(), type)) convertible = input;
  }
  return convertible;
}

}  // namespace

bool NodeComputer::compute(const NodeObject& node, NodeCache& cache) {
  if (node.is(NodeState::Frozen) && cache.filled) return false;
  if (!cache.bound) bind(node, cache);
  cache.outputs.resize(std::max(node.outputList().count(), cache.definedOutputs));
  cache.filled = true;
  if (!node.is(NodeState::Enabled)) {
    fillOutputs(node, cache, [](const PortObject& port, Value& value) {
      value = port.valueType().defaultValue;
    });
  } else if (node.is(NodeState::Bypassed)) {
    bypass(node, cache);
  } else {
    run(node, cache);
  }
  return true;
}

void NodeComputer::bypass(const NodeObject& node, NodeCache& cache) {
  fillOutputs(node, cache, [&](const PortObject& port, Value& value) {
    const std::size_t before = values_.mark();
    const ValueType& type = port.valueType();
    PortObject* input = passedOn(node, type);
    value = input ? values_.of(*input, type) : type.defaultValue;
    values_.release(before);
  });
}

void NodeComputer::run(const NodeObject& node, NodeCache& cache) {
  if (cache.kernel) {
    const std::size_t before = values_.mark();
    arguments_.clear();
    for (PortObject* input : cache.inputs) arguments_.push_back(&values_.of(*input));
    cache.kernel({arguments_, std::span(cache.outputs).first(cache.definedOutputs)});
    values_.release(before);
    if (cache.outputs.size() == cache.definedOutputs) return;
  }
  fillOutputs(node, cache, [&cache](const PortObject& port, Value& value) {
    if (!cache.kernel || !port.description()) value = port.unconnectedValue();
  });
}

}  // namespace orvlib
