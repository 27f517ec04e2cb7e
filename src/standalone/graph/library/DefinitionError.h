#pragma once

#include <stdexcept>
#include <string>

namespace orvlib {

/// A place in a definition file, counted from 1; line 0 means the whole file.
struct Position {
  int line = 0;
  int column = 0;
};

/// Ends the reading of one definition file. It never leaves `readOrReport`.
class DefinitionError : public std::runtime_error {
 public:
  DefinitionError(Position position, const std::string& reason)
      : std::runtime_error(reason), position_(position) {}

  Position position() const { return position_; }

 private:
  Position position_;
};

}  // namespace orvlib
