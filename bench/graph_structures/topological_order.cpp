#include "standalone/graph/model/TopologicalOrder.h"

#include <deque>

#include "bench/graph_structures/Sizes.h"

namespace {

using orvlib::ArcCursor;
using orvlib::OrderedVertex;

struct Vertex : OrderedVertex {
  std::vector<Vertex*> successors;
  std::vector<Vertex*> predecessors;
};

class VertexArcs final : public orvlib::Arcs {
 public:
  OrderedVertex* nextSuccessor(const OrderedVertex& vertex, ArcCursor& cursor) const override {
    return next(static_cast<const Vertex&>(vertex).successors, cursor);
  }
  OrderedVertex* nextPredecessor(const OrderedVertex& vertex, ArcCursor& cursor) const override {
    return next(static_cast<const Vertex&>(vertex).predecessors, cursor);
  }

 private:
  static OrderedVertex* next(const std::vector<Vertex*>& all, ArcCursor& cursor) {
    return cursor.at[0] < all.size() ? all[cursor.at[0]++] : nullptr;
  }
};

class Graph {
 public:
  explicit Graph(const benchmark::State& state)
      : vertices_(static_cast<std::size_t>(state.range(0))) {
    for (Vertex& v : vertices_) order_.append(v);
  }
  bool connect(std::size_t from, std::size_t to) {
    Vertex& source = vertices_[from];
    Vertex& target = vertices_[to];
    if (!order_.insertArc(source, target)) return false;
    source.successors.push_back(&target);
    target.predecessors.push_back(&source);
    return true;
  }
  void disconnectLast(std::size_t from, std::size_t to) {
    vertices_[from].successors.pop_back();
    vertices_[to].predecessors.pop_back();
  }
  std::size_t size() const { return vertices_.size(); }

 private:
  std::deque<Vertex> vertices_;
  VertexArcs arcs_;
  orvlib::TopologicalOrder order_{arcs_};
};

/// A fresh graph in each iteration; only what `connectAll` does with it counts.
template <class ConnectAll>
void build(benchmark::State& state, std::int64_t arcs, ConnectAll connectAll) {
  for (auto _ : state) {
    state.PauseTiming();
    {
      Graph graph(state);
      state.ResumeTiming();
      connectAll(graph);
      state.PauseTiming();
    }
    state.ResumeTiming();
  }
  countOperations(state, arcs);
}

void arcForwardChain(benchmark::State& state) {
  build(state, state.range(0) - 1, [](Graph& graph) {
    for (std::size_t i = 1; i < graph.size(); ++i) graph.connect(i - 1, i);
  });
}

void arcBackwardChain(benchmark::State& state) {
  build(state, state.range(0) - 1, [](Graph& graph) {
    for (std::size_t i = 1; i < graph.size(); ++i) graph.connect(i, i - 1);
  });
}

/// The arcs of a chain, one after the other in a random order.
void arcShuffledChain(benchmark::State& state) {
  const auto order = shuffled(static_cast<std::size_t>(state.range(0)) - 1);
  build(state, state.range(0) - 1, [&order](Graph& graph) {
    for (const unsigned i : order) graph.connect(i + 1, i);
  });
}

/// As people work: each vertex is fed by two that were there before it, not far away, and one arc
/// in ten leads from a new one into what is there. Cycles are refused.
void arcRandomGraph(benchmark::State& state) {
  build(state, 2 * state.range(0), [](Graph& graph) {
    std::mt19937 random(3);
    for (std::size_t i = 1; i < graph.size(); ++i) {
      for (int k = 0; k < 2; ++k) {
        const std::size_t near = i - 1 - random() % std::min<std::size_t>(i, 50);
        random() % 10 ? graph.connect(near, i) : graph.connect(i, near);
      }
    }
  });
}

/// Arcs between any two vertices of a graph that has one for two vertices: the hard case.
void arcAnywhere(benchmark::State& state) {
  Graph graph(state);
  std::mt19937 random(4);
  const auto any = [&] { return random() % graph.size(); };
  for (std::size_t i = 0; i < graph.size() / 2; ++i) graph.connect(any(), any());
  for (auto _ : state) {
    const std::size_t from = any(), to = any();
    if (graph.connect(from, to)) graph.disconnectLast(from, to);
  }
  countOperations(state);
}

BENCHMARK(arcForwardChain)->Apply(levelSizes);
BENCHMARK(arcBackwardChain)->Apply(levelSizes);
BENCHMARK(arcShuffledChain)->Apply(levelSizes);
BENCHMARK(arcRandomGraph)->Apply(levelSizes);
BENCHMARK(arcAnywhere)->Apply(levelSizes);

}  // namespace
