#pragma once

#include "standalone/graph/library/NodeDescription.h"

namespace orvlib {

/// The definition file of a published compound, which `readCompound` reads.
std::string writeCompound(const NodeDescription& node);

}  // namespace orvlib
