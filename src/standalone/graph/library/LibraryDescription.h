#pragma once

#include "standalone/graph/library/DefinitionError.h"
#include "standalone/graph/library/NodeDescription.h"

namespace orvlib {

/// One library, as its definition file states it.
struct LibraryDescription {
  /// The qualified name, "core::math".
  std::string name;
  std::string niceName;
  std::string description;
  std::vector<std::shared_ptr<const NodeDescription>> nodes;

  Position namePosition;
};

}  // namespace orvlib
