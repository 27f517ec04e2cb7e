#include "commands/graph/orvNodeCmd.h"

#include <new>

#include "platform/ORV_1_0/ChangeBracket.h"
#include "platform/ORV_1_0/NodeStateFlags.h"

using ORV_v1::Container;
using ORV_v1::Node;
using ORV_v1::NodeStateFlag;
using ORV_v1::NodeStateFlags;

KPxCommand* orvNodeCmd::creator() { return new (std::nothrow) orvNodeCmd; }

bool orvNodeCmd::isUndoable() const { return hasNodeEdits || metadataChanged; }

orvNodeCmd::NodeHandle orvNodeCmd::findNode() const {
  Container* container = requireContainer();
  return container ? container->findNodeFromPath(nodePath.asUTF8()) : NodeHandle();
}

orvNodeCmd::PortHandle orvNodeCmd::findPort(const KString& name,
                                            Container::ESearchIOType ioType) const {
  const NodeHandle node = findNode();
  if (!node) return PortHandle();
  ORV_v1::Namable path = node->getFullPathName();
  path.appendPortName(name.asUTF8());
  return node->getContainer()->findPortFromPath(path.getName(), ioType, Container::kSearchOuter);
}

/// Only a failure stops here. After any other refusal of the line the node is asked for once more,
/// and its absence told again.
KStatus orvNodeCmd::doIt(const KArgList& args) {
  clearResult();
  KStatus status;
  if (args.length() > 0) status = parseArgs(args);
  return status.statusCode() == StatusFailure ? status : redoIt();
}

KStatus orvNodeCmd::redoIt() {
  const NodeHandle node = findNode();
  if (!node) return StatusFailure;
  if (isUndoable() && !runEdits(*node)) return StatusFailure;
  return runQueries(*node) ? StatusSuccess : StatusFailure;
}

ORV_v1::ChangeBracket orvNodeCmd::openBracket(Node& node) const {
  const ORV_v1::AddRefWrapper<ORV_v1::Compound> parent = node.getParentCompound();
  return findContainer(containerName)->makeChangeBracket(parent.get());
}

/// What was done stays when a later step fails.
bool orvNodeCmd::runEdits(Node& node) {
  const ORV_v1::ChangeBracket bracket = openBracket(node);
  if (!redoMetadata() || !portCommand.redo()) return false;
  for (const StateFlagChange& change : stateFlagChanges) {
    setState(node, change.flagKey, change.newState);
  }
  return true;
}

/// Not the mirror of `runEdits`: ports go ahead of the metadata, and the state flags are walked
/// forward, last.
KStatus orvNodeCmd::undoIt() {
  const NodeHandle node = findNode();
  if (!node) return StatusFailure;
  const ORV_v1::ChangeBracket bracket = openBracket(*node);
  portCommand.undo();
  undoMetadata();
  for (const StateFlagChange& change : stateFlagChanges) {
    setState(*node, change.flagKey, change.oldState);
  }
  return StatusSuccess;
}

/// A key that the node lacks is passed over.
void orvNodeCmd::setState(Node& node, char key, std::uint32_t state) {
  NodeStateFlags& flags = node.getStateFlags();
  const unsigned int count = flags.size();
  for (unsigned int i = 0; i < count; ++i) {
    NodeStateFlag flag = flags[i];
    if (flag.key != key) continue;
    flag.state = static_cast<std::int32_t>(state);
    flags.update(i, flag);
    return node.stateFlagChanged(i);
  }
}
