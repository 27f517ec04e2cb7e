#include "commands/compound/orvCompoundCmd.h"
#include "plugin/pluginMessages.h"

using ORV_v1::Container;
using Cmd = orvCompoundCmd;

/// The order decides in which order edits of one kind are carried out, which of two flags that
/// share a field has the last word, and which refusal a user sees first.
const orvCompoundCmd::ParseStep orvCompoundCmd::kParseSteps[] = {
    {"-c", &Cmd::parseCreate, kEditCreate},
    {"-ec", &Cmd::parseExplode, kEditExplode},
    {"-cot", &Cmd::parseConnectTo, {}},
    {"-an", &Cmd::parseAddNode, kEditAddNodes},
    {"-aio", &Cmd::parseAddIONode, kEditAddNodes},
    {"-ab", &Cmd::parseAddBackdrop, kEditAnnotations},
    {"-asn", &Cmd::parseAddStickyNote, kEditAnnotations},
    {"-rma", &Cmd::parseRemoveAnnotation, kEditAnnotations},
    {"-ra", &Cmd::parseRenameAnnotation, kEditAnnotations},
    {"-sam", &Cmd::parseSetAnnotationMetaDataValue, kEditAnnotations},
    {"-qam", &Cmd::parseQueryAnnotationMetaDataValue, kQueryAnnotationMetaDataValue},
    {"-mai", &Cmd::parseMoveAnnotationIn, {}},
    {"-rmn", &Cmd::parseRemoveNode, kEditRemoveNodes},
    {"-mi", &Cmd::parseMoveNodeIn, {}},
    {"-cip", &Cmd::parseCreateInputPort, {}},
    {"-cop", &Cmd::parseCreateOutputPort, {}},
    {"-rn", &Cmd::parseRenameNode, kEditRenameNodes},
    {"-rp", &Cmd::parseRenamePort, {}},
    {"-mp", &Cmd::parseMovePort, {}},
    {"-mpn", &Cmd::parseMovePortToIONode, {}},
    {"-hp", &Cmd::parseHidePort, {}},
    {"-spt", &Cmd::parseSetPortDataType, {}},
    {"-spv", &Cmd::parseSetPortDefaultValues, {}},
    {"-rpv", &Cmd::parseResetPortDefaultValues, {}},
    {"-qpt", &Cmd::parseQueriedPort, kQueryPortDataType},
    {"-qpv", &Cmd::parseQueriedPort, kQueryPortDefaultValues},
    {"-spm", &Cmd::parseSetPortMetaDataValue, {}},
    {"-qpm", &Cmd::parseQueryPortMetaDataValue, kQueryPortMetaDataValue},
    {"-lpc", &Cmd::parseQueriedPort, kQueryListPortChildren},
    {"-dp", &Cmd::parseDeletePort, {}},
    {"-lp", &Cmd::parseListPorts, kQueryListPorts},
    {"-sa", &Cmd::parseSaveAs, kQuerySaveAs},
    {"-pub", &Cmd::parsePublish, kQueryPublish},
    {"-pbg", &Cmd::parsePublishGraph, kQueryPublishGraph},
    {"-asp", &Cmd::parseAddStatePorts, kEditAddStatePorts},
    {"-stn", nullptr, kQuerySpecializedTypeName},
    {"-qir", nullptr, kQueryIsReferenced},
    {"-qii", nullptr, kQueryIsImported},
    {"-qie", nullptr, kQueryIsEditable},
    {"-sir", &Cmd::parseSetIsReferenced, kEditSetIsReferenced},
    {"-ln", &Cmd::parseListNodes, kQueryListNodes},
    {"-rtf", &Cmd::parseResetToFactory, kEditResetToFactory},
    {"-crf", &Cmd::parseCanResetToFactory, kQueryCanResetToFactory},
};

KStatus orvCompoundCmd::parseArgs(const KArgList& args) {
  KStatus status;
  const KArgDatabase db(syntax(), args, &status);
  status = parseContainer(db, status);
  if (!status) return status;
  status = requireArgument(db, 1, compoundPath);
  if (!status) return status;
  const CompoundHandle compound = findCompound();
  if (!compound) return StatusFailure;
  parseCompoundMetadata(status, db, compound);
  if (!status) {
    displayError(rParsingError);
    return status;
  }
  Parse parse{{db}, compound, *compound->getAsNode()->getContainer(), KString()};
  bindCommands(parse.container);
  return parseFlags(parse) ? StatusSuccess : StatusFailure;
}

void orvCompoundCmd::bindCommands(Container& container) {
  const char* path = compoundPath.asUTF8();
  portCommand.setParentCompound(&container, path);
  portValueCommand.setParentCompound(&container, path);
  annotationCommand.setParentCompound(&container, path);
}

/// What was read before a refusal stays in the object, and nothing of it is carried out.
bool orvCompoundCmd::parseFlags(Parse& parse) {
  for (const ParseStep& step : kParseSteps) {
    if (!parse.db.isFlagSet(step.flag)) continue;
    parse.flag = step.flag;
    if (step.read && !(this->*step.read)(parse)) return false;
    editFlags.setFlag(EditActionFlags(step.sets.edit));
    queryFlags.setFlag(QueryActionFlags(step.sets.query));
  }
  return true;
}
