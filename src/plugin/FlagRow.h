#pragma once

#include <span>

#include "platform/OpenVesk/KSyntax.h"

// Short names for the rows of a table.
inline constexpr KSyntax::KArgType kText = KSyntax::ArgString;
inline constexpr KSyntax::KArgType kBool = KSyntax::ArgBoolean;
inline constexpr KSyntax::KArgType kUnsigned = KSyntax::ArgUnsigned;

/// A flag of a command: its names, with or without a leading "-" as the command declares them and
/// asks for them, the kinds of its arguments, and whether a line may give it repeatedly.
struct FlagRow {
  const char* shortName;
  const char* longName;
  KSyntax::KArgType argument1 = KSyntax::ArgNone;
  KSyntax::KArgType argument2 = KSyntax::ArgNone;
  KSyntax::KArgType argument3 = KSyntax::ArgNone;
  KSyntax::KArgType argument4 = KSyntax::ArgNone;
  bool multiUse = false;
};

/// The row of a flag that a line may give repeatedly.
constexpr FlagRow multiUse(FlagRow row) {
  row.multiUse = true;
  return row;
}

/// Declares the flags in the order of the rows.
inline void addFlags(KSyntax& syntax, std::span<const FlagRow> rows) {
  for (const FlagRow& row : rows) {
    syntax.addFlag(row.shortName, row.longName, row.argument1, row.argument2, row.argument3,
                   row.argument4);
    if (row.multiUse) syntax.makeFlagMultiUse(row.shortName);
  }
}
