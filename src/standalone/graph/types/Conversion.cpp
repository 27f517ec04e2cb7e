#include "standalone/graph/types/Conversion.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>

#include "standalone/graph/types/ScalarConversion.h"

namespace orvlib {
namespace {

enum class Meaning { Any, Plain, Color };

/// Where the components of a vector or color come from, when the numbers of components differ.
struct Mapping {
  std::size_t from;
  Meaning fromMeaning;
  std::size_t to;
  Meaning toMeaning;
  std::array<int, 4> sources;
};

/// A component that has no source and is 1.
constexpr int kOne = -1;

constexpr Mapping kMappings[] = {
    // a number fills a vector or a color
    {1, Meaning::Any, 2, Meaning::Any, {0, 0}},
    {1, Meaning::Any, 3, Meaning::Any, {0, 0, 0}},
    {1, Meaning::Any, 4, Meaning::Plain, {0, 0, 0, 0}},
    {1, Meaning::Any, 4, Meaning::Color, {0, 0, 0, kOne}},
    // a color gains or loses its alpha
    {3, Meaning::Color, 4, Meaning::Color, {0, 1, 2, kOne}},
    {4, Meaning::Color, 3, Meaning::Color, {0, 1, 2}},
};

const ValueType& elementOf(const ValueType& type) { return type.element ? *type.element : type; }

/// Named r, g, b and perhaps a.
bool isColor(const ValueType& type) {
  static constexpr std::array<std::string_view, 4> kNames{"r", "g", "b", "a"};
  const auto& names = type.components;
  return (names.size() == 3 || names.size() == 4) &&
         std::equal(names.begin(), names.end(), kNames.begin());
}

bool hasMeaning(const ValueType& type, Meaning meaning) {
  return meaning == Meaning::Any || (meaning == Meaning::Color) == isColor(type);
}

/// Null when no mapping leads from one to the other. Neither is an array.
const Mapping* findMapping(const ValueType& from, const ValueType& to) {
  const auto fits = [&](const Mapping& mapping) {
    return mapping.from == from.componentCount() && mapping.to == to.componentCount() &&
           hasMeaning(from, mapping.fromMeaning) && hasMeaning(to, mapping.toMeaning);
  };
  const auto* found = std::find_if(std::begin(kMappings), std::end(kMappings), fits);
  return found == std::end(kMappings) ? nullptr : found;
}

bool isNumber(ScalarKind kind) { return kind != ScalarKind::String; }

bool canConvertElement(const ValueType& from, const ValueType& to) {
  if (isNumber(from.scalar) != isNumber(to.scalar)) return false;
  if (from.componentCount() == to.componentCount()) return true;
  return isNumber(from.scalar) && findMapping(from, to);
}

template <class To, class From>
void appendMapped(const Mapping& mapping, std::span<const From> element, To& result) {
  using Scalar = typename To::value_type;
  for (std::size_t i = 0; i < mapping.to; ++i) {
    const int source = mapping.sources[i];
    result.push_back(source == kOne ? Scalar{1} : convertScalar<Scalar>(element[source]));
  }
}

/// All elements. A null mapping takes component by component.
template <class To, class From>
To convertNumbers(const From& from, const Mapping* mapping) {
  using Scalar = typename To::value_type;
  To result;
  if (!mapping) {
    result.reserve(from.size());
    for (const auto number : from) result.push_back(convertScalar<Scalar>(number));
    return result;
  }
  result.reserve(from.size() / mapping->from * mapping->to);
  const std::span<const typename From::value_type> all(from);
  for (std::size_t i = 0; i + mapping->from <= all.size(); i += mapping->from) {
    appendMapped(*mapping, all.subspan(i, mapping->from), result);
  }
  return result;
}

template <class From>
Value convertFrom(const From& from, ScalarKind to, const Mapping* mapping) {
  switch (to) {
    case ScalarKind::Boolean:
      return convertNumbers<Booleans>(from, mapping);
    case ScalarKind::Integer:
      return convertNumbers<Integers>(from, mapping);
    case ScalarKind::Float:
      return convertNumbers<Floats>(from, mapping);
    case ScalarKind::String:
      break;
  }
  return Texts();
}

template <>
Value convertFrom(const Texts& from, ScalarKind, const Mapping*) {
  return from;
}

}  // namespace

bool canConvert(const ValueType& from, const ValueType& to) {
  if (from.isArray() && !to.isArray()) return false;
  return canConvertElement(elementOf(from), elementOf(to));
}

bool hasSameLayout(const ValueType& from, const ValueType& to) {
  return from.scalar == to.scalar && from.isArray() == to.isArray() &&
         from.componentCount() == to.componentCount();
}

Value convert(const Value& value, const ValueType& from, const ValueType& to) {
  if (!canConvert(from, to)) return to.defaultValue;
  const ValueType& element = elementOf(from);
  const Mapping* mapping = element.componentCount() == to.componentCount()
                               ? nullptr
                               : findMapping(element, elementOf(to));
  if (!mapping && from.scalar == to.scalar) return value;
  return std::visit([&](const auto& scalars) { return convertFrom(scalars, to.scalar, mapping); },
                    value);
}

}  // namespace orvlib
