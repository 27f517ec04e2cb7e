#pragma once

#include "standalone/graph/model/TopologicalOrder.h"

namespace orvlib {

/// What a value passes through on its way: a node that computes, or a port of a compound, whose two
/// faces are one vertex. The vertices of a graph and the wires between them have no cycle.
class GraphVertex : public OrderedVertex {
 public:
  enum class Kind : unsigned char { Node, CompoundPort };

  explicit GraphVertex(Kind kind) : kind_(kind) {}

  Kind kind() const { return kind_; }

  /// Whether it must be evaluated anew. When it must, so must all that it flows into, unless it
  /// holds back (see DirtyMarks.h).
  bool dirty = true;

  /// Whether any of its ports has a watch point. Kept by `WatchRegistry`.
  bool watched = false;

 private:
  Kind kind_;
};

}  // namespace orvlib
