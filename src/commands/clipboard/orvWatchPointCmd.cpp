#include "commands/clipboard/orvWatchPointCmd.h"

#include <new>

#include "platform/ORV_1_0/String.h"
#include "plugin/FlagRow.h"
#include "plugin/fromUTF8.h"
#include "plugin/pluginMessages.h"

using ORV_v1::AddRefWrapper;
using ORV_v1::Compound;
using ORV_v1::Container;
using ORV_v1::Node;
using ORV_v1::String;
using ORV_v1::StringArray;
using ORV_v1::WatchPoint;
using Cmd = orvWatchPointCmd;

namespace {

// The names have no "-" of their own, unlike those of the metadata flags.
constexpr FlagRow kFlags[] = {
    {"c", "create"},
    {"r", "remove"},
    {"e", "enable", kBool},
    {"spv", "setParameterValue", kText, kText},
    {"qw", "queryHasWatchPoint"},
    {"qe", "queryIsEnabled"},
    {"qps", "queryParameters"},
    {"qpd", "queryParameterDescription", kText},
    {"qvs", "queryParameterValues", kText},
    {"qvd", "queryParameterValueDescription", kText, kText},
    {"qpv", "queryParameterValue", kText},
    {"qrv", "queryRecordedValues", kText},
};

bool setTexts(bool known, const StringArray& texts) {
  if (!known) return false;
  KStringArray result;
  toKStringArray(texts, result);
  KPxCommand::setResult(result);
  return true;
}

bool setText(bool known, const String& text) {
  if (known) KPxCommand::setResult(fromUTF8(text.toChar()));
  return known;
}

}  // namespace

/// The edits, in the order in which they are recorded.
const orvWatchPointCmd::EditStep orvWatchPointCmd::kEditSteps[] = {
    {"c", &Cmd::recordCreate, kEditCreate},
    {"r", &Cmd::recordRemove, kEditRemove},
    {"e", &Cmd::recordEnable, kEditSetUp},
    {"spv", &Cmd::recordParameter, kEditSetUp},
};

/// The queries share two fields, so the last that is read has the name; the first is answered.
/// Whether there is a watch point is answered without one.
const orvWatchPointCmd::QueryStep orvWatchPointCmd::kQuerySteps[] = {
    {"qw", nullptr, kQueryHasWatchPoint, nullptr},
    {"qe", nullptr, kQueryIsEnabled, &Cmd::answerIsEnabled},
    {"qps", nullptr, kQueryParameters, &Cmd::answerParameters},
    {"qpd", &Cmd::readName, kQueryParameterDescription, &Cmd::answerParameterDescription},
    {"qvs", &Cmd::readName, kQueryParameterValues, &Cmd::answerParameterValues},
    {"qvd", &Cmd::readNameAndValue, kQueryParameterValueDescription,
     &Cmd::answerParameterValueDescription},
    {"qpv", &Cmd::readName, kQueryParameterValue, &Cmd::answerParameterValue},
    {"qrv", &Cmd::readName, kQueryRecordedValues, &Cmd::answerRecordedValues},
};

KPxCommand* orvWatchPointCmd::creator() { return new (std::nothrow) orvWatchPointCmd; }

KSyntax orvWatchPointCmd::createSyntax() {
  KSyntax syntax;
  addStringArgument(syntax);
  addMetadataFlags(syntax);
  addFlags(syntax, kFlags);
  addStringArgument(syntax);
  addStringArgument(syntax);
  return syntax;
}

bool orvWatchPointCmd::isUndoable() const { return editFlags.anyFlagSet() || metadataChanged; }

orvWatchPointCmd::PortHandle orvWatchPointCmd::findPort() const {
  Container* container = requireContainer();
  if (!container) return PortHandle();
  const AddRefWrapper<Node> node = container->findNodeFromPath(nodePath.asUTF8());
  if (!node) {
    displayError(rInvalidNodedNameError, nodePath);
    return PortHandle();
  }
  PortHandle port = findPortOf(*node, portName);
  if (!port) displayError(rPortNotFoundError, nodePath, portName);
  return port;
}

/// Of an output of a compound the face inside comes first: it is where values arrive.
orvWatchPointCmd::PortHandle orvWatchPointCmd::findPortOf(Node& node, const KString& name) {
  Container& container = *node.getContainer();
  ORV_v1::Namable path = node.getFullPathName();
  path.appendPortName(name.asUTF8());
  if (node.isCompound()) {
    PortHandle inner = container.findPortFromPath(path.getName(), Container::kSearchInput,
                                                  Container::kSearchInner);
    if (inner) return inner;
  }
  return container.findPortFromPath(path.getName(), Container::kSearchEither,
                                    Container::kSearchOuter);
}

KStatus orvWatchPointCmd::parseArgs(const KArgList& args) {
  KStatus status;
  const KArgDatabase db(syntax(), args, &status);
  status = parseContainer(db, status);
  if (status) status = requireArgument(db, 1, nodePath);
  if (status) status = requireArgument(db, 2, portName);
  if (!status) return status;
  const PortHandle port = findPort();
  if (!port) return StatusFailure;
  parseWatchPointMetadata(status, db, port);
  if (!status) {
    displayError(rParsingError);
    return status;
  }
  parseFlags(db, port);
  return StatusSuccess;
}

