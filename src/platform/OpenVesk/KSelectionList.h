#pragma once

#include "platform/Foundation/KObject.h"
#include "platform/OpenVesk/KStatus.h"

VESK_API_OPEN

/// A list of scene objects.
class VESK_EXPORT KSelectionList {
 public:
  KSelectionList();
  virtual ~KSelectionList();
  KSelectionList(const KSelectionList&) = delete;
  KSelectionList& operator=(const KSelectionList&) = delete;

  /// `StatusFailure`, with the handle unchanged, past the end.
  KStatus getDependNode(unsigned int index, KObject& object) const;

 private:
  friend struct HostAccess;
  struct Rep;
  Rep* rep_;
};

VESK_API_CLOSE
