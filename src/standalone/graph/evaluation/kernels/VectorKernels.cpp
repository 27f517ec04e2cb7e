#include "standalone/graph/evaluation/kernels/Arithmetic.h"
#include "standalone/graph/evaluation/kernels/KernelTables.h"

namespace orvlib {
namespace {

template <std::size_t count>
using Vector = std::array<float, count>;

template <std::size_t count>
Vector<count> add(Vector<count> a, Vector<count> b) {
  return eachComponent<count>([&](std::size_t i) { return a[i] + b[i]; });
}

template <std::size_t count>
Vector<count> subtract(Vector<count> a, Vector<count> b) {
  return eachComponent<count>([&](std::size_t i) { return a[i] - b[i]; });
}

template <std::size_t count>
Vector<count> multiply(Vector<count> a, Vector<count> b) {
  return eachComponent<count>([&](std::size_t i) { return a[i] * b[i]; });
}

template <std::size_t count>
Vector<count> scale(Vector<count> vector, float factor) {
  return eachComponent<count>([&](std::size_t i) { return vector[i] * factor; });
}

template <std::size_t count>
float length(Vector<count> vector) {
  return static_cast<float>(lengthOf(vector));
}

template <std::size_t count>
float distance(Vector<count> a, Vector<count> b) {
  return length(subtract(b, a));
}

Vector3 cross(Vector3 a, Vector3 b) {
  return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

Vector3 reflect(Vector3 vector, Vector3 normal) {
  return subtract(vector, scale(normal, 2 * dot(vector, normal)));
}

constexpr KernelEntry kKernels[] = {
    entry("core::vector::vector2::combine",
          [](float x, float y) {
            return Vector2{x, y};
          }),
    entry("core::vector::vector2::separate", [](Vector2 v) { return std::tuple(v[0], v[1]); }),
    entry<add<2>>("core::vector::vector2::add"),
    entry<subtract<2>>("core::vector::vector2::subtract"),
    entry<multiply<2>>("core::vector::vector2::multiply"),
    entry<scale<2>>("core::vector::vector2::scale"),
    entry<dot<2>>("core::vector::vector2::dot"),
    entry<length<2>>("core::vector::vector2::length"),
    entry<distance<2>>("core::vector::vector2::distance"),
    entry<normalized<2>>("core::vector::vector2::normalize"),
    entry<mixEach<2>>("core::vector::vector2::mix"),

    entry("core::vector::vector3::combine",
          [](float x, float y, float z) {
            return Vector3{x, y, z};
          }),
    entry("core::vector::vector3::separate",
          [](Vector3 v) { return std::tuple(v[0], v[1], v[2]); }),
    entry<add<3>>("core::vector::vector3::add"),
    entry<subtract<3>>("core::vector::vector3::subtract"),
    entry<multiply<3>>("core::vector::vector3::multiply"),
    entry<scale<3>>("core::vector::vector3::scale"),
    entry<dot<3>>("core::vector::vector3::dot"),
    entry<length<3>>("core::vector::vector3::length"),
    entry<distance<3>>("core::vector::vector3::distance"),
    entry<normalized<3>>("core::vector::vector3::normalize"),
    entry<mixEach<3>>("core::vector::vector3::mix"),
    entry<cross>("core::vector::vector3::cross"),
    entry<reflect>("core::vector::vector3::reflect"),

    entry("core::vector::vector4::combine",
          [](float x, float y, float z, float w) {
            return Vector4{x, y, z, w};
          }),
    entry("core::vector::vector4::separate",
          [](Vector4 v) { return std::tuple(v[0], v[1], v[2], v[3]); }),
    entry<add<4>>("core::vector::vector4::add"),
    entry<subtract<4>>("core::vector::vector4::subtract"),
    entry<multiply<4>>("core::vector::vector4::multiply"),
    entry<scale<4>>("core::vector::vector4::scale"),
    entry<dot<4>>("core::vector::vector4::dot"),
    entry<length<4>>("core::vector::vector4::length"),
    entry<distance<4>>("core::vector::vector4::distance"),
    entry<normalized<4>>("core::vector::vector4::normalize"),
    entry<mixEach<4>>("core::vector::vector4::mix"),
};

}  // namespace

KernelTable vectorKernels() { return kKernels; }

}  // namespace orvlib
