#include "commands/compound/orvCompoundCmd.h"
#include "plugin/FlagRow.h"

namespace {

// No flag is for a query or an edit alone, and none refuses another: each is read when it is there.
constexpr FlagRow kFlags[] = {
    {"-c", "-create", kText},
    multiUse({"-ec", "-explode", kText}),
    multiUse({"-an", "-addNode", kText}),
    multiUse({"-aio", "-addIONode", kBool}),
    multiUse({"-ab", "-addBackdrop", kText}),
    multiUse({"-rma", "-removeAnnotation", kText}),
    multiUse({"-ra", "-renameAnnotation", kText, kText}),
    {"-sam", "-setAnnotationMetaDataValue", kText, kText, kText},
    {"-qam", "-queryAnnotationMetaDataValue", kText, kText},
    multiUse({"-asn", "-addStickyNote", kText}),
    multiUse({"-mai", "-moveAnnotationIn", kText}),
    multiUse({"-rmn", "-removeNode", kText}),
    multiUse({"-mi", "-moveNodeIn", kText}),
    {"-cpo", "-portOptions", kText},
    {"-cpf", "-portFlags", kUnsigned},
    {"-cpv", "-portValues", kText},
    multiUse({"-cip", "-createInputPort", kText, kText}),
    multiUse({"-cop", "-createOutputPort", kText, kText}),
    multiUse({"-rp", "-renamePort", kText, kText}),
    {"-mp", "-movePort", kText, kUnsigned},
    {"-mpn", "-movePortToIONode", kText, kText},
    {"-hp", "-hidePort", kText, kBool},
    multiUse({"-dp", "-deletePort", kText}),
    {"-spt", "-setPortDataType", kText, kText},
    {"-qpt", "-queryPortDataType", kText},
    {"-spv", "-setPortDefaultValues", kText, kText},
    {"-rpv", "-resetPortDefaultValues", kText},
    {"-qpv", "-queryPortDefaultValues", kText},
    {"-spm", "-setPortMetaDataValue", kText, kText, kText},
    {"-qpm", "-queryPortMetaDataValue", kText, kText},
    {"-lpc", "-listPortChildren", kText},
    multiUse({"-rn", "-renameNode", kText, kText}),
    {"-sa", "-saveAs", kText},
    {"-pub", "-publish", kText, kText, kText, kBool},
    {"-pbg", "-publishGraph", kText, kText, kText, kText},
    {"-asp", "-addStatePorts", kText, kText, kText},
    {"-stn", "-specializedTypeName"},
    {"-qir", "-queryIsReferenced"},
    {"-qii", "-queryIsImported"},
    {"-qie", "-queryIsEditable"},
    {"-sir", "-setIsReferenced", kBool},
    {"-ln", "-listNodes"},
    {"-nt", "-nodeType", kText},
    {"-cn", "-connected", kBool},
    {"-cti", "-connectedToInput"},
    {"-cto", "-connectedToOutput"},
    {"-ct", "-connectedTo", kText},
    {"-lp", "-listPorts"},
    {"-ip", "-inputPort"},
    {"-op", "-outputPort"},
    multiUse({"-rtf", "-resetToFactory", kText}),
    {"-crf", "-canResetToFactory", kText},
    {"-cot", "-connectTo", kText},
};

}  // namespace

KSyntax orvCompoundCmd::createSyntax() {
  KSyntax syntax;
  addStringArgument(syntax);
  addMetadataFlags(syntax);
  addFlags(syntax, kFlags);
  addStringArgument(syntax);
  return syntax;
}
