#include "standalone/graph/texts/PropertiesText.h"

#include "standalone/graph/texts/ListText.h"
#include "standalone/graph/texts/TaggedText.h"

namespace orvlib {
namespace {

constexpr ListTags kTags;
constexpr char kAssign = '=';
constexpr char kKeyTags[] = {kTags.open, kTags.close, kTags.separator, kTags.escape, kAssign, '\0'};

/// Takes one key with its values off the text.
bool takeProperty(std::string_view& rest, Properties& properties) {
  std::string key;
  if (!takeWord(rest, kKeyTags, kTags.escape, key) || !takeTag(rest, kAssign)) return false;
  auto values = takeList(rest);
  if (!values || values->empty() || properties.find(key)) return false;
  return properties.set(key, std::move(*values));
}

}  // namespace

std::string writeProperties(const Properties& properties) {
  std::string text(1, kTags.open);
  for (const Property& property : properties.all()) {
    if (text.size() > 1) text += kTags.separator;
    appendWord(text, property.key, kKeyTags, kTags.escape);
    text += kAssign;
    text += writeList(property.values);
  }
  return text + kTags.close;
}

std::optional<Properties> readProperties(std::string_view text) {
  Properties properties;
  if (text.empty()) return properties;
  if (!takeTag(text, kTags.open)) return std::nullopt;
  while (!takeTag(text, kTags.close)) {
    if (!takeProperty(text, properties)) return std::nullopt;
    if (!takeTag(text, kTags.separator) && !text.starts_with(kTags.close)) return std::nullopt;
  }
  if (!text.empty()) return std::nullopt;
  return properties;
}

}  // namespace orvlib
