#pragma once

#include <algorithm>
#include <random>

#include "standalone/graph/types/Conversion.h"
#include "tests/standalone/graph/evaluation/EvaluationFixture.h"

namespace orvlib {

/// Edits a graph at random, the same way for the same seed. Each edit is one undo step.
class RandomEdits {
 public:
  RandomEdits(ContainerObject& graph, unsigned seed) : graph_(graph), random_(seed) {}

  /// One edit, undo or redo, in a change bracket. It may come to nothing.
  void doOne() {
    const ChangeHold hold(graph_);
    collect();
    switch (below(8)) {
      case 0:
        undo();
        break;
      case 1:
        redo();
        break;
      default:
        edit();
    }
  }

  /// The nodes in the graph.
  std::vector<NodeObject*> nodes() {
    collect();
    return nodes_;
  }

 private:
  unsigned below(std::size_t count) { return static_cast<unsigned>(random_() % count); }

  template <class T>
  T pick(const std::vector<T>& from) {
    return from[below(from.size())];
  }

  void collect() {
    nodes_ = {&graph_.top()};
    ports_.clear();
    for (std::size_t i = 0; i < nodes_.size(); ++i) {
      NodeObject& node = *nodes_[i];
      const CompoundObject* level = node.compound();
      if (level)
        nodes_.insert(nodes_.end(), level->nodes().items().begin(), level->nodes().items().end());
      for (PortListObject* list : {&node.inputList(), &node.outputList()}) {
        for (PortObject* port : list->items()) {
          addPort(*port);
          if (port->twin()) addPort(*port->twin());
        }
      }
    }
  }

  void addPort(PortObject& port) {
    ports_.push_back(&port);
    const PortListObject* children = below(4) ? port.madeChildren() : port.childList();
    if (!children) return;
    for (PortObject* child : children->items()) addPort(*child);
  }

  void undo() {
    if (done_.empty()) return;
    EXPECT_TRUE(done_.back().revert());
    undone_.push_back(std::move(done_.back()));
    done_.pop_back();
  }

  void redo() {
    if (undone_.empty()) return;
    EXPECT_TRUE(undone_.back().reapply());
    done_.push_back(std::move(undone_.back()));
    undone_.pop_back();
  }

  void edit() {
    Transaction edits;
    if (!build(edits) || edits.empty()) {
      edits.rollback();
      return;
    }
    done_.push_back(std::move(edits));
    // They stay alive, so that no new object has the address of one that was seen before.
    for (Transaction& one : undone_) dropped_.push_back(std::move(one));
    undone_.clear();
  }

  bool build(Transaction& edits) {
    if (ports_.empty()) return addNode(edits);
    switch (below(20)) {
      case 0:
      case 1:
        return addNode(edits);
      case 2:
        return below(3) > 0 || removeNode(edits);
      case 3:
      case 4:
        return setValue(edits, *pick(ports_));
      case 5:
        return setNodeState(edits);
      case 6:
        return insertPort(edits);
      case 7:
        return runRemovePort(edits, *pick(ports_));
      case 8:
        return movePort(edits, *pick(ports_));
      case 9:
        return setType(edits, *pick(ports_));
      case 10:
        return disconnect(edits, *pick(ports_));
      case 11:
        return pairState(edits);
      case 12:
        return watch(edits, *pick(ports_));
      case 13:
        return moveNode(edits);
      default:
        return connectTwo(edits);
    }
  }

  bool addNode(Transaction& edits) {
    static const std::vector<std::string> types{
        "core::math::add",         "core::vector::vector3::add",
        "core::array::build",      "core::array::build_vector3",
        "core::array::sum",        "core::string::join",
        "core::math::integer::add"};
    const NodeFactory factory(graph_.core());
    CompoundObject& level = *pickLevel();
    const std::string name = level.nodes().uniqueName("node");
    NodeRef node = factory.makeCompound(name);
    const unsigned kind = below(10);
    if (kind == 0) node = factory.makePlaceholder(*unknownDefinition(), name);
    if (kind > 2) node = factory.makePlain(*graph_.core().findDefinition(pick(types)), name);
    return edits.run(InsertNode{{CompoundRef(&level), node, level.nodes().count()}});
  }

  CompoundObject* pickLevel() {
    std::vector<CompoundObject*> levels;
    for (NodeObject* node : nodes_) {
      if (node->compound()) levels.push_back(node->compound());
    }
    return pick(levels);
  }

  bool removeNode(Transaction& edits) { return runRemoveNode(edits, *pick(nodes_)); }

  bool moveNode(Transaction& edits) {
    NodeObject& node = *pick(nodes_);
    CompoundObject& level = *pickLevel();
    if (!node.parent() || node.compound() || !runIsolate(edits, node)) return false;
    return edits.run(
        MoveNode{NodeRef(&node), CompoundRef(&level), 0, level.nodes().uniqueName("moved")});
  }

  TypeRef pickType() {
    static const std::vector<std::string> types{
        "float", "int", "bool", "vector3", "color4", "string", "array<float>", "array<vector3>"};
    return graph_.core().findType(pick(types));
  }

