#include "tests/support/GraphProbeCommand.h"

#include <new>

#include "platform/ORV_1_0/WatchPoint.h"
#include "plugin/FlagRow.h"
#include "plugin/fromUTF8.h"
#include "plugin/pluginMessages.h"

using ORV_v1::AddRefWrapper;
using ORV_v1::ChangeBracket;
using ORV_v1::Container;
using ORV_v1::Namable;
using ORV_v1::WatchPoint;

namespace {

constexpr FlagRow kFlags[] = {
    {"-n", "-node"},
    {"-wp", "-watchPoint", KSyntax::ArgString},
    {"-an", "-addNode", KSyntax::ArgString},
    {"-rn", "-removeNode", KSyntax::ArgString},
    {"-cr", "-create", KSyntax::ArgString},
    {"-aw", "-addWatchPoint"},
};

KString flagText(const KArgDatabase& db, const char* flag) {
  KString text;
  db.getFlagArgument(flag, 0, text);
  return text;
}

}  // namespace

KPxCommand* GraphProbeCommand::creator() { return new (std::nothrow) GraphProbeCommand; }

KSyntax GraphProbeCommand::createSyntax() {
  KSyntax syntax;
  addStringArgument(syntax);
  addMetadataFlags(syntax);
  addFlags(syntax, kFlags);
  addStringArgument(syntax);
  return syntax;
}

KStatus GraphProbeCommand::doIt(const KArgList& args) {
  clearResult();
  const KStatus status = parseArgs(args);
  return status ? redoIt() : status;
}

KStatus GraphProbeCommand::parseArgs(const KArgList& args) {
  KStatus status;
  const KArgDatabase db(syntax(), args, &status);
  if (status) status = getContainerArgument(containerName, db);
  if (status) status = parseFlags(db);
  if (!status) displayError(rParsingError);
  return status;
}

KStatus GraphProbeCommand::parseFlags(const KArgDatabase& db) {
  db.getCommandArgument(1, path_);
  onNode_ = db.isFlagSet("-n");
  onWatchPoint_ = db.isFlagSet("-wp");
  portName_ = flagText(db, "-wp");
  Subject subject;
  if (!find(subject)) return StatusFailure;
  KStatus status;
  parseSubjectMetadata(status, db, subject);
  if (status) parseEdits(db, subject);
  return status;
}

void GraphProbeCommand::parseSubjectMetadata(KStatus& status, const KArgDatabase& db,
                                             const Subject& subject) {
  if (onWatchPoint_) {
    parseWatchPointMetadata(status, db, subject.port);
  } else if (onNode_) {
    parseNodeMetadata(status, db, subject.node);
  } else {
    parseCompoundMetadata(status, db, subject.compound);
  }
}

void GraphProbeCommand::parseEdits(const KArgDatabase& db, const Subject& subject) {
  addsNode_ = db.isFlagSet("-an");
  createsCompound_ = db.isFlagSet("-cr");
  addsWatchPoint_ = db.isFlagSet("-aw");
  removesNode_ = db.isFlagSet("-rn");
  if (removesNode_) nodes_.removeNode(subject.compound, flagText(db, "-rn").asUTF8());
  if (addsNode_) nodes_.createNode(subject.compound, flagText(db, "-an").asUTF8(), nullptr);
  if (createsCompound_) {
    compounds_.setParentCompound(subject.container, path_.asUTF8());
    compounds_.setNewCompoundName(flagText(db, "-cr").asUTF8());
  }
  if (addsWatchPoint_) watchPoints_.createWatchPoint(subject.port);
}

bool GraphProbeCommand::find(Subject& subject) const {
  subject.container = requireContainer();
  if (!subject.container) return false;
  if (!onNode_ && !onWatchPoint_) {
    subject.compound = requireCompound(*subject.container, path_);
    return bool(subject.compound);
  }
  subject.node = subject.container->findNodeFromPath(path_.asUTF8());
  if (!subject.node) displayError(rNodePathNotFoundError, path_);
  return subject.node && (!onWatchPoint_ || findPort(subject));
}

bool GraphProbeCommand::findPort(Subject& subject) const {
  Namable path = subject.node->getFullPathName();
  path.appendPortName(portName_.asUTF8());
  subject.port = subject.container->findPortFromPath(path.getName(), Container::kSearchEither,
                                                     Container::kSearchOuter);
  if (!subject.port) displayError(rPortNotFoundError, path_, portName_);
  return bool(subject.port);
}

ChangeBracket GraphProbeCommand::openBracket(const Subject& subject) const {
  if (subject.compound) return subject.container->makeChangeBracket(subject.compound.get());
  return subject.container->makeChangeBracket(subject.node.get());
}

KStatus GraphProbeCommand::redoIt() {
  Subject subject;
  if (!find(subject)) return StatusFailure;
  {
    const ChangeBracket bracket = openBracket(subject);
    if (!redoMetadata() || !redoEdits()) return StatusFailure;
  }
  showCreated();
  query(subject);
  return StatusSuccess;
}

bool GraphProbeCommand::redoEdits() {
  return (!editsNodes() || nodes_.redo()) && (!createsCompound_ || compounds_.redo()) &&
         (!addsWatchPoint_ || watchPoints_.redo());
}

void GraphProbeCommand::showCreated() const {
  if (createsCompound_) setResult(fromUTF8(compounds_.getCreatedCompoundPath().toChar()));
  if (!addsNode_) return;
  KStringArray names;
  toKStringArray(nodes_.getCreatedNodeNames(), names);
  setResult(names);
}

void GraphProbeCommand::query(const Subject& subject) const {
  if (onWatchPoint_) {
    const AddRefWrapper<WatchPoint> watchPoint = subject.port->getWatchPoint();
    queryMetadataResult(watchPoint.get());
  } else if (onNode_) {
    queryMetadataResult(subject.node.get());
  } else {
    queryMetadataResult(subject.compound.get());
  }
}

KStatus GraphProbeCommand::undoIt() {
  Subject subject;
  if (!find(subject)) return StatusFailure;
  const ChangeBracket bracket = openBracket(subject);
  if (addsWatchPoint_) watchPoints_.undo();
  if (createsCompound_) compounds_.undo();
  if (editsNodes()) nodes_.undo();
  undoMetadata();
  return StatusSuccess;
}

bool GraphProbeCommand::isUndoable() const {
  return editsNodes() || createsCompound_ || addsWatchPoint_ || metadataChanged;
}
