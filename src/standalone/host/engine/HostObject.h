#pragma once

#include <memory>

#include "platform/Foundation/KObject.h"

namespace vesk {

/// What a `KObject` can be a handle on.
class HostObject {
 public:
  HostObject() = default;
  HostObject(const HostObject&) = delete;
  HostObject& operator=(const HostObject&) = delete;
  virtual ~HostObject() = default;
};

}  // namespace vesk

struct KObject::Rep {
  std::shared_ptr<vesk::HostObject> object;
};
