#pragma once

#include "platform/Foundation/KObject.h"
#include "platform/OpenVesk/KUuid.h"

VESK_API_OPEN

/// A scene node, seen through its handle.
class VESK_EXPORT KFnDependencyNode {
 public:
  /// `StatusFailure` when the object is no scene node.
  explicit KFnDependencyNode(KObject& object, KStatus* status = nullptr);
  virtual ~KFnDependencyNode();
  KFnDependencyNode(const KFnDependencyNode&) = delete;
  KFnDependencyNode& operator=(const KFnDependencyNode&) = delete;

  KUuid uuid(KStatus* status = nullptr) const;

 private:
  friend struct HostAccess;
  KObject object_;
};

VESK_API_CLOSE
