#include <cmath>
#include <numbers>

#include "standalone/graph/evaluation/kernels/KernelTables.h"

namespace orvlib {
namespace {

/// The point (0, 0) has the angle 0 whatever the signs of its zeros.
float arcTangent2(float y, float x) { return y == 0 && x == 0 ? 0 : std::atan2(y, x); }

/// In double precision, so that 180 degrees are the float nearest to pi.
float scaled(float angle, double factor) { return static_cast<float>(angle * factor); }

constexpr KernelEntry kKernels[] = {
    entry("core::math::trigonometry::sine", [](float angle) { return std::sin(angle); }),
    entry("core::math::trigonometry::cosine", [](float angle) { return std::cos(angle); }),
    entry("core::math::trigonometry::tangent", [](float angle) { return std::tan(angle); }),
    entry("core::math::trigonometry::arc_sine", [](float value) { return std::asin(value); }),
    entry("core::math::trigonometry::arc_cosine", [](float value) { return std::acos(value); }),
    entry("core::math::trigonometry::arc_tangent", [](float value) { return std::atan(value); }),
    entry<arcTangent2>("core::math::trigonometry::arc_tangent2"),
    entry("core::math::trigonometry::degrees_to_radians",
          [](float degrees) { return scaled(degrees, std::numbers::pi / 180); }),
    entry("core::math::trigonometry::radians_to_degrees",
          [](float radians) { return scaled(radians, 180 / std::numbers::pi); }),
};

}  // namespace

KernelTable trigonometryKernels() { return kKernels; }

}  // namespace orvlib
