// Ports: the edits that make, name, remove, hide and move them, and set their type, flags and
// values.

#include "hook/Target.h"
#include "hook/execution.h"
#include "hook/orvVeskCommandHook.h"
#include "platform/ORV_1_0/ChangeBracket.h"
#include "platform/ORV_1_0/ModifyCompoundPortCommand.h"
#include "platform/ORV_1_0/ModifyNodePortCommand.h"
#include "platform/ORV_1_0/PortList.h"
#include "platform/ORV_1_0/QtConversions.h"

using ORV_v1::AddRefWrapper;
using ORV_v1::ChangeBracket;
using ORV_v1::Container;
using ORV_v1::ModifyCompoundPortCommand;
using ORV_v1::ModifyNodePortCommand;
using ORV_v1::NewPortHints;
using ORV_v1::Node;
using ORV_v1::OptionalStringArray;
using ORV_v1::Port;
using ORV_v1::PortIOType;
using ORV_v1::PortList;
using ORV_v1::PortProperties;
using ORV_v1::String;
using ORV_v1::StringArray;

namespace {

void addProperties(CommandLine& line, const PortProperties& properties) {
  if (properties.getFlags() != 0) line.flag("-portFlags").number(properties.getFlags());
  const OptionalStringArray& values = properties.defaultValues();
  if (values.isValid()) line.flag("-portValues").texts(ORV_v1::toQStringList(values.getValues()));
  const ORV_v1::PropertyList& options = properties.options();
  if (!options.empty()) line.flag("-portOptions").properties(options);
}

void addHints(CommandLine& line, bool output, const NewPortHints& hints) {
  const String* name = nullptr;
  const String* type = nullptr;
  const PortProperties* properties = nullptr;
  hints.nameHint(name);
  hints.typeHint(type);
  line.flag(output ? "-createOutputPort" : "-createInputPort");
  line.text(name->toChar()).text(type->toChar());
  if (hints.propertiesHint(properties)) addProperties(line, *properties);
}

/// Runs a line that makes one port, which is found by the growth of the list: neither status nor
/// result is looked at. True, and `port` the new port, when the list is longer by exactly one; else
/// false and null.
bool runForNewPort(const CommandLine& line, const PortList& list, AddRefWrapper<Port>& port) {
  const unsigned int before = list.size();
  runLine(line);
  const bool grown = list.size() == before + 1;
  port = grown ? list[before] : AddRefWrapper<Port>();
  return grown;
}

/// Where a new port of the node comes to stand: among the members of `parent` when that is a fan-in
/// port.
const PortList& listOfNewPort(const AddRefWrapper<Node>& node, bool output,
                              const AddRefWrapper<Port>& parent) {
  if (parent && parent->isFanIn()) return *parent->children();
  return output ? node->outputs() : node->inputs();
}

const QString& commandForFace(const AddRefWrapper<Port>& port) {
  return port->isCompoundInternalPort() ? kCompoundCommand : kNodeCommand;
}

/// A member belongs to the node also when that is a compound's.
const QString& commandToDelete(const AddRefWrapper<Port>& port) {
  const bool ofCompound = !port->isMemberFanIn() && port->getParentNode()->isCompound();
  return ofCompound ? kCompoundCommand : kNodeCommand;
}

bool runPortFlag(const AddRefWrapper<Port>& port, unsigned int flag, bool set) {
  Container* container = port->getParentNode()->getContainer();
  if (!container) return false;
  const unsigned int direction = port->getPortIOType() != PortIOType::kInput ? 1 : 0;
  const unsigned int mode = port->isCompoundInternalPort() ? 0 : 1;
  CommandLine line = lineFor(kPortCommand, {containerNameOf(*container), pathOf(port)});
  line.number(direction).number(mode).flag(set ? "-set" : "-clear").number(flag);
  return bool(runLine(line));
}

/// Changes the graph at once, past the host: for a value on its way there is nothing to undo.
void setValuesDirectly(const AddRefWrapper<Port>& port, const QList<QString>& values) {
  const AddRefWrapper<Node> node = port->getParentNode();
  const ChangeBracket bracket =
      node->getContainer()->makeChangeBracket(node->getParentCompound().get());
  const StringArray texts = ORV_v1::fromQStringList(values);
  const ORV_v1::Namable name = port->getFullName();
  if (port->isCompoundInternalPort()) {
    ModifyCompoundPortCommand command(port);
    command.setPortValues(name.getName(), texts, true);
    command.doit();
  } else {
    ModifyNodePortCommand command;
    command.setPortValues(node, name.getName(), texts, true);
    command.doit();
  }
}

}  // namespace

