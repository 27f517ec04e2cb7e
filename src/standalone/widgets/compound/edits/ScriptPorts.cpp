// What lines say of the ports of a node.

#include <algorithm>

#include "standalone/graph/model/WatchPointObject.h"
#include "standalone/graph/texts/ListText.h"
#include "standalone/graph/texts/PropertiesText.h"
#include "standalone/graph/types/ValueText.h"
#include "standalone/widgets/compound/edits/ScriptWriter.h"

namespace orvuilib {

using orvlib::NodeObject;
using orvlib::PortListObject;
using orvlib::PortObject;

namespace {

const char* commandFor(const NodeObject& node) {
  return node.compound() ? "orvCompound" : "orvNode";
}

/// Whether a line creates it, and says its flags and metadata then.
bool isCreated(const PortObject& port) {
  const NodeObject& node = *port.node();
  const bool reference = node.compound() && node.compound()->isReference();
  return !port.isFixed() && !port.above() && !reference && !port.statePartner();
}

/// The flags that the port has before a line sets any.
std::uint32_t givenFlags(const PortObject& port) {
  if (isCreated(port)) return port.flags();
  const bool stated = port.description() && port.description()->fanIn;
  return stated ? std::uint32_t{ORV_v1::kPortFanIn} : 0;
}

/// The watch point that a line for the port means: of a compound's output that inside.
const orvlib::WatchPointObject* watchPointOf(const PortObject& port) {
  const PortObject& top = port.root();
  const bool inside = top.kind() == orvlib::PortKind::Outer && !top.isInput();
  if (!inside) return port.watchPoint();
  if (port.above() || !port.twin()) return nullptr;
  return port.twin()->watchPoint();
}

}  // namespace

void ScriptWriter::writeOwnPorts(const std::string& path, NodeObject& node) {
  for (const PortObject* input : node.inputList().items()) {
    if (input->statePartner()) {
      writeStatePair(path, *input);
    } else {
      writeOwnPort(path, *input);
    }
  }
  for (const PortObject* output : node.outputList().items()) {
    if (!output->statePartner()) writeOwnPort(path, *output);
  }
  writeOutputOrder(path, node);
}

void ScriptWriter::writeOwnPort(const std::string& path, const PortObject& port) {
  if (port.isFixed()) return;
  std::string rest = port.isInput() ? "-createInputPort " : "-createOutputPort ";
  rest += quoted(port.name()) + ' ' + quoted(port.valueType().name);
  if (port.flags()) rest += " -portFlags " + std::to_string(port.flags());
  if (!port.metadata().empty()) {
    rest += " -portOptions " + quoted(orvlib::writeProperties(port.metadata()));
  }
  line(commandFor(*port.node()), path, rest);
}

void ScriptWriter::writeStatePair(const std::string& path, const PortObject& input) {
  line("orvCompound", path,
       "-addStatePorts " + quoted(input.name()) + ' ' + quoted(input.statePartner()->name()) + ' ' +
           quoted(input.valueType().name));
}

/// The outputs of state ports came with their inputs, ahead of the others.
void ScriptWriter::writeOutputOrder(const std::string& path, const NodeObject& node) {
  std::vector<const PortObject*> made;
  for (const PortObject* input : node.inputList().items()) {
    if (input->statePartner()) made.push_back(input->statePartner());
  }
  if (made.empty()) return;
  const auto& outputs = node.outputList().items();
  for (const PortObject* output : outputs) {
    if (!output->statePartner()) made.push_back(output);
  }
  std::size_t place = 0;
  for (const PortObject* output : outputs) {
    const auto found = std::find_if(made.begin(), made.end(), [output](const PortObject* each) {
      return each->name() == output->name();
    });
    const auto wanted = made.begin() + static_cast<std::ptrdiff_t>(place);
    if (found != wanted) {
      line("orvCompound", path,
           "-movePort " + quoted(output->name()) + ' ' + std::to_string(place));
      std::rotate(wanted, found, found + 1);
    }
    ++place;
  }
}

void ScriptWriter::writePortSettings(const std::string& path, const NodeObject& node) {
  for (const PortListObject* list : {&node.inputList(), &node.outputList()}) {
    for (const PortObject* port : list->items()) writePort(path, *port);
  }
}

void ScriptWriter::writePort(const std::string& path, const PortObject& port) {
  writeFlags(path, port);
  writeMembers(path, port);
  writeValue(path, port);
  if (!isCreated(port)) writePortMetadata(path, port);
  writeWatchPoint(path, port);
  const PortListObject* below = port.madeChildren();
  if (!below) return;
  for (const PortObject* child : below->items()) writePort(path, *child);
}

void ScriptWriter::writeFlags(const std::string& path, const PortObject& port) {
  const std::uint32_t given = givenFlags(port);
  const std::uint32_t set = port.flags() & ~given;
  const std::uint32_t cleared = given & ~port.flags();
  if (!set && !cleared) return;
  std::string rest = port.isInput() ? "0 1" : "1 1";
  if (set) rest += " -set " + std::to_string(set);
  if (cleared) rest += " -clear " + std::to_string(cleared);
  line("orvPort", path + '.' + port.fullName(), rest);
}

/// Those whose source is not among what is chosen are left out.
void ScriptWriter::writeMembers(const std::string& path, const PortObject& port) {
  const PortListObject* members = port.isFanInPort() ? port.madeChildren() : nullptr;
  if (!members) return;
  for (const PortObject* member : members->items()) {
    if (member->source() && !isChosen(*member->source())) continue;
    line("orvNode", path,
         "-createInputPort " + quoted(member->fullName()) + ' ' + quoted(member->valueType().name));
  }
}

void ScriptWriter::writeValue(const std::string& path, const PortObject& port) {
  if (!port.ownValue() || !port.isSettable()) return;
  const std::string texts = orvlib::writeList(orvlib::printValue(*port.ownValue()));
  line(commandFor(*port.node()), path,
       "-setPortDefaultValues " + quoted(port.fullName()) + ' ' + quoted(texts));
}

void ScriptWriter::writePortMetadata(const std::string& path, const PortObject& port) {
  for (const orvlib::Property& property : port.metadata().all()) {
    line(commandFor(*port.node()), path,
         "-setPortMetaDataValue " + quoted(port.fullName()) + ' ' + quoted(property.key) + ' ' +
             quoted(property.values.front()));
  }
}

void ScriptWriter::writeWatchPoint(const std::string& path, const PortObject& port) {
  const orvlib::WatchPointObject* watch = watchPointOf(port);
  if (!watch) return;
  const std::string name = quoted(port.fullName());
  line("orvWatchPoint", path, name + " -create");
  const orvlib::WatchPointSetup given;
  for (const orvlib::WatchPointParameter& parameter : orvlib::watchPointParameters()) {
    const std::string value = parameter.get(watch->setup());
    if (value == parameter.get(given)) continue;
    line("orvWatchPoint", path,
         name + " -setParameterValue " + quoted(parameter.name) + ' ' + quoted(value));
  }
  if (!watch->setup().enabled) line("orvWatchPoint", path, name + " -enable false");
  if (watch->metadata().empty()) return;
  line("orvWatchPoint", path,
       name + " -setMetaDataFromString " + quoted(orvlib::writeProperties(watch->metadata())));
}

}  // namespace orvuilib
