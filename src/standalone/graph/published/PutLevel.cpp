#include <algorithm>

#include "standalone/graph/model/NodeFactory.h"
#include "standalone/graph/published/Level.h"
#include "standalone/graph/published/OuterWires.h"

namespace orvlib {
namespace {

std::unique_ptr<const Value> copyOf(const std::optional<Value>& value) {
  return value ? std::make_unique<const Value>(*value) : nullptr;
}

class Putter {
 public:
  Putter(Transaction& edits, CompoundObject& compound, const TakenLevel& level, LostWires& lost)
      : edits_(edits), compound_(compound), node_(*compound.node()), level_(level), lost_(lost) {}

  bool put() {
    return dropPorts() && putPorts() && putNodes() && putAnnotations() && putMetadata() &&
           putShown() && putStates() && putWires();
  }

 private:
  using Port = TakenLevel::Port;

  bool dropPorts() {
    NameMap<PortDirection> wanted;
    for (const Port& port : level_.ports) wanted.emplace(port.name, port.direction);
    for (PortListObject* list : {&node_.inputList(), &node_.outputList()}) {
      const auto& items = list->items();
      for (PortObject* port : std::vector<PortObject*>(items.begin(), items.end())) {
        const auto entry = wanted.find(port->name());
        const bool stays = entry != wanted.end() && entry->second == port->direction();
        if (!stays && !losePort(edits_, *port, lost_)) return false;
      }
    }
    return true;
  }

  bool putPorts() {
    unsigned int next[] = {0, 0};
    return std::ranges::all_of(level_.ports, [&](const Port& state) {
      return putPort(state, next[state.direction == PortDirection::Output]++);
    });
  }

  bool putPort(const Port& state, unsigned int index) {
    PortObject* port = node_.port(state.name);
    if (!port) return insertPort(state, index);
    if (node_.list(state.direction).indexOf(port) != index &&
        !edits_.run(MovePort{PortRef(port), index})) {
      return false;
    }
    return adaptPort(*port, state);
  }

  /// The very port that the level had, unless it is somewhere else.
  bool insertPort(const Port& state, unsigned int index) {
    PortRef port = state.port;
    NodeObject* holder = port->node();
    if (holder && holder != &node_ && !holder->parent()) {
      if (!edits_.run(RemovePort{{NodeRef(holder), port, 0}})) return false;
    } else if (holder) {
      port = NodeFactory(node_.core()).makeCompoundPort(state.direction, state.name, state.type);
    }
    return edits_.run(InsertPort{{NodeRef(&node_), port, index}}) && adaptPort(*port, state);
  }

  bool adaptPort(PortObject& port, const Port& state) {
    const bool retyped = port.valueType().name != ORV_v1::GraphAccess::typeOf(*state.type)->name;
    const bool fanChanges = ((port.flags() ^ state.flags) & ORV_v1::kPortFanIn) != 0;
    if ((retyped || fanChanges) && !changeType(port, state, retyped)) return false;
    if (port.flags() != state.flags && !edits_.run(SetPortFlags{PortRef(&port), state.flags})) {
      return false;
    }
    return port.metadata() == state.metadata ||
           edits_.run(SetMetadata{PortRef(&port), state.metadata});
  }

  /// With what is connected to the port as far as it can carry the new type.
  bool changeType(PortObject& port, const Port& state, bool retyped) {
    LostWires broken;
    if (!loseWires(edits_, port, broken)) return false;
    if (retyped && !edits_.run(SetPortType(PortRef(&port), state.type, copyOf(state.value)))) {
      return false;
    }
    if (!edits_.run(SetPortFlags{PortRef(&port), state.flags})) return false;
    for (auto wire = broken.rbegin(); wire != broken.rend(); ++wire) {
      const bool top = wire->source.get() == &port || wire->target.get() == &port;
      if (!top || !restoreWire(edits_, *wire)) lost_.push_back(std::move(*wire));
    }
    return true;
  }

  bool putNodes() {
    const auto& items = level_.carrier->compound()->nodes().items();
    const CompoundRef compound(&compound_);
    for (NodeObject* child : std::vector<NodeObject*>(items.begin(), items.end())) {
      if (!edits_.run(MoveNode{NodeRef(child), compound, ~0u, child->name()})) return false;
    }
    return true;
  }

  bool putAnnotations() {
    return std::ranges::all_of(level_.annotations, [&](const AnnotationRef& annotation) {
      return edits_.run(InsertAnnotation{{CompoundRef(&compound_), annotation, ~0u}});
    });
  }

  bool putMetadata() {
    return compound_.metadata() == level_.metadata ||
           edits_.run(SetMetadata{CompoundRef(&compound_), level_.metadata});
  }

  bool putShown() {
    return std::all_of(level_.shown.rbegin(), level_.shown.rend(), [&](const auto& shown) {
      return edits_.run(SetIoNode{PortRef(node_.port(shown.port)), shown.ioNode, shown.index});
    });
  }

  bool putStates() {
    return std::all_of(level_.states.rbegin(), level_.states.rend(), [&](const auto& pair) {
      return edits_.run(
          PairState{PortRef(node_.port(pair.input)), PortRef(node_.port(pair.output))});
    });
  }

  bool putWires() {
    return std::all_of(level_.wires.rbegin(), level_.wires.rend(), [&](const auto& wire) {
      const PortRef source = portOf(wire.source);
      const PortRef target = portOf(wire.target);
      return source != nullptr && target != nullptr &&
             edits_.run(Connect{{source, target, wire.indices}});
    });
  }

  PortRef portOf(const TakenLevel::End& end) {
    if (end.port != nullptr) return end.port;
    std::string_view path = end.face;
    PortRef port(node_.port(path.substr(0, path.find('.')))->twin());
    while (port != nullptr && path.find('.') != path.npos) {
      path.remove_prefix(path.find('.') + 1);
      port = childOf(*port, path.substr(0, path.find('.')));
    }
    return port;
  }

  /// A face that is a fan-in port grows its members as they are needed.
  PortRef childOf(PortObject& port, std::string_view name) {
    if (PortObject* child = port.child(name)) return PortRef(child);
    if (!port.isFanInPort()) return {};
    const TypeRef type = node_.core().elementType(port.valueType());
    if (type == nullptr) return {};
    const PortRef member = NodeFactory(node_.core()).makeMember(name, type);
    const PortPlace place{NodeRef(&node_), member, ~0u, PortRef(&port)};
    return edits_.run(InsertPort{place}) ? member : PortRef();
  }

  Transaction& edits_;
  CompoundObject& compound_;
  NodeObject& node_;
  const TakenLevel& level_;
  LostWires& lost_;
};

}  // namespace

bool putLevel(Transaction& edits, CompoundObject& compound, const TakenLevel& level,
              LostWires& lost) {
  return Putter(edits, compound, level, lost).put();
}

}  // namespace orvlib
