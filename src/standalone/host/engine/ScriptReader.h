#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace vesk {

/// The whole of a script file, or nothing and the reason.
std::optional<std::string> readScript(const std::string& path, std::string& reason);

/// Whether a line of a script says nothing: blank, or a comment alone.
bool isCommentLine(std::string_view line);

/// Calls `line(text, number)` for each line of a script, from 1, until it gives false. Returns the
/// number of the line that gave false, or 0.
std::size_t forEachLine(std::string_view script,
                        const std::function<bool(std::string_view, std::size_t)>& line);

}  // namespace vesk
