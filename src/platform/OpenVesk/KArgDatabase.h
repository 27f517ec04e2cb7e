#pragma once

#include "platform/OpenVesk/KArgParser.h"

VESK_API_OPEN

/// A `KArgParser` that reads into variables and knows positional arguments. A failed read leaves
/// the variable unchanged and shows nothing.
class VESK_EXPORT KArgDatabase : public KArgParser {
 public:
  KArgDatabase(const KSyntax& syntax, const KArgList& args, KStatus* status = nullptr);
  ~KArgDatabase() override;

  /// Argument `index` of the flag's first use. `StatusBadArgument` when it is not of that type.
  KStatus getFlagArgument(const char* flag, unsigned int index, KString& value) const;
  KStatus getFlagArgument(const char* flag, unsigned int index, bool& value) const;
  KStatus getFlagArgument(const char* flag, unsigned int index, int& value) const;
  KStatus getFlagArgument(const char* flag, unsigned int index, unsigned int& value) const;

  /// Positional argument by index from 0. `StatusFailure` when too few were given.
  KStatus getCommandArgument(unsigned int index, KString& value) const;
  KStatus getCommandArgument(unsigned int index, int& value) const;
};

VESK_API_CLOSE
