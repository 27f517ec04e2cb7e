#pragma once

#include <cstddef>
#include <iterator>

#include "standalone/graph/model/PointerList.h"

namespace orvlib {

/// Elements in an order, with access by index and from an element to its index. It does not own
/// them, and none is in it twice. 24 bytes while there are at most two; a list of any length takes
/// logarithmic time for every operation, and constant time to append and to read one index after
/// the other. Reading moves a cursor: one thread at a time.
template <class T>
class OrderedList {
 public:
  static constexpr unsigned kNotFound = PointerList::kNotFound;

  unsigned size() const { return list_.size(); }
  bool empty() const { return list_.size() == 0; }
  /// `index` is below size().
  T* at(unsigned index) const { return static_cast<T*>(list_.at(index)); }
  /// The list is not empty.
  T* front() const { return at(0); }
  T* back() const { return static_cast<T*>(list_.back()); }
  /// kNotFound for an element that is not in the list.
  unsigned indexOf(const T* element) const { return list_.indexOf(element); }
  bool contains(const T* element) const { return list_.contains(element); }

  /// `element` is not in the list yet.
  void append(T* element) { list_.append(element); }
  /// Before the element that is at `index` now; at the end if there is none.
  void insert(unsigned index, T* element) { list_.insert(index, element); }
  /// The index that the element had; kNotFound, and nothing happens, if it is not in the list.
  unsigned remove(const T* element) { return list_.remove(element); }
  void clear() { list_.clear(); }

  /// Any change of the list ends it.
  class Iterator {
   public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = T*;
    using difference_type = std::ptrdiff_t;
    using pointer = T* const*;
    using reference = T*;

    Iterator() = default;
    explicit Iterator(const PointerList& list) : at_(list) {}
    T* operator*() const { return static_cast<T*>(*at_); }
    Iterator& operator++() {
      ++at_;
      return *this;
    }
    Iterator operator++(int) {
      Iterator before = *this;
      ++at_;
      return before;
    }
    bool operator==(const Iterator& other) const = default;

   private:
    PointerList::Iterator at_;
  };
  Iterator begin() const { return Iterator(list_); }
  Iterator end() const { return {}; }

 private:
  PointerList list_;
};

}  // namespace orvlib
