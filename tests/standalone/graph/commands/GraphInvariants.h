#pragma once

#include <set>
#include <string>

#include "standalone/graph/edits/WireRules.h"
#include "standalone/graph/model/ContainerObject.h"
#include "standalone/graph/types/Conversion.h"

namespace orvlib {

// What holds in every graph.

inline std::string brokenRuleOfPort(const NodeObject& node, PortObject& port) {
  if (port.node() != &node) return port.fullName() + " has another node";
  for (PortObject* peer : port.peers().items()) {
    PortObject& source = port.isInput() ? *peer : port;
    PortObject& target = port.isInput() ? port : *peer;
    if (!peer->peers().contains(&port)) return port.fullPath() + ": one end knows the other";
    if (source.isInput() || !target.isInput()) return port.fullPath() + ": a wrong direction";
    const NodeObject& outside = *peer->node();
    const CompoundObject* there = peer->isInner() ? outside.compound() : outside.parent();
    const CompoundObject* here = port.isInner() ? node.compound() : node.parent();
    if (!here || here != there) return port.fullPath() + ": another level";
    if (!port.node()->container() || !outside.container()) return port.fullPath() + ": outside";
    if (!canConvert(source.valueType(), target.valueType())) return port.fullPath() + ": types";
    if (!source.vertex()->standsBefore(*target.vertex())) return port.fullPath() + ": order";
  }
  if (port.isInput() && port.peers().count() > 1) return port.fullPath() + ": several sources";
  const PortListObject* children = port.madeChildren();
  if (!children) return "";
  for (PortObject* child : children->items()) {
    if (child->above() != &port) return child->fullPath() + ": is not below";
    if (port.isInput() && port.hasPeers() && child->hasPeers()) return port.fullPath() + ": both";
    if (std::string broken = brokenRuleOfPort(node, *child); !broken.empty()) return broken;
  }
  return "";
}

inline std::string brokenRuleOfLevel(CompoundObject& level) {
  std::set<std::string> names;
  for (NodeObject* node : level.nodes().items()) {
    if (!names.insert(node->name()).second) return node->fullPath() + ": name";
    if (level.nodes().find(node->name()) != node) return node->fullPath() + ": lookup";
    if (node->parent() != &level) return node->fullPath() + ": parent";
    const bool shows = node->nodeKind() == NodeKind::Input || node->nodeKind() == NodeKind::Output;
    const NodeObject& owner = shows ? *level.node() : *node;
    std::set<std::string> ports;
    for (PortListObject* list : {&node->inputList(), &node->outputList()}) {
      for (PortObject* port : list->items()) {
        if (!ports.insert(port->name()).second) return port->fullPath() + ": name";
        if (std::string broken = brokenRuleOfPort(owner, *port); !broken.empty()) return broken;
        if (shows || !port->twin()) continue;
        if (std::string broken = brokenRuleOfPort(owner, *port->twin()); !broken.empty()) {
          return broken;
        }
      }
    }
    if (!node->compound()) continue;
    if (node->compound()->inputs().count() != node->inputList().count()) return "faces";
    if (std::string broken = brokenRuleOfLevel(*node->compound()); !broken.empty()) return broken;
  }
  return "";
}

/// What is wrong with the graph; empty when nothing is.
inline std::string brokenRule(ContainerObject& graph) {
  return brokenRuleOfLevel(*graph.top().compound());
}

}  // namespace orvlib
