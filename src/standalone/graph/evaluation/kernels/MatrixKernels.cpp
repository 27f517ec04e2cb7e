#include <cmath>

#include "standalone/graph/evaluation/kernels/Arithmetic.h"
#include "standalone/graph/evaluation/kernels/KernelTables.h"
#include "standalone/graph/evaluation/kernels/MatrixInverse.h"

namespace orvlib {
namespace {

template <std::size_t size>
using Matrix = std::array<float, size * size>;

template <std::size_t size>
Matrix<size> identity() {
  return eachComponent<size * size>(
      [](std::size_t i) { return i % (size + 1) == 0 ? 1.0F : 0.0F; });
}

/// The row vector times the matrix.
template <std::size_t size>
std::array<float, size> transform(std::array<float, size> row, const Matrix<size>& matrix) {
  return eachComponent<size>([&](std::size_t column) {
    float sum = row[0] * matrix[column];
    for (std::size_t i = 1; i < size; ++i) sum += row[i] * matrix[i * size + column];
    return sum;
  });
}

template <std::size_t size>
Matrix<size> multiply(const Matrix<size>& a, const Matrix<size>& b) {
  Matrix<size> result;
  for (std::size_t row = 0; row < size; ++row) {
    std::array<float, size> components;
    std::copy_n(&a[row * size], size, components.begin());
    const auto product = transform<size>(components, b);
    std::copy_n(product.begin(), size, &result[row * size]);
  }
  return result;
}

template <std::size_t size>
Matrix<size> transpose(const Matrix<size>& matrix) {
  return eachComponent<size * size>(
      [&](std::size_t i) { return matrix[i % size * size + i / size]; });
}

template <std::size_t size>
float determinant(const Matrix<size>& matrix) {
  return static_cast<float>(determinantOf(matrix));
}

template <std::size_t size>
std::tuple<Matrix<size>, bool> inverse(const Matrix<size>& matrix) {
  const double determinant = determinantOf(matrix);
  if (determinant == 0 || !std::isfinite(determinant)) return {identity<size>(), false};
  const auto adjugate = adjugateOf(matrix);
  // The sum makes 0 of -0, which the cofactors of a zero often are.
  const auto component = [&](std::size_t i) {
    return static_cast<float>(adjugate[i] / determinant + 0.0);
  };
  return {eachComponent<size * size>(component), true};
}

Vector3 transformPoint(Vector3 point, const Matrix4& matrix) {
  const auto [x, y, z, w] = transform<4>({point[0], point[1], point[2], 1}, matrix);
  if (w == 0 || w == 1) return {x, y, z};
  return {x / w, y / w, z / w};
}

Vector3 transformDirection(Vector3 direction, const Matrix4& matrix) {
  const auto [x, y, z, w] = transform<4>({direction[0], direction[1], direction[2], 0}, matrix);
  return {x, y, z};
}

Matrix4 translation(Vector3 offset) {
  Matrix4 matrix = identity<4>();
  std::copy(offset.begin(), offset.end(), &matrix[12]);
  return matrix;
}

Matrix4 scaling(Vector3 factors) {
  Matrix4 matrix = identity<4>();
  for (std::size_t i = 0; i < 3; ++i) matrix[i * 5] = factors[i];
  return matrix;
}

/// Rows are the places where the axes of space go.
Matrix4 rotation(Vector3 axis, float angle) {
  const double length = lengthOf(axis);
  if (length == 0) return identity<4>();
  const double x = axis[0] / length, y = axis[1] / length, z = axis[2] / length;
  const double c = std::cos(static_cast<double>(angle)), s = std::sin(static_cast<double>(angle));
  const double d = 1 - c;
  const auto row = [](double a, double b, double e) {
    return Vector3{static_cast<float>(a), static_cast<float>(b), static_cast<float>(e)};
  };
  const Vector3 r0 = row(d * x * x + c, d * x * y + s * z, d * x * z - s * y);
  const Vector3 r1 = row(d * x * y - s * z, d * y * y + c, d * y * z + s * x);
  const Vector3 r2 = row(d * x * z + s * y, d * y * z - s * x, d * z * z + c);
  return {r0[0], r0[1], r0[2], 0, r1[0], r1[1], r1[2], 0, r2[0], r2[1], r2[2], 0, 0, 0, 0, 1};
}

constexpr KernelEntry kKernels[] = {
    entry<multiply<3>>("core::matrix::matrix3::multiply"),
    entry<transpose<3>>("core::matrix::matrix3::transpose"),
    entry<determinant<3>>("core::matrix::matrix3::determinant"),
    entry<inverse<3>>("core::matrix::matrix3::inverse"),
    entry<transform<3>>("core::matrix::matrix3::transform"),

    entry<multiply<4>>("core::matrix::matrix4::multiply"),
    entry<transpose<4>>("core::matrix::matrix4::transpose"),
    entry<determinant<4>>("core::matrix::matrix4::determinant"),
    entry<inverse<4>>("core::matrix::matrix4::inverse"),
    entry<transform<4>>("core::matrix::matrix4::transform"),
    entry<transformPoint>("core::matrix::matrix4::transform_point"),
    entry<transformDirection>("core::matrix::matrix4::transform_direction"),
    entry<translation>("core::matrix::matrix4::translation"),
    entry<scaling>("core::matrix::matrix4::scaling"),
    entry<rotation>("core::matrix::matrix4::rotation"),
};

}  // namespace

KernelTable matrixKernels() { return kKernels; }

}  // namespace orvlib
