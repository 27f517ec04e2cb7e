#pragma once

#include <string>
#include <vector>

#include "standalone/vesk/Startup.h"

/// What came of one line.
struct LineOutcome {
  int status = 0;
  std::vector<std::string> messages;  ///< with the marks of transcripts
  std::string result;                 ///< as JSON
  unsigned brackets = 0;              ///< graphs that had one open behind it
  bool hasOpenChunk = false;

  bool operator==(const LineOutcome& other) const = default;
};

/// Runs the lines of a transcript on a platform, one by one.
class TranscriptRun final : private vesk::LineListener {
 public:
  TranscriptRun(vesk::Platform& platform, const std::string& transcript);

  const std::vector<std::string>& lines() const { return lines_; }

  /// Whether there is a line left; it is run.
  bool next();

  /// Of the lines that were run.
  const std::vector<LineOutcome>& outcomes() const { return outcomes_; }

  vesk::Platform& platform() { return platform_; }

  /// Runs a line that is not in the transcript.
  LineOutcome run(const std::string& line);

 private:
  void lineBegins(std::string_view) override {}
  void message(const vesk::Message& message) override;
  void lineEnded(const vesk::ResultValue& result, KStatus status) override;

  vesk::Platform& platform_;
  std::vector<std::string> lines_;
  std::vector<LineOutcome> outcomes_;
  LineOutcome current_;
};
