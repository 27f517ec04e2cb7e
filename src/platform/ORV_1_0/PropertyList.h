#pragma once

#include "platform/ORV_1_0/OrvApi.h"
#include "platform/ORV_1_0/String.h"

namespace ORV_v1 {

/// A set of keys with the values of each, in the order in which the keys came: the metadata of an
/// object, or the options of a port. A value; an empty one costs a pointer.
class ORV_EXPORT PropertyList {
 public:
  /// How a set is written as one text.
  enum SerializeMode {
    kSerializeAll = 0,  ///< every key with all its values
  };

  PropertyList();
  PropertyList(const PropertyList& other);
  PropertyList& operator=(const PropertyList& other);
  ~PropertyList();

  /// Whether there is no key.
  bool empty() const;

  /// The set as one text, such as `{color=red,tags={a,b}}`.
  String serialize(SerializeMode mode) const;

  /// Replaces the whole set by what the text says; empty text is an empty set. False for null and
  /// for malformed text, which change nothing.
  bool unserialize(const char* text, SerializeMode mode);

 private:
  friend struct GraphAccess;
  struct Rep;
  /// Null for an empty set.
  Rep* rep_ = nullptr;
};

}  // namespace ORV_v1
