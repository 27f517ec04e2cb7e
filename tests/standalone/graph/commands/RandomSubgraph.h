#pragma once

#include <gtest/gtest.h>

#include "platform/ORV_1_0/CopyCommand.h"
#include "standalone/graph/edits/Wiring.h"
#include "tests/standalone/graph/commands/RandomCommands.h"
#include "tests/standalone/graph/commands/SubgraphFacts.h"

namespace orvlib {

/// A graph of random content, and some of the nodes and annotations of one of its levels, the same
/// ones for the same seed.
class RandomSubgraph {
 public:
  explicit RandomSubgraph(unsigned seed) : random_(seed) {
    graph.publishUuid("random-" + std::to_string(seed));
    CompoundObject& top = *graph.top().compound();
    RandomCommands commands(graph, seed);
    for (int i = 0; i < 150; ++i) commands.next();
    while (top.nodes().count() < 3) addNode(top);
    collect(top, levels);
    for (CompoundObject* one : levels) {
      decorate(*one);
      addFanIn(*one);
    }
    choose();
  }

  std::string path() const { return level->node()->fullPath(); }

  /// Puts what is chosen on the clipboard.
  void copy() const {
    ORV_v1::CopyCommand command;
    ASSERT_TRUE(command.setParentCompound(&graph, path().c_str()));
    for (const NodeObject* node : nodes) ASSERT_TRUE(command.addSourceNode(node->getName()));
    for (const AnnotationObject* note : notes) {
      ASSERT_TRUE(command.addSourceAnnotation(note->getName()));
    }
    ASSERT_TRUE(command.doit());
  }

  Facts facts(FromOutside outside) const { return SubgraphFacts(nodes, notes, outside).all(); }

  CompoundObject& anyLevel() { return *levels[below(levels.size())]; }

  mutable ContainerObject graph{"standard"};

  /// All levels of the graph, the top one first.
  std::vector<CompoundObject*> levels;

  /// What is chosen, in the order of its level.
  CompoundObject* level = nullptr;
  std::vector<NodeObject*> nodes;
  std::vector<AnnotationObject*> notes;

 private:
  unsigned below(std::size_t count) { return static_cast<unsigned>(random_() % count); }
  bool isOneIn(unsigned count) { return below(count) == 0; }

  /// A node that adds up what some others give.
  void addFanIn(CompoundObject& to) {
    const auto sources = to.nodes().count();
    addNode(to, "core::array::sum");
    PortObject& fanIn = *to.nodes().at(sources)->inputList().at(0);
    for (unsigned i = 0; i < sources; ++i) {
      const PortListObject& outputs = to.nodes().at(i)->outputList();
      if (outputs.count() == 0 || to.nodes().at(i)->nodeKind() != NodeKind::Plain) continue;
      Transaction edits;
      if (!runConnect(edits, *outputs.at(0), fanIn, Occupied::Refuse)) edits.rollback();
    }
  }

  void addNode(CompoundObject& to, const char* type = "core::vector::vector3::add") {
    const auto definition = graph.core().findDefinition(type);
    const NodeRef node =
        NodeFactory(graph.core()).makePlain(*definition, to.nodes().uniqueName("node"));
    run(InsertNode{{CompoundRef(&to), node, to.nodes().count()}});
  }

  static void collect(CompoundObject& from, std::vector<CompoundObject*>& found) {
    found.push_back(&from);
    for (NodeObject* node : from.nodes().items()) {
      if (node->compound()) collect(*node->compound(), found);
    }
  }

  template <class One>
  void run(One edit) {
    ASSERT_TRUE(edits_.run(std::move(edit)));
  }

  Properties anyMetadata() {
    static const std::vector<std::string> kTexts = {"plain", "two words",   "",
                                                    "a,{b}", "\"q\"\\\n\r", "\u00e4"};
    Properties set;
    for (unsigned count = 1 + below(3); count > 0; --count) {
      std::vector<std::string> values;
      while (values.empty() || isOneIn(3)) values.push_back(kTexts[below(kTexts.size())]);
      set.set("key " + std::to_string(below(4)), std::move(values));
    }
    return set;
  }

  template <class Object>
  void describe(Object* object) {
    if (isOneIn(4)) run(SetMetadata{ORV_v1::AddRefWrapper<Object>(object), anyMetadata()});
  }

