#pragma once

#include <absl/container/flat_hash_map.h>

#include <cstdint>

#include "platform/ORV_1_0/OrvApi.h"

namespace orvlib {

/// A long sequence of distinct pointers: a tree whose leaves hold the pointers in order and whose
/// branches count what is below each child, with a hashed lookup from a pointer to its leaf.
/// Every operation is logarithmic; append, and at() of an index next to the one asked for before,
/// are constant. Reading moves a cursor: one thread at a time. The body of OrderedList when it is
/// long.
class ORV_EXPORT PointerTree {
 public:
  static constexpr unsigned kNotFound = ~0u;
  static constexpr unsigned kLeafItems = 128;
  static constexpr unsigned kBranchItems = 64;

  struct Branch;
  struct Block {
    Branch* parent = nullptr;
    std::uint32_t slot = 0;  ///< The place among the parent's children.
    std::uint32_t fill = 0;  ///< How many items or children there are.
  };
  /// Leaves are never empty; `next` leads through all of them in order.
  struct Leaf : Block {
    Leaf* previous = nullptr;
    Leaf* next = nullptr;
    void* items[kLeafItems];
  };

  /// Takes the `count` pointers, in this order; there is at least one.
  PointerTree(void* const* items, unsigned count);
  ~PointerTree();
  PointerTree(const PointerTree&) = delete;
  PointerTree& operator=(const PointerTree&) = delete;

  unsigned size() const { return size_; }
  /// `index` is below size().
  void* at(unsigned index) const {
    const unsigned inLeaf = index - cursorFirst_;
    return index >= cursorFirst_ && inLeaf < cursor_->fill ? cursor_->items[inLeaf] : seek(index);
  }
  unsigned indexOf(const void* item) const;
  bool contains(const void* item) const;
  const Leaf* firstLeaf() const { return first_; }
  void* back() const { return last_->items[last_->fill - 1]; }

  void append(void* item);
  /// `index` is at most size().
  void insert(unsigned index, void* item);
  /// The index that the item had; kNotFound when it is not there. The last item stays: who wants
  /// none wants no tree.
  unsigned remove(const void* item);

 private:
  struct Place {
    Leaf* leaf;
    unsigned offset;
  };
  Place find(unsigned index) const;
  void* seek(unsigned index) const;
  unsigned firstIndex(const Leaf& leaf) const;
  void setCursor(const Leaf* leaf, unsigned first) const;
  void resetCursor() { setCursor(first_, 0); }

  void insertAt(Place place, void* item);
  Leaf* appendLeaf();
  Leaf* splitLeaf(Leaf& leaf);
  void insertBlock(Block& after, Block& fresh, unsigned count, bool appending);
  void growRoot();
  Branch* splitBranch(Branch& branch, bool appending);

  void shrinkLeaf(Leaf& leaf);
  void mergeLeaves(Leaf& left, Leaf& right);
  void dropLeaf(Leaf& leaf);
  void removeBlock(Block& block);
  void shrinkBranch(Branch& branch);
  void lowerRoot();
  void destroy(Block* block, unsigned height);

  Block* root_;
  Leaf* first_;
  Leaf* last_;
  unsigned size_ = 0;
  unsigned height_ = 0;  ///< Levels of branches above the leaves.
  mutable const Leaf* cursor_;
  mutable unsigned cursorFirst_ = 0;
  absl::flat_hash_map<const void*, Leaf*> leafOf_;
};

}  // namespace orvlib
