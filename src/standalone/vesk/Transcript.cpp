#include "standalone/vesk/Transcript.h"

#include <algorithm>
#include <array>
#include <sstream>

#include "standalone/host/engine/ScriptReader.h"

namespace vesk {
namespace {

constexpr std::string_view kInput = "> ";

/// Each line of the text behind the mark, so that every line of a transcript has one.
void writeMarked(std::ostream& out, char mark, std::string_view text) {
  while (true) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    out << mark << ' ' << text.substr(0, end) << '\n';
    if (end == text.size()) return;
    text.remove_prefix(end + 1);
  }
}

bool isOutput(std::string_view line) {
  constexpr std::array<std::string_view, 4> kMarks{"! ", "? ", ": ", "= "};
  for (const std::string_view mark : kMarks) {
    if (line.starts_with(mark)) return true;
  }
  return line.starts_with("# status ");
}

}  // namespace

void TranscriptWriter::lineBegins(std::string_view line) {
  if (isCommentLine(line)) {
    out_ << line << '\n';
  } else {
    out_ << kInput << line << '\n';
  }
}

void TranscriptWriter::message(const Message& message) {
  switch (message.kind) {
    case MessageKind::Error:
      writeMarked(out_, '!', message.text);
      break;
    case MessageKind::Warning:
      writeMarked(out_, '?', message.text);
      break;
    case MessageKind::Print:
      writeMarked(out_, ':', message.text);
      break;
    case MessageKind::Echo:
      break;
  }
}

void TranscriptWriter::lineEnded(const ResultValue& result, KStatus status) {
  if (hasResult(result)) out_ << "= " << toJson(result) << '\n';
  if (!status) out_ << "# status " << status.statusCode() << '\n';
}

std::string rerunTranscript(std::string_view transcript,
                            const std::function<void(std::string_view, LineListener&)>& run,
                            std::string& error) {
  const std::size_t strange = forEachLine(transcript, [](std::string_view line, std::size_t) {
    return line.starts_with(kInput) || isCommentLine(line) || isOutput(line);
  });
  if (strange > 0) {
    error = "line " + std::to_string(strange) + " is no line of a transcript";
    return {};
  }
  std::ostringstream out;
  TranscriptWriter writer(out);
  forEachLine(transcript, [&](std::string_view line, std::size_t) {
    if (line.starts_with(kInput)) {
      run(line.substr(kInput.size()), writer);
    } else if (isCommentLine(line)) {
      out << line << '\n';
    }
    return true;
  });
  return out.str();
}

}  // namespace vesk
