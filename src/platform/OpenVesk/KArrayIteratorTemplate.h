#pragma once

#include "platform/Foundation/KApi.h"

VESK_API_OPEN

/// Walks an array of the host by index; valid while the array lives and keeps its length.
template <class Array, class Element>
class KArrayIteratorTemplate {
 public:
  KArrayIteratorTemplate(const Array& array, unsigned int index) : array_(&array), index_(index) {}

  Element operator*() const { return (*array_)[index_]; }
  KArrayIteratorTemplate& operator++() {
    ++index_;
    return *this;
  }
  bool operator==(const KArrayIteratorTemplate& other) const { return index_ == other.index_; }
  bool operator!=(const KArrayIteratorTemplate& other) const { return index_ != other.index_; }

 private:
  const Array* array_;
  unsigned int index_;
};

VESK_API_CLOSE
