// Calls that make, name, remove, hide and move ports, and set their type, flags and values.

#include <algorithm>

#include "platform/ORV_1_0/QtConversions.h"
#include "tests/hook/road/Calls.h"

using ORV_v1::NewPortHints;
using ORV_v1::PortProperties;

namespace {

void setText(ORV_v1::OptionalStringArray& values, const QList<QString>& texts) {
  ORV_v1::StringArray array;
  for (const QString& text : texts) array.add(text.toUtf8().constData());
  values.setValues(array);
}

PortProperties properties(Caller& caller, bool mayFanIn) {
  PortProperties properties;
  properties.setFlags(caller.any.below(mayFanIn ? 4 : 2));
  if (caller.any.below(2)) setText(properties.defaultValues(), caller.any.values());
  // The metadata of a node are a set like that of a port.
  if (const auto node = caller.any.node()) properties.options() = node->getMetadata();
  return properties;
}

NewPortHints hints(Caller& caller, const QString& name) {
  NewPortHints hints;
  if (caller.any.below(10) != 0) hints.setNameHint(name.toUtf8().constData());
  hints.setTypeHint(caller.any.type().toUtf8().constData());
  if (caller.any.below(2)) hints.setPropertiesHint(properties(caller, true));
  return hints;
}

void createNodePort(Caller& caller) {
  const auto node = caller.any.node();
  if (!node) return;
  RandomObjects::PortHandle port;
  caller.edits().createNodePort(node, caller.any.below(2), hints(caller, caller.any.name()), port);
  if (port) caller.madePorts.push_back(port);
}

/// An array input that takes members, and one member.
void createMember(Caller& caller) {
  auto port = caller.any.fanInPort();
  if (!port) return;
  const QString name = QString::fromUtf8(port->getName()) + '.' + caller.any.name();
  caller.edits().createNodePort(port->getParentNode(), false, hints(caller, name), port);
}

void createCompoundPort(Caller& caller) {
  RandomObjects::PortHandle port;
  caller.edits().createCompoundPort(caller.any.compound(), caller.any.below(2),
                                    hints(caller, caller.any.name()), port);
}

/// Mostly of a compound, which the line is for.
RandomObjects::PortHandle namedPort(Caller& caller) {
  return caller.any.below(8) == 0 ? caller.any.port() : caller.any.compoundPort();
}

void renamePort(Caller& caller) {
  if (const auto port = namedPort(caller)) caller.edits().renamePort(port, caller.any.name());
}

bool isMade(const Caller& caller, const RandomObjects::PortHandle& port) {
  return std::ranges::any_of(caller.madePorts,
                             [&](const auto& made) { return made.get() == port.get(); });
}

/// Mostly one that is not of the node's definition, which keeps its ports.
RandomObjects::PortHandle portToDelete(Caller& caller) {
  switch (caller.any.below(6)) {
    case 0:
      return caller.any.port();
    case 1:
      return caller.any.compoundPort();
    case 2:
    case 3:
      return caller.any.portThat([](const auto& port) { return port->isMemberFanIn(); });
    default:
      return caller.any.portThat([&](const auto& port) { return isMade(caller, port); });
  }
}

void deletePort(Caller& caller) {
  const auto port = portToDelete(caller);
  if (!port) return;
  const bool member = port->isMemberFanIn(), ofCompound = port->getParentNode()->isCompound();
  caller.edits().deletePort(port);
  const auto same = [&](const auto& other) { return other.get() == port.get(); };
  if (caller.any.portThat(same)) return;
  ++caller.worked[member       ? "deletePort of a member"
                  : ofCompound ? "deletePort of a compound"
                               : "deletePort of a node"];
}

void hidePort(Caller& caller) {
  if (const auto port = namedPort(caller)) caller.edits().hidePort(port, caller.any.below(2));
}

void setPortDataType(Caller& caller) {
  const bool ofCompound = caller.any.below(2);
  const auto port = ofCompound ? caller.any.compoundPort() : caller.any.port();
  if (port) caller.edits().setPortDataType(ofCompound, port, caller.any.type());
}

void movePort(Caller& caller) {
  if (const auto port = namedPort(caller)) caller.edits().movePort(port, caller.any.below(5));
}

void movePortToIONode(Caller& caller) {
  const auto port = caller.any.innerFace();
  if (!port) return;
  // An input comes out of its inner face.
  const bool ofInput = port->getPortIOType() == ORV_v1::PortIOType::kOutput;
  const std::string_view shower = ofInput ? "input" : "output";
  std::vector<QString> names;
  for (const auto& node : port->getParentCompound()->getChildNodes()) {
    if (node->getTypeName().toChar() == shower) names.push_back(QString::fromUtf8(node->getName()));
  }
  const QString name = names.empty() ? caller.any.name() : caller.any.one(names);
  caller.edits().movePortToIONode(port, name);
}

void clearPortFlag(Caller& caller) {
  if (const auto port = caller.any.port()) caller.edits().clearPortFlag(port, caller.any.below(8));
}

void setPortFlag(Caller& caller) {
  if (const auto port = caller.any.port()) caller.edits().setPortFlag(port, caller.any.below(8));
}

QList<QString> valuesFor(Caller& caller, const RandomObjects::PortHandle& port) {
  ORV_v1::StringArray present;
  if (caller.any.below(3) == 0 || !port->getPortDefaultValues(present)) return caller.any.values();
  QList<QString> values;
  for (unsigned i = 0; i < present.size(); ++i) {
    values.append(QString::number(caller.any.below(64) / 8.0));
  }
  return values;
}

void setPortDefaultValues(Caller& caller) {
  const bool input = caller.any.below(4) != 0;
  const auto port = input ? caller.any.destination(caller.any.compound()) : caller.any.port();
  if (port) caller.edits().setPortDefaultValues(port, valuesFor(caller, port), false);
}

/// A drag: values on their way, and at its end the same as a line.
void dragPortValues(Caller& caller) {
  const auto port = caller.any.destination(caller.any.compound());
  if (!port || caller.road.hasOpenChunk()) return;
  QList<QString> values;
  for (int i = 0; i < 3; ++i) {
    const QList<QString> next = valuesFor(caller, port);
    caller.edits().setPortDefaultValues(port, next, true);
    ORV_v1::StringArray taken;
    if (port->getPortDefaultValues(taken)) values = ORV_v1::toQStringList(taken);
  }
  caller.edits().setPortDefaultValues(port, values, false);
  caller.stepsToKeep = caller.road.steps();
}

void resetPortDefaultValues(Caller& caller) {
  if (const auto port = caller.any.port()) caller.edits().resetPortDefaultValues(port);
}

constexpr Call kCalls[] = {
    {"createNodePort", createNodePort, 7},
    {"createNodePort of a member", createMember, 3},
    {"createCompoundPort", createCompoundPort, 6},
    {"renamePort", renamePort, 5},
    {"deletePort", deletePort, 10},
    {"hidePort", hidePort, 4},
    {"setPortDataType", setPortDataType, 6},
    {"movePort", movePort, 4},
    {"movePortToIONode", movePortToIONode, 5},
    {"clearPortFlag", clearPortFlag, 4},
    {"setPortFlag", setPortFlag, 4},
    {"setPortDefaultValues", setPortDefaultValues, 8},
    {"setPortDefaultValues at once", dragPortValues, 4, "the values on their way are no lines"},
    {"resetPortDefaultValues", resetPortDefaultValues, 4},
};

}  // namespace

std::span<const Call> portCalls() { return kCalls; }
