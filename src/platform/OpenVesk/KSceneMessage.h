#pragma once

#include <cstdint>

#include "platform/OpenVesk/KStatus.h"

VESK_API_OPEN

/// Events of the scene.
class VESK_EXPORT KSceneMessage {
 public:
  enum Message {
    kExiting = 30,  ///< the program is about to exit
  };
  using Function = void (*)(void* clientData);

  /// Calls `function` with `clientData` at each such event, until the callback is removed. Returns
  /// its id, or 0 with `StatusBadArgument` for a null function.
  static std::uint64_t addCallback(Message message, Function function, void* clientData = nullptr,
                                   KStatus* status = nullptr);
};

VESK_API_CLOSE
