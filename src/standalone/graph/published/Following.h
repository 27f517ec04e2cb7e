#pragma once

#include "platform/ORV_1_0/Runtime.h"
#include "standalone/graph/library/Diagnostic.h"
#include "standalone/graph/types/NameMap.h"

namespace orvlib {

/// Names, each with a file to tell in diagnostics.
using ChangedCompounds = NameMap<std::string>;

/// Reads the runtime's files again, and has the referenced compounds of all graphs follow what
/// changed. What goes wrong is reported to the current registry.
void rebuildRuntime(ORV_v1::Runtime& runtime);

/// Gives the referenced compounds of these names, in all graphs of the runtime, their content
/// again. One that cannot follow stays as it is. Told are these, and connections that had to go.
Diagnostics followDefinitions(std::string_view runtime, const ChangedCompounds& changed);

}  // namespace orvlib
