#include "commands/graph/orvNodeCmd.h"

#include <algorithm>

#include "commands/portArguments.h"
#include "platform/ORV_1_0/PortList.h"
#include "platform/ORV_1_0/String.h"
#include "plugin/fromUTF8.h"
#include "plugin/refuse.h"

using ORV_v1::AddRefWrapper;
using ORV_v1::Container;
using ORV_v1::Node;
using ORV_v1::Port;
using ORV_v1::PortList;

/// The first two add to the result, and the others replace it.
const orvNodeCmd::QueryStage orvNodeCmd::kQueryStages[] = {
    {&orvNodeCmd::queriesConnectedNodes, &orvNodeCmd::appendConnectedNodes},
    {&orvNodeCmd::queriesPorts, &orvNodeCmd::appendPorts},
    {&orvNodeCmd::queriesDefaultValues, &orvNodeCmd::answerDefaultValues},
    {&orvNodeCmd::queriesOfAPort, &orvNodeCmd::answerPort},
    {&orvNodeCmd::queriesTypeName, &orvNodeCmd::answerTypeName},
    {&orvNodeCmd::always, &orvNodeCmd::answerMetadata},
};

namespace {

/// Calls `visit` for each connected port of the list and below it, a port ahead of its children.
template <class Visit>
void forEachConnected(const PortList& ports, const Visit& visit) {
  for (const AddRefWrapper<Port>& port : ports) {
    if (port->isConnected()) visit(*port);
    const AddRefWrapper<PortList> children = port->children();
    if (children) forEachConnected(*children, visit);
  }
}

}  // namespace

bool orvNodeCmd::runQueries(Node& node) {
  for (const QueryStage& stage : kQueryStages) {
    if ((this->*stage.isDue)() && !(this->*stage.run)(node)) return false;
  }
  return true;
}

/// The entries stand in the order of their bytes, each once.
bool orvNodeCmd::appendConnectedNodes(Node& node) {
  std::set<std::string> entries;
  const auto add = [&](Port& port) { addEntries(port, entries); };
  forEachConnected(node.inputs(), add);
  forEachConnected(node.outputs(), add);
  for (const std::string& entry : entries) appendToResult(fromUTF8(entry.c_str()));
  return true;
}

/// Without a filter the nodes at the far ends; with one the far ends of those ports that it names.
void orvNodeCmd::addEntries(Port& port, std::set<std::string>& entries) const {
  const bool filtered = !connectedToPorts.empty();
  if (filtered) {
    const std::string name = port.getFullName().getName();
    if (std::find(connectedToPorts.begin(), connectedToPorts.end(), name) ==
        connectedToPorts.end()) {
      return;
    }
  }
  for (const AddRefWrapper<Port>& far : port.connectedTo()) {
    std::string entry = far->getParentNode()->getName();
    if (filtered) entry.append(".").append(far->getFullName().getName());
    entries.insert(std::move(entry));
  }
}

bool orvNodeCmd::appendPorts(Node& node) {
  const std::string prefix = std::string(node.getName()) + ".";
  for (const PortList* ports : {&node.inputs(), &node.outputs()}) {
    for (const AddRefWrapper<Port>& port : *ports) {
      if (filterConnected && port->isConnected() != connectedValue) continue;
      appendToResult(fromUTF8((prefix + port->getName()).c_str()));
    }
  }
  return true;
}

bool orvNodeCmd::answerDefaultValues(Node& node) {
  const PortHandle port = findPort(portName, Container::kSearchInput);
  if (!port) return refuse(rPortNotFoundError, fromUTF8(node.getName()), portName);
  setDefaultValuesResult(*port);
  return true;
}

/// Of the three queries the first of these is answered.
bool orvNodeCmd::answerPort(Node& node) {
  const PortHandle port = findPort(portName, Container::kSearchEither);
  if (!port) return refuse(rPortNotFoundError, fromUTF8(node.getName()), portName);
  if (queryPortMetaDataValue) {
    setResult(fromUTF8(port->getPortMetaDataValue(metaDataName.asUTF8()).toChar()));
  } else if (listPortChildren) {
    const AddRefWrapper<PortList>& children = port->children();
    setResult(children ? namesOf(*children) : KStringArray());
  } else {
    setResult(fromUTF8(port->getDataType()->getName()));
  }
  return true;
}

bool orvNodeCmd::answerTypeName(Node& node) {
  setResult(fromUTF8(node.getTypeName().toChar()));
  return true;
}

bool orvNodeCmd::answerMetadata(Node& node) {
  queryMetadataResult(&node);
  return true;
}
