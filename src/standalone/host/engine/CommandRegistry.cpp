#include "standalone/host/engine/CommandRegistry.h"

#include <algorithm>

namespace vesk {
namespace {

bool isCommandName(std::string_view name) {
  const auto isLetter = [](char c) { return ((c | 32) >= 'a' && (c | 32) <= 'z') || c == '_'; };
  const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
  return !name.empty() && isLetter(name.front()) &&
         std::all_of(name.begin(), name.end(), [&](char c) { return isLetter(c) || isDigit(c); });
}

}  // namespace

CommandRegistry::Outcome CommandRegistry::add(CommandEntry entry) {
  if (!isCommandName(entry.name) || !entry.creator) return Outcome::BadName;
  std::string name = entry.name;
  if (entries_.contains(name)) return Outcome::NameTaken;
  entries_.emplace(std::move(name), std::make_shared<CommandEntry>(std::move(entry)));
  return Outcome::Registered;
}

bool CommandRegistry::remove(std::string_view name, const Plugin* owner) {
  const auto found = entries_.find(name);
  if (found == entries_.end() || found->second->owner != owner) return false;
  entries_.erase(found);
  return true;
}

void CommandRegistry::removeAllOf(const Plugin* owner) {
  std::erase_if(entries_, [owner](const auto& entry) { return entry.second->owner == owner; });
}

bool CommandRegistry::hasCommandOf(const Plugin* owner) const {
  return std::any_of(entries_.begin(), entries_.end(),
                     [owner](const auto& entry) { return entry.second->owner == owner; });
}

std::shared_ptr<const CommandEntry> CommandRegistry::find(std::string_view name) const {
  const auto found = entries_.find(name);
  return found == entries_.end() ? nullptr : found->second;
}

template <class Predicate>
std::vector<std::string> CommandRegistry::sortedNames(Predicate belongs) const {
  std::vector<std::string> result;
  for (const auto& [name, entry] : entries_) {
    if (belongs(*entry)) result.push_back(name);
  }
  std::sort(result.begin(), result.end());
  return result;
}

std::vector<std::string> CommandRegistry::names() const {
  return sortedNames([](const CommandEntry&) { return true; });
}

std::vector<std::string> CommandRegistry::namesOf(const Plugin* owner) const {
  return sortedNames([owner](const CommandEntry& entry) { return entry.owner == owner; });
}

}  // namespace vesk
