#pragma once

#include "standalone/graph/evaluation/NodeCache.h"
#include "standalone/graph/evaluation/PortValues.h"
#include "standalone/graph/model/NodeObject.h"

namespace orvlib {

/// Computes what a node gives, as its states and its kernel say.
class NodeComputer {
 public:
  explicit NodeComputer(PortValues& values) : values_(values) {}

  /// Fills the cache. All that flows into the node has been evaluated already. False when the node
  /// is frozen, and keeps what it gave.
  bool compute(const NodeObject& node, NodeCache& cache);

 private:
  void bypass(const NodeObject& node, NodeCache& cache);
  void run(const NodeObject& node, NodeCache& cache);

  PortValues& values_;
  std::vector<const Value*> arguments_;
};

}  // namespace orvlib
