#pragma once

#include "standalone/graph/edits/Transaction.h"

namespace orvlib {

// What a library operation does to connections, as edits added to its transaction. False means that
// it cannot be done; what has been run until then is for the caller to roll back.

/// What to do with what is connected to an input already.
enum class Occupied { Refuse, Displace };

/// Connects two ports given in either order. A fan-in input grows a member for a source of the type
/// of its elements.
ORV_EXPORT bool runConnect(Transaction& edits, PortObject& one, PortObject& other,
                           Occupied occupied);

/// Breaks a connection. A member of a fan-in port goes with its connection.
ORV_EXPORT bool runDisconnect(Transaction& edits, PortObject& source, PortObject& target);

/// Breaks all connections of the port and of those below it, on its own face.
ORV_EXPORT bool runDisconnectAll(Transaction& edits, PortObject& port);

/// Breaks all connections of a node from outside, and lets go of the ports that an input/output
/// node shows.
ORV_EXPORT bool runIsolate(Transaction& edits, NodeObject& node);

/// Takes a node out of its level, with its connections.
ORV_EXPORT bool runRemoveNode(Transaction& edits, NodeObject& node);

/// Takes out a port that its node's definition does not demand, with its connections: a top-level
/// port, or a member of a fan-in port.
ORV_EXPORT bool runRemovePort(Transaction& edits, PortObject& port);

}  // namespace orvlib
