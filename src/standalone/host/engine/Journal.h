#pragma once

#include <fstream>
#include <string>
#include <string_view>

#include "platform/OpenVesk/KStatus.h"
#include "standalone/host/engine/Messages.h"
#include "standalone/host/engine/RunOptions.h"

namespace vesk {

/// A file of the lines that were run, in order; it is itself a script.
///
/// Only lines that no other command ran are written, each when it has finished. Comments ahead of a
/// line tell what it showed and what is unusual about it: run without undo or echo, or failed. A
/// replay runs every line with undo.
class Journal {
 public:
  explicit Journal(MessageChannel& messages) : messages_(messages) {}

  /// Begins the file anew. False, with nothing written later, when it cannot be written.
  bool open(const std::string& path);

  /// When the file can no longer be written, the user is told once.
  void write(std::string_view line, const RunOptions& options, KStatus status);

  /// Writes an error or a warning as a comment; passes over other messages.
  void note(const Message& message);

 private:
  void append(std::string_view text);

  MessageChannel& messages_;
  std::string path_;
  std::ofstream file_;
};

}  // namespace vesk
