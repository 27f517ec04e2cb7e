#pragma once

#include <map>
#include <string>
#include <vector>

#include "standalone/graph/model/AnnotationObject.h"
#include "standalone/graph/model/ContainerObject.h"
#include "standalone/graph/model/StateFlagsObject.h"
#include "standalone/graph/model/WatchPointObject.h"
#include "standalone/graph/texts/ListText.h"
#include "standalone/graph/texts/PropertiesText.h"
#include "standalone/graph/types/ValueText.h"

namespace orvlib {

using Facts = std::vector<std::string>;

/// What a copy carries.
enum class FromOutside { Left, Kept };

/// All that is said of some nodes and annotations of a level, read from the objects and not from
/// what they are stored as. The nodes are numbered, so that a copy under other names has the same
/// facts; those in a compound among them have their names.
class SubgraphFacts {
 public:
  /// With `FromOutside::Kept` the connections into the nodes from others count, and else the
  /// members of fan-in ports that are there for them do not count either.
  SubgraphFacts(const std::vector<NodeObject*>& nodes, const std::vector<AnnotationObject*>& notes,
                FromOutside outside)
      : keepsOutside_(outside == FromOutside::Kept) {
    for (NodeObject* node : nodes) numbers_.emplace(node, "#" + std::to_string(numbers_.size()));
    for (NodeObject* node : nodes) addNode(*node);
    for (AnnotationObject* note : notes) addAnnotation("note", *note, false);
  }

  const Facts& all() const { return facts_; }

 private:
  void add(std::string fact) { facts_.push_back(std::move(fact)); }

  bool isChosen(const NodeObject& node) const { return numbers_.contains(&node); }

  /// "#1/inner/add".
  std::string pathOf(const NodeObject& node) const {
    const auto number = numbers_.find(&node);
    if (number != numbers_.end()) return number->second;
    const CompoundObject* level = node.parent();
    return (level ? pathOf(*level->node()) : "") + "/" + node.name();
  }

  std::string pathOf(const PortObject& port) const {
    return pathOf(*port.node()) + (port.isInner() ? " inside." : ".") + port.fullName();
  }

  void addMetadata(const std::string& of, const Properties& set) {
    if (!set.all().empty()) add(of + " has the metadata " + writeProperties(set));
  }

  void addAnnotation(const std::string& where, AnnotationObject& note, bool withName) {
    const std::string kind = note.kind() == AnnotationKind::Backdrop ? " backdrop" : " sticky";
    const std::string name = where + kind + (withName ? " " + note.name() : "");
    add(name);
    addMetadata(name, note.metadata());
  }

  void addNode(NodeObject& node) {
    const std::string path = pathOf(node);
    add(path + " is a " + std::to_string(static_cast<int>(node.nodeKind())) + " " +
        node.typeName());
    for (const auto state : {NodeState::Enabled, NodeState::Frozen, NodeState::Bypassed}) {
      add(path + " state " + std::to_string(node.is(state)));
    }
    addMetadata(path, node.metadata());
    const bool shows = !node.hasOwnPorts() && !node.compound();
    for (const PortListObject* list : {&node.inputList(), &node.outputList()}) {
      for (PortObject* port : list->items()) {
        if (shows) {
          addShown(node, *port);
        } else {
          addPort(*port);
        }
      }
    }
    if (node.compound()) addLevel(*node.compound());
  }

  /// What a chosen node shows are ports of a level that is not copied.
  void addShown(const NodeObject& node, const PortObject& port) {
    if (!isChosen(node)) add(pathOf(node) + " shows " + port.name());
  }

  void addLevel(CompoundObject& level) {
    const std::string path = pathOf(*level.node());
    addMetadata(path + " as a compound", level.metadata());
    add(path + " comes from '" + level.origin() + "'");
    for (NodeObject* node : level.nodes().items()) addNode(*node);
    for (AnnotationObject* note : level.annotations().items()) addAnnotation(path, *note, true);
  }

  void addPort(PortObject& port) {
    add(pathOf(port) + " is a " + (port.isInput() ? "input " : "output ") + port.valueType().name);
    if (const PortObject* partner = port.statePartner()) {
      add(pathOf(port) + " holds the state of " + partner->name());
    }
    addFace(port);
    if (port.twin()) addFace(*port.twin());
  }

  /// What may also be said of a component or a member.
  void addFace(PortObject& port) {
    const std::string path = pathOf(port);
    if (port.flags() != 0) add(path + " has the flags " + std::to_string(port.flags()));
    if (const Value* value = port.ownValue()) add(path + " = " + writeList(printValue(*value)));
    addMetadata(path, port.metadata());
    addWatchPoint(path, port.watchPoint());
    addWires(port);
    const PortListObject* children = port.madeChildren();
    if (!children) return;
    for (PortObject* child : children->items()) {
      if (child->kind() == PortKind::Member && !isKept(*child)) continue;
      if (child->kind() == PortKind::Member) add(pathOf(*child) + " is a member");
      addFace(*child);
    }
  }

  void addWatchPoint(const std::string& path, WatchPointObject* watched) {
    if (!watched) return;
    add(path + (watched->setup().enabled ? " is watched" : " would be watched"));
    for (const WatchPointParameter& parameter : watchPointParameters()) {
      add(path + " " + parameter.name + " " + parameter.get(watched->setup()));
    }
    addMetadata(path + " watch point", watched->metadata());
  }

  /// Whether a port stands outside of what is chosen, at its level.
  bool isOutside(const PortObject& port) const {
    for (const NodeObject* node = port.node(); node;) {
      if (isChosen(*node)) return false;
      const CompoundObject* level = node->parent();
      node = level ? level->node() : nullptr;
    }
    return true;
  }

  bool isKept(const PortObject& member) const {
    return keepsOutside_ || !member.source() || !isOutside(*member.source());
  }

  /// The connections in their order at each end.
  void addWires(const PortObject& port) {
    for (const PortObject* peer : port.peers().items()) {
      const bool outside = isOutside(*peer);
      if (outside && !(port.isInput() && keepsOutside_)) continue;
      add(pathOf(port) + (port.isInput() ? " <- " : " -> ") +
          (outside ? peer->fullPath() : pathOf(*peer)));
    }
  }

  bool keepsOutside_;
  std::map<const NodeObject*, std::string> numbers_;
  Facts facts_;
};

}  // namespace orvlib
