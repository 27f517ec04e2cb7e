#pragma once

#include "platform/OpenVesk/KString.h"

VESK_API_OPEN

/// The arguments of a command line, or of one use of a flag, in order.
class VESK_EXPORT KArgList {
 public:
  KArgList();
  KArgList(const KArgList& other);
  KArgList& operator=(const KArgList& other);
  ~KArgList();

  unsigned int length(KStatus* status = nullptr) const;

  /// The argument at `index`. `StatusFailure` past the end; `asBool` gives `StatusBadArgument` for
  /// a text that is no boolean. The value is then false or empty.
  bool asBool(unsigned int index, KStatus* status = nullptr) const;
  KString asString(unsigned int index, KStatus* status = nullptr) const;

 private:
  friend struct HostAccess;
  struct Rep;
  Rep* rep_ = nullptr;
};

VESK_API_CLOSE
