#pragma once

#include <span>

#include "platform/OpenVesk/KSyntax.h"

/// A flag of a command: its names, with or without a leading "-" as the command declares them and
/// asks for them, and the kinds of its arguments.
struct FlagRow {
  const char* shortName;
  const char* longName;
  KSyntax::KArgType argument1 = KSyntax::ArgNone;
  KSyntax::KArgType argument2 = KSyntax::ArgNone;
};

/// Declares the flags in the order of the rows.
inline void addFlags(KSyntax& syntax, std::span<const FlagRow> rows) {
  for (const FlagRow& row : rows) {
    syntax.addFlag(row.shortName, row.longName, row.argument1, row.argument2);
  }
}
