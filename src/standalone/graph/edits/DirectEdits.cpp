// What graph objects let a caller change without a command. Each is one transaction that nobody
// keeps.

#include "standalone/graph/edits/FaultPoints.h"
#include "standalone/graph/edits/Wiring.h"
#include "standalone/graph/model/ChangeHold.h"
#include "standalone/graph/model/NameRules.h"
#include "standalone/graph/model/NodeExtras.h"

namespace orvlib {
namespace {

/// Runs `change` with a transaction, in a bracket when the node is in a graph. What it has done is
/// taken back when it says false.
template <class Change>
bool runDirect(NodeObject* node, Change change) {
  ContainerObject* container = node ? node->container() : nullptr;
  std::optional<ChangeHold> hold;
  if (container) hold.emplace(*container);
  Transaction edits;
  if (change(edits)) return true;
  edits.rollback();
  return false;
}

bool isText(const char* text) { return text && *text; }

/// Whether the port of a compound is in no graph, and has nothing but its name and this type.
bool isAsMade(const PortObject& port, const TypeRef& type) {
  const PortObject* inner = port.twin();
  return !port.node() && port.type().get() == type.get() && port.flags() == 0 && !port.ownValue() &&
         port.metadata().empty() && !port.watchPoint() && inner && !inner->watchPoint();
}

FaultPoint kAddConnection("Port addConnection");
FaultPoint kAddStatePorts("Compound addStatePorts");
FaultPoint kRemovePort("Compound removePort");

}  // namespace

void NodeObject::setName(const char* wanted) {
  if (!isText(wanted) || !parent_) return;
  const std::string clean = cleanName(wanted);
  if (clean == name_) return;
  runDirect(this, [&](Transaction& edits) {
    return edits.run(RenameNode{NodeRef(this), parent_->nodes().uniqueName(clean)});
  });
}

void NodeObject::stateFlagChanged(unsigned int index) {
  if (index >= StateFlagsObject::kCount || !extras_ || !extras_->stateFlags) return;
  runDirect(this, [&](Transaction& edits) {
    const bool on = extras_->stateFlags->isOn(index);
    return edits.run(SetState{NodeRef(this), static_cast<NodeState>(index), on});
  });
}

void CompoundObject::setName(const char* wanted) {
  if (node_) node_->setName(wanted);
}

void AnnotationObject::setName(const char* wanted) {
  if (!isText(wanted) || !parent_) return;
  const std::string clean = cleanName(wanted);
  if (clean == name_) return;
  runDirect(parent_->node(), [&](Transaction& edits) {
    return edits.run(
        RenameAnnotation{AnnotationRef(this), parent_->annotations().uniqueName(clean)});
  });
}

void PortObject::setName(const char* wanted) {
  PortObject& port = shared();
  NodeObject* owner = port.node();
  if (!isText(wanted) || !owner || port.isFixed()) return;
  const std::string clean = cleanName(wanted);
  if (clean == name()) return;
  runDirect(owner, [&](Transaction& edits) {
    std::string free =
        port.above_ ? port.above_->madeChildren()->uniqueName(clean) : owner->uniquePortName(clean);
    return edits.run(RenamePort{PortRef(&port), std::move(free)});
  });
}

void PortObject::setFlag(ORV_v1::PortFlags bit) {
  runDirect(node(), [&](Transaction& edits) {
    return edits.run(SetPortFlags{PortRef(this), flags() | bit});
  });
}

void PortObject::clearFlag(ORV_v1::PortFlags bit) {
  runDirect(node(), [&](Transaction& edits) {
    return edits.run(SetPortFlags{PortRef(this), flags() & ~static_cast<std::uint32_t>(bit)});
  });
}

/// The latest state ports that were removed, when both are gone and as they were made; else fresh
/// ones are wanted, and the former ones will not be asked for any more.
CompoundObject::StatePorts CompoundObject::takeFormerStatePorts(const std::string& inputName,
                                                                const TypeRef& type) {
  StatePorts ports;
  if (formerStatePorts_.empty()) return ports;
  ports = std::move(formerStatePorts_.back());
  formerStatePorts_.pop_back();
  if (isAsMade(*ports.input, type) && isAsMade(*ports.output, type) &&
      ports.input->name() == inputName) {
    return ports;
  }
  formerStatePorts_.clear();
  return {};
}

bool CompoundObject::addStatePorts(const char* inputName, const char* outputName,
                                   const TypeRef& type) {
  if (kAddStatePorts.refuses() || !node_ || type == nullptr || !isOpenToEdits()) return false;
  const auto freeName = [this](const char* wanted) {
    return node_->uniquePortName(cleanName(isText(wanted) ? wanted : "state"));
  };
  StatePorts former = takeFormerStatePorts(freeName(inputName), type);
  const NodeFactory factory(node_->core());
  const auto insert = [&](Transaction& edits, PortDirection direction, const std::string& name,
                          PortRef port) {
    if (port == nullptr || port->name() != name) {
      port = factory.makeCompoundPort(direction, name, type);
    }
    const unsigned int end = node_->list(direction).count();
    return edits.run(InsertPort{{NodeRef(node_), port, end}}) ? port : PortRef();
  };
  return runDirect(node_, [&](Transaction& edits) {
    const PortRef input =
        insert(edits, PortDirection::Input, freeName(inputName), std::move(former.input));
    if (input == nullptr) return false;
    const PortRef output =
        insert(edits, PortDirection::Output, freeName(outputName), std::move(former.output));
    return output != nullptr && edits.run(PairState{input, output});
  });
}

bool CompoundObject::removePort(const ORV_v1::AddRefWrapper<ORV_v1::Port>& port) {
  auto* given = static_cast<PortObject*>(port.get());
  if (kRemovePort.refuses() || !given || !node_ || given->node() != node_ || given->above()) {
    return false;
  }
  PortObject* outer = given->isInner() ? given->twin() : given;
  const PortRef removed(outer);
  const PortRef partner(outer->statePartner());
  if (!runDirect(node_, [&](Transaction& edits) { return runRemovePort(edits, *given); })) {
    return false;
  }
  if (partner != nullptr) {
    formerStatePorts_.push_back(outer->isInput() ? StatePorts{removed, partner}
                                                 : StatePorts{partner, removed});
  }
  return true;
}

}  // namespace orvlib

namespace ORV_v1 {

bool Port::addConnection(AddRefWrapper<Port> other, bool replace) {
  auto& self = static_cast<orvlib::PortObject&>(*this);
  auto* peer = static_cast<orvlib::PortObject*>(other.get());
  if (orvlib::kAddConnection.refuses() || !peer) return false;
  return orvlib::runDirect(self.node(), [&](orvlib::Transaction& edits) {
    using orvlib::Occupied;
    return orvlib::runConnect(edits, self, *peer, replace ? Occupied::Displace : Occupied::Refuse);
  });
}

}  // namespace ORV_v1
