#pragma once

#include <vector>

#include "standalone/host/scene/Selection.h"

namespace vesk {

class Scene;

/// Changes the selection and can take the changes back, exactly and again and again. Costs what it
/// changes, not what is selected.
class SelectionEdit {
 public:
  explicit SelectionEdit(Scene& scene) : scene_(&scene) {}

  /// Selects behind all others; a node that is selected already stays where it is.
  void select(const SceneNodePtr& node);
  void deselect(const SceneNodePtr& node);
  void clear();

  /// What stands in the way, such as a node that is gone, is passed over.
  void undo();
  void redo();

 private:
  struct Step {
    SceneNodePtr node;
    Selection::Place place;
    bool selects;
  };

  void carryOut(const Step& step, bool select);

  Scene* scene_;
  std::vector<Step> steps_;
};

}  // namespace vesk
