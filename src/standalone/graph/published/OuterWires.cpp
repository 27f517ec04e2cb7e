#include "standalone/graph/published/OuterWires.h"

#include "standalone/graph/edits/WireRules.h"
#include "standalone/graph/edits/Wiring.h"

namespace orvlib {
namespace {

bool loseWire(Transaction& edits, PortObject& source, PortObject& target, LostWires& lost) {
  PortObject* fanIn = target.kind() == PortKind::Member ? target.above() : nullptr;
  lost.push_back({PortRef(&source),
                  PortRef(&target),
                  PortRef(fanIn),
                  {source.peers().indexOf(&target), target.peers().indexOf(&source)},
                  "from '" + source.fullPath() + "' to '" + target.fullPath() + "'"});
  return runDisconnect(edits, source, target);
}

bool loseWiresBelow(Transaction& edits, PortObject& port, LostWires& lost) {
  if (!port.madeChildren()) return true;
  const auto& items = port.madeChildren()->items();
  // A member goes with its connection, so the list changes under way.
  for (PortObject* child : std::vector<PortObject*>(items.begin(), items.end())) {
    const PortRef kept(child);
    if (!loseWires(edits, *child, lost)) return false;
    const bool left = child->kind() == PortKind::Member && child->above();
    if (left && !runRemovePort(edits, *child)) return false;
  }
  return true;
}

}  // namespace

bool loseWires(Transaction& edits, PortObject& port, LostWires& lost) {
  const PortRef kept(&port);
  if (!loseWiresBelow(edits, port, lost)) return false;
  while (port.hasPeers()) {
    PortObject& last = *port.peers().at(port.peers().count() - 1);
    PortObject& source = port.isInput() ? last : port;
    PortObject& target = port.isInput() ? port : last;
    if (!loseWire(edits, source, target, lost)) return false;
  }
  return true;
}

bool losePort(Transaction& edits, PortObject& port, LostWires& lost) {
  return loseWires(edits, port, lost) && runRemovePort(edits, port);
}

bool restoreWire(Transaction& edits, const LostWire& wire) {
  if (!wire.source->node() || (wire.fanIn == nullptr && !wire.target->node())) return false;
  const Connect connect{{wire.source, wire.target, wire.indices}};
  if (wire.fanIn == nullptr) return edits.run(connect);
  PortObject& fanIn = *wire.fanIn;
  if (!fanIn.node() || wire.target->above()) return false;
  const PortPlace member{NodeRef(fanIn.node()), wire.target, ~0u, wire.fanIn};
  if (!edits.run(InsertPort{member})) return false;
  return edits.run(connect) || (edits.run(RemovePort{member}), false);
}

void restoreWires(Transaction& edits, const LostWires& lost) {
  for (auto wire = lost.rbegin(); wire != lost.rend(); ++wire) restoreWire(edits, *wire);
}

}  // namespace orvlib
