#pragma once

#include "platform/OpenVesk/KArgDatabase.h"
#include "platform/OpenVesk/KStringArray.h"

/// The flag that is being read from a line.
struct FlagReading {
  const KArgDatabase& db;
  const char* flag = nullptr;

  /// Argument `index` of the flag's first use; empty, or false, when it cannot be read.
  KString text(unsigned int index = 0) const {
    KString text;
    db.getFlagArgument(flag, index, text);
    return text;
  }
  bool boolean(unsigned int index = 0) const {
    bool value = false;
    db.getFlagArgument(flag, index, value);
    return value;
  }

  /// The same of another flag.
  FlagReading of(const char* other) const { return {db, other}; }

  /// Calls `read` with the arguments of each use, in the order of the line, until it says false.
  /// True when no call did.
  template <class Read>
  bool forEachUse(Read read) const {
    const unsigned int uses = db.numberOfFlagUses(flag);
    for (unsigned int i = 0; i < uses; ++i) {
      KArgList arguments;
      db.getFlagArgumentList(flag, i, arguments);
      if (!read(static_cast<const KArgList&>(arguments))) return false;
    }
    return true;
  }

  /// The first argument of each use, in the order of the line.
  KStringArray uses() const {
    KStringArray texts;
    texts.setLength(db.numberOfFlagUses(flag));
    unsigned int next = 0;
    forEachUse([&](const KArgList& use) {
      texts[next++] = use.asString(0);
      return true;
    });
    return texts;
  }
};
