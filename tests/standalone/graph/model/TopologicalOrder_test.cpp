#include "standalone/graph/model/TopologicalOrder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <random>
#include <utility>
#include <vector>

namespace {

using orvlib::ArcCursor;
using orvlib::OrderedVertex;

struct Vertex : OrderedVertex {
  std::vector<Vertex*> successors;
  std::vector<Vertex*> predecessors;
};

/// Counts how often it is asked, which is what a search costs.
class CountingArcs final : public orvlib::Arcs {
 public:
  OrderedVertex* nextSuccessor(const OrderedVertex& vertex, ArcCursor& cursor) const override {
    return next(static_cast<const Vertex&>(vertex).successors, cursor);
  }
  OrderedVertex* nextPredecessor(const OrderedVertex& vertex, ArcCursor& cursor) const override {
    return next(static_cast<const Vertex&>(vertex).predecessors, cursor);
  }
  mutable unsigned asked = 0;

 private:
  OrderedVertex* next(const std::vector<Vertex*>& all, ArcCursor& cursor) const {
    ++asked;
    return cursor.at[0] < all.size() ? all[cursor.at[0]++] : nullptr;
  }
};

class Graph {
 public:
  explicit Graph(std::size_t count) : vertices(count) {
    for (Vertex& v : vertices) order.append(v);
  }

  bool connect(std::size_t from, std::size_t to) {
    if (!order.insertArc(vertices[from], vertices[to])) return false;
    vertices[from].successors.push_back(&vertices[to]);
    vertices[to].predecessors.push_back(&vertices[from]);
    return true;
  }

  void disconnect(std::size_t from, std::size_t to) {
    std::erase(vertices[from].successors, &vertices[to]);
    std::erase(vertices[to].predecessors, &vertices[from]);
  }

  bool arcsLeadForward() const {
    for (const Vertex& from : vertices) {
      for (const Vertex* to : from.successors) {
        if (!from.standsBefore(*to)) return false;
      }
    }
    return true;
  }

  /// The indices of the vertices, in order.
  std::vector<std::size_t> sequence() const {
    std::vector<std::size_t> all(vertices.size());
    for (std::size_t i = 0; i < all.size(); ++i) all[i] = i;
    std::sort(all.begin(), all.end(), [this](std::size_t a, std::size_t b) {
      return vertices[a].standsBefore(vertices[b]);
    });
    return all;
  }

  bool reaches(std::size_t from, std::size_t to) const {
    std::vector<const Vertex*> reached{&vertices[from]};
    for (std::size_t i = 0; i < reached.size(); ++i) {
      for (const Vertex* next : reached[i]->successors) {
        if (std::find(reached.begin(), reached.end(), next) == reached.end()) {
          reached.push_back(next);
        }
      }
    }
    return std::find(reached.begin(), reached.end(), &vertices[to]) != reached.end();
  }

