#include "hook/Target.h"

#include "platform/ORV_1_0/Container.h"

using ORV_v1::AddRefWrapper;
using ORV_v1::Compound;
using ORV_v1::Namable;
using ORV_v1::Node;
using ORV_v1::Port;

Target::Target(const Namable& containerName, const Namable& nodePath)
    : container(containerName), path(nodePath) {}

Target::Target(const AddRefWrapper<Node>& node)
    : container(containerNameOf(*node->getContainer())), path(pathOf(node)) {}

Target::Target(const AddRefWrapper<Compound>& compound) : Target(compound->getAsNode()) {}

Target::Target(const AddRefWrapper<Port>& port) : Target(port->getParentNode()) {}

Namable containerNameOf(ORV_v1::Container& container) { return container.getContainerName(); }

Namable pathOf(const AddRefWrapper<Node>& node) { return node->getFullPathName(); }

Namable pathOf(const AddRefWrapper<Port>& port) { return port->getFullPathName(); }

Namable fullNameOf(const AddRefWrapper<Port>& port) { return port->getFullName(); }

CommandLine lineFor(const QString& command, const Target& target) {
  CommandLine line(command);
  addTarget(line, target);
  return line;
}

void addTarget(CommandLine& line, const Target& target) {
  line.text(target.container).text(target.path);
}
