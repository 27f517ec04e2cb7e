#pragma once

#include "platform/OpenVesk/KStatus.h"

VESK_API_OPEN

/// What a command line may hold: flags with their arguments, positional arguments, modes.
class VESK_EXPORT KSyntax {
 public:
  enum KArgType {
    ArgNone = 1,      ///< no argument; also fills the unused positions of `addFlag`
    ArgBoolean = 2,   ///< true/false, on/off, yes/no, 1/0
    ArgInteger = 3,   ///< 32 bits with sign
    ArgString = 5,    ///< any text
    ArgUnsigned = 6,  ///< 32 bits without sign
  };

  KSyntax();
  KSyntax(const KSyntax& other);
  KSyntax& operator=(const KSyntax& other);
  virtual ~KSyntax();

  /// Declares a flag with up to six arguments. The names are kept as given, with or without a
  /// leading
  /// "-"; a command line always writes them with one. `StatusBadArgument` when a name is empty or
  /// taken, or an argument follows an `ArgNone`.
  KStatus addFlag(const char* shortName, const char* longName, KArgType arg1 = ArgNone,
                  KArgType arg2 = ArgNone, KArgType arg3 = ArgNone, KArgType arg4 = ArgNone,
                  KArgType arg5 = ArgNone, KArgType arg6 = ArgNone);

  /// Declares the next positional argument. `StatusBadArgument` for `ArgNone`.
  KStatus addArg(KArgType type);

  /// Lets the flag be given repeatedly. `StatusBadArgument` for an undeclared flag.
  KStatus makeFlagMultiUse(const char* shortName);

  /// Keeps the flag's arguments in query mode; when `required` is false they may also be left out
  /// there. `StatusBadArgument` for an undeclared flag.
  KStatus makeFlagQueryWithFullArgs(const char* shortName, bool required);

  /// Allow `-q`/`-query` and `-e`/`-edit`; both are off in a new syntax.
  void enableQuery(bool enable);
  void enableEdit(bool enable);

 private:
  friend struct HostAccess;
  struct Rep;
  Rep* rep_;
};

VESK_API_CLOSE
