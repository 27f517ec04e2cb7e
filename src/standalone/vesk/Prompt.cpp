#include "standalone/vesk/Prompt.h"

#include <editline/readline.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <filesystem>

#include "standalone/host/engine/CommandRegistry.h"
#include "standalone/host/engine/HostAccess.h"

namespace vesk {
namespace {

constexpr int kHistoryLength = 1000;

/// The line editor's callbacks carry no data of the caller's.
const CommandRegistry* completedRegistry = nullptr;
std::vector<std::string> offered;

char* nextOffered(const char*, int state) {
  static std::size_t next = 0;
  if (state == 0) next = 0;
  return next < offered.size() ? strdup(offered[next++].c_str()) : nullptr;
}

char** complete(const char* word, int, int) {
  offered = completions(*completedRegistry, rl_line_buffer, word);
  rl_attempted_completion_over = 1;
  return offered.empty() ? nullptr : rl_completion_matches(word, nextOffered);
}

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

void rememberLine(const char* line, const std::string& historyFile) {
  if (!*line) return;
  add_history(line);
  if (!historyFile.empty()) write_history(historyFile.c_str());
}

}  // namespace

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

LineSource promptLines(const CommandRegistry& registry, const std::string& historyFile) {
  completedRegistry = &registry;
  rl_readline_name = "vesk";
  rl_attempted_completion_function = complete;
  using_history();
  stifle_history(kHistoryLength);
  if (!historyFile.empty()) {
    std::error_code ignored;
    std::filesystem::create_directories(std::filesystem::path(historyFile).parent_path(), ignored);
    read_history(historyFile.c_str());
  }
  return [historyFile, number = 0]() mutable -> std::optional<PlacedLine> {
    char* line = readline("vesk> ");
    if (!line) return std::nullopt;
    rememberLine(line, historyFile);
    PlacedLine placed{line, "prompt:" + std::to_string(++number)};
    std::free(line);
    return placed;
  };
}

}  // namespace vesk
