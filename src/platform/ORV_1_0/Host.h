#pragma once

#include "platform/ORV_1_0/Runtime.h"

namespace ORV_v1 {

/// The way into the library: the runtimes that this program has loaded. A value, built where it is
/// needed; without a loaded library there are no runtimes.
class ORV_EXPORT Host {
 public:
  Host();
  virtual ~Host();

  unsigned int getNumberOfRuntimes() const;

  /// Null past the end, and for an unknown or null name. The library owns the result.
  Runtime* getRuntimeAt(unsigned int index) const;
  Runtime* getRuntimeByName(const char* name) const;
};

}  // namespace ORV_v1
