#pragma once

#include "standalone/graph/published/Level.h"

namespace orvlib {

/// What a compound held before it became a reference, and the connections that it lost by that.
class FormerContent {
 public:
  TakenLevel level;
  LostWires lost;
};

}  // namespace orvlib
