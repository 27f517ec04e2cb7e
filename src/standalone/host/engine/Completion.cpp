#include "standalone/host/engine/Completion.h"

#include <algorithm>

#include "standalone/host/engine/CommandRegistry.h"
#include "standalone/host/engine/HostAccess.h"

namespace vesk {
namespace {

/// The part of a line behind the last ";".
std::string_view lastStatement(std::string_view line) {
  line.remove_prefix(line.rfind(';') + 1);
  line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
  return line;
}

/// The modes too, which are no flags of the syntax.
std::vector<std::string> flagCompletions(const SyntaxData& syntax, std::string_view word) {
  std::vector<std::string> names = syntax.completions(word);
  const auto offer = [&](const std::string& mode) {
    if (mode.starts_with(word)) names.push_back(mode);
  };
  if (syntax.hasQuery()) offer("-query");
  if (syntax.hasEdit()) offer("-edit");
  return names;
}

}  // namespace

std::string_view lastWord(std::string_view line) {
  return line.substr(line.find_last_of(" \t;\n") + 1);
}

std::vector<std::string> completions(const CommandRegistry& registry, std::string_view line,
                                     std::string_view word) {
  const std::string_view statement = lastStatement(line);
  const std::string_view command = statement.substr(0, statement.find_first_of(" \t"));
  if (command.size() < statement.size()) {
    const auto entry = registry.find(command);
    if (!entry || !word.starts_with('-')) return {};
    return flagCompletions(HostAccess::data(entry->syntax), word);
  }
  std::vector<std::string> names = registry.names();
  std::erase_if(names, [word](const std::string& name) { return !name.starts_with(word); });
  return names;
}

}  // namespace vesk
