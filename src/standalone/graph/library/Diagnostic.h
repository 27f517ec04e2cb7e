#pragma once

#include <string>
#include <vector>

#include "platform/ORV_1_0/OrvApi.h"

namespace orvlib {

/// Why a definition file, or a folder, was left out. Lines and columns count from 1; a line of 0
/// means the file as a whole.
struct ORV_EXPORT Diagnostic {
  std::string file;
  int line = 0;
  int column = 0;
  std::string reason;

  /// "file:line:column: reason", without the position when the whole file is meant.
  std::string toText() const;
};

using Diagnostics = std::vector<Diagnostic>;

}  // namespace orvlib
