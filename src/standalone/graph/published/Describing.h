#pragma once

#include "standalone/graph/library/NodeDescription.h"
#include "standalone/graph/model/CompoundObject.h"

namespace orvlib {

/// The compound as a definition of that qualified name. The values of its inputs are the defaults.
NodeDescription describeCompound(const CompoundObject& compound, const std::string& name,
                                 std::string_view text);

}  // namespace orvlib
