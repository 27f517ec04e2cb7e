#pragma once

#include <QJsonObject>
#include <string>

namespace vesk {

/// What was found in a file that should hold one JSON object.
struct JsonFile {
  enum class State {
    Missing,
    Unreadable,  ///< it is there, but its bytes cannot be had, or it is no regular file
    Damaged,     ///< its bytes are no JSON object
    Read,
  };

  State state;
  QJsonObject object;  ///< when `Read`
  std::string reason;  ///< when `Unreadable` or `Damaged`; with line and column where there is one
};

JsonFile readJsonFile(const std::string& path);

}  // namespace vesk
