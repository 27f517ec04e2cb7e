#include "standalone/graph/evaluation/kernels/Arithmetic.h"
#include "standalone/graph/evaluation/kernels/Counting.h"
#include "standalone/graph/evaluation/kernels/KernelTables.h"

namespace orvlib {
namespace {

using Int = std::int32_t;

/// 64 bits that depend on all three, as the description of the library states.
std::uint64_t bits(std::uint32_t seed, std::uint32_t index, std::uint32_t component = 0) {
  std::uint64_t z = (std::uint64_t{seed} << 32) + index;
  z += (std::uint64_t{component} + 1) * 0x9E3779B97F4A7C15U;
  z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9U;
  z = (z ^ (z >> 27)) * 0x94D049BB133111EBU;
  return z ^ (z >> 31);
}

/// From 0 up to but without 1. A float holds 24 bits exactly.
float share(std::uint32_t seed, std::uint32_t index, std::uint32_t component = 0) {
  return static_cast<float>(bits(seed, index, component) >> 40) / 16777216.0F;
}

float between(float low, float high, float share) { return low + share * (high - low); }

Int randomInt(Int seed, Int index, Int low, Int high) {
  __extension__ using Wide = unsigned __int128;
  if (low > high) return low;
  const auto choices = static_cast<std::uint64_t>(std::int64_t{high} - low + 1);
  const auto offset = static_cast<std::uint64_t>((Wide{bits(seed, index)} * choices) >> 64);
  return static_cast<Int>(low + static_cast<std::int64_t>(offset));
}

Vector3 randomVector3(Int seed, Int index, Vector3 low, Vector3 high) {
  return eachComponent<3>([&](std::size_t i) {
    return between(low[i], high[i], share(seed, index, static_cast<std::uint32_t>(i)));
  });
}

Vector3 randomColor3(Int seed, Int index) {
  return randomVector3(seed, index, {0, 0, 0}, {1, 1, 1});
}

Floats randomArray(Int seed, Int index, Int count, float low, float high) {
  Floats result(usableCount(count));
  for (std::size_t i = 0; i < result.size(); ++i) {
    const auto place = static_cast<std::uint32_t>(index) + static_cast<std::uint32_t>(i);
    result[i] = between(low, high, share(seed, place));
  }
  return result;
}

constexpr KernelEntry kKernels[] = {
    entry("core::random::random_float",
          [](Int seed, Int index, float low, float high) {
            return between(low, high, share(seed, index));
          }),
    entry<randomInt>("core::random::random_int"),
    entry("core::random::random_bool",
          [](Int seed, Int index, float probability) { return share(seed, index) < probability; }),
    entry<randomVector3>("core::random::random_vector3"),
    entry<randomColor3>("core::random::random_color3"),
    entry<randomArray>("core::random::random_array"),
};

}  // namespace

KernelTable randomKernels() { return kKernels; }

}  // namespace orvlib
