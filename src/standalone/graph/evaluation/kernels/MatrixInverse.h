#pragma once

#include "standalone/graph/evaluation/kernels/KernelPort.h"

namespace orvlib {

/// Determinants and adjugates, in double precision: the products of the floats that a matrix holds
/// neither overflow nor vanish there. The inverse is the adjugate divided by the determinant.

/// The determinant of rows i, j and columns k, l.
template <class Matrix>
double minor2(const Matrix& m, std::size_t size, std::size_t i, std::size_t j, std::size_t k,
              std::size_t l) {
  const auto at = [&](std::size_t row, std::size_t column) -> double {
    return m[row * size + column];
  };
  return at(i, k) * at(j, l) - at(i, l) * at(j, k);
}

/// The transposed cofactors.
inline std::array<double, 9> adjugateOf(const Matrix3& m) {
  std::array<double, 9> result;
  for (std::size_t row = 0; row < 3; ++row) {
    for (std::size_t column = 0; column < 3; ++column) {
      // Taken in cyclic order, the minors have the signs of the cofactors.
      result[column * 3 + row] =
          minor2(m, 3, (row + 1) % 3, (row + 2) % 3, (column + 1) % 3, (column + 2) % 3);
    }
  }
  return result;
}

inline std::array<double, 16> adjugateOf(const Matrix4& m) {
  std::array<double, 16> result;
  for (std::size_t row = 0; row < 4; ++row) {
    const std::size_t a = row > 0 ? 0 : 1, b = row > 1 ? 1 : 2, c = row > 2 ? 2 : 3;
    for (std::size_t column = 0; column < 4; ++column) {
      const std::size_t x = column > 0 ? 0 : 1, y = column > 1 ? 1 : 2, z = column > 2 ? 2 : 3;
      const double minor = m[a * 4 + x] * minor2(m, 4, b, c, y, z) -
                           m[a * 4 + y] * minor2(m, 4, b, c, x, z) +
                           m[a * 4 + z] * minor2(m, 4, b, c, x, y);
      result[column * 4 + row] = (row + column) % 2 == 0 ? minor : -minor;
    }
  }
  return result;
}

/// By the cofactors of the first row.
template <std::size_t count>
double determinantOf(const std::array<float, count>& m) {
  constexpr std::size_t kSize = count == 9 ? 3 : 4;
  const auto adjugate = adjugateOf(m);
  double sum = 0;
  for (std::size_t i = 0; i < kSize; ++i) sum += m[i] * adjugate[i * kSize];
  return sum;
}

}  // namespace orvlib
