#pragma once

#include "standalone/graph/model/TopologicalOrder.h"

namespace orvlib {

/// The wires of a graph as arcs between its vertices.
class WireArcs final : public Arcs {
 public:
  OrderedVertex* nextSuccessor(const OrderedVertex& vertex, ArcCursor& cursor) const override;
  OrderedVertex* nextPredecessor(const OrderedVertex& vertex, ArcCursor& cursor) const override;
};

}  // namespace orvlib
