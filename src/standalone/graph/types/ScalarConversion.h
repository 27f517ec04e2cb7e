#pragma once

#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

namespace orvlib {

/// Cut off towards zero; the nearest integer for a number out of range, and 0 for nan.
inline std::int32_t toInteger(float number) {
  using Limits = std::numeric_limits<std::int32_t>;
  if (std::isnan(number)) return 0;
  if (number >= 2147483648.0F) return Limits::max();
  if (number < -2147483648.0F) return Limits::min();
  return static_cast<std::int32_t>(number);
}

/// One number component as another: a boolean is 0 or 1, and every number but 0 is true.
template <class To, class From>
To convertScalar(From from) {
  if constexpr (std::is_same_v<To, bool>) {
    return from != From{};
  } else if constexpr (std::is_same_v<To, std::int32_t> && std::is_same_v<From, float>) {
    return toInteger(from);
  } else {
    return static_cast<To>(from);
  }
}

}  // namespace orvlib
