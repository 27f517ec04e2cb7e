#pragma once

#include "standalone/graph/model/NodeObject.h"

namespace orvlib {

/// The vertex of a compound's port.
class CompoundPortVertex final : public GraphVertex {
 public:
  explicit CompoundPortVertex(PortObject& outer) : GraphVertex(Kind::CompoundPort), outer_(outer) {}

  PortObject& outer() const { return outer_; }

  /// The face of that direction.
  PortObject& face(PortDirection direction) const {
    return outer_.direction() == direction ? outer_ : *outer_.twin();
  }

  /// What it passes on, as far as it has been evaluated.
  Value value;

  /// What a state input gives instead of what arrives; null at the first step, and for other ports.
  std::unique_ptr<const Value> state;

 private:
  PortObject& outer_;
};

/// The node that a vertex is, or is a port of. Null for a port that is on no node.
inline NodeObject* nodeOf(GraphVertex& vertex) {
  if (vertex.kind() == GraphVertex::Kind::Node) return static_cast<NodeObject*>(&vertex);
  return static_cast<CompoundPortVertex&>(vertex).outer().node();
}

/// Of a vertex that is on a node.
inline GraphCore& coreOf(GraphVertex& vertex) { return nodeOf(vertex)->core(); }

/// Calls `visit` with a port and those below it, as far as they have been made.
template <class Visit>
void forEachBelow(PortObject& port, Visit visit) {
  visit(port);
  const PortListObject* children = port.madeChildren();
  if (!children) return;
  for (PortObject* child : children->items()) forEachBelow(*child, visit);
}

/// Calls `visit` with each port of that direction that a vertex has: those of a node, or the one
/// face of a compound's port; with the children that have been made.
template <class Visit>
void forEachPort(GraphVertex& vertex, PortDirection direction, Visit visit) {
  if (vertex.kind() == GraphVertex::Kind::CompoundPort) {
    forEachBelow(static_cast<CompoundPortVertex&>(vertex).face(direction), visit);
    return;
  }
  auto& node = static_cast<NodeObject&>(vertex);
  if (!node.hasOwnPorts()) return;
  for (PortObject* port : node.list(direction).items()) forEachBelow(*port, visit);
}

/// Calls `visit` with each vertex that a wire leads to, when `direction` is Output, or comes from.
/// A vertex that several wires join comes as often.
template <class Visit>
void forEachNeighbour(GraphVertex& vertex, PortDirection direction, Visit visit) {
  forEachPort(vertex, direction, [&visit](PortObject& port) {
    for (PortObject* peer : port.peers().items()) {
      if (GraphVertex* other = peer->vertex()) visit(*other);
    }
  });
}

}  // namespace orvlib
