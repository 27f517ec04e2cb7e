#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

#include "standalone/graph/evaluation/Kernel.h"

namespace orvlib {

/// Sizes and positions, as the integers of a graph and as those of memory.

inline std::int32_t toCount(std::size_t size) {
  constexpr std::size_t kLargest = std::numeric_limits<std::int32_t>::max();
  return static_cast<std::int32_t>(std::min(size, kLargest));
}

/// The size of a result that is to have `count` components: none below 1, and none above the limit.
inline std::size_t usableCount(std::int32_t count) {
  if (count < 1 || static_cast<std::size_t>(count) > kMaxResultSize) return 0;
  return static_cast<std::size_t>(count);
}

struct Range {
  std::size_t first;
  std::size_t count;
};

/// The part of `size` things from `start` on: a start below 0 is 0, and a count below 0 is all.
inline Range rangeWithin(std::size_t size, std::int32_t start, std::int32_t count) {
  const std::size_t first = std::min<std::size_t>(std::max(start, 0), size);
  const std::size_t rest = size - first;
  return {first, count < 0 ? rest : std::min<std::size_t>(static_cast<std::size_t>(count), rest)};
}

}  // namespace orvlib
