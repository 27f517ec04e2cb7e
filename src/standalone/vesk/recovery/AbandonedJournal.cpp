#include "standalone/vesk/recovery/AbandonedJournal.h"

#include <unistd.h>

#include <QDateTime>
#include <QDir>
#include <utility>

#include "standalone/host/engine/AtomicFile.h"
#include "standalone/host/engine/ScriptReader.h"
#include "standalone/host/language/Tokenizer.h"
#include "standalone/vesk/recovery/JournalFile.h"

namespace vesk {
namespace {

/// The path in the comment on an opened scene; empty for any other comment.
std::string openedPath(std::string_view comment) {
  const TokenizedText text = tokenize(comment.substr(std::string_view("// ").size()));
  if (text.error || text.statements.size() != 1) return {};
  const auto& tokens = text.statements.front().tokens;
  const bool opened = tokens.size() == 2 && tokens[0].text + " " == kOpenedMark;
  return opened ? tokens[1].text : std::string();
}

}  // namespace

std::vector<AbandonedJournal> AbandonedJournal::listIn(const std::string& folder) {
  const QDir journals(QString::fromStdString(folder));
  std::vector<AbandonedJournal> found;
  for (const QString& name : journals.entryList({"*" + QString::fromUtf8(kJournalEnding)},
                                                QDir::Files, QDir::Name | QDir::Reversed)) {
    const std::string path = journals.filePath(name).toStdString();
    const int lock = lockFile(path);
    if (lock < 0) continue;
    AbandonedJournal journal(path, lock);
    if (journal.lines_.empty()) {
      journal.remove();
    } else {
      found.push_back(std::move(journal));
    }
  }
  return found;
}

AbandonedJournal::AbandonedJournal(AbandonedJournal&& other) noexcept
    : path_(std::move(other.path_)),
      lock_(std::exchange(other.lock_, -1)),
      lines_(std::move(other.lines_)),
      scenes_(std::move(other.scenes_)) {}

AbandonedJournal& AbandonedJournal::operator=(AbandonedJournal&& other) noexcept {
  std::swap(path_, other.path_);
  std::swap(lock_, other.lock_);
  std::swap(lines_, other.lines_);
  std::swap(scenes_, other.scenes_);
  return *this;
}

AbandonedJournal::~AbandonedJournal() {
  if (lock_ >= 0) ::close(lock_);
}

/// A line without its end was not finished.
void AbandonedJournal::read() {
  std::string reason;
  const auto text = readWholeFile(path_, reason);
  if (!text) return;
  const std::string_view whole = std::string_view(*text).substr(0, text->rfind('\n') + 1);
  Line next;
  forEachLine(whole, [&](std::string_view line, std::size_t) {
    if (!isCommentLine(line)) {
      next.text = line;
      lines_.push_back(std::exchange(next, {}));
    } else if (line.starts_with("// " + std::string(kOpenedMark))) {
      const int number = static_cast<int>(scenes_.size()) + 1;
      scenes_.push_back({openedPath(line), copyOfScene(path_, number)});
    } else if (!line.starts_with("// Error: ") && !line.starts_with("// Warning: ")) {
      next.undo &= line.find(" without undo") == std::string_view::npos;
      next.display &= line.find(" without echo") == std::string_view::npos;
    }
    return true;
  });
}

std::string AbandonedJournal::began() const {
  const QString name = QDir(QString::fromStdString(path_)).dirName();
  QDateTime time = QDateTime::fromString(name.left(15), "yyyyMMdd-HHmmss");
  time.setTimeSpec(Qt::UTC);
  return time.toLocalTime().toString("yyyy-MM-dd HH:mm").toStdString();
}

void AbandonedJournal::remove() {
  removeJournal(path_);
  lines_.clear();
  scenes_.clear();
}

}  // namespace vesk