  Value pickValue(const ValueType& type) {
    Value value = type.defaultValue;
    if (type.isArray()) value = type.element->defaultValue;
    std::visit(
        [this](auto& all) {
          for (auto& each : all) change(each);
        },
        value);
    return value;
  }
  void change(bool& value) { value = below(2) != 0; }
  void change(std::int32_t& value) { value = static_cast<std::int32_t>(below(100)) - 50; }
  void change(float& value) { value = static_cast<float>(below(100)) / 4 - 10; }
  void change(std::string& value) { value = std::to_string(below(100)); }

  bool setValue(Transaction& edits, PortObject& port) {
    if (port.above() || !port.isSettable()) return false;
    std::unique_ptr<const Value> value;
    if (below(4)) value = std::make_unique<const Value>(pickValue(port.valueType()));
    return edits.run(SetPortValue{PortRef(&port), std::move(value)});
  }

  bool setNodeState(Transaction& edits) {
    NodeObject& node = *pick(nodes_);
    const auto state = static_cast<NodeState>(below(3));
    return edits.run(SetState{NodeRef(&node), state, !node.is(state)});
  }

  PortDirection pickDirection() { return below(2) ? PortDirection::Input : PortDirection::Output; }

  bool insertPort(Transaction& edits) {
    NodeObject& node = *pick(nodes_);
    return insertPort(edits, node, pickDirection(), pickType()) != nullptr;
  }

  PortRef insertPort(Transaction& edits, NodeObject& node, PortDirection direction, TypeRef type) {
    const NodeFactory factory(graph_.core());
    const std::string name = node.uniquePortName("port");
    PortRef port = node.compound() ? factory.makeCompoundPort(direction, name, type)
                                   : factory.makePort(direction, name, type);
    const unsigned index = below(node.list(direction).count() + 1);
    return edits.run(InsertPort{{NodeRef(&node), port, index}}) ? port : PortRef();
  }

  bool pairState(Transaction& edits) {
    NodeObject& node = *pickLevel()->node();
    const TypeRef type = pickType();
    const PortRef input = insertPort(edits, node, PortDirection::Input, type);
    const PortRef output =
        insertPort(edits, node, PortDirection::Output, below(3) ? type : pickType());
    return edits.run(PairState{input, output});
  }

  bool movePort(Transaction& edits, PortObject& port) {
    PortObject& outer = port.isInner() && port.twin() ? *port.twin() : port;
    if (port.above()) return false;
    const PortListObject& list = outer.node()->list(outer.direction());
    const unsigned index = below(list.count());
    return index != list.indexOf(&outer) && edits.run(MovePort{PortRef(&outer), index});
  }

  bool setType(Transaction& edits, PortObject& port) {
    PortObject& outer = port.isInner() && port.twin() ? *port.twin() : port;
    const TypeRef type = pickType();
    if (port.above() || type.get() == outer.type().get()) return false;
    // A type that the edit had to be taken back for would end a state that the reference keeps.
    const ValueType& wanted = *ORV_v1::GraphAccess::typeOf(*type);
    if (!mayHaveType(outer, wanted)) return false;
    if (outer.twin() && !mayHaveType(*outer.twin(), wanted)) return false;
    return edits.run(SetPortType(PortRef(&outer), type, nullptr));
  }

  /// Whether the connections of the port fit that type, and none is below it.
  static bool mayHaveType(const PortObject& port, const ValueType& type) {
    if (const PortListObject* children = port.madeChildren()) {
      for (const PortObject* child : children->items()) {
        if (child->hasPeers() || child->madeChildren()) return false;
      }
    }
    return std::ranges::all_of(port.peers().items(), [&](const PortObject* peer) {
      const ValueType& far = peer->valueType();
      return port.isInput() ? canConvert(far, type) : canConvert(type, far);
    });
  }

  bool disconnect(Transaction& edits, PortObject& port) { return runDisconnectAll(edits, port); }

  bool watch(Transaction& edits, PortObject& port) {
    if (WatchPointObject* watched = port.watchPoint()) {
      WatchPointSetup setup = watched->setup();
      setup.enabled = !setup.enabled;
      if (below(2)) return edits.run(SetUpWatchPoint{WatchPointRef(watched), setup});
      return edits.run(SetWatchPoint{PortRef(&port), WatchPointRef()});
    }
    return edits.run(SetWatchPoint{PortRef(&port), WatchPointRef(new WatchPointObject)});
  }

  bool connectTwo(Transaction& edits) {
    for (int tries = 0; tries < 30; ++tries) {
      PortObject& one = *pick(ports_);
      PortObject& other = *pick(ports_);
      if (one.node() == other.node() && !one.isInner() && !other.isInner()) continue;
      if (runConnect(edits, one, other, below(2) ? Occupied::Displace : Occupied::Refuse)) {
        return true;
      }
      edits.rollback();
    }
    return false;
  }

  ContainerObject& graph_;
  std::mt19937 random_;
  std::vector<NodeObject*> nodes_;
  std::vector<PortObject*> ports_;
  std::vector<Transaction> done_;
  std::vector<Transaction> undone_;
  std::vector<Transaction> dropped_;
};

}  // namespace orvlib
