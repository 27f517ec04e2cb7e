#include <cmath>

#include "standalone/graph/evaluation/kernels/Arithmetic.h"
#include "standalone/graph/evaluation/kernels/KernelTables.h"

namespace orvlib {
namespace {

float sign(float value) {
  if (value > 0) return 1;
  if (value < 0) return -1;
  return std::isnan(value) ? value : 0;
}

/// The remainder with the sign of b. fmod is exact, so that only the last sum rounds.
float modulo(float a, float b) {
  const float remainder = std::fmod(a, b);
  if (std::isnan(remainder)) return remainder;
  if (remainder == 0) return std::copysign(0.0F, b);
  return (remainder < 0) == (b < 0) ? remainder : remainder + b;
}

float logarithmToBase(float value, float base) {
  return static_cast<float>(std::log(static_cast<double>(value)) /
                            std::log(static_cast<double>(base)));
}

float remap(float value, float inLow, float inHigh, float outLow, float outHigh) {
  if (inLow == inHigh) return outLow;
  return outLow + (value - inLow) / (inHigh - inLow) * (outHigh - outLow);
}

float smoothStep(float value, float low, float high) {
  if (std::isnan(value)) return value;
  if (!(low < high)) return value < low ? 0 : 1;
  const float t = clamp((value - low) / (high - low), 0, 1);
  return t * t * (3 - 2 * t);
}

constexpr KernelEntry kKernels[] = {
    entry("core::math::add", [](float a, float b) { return a + b; }),
    entry("core::math::subtract", [](float a, float b) { return a - b; }),
    entry("core::math::multiply", [](float a, float b) { return a * b; }),
    entry("core::math::divide", [](float a, float b) { return a / b; }),
    entry<modulo>("core::math::modulo"),
    entry("core::math::negate", [](float value) { return -value; }),
    entry("core::math::absolute", [](float value) { return std::fabs(value); }),
    entry<sign>("core::math::sign"),
    entry("core::math::floor", [](float value) { return std::floor(value); }),
    entry("core::math::ceiling", [](float value) { return std::ceil(value); }),
    entry("core::math::round", [](float value) { return std::round(value); }),
    entry("core::math::truncate", [](float value) { return std::trunc(value); }),
    entry("core::math::fraction", [](float value) { return value - std::floor(value); }),
    entry("core::math::square_root", [](float value) { return std::sqrt(value); }),
    entry("core::math::power", [](float base, float exponent) { return std::pow(base, exponent); }),
    entry("core::math::exponential", [](float value) { return std::exp(value); }),
    entry("core::math::logarithm", [](float value) { return std::log(value); }),
    entry<logarithmToBase>("core::math::logarithm_to_base"),
    entry<minimum>("core::math::minimum"),
    entry<maximum>("core::math::maximum"),
    entry<clamp>("core::math::clamp"),
    entry<mix>("core::math::mix"),
    entry<remap>("core::math::remap"),
    entry("core::math::step", [](float value, float edge) { return value >= edge ? 1.0F : 0.0F; }),
    entry<smoothStep>("core::math::smooth_step"),
};

}  // namespace

KernelTable mathKernels() { return kKernels; }

}  // namespace orvlib
