#pragma once

namespace vesk {

struct RunOptions {
  // What the command that runs the line was denied stays denied to the line.
  bool display = true;  ///< echo the line
  bool undo = true;     ///< let its edits enter the undo queue

  bool topLevel = false;  ///< each statement is an undo step of its own, also inside a command
};

}  // namespace vesk
