#include "platform/ORV_1_0/ExplodeCompoundCommand.h"

#include <absl/container/flat_hash_set.h>

#include "standalone/graph/commands/ExplodeCompound.h"
#include "standalone/graph/commands/LevelLink.h"

namespace ORV_v1 {
namespace {

using namespace orvlib;

FaultPoint kSetParent("ExplodeCompoundCommand setParentCompound");
FaultPoint kAddCompound("ExplodeCompoundCommand addCompoundToExplode");
FaultPoint kDoit("ExplodeCompoundCommand doit");
FaultPoint kRedo("ExplodeCompoundCommand redo");
FaultPoint kUndo("ExplodeCompoundCommand undo");

}  // namespace

struct ExplodeCompoundCommand::Rep {
  LevelLink link;
  std::vector<NodeRef> compounds;
  absl::flat_hash_set<const NodeObject*> named;
  std::vector<NodeRef> created;
  RecordedCommand command;

  bool run(Transaction& edits) {
    created.clear();
    const CompoundObject* level = link.level();
    for (const NodeRef& compound : compounds) {
      if (!level || compound->parent() != level) return false;
      if (!ExplodeCompound(edits, *compound).run(created)) return false;
    }
    return true;
  }
};

ExplodeCompoundCommand::ExplodeCompoundCommand() : rep_(nullptr) {}
ExplodeCompoundCommand::~ExplodeCompoundCommand() { delete rep_; }

bool ExplodeCompoundCommand::setParentCompound(Container* container, const char* path) {
  if (kSetParent.refuses() || !made(rep_).compounds.empty()) return false;
  return rep_->link.bind(container, path);
}

bool ExplodeCompoundCommand::addCompoundToExplode(const char* name) {
  const CompoundObject* level = made(rep_).command.isBuilt() ? nullptr : rep_->link.level();
  NodeObject* node = level && name ? level->nodes().find(name) : nullptr;
  if (kAddCompound.refuses() || !node || !node->compound()) return false;
  if (rep_->named.insert(node).second) rep_->compounds.emplace_back(node);
  return true;
}

unsigned int ExplodeCompoundCommand::getCreatedNodeCount() const {
  return rep_ && rep_->command.isDone() ? static_cast<unsigned int>(rep_->created.size()) : 0;
}

const char* ExplodeCompoundCommand::getCreatedNodeName(unsigned int index) const {
  return index < getCreatedNodeCount() ? rep_->created[index]->getName() : "";
}

bool ExplodeCompoundCommand::doit() { return !kDoit.refuses() && redo(); }

bool ExplodeCompoundCommand::redo() {
  if (!rep_ || rep_->compounds.empty()) return !kRedo.refuses();
  return rep_->command.redo(kRedo, rep_->link.container(),
                            [this](Transaction& edits) { return rep_->run(edits); });
}

bool ExplodeCompoundCommand::undo() {
  if (!rep_ || rep_->compounds.empty()) return !kUndo.refuses();
  return rep_->command.undo(kUndo, rep_->link.container());
}

}  // namespace ORV_v1
