#pragma once

#include "standalone/graph/library/LibraryDescription.h"
#include "standalone/graph/library/YamlNode.h"

namespace orvlib {

/// Reads a library's definition file, whose ports have types out of `types`. Throws
/// `DefinitionError`.
std::shared_ptr<const LibraryDescription> readLibrary(const YamlNode& document,
                                                      const TypeTable& types);

}  // namespace orvlib
