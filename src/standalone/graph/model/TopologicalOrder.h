#pragma once

#include <vector>

#include "standalone/graph/model/OrderLabels.h"

namespace orvlib {

/// How far an enumeration of a vertex's arcs has come. It starts with zeros; what they mean is the
/// enumerating side's own.
struct ArcCursor {
  unsigned at[4] = {};
};

/// The arcs of a graph, which the graph itself keeps.
class Arcs {
 public:
  /// The end of the next arc out of the vertex, and moves the cursor past it; null past the last.
  /// A vertex may come more than once.
  virtual OrderedVertex* nextSuccessor(const OrderedVertex& vertex, ArcCursor& cursor) const = 0;
  /// Likewise the beginning of the next arc into the vertex.
  virtual OrderedVertex* nextPredecessor(const OrderedVertex& vertex, ArcCursor& cursor) const = 0;

 protected:
  ~Arcs() = default;
};

/// Refuses cycles: keeps the vertices of a graph in an order in which every arc leads forward, and
/// changes the order as little as a new arc needs.
///
/// An arc that leads forward already costs nothing. Else the search runs from both ends of the arc
/// at once, one arc a step, within the part of the order between them, and ends with the shorter of
/// the two: connecting a vertex that has no arcs on its one side is constant, whatever is beyond.
class ORV_EXPORT TopologicalOrder {
 public:
  /// `arcs` outlives the order.
  explicit TopologicalOrder(const Arcs& arcs) : arcs_(arcs) {}
  TopologicalOrder(const TopologicalOrder&) = delete;
  TopologicalOrder& operator=(const TopologicalOrder&) = delete;

  unsigned size() const { return labels_.size(); }

  /// A vertex that is in no order, and has no arcs yet.
  void append(OrderedVertex& vertex) {
    vertex.mark_ = 0;
    labels_.append(vertex);
  }
  void remove(OrderedVertex& vertex) { labels_.remove(vertex); }

  /// To be asked before an arc is added: makes `from` stand before `to`. False, and the order is as
  /// it was, if the arc would close a cycle, such as one from a vertex to itself. An arc that is
  /// removed needs no word.
  bool insertArc(OrderedVertex& from, OrderedVertex& to);

 private:
  using Next = OrderedVertex* (Arcs::*)(const OrderedVertex&, ArcCursor&) const;

  /// What one of the two searches has reached, in the order of reaching it.
  struct Search {
    Next next = nullptr;
    std::uint64_t mark = 0;
    std::vector<OrderedVertex*> reached;
    std::size_t expanded = 0;  ///< The index in `reached` of the vertex whose arcs are on.
    ArcCursor cursor;
  };
  enum class Step { More, Exhausted, Met };

  static void begin(Search& search, Next next, OrderedVertex& start, std::uint64_t mark);
  Step step(Search& search, const Search& other, std::uint64_t low, std::uint64_t high) const;
  void moveReached(Search& search, OrderedVertex& from, OrderedVertex& to);

  const Arcs& arcs_;
  OrderLabels labels_;
  std::uint64_t lastMark_ = 0;
  Search forward_;
  Search backward_;
};

}  // namespace orvlib
