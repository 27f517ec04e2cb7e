#pragma once

#include "standalone/graph/edits/Transaction.h"

namespace orvlib {

// Values of ports, as edits added to a transaction.

/// Sets the value that the port has while nothing is connected. `value` is one of the port's type;
/// that of a component goes into the value of the port above. False when the port is not settable.
bool runSetValue(Transaction& edits, PortObject& port, Value value);

/// Gives the port its default again; a component gets its part of the default.
bool runResetValue(Transaction& edits, PortObject& port);

/// Changes the type of a port of a compound, or of one that is not its node's definition's. Keeps
/// the value where it converts and the connections that fit, those of children by the names of the
/// children. The other of two state ports changes with it.
bool runSetType(Transaction& edits, PortObject& port, const TypeRef& type);

}  // namespace orvlib