  std::deque<Vertex> vertices;
  CountingArcs arcs;
  orvlib::TopologicalOrder order{arcs};
};

TEST(TopologicalOrder, TakesAnArcThatLeadsForwardWithoutASearch) {
  Graph graph(3);
  EXPECT_TRUE(graph.connect(0, 2));
  EXPECT_EQ(graph.arcs.asked, 0u);
  EXPECT_EQ(graph.sequence(), (std::vector<std::size_t>{0, 1, 2}));
}

TEST(TopologicalOrder, MovesTheEndsOfAnArcThatLeadsBack) {
  Graph graph(3);
  EXPECT_TRUE(graph.connect(2, 0));
  EXPECT_TRUE(graph.vertices[2].standsBefore(graph.vertices[0]));
}

TEST(TopologicalOrder, RefusesAnArcFromAVertexToItself) {
  Graph graph(1);
  EXPECT_FALSE(graph.connect(0, 0));
}

TEST(TopologicalOrder, RefusesAnArcThatClosesACycle) {
  Graph graph(4);
  for (std::size_t i = 0; i < 3; ++i) ASSERT_TRUE(graph.connect(i, i + 1));
  EXPECT_FALSE(graph.connect(3, 0));
  EXPECT_FALSE(graph.connect(3, 2));
  EXPECT_FALSE(graph.connect(1, 0));
}

TEST(TopologicalOrder, StaysAsItWasWhenItRefuses) {
  Graph graph(5);
  ASSERT_TRUE(graph.connect(3, 1));
  ASSERT_TRUE(graph.connect(1, 4));
  ASSERT_TRUE(graph.connect(4, 0));
  const auto before = graph.sequence();
  ASSERT_FALSE(graph.connect(0, 3));
  EXPECT_EQ(graph.sequence(), before);
}

TEST(TopologicalOrder, TakesTheSameArcTwice) {
  Graph graph(2);
  EXPECT_TRUE(graph.connect(1, 0));
  EXPECT_TRUE(graph.connect(1, 0));
  EXPECT_TRUE(graph.arcsLeadForward());
}

TEST(TopologicalOrder, TakesTheArcBackOnceTheOtherWayIsGone) {
  Graph graph(3);
  ASSERT_TRUE(graph.connect(0, 1));
  ASSERT_TRUE(graph.connect(1, 2));
  ASSERT_FALSE(graph.connect(2, 0));
  graph.disconnect(1, 2);
  EXPECT_TRUE(graph.connect(2, 0));
}

TEST(TopologicalOrder, MovedVerticesKeepTheirOrderAmongThemselves) {
  Graph graph(6);
  for (auto [from, to] : {std::pair{0, 1}, {0, 2}, {1, 2}, {4, 5}, {3, 5}, {3, 4}}) {
    ASSERT_TRUE(graph.connect(from, to));
  }
  ASSERT_TRUE(graph.connect(5, 0));
  EXPECT_TRUE(graph.arcsLeadForward());
  const auto found = graph.sequence();
  EXPECT_EQ(found, (std::vector<std::size_t>{3, 4, 5, 0, 1, 2}));
}

// The marks that searches in the other order left must not be taken for this order's.
TEST(TopologicalOrder, TakesAVertexThatWasInAnotherOrder) {
  Graph other(2);
  ASSERT_TRUE(other.connect(1, 0));
  other.disconnect(1, 0);
  Vertex& moved = other.vertices[0];
  other.order.remove(moved);

  CountingArcs arcs;
  orvlib::TopologicalOrder order(arcs);
  Vertex start, feed, last;
  for (Vertex* v : {&start, &moved, &feed, &last}) order.append(*v);
  for (auto [from, to] : {std::pair{&start, &moved}, {&feed, &last}, {&last, &start}}) {
    ASSERT_TRUE(order.insertArc(*from, *to));
    from->successors.push_back(to);
    to->predecessors.push_back(from);
  }
  EXPECT_TRUE(last.standsBefore(start));
  EXPECT_TRUE(start.standsBefore(moved));
}

TEST(TopologicalOrder, AChainBuiltFromItsEndAsksLittleForEachArc) {
  Graph graph(20000);
  for (std::size_t i = 0; i + 1 < graph.vertices.size(); ++i) ASSERT_TRUE(graph.connect(i + 1, i));
  EXPECT_TRUE(graph.arcsLeadForward());
  EXPECT_LE(graph.arcs.asked, 4 * graph.vertices.size());
}

TEST(TopologicalOrder, AFreshVertexBeforeALongChainAsksLittle) {
  Graph graph(20001);
  for (std::size_t i = 0; i + 2 < graph.vertices.size(); ++i) ASSERT_TRUE(graph.connect(i, i + 1));
  ASSERT_TRUE(graph.connect(20000, 0));
  EXPECT_LE(graph.arcs.asked, 4u);
}

TEST(TopologicalOrder, AHubOfManyArcsCostsNoMoreThanTheOtherEnd) {
  Graph graph(20003);
  for (std::size_t i = 1; i <= 20000; ++i) ASSERT_TRUE(graph.connect(0, i));
  ASSERT_TRUE(graph.connect(20001, 20002));
  ASSERT_TRUE(graph.connect(20002, 0));
  EXPECT_LE(graph.arcs.asked, 10u);
  EXPECT_TRUE(graph.arcsLeadForward());
}

class TopologicalOrderAgainstReachability
    : public testing::TestWithParam<std::pair<std::size_t, unsigned>> {};
// Vertices, and arcs for each of them.
INSTANTIATE_TEST_SUITE_P(Graphs, TopologicalOrderAgainstReachability,
                         testing::Values(std::pair{5, 1}, std::pair{12, 2}, std::pair{60, 1},
                                         std::pair{60, 4}, std::pair{200, 2}));

TEST_P(TopologicalOrderAgainstReachability, RefusesExactlyTheCycles) {
  const auto [count, degree] = GetParam();
  Graph graph(count);
  std::mt19937 random(degree);
  std::vector<std::pair<std::size_t, std::size_t>> arcs;
  const auto below = [&](std::size_t n) {
    return std::uniform_int_distribution<std::size_t>(0, n - 1)(random);
  };
  unsigned refusals = 0;
  for (int i = 0; i < 12000; ++i) {
    if (arcs.size() >= count * degree) {
      std::swap(arcs[below(arcs.size())], arcs.back());
      graph.disconnect(arcs.back().first, arcs.back().second);
      std::erase(arcs, std::pair(arcs.back()));  // Both, if there are two.
    }
    const std::size_t from = below(count), to = below(count);
    const bool cycle = graph.reaches(to, from);
    const auto before = cycle ? graph.sequence() : std::vector<std::size_t>();
    ASSERT_EQ(graph.connect(from, to), !cycle);
    if (cycle) {
      ++refusals;
      ASSERT_EQ(graph.sequence(), before);
    } else {
      arcs.emplace_back(from, to);
      ASSERT_TRUE(graph.arcsLeadForward());
    }
  }
  EXPECT_GT(refusals, 100u);
}

}  // namespace
