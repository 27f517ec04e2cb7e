#include "standalone/graph/library/AtomicFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace orvlib {
namespace {

namespace fs = std::filesystem;

std::string lastError() { return std::generic_category().message(errno); }

/// Why what is at a path is left alone; empty for a file and for nothing at all.
std::string whyNoFile(const fs::path& file) {
  std::error_code error;
  const fs::file_status status = fs::status(file, error);
  if (fs::is_directory(status)) return "it is a folder";
  return fs::exists(status) && !fs::is_regular_file(status) ? "it is no regular file" : "";
}

/// The rights of the old file, else those of any new one.
mode_t modeFor(const fs::path& file) {
  struct stat old = {};
  if (stat(file.c_str(), &old) == 0) return old.st_mode & 07777;
  const mode_t mask = umask(0);
  umask(mask);
  return 0666 & ~mask;
}

/// A file beside its final place, which goes away unless it is moved there.
class TemporaryFile {
 public:
  explicit TemporaryFile(const fs::path& target)
      : name_((target.parent_path() / ("." + target.filename().string() + ".XXXXXX")).string()),
        descriptor_(mkstemp(name_.data())) {}
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile() {
    if (!isOpen()) return;
    close(descriptor_);
    if (!moved_) unlink(name_.c_str());
  }

  bool isOpen() const { return descriptor_ >= 0; }

  bool write(std::string_view bytes) {
    while (!bytes.empty()) {
      const ssize_t written = ::write(descriptor_, bytes.data(), bytes.size());
      if (written < 0 && errno != EINTR) return false;
      if (written > 0) bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
  }

  bool settle(mode_t mode) { return fchmod(descriptor_, mode) == 0 && fsync(descriptor_) == 0; }

  bool moveTo(const fs::path& target) {
    moved_ = rename(name_.c_str(), target.c_str()) == 0;
    return moved_;
  }

 private:
  std::string name_;
  int descriptor_;
  bool moved_ = false;
};

/// Without it a crash of the machine could bring the old file back.
void settleFolder(const fs::path& folder) {
  const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY);
  if (descriptor < 0) return;
  fsync(descriptor);
  close(descriptor);
}

/// The file that a link leads to, with a folder in front in any case.
fs::path resolved(const fs::path& file) {
  std::error_code error;
  const fs::path real = fs::weakly_canonical(file, error);
  return error ? fs::absolute(file) : real;
}

}  // namespace

std::string writeAtomically(const fs::path& file, std::string_view bytes) {
  if (std::string reason = whyNoFile(file); !reason.empty()) return reason;
  const fs::path target = resolved(file);
  TemporaryFile temporary(target);
  const bool done = temporary.isOpen() && temporary.write(bytes) &&
                    temporary.settle(modeFor(target)) && temporary.moveTo(target);
  if (!done) return lastError();
  settleFolder(target.parent_path());
  return {};
}

}  // namespace orvlib
