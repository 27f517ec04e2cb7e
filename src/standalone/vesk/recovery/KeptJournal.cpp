#include "standalone/vesk/recovery/KeptJournal.h"

#include <fcntl.h>
#include <unistd.h>

#include <QDateTime>
#include <cstring>
#include <filesystem>

#include "standalone/host/engine/AtomicFile.h"
#include "standalone/host/engine/HostSession.h"
#include "standalone/host/language/Tokenizer.h"
#include "standalone/host/scene/Scene.h"
#include "standalone/vesk/recovery/JournalFile.h"

namespace vesk {
namespace {

namespace fs = std::filesystem;

/// Later names sort behind earlier ones.
std::string nameOfNow() {
  const QString time = QDateTime::currentDateTimeUtc().toString("yyyyMMdd-HHmmss-");
  return (time + QString::number(getpid()).rightJustified(7, '0')).toStdString();
}

std::string failure(const std::string& path) {
  return vesk::quoted(path) + ": " + std::strerror(errno);
}

/// Nobody else may read what the user does.
constexpr int kMode = 0600;

}  // namespace

/// It is locked before it has the name under which others look for it.
std::unique_ptr<KeptJournal> KeptJournal::begin(const std::string& folder, HostSession& session,
                                                std::string& reason) {
  std::error_code error;
  fs::create_directories(folder, error);
  const std::string stem = folder + "/" + nameOfNow();
  const std::string unlocked = stem + ".new";
  const int created = ::open(unlocked.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, kMode);
  if (created < 0) {
    reason = failure(unlocked);
    return nullptr;
  }
  ::close(created);
  const int lock = lockFile(unlocked);
  const std::string path = stem + std::string(kJournalEnding);
  fs::rename(unlocked, path, error);
  if (lock < 0 || error || !session.journal().open(path)) {
    reason = failure(path);
    removeJournal(path);
    if (lock >= 0) ::close(lock);
    return nullptr;
  }
  return std::unique_ptr<KeptJournal>(new KeptJournal(path, lock, session));
}

KeptJournal::KeptJournal(std::string path, int lock, HostSession& session)
    : path_(std::move(path)), lock_(lock), session_(session), store_(&session.scene().store()) {
  session.scene().setStore(*this);
  std::error_code unknown;
  note(mark::kFolder, fs::current_path(unknown).string());
}

KeptJournal::~KeptJournal() {
  session_.scene().setStore(*store_);
  const bool unsaved = session_.scene().isModified() && !session_.quitRequested;
  session_.journal().close();
  if (!keepsUnsavedWork_ || !unsaved) removeJournal(path_);
  ::close(lock_);
}

bool KeptJournal::isSafe() { return !lacksCopy_ && session_.journal().sync(); }

/// The copy is there before the line that opens the scene is.
std::optional<std::string> KeptJournal::read(const std::string& path, std::string& reason) {
  auto bytes = store_->read(path, reason);
  if (bytes && keepsCopy(*bytes, path)) {
    ++opened_;
    note(mark::kOpened, path);
  } else {
    note(mark::kNotOpened, path);
  }
  return bytes;
}

bool KeptJournal::keepsCopy(std::string_view bytes, const std::string& path) {
  const std::string problem = writeAtomically(copyOfScene(path_, opened_ + 1), bytes);
  if (problem.empty()) return true;
  lacksCopy_ = true;
  session_.messages().warning("the journal cannot keep " + vesk::quoted(path) + ": " + problem);
  return false;
}

std::string KeptJournal::write(const std::string& path, std::string_view bytes) {
  const std::string problem = store_->write(path, bytes);
  note(problem.empty() ? mark::kSaved : mark::kNotSaved, path);
  return problem;
}

void KeptJournal::note(std::string_view mark, const std::string& path) {
  session_.journal().note(markText(mark, path));
}

}  // namespace vesk
