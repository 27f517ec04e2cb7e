#include "standalone/graph/evaluation/kernels/Characters.h"
#include "standalone/graph/evaluation/kernels/Counting.h"
#include "standalone/graph/evaluation/kernels/KernelTables.h"

namespace orvlib {
namespace {

using Text = const std::string&;

constexpr auto kNowhere = std::string_view::npos;

std::string substring(Text text, std::int32_t start, std::int32_t count) {
  const std::size_t first = advance(text, 0, static_cast<std::size_t>(std::max(start, 0)));
  if (count < 0) return text.substr(first);
  return text.substr(first, advance(text, first, static_cast<std::size_t>(count)) - first);
}

std::int32_t find(Text text, Text pattern, std::int32_t start) {
  const auto skipped = static_cast<std::size_t>(std::max(start, 0));
  if (skipped > countCharacters(text)) return -1;
  const std::size_t from = advance(text, 0, skipped);
  const std::size_t found = pattern.empty() ? from : findText(text, pattern, from);
  if (found == kNowhere) return -1;
  return toCount(countCharacters(std::string_view(text).substr(0, found)));
}

/// Adds `part` to `result`, or says that the limit leaves no room for it.
bool addWithinLimit(std::string& result, std::string_view part) {
  if (part.size() > kMaxResultSize - result.size()) return false;
  result += part;
  return true;
}

std::string replace(Text text, Text pattern, Text replacement) {
  if (pattern.empty()) return text;
  const std::string_view all = text;
  std::string result;
  std::size_t done = 0;
  for (std::size_t at = 0; (at = findText(all, pattern, done)) != kNowhere;) {
    if (!addWithinLimit(result, all.substr(done, at - done))) return {};
    if (!addWithinLimit(result, replacement)) return {};
    done = at + pattern.size();
  }
  return addWithinLimit(result, all.substr(done)) ? result : std::string();
}

bool contains(Text text, Text pattern) {
  return pattern.empty() || findText(text, pattern) != kNowhere;
}

/// Turns the 26 letters from `first` on into those from `target` on.
std::string shiftLetters(std::string text, char first, char target) {
  for (char& letter : text) {
    if (letter >= first && letter < first + 26) letter = static_cast<char>(letter - first + target);
  }
  return text;
}

std::string trim(Text text) {
  constexpr const char* kBlanks = " \t\r\n";
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == kNowhere) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::string repeat(Text text, std::int32_t count) {
  if (count < 1 || text.size() > kMaxResultSize / static_cast<std::size_t>(count)) return {};
  std::string result;
  result.reserve(text.size() * static_cast<std::size_t>(count));
  for (std::int32_t i = 0; i < count && !text.empty(); ++i) result += text;
  return result;
}

/// Collects parts, and none at all when they pass the limit.
class Parts {
 public:
  bool add(std::string_view part) {
    size_ += part.size() + 1;
    if (size_ > kMaxResultSize) {
      texts_ = {};
      return false;
    }
    texts_.emplace_back(part);
    return true;
  }
  Texts take() { return std::move(texts_); }

 private:
  Texts texts_;
  std::size_t size_ = 0;
};

Texts splitCharacters(std::string_view text) {
  Parts parts;
  for (std::size_t first = 0; first < text.size();) {
    const std::size_t next = advance(text, first, 1);
    if (!parts.add(text.substr(first, next - first))) break;
    first = next;
  }
  return parts.take();
}

Texts split(Text text, Text separator) {
  if (separator.empty() && !text.empty()) return splitCharacters(text);
  const std::string_view all = text;
  Parts parts;
  std::size_t done = 0;
  for (std::size_t at = 0; (at = findText(all, separator, done)) != kNowhere;) {
    if (!parts.add(all.substr(done, at - done))) return {};
    done = at + separator.size();
  }
  parts.add(all.substr(done));
  return parts.take();
}

std::string join(std::span<const std::string> parts, Text separator) {
  std::string result;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    if (i > 0 && !addWithinLimit(result, separator)) return {};
    if (!addWithinLimit(result, parts[i])) return {};
  }
  return result;
}

constexpr KernelEntry kKernels[] = {
    entry("core::string::concatenate", [](Text a, Text b) { return a + b; }),
    entry("core::string::length", [](Text text) { return toCount(countCharacters(text)); }),
    entry<substring>("core::string::substring"),
    entry<find>("core::string::find"),
    entry<replace>("core::string::replace"),
    entry<contains>("core::string::contains"),
    entry("core::string::starts_with",
          [](Text text, Text prefix) { return text.starts_with(prefix); }),
    entry("core::string::ends_with", [](Text text, Text suffix) { return text.ends_with(suffix); }),
    entry("core::string::to_upper", [](Text text) { return shiftLetters(text, 'a', 'A'); }),
    entry("core::string::to_lower", [](Text text) { return shiftLetters(text, 'A', 'a'); }),
    entry<trim>("core::string::trim"),
    entry<repeat>("core::string::repeat"),
    entry<split>("core::string::split"),
    entry<join>("core::string::join"),
};

}  // namespace

KernelTable stringKernels() { return kKernels; }

}  // namespace orvlib
