#pragma once

#include <array>

#include "platform/ORV_1_0/NodeStateFlags.h"
#include "standalone/graph/model/NodeObject.h"

namespace orvlib {

/// The state flags of a node as the public interface shows them.
class ORV_EXPORT StateFlagsObject final : public ORV_v1::NodeStateFlags {
 public:
  static constexpr unsigned int kCount = 3;

  explicit StateFlagsObject(const NodeObject& node);

  /// `index` below `kCount`.
  const ORV_v1::NodeStateFlag& at(unsigned int index) const { return flags_[index]; }

  /// Notes a state that takes effect on the node with `NodeObject::stateFlagChanged`.
  void note(unsigned int index, bool on) { flags_[index].state = on ? 0 : 1; }
  bool isOn(unsigned int index) const { return flags_[index].state == 0; }

  /// The state of that key, such as 'e'; kCount for an unknown one.
  static unsigned int indexOf(char key);
  static char keyOf(NodeState state);

 private:
  std::array<ORV_v1::NodeStateFlag, kCount> flags_;
};

}  // namespace orvlib
