#pragma once

#include "platform/Foundation/KApi.h"

VESK_API_OPEN

/// How a host call or a command ended.
enum KStatusCode {
  StatusSuccess = 0,      ///< it worked
  StatusFailure = 1,      ///< the work could not be done: something was missing, a call refused
  StatusBadArgument = 3,  ///< a flag or argument could not be read, or was used in the wrong mode
};

/// A status, passed by value.
class VESK_EXPORT KStatus {
 public:
  KStatus(KStatusCode code = StatusSuccess) : code_(code) {}

  KStatusCode statusCode() const { return code_; }

  /// True when the code is `StatusSuccess`.
  explicit operator bool() const { return code_ == StatusSuccess; }

 private:
  KStatusCode code_;
};

VESK_API_CLOSE
