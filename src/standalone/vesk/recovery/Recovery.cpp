#include "standalone/vesk/recovery/Recovery.h"

#include <unordered_map>
#include <vector>

#include "standalone/host/engine/AtomicFile.h"
#include "standalone/host/engine/HostSession.h"
#include "standalone/vesk/recovery/AbandonedJournal.h"
#include "standalone/vesk/recovery/KeptJournal.h"

namespace vesk {
namespace {

/// Scenes as they were when the journal's lines opened them; nothing is written.
class ScenesOfThen final : public SceneStore {
 public:
  ScenesOfThen(const AbandonedJournal& journal, KeptJournal& kept)
      : kept_(kept), store_(kept.exchangeStore(*this)) {
    for (const auto& scene : journal.scenes()) copies_[scene.path].push_back(scene.copy);
  }
  ~ScenesOfThen() override { kept_.exchangeStore(store_); }

  std::optional<std::string> read(const std::string& path, std::string& reason) override {
    std::vector<std::string>& copies = copies_[path];
    std::size_t& next = next_[path];
    return readWholeFile(next < copies.size() ? copies[next++] : path, reason);
  }

  std::string write(const std::string&, std::string_view) override { return {}; }

 private:
  KeptJournal& kept_;
  SceneStore& store_;
  std::unordered_map<std::string, std::vector<std::string>> copies_;
  std::unordered_map<std::string, std::size_t> next_;
};

}  // namespace

Recovered recover(AbandonedJournal& journal, HostSession& session, KeptJournal& kept) {
  Recovered recovered;
  const ScenesOfThen scenes(journal, kept);
  for (const AbandonedJournal::Line& line : journal.lines()) {
    ResultValue result;
    const KStatus status =
        session.engine().run(line.text, result, {.display = line.display, .undo = line.undo});
    const KStatus idleStatus = session.runIdleLines();
    ++recovered.lines;
    recovered.failed += !status || !idleStatus;
  }
  // A program that was killed while it ended goes on.
  session.quitRequested = false;
  journal.remove();
  return recovered;
}

}  // namespace vesk
