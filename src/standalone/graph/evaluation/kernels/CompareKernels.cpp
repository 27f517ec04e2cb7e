#include <cmath>

#include "standalone/graph/evaluation/kernels/KernelTables.h"

namespace orvlib {
namespace {

using Text = const std::string&;

bool nearlyEqual(float a, float b, float tolerance) {
  // Between equal infinities the difference would be nan.
  const float distance = a == b ? 0 : std::fabs(a - b);
  return distance <= tolerance;
}

constexpr KernelEntry kKernels[] = {
    entry("core::compare::equal", [](float a, float b) { return a == b; }),
    entry("core::compare::not_equal", [](float a, float b) { return a != b; }),
    entry("core::compare::less", [](float a, float b) { return a < b; }),
    entry("core::compare::less_or_equal", [](float a, float b) { return a <= b; }),
    entry("core::compare::greater", [](float a, float b) { return a > b; }),
    entry("core::compare::greater_or_equal", [](float a, float b) { return a >= b; }),
    entry<nearlyEqual>("core::compare::nearly_equal"),
    entry("core::compare::equal_int", [](std::int32_t a, std::int32_t b) { return a == b; }),
    entry("core::compare::less_int", [](std::int32_t a, std::int32_t b) { return a < b; }),
    entry("core::compare::greater_int", [](std::int32_t a, std::int32_t b) { return a > b; }),
    entry("core::compare::equal_string", [](Text a, Text b) { return a == b; }),
    // The order of UTF-8 bytes, taken without sign, is that of the code points.
    entry("core::compare::less_string", [](Text a, Text b) { return a < b; }),
};

}  // namespace

KernelTable compareKernels() { return kKernels; }

}  // namespace orvlib
