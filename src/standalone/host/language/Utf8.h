#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vesk::utf8 {

inline constexpr std::size_t kValid = std::string_view::npos;

/// The byte offset of the first sequence that is not valid UTF-8, or `kValid`.
std::size_t findInvalid(std::string_view text);

/// Characters (code points) of valid UTF-8.
std::size_t countCharacters(std::string_view text);

/// The byte offset of the character with this index, or the text's size when there are fewer.
std::size_t offsetOfCharacter(std::string_view text, std::size_t index);

/// The text with every invalid byte replaced by U+FFFD.
std::string repaired(std::string_view text);

void append(std::string& text, char32_t character);

/// Reads the character at `offset` of valid UTF-8 and moves `offset` past it.
char32_t next(std::string_view text, std::size_t& offset);

}  // namespace vesk::utf8
