#pragma once

#include <fstream>
#include <string>
#include <string_view>

#include "platform/OpenVesk/KStatus.h"
#include "standalone/host/engine/RunOptions.h"

namespace vesk {

/// A file of the lines that were run, in order; it is itself a script.
///
/// Only lines that no other command ran are written, each when it has finished. A comment ahead of
/// a line tells what is unusual about it: run without undo or echo, or failed.
class Journal {
 public:
  /// Begins the file anew. False, with nothing written later, when it cannot be written.
  bool open(const std::string& path);
  bool isOpen() const { return file_.is_open(); }

  void write(std::string_view line, const RunOptions& options, KStatus status);

 private:
  std::ofstream file_;
};

}  // namespace vesk
