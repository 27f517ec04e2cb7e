#pragma once

#include <functional>

#include "standalone/widgets/compound/edits/NodeEdits.h"
#include "standalone/widgets/compound/view/Canvas.h"

namespace orvuilib {

/// What gestures and actions work with. The parts outlive it.
struct Workbench {
  LevelScene& scene;
  Canvas& canvas;
  EditSession& session;
  EditorPreferences& preferences;

  /// Opens the menu of nodes; the node that is chosen goes to the place, and into the wire's
  /// loose end when the place has one.
  std::function<void(const edits::NodePlace&)> openNodeMenu;

  /// Whether the level can be edited; if not the user is told why, quietly.
  bool canEdit() const {
    const QString refusal = session.refusal();
    canvas.setNotice(refusal);
    return refusal.isEmpty();
  }
};

}  // namespace orvuilib
