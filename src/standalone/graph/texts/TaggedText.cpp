#include "standalone/graph/texts/TaggedText.h"

#include <algorithm>

namespace orvlib {
namespace {

/// Moves the characters before the next tag from the front of `from` to the end of `to`.
void moveUpToTag(std::string_view& from, std::string_view tags, std::string& to) {
  const std::size_t length = std::min(from.find_first_of(tags), from.size());
  to.append(from.substr(0, length));
  from.remove_prefix(length);
}

}  // namespace

void appendWord(std::string& text, std::string_view word, std::string_view tags, char escape) {
  for (moveUpToTag(word, tags, text); !word.empty(); moveUpToTag(word, tags, text)) {
    text += escape;
    text += word.front();
    word.remove_prefix(1);
  }
}

bool takeTag(std::string_view& rest, char tag) {
  if (!rest.starts_with(tag)) return false;
  rest.remove_prefix(1);
  return true;
}

bool takeWord(std::string_view& rest, std::string_view tags, char escape, std::string& word) {
  for (moveUpToTag(rest, tags, word); takeTag(rest, escape); moveUpToTag(rest, tags, word)) {
    if (rest.empty() || tags.find(rest.front()) == std::string_view::npos) return false;
    word += rest.front();
    rest.remove_prefix(1);
  }
  return true;
}

}  // namespace orvlib
