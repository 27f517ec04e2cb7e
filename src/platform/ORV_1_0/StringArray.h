#pragma once

#include "platform/ORV_1_0/ListIterator.h"
#include "platform/ORV_1_0/OrvApi.h"
#include "platform/ORV_1_0/String.h"

namespace ORV_v1 {

/// A growing array of UTF-8 strings.
class ORV_EXPORT StringArray {
 public:
  /// How an array is written as one text.
  enum SerializeMode {
    /// One text is written bare, any other number of them between `open` and `close`. Every array
    /// can be written so, and is read back as it was.
    kSerializeWithTags = 1,
  };

  /// The four characters that structure a text. They must all differ. Inside a text each of them is
  /// written with `escape` before it.
  struct SerializationTags {
    char open;
    char close;
    char separator;
    char escape;
  };

  /// `{`, `}`, `,` and `\`: the form in which lists are passed to the library as one text.
  static const SerializationTags kDefaultSerializationTags;

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

  /// The array as one text, such as `{a,b,c}`.
  String serialize(SerializeMode mode, const SerializationTags& tags) const;

 private:
  friend struct GraphAccess;
  struct Rep;
  Rep* rep_;
};

}  // namespace ORV_v1
