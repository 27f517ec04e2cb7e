#include "commands/compound/orvCompoundCmd.h"

#include <cstring>

#include "platform/ORV_1_0/NodeList.h"
#include "platform/ORV_1_0/PortList.h"
#include "platform/ORV_1_0/String.h"
#include "plugin/fromUTF8.h"

using ORV_v1::AddRefWrapper;
using ORV_v1::Compound;
using ORV_v1::Node;
using ORV_v1::Port;
using ORV_v1::PortIOType;
using ORV_v1::PortList;

namespace {

using Flags = ORV_v1::Flaggable<orvCompoundCmd::ListNodesFlags>;

constexpr std::uint32_t kConnectionFilters =
    orvCompoundCmd::kListConnected | orvCompoundCmd::kListConnectedToInput |
    orvCompoundCmd::kListConnectedToOutput | orvCompoundCmd::kListConnectedTo;

/// What the connections of one node say to the filters. Seen from inside, an input of the compound
/// is an output, and its output an input.
class NodeConnections {
 public:
  NodeConnections(const Compound& compound, const Flags& flags, const char* connectedTo)
      : compound_(compound),
        connectedTo_(connectedTo),
        listsPorts_((flags.getFlags() & kConnectionFilters) == orvCompoundCmd::kListConnectedTo) {}

  /// Looks at the node's ports. With `-connectedTo` alone, each connection to that port of the
  /// compound is an entry of the result at once.
  void look(Node& node) {
    for (const PortList* ports : {&node.outputs(), &node.inputs()}) {
      for (const AddRefWrapper<Port>& port : *ports) lookAtPort(node, *port);
    }
  }

  /// Whether the node itself is an entry of the result.
  bool pass(const Flags& flags, bool connected) const {
    if (flags.isFlagSet(orvCompoundCmd::kListConnected) && connected != any_) return false;
    if (flags.isFlagSet(orvCompoundCmd::kListConnectedToInput) && !toInput_) return false;
    if (flags.isFlagSet(orvCompoundCmd::kListConnectedToOutput) && !toOutput_) return false;
    if (flags.isFlagSet(orvCompoundCmd::kListConnectedTo) && !toNamed_) return false;
    return !appended_;
  }

 private:
  void lookAtPort(Node& node, Port& port) {
    const PortList& farPorts = port.connectedTo();
    if (farPorts.size() > 0) any_ = true;
    for (const AddRefWrapper<Port>& far : farPorts) {
      if (far->getParentCompound().get() == &compound_) lookAtBoundary(node, port, *far);
    }
  }

  void lookAtBoundary(Node& node, Port& port, Port& far) {
    (far.getPortIOType() == PortIOType::kOutput ? toInput_ : toOutput_) = true;
    if (std::strcmp(far.getFullName().getName(), connectedTo_) != 0) return;
    toNamed_ = true;
    if (!listsPorts_) return;
    KString entry = fromUTF8(node.getName());
    entry += ".";
    entry += fromUTF8(port.getFullName().getName());
    KPxCommand::appendToResult(entry);
    appended_ = true;
  }

  const Compound& compound_;
  const char* connectedTo_;
  const bool listsPorts_;
  bool any_ = false;
  bool toInput_ = false;
  bool toOutput_ = false;
  bool toNamed_ = false;
  bool appended_ = false;
};

}  // namespace

/// For nodes without connections there is no point in asking what they are connected to: the
/// filters on that are not read then.
bool orvCompoundCmd::parseListNodes(Parse& parse) {
  const KArgDatabase& db = parse.db;
  if (db.isFlagSet("-nt")) {
    listNodeType = parse.of("-nt").text();
    listNodesFlags.setFlag(kListNodeType);
  }
  if (db.isFlagSet("-cn")) {
    listConnectedValue = parse.of("-cn").boolean();
    listNodesFlags.setFlag(kListConnected);
    if (!listConnectedValue) return true;
  }
  if (db.isFlagSet("-cti")) listNodesFlags.setFlag(kListConnectedToInput);
  if (db.isFlagSet("-cto")) listNodesFlags.setFlag(kListConnectedToOutput);
  if (db.isFlagSet("-ct")) {
    listConnectedTo = parse.of("-ct").text();
    listNodesFlags.setFlag(kListConnectedTo);
  }
  return true;
}

void orvCompoundCmd::listNodes(Compound& compound) {
  const bool filtersType = listNodesFlags.isFlagSet(kListNodeType);
  const bool filtersConnections = listNodesFlags.isFlagSet(ListNodesFlags(kConnectionFilters));
  for (const AddRefWrapper<Node>& node : compound.getChildNodes()) {
    if (filtersType && std::strcmp(node->getTypeName().toChar(), listNodeType.asUTF8()) != 0) {
      continue;
    }
    if (filtersConnections) {
      NodeConnections connections(compound, listNodesFlags, listConnectedTo.asUTF8());
      connections.look(*node);
      if (!connections.pass(listNodesFlags, listConnectedValue)) continue;
    }
    appendToResult(fromUTF8(node->getName()));
  }
}