void orvWatchPointCmd::parseFlags(const KArgDatabase& db, const PortHandle& port) {
  for (const EditStep& step : kEditSteps) {
    if (!db.isFlagSet(step.flag)) continue;
    (this->*step.record)(Parse{{db, step.flag}, port});
    editFlags.setFlag(step.sets);
  }
  for (const QueryStep& step : kQuerySteps) {
    if (!db.isFlagSet(step.flag)) continue;
    if (step.read) (this->*step.read)(Parse{{db, step.flag}, port});
    queryFlags.setFlag(step.sets);
  }
}

void orvWatchPointCmd::recordCreate(const Parse& parse) {
  watchPointCommand.createWatchPoint(parse.port);
}

void orvWatchPointCmd::recordRemove(const Parse& parse) {
  watchPointCommand.removeWatchPoint(parse.port);
}

void orvWatchPointCmd::recordEnable(const Parse& parse) {
  watchPointCommand.enableWatchPoint(parse.port, parse.boolean());
}

void orvWatchPointCmd::recordParameter(const Parse& parse) {
  readNameAndValue(parse);
  watchPointCommand.setWatchPointParameter(parse.port, parameterName.asUTF8(),
                                           parameterValue.asUTF8());
}

void orvWatchPointCmd::readName(const Parse& parse) { parameterName = parse.text(); }

void orvWatchPointCmd::readNameAndValue(const Parse& parse) {
  parameterName = parse.text(0);
  parameterValue = parse.text(1);
}

/// Only a failure stops here: after any other refusal of the line there is nothing to do, and that
/// succeeds.
KStatus orvWatchPointCmd::doIt(const KArgList& args) {
  clearResult();
  const KStatus status = parseArgs(args);
  return status.statusCode() == StatusFailure ? status : redoIt();
}

/// Metadata may be edited in a compound that is not editable. A line that edits answers nothing.
KStatus orvWatchPointCmd::redoIt() {
  if (editFlags.anyFlagSet() && !mayEdit()) return StatusFailure;
  if (isUndoable()) {
    return redoMetadata() && watchPointCommand.redo() ? StatusSuccess : StatusFailure;
  }
  return queryFlags.anyFlagSet() ? answer() : StatusSuccess;
}

bool orvWatchPointCmd::mayEdit() const {
  const PortHandle port = findPort();
  if (!port) return false;
  if (port->isCompoundInternalPort()) {
    const AddRefWrapper<Compound> inside = port->getParentCompound();
    return inside && inside->isEditable();
  }
  const AddRefWrapper<Node> node = port->getParentNode();
  const AddRefWrapper<Compound> level =
      node ? node->getParentCompound() : AddRefWrapper<Compound>();
  return level && level->isEditable();
}

/// Answers the first query alone.
KStatus orvWatchPointCmd::answer() const {
  const PortHandle port = findPort();
  if (!port) return StatusFailure;
  const AddRefWrapper<WatchPoint> watchPoint = port->getWatchPoint();
  if (queryFlags.isFlagSet(kQueryHasWatchPoint)) {
    setResult(static_cast<bool>(watchPoint));
    return StatusSuccess;
  }
  if (!watchPoint) return StatusFailure;
  for (const QueryStep& step : kQuerySteps) {
    if (!queryFlags.isFlagSet(step.sets)) continue;
    return (this->*step.answer)(*watchPoint) ? StatusSuccess : StatusFailure;
  }
  // Every query is in the table, so this is never reached.
  queryMetadataResult(watchPoint.get());
  return StatusSuccess;
}

bool orvWatchPointCmd::answerIsEnabled(WatchPoint& watchPoint) const {
  setResult(watchPoint.isEnabled());
  return true;
}

bool orvWatchPointCmd::answerParameters(WatchPoint& watchPoint) const {
  StringArray names;
  return setTexts(watchPoint.getParameterNames(names), names);
}

bool orvWatchPointCmd::answerParameterDescription(WatchPoint& watchPoint) const {
  String text;
  return setText(watchPoint.getParameterDescription(parameterName.asUTF8(), text), text);
}

bool orvWatchPointCmd::answerParameterValues(WatchPoint& watchPoint) const {
  StringArray values;
  return setTexts(watchPoint.getParameterValues(parameterName.asUTF8(), values), values);
}

bool orvWatchPointCmd::answerParameterValueDescription(WatchPoint& watchPoint) const {
  String text;
  const bool known = watchPoint.getParameterValueDescription(parameterName.asUTF8(),
                                                             parameterValue.asUTF8(), text);
  return setText(known, text);
}

bool orvWatchPointCmd::answerParameterValue(WatchPoint& watchPoint) const {
  String value;
  return setText(watchPoint.getParameterValue(parameterName.asUTF8(), value), value);
}

bool orvWatchPointCmd::answerRecordedValues(WatchPoint& watchPoint) const {
  StringArray values;
  return setTexts(watchPoint.getRecordedValues(parameterName.asUTF8(), values), values);
}

/// Metadata go first here too: the order is not the reverse of that of `redoIt`.
KStatus orvWatchPointCmd::undoIt() {
  undoMetadata();
  watchPointCommand.undo();
  return StatusSuccess;
}
