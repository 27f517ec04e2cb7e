#include "platform/ORV_1_0/ModifyCompoundPortCommand.h"

#include "standalone/graph/commands/LevelLink.h"
#include "standalone/graph/commands/PortEdits.h"

namespace ORV_v1 {
namespace {

using namespace orvlib;

FaultPoint kSetParent("ModifyCompoundPortCommand setParentCompound");
FaultPoint kCreatePort("ModifyCompoundPortCommand createPort");
FaultPoint kRenamePort("ModifyCompoundPortCommand renamePort");
FaultPoint kMovePort("ModifyCompoundPortCommand movePort");
FaultPoint kHidePort("ModifyCompoundPortCommand hidePort");
FaultPoint kSetType("ModifyCompoundPortCommand setPortDataType");
FaultPoint kSetMetadata("ModifyCompoundPortCommand setPortMetaDataValue");
FaultPoint kDeletePort("ModifyCompoundPortCommand deletePort");
FaultPoint kSetValues("ModifyCompoundPortCommand setPortValues");
FaultPoint kResetValues("ModifyCompoundPortCommand resetPortValues");
FaultPoint kDoit("ModifyCompoundPortCommand doit");
FaultPoint kRedo("ModifyCompoundPortCommand redo");
FaultPoint kUndo("ModifyCompoundPortCommand undo");

}  // namespace

struct ModifyCompoundPortCommand::Rep {
  LevelLink link;
  PortEdits edits;

  /// Null when the command is not bound.
  NodeObject* node() const {
    const CompoundObject* level = link.level();
    return level ? level->node() : nullptr;
  }
};

ModifyCompoundPortCommand::ModifyCompoundPortCommand() : rep_(nullptr) {}

ModifyCompoundPortCommand::ModifyCompoundPortCommand(const AddRefWrapper<Port>& port)
    : ModifyCompoundPortCommand() {
  const auto* given = static_cast<const PortObject*>(port.get());
  NodeObject* node = given ? given->node() : nullptr;
  if (!node || !node->compound() || !node->container()) return;
  made(rep_).link.bind(*node->container(), *node->compound());
}

ModifyCompoundPortCommand::~ModifyCompoundPortCommand() { delete rep_; }

bool ModifyCompoundPortCommand::setParentCompound(Container* container, const char* path) {
  return !kSetParent.refuses() && made(rep_).link.bind(container, path);
}

bool ModifyCompoundPortCommand::createPort(PortIOType direction, const char* name, const char* type,
                                           const PortProperties& properties) {
  return !kCreatePort.refuses() &&
         made(rep_).edits.make(rep_->node(), static_cast<PortDirection>(direction), name, type,
                               properties);
}

bool ModifyCompoundPortCommand::renamePort(const char* name, const char* newName) {
  return !kRenamePort.refuses() && made(rep_).edits.rename(rep_->node(), name, newName);
}

bool ModifyCompoundPortCommand::movePort(const char* name, unsigned int position) {
  return !kMovePort.refuses() && made(rep_).edits.move(rep_->node(), name, position);
}

bool ModifyCompoundPortCommand::movePort(const char* name, const char* ioNode) {
  return !kMovePort.refuses() && made(rep_).edits.show(rep_->node(), name, ioNode);
}

bool ModifyCompoundPortCommand::hidePort(const char* name, bool hidden) {
  return !kHidePort.refuses() && made(rep_).edits.setFlags(rep_->node(), name, kPortHidden, hidden);
}

bool ModifyCompoundPortCommand::setPortDataType(const char* name, const char* type) {
  return !kSetType.refuses() && made(rep_).edits.setType(rep_->node(), name, type);
}

bool ModifyCompoundPortCommand::setPortMetaDataValue(const char* name, const char* key,
                                                     const char* value) {
  return !kSetMetadata.refuses() && made(rep_).edits.setMetadata(rep_->node(), name, key, value);
}

bool ModifyCompoundPortCommand::deletePort(const char* name) {
  return !kDeletePort.refuses() && made(rep_).edits.remove(rep_->node(), name);
}

bool ModifyCompoundPortCommand::setPortValues(const char* name, const StringArray& values,
                                              bool interactive) {
  return !kSetValues.refuses() &&
         made(rep_).edits.setValues(rep_->node(), name, values, interactive);
}

bool ModifyCompoundPortCommand::resetPortValues(const char* name) {
  return !kResetValues.refuses() && made(rep_).edits.resetValues(rep_->node(), name);
}

bool ModifyCompoundPortCommand::doit() { return !kDoit.refuses() && redo(); }

bool ModifyCompoundPortCommand::redo() { return rep_ ? rep_->edits.redo(kRedo) : !kRedo.refuses(); }

void ModifyCompoundPortCommand::undo() {
  if (rep_) rep_->edits.undo(kUndo);
}

}  // namespace ORV_v1
