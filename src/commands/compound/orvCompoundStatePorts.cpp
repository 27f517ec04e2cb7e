#include "commands/compound/orvCompoundCmd.h"
#include "platform/ORV_1_0/PortList.h"
#include "platform/ORV_1_0/PortTypeLookup.h"
#include "plugin/fromUTF8.h"
#include "plugin/pluginMessages.h"

using ORV_v1::AddRefWrapper;
using ORV_v1::Compound;
using ORV_v1::Port;
using ORV_v1::PortDataType;
using ORV_v1::PortList;

namespace {

KString lastName(const PortList& ports) {
  const AddRefWrapper<Port> last = ports[ports.size() - 1];
  return last ? fromUTF8(last->getName()) : KString();
}

void removePort(Compound& compound, const PortList& ports, const KString& name) {
  if (name.length() == 0) return;
  const AddRefWrapper<Port> port = ports[name.asUTF8()];
  if (port) compound.removePort(port);
}

}  // namespace

bool orvCompoundCmd::parseAddStatePorts(Parse& parse) {
  statePortFirstName = parse.text(0);
  statePortSecondName = parse.text(1);
  statePortType = parse.text(2);
  return true;
}

/// An edit, but made among the queries and outside the bracket.
void orvCompoundCmd::addStatePorts(Compound& compound) {
  const AddRefWrapper<PortDataType> type =
      compound.getAsNode()->getContainer()->portTypeLookup().findPortType(statePortType.asUTF8());
  if (!type) return displayError(rUnknowPortTypeError, statePortType);
  const bool added =
      compound.addStatePorts(statePortFirstName.asUTF8(), statePortSecondName.asUTF8(), type);
  setResult(added);
  if (!added) return;
  createdStateOutputPort = lastName(compound.compoundOutputs());
  createdStateInputPort = lastName(compound.compoundInputs());
}

/// The names stay stored.
void orvCompoundCmd::undoAddStatePorts(Compound& compound) {
  removePort(compound, compound.compoundOutputs(), createdStateOutputPort);
  removePort(compound, compound.compoundInputs(), createdStateInputPort);
}
