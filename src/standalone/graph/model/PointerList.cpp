#include "standalone/graph/model/PointerList.h"

#include <algorithm>
#include <utility>

namespace orvlib {

void PointerList::insert(unsigned index, void* item) {
  index = std::min(index, size_);
  if (size_ == capacity_) makeRoom();
  if (isLong()) {
    store_.tree->insert(index, item);
  } else {
    void** all = items();
    std::copy_backward(all + index, all + size_, all + size_ + 1);
    all[index] = item;
  }
  ++size_;
}

void PointerList::makeRoom() {
  if (size_ == kSmall) {
    auto* tree = new PointerTree(store_.array, size_);
    delete[] store_.array;
    store_.tree = tree;
    capacity_ = kLong;
    return;
  }
  auto* larger = new void*[size_ * 2];
  std::copy(items(), items() + size_, larger);
  if (capacity_ != kInside) delete[] store_.array;
  store_.array = larger;
  capacity_ = size_ * 2;
}

unsigned PointerList::remove(const void* item) {
  const unsigned index = isLong() ? store_.tree->remove(item) : indexInSmall(item);
  if (index == kNotFound) return index;
  if (!isLong()) std::copy(items() + index + 1, items() + size_, items() + index);
  --size_;
  if (isLong() && size_ == kSmallAgain) leaveTree();
  return index;
}

void PointerList::leaveTree() {
  auto* array = new void*[kSmall];
  for (unsigned i = 0; i < size_; ++i) array[i] = store_.tree->at(i);
  delete store_.tree;
  store_.array = array;
  capacity_ = kSmall;
}

void PointerList::clear() {
  if (isLong()) {
    delete store_.tree;
  } else if (capacity_ != kInside) {
    delete[] store_.array;
  }
  size_ = 0;
  capacity_ = kInside;
}

void PointerList::swap(PointerList& other) noexcept {
  std::swap(store_, other.store_);
  std::swap(size_, other.size_);
  std::swap(capacity_, other.capacity_);
}

PointerList::Iterator::Iterator(const PointerList& list) {
  if (list.isLong()) {
    enterLeaf(list.store_.tree->firstLeaf());
  } else if (list.size_ > 0) {
    at_ = list.items();
    end_ = at_ + list.size_;
  }
}

void PointerList::Iterator::enterLeaf(const PointerTree::Leaf* leaf) {
  leaf_ = leaf;
  at_ = leaf ? leaf->items : nullptr;
  end_ = leaf ? leaf->items + leaf->fill : nullptr;
}

void PointerList::Iterator::enterNextLeaf() { enterLeaf(leaf_ ? leaf_->next : nullptr); }

}  // namespace orvlib
