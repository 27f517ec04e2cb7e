// Calls that make, name, remove, connect, publish and regroup nodes.

#include "platform/ORV_1_0/AnnotationList.h"
#include "platform/ORV_1_0/NodeList.h"
#include "tests/hook/road/Calls.h"

using ORV_v1::NodeFlags;
using ORV_v1::NodeList;

namespace {

/// A port of the level by the name that `-connectTo` takes, now and then another text or none.
QString connectTo(Caller& caller, const RandomObjects::CompoundHandle& level) {
  if (caller.any.below(3) != 0) return {};
  const auto port = caller.any.source(level);
  if (!port || caller.any.below(10) == 0) return caller.any.any();
  const QString name = QString::fromUtf8(port->getFullName().getName());
  if (port->isCompoundInternalPort()) return name;
  return QString::fromUtf8(port->getParentNode()->getName()) + '.' + name;
}

void addIONode(Caller& caller) {
  const auto level = caller.any.compound();
  const auto kind = caller.any.below(2) ? NodeFlags::kInputNode : NodeFlags::kOutputNode;
  caller.edits().addIONode(level, kind, connectTo(caller, level));
}

/// Two that compute, or now and then any number of any kind.
void connectNodes(Caller& caller) {
  const auto level = caller.any.compound();
  if (caller.any.below(4) == 0) {
    return void(caller.edits().connectNodes(*caller.any.someNodes(level, false)));
  }
  const auto two = NodeList::createNew(level.get());
  for (unsigned tries = 0; two->size() < 2 && tries < 20; ++tries) {
    const auto node = caller.any.nodeOf(level);
    if (node && node->inputs().size() > 0 && node->outputs().size() > 0) two->add(node);
  }
  caller.edits().connectNodes(*two);
}

void renameNode(Caller& caller) {
  if (const auto node = caller.any.node()) caller.edits().renameNode(node, caller.any.name());
}

void publish(Caller& caller) {
  const std::string name = caller.any.below(4) == 0 ? caller.any.brief().toStdString() : "soft";
  const std::string library = caller.any.below(4) == 0 ? caller.any.brief().toStdString() : "";
  const std::string description = caller.any.any().toStdString();
  caller.edits().publish(caller.any.compound(), name.c_str(), library.c_str(), description.c_str(),
                         caller.any.below(4) != 0);
}

void publishGraph(Caller& caller) {
  const std::string description = caller.any.any().toStdString();
  const char* file = caller.any.below(4) == 0 ? "graph.yaml" : nullptr;
  caller.edits().publishGraph(caller.any.compound(), "whole", "", description.c_str(), file);
}

void setIsReferenced(Caller& caller) {
  caller.edits().setIsReferenced(caller.any.compound(), caller.any.below(2));
}

void resetToFactory(Caller& caller) { caller.edits().resetToFactory(caller.any.compound()); }

void createCompound(Caller& caller) {
  const auto level = caller.any.compound();
  const auto nodes = caller.any.someNodes(level, false);
  const auto annotations = caller.any.someAnnotations(level);
  RandomObjects::CompoundHandle made;
  caller.edits().createCompound(caller.any.name().toStdString().c_str(),
                                {level, nodes.get(), annotations.get()}, made);
}

void explodeCompounds(Caller& caller) {
  const auto level = caller.any.compound();
  const auto list = caller.any.someNodes(level, true);
  NodeList* compounds = list.get();
  caller.edits().explodeCompounds(level, compounds);
}

void connectPorts(Caller& caller) {
  const auto level = caller.any.compound();
  const auto source = caller.any.source(level);
  const auto destination = caller.any.destination(level);
  if (source && destination) {
    caller.edits().connectPorts(source, destination, caller.any.below(3) == 0);
  }
}

void disconnectPorts(Caller& caller) {
  const auto level = caller.any.compound();
  const auto connected = caller.any.connectedDestination(level);
  if (connected && caller.any.below(10) != 0) {
    caller.edits().disconnectPorts(connected->connectedTo()[0u], connected);
    return;
  }
  const auto source = caller.any.source(level);
  const auto destination = caller.any.destination(level);
  if (source && destination) caller.edits().disconnectPorts(source, destination);
}

constexpr const char* kPublished = "what is published is not taken back";

constexpr Call kCalls[] = {
    {"addNode", addNode, 8},
    {"addIONode", addIONode, 3},
    {"connectNodes", connectNodes, 4},
    {"renameNode", renameNode, 5},
    {"removeNode", removeNode, 5},
    {"publish", publish, 1, kPublished},
    {"publishGraph", publishGraph, 1, kPublished},
    {"setIsReferenced", setIsReferenced, 2, "it is an edit of the library, without undo"},
    {"resetToFactory", resetToFactory, 2, "it is an edit of the library, without undo"},
    {"createCompound", createCompound, 5},
    {"explodeCompounds", explodeCompounds, 4},
    {"connectPorts", connectPorts, 10},
    {"disconnectPorts", disconnectPorts, 5},
};

}  // namespace

void addNode(Caller& caller) {
  const auto level = caller.any.compound();
  caller.edits().addNode(level, caller.any.nodeType(), connectTo(caller, level));
}

void removeNode(Caller& caller) {
  if (const auto node = caller.any.node()) caller.edits().removeNode(node);
}

std::span<const Call> nodeCalls() { return kCalls; }
