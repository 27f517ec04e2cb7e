#include "standalone/graph/model/NameRules.h"

#include <algorithm>
#include <charconv>

namespace orvlib {
namespace {

// As many digits as any number of 64 bits can have.
constexpr std::size_t kMostDigits = 18;

// Not the <cctype> classes: those follow the locale in force.
bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isNameCharacter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || isDigit(c);
}
bool isContinuation(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

/// Bytes of the character of UTF-8 that begins the text; 1 for what is no such character.
std::size_t characterLength(std::string_view text) {
  const auto first = static_cast<unsigned char>(text.front());
  const std::size_t announced = first < 0xC0 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
  std::size_t length = 1;
  while (length < std::min(announced, text.size()) && isContinuation(text[length])) ++length;
  return length;
}

/// Where the number at the end of the name begins; the name's length if there is none.
std::size_t beginOfNumber(std::string_view name) {
  std::size_t begin = name.size();
  while (begin > 0 && isDigit(name[begin - 1])) --begin;
  while (begin + 1 < name.size() && name[begin] == '0') ++begin;
  return begin;
}

}  // namespace

std::string cleanName(std::string_view text) {
  std::string name;
  name.reserve(text.size() + 1);
  if (text.empty() || isDigit(text.front())) name += '_';
  while (!text.empty()) {
    name += isNameCharacter(text.front()) ? text.front() : '_';
    text.remove_prefix(characterLength(text));
  }
  return name;
}

NumberedName numberedName(std::string_view name) {
  const std::size_t begin = beginOfNumber(name);
  if (begin == name.size()) return {std::string(name)};
  if (name.size() - begin > kMostDigits) return {std::string(name) + '_'};
  NumberedName found{std::string(name.substr(0, begin)), 0};
  std::from_chars(name.data() + begin, name.data() + name.size(), found.number);
  return found;
}

}  // namespace orvlib
