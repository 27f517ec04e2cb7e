#pragma once

#include "standalone/graph/library/DefinitionError.h"
#include "standalone/graph/types/TypeTable.h"

namespace orvlib {

/// A runtime, as its file runtime.yaml states it.
struct RuntimeDescription {
  std::string name;
  std::string niceName;
  std::string description;
  TypeTable types;

  /// The name of the library above all others; empty for a runtime without libraries.
  std::string rootLibrary;

  Position namePosition;
  Position rootPosition;
};

}  // namespace orvlib
