#pragma once

#include "standalone/graph/library/CompoundDescription.h"
#include "standalone/graph/library/YamlNode.h"

namespace orvlib {

/// Whether a definition file is that of a published compound, and not of a library.
bool describesCompound(const YamlNode& document);

/// Reads the definition file of a published compound, whose ports have types out of `types`. The
/// content stays a text. Throws `DefinitionError`.
CompoundPtr readCompound(const YamlNode& document, const TypeTable& types);

}  // namespace orvlib
