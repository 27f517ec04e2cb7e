#pragma once

#include "standalone/graph/model/PointerTree.h"

namespace orvlib {

/// What OrderedList is made of, for any kind of pointer: up to kInside pointers in the object
/// itself, up to kSmall in one array that is searched from end to end, more in a PointerTree.
class ORV_EXPORT PointerList {
 public:
  static constexpr unsigned kNotFound = PointerTree::kNotFound;
  static constexpr unsigned kInside = 2;
  static constexpr unsigned kSmall = 32;
  static constexpr unsigned kSmallAgain = 16;  ///< Where a list that shrinks leaves its tree.

  PointerList() = default;
  ~PointerList() { clear(); }
  PointerList(PointerList&& other) noexcept { swap(other); }
  PointerList& operator=(PointerList&& other) noexcept {
    swap(other);
    return *this;
  }

  unsigned size() const { return size_; }
  void* at(unsigned index) const { return isLong() ? store_.tree->at(index) : items()[index]; }
  void* back() const { return isLong() ? store_.tree->back() : items()[size_ - 1]; }
  unsigned indexOf(const void* item) const {
    return isLong() ? store_.tree->indexOf(item) : indexInSmall(item);
  }
  bool contains(const void* item) const {
    return isLong() ? store_.tree->contains(item) : indexInSmall(item) != kNotFound;
  }

  void append(void* item) { insert(size_, item); }
  void insert(unsigned index, void* item);
  unsigned remove(const void* item);
  void clear();
  void swap(PointerList& other) noexcept;

  /// Walks over the pointers, block by block.
  class Iterator {
   public:
    Iterator() = default;
    explicit Iterator(const PointerList& list);
    void* operator*() const { return *at_; }
    Iterator& operator++() {
      if (++at_ == end_) enterNextLeaf();
      return *this;
    }
    bool operator==(const Iterator& other) const { return at_ == other.at_; }

   private:
    void enterNextLeaf();
    void enterLeaf(const PointerTree::Leaf* leaf);

    void* const* at_ = nullptr;  ///< Null past the end.
    void* const* end_ = nullptr;
    const PointerTree::Leaf* leaf_ = nullptr;
  };

 private:
  static constexpr unsigned kLong = ~0u;

  bool isLong() const { return capacity_ == kLong; }
  void* const* items() const { return capacity_ == kInside ? store_.inside : store_.array; }
  void** items() { return capacity_ == kInside ? store_.inside : store_.array; }
  unsigned indexInSmall(const void* item) const {
    void* const* all = items();
    for (unsigned i = 0; i < size_; ++i) {
      if (all[i] == item) return i;
    }
    return kNotFound;
  }
  void makeRoom();
  void leaveTree();

  union {
    void* inside[kInside] = {};
    void** array;
    PointerTree* tree;
  } store_;
  unsigned size_ = 0;
  unsigned capacity_ = kInside;  ///< kInside: in `inside`; kLong: in `tree`; else that of `array`.
};

}  // namespace orvlib
