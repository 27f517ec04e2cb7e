#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

namespace hosttest {

/// A folder that is gone, with what is in it, at the end.
class TemporaryFiles {
 public:
  TemporaryFiles() {
    std::string pattern = (std::filesystem::temp_directory_path() / "vesk-test-XXXXXX").string();
    EXPECT_NE(mkdtemp(pattern.data()), nullptr);
    folder_ = pattern;
  }
  ~TemporaryFiles() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
  }
  TemporaryFiles(const TemporaryFiles&) = delete;
  TemporaryFiles& operator=(const TemporaryFiles&) = delete;

  std::string path(std::string_view name) const { return (folder_ / name).string(); }

  /// Writes the file and gives its path.
  std::string write(std::string_view name, std::string_view bytes) const {
    std::ofstream(path(name), std::ios::binary) << bytes;
    return path(name);
  }

  std::string read(std::string_view name) const {
    std::ifstream file(path(name), std::ios::binary);
    EXPECT_TRUE(file.is_open()) << name;
    return {std::istreambuf_iterator<char>(file), {}};
  }

 private:
  std::filesystem::path folder_;
};

}  // namespace hosttest
