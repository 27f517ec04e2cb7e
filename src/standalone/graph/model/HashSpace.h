#pragma once

#include <cstddef>

namespace orvlib {

/// Gives back the space of a hash that has far more than its elements need, which a hash does not
/// do by itself. To be called after each removal: constant, amortised.
template <class Hash>
void releaseUnusedSpace(Hash& hash) {
  constexpr std::size_t kSlack = 3;
  constexpr std::size_t kAlwaysFine = 64;
  if (hash.bucket_count() > kSlack * hash.size() + kAlwaysFine) hash.rehash(0);
}

}  // namespace orvlib
