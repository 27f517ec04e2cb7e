#pragma once

#include "platform/ORV_1_0/ListIterator.h"
#include "platform/ORV_1_0/OrvApi.h"

namespace ORV_v1 {

/// A growing array of UTF-8 strings.
class ORV_EXPORT StringArray {
 public:
  StringArray();
  StringArray(const StringArray& other);
  StringArray& operator=(const StringArray& other);
  ~StringArray();

  /// Copies the text to the end of the array; null counts as empty text.
  void add(const char* text);
  void clear();
  unsigned int size() const;

  /// The text at `index`, valid until the array changes; empty text past the end, never null.
  const char* operator[](unsigned int index) const;

  ListIterator<StringArray> begin() const;
  ListIterator<StringArray> end() const;

 private:
  friend struct GraphAccess;
  struct Rep;
  Rep* rep_;
};

}  // namespace ORV_v1
