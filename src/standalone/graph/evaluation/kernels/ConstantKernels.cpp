#include <numbers>

#include "standalone/graph/evaluation/kernels/KernelTables.h"

namespace orvlib {
namespace {

constexpr KernelEntry kKernels[] = {
    entry("core::constant::pi", [] { return std::numbers::pi_v<float>; }),
    entry("core::constant::tau", [] { return 2 * std::numbers::pi_v<float>; }),
    entry("core::constant::e", [] { return std::numbers::e_v<float>; }),
    entry("core::constant::golden_ratio", [] { return std::numbers::phi_v<float>; }),
    entry("core::constant::float_value", [](float value) { return value; }),
    entry("core::constant::int_value", [](std::int32_t value) { return value; }),
    entry("core::constant::bool_value", [](bool value) { return value; }),
    entry("core::constant::string_value", [](const std::string& value) { return value; }),
    entry("core::constant::vector2_value", [](Vector2 value) { return value; }),
    entry("core::constant::vector3_value", [](Vector3 value) { return value; }),
    entry("core::constant::vector4_value", [](Vector4 value) { return value; }),
    entry("core::constant::color3_value", [](Vector3 value) { return value; }),
    entry("core::constant::color4_value", [](Vector4 value) { return value; }),
    entry("core::constant::matrix4_value", [](const Matrix4& value) { return value; }),
};

}  // namespace

KernelTable constantKernels() { return kKernels; }

}  // namespace orvlib