bool orvVeskCommandHook::createNodePort(const NodeHandle& node, bool output,
                                        const NewPortHints& hints, PortHandle& port) {
  CommandLine line = lineFor(kNodeCommand, Target(node));
  addHints(line, output, hints);
  return runForNewPort(line, listOfNewPort(node, output, port), port);
}

bool orvVeskCommandHook::createCompoundPort(const CompoundHandle& compound, bool output,
                                            const NewPortHints& hints, PortHandle& port) {
  CommandLine line = lineFor(kCompoundCommand, Target(compound));
  addHints(line, output, hints);
  const PortList& list = output ? compound->compoundOutputs() : compound->compoundInputs();
  return runForNewPort(line, list, port);
}

void orvVeskCommandHook::renamePort(const PortHandle& port, const QString& newName) {
  CommandLine line = lineFor(kCompoundCommand, Target(port));
  runLine(line.flag("-renamePort").text(shortNameOf(*port)).text(newName));
}

void orvVeskCommandHook::deletePort(const PortHandle& port) {
  CommandLine line = lineFor(commandToDelete(port), Target(port));
  runLine(line.flag("-deletePort").text(fullNameOf(port)));
}

void orvVeskCommandHook::hidePort(const PortHandle& port, bool hidden) {
  CommandLine line = lineFor(kCompoundCommand, Target(port));
  runLine(line.flag("-hidePort").text(shortNameOf(*port)).boolean(hidden));
}

void orvVeskCommandHook::setPortDataType(int targetKind, const PortHandle& port,
                                         const QString& type) {
  CommandLine line = lineFor(targetKind != 0 ? kCompoundCommand : kNodeCommand, Target(port));
  runLine(line.flag("-setPortDataType").text(shortNameOf(*port)).text(type));
}

void orvVeskCommandHook::movePort(const PortHandle& port, unsigned int index) {
  CommandLine line = lineFor(kCompoundCommand, Target(port));
  runLine(line.flag("-movePort").text(shortNameOf(*port)).number(index));
}

void orvVeskCommandHook::movePortToIONode(const PortHandle& port, const QString& ioNode) {
  CommandLine line = lineFor(kCompoundCommand, Target(port->getParentCompound()));
  runLine(line.flag("-movePortToIONode").text(shortNameOf(*port)).text(ioNode));
}

bool orvVeskCommandHook::setPortFlag(const PortHandle& port, unsigned int flag) {
  return runPortFlag(port, flag, true);
}

bool orvVeskCommandHook::clearPortFlag(const PortHandle& port, unsigned int flag) {
  return runPortFlag(port, flag, false);
}

void orvVeskCommandHook::setPortDefaultValues(const PortHandle& port, const QList<QString>& values,
                                              bool direct) {
  if (direct) return setValuesDirectly(port, values);
  CommandLine line = lineFor(commandForFace(port), Target(port));
  runLine(line.flag("-setPortDefaultValues").text(fullNameOf(port)).texts(values));
}

void orvVeskCommandHook::resetPortDefaultValues(const PortHandle& port) {
  CommandLine line = lineFor(commandForFace(port), Target(port));
  runLine(line.flag("-resetPortDefaultValues").text(fullNameOf(port)));
}
