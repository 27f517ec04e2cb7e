#include "platform/ORV_1_0/CopyCommand.h"

#include <absl/container/flat_hash_set.h>

#include <vector>

#include "standalone/graph/clipboard/Clipboard.h"
#include "standalone/graph/commands/LevelLink.h"
#include "standalone/graph/storage/GraphText.h"

namespace ORV_v1 {
namespace {

using namespace orvlib;

FaultPoint kSetParent("CopyCommand setParentCompound");
FaultPoint kAddNode("CopyCommand addSourceNode");
FaultPoint kAddAnnotation("CopyCommand addSourceAnnotation");
FaultPoint kDoit("CopyCommand doit");

}  // namespace

struct CopyCommand::Rep {
  LevelLink link;
  std::vector<NodeRef> nodes;
  std::vector<AnnotationRef> annotations;
  absl::flat_hash_set<const void*> named;

  /// The text of the sources, as far as they are still there.
  std::string write(const CompoundObject& level) const {
    std::vector<NodeObject*> present;
    for (const NodeRef& node : nodes) {
      if (node->parent() == &level) present.push_back(node.get());
    }
    std::vector<AnnotationObject*> notes;
    for (const AnnotationRef& note : annotations) {
      if (note->parent() == &level) notes.push_back(note.get());
    }
    return present.empty() && notes.empty() ? "" : writeSelection(level, present, notes);
  }
};

CopyCommand::CopyCommand() : rep_(new Rep) {}
CopyCommand::~CopyCommand() { delete rep_; }

bool CopyCommand::setParentCompound(Container* container, const char* path) {
  if (kSetParent.refuses() || !rep_->named.empty()) return false;
  return rep_->link.bind(container, path);
}

bool CopyCommand::addSourceNode(const char* name) {
  const CompoundObject* level = rep_->link.level();
  NodeObject* node = level && name ? level->nodes().find(name) : nullptr;
  if (kAddNode.refuses() || !node || !rep_->named.insert(node).second) return false;
  rep_->nodes.emplace_back(node);
  return true;
}

bool CopyCommand::addSourceAnnotation(const char* name) {
  const CompoundObject* level = rep_->link.level();
  AnnotationObject* annotation = level && name ? level->annotations().find(name) : nullptr;
  if (kAddAnnotation.refuses() || !annotation) return false;
  if (!rep_->named.insert(annotation).second) return false;
  rep_->annotations.emplace_back(annotation);
  return true;
}

bool CopyCommand::doit() {
  const CompoundObject* level = rep_->link.level();
  return !kDoit.refuses() && level && Clipboard::setText(rep_->write(*level));
}

}  // namespace ORV_v1
