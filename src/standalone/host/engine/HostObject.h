#pragma once

#include <memory>

#include "platform/Foundation/KObject.h"

namespace vesk {

class HostObject;

}  // namespace vesk

/// What all handles on one object share. The object carries it, so that making a handle allocates
/// nothing, and it keeps the object alive while there are handles.
struct KObject::Rep {
  unsigned references = 0;
  std::shared_ptr<vesk::HostObject> object;  ///< null while there is no handle
};

namespace vesk {

/// What a `KObject` can be a handle on.
class HostObject {
 public:
  HostObject() = default;
  HostObject(const HostObject&) = delete;
  HostObject& operator=(const HostObject&) = delete;
  virtual ~HostObject() = default;

 private:
  friend struct ::HostAccess;
  KObject::Rep handles_;
};

}  // namespace vesk
