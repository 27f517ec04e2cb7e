#include "commands/graph/orvConnectCmd.h"

#include <new>
#include <vector>

#include "platform/ORV_1_0/NodeList.h"
#include "platform/ORV_1_0/PortList.h"
#include "plugin/FlagRow.h"
#include "plugin/fromUTF8.h"
#include "plugin/pluginMessages.h"

using ORV_v1::AddRefWrapper;
using ORV_v1::Compound;
using ORV_v1::Container;
using ORV_v1::Node;
using ORV_v1::NodeList;
using ORV_v1::Port;
using ORV_v1::PortIOType;
using ORV_v1::PortList;

namespace {

constexpr FlagRow kFlags[] = {
    {"-cn", "-connectNodes"},
    {"-d", "-disconnect"},
    {"-cm", "-copyMetaData"},
};

KStatus statusOf(bool done) { return done ? StatusSuccess : StatusFailure; }

/// A port inside a compound's boundary may be connected when that compound is editable; other ports
/// have none to ask here.
bool mayConnectInside(Port& port) {
  const AddRefWrapper<Compound> compound = port.getParentCompound();
  return !compound || compound->isEditable();
}

/// Two plain nodes are asked for by the level of the destination alone: it is that of both.
bool mayConnectNodes(Port& source, Port& destination) {
  const AddRefWrapper<Node> to = destination.getParentNode();
  const AddRefWrapper<Node> from = source.getParentNode();
  if (!to || to->isCompound() || !from || from->isCompound()) return true;
  const AddRefWrapper<Compound> level = to->getParentCompound();
  return level && level->isEditable();
}

/// What an input is connected to ahead of an edit that may displace it and then fail.
class FormerPeers {
 public:
  explicit FormerPeers(const AddRefWrapper<Port>& input) : input_(input) {
    for (const AddRefWrapper<Port>& peer : input_->connectedTo()) peers_.push_back(peer);
  }

  /// Connects again those that are gone.
  void restore() const {
    const PortList& now = input_->connectedTo();
    if (now.size() == peers_.size()) return;
    for (const AddRefWrapper<Port>& peer : peers_) {
      if (now.findPort(peer) == PortList::kNotFound) peer->addConnection(input_, false);
    }
  }

 private:
  const AddRefWrapper<Port>& input_;
  std::vector<AddRefWrapper<Port>> peers_;
};

}  // namespace

KPxCommand* orvConnectCmd::creator() { return new (std::nothrow) orvConnectCmd; }

KSyntax orvConnectCmd::createSyntax() {
  KSyntax syntax;
  addStringArgument(syntax);
  addFlags(syntax, kFlags);
  addStringArgument(syntax);
  addStringArgument(syntax);
  return syntax;
}

bool orvConnectCmd::isUndoable() const { return true; }

/// Unlike the other commands this one says nothing of a container that is not there.
KStatus orvConnectCmd::parseArgs(const KArgList& args) {
  KStatus status;
  const KArgDatabase db(syntax(), args, &status);
  status = parseContainer(db, status);
  if (!status) return status;
  Container* container = findContainer(containerName);
  if (!container) return StatusBadArgument;
  return db.isFlagSet("-cn") ? parseNodes(db, *container) : parsePorts(db);
}

/// A missing list counts as an empty one.
KStatus orvConnectCmd::parseNodes(const KArgDatabase& db, Container& container) {
  connectNodesMode = true;
  KString list;
  db.getCommandArgument(1, list);
  ORV_v1::StringArray paths;
  unserializePortValues(list, paths, AddRefWrapper<ORV_v1::PortDataType>());
  const AddRefWrapper<NodeList> nodes = NodeList::createNew(nullptr);
  for (const char* path : paths) {
    const AddRefWrapper<Node> node = container.findNodeFromPath(path);
    if (!node) {
      displayError(rInvalidNodedNameError, fromUTF8(path));
      return StatusFailure;
    }
    nodes->add(node);
  }
  return statusOf(connectNodesCommand.connect(*nodes));
}

