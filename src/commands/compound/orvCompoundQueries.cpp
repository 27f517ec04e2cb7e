#include "commands/compound/orvCompoundCmd.h"
#include "commands/portArguments.h"
#include "platform/ORV_1_0/PortList.h"
#include "platform/ORV_1_0/String.h"
#include "plugin/fromUTF8.h"
#include "plugin/refuse.h"

using ORV_v1::AddRefWrapper;
using ORV_v1::Compound;
using ORV_v1::Container;
using ORV_v1::Port;
using ORV_v1::PortList;

namespace {

constexpr auto kQueryAnyPort = orvCompoundCmd::QueryActionFlags(
    orvCompoundCmd::kQueryPortDataType | orvCompoundCmd::kQueryPortDefaultValues |
    orvCompoundCmd::kQueryPortMetaDataValue | orvCompoundCmd::kQueryListPortChildren);

}  // namespace

/// A later stage that sets the result replaces that of an earlier one.
const orvCompoundCmd::Stage orvCompoundCmd::kQueryStages[] = {
    {kQueryAnyPort, &orvCompoundCmd::queryPort},
    {kQueryListPorts, &orvCompoundCmd::listPorts},
    {kQueryAnnotationMetaDataValue, &orvCompoundCmd::queryAnnotationMetaDataValue},
    {kQuerySaveAs, &orvCompoundCmd::saveAs},
    {kQueryPublish, &orvCompoundCmd::publish},
    {kQueryPublishGraph, &orvCompoundCmd::publishGraph},
    {kEditAddStatePorts, &orvCompoundCmd::addStatePorts},
    {kQuerySpecializedTypeName, &orvCompoundCmd::querySpecializedTypeName},
    {kQueryIsReferenced, &orvCompoundCmd::queryIsReferenced},
    {kQueryIsImported, &orvCompoundCmd::queryIsImported},
    {kQueryIsEditable, &orvCompoundCmd::queryIsEditable},
    {{}, &orvCompoundCmd::queryMetadata},
    {kQueryListNodes, &orvCompoundCmd::listNodes},
    {kQueryCanResetToFactory, &orvCompoundCmd::queryCanResetToFactory},
};

/// The port queries share one field, so the last that was read has the name.
bool orvCompoundCmd::parseQueriedPort(Parse& parse) {
  queriedPortName = parse.text();
  return queriedPortName.length() > 0 || refuse(rEmptyPortNameError, queriedPortName);
}

bool orvCompoundCmd::parseQueryPortMetaDataValue(Parse& parse) {
  queriedPortName = parse.text(0);
  queriedPortMetaName = parse.text(1);
  const bool named = queriedPortName.length() > 0 && queriedPortMetaName.length() > 0;
  return named || refuse(rEmptyPortNameError, queriedPortName);
}

bool orvCompoundCmd::parseListPorts(Parse& parse) {
  const bool inputs = parse.db.isFlagSet("-ip");
  const bool outputs = parse.db.isFlagSet("-op");
  if (inputs || !outputs) listPortsFlags.setFlag(kListPortInputs);
  if (outputs || !inputs) listPortsFlags.setFlag(kListPortOutputs);
  if (!parse.db.isFlagSet("-cn")) return true;
  listPortConnectedValue = parse.of("-cn").boolean();
  listPortsFlags.setFlag(kListPortConnected);
  return true;
}

void orvCompoundCmd::runQueries(Compound& compound) {
  for (const Stage& stage : kQueryStages) {
    if (isDue(stage.when)) (this->*stage.run)(compound);
  }
}

/// One query of a port is answered, the first of these. A port that is not there gives nothing.
void orvCompoundCmd::queryPort(Compound& compound) {
  const AddRefWrapper<ORV_v1::Node> node = compound.getAsNode();
  ORV_v1::Namable path = node->getFullPathName();
  path.appendPortName(queriedPortName.asUTF8());
  const AddRefWrapper<Port> port = node->getContainer()->findPortFromPath(
      path.getName(), Container::kSearchEither, Container::kSearchInner);
  if (!port) return;
  if (queryFlags.isFlagSet(kQueryPortMetaDataValue)) {
    setResult(fromUTF8(port->getPortMetaDataValue(queriedPortMetaName.asUTF8()).toChar()));
  } else if (queryFlags.isFlagSet(kQueryListPortChildren)) {
    const AddRefWrapper<PortList>& children = port->children();
    if (children) setResult(namesOf(*children));
  } else if (queryFlags.isFlagSet(kQueryPortDefaultValues)) {
    setDefaultValuesResult(*port);
  } else {
    setResult(fromUTF8(port->getDataType()->getName()));
  }
}

void orvCompoundCmd::listPorts(Compound& compound) {
  if (listPortsFlags.isFlagSet(kListPortInputs)) listPortsOf(compound.compoundInputs());
  if (listPortsFlags.isFlagSet(kListPortOutputs)) listPortsOf(compound.compoundOutputs());
}

void orvCompoundCmd::listPortsOf(const PortList& ports) const {
  const bool filtered = listPortsFlags.isFlagSet(kListPortConnected);
  for (const AddRefWrapper<Port>& port : ports) {
    if (filtered && port->isConnected() != listPortConnectedValue) continue;
    appendToResult(fromUTF8(port->getName()));
  }
}

void orvCompoundCmd::queryMetadata(Compound& compound) { queryMetadataResult(&compound); }
