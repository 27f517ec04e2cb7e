#pragma once

#include <absl/container/flat_hash_map.h>

#include <vector>

#include "standalone/graph/evaluation/Kernel.h"
#include "standalone/graph/model/Handles.h"

namespace orvlib {

/// What has been computed of a node, and what it is computed with.
class NodeCache {
 public:
  /// What the outputs give: those of the definition in its order, then the others in theirs.
  /// Nothing while `filled` is false.
  std::vector<Value> outputs;

  /// The inputs that the kernel works on, in its order.
  std::vector<PortObject*> inputs;

  /// Null when nothing computes the node.
  Kernel kernel = nullptr;

  /// How many outputs the definition has.
  unsigned int definedOutputs = 0;

  /// Where in `outputs` those are that are not the definition's.
  absl::flat_hash_map<const PortObject*, unsigned int> furtherSlots;

  bool filled = false;

  /// Whether `inputs`, `kernel`, `definedOutputs` and `furtherSlots` are those of the node as it
  /// is.
  bool bound = false;

  /// Gives up what it holds, also of a frozen node.
  void forget() {
    outputs.clear();
    filled = false;
  }
};

}  // namespace orvlib
