// How requests are carried out; recording them is in PortRequests.cpp.

#include "standalone/graph/commands/PortEdits.h"

#include "standalone/graph/commands/PortValues.h"
#include "standalone/graph/edits/Wiring.h"
#include "standalone/graph/model/NameRules.h"

namespace orvlib {

struct PortEdits::Run {
  Transaction& edits;
  std::vector<PortRef> made = {};

  /// The numbers of the edits that undo leaves alone.
  std::vector<std::size_t> passing = {};

  PortObject* at(const PlannedPort& planned) const;
  bool run(const Request& request);
  bool run(PortObject& port, const NewValue& what);
  bool run(PortObject& port, const Reset& what);
  bool run(PortObject& port, const NewFlags& what);
  bool run(PortObject& port, const NewMetadata& what);
  bool run(PortObject& port, const Rename& what);
  bool run(PortObject& port, const Move& what);
  bool run(PortObject& port, const Show& what);
  bool run(PortObject& port, const Retype& what);
  bool run(PortObject& port, const Remove& what);
  bool run(const Make& make);
  bool insert(const Make& make, PortRef& port);
};

bool PortEdits::redo(const FaultPoint& fault) {
  if (requests_.empty()) return !fault.refuses();
  return command_.redo(fault, graph_.container(),
                       [this](Transaction& edits) { return run(edits); });
}

bool PortEdits::undo(const FaultPoint& fault) {
  if (requests_.empty()) return !fault.refuses();
  return command_.undo(fault, graph_.container());
}

bool PortEdits::run(Transaction& edits) const {
  Run all{edits};
  for (const Request& request : requests_) {
    if (!all.run(request)) return false;
  }
  for (; !all.passing.empty(); all.passing.pop_back()) edits.forget(all.passing.back());
  return true;
}

bool PortEdits::Run::run(const Request& request) {
  if (const auto* make = std::get_if<std::unique_ptr<Make>>(&request.what)) return run(**make);
  PortObject* port = at(request.port);
  if (!port || !port->node()) return false;
  const auto runOne = [&](const auto& what) {
    if constexpr (std::is_same_v<decltype(what), const std::unique_ptr<Make>&>) {
      return false;
    } else {
      return run(*port, what);
    }
  };
  return std::visit(runOne, request.what);
}

PortObject* PortEdits::Run::at(const PlannedPort& planned) const {
  PortObject* port =
      planned.made == PlannedPort::kNone ? planned.port.get() : made[planned.made].get();
  return planned.below.empty() ? port : port->descendant(planned.below);
}

bool PortEdits::Run::run(PortObject& port, const NewValue& what) {
  if (!runSetValue(edits, port, what.value)) return false;
  if (what.interactive) passing.push_back(edits.size() - 1);
  return true;
}

bool PortEdits::Run::run(PortObject& port, const Reset& what) {
  if (!runResetValue(edits, port)) return false;
  if (what.interactive) passing.push_back(edits.size() - 1);
  return true;
}

bool PortEdits::Run::run(PortObject& port, const NewFlags& what) {
  const std::uint32_t flags = what.on ? port.flags() | what.bits : port.flags() & ~what.bits;
  return edits.run(SetPortFlags{PortRef(&port), flags});
}

bool PortEdits::Run::run(PortObject& port, const NewMetadata& what) {
  Properties set = port.metadata();
  if (what.value.empty()) {
    set.clear(what.key);
  } else {
    set.set(what.key, {what.value});
  }
  return edits.run(SetMetadata{PortRef(&port), std::move(set)});
}

bool PortEdits::Run::run(PortObject& port, const Rename& what) {
  if (port.name() == what.name) return true;
  PortObject* above = port.above();
  std::string free =
      above ? above->madeChildren()->uniqueName(what.name) : port.node()->uniquePortName(what.name);
  return edits.run(RenamePort{PortRef(&port), std::move(free)});
}

bool PortEdits::Run::run(PortObject& port, const Move& what) {
  return edits.run(MovePort{PortRef(&port), what.index});
}

bool PortEdits::Run::run(PortObject& port, const Show& what) {
  return edits.run(SetIoNode{PortRef(&port), what.ioNode, ~0u});
}

bool PortEdits::Run::run(PortObject& port, const Retype& what) {
  return runSetType(edits, port, what.type);
}

bool PortEdits::Run::run(PortObject& port, const Remove&) { return runRemovePort(edits, port); }

bool PortEdits::Run::insert(const Make& make, PortRef& port) {
  NodeObject& node = *make.node;
  const NodeFactory factory(node.core());
  if (make.above) {
    PortObject* above = at(*make.above);
    PortListObject* members = above && above->isFanInPort() ? above->childList() : nullptr;
    if (!members) return false;
    port = factory.makeMember(members->uniqueName(make.name), make.type);
    return edits.run(InsertPort{{make.node, port, members->count(), PortRef(above)}});
  }
  const std::string name = node.uniquePortName(make.name);
  port = node.compound() ? factory.makeCompoundPort(make.direction, name, make.type)
                         : factory.makePort(make.direction, name, make.type);
  return edits.run(InsertPort{{make.node, port, node.list(make.direction).count()}});
}

bool PortEdits::Run::run(const Make& make) {
  PortRef port;
  if (!insert(make, port)) return false;
  made.push_back(port);
  if (make.flags != 0 && !edits.run(SetPortFlags{port, make.flags})) return false;
  if (!make.options.empty() && !edits.run(SetMetadata{port, make.options})) return false;
  return !make.value || runSetValue(edits, *port, *make.value);
}

}  // namespace orvlib
