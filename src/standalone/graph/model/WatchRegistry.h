#pragma once

#include <absl/container/flat_hash_map.h>
#include <absl/container/inlined_vector.h>

#include <span>
#include <vector>

#include "standalone/graph/model/GraphVertex.h"
#include "standalone/graph/model/Handles.h"

namespace orvlib {

/// The watched ports of a graph, by what evaluates them, and which of them wait to be evaluated.
class ORV_EXPORT WatchRegistry {
 public:
  void add(GraphVertex& vertex, PortObject& port);
  void remove(GraphVertex& vertex, PortObject& port);

  /// The vertex is about to go.
  void forget(const GraphVertex& vertex) { entries_.erase(&vertex); }

  /// Any change of the registry ends it.
  std::span<PortObject* const> portsOf(const GraphVertex& vertex) const;

  /// The vertex waits from now on. Nothing happens when it is not watched.
  void note(GraphVertex& vertex);

  /// What waits, in the order in which it was noted; nothing waits any more.
  std::vector<GraphVertex*> takeWaiting();

  /// Keeps a vertex that is on a node out of the graph until `bringBack`, after which it waits
  /// again. It is kept with the topmost node above it.
  void setAside(GraphVertex& vertex);

  /// What was set aside with the topmost node above `node` waits again, and nothing else does. Call
  /// it before the node gets or loses the level that it is in, and before it goes.
  void bringBack(NodeObject& node) {
    if (!aside_.empty()) bringBackWith(topmost(node));
  }

 private:
  enum class Turn : unsigned char { Idle, Waiting, Aside };
  struct Entry {
    absl::InlinedVector<PortObject*, 1> ports;
    Turn turn = Turn::Idle;
  };

  Entry* find(const GraphVertex& vertex);
  static NodeObject& topmost(NodeObject& node);
  void bringBackWith(const NodeObject& top);

  absl::flat_hash_map<const GraphVertex*, Entry> entries_;

  // Vertices that have gone may stand here: only those with an entry of that turn count.
  std::vector<GraphVertex*> waiting_;
  absl::flat_hash_map<const NodeObject*, absl::InlinedVector<GraphVertex*, 1>> aside_;
};

}  // namespace orvlib
