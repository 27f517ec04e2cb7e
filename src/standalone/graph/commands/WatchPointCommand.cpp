#include "platform/ORV_1_0/WatchPointCommand.h"

#include <absl/container/flat_hash_map.h>

#include <variant>
#include <vector>

#include "standalone/graph/commands/RecordedCommand.h"

namespace ORV_v1 {
namespace {

using namespace orvlib;

FaultPoint kCreate("WatchPointCommand createWatchPoint");
FaultPoint kRemove("WatchPointCommand removeWatchPoint");
FaultPoint kEnable("WatchPointCommand enableWatchPoint");
FaultPoint kSetParameter("WatchPointCommand setWatchPointParameter");
FaultPoint kRedo("WatchPointCommand redo");
FaultPoint kUndo("WatchPointCommand undo");

struct Presence {
  bool there;
};

struct Enabling {
  bool on;
};

struct Parameter {
  std::string name;
  std::string value;
};

struct Request {
  PortRef port;
  std::variant<Presence, Enabling, Parameter> what;
};

bool run(Transaction& edits, PortObject& port, const Presence& presence) {
  if ((port.watchPoint() != nullptr) == presence.there) return false;
  const WatchPointRef fresh(presence.there ? new WatchPointObject : nullptr);
  return edits.run(SetWatchPoint{PortRef(&port), fresh});
}

bool runSetUp(Transaction& edits, WatchPointObject& watchPoint, const WatchPointSetup& setup) {
  if (watchPoint.setup() == setup) return true;
  return edits.run(SetUpWatchPoint{WatchPointRef(&watchPoint), setup});
}

bool run(Transaction& edits, PortObject& port, const Enabling& enabling) {
  if (!port.watchPoint()) return false;
  WatchPointSetup setup = port.watchPoint()->setup();
  setup.enabled = enabling.on;
  return runSetUp(edits, *port.watchPoint(), setup);
}

bool run(Transaction& edits, PortObject& port, const Parameter& parameter) {
  if (!port.watchPoint()) return false;
  WatchPointSetup setup = port.watchPoint()->setup();
  return setup.set(parameter.name, parameter.value) && runSetUp(edits, *port.watchPoint(), setup);
}

}  // namespace

struct WatchPointCommand::Rep {
  GraphLink graph;
  std::vector<Request> requests;

  /// Of the ports that something is recorded for: whether they will have a watch point.
  absl::flat_hash_map<const PortObject*, bool> planned;
  RecordedCommand command;

  /// The port, when it is one of the graph and has a watch point, or has none, as `with` says.
  PortObject* port(const FaultPoint& fault, const AddRefWrapper<Port>& given, bool with) {
    auto* found = static_cast<PortObject*>(given.get());
    if (fault.refuses() || !found || !found->node() || command.isBuilt()) return nullptr;
    const auto entry = planned.find(found);
    const bool has = entry == planned.end() ? found->watchPoint() != nullptr : entry->second;
    return has == with && graph.bindOrKeep(found->node()->container()) ? found : nullptr;
  }

  bool recordPresence(PortObject* found, bool there) {
    if (!found) return false;
    planned[found] = there;
    requests.push_back({PortRef(found), Presence{there}});
    return true;
  }
};

WatchPointCommand::WatchPointCommand() : rep_(new Rep) {}
WatchPointCommand::~WatchPointCommand() { delete rep_; }

bool WatchPointCommand::createWatchPoint(const AddRefWrapper<Port>& port) {
  return rep_->recordPresence(rep_->port(kCreate, port, false), true);
}

bool WatchPointCommand::removeWatchPoint(const AddRefWrapper<Port>& port) {
  return rep_->recordPresence(rep_->port(kRemove, port, true), false);
}

bool WatchPointCommand::enableWatchPoint(const AddRefWrapper<Port>& port, bool enabled) {
  PortObject* found = rep_->port(kEnable, port, true);
  if (!found) return false;
  rep_->requests.push_back({PortRef(found), Enabling{enabled}});
  return true;
}

bool WatchPointCommand::setWatchPointParameter(const AddRefWrapper<Port>& port, const char* name,
                                               const char* value) {
  PortObject* found = rep_->port(kSetParameter, port, true);
  if (!found || !name || !value || !WatchPointSetup().set(name, value)) return false;
  rep_->requests.push_back({PortRef(found), Parameter{name, value}});
  return true;
}

bool WatchPointCommand::redo() {
  if (rep_->requests.empty()) return !kRedo.refuses();
  return rep_->command.redo(kRedo, rep_->graph.container(), [this](Transaction& edits) {
    for (const Request& request : rep_->requests) {
      const auto runOne = [&](const auto& what) { return run(edits, *request.port, what); };
      if (!std::visit(runOne, request.what)) return false;
    }
    return true;
  });
}

void WatchPointCommand::undo() {
  if (!rep_->requests.empty()) rep_->command.undo(kUndo, rep_->graph.container());
}

}  // namespace ORV_v1
