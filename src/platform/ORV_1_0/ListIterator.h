#pragma once

namespace ORV_v1 {

/// Walks a list of the library by index; valid while the list lives and keeps its length.
template <class List>
class ListIterator {
 public:
  ListIterator(const List& list, unsigned int index) : list_(&list), index_(index) {}

  decltype(auto) operator*() const { return (*list_)[index_]; }
  ListIterator& operator++() {
    ++index_;
    return *this;
  }
  bool operator==(const ListIterator& other) const {
    return list_ == other.list_ && index_ == other.index_;
  }

 private:
  const List* list_;
  unsigned int index_;
};

}  // namespace ORV_v1
