#pragma once

#include <cstdint>

#include "platform/ORV_1_0/String.h"

namespace ORV_v1 {

/// One state of a node that a user switches.
struct NodeStateFlag {
  /// Identifies the flag among those of the node: 'e' enabled, 'f' frozen, 'b' bypassed.
  char key = 0;

  /// The name and the description to show to a user.
  String name;
  String description;

  /// 0: the flag is on. 1: it is off.
  std::int32_t state = 0;

  /// The state of a new node.
  std::uint8_t defaultState = 0;
};

}  // namespace ORV_v1
