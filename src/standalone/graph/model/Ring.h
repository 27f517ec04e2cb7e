#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>
#include <vector>

namespace orvlib {

/// The latest of many items, the oldest first. Once it is full, an item takes the place of the
/// oldest, and nothing is allocated for the ring itself.
template <class T>
class Ring {
 public:
  std::size_t size() const { return items_.size(); }
  bool empty() const { return items_.empty(); }

  /// How many items it has room for; never more than the largest limit since it was last empty.
  std::size_t capacity() const { return items_.capacity(); }

  /// The item of that age, 0 being the oldest; `index` is below size().
  const T& operator[](std::size_t index) const { return items_[place(index)]; }

  /// The latest item; the ring is not empty.
  const T& back() const { return items_[place(size() - 1)]; }

  /// Adds an item. The oldest ones go, so that no more than `limit` are left, which is at least 1.
  void push(T item, std::size_t limit) {
    if (size() != limit) makeRoom(limit);
    if (size() < limit) {
      items_.push_back(std::move(item));
      return;
    }
    items_[oldest_] = std::move(item);
    oldest_ = place(1);
  }

  /// Gives the memory back, too.
  void clear() { *this = Ring(); }

 private:
  std::size_t place(std::size_t index) const {
    const std::size_t place = oldest_ + index;
    return place < size() ? place : place - size();
  }

  /// So that one more fits without going beyond the limit, or exactly so many are there.
  void makeRoom(std::size_t limit) {
    if (size() < limit && size() < items_.capacity() && oldest_ == 0) return;
    const std::size_t kept = std::min(size(), limit);
    std::vector<T> ordered;
    ordered.reserve(std::min(limit, std::max(2 * kept, kLeastCapacity)));
    for (std::size_t i = size() - kept; i < size(); ++i) {
      ordered.push_back(std::move(items_[place(i)]));
    }
    items_ = std::move(ordered);
    oldest_ = 0;
  }

  static constexpr std::size_t kLeastCapacity = 8;

  std::vector<T> items_;

  /// Not 0 only while there are as many as the last limit allowed.
  std::size_t oldest_ = 0;
};

}  // namespace orvlib
