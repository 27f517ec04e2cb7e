#pragma once

#include <cstdint>
#include <vector>

#include "standalone/graph/evaluation/NodeComputer.h"
#include "standalone/graph/model/ContainerObject.h"

namespace orvlib {

class CompoundPortVertex;

/// Evaluates one graph: only what is asked for, and only what has changed since it was evaluated
/// last. What it gives depends on the graph alone. A graph has one evaluator at a time.
class ORV_EXPORT Evaluator final : public ChangeListener {
 public:
  /// Listens to the graph, which it does not own, until one of both goes.
  explicit Evaluator(ContainerObject& container);
  Evaluator(const Evaluator&) = delete;
  Evaluator& operator=(const Evaluator&) = delete;
  ~Evaluator() override;

  /// What the port yields now: what an output gives, what arrives at an input. It has the port's
  /// type, and is valid until the graph changes and until the next call of an operation.
  const Value& value(PortObject& port);

  /// Goes on to the next step: the inputs of all pairs of state ports give what the outputs have
  /// now. Then evaluates what is watched.
  void step();

  /// Goes back to the first step, and evaluates what is watched.
  void resetState();

  /// How many times a node has been computed so far.
  std::uint64_t computedCount() const { return computedCount_; }

  /// The number of the latest evaluation, from 1. All that is computed for one request, or at the
  /// end of one change bracket, is one evaluation; when nothing is, it has no number.
  std::uint64_t evaluationCount() const { return evaluationCount_; }

  void graphChanged(ContainerObject& container, std::span<const NodeChange> changes) override;

 private:
  void beginEvaluation();
  std::uint64_t evaluationNumber();
  void evaluate(GraphVertex& vertex);
  void evaluateSources(PortObject& input);
  void evaluateOpen();
  bool openSources(GraphVertex& vertex);
  void open(PortObject& input);
  void compute(GraphVertex& vertex);
  bool computeNode(NodeObject& node);
  void passOn(CompoundPortVertex& vertex);
  void evaluateWatched();
  void recordAll(GraphVertex& vertex, bool withOutputs);
  void recordDue(const GraphVertex& vertex);
  void record(PortObject& port);
  Value stateAfter(PortObject& stateInput);

  CoreRef core_;
  PortValues values_;
  NodeComputer computer_{values_};

  /// What is to be evaluated, what it needs above it.
  std::vector<GraphVertex*> open_;
  std::uint64_t computedCount_ = 0;
  std::uint64_t evaluationCount_ = 0;
  bool numbered_ = false;
};

}  // namespace orvlib
