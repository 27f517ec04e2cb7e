#include "standalone/vesk/recovery/Recovery.h"

#include <filesystem>

#include "standalone/graph/clipboard/Clipboard.h"
#include "standalone/host/engine/AtomicFile.h"
#include "standalone/host/engine/HostSession.h"
#include "standalone/vesk/recovery/AbandonedJournal.h"
#include "standalone/vesk/recovery/JournalFile.h"
#include "standalone/vesk/recovery/KeptJournal.h"

namespace vesk {
namespace {

namespace fs = std::filesystem;

/// Scenes are opened and saved as they were then: from the copies, and without writing.
class ScenesOfThen final : public SceneStore {
 public:
  explicit ScenesOfThen(KeptJournal& kept) : kept_(kept), store_(kept.exchangeStore(*this)) {}
  ~ScenesOfThen() override { kept_.exchangeStore(store_); }

  void begin(const AbandonedJournal::Line& line) { line_ = &line, next_ = 0; }

  std::optional<std::string> read(const std::string& path, std::string& reason) override {
    const auto* use = nextUse(path, false);
    reason = "it could not be opened then";
    return use && use->succeeded ? readWholeFile(use->copy, reason) : std::nullopt;
  }

  std::string write(const std::string& path, std::string_view) override {
    const auto* use = nextUse(path, true);
    return use && use->succeeded ? "" : "it could not be saved then";
  }

 private:
  /// Null when the line did something else.
  const AbandonedJournal::FileUse* nextUse(const std::string& path, bool saves) {
    if (!line_ || next_ >= line_->uses.size()) return nullptr;
    const auto& use = line_->uses[next_++];
    return use.path == path && use.saves == saves ? &use : nullptr;
  }

  KeptJournal& kept_;
  SceneStore& store_;
  const AbandonedJournal::Line* line_ = nullptr;
  std::size_t next_ = 0;
};

/// Is in the folder while it lives. One that is gone is told of by what is looked for there.
class WorkingFolder {
 public:
  explicit WorkingFolder(const std::string& folder) {
    std::error_code ignored;
    before_ = fs::current_path(ignored);
    if (!folder.empty()) fs::current_path(folder, ignored);
  }
  ~WorkingFolder() {
    std::error_code ignored;
    fs::current_path(before_, ignored);
  }
  WorkingFolder(const WorkingFolder&) = delete;
  WorkingFolder& operator=(const WorkingFolder&) = delete;

 private:
  fs::path before_;
};

/// What the user has on the clipboard stays there; the lines begin with the same.
class ClipboardOfReplay {
 public:
  ClipboardOfReplay() { orvlib::Clipboard::setText(text_); }

 private:
  std::string text_ = orvlib::Clipboard::text();
  orvlib::PrivateClipboard clipboard_;
};

bool runAgain(const AbandonedJournal::Line& line, HostSession& session) {
  ResultValue result;
  const KStatus status =
      session.engine().run(line.text, result, {.display = line.display, .undo = line.undo});
  const bool good = status && session.runIdleLines();
  // A program that was killed while it ended goes on.
  session.quitRequested = false;
  session.exitStatus = 0;
  return good;
}

}  // namespace

Recovered recover(AbandonedJournal& journal, HostSession& session, KeptJournal& kept) {
  Recovered recovered;
  ResultValue nothing;
  session.journal().note(markText(mark::kRecovers, journal.path()));
  session.engine().run("file -new -force", nothing, {.display = false});
  {
    const WorkingFolder folder(journal.folder());
    const ClipboardOfReplay clipboard;
    ScenesOfThen scenes(kept);
    for (const AbandonedJournal::Line& line : journal.lines()) {
      scenes.begin(line);
      ++recovered.lines;
      recovered.failed += !runAgain(line, session);
    }
  }
  session.journal().note(markText(mark::kRecovered, journal.path()));
  kept.keepUnsavedWork();
  recovered.isSafe = kept.isSafe();
  if (recovered.isSafe) journal.remove();
  return recovered;
}

}  // namespace vesk