  /// Adds what the commands do not make.
  void decorate(CompoundObject& one) {
    if (one.node()->parent() && isOneIn(3)) {
      one.addStatePorts("before", "after", graph.core().findType("float"));
    }
    if (one.node()->parent() && isOneIn(4)) run(SetOrigin{CompoundRef(&one), "my::own", false});
    describe(&one);
    for (NodeObject* node : one.nodes().items()) decorate(*node);
    while (isOneIn(2)) {
      const auto kind = isOneIn(2) ? AnnotationKind::Backdrop : AnnotationKind::StickyNote;
      const AnnotationRef note(new AnnotationObject(kind, one.annotations().uniqueName("note")));
      run(InsertAnnotation{{CompoundRef(&one), note, one.annotations().count()}});
      describe(note.get());
    }
  }

  void decorate(NodeObject& node) {
    describe(&node);
    if (node.nodeKind() == NodeKind::Plain && isOneIn(4)) addOwnPort(node);
    for (const auto state : {NodeState::Enabled, NodeState::Frozen, NodeState::Bypassed}) {
      if (isOneIn(5)) run(SetState{NodeRef(&node), state, !node.is(state)});
    }
    if (!node.hasOwnPorts() && !node.compound()) return;
    for (const PortListObject* list : {&node.inputList(), &node.outputList()}) {
      for (PortObject* port : list->items()) {
        decorate(*port);
        if (port->twin() && isOneIn(2)) watch(*port->twin());
      }
    }
  }

  void decorate(PortObject& port) {
    if (isOneIn(3)) setValue(port);
    describe(&port);
    if (isOneIn(4)) watch(port);
    if (isOneIn(8)) run(SetPortFlags{PortRef(&port), port.flags() ^ 12u});
    PortListObject* children = isOneIn(3) ? port.childList() : port.madeChildren();
    if (!children) return;
    for (PortObject* child : children->items()) {
      if (isOneIn(2)) describe(child);
      if (isOneIn(5)) watch(*child);
    }
  }

  void addOwnPort(NodeObject& node) {
    const auto direction = isOneIn(2) ? PortDirection::Input : PortDirection::Output;
    const TypeRef type = graph.core().findType("color3");
    const PortRef port =
        NodeFactory(graph.core()).makePort(direction, node.uniquePortName("own"), type);
    run(InsertPort{{NodeRef(&node), port, below(node.list(direction).count() + 1)}});
  }

  void setValue(PortObject& port) {
    if (!port.isSettable() || port.kind() == PortKind::Component) return;
    Value value = port.defaultValue();
    std::visit([this](auto& scalars) { fillAny(scalars); }, value);
    run(SetPortValue{PortRef(&port), std::make_unique<const Value>(std::move(value))});
  }
  void fillAny(Booleans& all) {
    for (bool& one : all) one = isOneIn(2);
  }
  void fillAny(Integers& all) {
    for (auto& one : all) one = static_cast<std::int32_t>(random_());
  }
  void fillAny(Floats& all) {
    for (auto& one : all) one = static_cast<float>(below(1000000)) / 7.0F - 1000.0F;
  }
  void fillAny(Texts& all) {
    for (auto& one : all) one = "\"\\\n " + std::to_string(below(100));
  }

  void watch(PortObject& port) {
    if (!port.watchPoint()) {
      run(SetWatchPoint{PortRef(&port), WatchPointRef(new WatchPointObject)});
    }
    WatchPointSetup setup;
    setup.enabled = isOneIn(2);
    for (const WatchPointParameter& parameter : watchPointParameters()) {
      if (isOneIn(3)) continue;
      const auto& choices = parameter.choices;
      const std::string number = std::to_string(1 + below(20));
      const char* choice = choices.empty() ? number.c_str() : choices[below(choices.size())].value;
      EXPECT_TRUE(setup.set(parameter.name, choice));
    }
    run(SetUpWatchPoint{WatchPointRef(port.watchPoint()), setup});
    describe(port.watchPoint());
  }

  void choose() {
    // The top has the most.
    level = isOneIn(2) ? levels.front() : &anyLevel();
    if (level->nodes().count() == 0) level = levels.front();
    for (NodeObject* node : level->nodes().items()) {
      if (nodes.empty() || !isOneIn(3)) nodes.push_back(node);
    }
    for (AnnotationObject* note : level->annotations().items()) {
      if (!isOneIn(3)) notes.push_back(note);
    }
  }

  std::mt19937 random_;
  Transaction edits_;
};

}  // namespace orvlib
