#pragma once

#include <absl/container/flat_hash_map.h>
#include <absl/container/flat_hash_set.h>

#include <vector>

#include "standalone/graph/edits/Transaction.h"

namespace orvlib {

/// Moves nodes of one level into a new compound of that level, as edits added to a transaction. A
/// connection between what moves and what stays goes through a port of the compound: one input for
/// each source outside, one output for each source inside, of the type of that source.
class MoveIntoCompound {
 public:
  /// The compound is in the level and empty.
  MoveIntoCompound(Transaction& edits, CompoundObject& inside, const std::vector<NodeRef>& nodes);

  /// False when something does not fit.
  bool run();

 private:
  /// All connections between one source and those targets that are on the other side.
  struct Crossing {
    PortObject* source;
    unsigned int place;  ///< among the source's connections
    std::vector<PortObject*> targets;
    PortRef outer = {};  ///< the compound's port
  };

  bool moves(const PortObject& port) const;
  void collect();
  void collectPort(PortObject& port);
  bool runBreak();
  bool runMove();
  bool runMakePort(Crossing& crossing, PortDirection direction, const PortObject& named);
  bool runTakeValue(Crossing& crossing);
  bool runJoin(const Crossing& crossing);

  Transaction& edits_;
  CompoundObject& inside_;
  const std::vector<NodeRef>& nodes_;
  absl::flat_hash_set<const NodeObject*> moving_;
  std::vector<Crossing> incoming_;
  std::vector<Crossing> outgoing_;
  absl::flat_hash_map<const PortObject*, std::size_t> incomingOf_;
};

}  // namespace orvlib
