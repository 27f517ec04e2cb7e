#pragma once

#include <chrono>
#include <string>
#include <string_view>

#include "platform/OpenVesk/KStatus.h"
#include "standalone/host/engine/Messages.h"
#include "standalone/host/engine/RunOptions.h"

namespace vesk {

/// A file of the lines that were run, in order; it is itself a script. Lines that are but comments
/// are left out: each comment in it is the journal's own.
///
/// Only lines that no other command ran are written, each when it has finished. Comments ahead of a
/// line tell what it showed and what is unusual about it: run without undo or echo, or failed. A
/// replay runs every line with undo. A line that another one left for idle time is a comment: a
/// replay leaves it again.
///
/// Each line is with the system when the next one begins, and, while lines go on, on the disk about
/// a second later.
class Journal {
 public:
  explicit Journal(MessageChannel& messages) : messages_(messages) {}
  ~Journal() { close(); }
  Journal(const Journal&) = delete;
  Journal& operator=(const Journal&) = delete;

  /// Begins the file anew. False, with nothing written later, when it cannot be written.
  bool open(const std::string& path);
  void close();
  bool isOpen() const { return file_ >= 0; }

  /// Has what was written put on the disk. False when it cannot be, or no journal is open.
  bool sync();

  /// When the file can no longer be written, the user is told once.
  void write(std::string_view line, const RunOptions& options, KStatus status);

  /// Writes an error or a warning as a comment; passes over other messages.
  void note(const Message& message);

  /// Writes a text as a comment of one line.
  void note(std::string_view text);

 private:
  using Clock = std::chrono::steady_clock;

  void append(std::string line);
  bool isWritten(std::string_view bytes);

  MessageChannel& messages_;
  std::string path_;
  int file_ = -1;  ///< descriptor; -1 when none is open
  Clock::time_point nextSync_;
};

}  // namespace vesk
