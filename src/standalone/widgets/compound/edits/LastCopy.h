#pragma once

#include "standalone/widgets/compound/edits/Arrangement.h"

namespace orvuilib::edits {

/// What the editors of the program copied last. A copy has no more than the positions that the
/// graph knows: pasted from that clipboard it stands as it was seen.
struct LastCopy {
  Arrangement arrangement;

  // What was copied, by names: it may go, or get others.
  std::string container;
  std::string level;
  std::vector<std::string> nodes;
  std::vector<std::string> notes;

  std::size_t clipboard = 0;  ///< a hash of what was on the clipboard then
  bool covered = false;       ///< another was copied since, on a private clipboard

  /// Of what is selected in the scene.
  static LastCopy of(const LevelScene& scene);

  /// Keeps it; to be called when it is on the clipboard.
  static void keep(LastCopy copy);

  /// Null when something else is on the clipboard now.
  static LastCopy* find();
};

}  // namespace orvuilib::edits
