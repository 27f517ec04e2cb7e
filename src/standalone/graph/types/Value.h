#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace orvlib {

/// What one component of a value is. The order is that of the alternatives of `Value`.
enum class ScalarKind { Boolean, Integer, Float, String };

/// The components of a value, flat: a vector's members in order, a matrix row by row, an array
/// element after element. Integers have 32 bits and floats are single precision.
using Value = std::variant<std::vector<bool>, std::vector<std::int32_t>, std::vector<float>,
                           std::vector<std::string>>;

inline ScalarKind scalarKindOf(const Value& value) {
  return static_cast<ScalarKind>(value.index());
}

}  // namespace orvlib
