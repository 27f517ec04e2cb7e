#include "standalone/vesk/Prompt.h"

#include <editline/readline.h>

#include <cstdlib>
#include <cstring>
#include <filesystem>

#include "standalone/host/engine/Completion.h"

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

void rememberLine(const char* line, const std::string& historyFile) {
  if (!*line) return;
  add_history(line);
  if (!historyFile.empty()) write_history(historyFile.c_str());
}

}  // namespace

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
