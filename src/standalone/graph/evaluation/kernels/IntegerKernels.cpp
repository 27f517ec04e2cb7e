#include <algorithm>

#include "standalone/graph/evaluation/kernels/KernelTables.h"

namespace orvlib {
namespace {

using Int = std::int32_t;
using Exact = std::int64_t;

/// Reduced by a multiple of 2^32 into the range of 32 bits.
Int wrapped(Exact exact) { return static_cast<Int>(static_cast<std::uint32_t>(exact)); }

Int divide(Int a, Int b) { return b == 0 ? 0 : wrapped(Exact{a} / b); }

Int modulo(Int a, Int b) {
  if (b == 0) return 0;
  const Exact remainder = Exact{a} % b;
  const bool hasOtherSign = remainder != 0 && (remainder < 0) != (b < 0);
  return wrapped(hasOtherSign ? remainder + b : remainder);
}

constexpr KernelEntry kKernels[] = {
    entry("core::math::integer::add", [](Int a, Int b) { return wrapped(Exact{a} + b); }),
    entry("core::math::integer::subtract", [](Int a, Int b) { return wrapped(Exact{a} - b); }),
    entry("core::math::integer::multiply", [](Int a, Int b) { return wrapped(Exact{a} * b); }),
    entry<divide>("core::math::integer::divide"),
    entry<modulo>("core::math::integer::modulo"),
    entry("core::math::integer::negate", [](Int value) { return wrapped(-Exact{value}); }),
    entry("core::math::integer::absolute",
          [](Int value) { return wrapped(value < 0 ? -Exact{value} : Exact{value}); }),
    entry("core::math::integer::minimum", [](Int a, Int b) { return std::min(a, b); }),
    entry("core::math::integer::maximum", [](Int a, Int b) { return std::max(a, b); }),
    entry("core::math::integer::clamp",
          [](Int value, Int low, Int high) { return std::min(std::max(value, low), high); }),
};

}  // namespace

KernelTable integerKernels() { return kKernels; }

}  // namespace orvlib
