#pragma once

#include <array>

#include "standalone/graph/evaluation/Kernel.h"

namespace orvlib {

/// What a kernel knows of a port's type.
struct PortLayout {
  ScalarKind scalar;
  std::size_t components;
  bool isArray;

  friend bool operator==(const PortLayout&, const PortLayout&) = default;
};

/// The C++ types that kernels use for vectors, colors and matrices.
using Vector2 = std::array<float, 2>;
using Vector3 = std::array<float, 3>;
using Vector4 = std::array<float, 4>;
using Matrix3 = std::array<float, 9>;
using Matrix4 = std::array<float, 16>;

/// An array<vector3> as an input and as an output: its components, element after element.
struct Vector3View {
  std::span<const float> components;
};
struct Vector3List {
  Floats components;
};

template <class Scalar>
inline constexpr ScalarKind kKindOf = ScalarKind::String;
template <>
inline constexpr ScalarKind kKindOf<bool> = ScalarKind::Boolean;
template <>
inline constexpr ScalarKind kKindOf<std::int32_t> = ScalarKind::Integer;
template <>
inline constexpr ScalarKind kKindOf<float> = ScalarKind::Float;

template <class Scalar>
using ScalarsOf = std::variant_alternative_t<static_cast<std::size_t>(kKindOf<Scalar>), Value>;

/// The components of an input, which has the kind of its type.
template <class Scalar>
const ScalarsOf<Scalar>& componentsOf(const Value& value) {
  return *std::get_if<ScalarsOf<Scalar>>(&value);
}

/// The components of an output, whatever it held before.
template <class Scalar>
ScalarsOf<Scalar>& storageOf(Value& value) {
  auto* scalars = std::get_if<ScalarsOf<Scalar>>(&value);
  return scalars ? *scalars : value.emplace<ScalarsOf<Scalar>>();
}

template <class Scalar>
std::size_t resultSize(const Scalar& scalars) {
  return scalars.size();
}
inline std::size_t resultSize(const Texts& texts) {
  std::size_t size = texts.size();
  for (const std::string& text : texts) size += text.size();
  return size;
}

/// How a C++ type is read from an input and written to an output: a single scalar.
template <class Scalar>
struct KernelPort {
  static constexpr PortLayout kLayout{kKindOf<Scalar>, 1, false};
  static const Scalar& read(const Value& value) { return componentsOf<Scalar>(value)[0]; }
  static void write(Scalar result, Value& value) {
    auto& scalars = storageOf<Scalar>(value);
    scalars.resize(1);
    if constexpr (std::is_same_v<Scalar, std::string>) {
      if (result.size() > kMaxResultSize) result = {};
    }
    scalars[0] = std::move(result);
  }
};

template <std::size_t count>
struct KernelPort<std::array<float, count>> {
  static constexpr PortLayout kLayout{ScalarKind::Float, count, false};
  static std::array<float, count> read(const Value& value) {
    std::array<float, count> result;
    std::copy_n(componentsOf<float>(value).begin(), count, result.begin());
    return result;
  }
  static void write(const std::array<float, count>& result, Value& value) {
    storageOf<float>(value).assign(result.begin(), result.end());
  }
};

/// An array, as an input.
template <class Scalar>
struct KernelPort<std::span<const Scalar>> {
  static constexpr PortLayout kLayout{kKindOf<Scalar>, 1, true};
  static std::span<const Scalar> read(const Value& value) { return componentsOf<Scalar>(value); }
};

template <>
struct KernelPort<Vector3View> {
  static constexpr PortLayout kLayout{ScalarKind::Float, 3, true};
  static Vector3View read(const Value& value) { return {componentsOf<float>(value)}; }
};

/// An array, as an output. A result that is too large comes out empty.
template <class Scalars>
struct KernelArrayOutput {
  using Scalar = typename Scalars::value_type;
  static constexpr PortLayout kLayout{kKindOf<Scalar>, 1, true};
  static void write(Scalars result, Value& value) {
    if (resultSize(result) > kMaxResultSize) result = {};
    storageOf<Scalar>(value) = std::move(result);
  }
};

template <>
struct KernelPort<Integers> : KernelArrayOutput<Integers> {};
template <>
struct KernelPort<Floats> : KernelArrayOutput<Floats> {};
template <>
struct KernelPort<Texts> : KernelArrayOutput<Texts> {};

template <>
struct KernelPort<Vector3List> {
  static constexpr PortLayout kLayout{ScalarKind::Float, 3, true};
  static void write(Vector3List result, Value& value) {
    KernelPort<Floats>::write(std::move(result.components), value);
  }
};

}  // namespace orvlib
