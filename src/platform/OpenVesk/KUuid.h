#pragma once

#include "platform/OpenVesk/KString.h"

VESK_API_OPEN

/// The identifier of a scene node, unique in the world.
class VESK_EXPORT KUuid {
 public:
  KUuid(const KUuid& other);
  KUuid& operator=(const KUuid& other);
  ~KUuid();

  /// Like "6ba7b810-9dad-11d1-80b4-00c04fd430c8"; empty for none.
  KString asString() const;

 private:
  friend struct HostAccess;
  KUuid();
  KString text_;
};

VESK_API_CLOSE
