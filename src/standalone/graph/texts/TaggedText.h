#pragma once

#include <string>
#include <string_view>

namespace orvlib {

/// Single characters, the tags, structure a text. A tag that belongs to a word of the text has the
/// escape character before it; that character is a tag too. A reader takes a text off bit by bit,
/// from the front of a view.

void appendWord(std::string& text, std::string_view word, std::string_view tags, char escape);

/// Whether the tag was the next character, which is then taken off.
bool takeTag(std::string_view& rest, char tag);

/// Takes off everything before the next tag that is not escaped, and appends it to `word`. False
/// for an escape character with no tag after it.
bool takeWord(std::string_view& rest, std::string_view tags, char escape, std::string& word);

}  // namespace orvlib
