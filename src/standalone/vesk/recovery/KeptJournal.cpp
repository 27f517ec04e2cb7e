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

std::string nameOfNow() {
  const QDateTime now = QDateTime::currentDateTimeUtc();
  return now.toString("yyyyMMdd-HHmmss-").toStdString() + std::to_string(getpid());
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
}

KeptJournal::~KeptJournal() {
  session_.scene().setStore(*store_);
  session_.journal().close();
  removeJournal(path_);
  ::close(lock_);
}

/// The copy is there before the line that opens the scene is.
std::optional<std::string> KeptJournal::read(const std::string& path, std::string& reason) {
  auto bytes = store_->read(path, reason);
  if (!bytes) return bytes;
  const std::string problem = writeAtomically(copyOfScene(path_, opened_ + 1), *bytes);
  if (problem.empty()) {
    ++opened_;
    session_.journal().note(std::string(kOpenedMark) + vesk::quoted(path));
  } else {
    session_.messages().warning("the journal cannot keep " + vesk::quoted(path) + ": " + problem);
  }
  return bytes;
}

std::string KeptJournal::write(const std::string& path, std::string_view bytes) {
  return store_->write(path, bytes);
}

}  // namespace vesk
