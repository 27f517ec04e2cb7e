#include "standalone/host/scene/SelectionEdit.h"

#include "standalone/host/scene/Scene.h"

namespace vesk {

void SelectionEdit::select(const SceneNodePtr& node) {
  Selection& selection = scene_->selection();
  if (!selection.contains(*node)) steps_.push_back({node, selection.add(node), true});
}

void SelectionEdit::deselect(const SceneNodePtr& node) {
  if (const auto place = scene_->selection().remove(*node)) steps_.push_back({node, *place, false});
}

void SelectionEdit::clear() {
  for (const SceneNodePtr& node : scene_->selection().nodes()) deselect(node);
}

void SelectionEdit::undo() {
  for (auto step = steps_.rbegin(); step != steps_.rend(); ++step) carryOut(*step, !step->selects);
}

void SelectionEdit::redo() {
  for (const Step& step : steps_) carryOut(step, step.selects);
}

void SelectionEdit::carryOut(const Step& step, bool select) {
  Selection& selection = scene_->selection();
  if (!select) {
    selection.remove(*step.node);
  } else if (step.node->isInScene() && !selection.contains(*step.node)) {
    selection.restore(step.node, step.place);
  }
}

}  // namespace vesk
