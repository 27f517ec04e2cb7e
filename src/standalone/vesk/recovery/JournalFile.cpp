#include "standalone/vesk/recovery/JournalFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <regex>

#include "standalone/host/language/Tokenizer.h"

namespace vesk {
namespace {

namespace fs = std::filesystem;

bool isPartName(const std::string& name) {
  static const std::regex kPart("[0-9]{8}-[0-9]{6}-[0-9]+\\.([0-9]+|new)");
  return std::regex_match(name, kPart);
}

std::string stemOf(const std::string& journal) {
  return journal.substr(0, journal.size() - kJournalEnding.size());
}

}  // namespace

std::string markText(std::string_view mark, const std::string& path) {
  return std::string(mark) + " " + vesk::quoted(path);
}

bool isJournalName(const std::string& name) {
  static const std::regex kName("[0-9]{8}-[0-9]{6}-[0-9]+\\.vesk");
  return std::regex_match(name, kName);
}

std::string copyOfScene(const std::string& journal, int number) {
  return stemOf(journal) + "." + std::to_string(number);
}

int lockFile(const std::string& path) {
  const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (file < 0 || flock(file, LOCK_EX | LOCK_NB) == 0) return file;
  ::close(file);
  return -1;
}

/// The journal first: scenes alone are nobody's, a journal without its scenes would be wrong.
void removeJournal(const std::string& path) {
  std::error_code error;
  if (!fs::remove(path, error) && error) return;
  const std::string parts = fs::path(stemOf(path)).filename().string() + ".";
  for (const auto& entry : fs::directory_iterator(fs::path(path).parent_path(), error)) {
    const std::string name = entry.path().filename().string();
    if (name.starts_with(parts) && isPartName(name)) fs::remove(entry.path(), error);
  }
}

void removeLeftovers(const std::string& folder) {
  std::error_code error;
  for (const auto& entry : fs::directory_iterator(folder, error)) {
    const std::string name = entry.path().filename().string();
    if (!isPartName(name)) continue;
    const fs::path journal =
        entry.path().parent_path() / fs::path(name).stem().concat(kJournalEnding);
    const auto age = fs::file_time_type::clock::now() - entry.last_write_time(error);
    if (age > std::chrono::days(1) && !fs::exists(journal, error)) fs::remove(entry.path(), error);
  }
}

}  // namespace vesk
