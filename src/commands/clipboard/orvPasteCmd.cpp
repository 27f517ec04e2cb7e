#include "commands/clipboard/orvPasteCmd.h"

#include <new>

#include "platform/ORV_1_0/ChangeBracket.h"
#include "plugin/FlagRow.h"
#include "plugin/pluginMessages.h"

using ORV_v1::AddRefWrapper;
using ORV_v1::Compound;
using ORV_v1::Container;
using ORV_v1::PasteCommand;

namespace {

constexpr FlagRow kFlags[] = {
    {"-dsc", "-duplicateSourceInputConnections"},
};

}  // namespace

KPxCommand* orvPasteCmd::creator() { return new (std::nothrow) orvPasteCmd; }

KSyntax orvPasteCmd::createSyntax() {
  KSyntax syntax;
  addStringArgument(syntax);
  addStringArgument(syntax);
  addFlags(syntax, kFlags);
  return syntax;
}

bool orvPasteCmd::isUndoable() const { return true; }

/// Of a container that is not there the user is told nothing. Nothing is bound to a compound that
/// cannot be edited.
KStatus orvPasteCmd::parseArgs(const KArgList& args) {
  KStatus status;
  const KArgDatabase db(syntax(), args, &status);
  status = parseContainer(db, status);
  if (!status) return status;
  Container* container = findContainer(containerName);
  if (!container) return StatusFailure;
  status = requireArgument(db, 1, compoundPath);
  if (!status) return status;
  const AddRefWrapper<Compound> compound = requireCompound(compoundPath);
  if (!compound) return StatusFailure;
  if (!compound->isEditable()) {
    displayError(rCompoundNotEditable);
    return StatusFailure;
  }
  pasteCommand.setParentCompound(container, compoundPath.asUTF8());
  if (db.isFlagSet("-dsc")) pasteCommand.duplicateSourceInputConnections(true);
  return StatusSuccess;
}

/// What has gone since the line was read is told. Without the compound the bracket is that of the
/// container, and the library decides; without the container there is nothing left to change.
KStatus orvPasteCmd::runInBracket(bool (PasteCommand::*part)()) {
  AddRefWrapper<Compound> compound = requireCompound(compoundPath);
  Container* container = findContainer(containerName);
  if (!container) return StatusFailure;
  const ORV_v1::ChangeBracket bracket = container->makeChangeBracket(compound.get());
  compound = AddRefWrapper<Compound>();
  return (pasteCommand.*part)() ? StatusSuccess : StatusFailure;
}

KStatus orvPasteCmd::doIt(const KArgList& args) {
  clearResult();
  const KStatus status = parseArgs(args);
  return status ? runInBracket(&PasteCommand::doit) : status;
}

KStatus orvPasteCmd::undoIt() { return runInBracket(&PasteCommand::undo); }

KStatus orvPasteCmd::redoIt() { return runInBracket(&PasteCommand::redo); }
