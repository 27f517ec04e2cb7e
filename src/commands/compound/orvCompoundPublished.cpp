#include "commands/compound/orvCompoundCmd.h"
#include "platform/ORV_1_0/NodeList.h"
#include "platform/ORV_1_0/String.h"
#include "plugin/fromUTF8.h"
#include "plugin/pluginMessages.h"

using ORV_v1::AddRefWrapper;
using ORV_v1::Compound;
using ORV_v1::Node;
using ORV_v1::String;

namespace {

/// The end of an operation that writes: its reason when it says one, and its answer.
void report(bool done, const String& error) {
  if (!error.empty()) displayError(fromUTF8(error.toChar()));
  KPxCommand::setResult(done);
}

}  // namespace

bool orvCompoundCmd::parseSaveAs(Parse& parse) {
  saveOrPublishName = parse.text();
  return true;
}

bool orvCompoundCmd::parsePublish(Parse& parse) {
  saveOrPublishName = parse.text(0);
  publishArgument2 = parse.text(1);
  publishArgument3 = parse.text(2);
  publishFlag = parse.boolean(3);
  return true;
}

bool orvCompoundCmd::parsePublishGraph(Parse& parse) {
  saveOrPublishName = parse.text(0);
  publishGraphArgument2 = parse.text(1);
  publishGraphArgument3 = parse.text(2);
  publishGraphArgument4 = parse.text(3);
  return true;
}

bool orvCompoundCmd::parseSetIsReferenced(Parse& parse) {
  isReferencedValue = parse.boolean();
  return true;
}

bool orvCompoundCmd::parseResetToFactory(Parse& parse) {
  resetToFactoryNodes = parse.uses();
  return true;
}

bool orvCompoundCmd::parseCanResetToFactory(Parse& parse) {
  canResetNodeName = parse.text();
  return true;
}

bool orvCompoundCmd::resetToFactory(Compound& compound) {
  for (const KString& name : resetToFactoryNodes) resetChild(compound, name);
  return true;
}

/// What cannot be reset is told of and does not fail the line.
void orvCompoundCmd::resetChild(Compound& compound, const KString& name) const {
  const AddRefWrapper<Node> node = compound.getChildNodes()[name.asUTF8()];
  if (!node) return displayError(rNodeNameNotFoundError, name, compoundPath);
  if (!node->isCompound()) return displayError(rInvalidCompoundNameError, name);
  const CompoundHandle child = node->asCompound();
  if (!child->canResetToFactory()) return displayError(rCompoundCannotBeReset, name);
  child->resetToFactory();
}

void orvCompoundCmd::setReferenced(Compound& compound, bool referenced) const {
  setResult(compound.setIsReferenced(referenced));
}

void orvCompoundCmd::saveAs(Compound& compound) {
  String error;
  report(compound.save(saveOrPublishName.asUTF8(), error), error);
}

void orvCompoundCmd::publish(Compound& compound) {
  String error;
  const bool done = compound.publish(saveOrPublishName.asUTF8(), publishArgument2.asUTF8(),
                                     publishArgument3.asUTF8(), publishFlag, error);
  report(done, error);
}

void orvCompoundCmd::publishGraph(Compound& compound) {
  String error;
  const bool done =
      compound.publishGraph(saveOrPublishName.asUTF8(), publishGraphArgument2.asUTF8(),
                            publishGraphArgument3.asUTF8(), publishGraphArgument4.asUTF8(), error);
  report(done, error);
}

void orvCompoundCmd::querySpecializedTypeName(Compound& compound) {
  setResult(fromUTF8(compound.getSpecializedTypeName().toChar()));
}

void orvCompoundCmd::queryIsReferenced(Compound& compound) { setResult(compound.isReferenced()); }

void orvCompoundCmd::queryIsImported(Compound& compound) { setResult(compound.isImported()); }

void orvCompoundCmd::queryIsEditable(Compound& compound) { setResult(compound.isEditable()); }

/// Unlike for a reset, a name that is not found is itself the message.
void orvCompoundCmd::queryCanResetToFactory(Compound& compound) {
  const AddRefWrapper<Node> node = compound.getChildNodes()[canResetNodeName.asUTF8()];
  if (!node) return displayErrorFormat(canResetNodeName, compoundPath);
  if (!node->isCompound()) return displayError(rInvalidCompoundNameError, canResetNodeName);
  setResult(node->asCompound()->canResetToFactory());
}
