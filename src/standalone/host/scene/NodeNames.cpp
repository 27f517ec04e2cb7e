#include "standalone/host/scene/NodeNames.h"

#include <algorithm>
#include <charconv>

namespace vesk {
namespace {

// Not the <cctype> classes: those follow the locale in force.
bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_'; }
bool continuesCharacter(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

}  // namespace

bool isNodeName(std::string_view text) {
  return !text.empty() && isLetter(text.front()) &&
         std::all_of(text.begin(), text.end(), [](char c) { return isLetter(c) || isDigit(c); });
}

std::string cleanNodeName(std::string_view text) {
  std::string name;
  if (!text.empty() && isDigit(text.front())) name = "_";
  for (const char c : text) {
    if (!continuesCharacter(c)) name += isLetter(c) || isDigit(c) ? c : '_';
  }
  return name;
}

SceneNodePtr NodeNames::find(std::string_view name) const {
  const auto found = nodes_.find(name);
  return found == nodes_.end() ? nullptr : found->second;
}

bool NodeNames::add(const SceneNodePtr& node) {
  return nodes_.try_emplace(node->name(), node).second;
}

void NodeNames::remove(std::string_view name) {
  const auto found = nodes_.find(name);
  if (found == nodes_.end()) return;
  // "a12" is number 12 of "a" and number 2 of "a1".
  for (std::size_t split = name.size(); split > 1 && isDigit(name[split - 1]);) {
    --split;
    const auto base = takenBelow_.find(name.substr(0, split));
    if (base == takenBelow_.end() || name[split] == '0') continue;
    std::uint64_t number = 0;
    const auto read = std::from_chars(&name[split], name.data() + name.size(), number);
    if (read.ec == std::errc()) base->second = std::min(base->second, number);
  }
  nodes_.erase(found);
}

std::string NodeNames::freeName(std::string_view name) {
  if (!nodes_.contains(name)) return std::string(name);
  std::uint64_t& number = takenBelow_.try_emplace(std::string(name), 1).first->second;
  std::string candidate = std::string(name) + std::to_string(number);
  while (nodes_.contains(candidate)) candidate = std::string(name) + std::to_string(++number);
  return candidate;
}

}  // namespace vesk
