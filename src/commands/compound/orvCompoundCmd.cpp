#include "commands/compound/orvCompoundCmd.h"

#include <new>

#include "plugin/refuse.h"

using ORV_v1::Compound;

/// Metadata, values and annotations come ahead of the test for an editable compound: what they did
/// stays when it is not.
const orvCompoundCmd::EditStage orvCompoundCmd::kEditStages[] = {
    {{}, &orvCompoundCmd::redoMetadataEdits},
    {kEditPortValues, &orvCompoundCmd::redoPortValues},
    {kEditAnnotations, &orvCompoundCmd::redoAnnotations},
    {EditActionFlags(~kEditPortValues), &orvCompoundCmd::requireEditable},
    {kEditCreate, &orvCompoundCmd::createCompound},
    {kEditExplode, &orvCompoundCmd::explodeCompounds},
    {kEditAddNodes, &orvCompoundCmd::addNodes},
    {kEditRemoveNodes, &orvCompoundCmd::removeNodes},
    {{}, &orvCompoundCmd::redoPorts},
    {{}, &orvCompoundCmd::renameNodes},
    {kEditResetToFactory, &orvCompoundCmd::resetToFactory},
};

/// Not the mirror of the edits: ports go ahead of the nodes that were added before them, say.
const orvCompoundCmd::Stage orvCompoundCmd::kUndoStages[] = {
    {{}, &orvCompoundCmd::undoPortValues},
    {{}, &orvCompoundCmd::undoAnnotations},
    {{}, &orvCompoundCmd::undoPorts},
    {{}, &orvCompoundCmd::undoMetadataEdits},
    {{}, &orvCompoundCmd::undoRenames},
    {kEditAddNodes, &orvCompoundCmd::undoAddNodes},
    {kEditRemoveNodes, &orvCompoundCmd::undoRemoveNodes},
    {kEditCreate, &orvCompoundCmd::undoCreate},
    {kEditExplode, &orvCompoundCmd::undoExplode},
    {kEditResetToFactory, &orvCompoundCmd::leaveReset},
    {kEditAddStatePorts, &orvCompoundCmd::undoAddStatePorts},
};

KPxCommand* orvCompoundCmd::creator() { return new (std::nothrow) orvCompoundCmd; }

bool orvCompoundCmd::isUndoable() const { return editFlags.anyFlagSet() || metadataChanged; }

orvCompoundCmd::CompoundHandle orvCompoundCmd::findCompound() const {
  return requireCompound(compoundPath);
}

bool orvCompoundCmd::isDue(FlagBits when) const {
  return when.empty() || (editFlags.getFlags() & when.edit) != 0 ||
         (queryFlags.getFlags() & when.query) != 0;
}

/// Without any argument nothing is read, and the container of empty name is not found.
KStatus orvCompoundCmd::doIt(const KArgList& args) {
  clearResult();
  KStatus status;
  if (args.length() > 0) status = parseArgs(args);
  if (!status) return status;
  const CompoundHandle compound = findCompound();
  if (!compound || !prime(*compound)) return StatusFailure;
  return redoIt();
}

/// Setting the referenced state leaves out everything else that the line asks for.
KStatus orvCompoundCmd::redoIt() {
  const CompoundHandle compound = findCompound();
  if (!compound) return StatusFailure;
  if (editFlags.isFlagSet(kEditSetIsReferenced)) {
    setReferenced(*compound, isReferencedValue);
    return StatusSuccess;
  }
  if (isUndoable() && !runEdits(*compound)) return StatusFailure;
  runQueries(*compound);
  return StatusSuccess;
}

ORV_v1::ChangeBracket orvCompoundCmd::openBracket(Compound& compound) {
  return compound.getAsNode()->getContainer()->makeChangeBracket(&compound);
}

bool orvCompoundCmd::runEdits(Compound& compound) {
  const ORV_v1::ChangeBracket bracket = openBracket(compound);
  for (const EditStage& stage : kEditStages) {
    if (isDue(stage.when) && !(this->*stage.run)(compound)) return false;
  }
  return true;
}

KStatus orvCompoundCmd::undoIt() {
  const CompoundHandle compound = findCompound();
  if (!compound) return StatusFailure;
  if (editFlags.isFlagSet(kEditSetIsReferenced)) {
    setReferenced(*compound, !isReferencedValue);
    return StatusSuccess;
  }
  const ORV_v1::ChangeBracket bracket = openBracket(*compound);
  for (const Stage& stage : kUndoStages) {
    if (isDue(stage.when)) (this->*stage.run)(*compound);
  }
  return StatusSuccess;
}

bool orvCompoundCmd::redoMetadataEdits(Compound&) { return redoMetadata(); }

void orvCompoundCmd::undoMetadataEdits(Compound&) { undoMetadata(); }

bool orvCompoundCmd::requireEditable(Compound& compound) {
  return compound.isEditable() || refuse(rCompoundNotEditable);
}

/// A reset counts as an edit, and yet it stays: what the compound held before is gone.
void orvCompoundCmd::leaveReset(Compound&) {}
