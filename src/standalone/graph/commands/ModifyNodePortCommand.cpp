#include "platform/ORV_1_0/ModifyNodePortCommand.h"

#include "standalone/graph/commands/PortEdits.h"

namespace ORV_v1 {
namespace {

using namespace orvlib;

FaultPoint kCreatePort("ModifyNodePortCommand createPort");
FaultPoint kDeletePort("ModifyNodePortCommand deletePort");
FaultPoint kSetValues("ModifyNodePortCommand setPortValues");
FaultPoint kResetValues("ModifyNodePortCommand resetPortValues");
FaultPoint kSetType("ModifyNodePortCommand setPortType");
FaultPoint kSetMetadata("ModifyNodePortCommand setPortMetaDataValue");
FaultPoint kHandleFlags("ModifyNodePortCommand handlePortFlags");
FaultPoint kDoit("ModifyNodePortCommand doit");
FaultPoint kRedo("ModifyNodePortCommand redo");
FaultPoint kUndo("ModifyNodePortCommand undo");

NodeObject* object(const AddRefWrapper<Node>& node) { return static_cast<NodeObject*>(node.get()); }

/// Whether a search with these values finds the port, by the path of its own node or of the
/// input/output node that shows it.
bool isFoundBy(PortObject& port, Container::ESearchIOType ioType, Container::ESearchMode mode) {
  const bool either = ioType == Container::kSearchEither;
  if (!either && static_cast<unsigned int>(port.direction()) != ioType) return false;
  if (!port.root().twin()) return mode <= Container::kSearchOuter;
  if (port.isInner() && mode == Container::kSearchOuter) return port.root().ioNode() != nullptr;
  return mode == (port.isInner() ? Container::kSearchInner : Container::kSearchOuter);
}

}  // namespace

struct ModifyNodePortCommand::Rep {
  PortEdits edits;
};

ModifyNodePortCommand::ModifyNodePortCommand() : rep_(nullptr) {}
ModifyNodePortCommand::~ModifyNodePortCommand() { delete rep_; }

bool ModifyNodePortCommand::createPort(const AddRefWrapper<Node>& node, PortIOType direction,
                                       const char* name, const char* type,
                                       const PortProperties& properties) {
  return !kCreatePort.refuses() &&
         made(rep_).edits.make(object(node), static_cast<PortDirection>(direction), name, type,
                               properties);
}

bool ModifyNodePortCommand::deletePort(const AddRefWrapper<Node>& node, const char* name) {
  return !kDeletePort.refuses() && made(rep_).edits.remove(object(node), name);
}

bool ModifyNodePortCommand::setPortValues(const AddRefWrapper<Node>& node, const char* name,
                                          const StringArray& values, bool interactive) {
  return !kSetValues.refuses() &&
         made(rep_).edits.setValues(object(node), name, values, interactive);
}

bool ModifyNodePortCommand::resetPortValues(const AddRefWrapper<Node>& node, const char* name) {
  return !kResetValues.refuses() && made(rep_).edits.resetValues(object(node), name);
}

bool ModifyNodePortCommand::setPortType(const AddRefWrapper<Node>& node, const char* name,
                                        const char* type) {
  return !kSetType.refuses() && made(rep_).edits.setType(object(node), name, type);
}

bool ModifyNodePortCommand::setPortMetaDataValue(const AddRefWrapper<Node>& node, const char* name,
                                                 const char* key, const char* value) {
  return !kSetMetadata.refuses() && made(rep_).edits.setMetadata(object(node), name, key, value);
}

bool ModifyNodePortCommand::handlePortFlags(const AddRefWrapper<Port>& port,
                                            Container::ESearchIOType ioType,
                                            Container::ESearchMode mode, PortFlags flags,
                                            QueryPortFlags operation) {
  auto* given = static_cast<PortObject*>(port.get());
  const bool on = operation == QueryPortFlags::kSet;
  if (kHandleFlags.refuses() || (!on && operation != QueryPortFlags::kClear)) return false;
  return given && isFoundBy(*given, ioType, mode) && made(rep_).edits.setFlags(given, flags, on);
}

bool ModifyNodePortCommand::doit() { return !kDoit.refuses() && redo(); }

bool ModifyNodePortCommand::redo() { return rep_ ? rep_->edits.redo(kRedo) : !kRedo.refuses(); }

void ModifyNodePortCommand::undo() {
  if (rep_) rep_->edits.undo(kUndo);
}

}  // namespace ORV_v1
