#pragma once

#include "platform/OpenVesk/KString.h"

VESK_API_OPEN

/// Names one text that the host can translate: plug-in id and key, with the default text.
class VESK_EXPORT KStringResourceId {
 public:
  KStringResourceId();
  KStringResourceId(const KStringResourceId& other);
  KStringResourceId(const char* pluginId, const char* key, const KString& defaultText);
  KStringResourceId& operator=(const KStringResourceId& other);
  ~KStringResourceId();

 private:
  friend struct HostAccess;
  KString pluginId_;
  KString key_;
  KString defaultText_;
};

VESK_API_CLOSE
