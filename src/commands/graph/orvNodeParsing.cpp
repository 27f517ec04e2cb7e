#include "commands/graph/orvNodeCmd.h"
#include "commands/portArguments.h"
#include "platform/ORV_1_0/NodeStateFlags.h"
#include "plugin/fromUTF8.h"
#include "plugin/refuse.h"

using ORV_v1::Container;
using ORV_v1::NodeStateFlag;
using ORV_v1::NodeStateFlags;
using ORV_v1::PortDataType;
using ORV_v1::PortIOType;
using Cmd = orvNodeCmd;

/// The order decides in which order edits are carried out, which of the queries of a port names the
/// port of all of them, and which refusal a user sees first.
const orvNodeCmd::ParseStep orvNodeCmd::kParseSteps[] = {
    {"-lcn", &Cmd::parseListConnectedNodes, &Cmd::listConnectedNodes},
    {"-lp", &Cmd::parseListPorts, &Cmd::listPorts},
    {"-spv", &Cmd::parseSetPortDefaultValues, &Cmd::hasNodeEdits},
    {"-rpv", &Cmd::parseResetPortDefaultValues, &Cmd::hasNodeEdits},
    {"-spt", &Cmd::parseSetPortDataType, &Cmd::hasNodeEdits},
    {"-cip", &Cmd::parseCreateInputPort, &Cmd::hasNodeEdits},
    {"-cop", &Cmd::parseCreateOutputPort, &Cmd::hasNodeEdits},
    {"-dp", &Cmd::parseDeletePort, &Cmd::hasNodeEdits},
    {"-qpv", &Cmd::parseQueriedPort, &Cmd::queryPortDefaultValues},
    {"-qpt", &Cmd::parseQueriedPort, &Cmd::queryPortDataType},
    {"-spm", &Cmd::parseSetPortMetaDataValue, &Cmd::hasNodeEdits},
    {"-qpm", &Cmd::parseQueryPortMetaDataValue, &Cmd::queryPortMetaDataValue},
    {"-lpc", &Cmd::parseQueriedPort, &Cmd::listPortChildren},
    {"-qtn", nullptr, &Cmd::queryTypeName},
    {"-ssf", &Cmd::parseSetStateFlag, &Cmd::hasNodeEdits},
};

namespace {

/// The state that the node's flag of that key has; 0 for a key that the node lacks.
std::uint32_t stateOf(const NodeStateFlags& flags, char key) {
  const unsigned int count = flags.size();
  for (unsigned int i = 0; i < count; ++i) {
    const NodeStateFlag& flag = flags[i];
    if (flag.key == key) return static_cast<std::uint32_t>(flag.state);
  }
  return 0;
}

}  // namespace

KStatus orvNodeCmd::parseArgs(const KArgList& args) {
  KStatus status;
  const KArgDatabase db(syntax(), args, &status);
  status = parseContainer(db, status);
  if (!status) return status;
  status = requireArgument(db, 1, nodePath);
  if (!status) return status;
  const NodeHandle node = findNode();
  if (!node) {
    displayError(rNodePathNotFoundError, nodePath);
    return StatusFailure;
  }
  parseNodeMetadata(status, db, node);
  if (!status) {
    displayError(rParsingError);
    return status;
  }
  return parseFlags(db, node) ? StatusSuccess : StatusFailure;
}

bool orvNodeCmd::parseFlags(const KArgDatabase& db, const NodeHandle& node) {
  for (const ParseStep& step : kParseSteps) {
    if (!db.isFlagSet(step.flag)) continue;
    if (step.read && !(this->*step.read)(Parse{{db, step.flag}, node})) return false;
    this->*step.sets = true;
  }
  return true;
}

bool orvNodeCmd::parseListConnectedNodes(const Parse& parse) {
  connectedToPorts.clear();
  return parse.of("-ct").forEachUse([&](const KArgList& use) {
    connectedToPorts.emplace_back(use.asString(0).asUTF8());
    return true;
  });
}

bool orvNodeCmd::parseListPorts(const Parse& parse) {
  filterConnected = parse.db.isFlagSet("-c");
  if (filterConnected) connectedValue = parse.of("-c").boolean();
  return true;
}

