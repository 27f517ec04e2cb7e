#include "platform/ORV_1_0/ReferenceCounted.h"

namespace ORV_v1 {

ReferenceCounted::ReferenceCounted() = default;
ReferenceCounted::~ReferenceCounted() = default;

void ReferenceCounted::addRef() { ++count_; }

void ReferenceCounted::release() {
  if (--count_ == 0) delete this;
}

}  // namespace ORV_v1
