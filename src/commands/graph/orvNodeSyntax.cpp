#include "commands/graph/orvNodeCmd.h"
#include "plugin/FlagRow.h"

namespace {

constexpr FlagRow kFlags[] = {
    {"-c", "-connected", kBool},
    multiUse({"-ct", "-connectedTo", kText}),
    {"-cip", "-createInputPort", kText, kText},
    {"-cop", "-createOutputPort", kText, kText},
    {"-cpo", "-portOptions", kText},
    {"-cpf", "-portFlags", kUnsigned},
    {"-cpv", "-portValues", kText},
    {"-dp", "-deletePort", kText},
    {"-lcn", "-listConnectedNodes"},
    {"-lp", "-listPorts"},
    {"-spv", "-setPortDefaultValues", kText, kText},
    {"-rpv", "-resetPortDefaultValues", kText},
    {"-qpv", "-queryPortDefaultValues", kText},
    {"-qpt", "-queryPortDataType", kText},
    {"-spt", "-setPortDataType", kText, kText},
    {"-qtn", "-queryTypeName"},
    {"-spm", "-setPortMetaDataValue", kText, kText, kText},
    {"-qpm", "-queryPortMetaDataValue", kText, kText},
    {"-lpc", "-listPortChildren", kText},
    multiUse({"-ssf", "-setStateFlag", kText, kBool}),
};

}  // namespace

KSyntax orvNodeCmd::createSyntax() {
  KSyntax syntax;
  addStringArgument(syntax);
  addMetadataFlags(syntax);
  addFlags(syntax, kFlags);
  addStringArgument(syntax);
  return syntax;
}
