#pragma once

#include <cstdint>

#include "platform/OpenVesk/KStatus.h"

VESK_API_OPEN

/// What all kinds of callbacks share.
class VESK_EXPORT KMessage {
 public:
  /// `StatusFailure` for an id that is not in use. A callback may remove itself while it runs.
  static KStatus removeCallback(std::uint64_t id);
};

VESK_API_CLOSE
