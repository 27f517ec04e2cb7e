#include "platform/ORV_1_0/CreateCompoundCommand.h"

#include <absl/container/flat_hash_set.h>

#include "standalone/graph/api/GraphAccess.h"
#include "standalone/graph/commands/LevelLink.h"
#include "standalone/graph/commands/MoveIntoCompound.h"
#include "standalone/graph/model/NameRules.h"

namespace ORV_v1 {
namespace {

using namespace orvlib;

FaultPoint kSetParent("CreateCompoundCommand setParentCompound");
FaultPoint kAddNode("CreateCompoundCommand addNodeToMove");
FaultPoint kAddAnnotation("CreateCompoundCommand addAnnotationToMove");
FaultPoint kDoit("CreateCompoundCommand doit");
FaultPoint kRedo("CreateCompoundCommand redo");
FaultPoint kUndo("CreateCompoundCommand undo");

constexpr const char* kDefaultName = "compound";

bool showsPorts(const NodeObject& node) {
  return node.nodeKind() == NodeKind::Input || node.nodeKind() == NodeKind::Output;
}

}  // namespace

struct CreateCompoundCommand::Rep {
  LevelLink link;
  std::string name = kDefaultName;
  std::vector<NodeRef> nodes;
  std::vector<AnnotationRef> annotations;
  absl::flat_hash_set<const void*> named;
  NodeRef created;
  RecordedCommand command;

  CompoundObject* level() const { return command.isBuilt() ? nullptr : link.level(); }

  bool runMoveAnnotation(Transaction& edits, CompoundObject& level, CompoundObject& inside,
                         const AnnotationRef& annotation) const {
    const unsigned int end = inside.annotations().count();
    return edits.run(RemoveAnnotation{{CompoundRef(&level), annotation, 0}}) &&
           edits.run(InsertAnnotation{{CompoundRef(&inside), annotation, end}});
  }

  bool run(Transaction& edits) {
    CompoundObject* outside = link.level();
    if (!outside) return false;
    for (const NodeRef& node : nodes) {
      if (node->parent() != outside) return false;
    }
    const NodeFactory factory(outside->node()->core());
    created = factory.makeCompound(outside->nodes().uniqueName(cleanName(name)));
    CompoundObject& inside = *created->compound();
    if (!outside->hasRoomFor(*created)) return false;
    const unsigned int end = outside->nodes().count();
    if (!edits.run(InsertNode{{CompoundRef(outside), created, end}})) return false;
    for (const NodeRef& node : nodes) {
      if (!inside.hasRoomFor(*node)) return false;
    }
    if (!MoveIntoCompound(edits, inside, nodes).run()) return false;
    for (const AnnotationRef& annotation : annotations) {
      if (!runMoveAnnotation(edits, *outside, inside, annotation)) return false;
    }
    return true;
  }
};

CreateCompoundCommand::CreateCompoundCommand() : rep_(nullptr) {}
CreateCompoundCommand::~CreateCompoundCommand() { delete rep_; }

bool CreateCompoundCommand::setParentCompound(Container* container, const char* path) {
  if (kSetParent.refuses() || !made(rep_).named.empty()) return false;
  return !rep_->command.isBuilt() && rep_->link.bind(container, path);
}

void CreateCompoundCommand::setNewCompoundName(const char* name) {
  made(rep_).name = name && *name ? name : kDefaultName;
}

bool CreateCompoundCommand::addNodeToMove(const char* name) {
  const CompoundObject* level = made(rep_).level();
  NodeObject* node = level && name ? level->nodes().find(name) : nullptr;
  if (kAddNode.refuses() || !node || showsPorts(*node)) return false;
  if (rep_->named.insert(node).second) rep_->nodes.emplace_back(node);
  return true;
}

bool CreateCompoundCommand::addAnnotationToMove(const char* name) {
  const CompoundObject* level = made(rep_).level();
  AnnotationObject* annotation = level && name ? level->annotations().find(name) : nullptr;
  if (kAddAnnotation.refuses() || !annotation) return false;
  if (rep_->named.insert(annotation).second) rep_->annotations.emplace_back(annotation);
  return true;
}

String CreateCompoundCommand::getCreatedCompoundPath() const {
  return rep_ && rep_->command.isDone() ? GraphAccess::makeString(rep_->created->fullPath())
                                        : String();
}

bool CreateCompoundCommand::doit() { return !kDoit.refuses() && redo(); }

bool CreateCompoundCommand::redo() {
  return made(rep_).command.redo(kRedo, rep_->link.container(),
                                 [this](Transaction& edits) { return rep_->run(edits); });
}

bool CreateCompoundCommand::undo() {
  return made(rep_).command.undo(kUndo, rep_->link.container());
}

}  // namespace ORV_v1
