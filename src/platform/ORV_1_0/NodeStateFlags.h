#pragma once

#include "platform/ORV_1_0/NodeStateFlag.h"
#include "platform/ORV_1_0/OrvApi.h"

namespace ORV_v1 {

/// The state flags of one node. Valid while the node lives.
class ORV_EXPORT NodeStateFlags {
 public:
  NodeStateFlags(const NodeStateFlags&) = delete;
  NodeStateFlags& operator=(const NodeStateFlags&) = delete;

  unsigned int size() const;

  /// A flag of key 0 past the end. Valid until the next call of an operation of this list.
  const NodeStateFlag& operator[](unsigned int index) const;

  /// Sets the state of the flag at `index` to that of `flag`; any state but 0 counts as 1. What
  /// else `flag` holds is fixed and is not taken over. Past the end nothing happens. Follow it with
  /// `Node::stateFlagChanged`.
  void update(unsigned int index, const NodeStateFlag& flag);

 protected:
  NodeStateFlags();
  ~NodeStateFlags();
};

}  // namespace ORV_v1
