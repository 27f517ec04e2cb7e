#pragma once

#include <deque>
#include <string>
#include <utility>

#include "standalone/host/engine/Observers.h"

namespace vesk {

/// Lines that wait until the host is idle.
class IdleQueue {
 public:
  struct Line {
    std::string text;
    bool display;
    bool leftByLine =
        false;  ///< a line that ran put it here, and does so again when it is run anew
  };

  void add(Line line) {
    lines_.push_back(std::move(line));
    added_.tell();
  }

  /// Who hears of each line that is put here.
  Observers<>& added() { return added_; }

  bool isEmpty() const { return lines_.empty(); }

  /// The oldest line; there must be one.
  Line take() {
    Line line = std::move(lines_.front());
    lines_.pop_front();
    return line;
  }

 private:
  std::deque<Line> lines_;
  Observers<> added_;
};

}  // namespace vesk
