#include "standalone/graph/texts/ValueListText.h"

#include "standalone/graph/texts/ListText.h"
#include "standalone/graph/types/ValueText.h"

namespace orvlib {
namespace {

bool isOneText(const ValueType& type) {
  return type.scalar == ScalarKind::String && !type.isArray() && type.componentCount() == 1;
}

}  // namespace

std::optional<std::vector<std::string>> readValues(std::string_view text, const ValueType* type) {
  if (!type) return readList(text);
  if (text.empty() && isOneText(*type)) return std::vector<std::string>(1);
  auto texts = readList(text);
  return texts && parseValue(*type, *texts).value ? texts : std::nullopt;
}

}  // namespace orvlib
