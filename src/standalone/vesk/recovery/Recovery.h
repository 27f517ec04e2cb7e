#pragma once

#include <cstddef>

namespace vesk {

class AbandonedJournal;
class HostSession;
class KeptJournal;

struct Recovered {
  std::size_t lines = 0;
  std::size_t failed = 0;  ///< of these; they may have failed the first time too
  bool isSafe = false;  ///< the lines are in the journal that is kept now; else the old one stays
};

/// Does again what the journal tells, in a new scene and in the folder of then, and removes the
/// journal once the lines are safe in the one that is kept now. No scene is written meanwhile: what
/// was saved is there, or has been changed since by somebody who meant it.
Recovered recover(AbandonedJournal& journal, HostSession& session, KeptJournal& kept);

}  // namespace vesk
