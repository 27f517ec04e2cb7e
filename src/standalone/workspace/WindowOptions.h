#pragma once

#include <string>
#include <vector>

namespace vesk {

/// What the program adds to the window beyond what the host offers.
struct WindowOptions {
  /// A panel that a command opens; its menu entry is there while the command is.
  struct Offer {
    std::string label;
    std::string command;
    std::string line;
  };

  /// The line that a double click on a node of the type runs, the node's name in quotes behind it.
  struct NodeOpener {
    std::string type;
    std::string line;
  };

  int scaleForThisRun = 0;  ///< 0: the user's
  std::vector<Offer> offers;
  std::vector<NodeOpener> openers;
};

}  // namespace vesk
