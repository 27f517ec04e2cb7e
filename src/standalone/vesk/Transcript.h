#pragma once

#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>

#include "standalone/vesk/Console.h"

namespace vesk {

/// Writes what lines do as a transcript: `> ` a line, `! ` an error, `? ` a warning, `: ` a text
/// that was printed, `= ` the result as JSON, `# status N` unless it is 0.
class TranscriptWriter : public LineListener {
 public:
  explicit TranscriptWriter(std::ostream& out) : out_(out) {}

  void lineBegins(std::string_view line) override;
  void message(const Message& message) override;
  void lineEnded(const ResultValue& result, KStatus status) override;

 private:
  std::ostream& out_;
};

/// Runs the `> ` lines of a transcript again through `run` and returns the transcript that this
/// gives; comments and blank lines stay. Throws nothing; a line of another kind is told in `error`
/// with its number, and nothing is run.
std::string rerunTranscript(std::string_view transcript,
                            const std::function<void(std::string_view, LineListener&)>& run,
                            std::string& error);

}  // namespace vesk
