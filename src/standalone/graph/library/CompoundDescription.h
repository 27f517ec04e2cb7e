#pragma once

#include "standalone/graph/library/DefinitionError.h"
#include "standalone/graph/library/NodeDescription.h"

namespace orvlib {

/// A published compound, as its definition file states it.
struct CompoundDescription {
  std::shared_ptr<const NodeDescription> node;
  Position namePosition;
};

using CompoundPtr = std::shared_ptr<const CompoundDescription>;

}  // namespace orvlib
