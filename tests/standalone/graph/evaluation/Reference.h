#pragma once

#include <map>

#include "standalone/graph/evaluation/Kernel.h"
#include "standalone/graph/model/NodeObject.h"
#include "standalone/graph/types/Components.h"
#include "standalone/graph/types/Conversion.h"

namespace orvlib {

/// Evaluates ports the plain way: by recursion and without marks, all anew after each `restart`.
/// What a graph remembers it keeps for itself: what nodes gave last, and the states of state
/// inputs.
class Reference {
 public:
  void restart() { given_.clear(); }

  Value of(PortObject& port) {
    if (port.kind() == PortKind::Component) {
      return componentsOf(of(*port.above()), port.above()->madeChildren()->indexOf(&port), 1);
    }
    return port.isInput() ? arriving(port) : given(port);
  }

  /// Notes what all outputs of the node give, as what a frozen node keeps.
  void noteGiven(NodeObject& node) {
    if (!node.hasOwnPorts()) return;
    for (PortObject* port : node.outputList().items()) lastGiven_[port] = given(*port);
  }

  /// The outputs of a node came, went, moved or changed their types.
  void forgetGiven(NodeObject& node) {
    for (PortObject* port : node.outputList().items()) lastGiven_.erase(port);
  }

  void setState(PortObject& stateInput, Value value) { states_[&stateInput] = std::move(value); }
  void forgetState(PortObject& stateInput) { states_.erase(&stateInput); }
  void forgetStates() { states_.clear(); }

 private:
  Value converted(PortObject& port, const ValueType& type) {
    return convert(of(port), port.valueType(), type);
  }

  Value arriving(PortObject& port) {
    if (PortObject* source = port.source()) return converted(*source, port.valueType());
    Value value = port.unconnectedValue();
    const PortListObject* children = port.madeChildren();
    if (!children) return value;
    if (children->count() > 0 && port.isFanInPort()) {
      value = componentsOf(port.valueType().defaultValue, 0, 0);
      for (PortObject* member : children->items()) {
        appendComponents(value, converted(*member, *port.valueType().element));
      }
      return value;
    }
    for (unsigned i = 0; i < children->count(); ++i) {
      PortObject& child = *children->at(i);
      if (child.source()) setComponents(value, i, converted(*child.source(), child.valueType()));
    }
    return value;
  }

  Value given(PortObject& port) {
    const auto known = given_.find(&port);
    if (known != given_.end()) return known->second;
    return given_[&port] = givenAnew(port);
  }

  Value givenAnew(PortObject& port) {
    if (port.kind() == PortKind::Inner || port.kind() == PortKind::Outer) {
      PortObject& outer = port.kind() == PortKind::Outer ? port : *port.twin();
      const auto state = states_.find(&outer);
      return state == states_.end() ? arriving(*port.twin()) : state->second;
    }
    NodeObject& node = *port.node();
    const auto last = lastGiven_.find(&port);
    if (node.is(NodeState::Frozen) && last != lastGiven_.end()) return last->second;
    if (!node.is(NodeState::Enabled)) return port.valueType().defaultValue;
    if (node.is(NodeState::Bypassed)) return bypassed(node, port.valueType());
    return computed(node, port);
  }

  Value bypassed(NodeObject& node, const ValueType& type) {
    for (PortObject* input : node.inputList().items()) {
      if (input->valueType().name == type.name) return arriving(*input);
    }
    for (PortObject* input : node.inputList().items()) {
      if (canConvert(input->valueType(), type)) return converted(*input, type);
    }
    return type.defaultValue;
  }

  Value computed(NodeObject& node, PortObject& port) {
    const Kernel kernel =
        node.nodeKind() == NodeKind::Plain ? findKernel(*node.description()) : nullptr;
    if (!kernel || !port.description()) return port.unconnectedValue();
    std::vector<Value> values;
    std::vector<Value> outputs;
    for (const PortDescription& stated : node.description()->ports) {
      if (stated.direction == PortDirection::Output) {
        outputs.emplace_back();
      } else {
        values.push_back(arriving(*node.port(stated.name)));
      }
    }
    std::vector<const Value*> inputs;
    for (const Value& value : values) inputs.push_back(&value);
    kernel({inputs, outputs});
    const auto* first = node.description()->ports.data() + inputs.size();
    return outputs[port.description() - first];
  }

  std::map<PortObject*, Value> given_;
  std::map<PortObject*, Value> lastGiven_;
  std::map<PortObject*, Value> states_;
};

}  // namespace orvlib
