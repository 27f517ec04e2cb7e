#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vesk {

class CommandRegistry;

/// The word at the end of a line that is being typed; empty behind a blank.
std::string_view lastWord(std::string_view line);

/// What can stand at the end of `line`, whose last word is `word`: command names for the first word
/// of a statement, flags and modes behind it when the word begins with "-".
std::vector<std::string> completions(const CommandRegistry& registry, std::string_view line,
                                     std::string_view word);

}  // namespace vesk
