// What evaluating one node costs in graphs of 1,000, 10,000 and 100,000 nodes: all of them, and
// after a change of one.

#include <optional>

#include "bench/graph_structures/Sizes.h"
#include "standalone/graph/edits/Wiring.h"
#include "standalone/graph/evaluation/Evaluator.h"
#include "standalone/graph/library/RuntimeRegistry.h"

namespace {

using namespace orvlib;

/// A graph of additions that all flow into `last`.
class Graph {
 public:
  Graph() {
    registry_.load(VESK_SOURCE_DIR "/library");
    registry_.makeCurrent();
    container_.emplace("standard");
    evaluator_.emplace(*container_);
  }

  NodeObject* add(const char* type, int number) {
    const auto definition = container_->core().findDefinition(type);
    NodeRef node =
        NodeFactory(container_->core()).makePlain(*definition, "node" + std::to_string(number));
    CompoundRef level(container_->top().compound());
    edits_.run(InsertNode{{level, node, level->nodes().count()}});
    if (!leaf) leaf = node->inputList().at(0);
    return node.get();
  }

  void connect(NodeObject* source, PortObject* target) {
    runConnect(edits_, *source->outputList().at(0), *target, Occupied::Refuse);
  }

  void setLeaf(float x) {
    edits_.run(SetPortValue{PortRef(leaf), std::make_unique<const Value>(Floats{x})});
  }

  const Value& evaluate() { return evaluator_->value(*last); }
  std::uint64_t computed() const { return evaluator_->computedCount(); }

  PortObject* leaf = nullptr;
  PortObject* last = nullptr;

 private:
  RuntimeRegistry registry_;
  std::optional<ContainerObject> container_;
  std::optional<Evaluator> evaluator_;
  Transaction edits_;
};

constexpr const char* kAdd = "core::math::add";

void buildChain(Graph& graph, int count) {
  NodeObject* above = nullptr;
  for (int i = 0; i < count; ++i) {
    NodeObject* node = graph.add(kAdd, i);
    if (above) graph.connect(above, node->inputList().at(0));
    above = node;
  }
  graph.last = above->outputList().at(0);
}

/// `count` leaves, added in pairs until one sum is left.
void buildTree(Graph& graph, int count) {
  int number = 0;
  std::vector<NodeObject*> layer;
  while (number < count) layer.push_back(graph.add(kAdd, number++));
  while (layer.size() > 1) {
    std::vector<NodeObject*> next;
    for (std::size_t i = 0; i < layer.size(); i += 2) {
      NodeObject* sum = graph.add(kAdd, number++);
      graph.connect(layer[i], sum->inputList().at(0));
      if (i + 1 < layer.size()) graph.connect(layer[i + 1], sum->inputList().at(1));
      next.push_back(sum);
    }
    layer = std::move(next);
  }
  graph.last = layer.front()->outputList().at(0);
}

/// `count` nodes that one fan-in port adds up.
void buildFan(Graph& graph, int count) {
  std::vector<NodeObject*> sources;
  for (int i = 0; i < count; ++i) sources.push_back(graph.add(kAdd, i));
  NodeObject* sum = graph.add("core::array::sum", count);
  for (NodeObject* source : sources) graph.connect(source, sum->inputList().at(0));
  graph.last = sum->outputList().at(0);
}

using Build = void (*)(Graph&, int);

/// The first evaluation, in nanoseconds a node.
void evaluateAll(benchmark::State& state, Build build) {
  std::int64_t nodes = 0;
  for (auto _ : state) {
    state.PauseTiming();
    auto graph = std::make_unique<Graph>();
    build(*graph, static_cast<int>(state.range(0)));
    state.ResumeTiming();
    benchmark::DoNotOptimize(graph->evaluate());
    state.PauseTiming();
    nodes = static_cast<std::int64_t>(graph->computed());
    graph.reset();
    state.ResumeTiming();
  }
  countOperations(state, nodes);
}

/// A change of one value and the evaluation after it, in nanoseconds a node that is computed.
void evaluateAnew(benchmark::State& state, Build build) {
  Graph graph;
  build(graph, static_cast<int>(state.range(0)));
  graph.evaluate();
  const std::uint64_t before = graph.computed();
  float x = 0;
  for (auto _ : state) {
    graph.setLeaf(++x);
    benchmark::DoNotOptimize(graph.evaluate());
  }
  const auto rounds = static_cast<std::int64_t>(state.iterations());
  countOperations(state, static_cast<std::int64_t>(graph.computed() - before) / rounds);
}

void chainAll(benchmark::State& state) { evaluateAll(state, buildChain); }
void chainAnew(benchmark::State& state) { evaluateAnew(state, buildChain); }
void treeAll(benchmark::State& state) { evaluateAll(state, buildTree); }
void treeAnew(benchmark::State& state) { evaluateAnew(state, buildTree); }
void fanInAll(benchmark::State& state) { evaluateAll(state, buildFan); }

BENCHMARK(chainAll)->Apply(levelSizes)->Iterations(3);
BENCHMARK(chainAnew)->Apply(levelSizes);
BENCHMARK(treeAll)->Apply(levelSizes)->Iterations(3);
BENCHMARK(treeAnew)->Apply(levelSizes);
BENCHMARK(fanInAll)->Apply(levelSizes)->Iterations(3);

}  // namespace
