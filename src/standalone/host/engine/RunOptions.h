#pragma once

namespace vesk {

struct RunOptions {
  // What the command that runs the line was denied stays denied to the line.
  bool display = true;  ///< echo the line
  bool undo = true;     ///< let its edits enter the undo queue

  /// Another line left it for idle time, and does so again when that is run anew.
  bool leftByLine = false;

  bool topLevel = false;  ///< each statement is an undo step of its own, also inside a command
};

}  // namespace vesk
