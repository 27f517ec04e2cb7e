#pragma once

#include "platform/OpenVesk/KArgDatabase.h"
#include "platform/OpenVesk/KStringArray.h"

/// Argument `index` of the flag's first use; empty when it cannot be read.
inline KString flagText(const KArgDatabase& db, const char* flag, unsigned int index = 0) {
  KString text;
  db.getFlagArgument(flag, index, text);
  return text;
}

/// Argument 0 of the flag's first use as a boolean; false when it cannot be read.
inline bool flagBool(const KArgDatabase& db, const char* flag, unsigned int index = 0) {
  bool value = false;
  db.getFlagArgument(flag, index, value);
  return value;
}

/// Calls `read` with the arguments of each use of the flag, in the order of the line, until it says
/// false. True when no call did.
template <class Read>
bool forEachUse(const KArgDatabase& db, const char* flag, Read read) {
  const unsigned int uses = db.numberOfFlagUses(flag);
  for (unsigned int i = 0; i < uses; ++i) {
    KArgList arguments;
    db.getFlagArgumentList(flag, i, arguments);
    if (!read(static_cast<const KArgList&>(arguments))) return false;
  }
  return true;
}

/// Replaces `texts` by the first argument of each use of the flag.
inline void readUses(const KArgDatabase& db, const char* flag, KStringArray& texts) {
  texts.setLength(db.numberOfFlagUses(flag));
  unsigned int next = 0;
  forEachUse(db, flag, [&](const KArgList& use) {
    texts[next++] = use.asString(0);
    return true;
  });
}
