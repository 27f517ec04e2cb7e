#pragma once

#include "platform/ORV_1_0/StringArray.h"

namespace ORV_v1 {

/// A string array that may be absent, which is not the same as empty.
class ORV_EXPORT OptionalStringArray {
 public:
  /// Absent.
  OptionalStringArray();
  OptionalStringArray(const OptionalStringArray& other);
  OptionalStringArray& operator=(const OptionalStringArray& other);
  ~OptionalStringArray();

  /// Whether there is an array.
  bool isValid() const;

  /// Empty when there is none.
  StringArray getValues() const;

  /// From now on there is an array, also when it is empty.
  void setValues(const StringArray& values);

 private:
  friend struct GraphAccess;
  struct Rep;
  /// Null when there is no array.
  Rep* rep_ = nullptr;
};

}  // namespace ORV_v1
