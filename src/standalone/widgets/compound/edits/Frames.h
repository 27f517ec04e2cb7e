#pragma once

#include <vector>

#include "standalone/widgets/compound/scene/LevelScene.h"

namespace orvuilib::edits {

/// A backdrop with what lies on it: boxes and notes that lie on a smaller backdrop on it are that
/// one's.
struct Frame {
  static constexpr int kNone = -1;

  NoteItem* backdrop = nullptr;
  int outer = kNone;  ///< the index of the frame that it lies on; that one comes later
  std::vector<BoxItem*> boxes;
  std::vector<NoteItem*> notes;
};

/// All backdrops of the level, the smaller ones first.
std::vector<Frame> framesOf(const LevelScene& scene);

}  // namespace orvuilib::edits
