#pragma once

#include <algorithm>
#include <cstring>
#include <string>
#include <string_view>

namespace orvlib {

/// The characters (code points) of UTF-8 text. In bytes that are no UTF-8, the first byte and every
/// byte that is not of the form 10xxxxxx begins a character.

inline bool beginsCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; }

inline std::size_t countCharacters(std::string_view text) {
  if (text.empty()) return 0;
  return 1 + static_cast<std::size_t>(std::count_if(text.begin() + 1, text.end(), beginsCharacter));
}

/// The offset of the character `count` characters after the one at `offset`, or the end of the
/// text.
inline std::size_t advance(std::string_view text, std::size_t offset, std::size_t count) {
  for (; count > 0 && offset < text.size(); --count) {
    do {
      ++offset;
    } while (offset < text.size() && !beginsCharacter(text[offset]));
  }
  return offset;
}

/// The first offset of `pattern`, which is not empty, at or after `from`; npos when there is none.
/// Takes time in proportion to the text whatever the pattern is, which std::string::find does not.
inline std::size_t findText(std::string_view text, std::string_view pattern, std::size_t from = 0) {
  if (from >= text.size()) return text.npos;
  const char* begin = text.data() + from;
  const void* found = memmem(begin, text.size() - from, pattern.data(), pattern.size());
  return found ? static_cast<std::size_t>(static_cast<const char*>(found) - text.data())
               : text.npos;
}

}  // namespace orvlib
