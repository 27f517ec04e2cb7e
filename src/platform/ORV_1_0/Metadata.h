#pragma once

#include "platform/ORV_1_0/PropertyList.h"
#include "platform/ORV_1_0/StringArray.h"

namespace ORV_v1 {

/// The metadata part of an object: keys, each with one or more values. It shows the metadata as it
/// is now; a `MetadataCommand` changes it.
class ORV_EXPORT Metadata {
 protected:
  Metadata();
  virtual ~Metadata();

 public:
  Metadata(const Metadata&) = delete;
  Metadata& operator=(const Metadata&) = delete;

  /// Replaces `values` by all values of the key, in their order. False, and `values` empty, for a
  /// key that the object does not have and for null.
  virtual bool getMetadataValues(const char* key, StringArray& values) const = 0;

  /// Replaces `keys` by all keys, in the order in which they came.
  virtual void getMetadataKeys(StringArray& keys) const = 0;

  /// A copy of the whole set.
  virtual PropertyList getMetadata() const = 0;
};

}  // namespace ORV_v1
