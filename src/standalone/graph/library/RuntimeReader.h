#pragma once

#include <memory>

#include "standalone/graph/library/RuntimeDescription.h"
#include "standalone/graph/library/YamlNode.h"

namespace orvlib {

/// Reads a file runtime.yaml. Throws `DefinitionError`.
std::shared_ptr<const RuntimeDescription> readRuntime(const YamlNode& document);

}  // namespace orvlib
