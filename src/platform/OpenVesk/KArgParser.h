#pragma once

#include "platform/OpenVesk/KArgList.h"
#include "platform/OpenVesk/KSyntax.h"

VESK_API_OPEN

/// A command line read against a syntax.
///
/// The constructor reports what does not fit to the user, naming the flag or argument, and gives
/// `StatusBadArgument`; what did fit can still be read. Too few positional arguments are no such
/// refusal: reading the missing one fails.
///
/// Flags are asked for by their declared short or long name, exactly as declared. An undeclared
/// name gives `StatusBadArgument`, a flag or argument that is not there `StatusFailure`. A status
/// pointer may be null.
class VESK_EXPORT KArgParser {
 public:
  KArgParser(const KSyntax& syntax, const KArgList& args, KStatus* status = nullptr);
  virtual ~KArgParser();
  KArgParser(const KArgParser&) = delete;
  KArgParser& operator=(const KArgParser&) = delete;

  /// Whether the flag was given; not being given is no failure.
  bool isFlagSet(const char* flag, KStatus* status = nullptr) const;
  bool isQuery(KStatus* status = nullptr) const;
  bool isEdit(KStatus* status = nullptr) const;

  /// 0 when the flag was not given.
  unsigned int numberOfFlagUses(const char* flag) const;

  /// The arguments of the use at `use`, counted from 0; `args` is unchanged on failure.
  KStatus getFlagArgumentList(const char* flag, unsigned int use, KArgList& args) const;

  /// Argument `index` of the flag's first use; empty or 0 on failure.
  KString flagArgumentString(const char* flag, unsigned int index, KStatus* status = nullptr) const;
  int flagArgumentInt(const char* flag, unsigned int index, KStatus* status = nullptr) const;

 private:
  friend struct HostAccess;
  struct Rep;
  Rep* rep_;
};

VESK_API_CLOSE
