#pragma once

namespace vesk {

struct RunOptions {
  bool display = true;    ///< echo the line
  bool undo = true;       ///< let its edits enter the undo queue
  bool topLevel = false;  ///< each statement is an undo step of its own, also inside a command
};

}  // namespace vesk
