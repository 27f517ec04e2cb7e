#pragma once

#include "platform/ORV_1_0/OrvApi.h"

namespace ORV_v1 {

/// The base of every graph object that is passed by handle. A new object has a count of 0 and
/// belongs to its first handle. Counting is not for several threads at once.
class ORV_EXPORT ReferenceCounted {
 public:
  ReferenceCounted(const ReferenceCounted&) = delete;
  ReferenceCounted& operator=(const ReferenceCounted&) = delete;

  void addRef();

  /// Gives one reference back. The object is gone when its count reaches 0.
  void release();

 protected:
  ReferenceCounted();
  virtual ~ReferenceCounted();

 private:
  unsigned int count_ = 0;
};

}  // namespace ORV_v1
