#include "standalone/graph/model/WireArcs.h"

#include "standalone/graph/model/VertexArcs.h"

namespace orvlib {
namespace {

/// The top-level port of that number that the vertex has in a direction; null past the last.
const PortObject* topPort(const GraphVertex& vertex, PortDirection direction, unsigned number) {
  if (vertex.kind() == GraphVertex::Kind::CompoundPort) {
    if (number > 0) return nullptr;
    return &static_cast<const CompoundPortVertex&>(vertex).face(direction);
  }
  const auto& node = static_cast<const NodeObject&>(vertex);
  if (!node.hasOwnPorts()) return nullptr;
  return (direction == PortDirection::Input ? node.inputList() : node.outputList()).at(number);
}

// A port is reached by its number, then that of its child and that of the child's child, where 0 is
// the port itself; last comes the number of the wire.
enum Level { kPort, kChild, kPart, kWire };

const PortObject* childAt(const PortObject& port, unsigned number) {
  if (number == 0) return &port;
  return port.madeChildren() ? port.madeChildren()->at(number - 1) : nullptr;
}

void stepUp(ArcCursor& cursor, Level level) {
  ++cursor.at[level];
  for (int below = level + 1; below <= kWire; ++below) cursor.at[below] = 0;
}

OrderedVertex* nextArc(const OrderedVertex& vertex, PortDirection direction, ArcCursor& cursor) {
  const auto& start = static_cast<const GraphVertex&>(vertex);
  while (const PortObject* top = topPort(start, direction, cursor.at[kPort])) {
    const PortObject* child = childAt(*top, cursor.at[kChild]);
    // Only a child has parts; of the port itself they would be the children again.
    const bool noPart = cursor.at[kChild] == 0 && cursor.at[kPart] > 0;
    const PortObject* part = child && !noPart ? childAt(*child, cursor.at[kPart]) : nullptr;
    const PortObject* peer = part ? part->peers().at(cursor.at[kWire]) : nullptr;
    if (!child) {
      stepUp(cursor, kPort);
    } else if (!part) {
      stepUp(cursor, kChild);
    } else if (!peer) {
      stepUp(cursor, kPart);
    } else {
      ++cursor.at[kWire];
      if (GraphVertex* other = peer->vertex()) return other;
    }
  }
  return nullptr;
}

}  // namespace

OrderedVertex* WireArcs::nextSuccessor(const OrderedVertex& vertex, ArcCursor& cursor) const {
  return nextArc(vertex, PortDirection::Output, cursor);
}

OrderedVertex* WireArcs::nextPredecessor(const OrderedVertex& vertex, ArcCursor& cursor) const {
  return nextArc(vertex, PortDirection::Input, cursor);
}

}  // namespace orvlib
