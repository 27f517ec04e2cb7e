#pragma once

#include <cmath>

#include "standalone/graph/evaluation/kernels/KernelPort.h"

namespace orvlib {

/// Arithmetic that several libraries share, in single precision.

/// The smaller; the one that is a number when the other is nan.
inline float minimum(float a, float b) { return b < a || std::isnan(a) ? b : a; }
inline float maximum(float a, float b) { return b > a || std::isnan(a) ? b : a; }

/// `high` wins over `low`. A nan value stays nan, and a nan limit is no limit.
inline float clamp(float value, float low, float high) {
  if (value < low) value = low;
  if (value > high) value = high;
  return value;
}

inline float mix(float a, float b, float weight) { return a * (1 - weight) + b * weight; }

/// One function on each component.
template <std::size_t count, class Function>
std::array<float, count> eachComponent(Function function) {
  std::array<float, count> result;
  for (std::size_t i = 0; i < count; ++i) result[i] = function(i);
  return result;
}

template <std::size_t count>
std::array<float, count> mixEach(std::array<float, count> a, std::array<float, count> b,
                                 float weight) {
  return eachComponent<count>([&](std::size_t i) { return mix(a[i], b[i], weight); });
}

/// In the order of the components.
template <std::size_t count>
float dot(std::array<float, count> a, std::array<float, count> b) {
  float sum = a[0] * b[0];
  for (std::size_t i = 1; i < count; ++i) sum += a[i] * b[i];
  return sum;
}

/// In double precision, where no square of a float overflows or vanishes.
template <std::size_t count>
double lengthOf(std::array<float, count> vector) {
  double sum = 0;
  for (const float component : vector) sum += static_cast<double>(component) * component;
  return std::sqrt(sum);
}

template <std::size_t count>
std::array<float, count> normalized(std::array<float, count> vector) {
  const double length = lengthOf(vector);
  if (length == 0) return vector;
  return eachComponent<count>(
      [&](std::size_t i) { return static_cast<float>(vector[i] / length); });
}

}  // namespace orvlib
