#pragma once

#include "standalone/graph/published/Level.h"

namespace orvlib {

/// Breaks the connections of a port and of those below it, on its own face, and adds them to
/// `lost`. Members of a fan-in port go.
bool loseWires(Transaction& edits, PortObject& port, LostWires& lost);

/// Takes out an outer face with its connections.
bool losePort(Transaction& edits, PortObject& port, LostWires& lost);

/// Connects it again. False, and nothing changed, when that cannot be.
bool restoreWire(Transaction& edits, const LostWire& wire);

}  // namespace orvlib
