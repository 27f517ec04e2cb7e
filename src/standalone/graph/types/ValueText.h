#pragma once

#include <cstdint>
#include <optional>

#include "platform/ORV_1_0/OrvApi.h"
#include "standalone/graph/types/ValueType.h"

namespace orvlib {

/// A value read from texts, or the reason why they do not fit the type.
struct ParsedValue {
  std::optional<Value> value;
  std::string reason;
};

/// Reads a value from one text a component. An array takes any whole number of elements. Booleans
/// are "true" and "false"; numbers are in the C locale's form whatever locale is in force, and
/// floats may be "inf", "-inf" and "nan"; a string is its own text.
ORV_EXPORT ParsedValue parseValue(const ValueType& type, const std::vector<std::string>& texts);

/// How floats are shown.
struct FloatForm {
  enum class Style : std::uint8_t {
    Shortest,   ///< the fewest digits that give the number back
    Fixed,      ///< `digits` decimals
    Scientific  ///< one digit, `digits` decimals, and the power of ten
  };
  Style style = Style::Shortest;

  static constexpr std::uint8_t kMostDigits = 20;
  std::uint8_t digits = 6;

  bool operator==(const FloatForm&) const = default;
};

/// One text a component, such that `parseValue` gives the same value back. A float gets the fewest
/// digits that do so.
ORV_EXPORT std::vector<std::string> printValue(const Value& value);

/// One text a component, with floats in that form, of at most `kMostDigits` decimals. What is no
/// float is as ever.
ORV_EXPORT std::vector<std::string> printValue(const Value& value, const FloatForm& form);

/// Zero, false or empty text in each component; no elements for an array.
ORV_EXPORT Value zeroValue(const ValueType& type);

/// The word for a kind of component: "boolean", "integer", "float", "string".
ORV_EXPORT const char* toText(ScalarKind kind);
ORV_EXPORT std::optional<ScalarKind> scalarKindFromText(const std::string& text);

}  // namespace orvlib