KStatus orvConnectCmd::parsePorts(const KArgDatabase& db) {
  KStatus status = requireArgument(db, 1, sourcePortPath);
  if (status) status = requireArgument(db, 2, destinationPortPath);
  if (!status) return status;
  disconnect = db.isFlagSet("-d");
  copyMetaData = db.isFlagSet("-cm");
  return StatusSuccess;
}

/// Only a failure stops here: after any other refusal the container and the ports are looked for,
/// and not found, again.
KStatus orvConnectCmd::doIt(const KArgList& args) {
  clearResult();
  const KStatus status = parseArgs(args);
  if (status.statusCode() == StatusFailure) return status;
  return connectNodesMode ? statusOf(connectNodesCommand.doit()) : connectPorts();
}

KStatus orvConnectCmd::connectPorts() {
  Container* container = findContainer(containerName);
  Ends ends;
  if (!container || !findEnds(*container, ends)) return StatusBadArgument;
  if (!mayConnectInside(*ends.destination) || !mayConnectInside(*ends.source) ||
      !mayConnectNodes(*ends.source, *ends.destination)) {
    displayError(rCompoundNotEditable);
    return StatusFailure;
  }
  const ORV_v1::ChangeBracket bracket = openBracket(*container);
  if (disconnect) {
    return statusOf(connectCommand.disconnect(container, ends.source, ends.destination));
  }
  return statusOf(connect(*container, ends));
}

bool orvConnectCmd::connect(Container& container, const Ends& ends) {
  const bool forward = ends.destination->getPortIOType() == PortIOType::kInput;
  const FormerPeers former(forward ? ends.destination : ends.source);
  if (connectCommand.connect(&container, ends.source, ends.destination, copyMetaData)) return true;
  former.restore();
  return false;
}

bool orvConnectCmd::findEnds(Container& container, Ends& ends) const {
  return container.findPortsForConnection(sourcePortPath.asUTF8(), destinationPortPath.asUTF8(),
                                          &ends.source, &ends.destination);
}

/// The first time by way of the ports; from then on by the path that was found, also when the ports
/// cannot be connected any more.
orvConnectCmd::CompoundHandle orvConnectCmd::findBracketCompound() {
  Container* container = findContainer(containerName);
  if (!container) return CompoundHandle();
  if (bracketCompoundPath.length() > 0) {
    const AddRefWrapper<Node> node = container->findNodeFromPath(bracketCompoundPath.asUTF8());
    if (node) return node->asCompound();
  }
  return findBracketCompoundOfPorts(*container);
}

orvConnectCmd::CompoundHandle orvConnectCmd::findBracketCompoundOfPorts(Container& container) {
  Ends ends;
  if (!findEnds(container, ends)) return CompoundHandle();
  CompoundHandle compound;
  if (ends.destination->isCompoundInternalPort()) {
    compound = ends.destination->getParentCompound();
  } else if (const AddRefWrapper<Node> node = ends.destination->getParentNode()) {
    compound = node->getParentCompound();
  }
  if (compound) {
    bracketCompoundPath = fromUTF8(compound->getAsNode()->getFullPathName().getName());
  }
  return compound;
}

ORV_v1::ChangeBracket orvConnectCmd::openBracket(Container& container) {
  return container.makeChangeBracket(findBracketCompound().get());
}

template <class Edit>
KStatus orvConnectCmd::replayPorts(Edit edit) {
  Container* container = findContainer(containerName);
  if (!container) return StatusFailure;
  const ORV_v1::ChangeBracket bracket = openBracket(*container);
  return statusOf(edit());
}

KStatus orvConnectCmd::redoIt() {
  if (connectNodesMode) return statusOf(connectNodesCommand.redo());
  return replayPorts([this] { return connectCommand.redo(); });
}

KStatus orvConnectCmd::undoIt() {
  if (connectNodesMode) return statusOf(connectNodesCommand.undo());
  return replayPorts([this] { return connectCommand.undo(); });
}
