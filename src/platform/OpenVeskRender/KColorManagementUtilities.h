#pragma once

#include "platform/Foundation/KApi.h"

VESK_API_OPEN

/// The state of the host's colour management.
class VESK_EXPORT KColorManagementUtilities {
 public:
  /// False when the user turned colour management off, and in a host that has none.
  static bool isColorManagementEnabled();
};

VESK_API_CLOSE
