#include "standalone/graph/texts/ListText.h"

#include "standalone/graph/texts/TaggedText.h"

namespace orvlib {
namespace {

using Texts = std::optional<std::vector<std::string>>;

std::string allOf(const ListTags& tags) {
  return {tags.open, tags.close, tags.separator, tags.escape};
}

/// The elements after the opening brace, and the closing one.
Texts takeElements(std::string_view& rest, const ListTags& tags) {
  const std::string all = allOf(tags);
  std::vector<std::string> texts;
  while (!takeTag(rest, tags.close)) {
    std::string text;
    if (!takeWord(rest, all, tags.escape, text)) return std::nullopt;
    if (!takeTag(rest, tags.separator) && !rest.starts_with(tags.close)) return std::nullopt;
    texts.push_back(std::move(text));
  }
  return texts;
}

/// The whole of a text without braces.
Texts readBareText(std::string_view rest, const ListTags& tags) {
  const std::string all = allOf(tags);
  std::string text;
  if (!takeWord(rest, all, tags.escape, text)) return std::nullopt;
  while (takeTag(rest, tags.separator)) {
    text += tags.separator;
    if (!takeWord(rest, all, tags.escape, text)) return std::nullopt;
  }
  if (!rest.empty()) return std::nullopt;
  return std::vector<std::string>{text};
}

}  // namespace

std::string writeList(std::span<const std::string> texts, const ListTags& tags) {
  const std::string all = allOf(tags);
  std::string list;
  if (texts.size() == 1 && !texts.front().empty()) {
    appendWord(list, texts.front(), all, tags.escape);
    return list;
  }
  list += tags.open;
  for (const std::string& text : texts) {
    appendWord(list, text, all, tags.escape);
    if (&text != &texts.back() || text.empty()) list += tags.separator;
  }
  list += tags.close;
  return list;
}

Texts readList(std::string_view text, const ListTags& tags) {
  if (text.empty()) return std::vector<std::string>();
  if (!takeTag(text, tags.open)) return readBareText(text, tags);
  Texts texts = takeElements(text, tags);
  return text.empty() ? texts : std::nullopt;
}

Texts takeList(std::string_view& rest) {
  const ListTags tags;
  if (takeTag(rest, tags.open)) return takeElements(rest, tags);
  std::string text;
  if (!takeWord(rest, allOf(tags), tags.escape, text)) return std::nullopt;
  return text.empty() ? std::vector<std::string>() : std::vector<std::string>{text};
}

}  // namespace orvlib
