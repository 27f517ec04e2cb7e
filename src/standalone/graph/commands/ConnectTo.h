#pragma once

#include <string_view>

#include "standalone/graph/edits/Transaction.h"

namespace orvlib {

// What a new node is connected to, as edits added to a transaction. `path` names a port of the
// level: "add1.result", the name of a port of the compound, or a full path. False when there is no
// such port, or the node has none that fits.

/// Connects the first port of the node that fits, those of the very type first. An input that the
/// path names is taken from what it was connected to.
bool runConnectTo(Transaction& edits, NodeObject& node, std::string_view path);

/// Gives the compound a port for the port that the path names, shows it on the input/output node,
/// and connects it.
bool runConnectIoTo(Transaction& edits, NodeObject& ioNode, std::string_view path);

}  // namespace orvlib
