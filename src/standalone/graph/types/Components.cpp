#include "standalone/graph/types/Components.h"

#include <algorithm>
#include <variant>

namespace orvlib {
namespace {

/// The components of `part`, as those of the same kind as `other`.
template <class Components>
const Components& sameKind(const Components&, const Value& part) {
  return std::get<Components>(part);
}

}  // namespace

Value componentsOf(const Value& value, std::size_t first, std::size_t count) {
  return std::visit(
      [=](const auto& all) -> Value {
        const auto begin = all.begin() + static_cast<std::ptrdiff_t>(first);
        return std::decay_t<decltype(all)>(begin, begin + static_cast<std::ptrdiff_t>(count));
      },
      value);
}

void setComponents(Value& value, std::size_t first, const Value& part) {
  std::visit(
      [&](auto& all) {
        const auto& fresh = sameKind(all, part);
        std::copy(fresh.begin(), fresh.end(), all.begin() + static_cast<std::ptrdiff_t>(first));
      },
      value);
}

void appendComponents(Value& value, const Value& part) {
  std::visit(
      [&](auto& all) {
        const auto& fresh = sameKind(all, part);
        all.insert(all.end(), fresh.begin(), fresh.end());
      },
      value);
}

std::size_t componentCount(const Value& value) {
  return std::visit([](const auto& all) { return all.size(); }, value);
}

bool isOfType(const Value& value, const ValueType& type) {
  if (scalarKindOf(value) != type.scalar) return false;
  const std::size_t count = componentCount(value);
  return type.isArray() ? count % type.componentCount() == 0 : count == type.componentCount();
}

}  // namespace orvlib
