#include "standalone/graph/model/PointerTree.h"

#include <algorithm>
#include <numeric>

#include "standalone/graph/model/HashSpace.h"

namespace orvlib {

struct PointerTree::Branch : PointerTree::Block {
  Block* children[kBranchItems];
  std::uint32_t counts[kBranchItems];  ///< Pointers below each child.

  void place(unsigned at, Block& child, unsigned count) {
    children[at] = &child;
    counts[at] = count;
    child.parent = this;
    child.slot = at;
  }
  unsigned total() const { return std::accumulate(counts, counts + fill, 0u); }
};

namespace {

using Block = PointerTree::Block;
using Branch = PointerTree::Branch;
using Leaf = PointerTree::Leaf;

// A block that falls below three eighths joins a neighbour if the two leave a quarter free: before
// one is split or joined again lie about as many edits as that moves pointers.
constexpr unsigned poor(unsigned capacity) { return capacity * 3 / 8; }
constexpr unsigned comfortable(unsigned capacity) { return capacity - capacity / 4; }

void addCount(const Block& block, unsigned change) {
  for (const Block* b = &block; b->parent; b = b->parent) b->parent->counts[b->slot] += change;
}

unsigned offsetOf(const Leaf& leaf, const void* item) {
  return static_cast<unsigned>(std::find(leaf.items, leaf.items + leaf.fill, item) - leaf.items);
}

void moveChildren(Branch& from, unsigned first, Branch& to) {
  for (unsigned i = first; i < from.fill; ++i) {
    to.place(to.fill++, *from.children[i], from.counts[i]);
  }
  from.fill = first;
}

Block* neighbour(const Block& block, int step) {
  if (!block.parent) return nullptr;
  const unsigned slot = block.slot + static_cast<unsigned>(step);
  return slot < block.parent->fill ? block.parent->children[slot] : nullptr;
}

/// Of the block and a neighbour below the same parent, the left one of two that fit into one;
/// null if there is no such pair.
Block* leftOfJoinable(Block& block, unsigned capacity) {
  for (const int step : {-1, +1}) {
    Block* other = neighbour(block, step);
    if (other && other->fill + block.fill <= comfortable(capacity)) {
      return step < 0 ? other : &block;
    }
  }
  return nullptr;
}

}  // namespace

PointerTree::PointerTree(void* const* items, unsigned count)
    : root_(new Leaf), first_(static_cast<Leaf*>(root_)), last_(first_), cursor_(first_) {
  leafOf_.reserve(count);
  for (unsigned i = 0; i < count; ++i) append(items[i]);
}

PointerTree::~PointerTree() { destroy(root_, height_); }

void PointerTree::destroy(Block* block, unsigned height) {
  if (height == 0) {
    delete static_cast<Leaf*>(block);
    return;
  }
  auto* branch = static_cast<Branch*>(block);
  for (unsigned i = 0; i < branch->fill; ++i) destroy(branch->children[i], height - 1);
  delete branch;
}

// Reading

PointerTree::Place PointerTree::find(unsigned index) const {
  Block* block = root_;
  for (unsigned level = height_; level > 0; --level) {
    const auto* branch = static_cast<const Branch*>(block);
    unsigned slot = 0;
    while (slot + 1 < branch->fill && index >= branch->counts[slot]) {
      index -= branch->counts[slot++];
    }
    block = branch->children[slot];
  }
  return {static_cast<Leaf*>(block), index};
}

void* PointerTree::seek(unsigned index) const {
  if (index == cursorFirst_ + cursor_->fill) {
    setCursor(cursor_->next, index);
    return cursor_->items[0];
  }
  const Place place = find(index);
  setCursor(place.leaf, index - place.offset);
  return place.leaf->items[place.offset];
}

unsigned PointerTree::firstIndex(const Leaf& leaf) const {
  unsigned before = 0;
  for (const Block* b = &leaf; b->parent; b = b->parent) {
    before = std::accumulate(b->parent->counts, b->parent->counts + b->slot, before);
  }
  return before;
}

unsigned PointerTree::indexOf(const void* item) const {
  const auto found = leafOf_.find(item);
  if (found == leafOf_.end()) return kNotFound;
  const Leaf& leaf = *found->second;
  if (&leaf != cursor_) setCursor(&leaf, firstIndex(leaf));
  return cursorFirst_ + offsetOf(leaf, item);
}

bool PointerTree::contains(const void* item) const { return leafOf_.contains(item); }

void PointerTree::setCursor(const Leaf* leaf, unsigned first) const {
  cursor_ = leaf;
  cursorFirst_ = first;
}

// Adding

void PointerTree::append(void* item) {
  Leaf* leaf = last_->fill < kLeafItems ? last_ : appendLeaf();
  leaf->items[leaf->fill++] = item;
  leafOf_[item] = leaf;
  addCount(*leaf, 1);
  ++size_;
}

void PointerTree::insert(unsigned index, void* item) {
  if (index == size_) return append(item);
  Place place = find(index);
  if (place.leaf->fill == kLeafItems) {
    Leaf* upper = splitLeaf(*place.leaf);
    const unsigned half = place.leaf->fill;
    if (place.offset > half) place = {upper, place.offset - half};
  }
  insertAt(place, item);
  resetCursor();
}

void PointerTree::insertAt(Place place, void* item) {
  Leaf& leaf = *place.leaf;
  std::copy_backward(leaf.items + place.offset, leaf.items + leaf.fill, leaf.items + leaf.fill + 1);
  leaf.items[place.offset] = item;
  ++leaf.fill;
  leafOf_[item] = &leaf;
  addCount(leaf, 1);
  ++size_;
}

Leaf* PointerTree::appendLeaf() {
  auto* fresh = new Leaf;
  insertBlock(*last_, *fresh, 0, true);
  fresh->previous = last_;
  last_->next = fresh;
  return last_ = fresh;
}

Leaf* PointerTree::splitLeaf(Leaf& leaf) {
  constexpr unsigned kHalf = kLeafItems / 2;
  auto* fresh = new Leaf;
  std::copy(leaf.items + kHalf, leaf.items + kLeafItems, fresh->items);
  leaf.fill = kHalf;
  fresh->fill = kLeafItems - kHalf;
  for (unsigned i = 0; i < fresh->fill; ++i) leafOf_[fresh->items[i]] = fresh;
  addCount(leaf, 0u - fresh->fill);
  insertBlock(leaf, *fresh, fresh->fill, false);
  fresh->previous = &leaf;
  fresh->next = leaf.next;
  (leaf.next ? leaf.next->previous : last_) = fresh;
  leaf.next = fresh;
  return fresh;
}

void PointerTree::insertBlock(Block& after, Block& fresh, unsigned count, bool appending) {
  if (!after.parent) growRoot();
  if (after.parent->fill == kBranchItems) {
    Branch* added = splitBranch(*after.parent, appending);
    if (appending) {
      added->fill = 1;
      added->place(0, fresh, 0);
      return addCount(fresh, count);
    }
  }
  Branch& branch = *after.parent;  // Asked for again: a split may have moved `after`.
  const unsigned slot = after.slot + 1;
  for (unsigned i = branch.fill++; i > slot; --i) {
    branch.place(i, *branch.children[i - 1], branch.counts[i - 1]);
  }
  branch.place(slot, fresh, 0);
  addCount(fresh, count);
}

void PointerTree::growRoot() {
  auto* branch = new Branch;
  branch->fill = 1;
  branch->place(0, *root_, height_ > 0 ? static_cast<Branch*>(root_)->total() : root_->fill);
  root_ = branch;
  ++height_;
}

// Appending leaves the full branch as it is, so that a sequence that grew at its end is dense.
Branch* PointerTree::splitBranch(Branch& branch, bool appending) {
  auto* fresh = new Branch;
  if (!appending) moveChildren(branch, kBranchItems / 2, *fresh);
  const unsigned moved = fresh->total();
  addCount(branch, 0u - moved);
  insertBlock(branch, *fresh, moved, appending);
  return fresh;
}

// Removing

unsigned PointerTree::remove(const void* item) {
  const auto found = leafOf_.find(item);
  if (found == leafOf_.end()) return kNotFound;
  Leaf& leaf = *found->second;
  const unsigned offset = offsetOf(leaf, item);
  const unsigned index = firstIndex(leaf) + offset;
  std::copy(leaf.items + offset + 1, leaf.items + leaf.fill, leaf.items + offset);
  --leaf.fill;
  --size_;
  leafOf_.erase(found);
  addCount(leaf, 0u - 1);
  shrinkLeaf(leaf);
  releaseUnusedSpace(leafOf_);
  resetCursor();
  return index;
}

void PointerTree::shrinkLeaf(Leaf& leaf) {
  if (leaf.fill == 0) {
    if (&leaf != root_) dropLeaf(leaf);
  } else if (leaf.fill < poor(kLeafItems)) {
    auto* left = static_cast<Leaf*>(leftOfJoinable(leaf, kLeafItems));
    if (left) mergeLeaves(*left, *left->next);
  }
}

void PointerTree::mergeLeaves(Leaf& left, Leaf& right) {
  for (unsigned i = 0; i < right.fill; ++i) leafOf_[right.items[i]] = &left;
  std::copy(right.items, right.items + right.fill, left.items + left.fill);
  left.fill += right.fill;
  addCount(left, right.fill);
  addCount(right, 0u - right.fill);
  dropLeaf(right);
}

void PointerTree::dropLeaf(Leaf& leaf) {
  (leaf.previous ? leaf.previous->next : first_) = leaf.next;
  (leaf.next ? leaf.next->previous : last_) = leaf.previous;
  removeBlock(leaf);
  delete &leaf;
}

// Takes a block that has nothing below it any more out of its parent.
void PointerTree::removeBlock(Block& block) {
  Branch& branch = *block.parent;
  for (unsigned i = block.slot + 1; i < branch.fill; ++i) {
    branch.place(i - 1, *branch.children[i], branch.counts[i]);
  }
  --branch.fill;
  shrinkBranch(branch);
}

void PointerTree::shrinkBranch(Branch& branch) {
  if (&branch == root_) return lowerRoot();
  if (branch.fill == 0) {
    removeBlock(branch);
    delete &branch;
  } else if (branch.fill < poor(kBranchItems)) {
    auto* left = static_cast<Branch*>(leftOfJoinable(branch, kBranchItems));
    if (!left) return;
    auto* right = static_cast<Branch*>(neighbour(*left, +1));
    const unsigned moved = right->total();
    moveChildren(*right, 0, *left);
    addCount(*left, moved);
    addCount(*right, 0u - moved);
    removeBlock(*right);
    delete right;
  }
}

void PointerTree::lowerRoot() {
  while (height_ > 0 && root_->fill == 1) {
    auto* old = static_cast<Branch*>(root_);
    root_ = old->children[0];
    root_->parent = nullptr;
    root_->slot = 0;
    --height_;
    delete old;
  }
}

}  // namespace orvlib
