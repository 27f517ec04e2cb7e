#pragma once

#include <absl/container/btree_set.h>

#include <cstdint>

namespace orvlib {

/// Gives the smallest number from 1 on that is not taken, without a walk over all that are: all
/// below `next_` are taken or in `free_`. Those from `next_` on are asked for when it gets there,
/// each once in its time of being taken.
class FreeNumbers {
 public:
  void take(std::uint64_t number) {
    if (number == next_) {
      ++next_;
    } else if (number < next_) {
      free_.erase(number);
    }
  }

  void release(std::uint64_t number) {
    if (number == 0 || number >= next_) return;
    free_.insert(number);
    while (!free_.empty() && *free_.rbegin() == next_ - 1) {
      free_.erase(--next_);
    }
  }

  /// `isTaken(number)` is the truth for numbers that were taken before this object was there.
  template <class IsTaken>
  std::uint64_t smallest(IsTaken isTaken) {
    if (!free_.empty()) return *free_.begin();
    while (isTaken(next_)) ++next_;
    return next_;
  }

  /// Whether it knows no more than a new one.
  bool isBlank() const { return next_ == 1; }

 private:
  std::uint64_t next_ = 1;
  absl::btree_set<std::uint64_t> free_;
};

}  // namespace orvlib
