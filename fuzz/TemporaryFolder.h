#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

namespace fuzz {

/// A folder of its own, among the temporary files.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "vesk-fuzz-XXXXXX").string();
    if (!mkdtemp(pattern.data())) std::abort();
    folder_ = pattern;
  }
  ~TemporaryFolder() { remove(); }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::filesystem::path& path() const { return folder_; }
  std::string path(std::string_view name) const { return (folder_ / name).string(); }

  /// Writes a file, with the folders above it, and gives its path.
  std::string write(std::string_view name, std::string_view bytes) const {
    const std::filesystem::path file = folder_ / name;
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << bytes;
    return file.string();
  }

  /// Takes it away ahead of its end.
  void remove() const {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
  }

  /// Takes out what is in it.
  void clear() const {
    std::error_code ignored;
    for (const auto& entry : std::filesystem::directory_iterator(folder_)) {
      std::filesystem::remove_all(entry.path(), ignored);
    }
  }

 private:
  std::filesystem::path folder_;
};

}  // namespace fuzz
