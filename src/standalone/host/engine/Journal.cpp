#include "standalone/host/engine/Journal.h"

#include "standalone/host/language/Tokenizer.h"
#include "standalone/host/language/Utf8.h"

namespace vesk {
namespace {

/// One line of valid UTF-8: other bytes and control characters as \xNN.
std::string printable(std::string_view text) {
  constexpr char kDigits[] = "0123456789abcdef";
  const bool valid = utf8::findInvalid(text) == utf8::kValid;
  std::string result;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte >= 0x20 && byte != 0x7F && (byte < 0x80 || valid)) {
      result += c;
    } else {
      result += "\\x";
      result += kDigits[byte >> 4];
      result += kDigits[byte & 15];
    }
  }
  return result;
}

}  // namespace

bool Journal::open(const std::string& path) {
  path_ = path;
  file_ = std::ofstream(path, std::ios::binary | std::ios::trunc);
  return file_.is_open();
}

void Journal::note(const Message& message) {
  if (!file_.is_open()) return;
  if (message.kind == MessageKind::Error) append("// Error: " + printable(message.text));
  if (message.kind == MessageKind::Warning) append("// Warning: " + printable(message.text));
}

void Journal::write(std::string_view line, const RunOptions& options, KStatus status) {
  if (!file_.is_open()) return;
  std::string note;
  if (!options.undo) note += " without undo";
  if (!options.display) note += " without echo";
  if (!status) note += " failed with status " + std::to_string(status.statusCode());
  if (!note.empty()) append("//" + note);
  append(tokenize(line).error ? "// not readable: " + printable(line) : std::string(line));
}

void Journal::append(std::string_view text) {
  file_ << text << '\n' << std::flush;
  if (file_) return;
  file_.close();
  messages_.error("the journal \"" + path_ + "\" cannot be written any more");
}

}  // namespace vesk
