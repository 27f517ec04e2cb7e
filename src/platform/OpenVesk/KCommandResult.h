#pragma once

#include "platform/OpenVesk/KStringArray.h"

VESK_API_OPEN

/// What a line that was run left as its result.
class VESK_EXPORT KCommandResult {
 public:
  enum Type {
    kNone = 0,
    kBool = 1,
    kInt = 2,
    kUnsigned = 3,
    kDouble = 4,
    kString = 5,
    kStringArray = 8,
  };

  explicit KCommandResult(KStatus* status = nullptr);
  virtual ~KCommandResult();
  KCommandResult(const KCommandResult&) = delete;
  KCommandResult& operator=(const KCommandResult&) = delete;

  Type resultType(KStatus* status = nullptr) const;

  /// `StatusFailure`, with the variable unchanged, when the result is of another kind. A bool and
  /// an unsigned that fits read as an int; nothing else converts.
  KStatus getResult(int& value) const;
  KStatus getResult(KString& value) const;
  KStatus getResult(KStringArray& value) const;

 private:
  friend struct HostAccess;
  struct Rep;
  Rep* rep_;
};

VESK_API_CLOSE
