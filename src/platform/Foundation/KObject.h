#pragma once

#include "platform/Foundation/KApi.h"

VESK_API_OPEN

/// A counted handle on an object of the host: a scene node or a plug-in. Null when default-built.
class VESK_EXPORT KObject {
 public:
  KObject();
  KObject(const KObject& other);
  KObject& operator=(const KObject& other);
  ~KObject();

  /// What the handles on one object share; known to the host alone.
  struct Rep;

 private:
  friend struct HostAccess;
  Rep* rep_ = nullptr;
};

VESK_API_CLOSE
