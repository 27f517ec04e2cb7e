#include "commands/compound/orvCompoundCmd.h"
#include "commands/portArguments.h"
#include "platform/ORV_1_0/PortProperties.h"
#include "plugin/fromUTF8.h"
#include "plugin/refuse.h"

using ORV_v1::AddRefWrapper;
using ORV_v1::Compound;
using ORV_v1::Container;
using ORV_v1::Port;
using ORV_v1::PortDataType;
using ORV_v1::PortIOType;
using ORV_v1::PortProperties;
using ORV_v1::StringArray;

namespace {

/// The type of a port of the compound; null without such a port.
AddRefWrapper<PortDataType> typeOf(Compound& compound, Container& container, const KString& port) {
  ORV_v1::Namable path = compound.getAsNode()->getFullPathName();
  path.appendPortName(port.asUTF8());
  const AddRefWrapper<Port> found =
      container.findPortFromPath(path.getName(), Container::kSearchEither, Container::kSearchInner);
  return found ? found->getDataType() : AddRefWrapper<PortDataType>();
}

}  // namespace

bool orvCompoundCmd::parseCreateInputPort(Parse& parse) {
  return parseCreatePorts(parse, PortIOType::kInput);
}

bool orvCompoundCmd::parseCreateOutputPort(Parse& parse) {
  return parseCreatePorts(parse, PortIOType::kOutput);
}

/// A port of an unknown type is told of and left out; the others of the line are made.
bool orvCompoundCmd::parseCreatePorts(Parse& parse, PortIOType direction) {
  return parse.forEachUse([&](const KArgList& use) {
    const KString type = use.asString(1);
    PortProperties properties;
    if (!readPortProperties(parse.db, parse.container, type, properties)) return false;
    const bool recorded =
        portCommand.createPort(direction, use.asString(0).asUTF8(), type.asUTF8(), properties);
    if (recorded) {
      editFlags.setFlag(kEditPorts);
    } else {
      displayError(rUnknowPortTypeError, type);
    }
    return true;
  });
}

/// The end of each step that edits a port which must be there.
bool orvCompoundCmd::noteEdit(const Parse& parse, const KString& port, bool recorded,
                              EditActionFlags edit) {
  if (!recorded) return refuse(rPortNotFoundError, fromUTF8(parse.compound->getName()), port);
  editFlags.setFlag(edit);
  return true;
}

bool orvCompoundCmd::parseRenamePort(Parse& parse) {
  return parse.forEachUse([&](const KArgList& use) {
    const KString port = use.asString(0);
    const bool recorded = portCommand.renamePort(port.asUTF8(), use.asString(1).asUTF8());
    return noteEdit(parse, port, recorded, kEditPorts);
  });
}

bool orvCompoundCmd::parseMovePort(Parse& parse) {
  const KString port = parse.text();
  unsigned int position = 0;
  parse.db.getFlagArgument(parse.flag, 1, position);
  return noteEdit(parse, port, portCommand.movePort(port.asUTF8(), position), kEditPorts);
}

bool orvCompoundCmd::parseMovePortToIONode(Parse& parse) {
  const KString port = parse.text();
  const bool recorded = portCommand.movePort(port.asUTF8(), parse.text(1).asUTF8());
  return noteEdit(parse, port, recorded, kEditPorts);
}

bool orvCompoundCmd::parseHidePort(Parse& parse) {
  const KString port = parse.text();
  return noteEdit(parse, port, portCommand.hidePort(port.asUTF8(), parse.boolean(1)), kEditPorts);
}

bool orvCompoundCmd::parseSetPortDataType(Parse& parse) {
  const KString port = parse.text();
  const KString type = parse.text(1);
  if (port.length() == 0 || type.length() == 0) {
    return refuse(rEmptyPortTypeNameError, port, type);
  }
  const bool recorded = portCommand.setPortDataType(port.asUTF8(), type.asUTF8());
  return noteEdit(parse, port, recorded, kEditPorts);
}

/// Without such a port the values are read as any list, and recording them is what refuses it.
bool orvCompoundCmd::parseSetPortDefaultValues(Parse& parse) {
  const KString port = parse.text();
  if (port.length() == 0) return refuse(rEmptyPortNameError, port);
  StringArray values;
  unserializePortValues(parse.text(1), values, typeOf(*parse.compound, parse.container, port));
  const bool recorded = portValueCommand.setPortValues(port.asUTF8(), values, false);
  return noteEdit(parse, port, recorded, kEditPortValues);
}

bool orvCompoundCmd::parseResetPortDefaultValues(Parse& parse) {
  const KString port = parse.text();
  if (port.length() == 0) return refuse(rEmptyPortNameError, port);
  return noteEdit(parse, port, portValueCommand.resetPortValues(port.asUTF8()), kEditPortValues);
}

/// Whether there is such a port is not looked at.
bool orvCompoundCmd::parseSetPortMetaDataValue(Parse& parse) {
  const KString port = parse.text();
  const KString key = parse.text(1);
  if (port.length() == 0 || key.length() == 0) {
    return refuse(rEmptyPortMetaDataNameError, port, key);
  }
  portCommand.setPortMetaDataValue(port.asUTF8(), key.asUTF8(), parse.text(2).asUTF8());
  editFlags.setFlag(kEditPorts);
  return true;
}

bool orvCompoundCmd::parseDeletePort(Parse& parse) {
  return parse.forEachUse([&](const KArgList& use) {
    const KString port = use.asString(0);
    return noteEdit(parse, port, portCommand.deletePort(port.asUTF8()), kEditPorts);
  });
}

bool orvCompoundCmd::redoPortValues(Compound&) {
  portValueCommand.redo();
  return true;
}

bool orvCompoundCmd::redoPorts(Compound&) { return portCommand.redo(); }

void orvCompoundCmd::undoPortValues(Compound&) { portValueCommand.undo(); }

void orvCompoundCmd::undoPorts(Compound&) { portCommand.undo(); }
