#include "standalone/graph/library/ValueReader.h"

#include "standalone/graph/types/ValueText.h"

namespace orvlib {

Value readDefault(const Fields& fields, const ValueType& type, const Value& fallback) {
  const YamlNode* node = fields.find("default");
  if (!node) return fallback;
  ParsedValue parsed = parseValue(type, toTexts(*node));
  if (!parsed.value) fields.fail("default", "the default does not fit: " + parsed.reason);
  return std::move(*parsed.value);
}

}  // namespace orvlib
