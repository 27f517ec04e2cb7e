#pragma once

#include "hook/CommandLine.h"
#include "platform/ORV_1_0/AddRefWrapper.h"
#include "platform/ORV_1_0/Compound.h"
#include "platform/ORV_1_0/Node.h"
#include "platform/ORV_1_0/Port.h"
#include "platform/ORV_1_0/QtConversions.h"

/// The two names by which a command finds what a line is about: the graph, and the path of a node.
struct Target {
  /// A node as it is, the node of a compound, the node that has a port.
  explicit Target(const ORV_v1::AddRefWrapper<ORV_v1::Node>& node);
  explicit Target(const ORV_v1::AddRefWrapper<ORV_v1::Compound>& compound);
  explicit Target(const ORV_v1::AddRefWrapper<ORV_v1::Port>& port);

  Target(const ORV_v1::Namable& containerName, const ORV_v1::Namable& nodePath);

  ORV_v1::Namable container;
  ORV_v1::Namable path;
};

ORV_v1::Namable containerNameOf(ORV_v1::Container& container);
ORV_v1::Namable pathOf(const ORV_v1::AddRefWrapper<ORV_v1::Node>& node);
ORV_v1::Namable pathOf(const ORV_v1::AddRefWrapper<ORV_v1::Port>& port);

/// The port's path below its node.
ORV_v1::Namable fullNameOf(const ORV_v1::AddRefWrapper<ORV_v1::Port>& port);

/// The object's own name; valid while the object lives unchanged.
inline const char* shortNameOf(const ORV_v1::Namable& object) { return object.getName(); }

/// The own names of all that the list holds, in its order.
template <class List>
QList<QString> shortNamesOf(const List& list) {
  QList<QString> names;
  for (const auto& object : list) names.append(ORV_v1::toQString(shortNameOf(*object)));
  return names;
}

/// A line about the target: the command, the graph and the path.
CommandLine lineFor(const QString& command, const Target& target);

/// For a line that names its target behind its flags.
void addTarget(CommandLine& line, const Target& target);
