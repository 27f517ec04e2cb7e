#include "standalone/host/engine/Journal.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "standalone/host/language/Tokenizer.h"
#include "standalone/host/language/Utf8.h"

namespace vesk {
namespace {

constexpr std::chrono::seconds kSyncInterval{1};

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
  close();
  path_ = path;
  file_ = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
  nextSync_ = Clock::now() + kSyncInterval;
  return file_ >= 0;
}

void Journal::close() {
  if (file_ >= 0) ::close(std::exchange(file_, -1));
}

void Journal::note(const Message& message) {
  if (message.kind == MessageKind::Error) note("Error: " + std::string(message.text));
  if (message.kind == MessageKind::Warning) note("Warning: " + std::string(message.text));
}

void Journal::note(std::string_view text) {
  if (file_ >= 0) append("// " + printable(text));
}

void Journal::write(std::string_view line, const RunOptions& options, KStatus status) {
  if (file_ < 0) return;
  const TokenizedText read = tokenize(line);
  if (!read.error && read.statements.empty()) return;
  if (options.leftByLine) return note("when idle: " + std::string(line));
  std::string unusual;
  if (!options.undo) unusual += " without undo";
  if (!options.display) unusual += " without echo";
  if (!status) unusual += " failed with status " + std::to_string(status.statusCode());
  if (!unusual.empty()) append("//" + unusual);
  append(read.error ? "// not readable: " + printable(line) : std::string(line));
}

/// At one go: where the program ends amid a line, all of it is there or nothing.
void Journal::append(std::string line) {
  line += '\n';
  if (isWritten(line)) return;
  close();
  messages_.error("the journal \"" + path_ + "\" cannot be written any more");
}

bool Journal::isWritten(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(file_, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  if (Clock::now() < nextSync_) return true;
  nextSync_ = Clock::now() + kSyncInterval;
  return sync();
}

/// What cannot be synced, such as a pipe, is written all the same.
bool Journal::sync() {
  return file_ >= 0 && (fdatasync(file_) == 0 || errno == EINVAL || errno == EROFS);
}

}  // namespace vesk
