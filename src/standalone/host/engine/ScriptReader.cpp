#include "standalone/host/engine/ScriptReader.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace vesk {
namespace {

/// Far beyond any script; what has no end is stopped here.
constexpr std::size_t kMaximumSize = std::size_t{256} << 20;

/// Why a path is not even opened, which could wait without end or do something to a device.
std::string_view refusalToOpen(const std::string& path, Pipes pipes) {
  std::error_code unknown;
  switch (std::filesystem::status(path, unknown).type()) {
    case std::filesystem::file_type::directory:
      return "it is a folder";
    case std::filesystem::file_type::block:
    case std::filesystem::file_type::character:
      return "it is a device";
    case std::filesystem::file_type::socket:
      return "it is a socket";
    case std::filesystem::file_type::fifo:
      return pipes == Pipes::Allowed ? "" : "it is a pipe";
    default:
      return "";  // a file, or what opening it will tell
  }
}

/// The whole, or a little more than is allowed.
std::string readAll(std::istream& file) {
  std::string text;
  char bytes[1 << 16];
  while (text.size() <= kMaximumSize && (file.read(bytes, sizeof bytes) || file.gcount() > 0)) {
    text.append(bytes, static_cast<std::size_t>(file.gcount()));
  }
  return text;
}

}  // namespace

std::optional<std::string> readScript(const std::string& path, std::string& reason, Pipes pipes) {
  reason = refusalToOpen(path, pipes);
  if (!reason.empty()) return std::nullopt;
  errno = 0;
  std::ifstream file(path, std::ios::binary);
  const std::string text = readAll(file);
  if (!file.is_open() || file.bad()) {
    reason = std::strerror(errno ? errno : EIO);
    return std::nullopt;
  }
  if (text.size() > kMaximumSize) {
    reason = "it is longer than 256 MiB";
    return std::nullopt;
  }
  return std::string(withoutByteOrderMark(text));
}

std::string_view withoutByteOrderMark(std::string_view text) {
  constexpr std::string_view kMark = "\xEF\xBB\xBF";
  if (text.starts_with(kMark)) text.remove_prefix(kMark.size());
  return text;
}

bool isCommentLine(std::string_view line) {
  const std::size_t first = line.find_first_not_of(" \t\r");
  return first == std::string_view::npos || line.substr(first).starts_with("//");
}

std::string_view takeLine(std::string_view& text) {
  const std::size_t end = std::min(text.find('\n'), text.size());
  const std::string_view line = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return line;
}

std::size_t forEachLine(std::string_view script,
                        const std::function<bool(std::string_view, std::size_t)>& line) {
  std::size_t number = 0;
  while (!script.empty()) {
    if (!line(takeLine(script), ++number)) return number;
  }
  return 0;
}

}  // namespace vesk
