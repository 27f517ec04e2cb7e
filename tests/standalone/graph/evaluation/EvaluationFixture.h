#pragma once

#include "standalone/graph/api/GraphAccess.h"
#include "standalone/graph/evaluation/Evaluator.h"
#include "standalone/graph/model/ChangeHold.h"
#include "tests/standalone/graph/GraphFixture.h"

namespace orvlib {

/// Of a node without ports that no runtime knows.
inline ORV_v1::AddRefWrapper<ORV_v1::NodeDefinition> unknownDefinition() {
  const auto description = std::make_shared<NodeDescription>();
  description->name = "gone::node";
  return ORV_v1::GraphAccess::makeNode(description);
}

/// A graph with its evaluator, and edits that are each in a change bracket of their own.
class EvaluationFixture : public GraphFixture {
 protected:
  const Value& value(PortObject* port) { return evaluator_.value(*port); }
  const Value& value(std::string_view path) { return value(port(path)); }

  static Value number(float x) { return Floats{x}; }

  bool run(Edit edit) {
    const ChangeHold hold(graph_);
    return edits_.run(std::move(edit));
  }

  bool set(PortObject* port, Value value) {
    return run(SetPortValue{PortRef(port), std::make_unique<const Value>(std::move(value))});
  }
  bool set(PortObject* port, float x) { return set(port, number(x)); }

  bool setState(NodeObject* node, NodeState state, bool on) {
    return run(SetState{NodeRef(node), state, on});
  }

  bool wire(PortObject* source, PortObject* target) {
    const ChangeHold hold(graph_);
    return connect(source, target);
  }

  bool unwire(PortObject* source, PortObject* target) {
    const ChangeHold hold(graph_);
    return runDisconnect(edits_, *source, *target);
  }

  NodeObject* addSum(std::string name) { return add(top(), "core::math::add", std::move(name)); }

  /// A port that is not the definition's.
  PortObject* addOwnPort(NodeObject* node, PortDirection direction, std::string_view name,
                         std::string_view type) {
    const PortRef made = factory().makePort(direction, name, graph_.core().findType(type));
    EXPECT_TRUE(run(InsertPort{{NodeRef(node), made, node->list(direction).count()}}));
    return made.get();
  }

  Evaluator evaluator_{graph_};
};

}  // namespace orvlib
