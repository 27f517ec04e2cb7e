#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "standalone/vesk/LineSource.h"

namespace vesk {

class CommandRegistry;

/// What can stand at the end of `line`, whose last word is `word`: command names for the first word
/// of a statement, flags and modes behind it when the word begins with "-".
std::vector<std::string> completions(const CommandRegistry& registry, std::string_view line,
                                     std::string_view word);

/// Lines typed at a prompt, with completion and a history that is kept in `historyFile` unless that
/// is empty.
LineSource promptLines(const CommandRegistry& registry, const std::string& historyFile);

}  // namespace vesk
