#include "standalone/vesk/recovery/JournalFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <filesystem>

namespace vesk {

std::string copyOfScene(const std::string& journal, int number) {
  return journal.substr(0, journal.size() - kJournalEnding.size()) + "." + std::to_string(number);
}

int lockFile(const std::string& path) {
  const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (file < 0 || flock(file, LOCK_EX | LOCK_NB) == 0) return file;
  ::close(file);
  return -1;
}

void removeJournal(const std::string& path) {
  std::error_code ignored;
  for (int number = 1; std::filesystem::remove(copyOfScene(path, number), ignored); ++number) {
  }
  std::filesystem::remove(path, ignored);
}

}  // namespace vesk
