#include "standalone/host/engine/ScriptReader.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace vesk {
namespace {

/// Some editors put it ahead of UTF-8 text.
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

}  // namespace

std::optional<std::string> readScript(const std::string& path, std::string& reason) {
  std::error_code error;
  if (std::filesystem::is_directory(path, error)) {
    reason = "it is a folder";
    return std::nullopt;
  }
  errno = 0;
  std::ifstream file(path, std::ios::binary);
  std::string text{std::istreambuf_iterator<char>(file), {}};
  if (!file.is_open() || file.bad()) {
    reason = std::strerror(errno ? errno : EIO);
    return std::nullopt;
  }
  if (text.starts_with(kByteOrderMark)) text.erase(0, kByteOrderMark.size());
  return text;
}

bool isCommentLine(std::string_view line) {
  const std::size_t first = line.find_first_not_of(" \t\r");
  return first == std::string_view::npos || line.substr(first).starts_with("//");
}

std::size_t forEachLine(std::string_view script,
                        const std::function<bool(std::string_view, std::size_t)>& line) {
  std::size_t number = 0;
  while (!script.empty()) {
    const std::size_t end = std::min(script.find('\n'), script.size());
    if (!line(script.substr(0, end), ++number)) return number;
    script.remove_prefix(std::min(end + 1, script.size()));
  }
  return 0;
}

}  // namespace vesk
