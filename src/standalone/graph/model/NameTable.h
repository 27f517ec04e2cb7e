#pragma once

#include "standalone/graph/model/NameIndex.h"

namespace orvlib {

/// The names of the siblings of one level. It does not own the elements; the characters of a name
/// are the element's, and stay where they are while it is in the table. Every operation is constant
/// on average, however many siblings there are.
template <class T>
class NameTable {
 public:
  unsigned size() const { return index_.size(); }
  /// Null for an unknown name.
  T* find(std::string_view name) const { return static_cast<T*>(index_.find(name)); }
  bool contains(std::string_view name) const { return index_.find(name) != nullptr; }

  /// False, and nothing happens, if the name is taken.
  bool add(std::string_view name, T* element) { return index_.add(name, element); }
  /// The element that had the name; null if there is none.
  T* remove(std::string_view name) { return static_cast<T*>(index_.remove(name)); }

  /// The name that an element gets who wants `wanted`: that, made a proper name, if it is free;
  /// else its base with the smallest number from 1 on that is free. See cleanName and numberedName.
  std::string uniqueName(std::string_view wanted) { return index_.uniqueName(wanted); }

 private:
  NameIndex index_;
};

}  // namespace orvlib
