#pragma once

#include "standalone/graph/model/NodeObject.h"

namespace orvlib {

/// The level at which the port can be connected: the one around its node, or for an inner face the
/// one that it faces. Null for the outer face of the top compound's port, and when its node is
/// gone.
ORV_EXPORT CompoundObject* wireLevel(const PortObject& port);

/// Whether a value of the one type can go into a port of the other.
ORV_EXPORT bool canCarry(const PortObject& source, const PortObject& target);

/// Whether `source` gives, `target` takes, and both are at one level.
ORV_EXPORT bool facesMatch(const PortObject& source, const PortObject& target);

/// Whether both ends of each connection of the node, as it is seen from outside, are at one level.
ORV_EXPORT bool connectionsMatch(const NodeObject& node);

/// Whether the connection can be made as things are: it is not there yet, the faces and types fit,
/// and nothing else is connected to the target, to a port above it or to one below. Cycles are
/// another question.
ORV_EXPORT bool canConnect(const PortObject& source, const PortObject& target);

/// Whether a port below is connected.
ORV_EXPORT bool anyConnectedBelow(const PortObject& port);

/// Whether the port may become a fan-in port, or stop to be one.
ORV_EXPORT bool mayChangeFanIn(const PortObject& port);

}  // namespace orvlib
