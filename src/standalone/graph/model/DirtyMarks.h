#pragma once

#include "standalone/graph/model/GraphVertex.h"

namespace orvlib {

/// Whether what the vertex gives does not follow what comes in: a frozen or disabled node, and a
/// state input after its first step.
ORV_EXPORT bool holdsBack(const GraphVertex& vertex);

/// What comes into the vertex may have changed: marks it, and all that values flow into from it, as
/// to be evaluated anew. It stops where the mark stands already, and at what holds back.
ORV_EXPORT void markDirty(GraphVertex& vertex);

/// What the vertex gives may have changed, also when it holds back or is marked already.
ORV_EXPORT void markChanged(GraphVertex& vertex);

}  // namespace orvlib
