#pragma once

#include <absl/container/flat_hash_map.h>
#include <absl/container/inlined_vector.h>

#include <span>
#include <vector>

#include "standalone/graph/model/GraphVertex.h"
#include "standalone/graph/model/Handles.h"

namespace orvlib {

/// The watched ports of a graph, by what evaluates them, and which of them wait to be evaluated.
class WatchRegistry {
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

  /// Keeps a vertex that is not in the graph until `bringBack`, after which it waits again.
  void setAside(GraphVertex& vertex);
  void bringBack();

 private:
  enum class Turn : unsigned char { Idle, Waiting, Aside };
  struct Entry {
    absl::InlinedVector<PortObject*, 1> ports;
    Turn turn = Turn::Idle;
  };

  Entry* find(const GraphVertex& vertex);

  absl::flat_hash_map<const GraphVertex*, Entry> entries_;

  // Vertices that have gone may stand here: only those with an entry of that turn count.
  std::vector<GraphVertex*> waiting_;
  std::vector<GraphVertex*> aside_;
};

}  // namespace orvlib
