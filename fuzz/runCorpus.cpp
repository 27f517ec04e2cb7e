// Runs a fuzzing target over the files of folders, in a build that has no fuzzer.

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <stdexcept>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

namespace fs = std::filesystem;

/// With full paths, since a target may go to another folder, and sorted, so that a failure comes
/// back in the same place.
std::set<fs::path> filesIn(const fs::path& folder) {
  std::set<fs::path> files;
  for (const auto& entry : fs::directory_iterator(fs::absolute(folder))) {
    if (entry.is_regular_file()) files.insert(entry.path());
  }
  return files;
}

void runFile(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file.is_open()) throw std::runtime_error("cannot read " + path.string());
  const std::string bytes{std::istreambuf_iterator<char>(file), {}};
  std::fprintf(stderr, "%s\n", path.c_str());
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

}  // namespace

int main(int argc, char** argv) {
  std::size_t count = 0;
  for (int i = 1; i < argc; ++i) {
    for (const fs::path& path : filesIn(argv[i])) {
      runFile(path);
      ++count;
    }
  }
  std::printf("%zu files\n", count);
  return count == 0 ? 1 : 0;
}
