#pragma once

#include <cstddef>

namespace vesk {

class AbandonedJournal;
class HostSession;
class KeptJournal;

struct Recovered {
  std::size_t lines = 0;
  std::size_t failed = 0;  ///< of these; they may have failed the first time too
};

/// Does again what the journal tells, in a new scene, and removes the journal. No scene is written
/// meanwhile: what was saved is there, or has been changed since by somebody who meant it. The
/// lines go into the journal that is kept now.
Recovered recover(AbandonedJournal& journal, HostSession& session, KeptJournal& kept);

}  // namespace vesk
