#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace vesk {

/// Whether a script may come from a named pipe, which is read until its writer closes it.
enum class Pipes : bool { Refused, Allowed };

/// The whole of a script without a byte order mark, or nothing and the reason. Nothing but files
/// and pipes is opened, and no more than 256 MiB are read.
std::optional<std::string> readScript(const std::string& path, std::string& reason,
                                      Pipes pipes = Pipes::Refused);

/// The text without the mark that some editors put ahead of UTF-8.
std::string_view withoutByteOrderMark(std::string_view text);

/// Whether a line of a script says nothing: blank, or a comment alone.
bool isCommentLine(std::string_view line);

/// Takes the first line off a text and gives it without its end. The text must not be empty.
std::string_view takeLine(std::string_view& text);

/// Calls `line(text, number)` for each line of a script, from 1, until it gives false. Returns the
/// number of the line that gave false, or 0.
std::size_t forEachLine(std::string_view script,
                        const std::function<bool(std::string_view, std::size_t)>& line);

}  // namespace vesk
