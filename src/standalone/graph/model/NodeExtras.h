#pragma once

#include "standalone/graph/model/StateFlagsObject.h"

namespace orvlib {

/// What only some nodes have.
struct NodeObject::Extras {
  /// Made when it is first asked for.
  std::unique_ptr<StateFlagsObject> stateFlags;

  /// The names of all ports, once there are many.
  std::unique_ptr<NameTable<PortObject>> portNames;
};

}  // namespace orvlib
