#include "standalone/graph/model/DirtyMarks.h"

#include <absl/container/inlined_vector.h>

#include "standalone/graph/model/GraphCore.h"
#include "standalone/graph/model/VertexArcs.h"

namespace orvlib {
namespace {

using OpenVertices = absl::InlinedVector<GraphVertex*, 16>;

void setMark(GraphVertex& vertex) {
  vertex.dirty = true;
  if (vertex.watched) coreOf(vertex).watches().note(vertex);
}

void markBelow(GraphVertex& vertex, OpenVertices& open) {
  forEachNeighbour(vertex, PortDirection::Output, [&open](GraphVertex& other) {
    if (other.dirty) return;
    setMark(other);
    if (!holdsBack(other)) open.push_back(&other);
  });
}

void markAllBelow(GraphVertex& vertex) {
  OpenVertices open{&vertex};
  while (!open.empty()) {
    GraphVertex& next = *open.back();
    open.pop_back();
    markBelow(next, open);
  }
}

}  // namespace

bool holdsBack(const GraphVertex& vertex) {
  if (vertex.kind() == GraphVertex::Kind::CompoundPort) {
    return static_cast<const CompoundPortVertex&>(vertex).state != nullptr;
  }
  const auto& node = static_cast<const NodeObject&>(vertex);
  return node.is(NodeState::Frozen) || !node.is(NodeState::Enabled);
}

void markDirty(GraphVertex& vertex) {
  if (vertex.dirty) return;
  setMark(vertex);
  if (!holdsBack(vertex)) markAllBelow(vertex);
}

void markChanged(GraphVertex& vertex) {
  setMark(vertex);
  markAllBelow(vertex);
}

}  // namespace orvlib
