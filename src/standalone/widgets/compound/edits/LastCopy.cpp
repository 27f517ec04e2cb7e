#include "standalone/widgets/compound/edits/LastCopy.h"

#include "standalone/graph/clipboard/Clipboard.h"
#include "standalone/graph/model/ContainerObject.h"

namespace orvuilib::edits {
namespace {

LastCopy& kept() {
  static LastCopy only;
  return only;
}

std::size_t clipboardNow() { return std::hash<std::string>()(orvlib::Clipboard::text()); }

}  // namespace

LastCopy LastCopy::of(const LevelScene& scene) {
  LastCopy copy;
  copy.arrangement = arrangementOfSelection(scene);
  copy.container = scene.levelNode()->container()->containerName();
  copy.level = scene.levelNode()->fullPath();
  for (const BoxItem* box : scene.selectedBoxes()) copy.nodes.push_back(box->node->name());
  for (const NoteItem* note : scene.selectedNotes()) {
    copy.notes.push_back(note->annotation->name());
  }
  return copy;
}

void LastCopy::keep(LastCopy copy) {
  kept() = std::move(copy);
  kept().clipboard = clipboardNow();
}

LastCopy* LastCopy::find() { return kept().clipboard == clipboardNow() ? &kept() : nullptr; }

}  // namespace orvuilib::edits
