#pragma once

#include "platform/ORV_1_0/AddRefWrapper.h"
#include "platform/ORV_1_0/PortDataType.h"

namespace ORV_v1 {

/// Resolves the names of port types in the runtime of a container.
class ORV_EXPORT PortTypeLookup {
 public:
  virtual ~PortTypeLookup();

  /// A null handle for an unknown or null name.
  virtual AddRefWrapper<PortDataType> findPortType(const char* name) const = 0;
};

}  // namespace ORV_v1