/// Without such a port the values are read as any list, and recording them is what refuses it.
bool orvNodeCmd::parseSetPortDefaultValues(const Parse& parse) {
  const KString port = parse.text();
  if (port.length() == 0) return refuse(rEmptyPortNameError, port);
  const PortHandle found = findPort(port, Container::kSearchInput);
  ORV_v1::StringArray values;
  unserializePortValues(parse.text(1), values,
                        found ? found->getDataType() : ORV_v1::AddRefWrapper<PortDataType>());
  return portCommand.setPortValues(parse.node, port.asUTF8(), values, false) ||
         refuse(rPortNotFoundError, fromUTF8(parse.node->getName()), port);
}

bool orvNodeCmd::parseResetPortDefaultValues(const Parse& parse) {
  const KString port = parse.text();
  if (port.length() == 0) return refuse(rEmptyPortNameError, port);
  return portCommand.resetPortValues(parse.node, port.asUTF8()) ||
         refuse(rPortNotFoundError, fromUTF8(parse.node->getName()), port);
}

/// A type that is not known is reported as a missing port, too.
bool orvNodeCmd::parseSetPortDataType(const Parse& parse) {
  const KString port = parse.text();
  const KString type = parse.text(1);
  if (port.length() == 0 || type.length() == 0) return refuse(rEmptyPortTypeNameError, port, type);
  return portCommand.setPortType(parse.node, port.asUTF8(), type.asUTF8()) ||
         refuse(rPortNotFoundError, fromUTF8(parse.node->getName()), port);
}

bool orvNodeCmd::parseCreateInputPort(const Parse& parse) {
  return parseCreatePort(parse, PortIOType::kInput);
}

bool orvNodeCmd::parseCreateOutputPort(const Parse& parse) {
  return parseCreatePort(parse, PortIOType::kOutput);
}

bool orvNodeCmd::parseCreatePort(const Parse& parse, PortIOType direction) {
  const KString port = parse.text();
  const KString type = parse.text(1);
  if (port.length() == 0) return refuse(rEmptyPortNameError, port);
  ORV_v1::PortProperties properties;
  if (!readPortProperties(parse.db, *parse.node->getContainer(), type, properties)) return false;
  return portCommand.createPort(parse.node, direction, port.asUTF8(), type.asUTF8(), properties) ||
         refuse(rUnknowPortTypeError, type);
}

/// A port that cannot be deleted is reported as an unknown type without a name.
bool orvNodeCmd::parseDeletePort(const Parse& parse) {
  const KString port = parse.text();
  if (port.length() == 0) return refuse(rEmptyPortNameError, port);
  const KString type;
  return portCommand.deletePort(parse.node, port.asUTF8()) || refuse(rUnknowPortTypeError, type);
}

/// The port queries share one field, so the last that is read has the name.
bool orvNodeCmd::parseQueriedPort(const Parse& parse) {
  portName = parse.text();
  return portName.length() > 0 || refuse(rEmptyPortNameError, portName);
}

/// Whether there is such a port is not looked at.
bool orvNodeCmd::parseSetPortMetaDataValue(const Parse& parse) {
  const KString port = parse.text();
  const KString key = parse.text(1);
  if (port.length() == 0 || key.length() == 0) {
    return refuse(rEmptyPortMetaDataNameError, port, key);
  }
  portCommand.setPortMetaDataValue(parse.node, port.asUTF8(), key.asUTF8(), parse.text(2).asUTF8());
  return true;
}

/// An empty key gets the message of an empty port name.
bool orvNodeCmd::parseQueryPortMetaDataValue(const Parse& parse) {
  portName = parse.text(0);
  metaDataName = parse.text(1);
  const bool named = portName.length() > 0 && metaDataName.length() > 0;
  return named || refuse(rEmptyPortNameError, portName);
}

/// Refused without a message in a compound that is not editable, and for a node that is in none.
/// The first character of the key alone counts, and a flag that is on has the state 0.
bool orvNodeCmd::parseSetStateFlag(const Parse& parse) {
  const ORV_v1::AddRefWrapper<ORV_v1::Compound> parent = parse.node->getParentCompound();
  if (!parent || !parent->isEditable()) return false;
  const NodeStateFlags& flags = parse.node->getStateFlags();
  stateFlagChanges.clear();
  return parse.forEachUse([&](const KArgList& use) {
    StateFlagChange change;
    change.flagKey = *use.asString(0).asUTF8();
    change.newState = use.asBool(1) ? 0 : 1;
    change.oldState = stateOf(flags, change.flagKey);
    stateFlagChanges.push_back(change);
    return true;
  });
}
