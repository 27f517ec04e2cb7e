#include "standalone/vesk/recovery/AbandonedJournal.h"

#include <unistd.h>

#include <QDateTime>
#include <algorithm>
#include <filesystem>
#include <iterator>
#include <utility>

#include "standalone/host/engine/AtomicFile.h"
#include "standalone/host/engine/ScriptReader.h"
#include "standalone/host/language/Tokenizer.h"
#include "standalone/vesk/recovery/JournalFile.h"

namespace vesk {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> journalsIn(const std::string& folder) {
  std::vector<std::string> paths;
  std::error_code none;
  for (const auto& entry : fs::directory_iterator(folder, none)) {
    if (isJournalName(entry.path().filename().string())) paths.push_back(entry.path().string());
  }
  std::ranges::sort(paths, std::ranges::greater());
  return paths;
}

}  // namespace

std::vector<AbandonedJournal> AbandonedJournal::listIn(const std::string& folder) {
  removeLeftovers(folder);
  std::vector<AbandonedJournal> found;
  for (const std::string& path : journalsIn(folder)) {
    const int lock = lockFile(path);
    if (lock < 0) continue;
    AbandonedJournal journal(path, lock);
    if (!journal.read()) continue;
    if (journal.lines_.empty() || fs::exists(journal.recovering_)) {
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
      folder_(std::move(other.folder_)),
      recovering_(std::move(other.recovering_)),
      copies_(other.copies_),
      lines_(std::move(other.lines_)) {}

AbandonedJournal& AbandonedJournal::operator=(AbandonedJournal&& other) noexcept {
  std::swap(path_, other.path_);
  std::swap(lock_, other.lock_);
  std::swap(folder_, other.folder_);
  std::swap(recovering_, other.recovering_);
  std::swap(copies_, other.copies_);
  std::swap(lines_, other.lines_);
  return *this;
}

AbandonedJournal::~AbandonedJournal() {
  if (lock_ >= 0) ::close(lock_);
}

/// A line without its end was not finished. False when the file cannot be read.
bool AbandonedJournal::read() {
  std::string reason;
  const auto text = readWholeFile(path_, reason);
  if (!text) return false;
  const std::string_view whole = std::string_view(*text).substr(0, text->rfind('\n') + 1);
  Line next;
  forEachLine(whole, [&](std::string_view line, std::size_t) {
    if (isCommentLine(line)) {
      readComment(line, next);
    } else {
      next.text = line;
      lines_.push_back(std::exchange(next, {}));
    }
    return true;
  });
  return true;
}

void AbandonedJournal::readComment(std::string_view comment, Line& next) {
  constexpr std::string_view kWithout = "// without ", kIdle = "// when idle: ";
  if (comment.starts_with(kWithout)) {
    next.undo = comment.find("without undo") == std::string_view::npos;
    next.display = comment.find("without echo") == std::string_view::npos;
  } else if (comment.starts_with(kIdle) && !lines_.empty()) {
    // What an idle line did belongs to the line that left it.
    std::ranges::move(next.uses, std::back_inserter(lines_.back().uses));
    next.uses.clear();
  } else if (comment.starts_with("// ")) {
    const TokenizedText text = tokenize(comment.substr(3));
    if (text.error || text.statements.size() != 1) return;
    const auto& tokens = text.statements.front().tokens;
    if (tokens.size() == 2) readMark(tokens[0].text, tokens[1].text, next);
  }
}

void AbandonedJournal::readMark(std::string_view mark, const std::string& path, Line& next) {
  if (mark == mark::kFolder) folder_ = path;
  if (mark == mark::kRecovers) recovering_ = path;
  if (mark == mark::kRecovered) recovering_.clear();
  if (mark == mark::kOpened) {
    next.uses.push_back({path, false, true, copyOfScene(path_, ++copies_)});
  }
  if (mark == mark::kNotOpened) next.uses.push_back({path, false, false});
  if (mark == mark::kSaved) next.uses.push_back({path, true, true});
  if (mark == mark::kNotSaved) next.uses.push_back({path, true, false});
}

std::string AbandonedJournal::began() const {
  const QString name = QString::fromStdString(fs::path(path_).filename().string());
  QDateTime time = QDateTime::fromString(name.left(15), "yyyyMMdd-HHmmss");
  time.setTimeSpec(Qt::UTC);
  return time.toLocalTime().toString("yyyy-MM-dd HH:mm").toStdString();
}

void AbandonedJournal::remove() {
  removeJournal(path_);
  lines_.clear();
}

}  // namespace vesk
