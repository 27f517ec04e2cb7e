#include "platform/ORV_1_0/ConnectCommand.h"

#include "standalone/graph/commands/RecordedCommand.h"
#include "standalone/graph/edits/Wiring.h"

namespace ORV_v1 {
namespace {

using namespace orvlib;

FaultPoint kConnect("ConnectCommand connect");
FaultPoint kDisconnect("ConnectCommand disconnect");
FaultPoint kRedo("ConnectCommand redo");
FaultPoint kUndo("ConnectCommand undo");

/// Sets what the output says of itself on the input too.
bool runCopyMetadata(Transaction& edits, const PortObject& source, PortObject& target) {
  if (source.metadata().empty()) return true;
  Properties all = target.metadata();
  for (const Property& property : source.metadata().all()) all.set(property.key, property.values);
  return edits.run(SetMetadata{PortRef(&target), std::move(all)});
}

/// The port at the end of the connection: `given`, or the member of it that has this source. Null
/// when they are not connected.
PortObject* connectedInput(const PortObject& source, PortObject& given) {
  if (given.peers().contains(&source)) return &given;
  const PortListObject* members = given.isFanInPort() ? given.madeChildren() : nullptr;
  if (!members) return nullptr;
  // Either list may be very long.
  if (source.peers().count() < members->count()) {
    for (PortObject* peer : source.peers().items()) {
      if (peer->above() == &given) return peer;
    }
    return nullptr;
  }
  for (PortObject* member : members->items()) {
    if (member->peers().contains(&source)) return member;
  }
  return nullptr;
}

}  // namespace

struct ConnectCommand::Rep {
  GraphLink graph;
  RecordedCommand command;

  /// Whether both are ports of the graph, and the command has done nothing yet.
  bool bind(Container* container, const PortObject* one, const PortObject* other) {
    auto* given = static_cast<ContainerObject*>(container);
    if (!given || command.isBuilt() || !isOf(*given, one) || !isOf(*given, other)) return false;
    graph.bind(*given);
    return true;
  }

  static bool isOf(const ContainerObject& graph, const PortObject* port) {
    return port && port->node() && port->node()->container() == &graph;
  }
};

ConnectCommand::ConnectCommand() : rep_(new Rep) {}
ConnectCommand::~ConnectCommand() { delete rep_; }

bool ConnectCommand::connect(Container* container, const AddRefWrapper<Port>& source,
                             const AddRefWrapper<Port>& destination, bool copyMetaData) {
  auto* one = static_cast<PortObject*>(source.get());
  auto* other = static_cast<PortObject*>(destination.get());
  if (!rep_->bind(container, one, other)) return false;
  return rep_->command.redo(kConnect, rep_->graph.container(), [&](Transaction& edits) {
    if (!runConnect(edits, *one, *other, Occupied::Displace)) return false;
    if (!copyMetaData) return true;
    // The connection that was made last is the last of its source.
    const PortObject& from = one->isInput() ? *other : *one;
    return runCopyMetadata(edits, from, *from.peers().at(from.peers().count() - 1));
  });
}

bool ConnectCommand::disconnect(Container* container, const AddRefWrapper<Port>& source,
                                const AddRefWrapper<Port>& destination) {
  auto* one = static_cast<PortObject*>(source.get());
  auto* other = static_cast<PortObject*>(destination.get());
  if (!rep_->bind(container, one, other)) return false;
  return rep_->command.redo(kDisconnect, rep_->graph.container(), [&](Transaction& edits) {
    PortObject& from = one->isInput() ? *other : *one;
    PortObject* to = connectedInput(from, one->isInput() ? *one : *other);
    return to && runDisconnect(edits, from, *to);
  });
}

bool ConnectCommand::undo() { return rep_->command.undo(kUndo, rep_->graph.container()); }

bool ConnectCommand::redo() {
  return rep_->command.redo(kRedo, rep_->graph.container(), [](Transaction&) { return false; });
}

}  // namespace ORV_v1
