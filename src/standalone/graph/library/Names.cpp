#include "standalone/graph/library/Names.h"

#include <algorithm>

namespace orvlib {
namespace {

// Not the <cctype> classes: those follow the locale in force.
bool isLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_'; }
bool isDigit(char c) { return c >= '0' && c <= '9'; }

}  // namespace

bool isIdentifier(std::string_view text) {
  return !text.empty() && isLetter(text.front()) &&
         std::all_of(text.begin(), text.end(), [](char c) { return isLetter(c) || isDigit(c); });
}

bool isQualifiedName(std::string_view text) {
  for (auto end = text.find("::"); end != text.npos; end = text.find("::")) {
    if (!isIdentifier(text.substr(0, end))) return false;
    text.remove_prefix(end + 2);
  }
  return isIdentifier(text);
}

std::string_view parentName(std::string_view qualifiedName) {
  const auto end = qualifiedName.rfind("::");
  return end == qualifiedName.npos ? std::string_view() : qualifiedName.substr(0, end);
}

}  // namespace orvlib
