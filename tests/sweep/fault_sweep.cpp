// Runs transcripts again and again, each time with another fault point of the graph library
// failing:
//   fault_sweep [--all | --sample N] [--seed S] SCRATCH TRANSCRIPT...
// A run must neither crash nor leak, leave no bracket or chunk open, refuse by the rules of the
// command, undo and redo what is there, and leave everything usable. Without --all, N points of
// each transcript are tried, 8 if nothing is said.

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <numeric>
#include <random>
#include <sstream>

#include "standalone/graph/edits/FaultPoints.h"
#include "testPaths.h"
#include "tests/sweep/ChildProcess.h"
#include "tests/sweep/FaultRun.h"

namespace {

namespace fs = std::filesystem;

struct Settings {
  bool all = false;
  std::size_t sample = 8;
  unsigned seed = 1;
  fs::path scratch;
  std::vector<fs::path> transcripts;
};

std::string readFile(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// The folder as the transcripts' test finds it.
void prepareFolder(const fs::path& folder) {
  fs::remove_all(folder);
  fs::create_directories(folder.parent_path());
  fs::copy(VESK_SOURCE_DIR "/tests/transcripts/data", folder, fs::copy_options::recursive);
  fs::create_symlink(VESK_BUILD_DIR "/plug-ins", folder / "plug-ins");
  fs::create_symlink(VESK_BUILD_DIR "/test-modules", folder / "test-modules");
  fs::current_path(folder);
}

/// Those in the file "options" beside the transcript. Nothing for a transcript that needs a window:
/// its lines never reach the library.
std::optional<vesk::ProgramOptions> optionsOf(const fs::path& transcript) {
  std::vector<std::string> words{"vesk"};
  std::istringstream text(readFile(transcript.parent_path() / "options"));
  std::copy(std::istream_iterator<std::string>(text), {}, std::back_inserter(words));
  std::vector<char*> arguments;
  for (std::string& word : words) arguments.push_back(word.data());
  vesk::ProgramOptions options;
  if (!vesk::readProgramOptions(int(arguments.size()), arguments.data(), options).empty()) {
    return std::nullopt;
  }
  options.batch = true;
  return options.gui ? std::nullopt : std::optional(options);
}

/// Nobody listens outside of the lines.
class Nobody final : public vesk::LineListener {
  void lineBegins(std::string_view) override {}
  void message(const vesk::Message&) override {}
  void lineEnded(const vesk::ResultValue&, KStatus) override {}
};

std::string withPlatform(const fs::path& folder, const fs::path& transcript,
                         const vesk::ProgramOptions& options,
                         const std::function<std::string(TranscriptRun&)>& work) {
  prepareFolder(folder);
  Nobody nobody;
  vesk::Platform platform(options, nobody, false);
  if (!platform.problem().empty()) return platform.problem();
  TranscriptRun run(platform, readFile(transcript));
  return work(run);
}

std::vector<unsigned> choosePoints(unsigned count, const Settings& settings, std::size_t salt) {
  std::vector<unsigned> points(count);
  std::iota(points.begin(), points.end(), 1u);
  if (settings.all || points.size() <= settings.sample) return points;
  std::mt19937 random(settings.seed + static_cast<unsigned>(salt));
  std::shuffle(points.begin(), points.end(), random);
  points.resize(settings.sample);
  return points;
}

struct Tally {
  unsigned points = 0;  ///< that the transcripts pass
  unsigned tried = 0;
  unsigned failed = 0;
  unsigned repeating = 0;  ///< transcripts of which undo and redo are compared
};

void tell(const fs::path& transcript, unsigned nth, const ChildResult& result, Tally& tally) {
  ++tally.tried;
  if (result.text.empty() && result.ended.empty()) return;
  ++tally.failed;
  std::cout << transcript.string() << ", fault point " << nth << ": " << result.ended
            << (result.ended.empty() || result.text.empty() ? "" : "; ") << result.text << '\n';
}

/// The platform is built anew for each point, in a process that ends as a program does.
void sweep(const fs::path& transcript, const Settings& settings, std::size_t index, Tally& tally) {
  const auto options = optionsOf(transcript);
  if (!options) return;
  const fs::path folder = settings.scratch / std::to_string(index);
  const ChildResult counted = inChild([&] {
    return withPlatform(folder, transcript, *options, [](TranscriptRun& run) {
      const Reference reference = runReference(run);
      return std::to_string(reference.faultPoints) + (reference.repeats ? " repeats" : "");
    });
  });
  const auto count = static_cast<unsigned>(std::atoi(counted.text.c_str()));
  if (!counted.ended.empty()) return tell(transcript, 0, counted, tally);
  tally.points += count;
  tally.repeating += count > 0 && counted.text.ends_with("repeats");
  for (const unsigned nth : choosePoints(count, settings, index)) {
    const ChildResult result = inChild([&] {
      std::string problem;
      Reference reference;
      problem = withPlatform(folder, transcript, *options, [&](TranscriptRun& run) {
        reference = runReference(run);
        return std::string();
      });
      if (!problem.empty()) return problem;
      return withPlatform(folder, transcript, *options,
                          [&](TranscriptRun& run) { return runWithFault(run, nth, reference); });
    });
    tell(transcript, nth, result, tally);
  }
  fs::current_path("/");
  fs::remove_all(folder);
}

Settings readSettings(int argc, char** argv) {
  Settings settings;
  std::vector<fs::path> paths;
  for (int i = 1; i < argc; ++i) {
    const std::string word = argv[i];
    if (word == "--all") {
      settings.all = true;
    } else if (word == "--sample" && i + 1 < argc) {
      settings.sample = std::strtoul(argv[++i], nullptr, 10);
    } else if (word == "--seed" && i + 1 < argc) {
      settings.seed = static_cast<unsigned>(std::strtoul(argv[++i], nullptr, 10));
    } else {
      paths.push_back(fs::absolute(word));
    }
  }
  if (paths.size() < 2) {
    std::cerr << "fault_sweep [--all | --sample N] [--seed S] SCRATCH TRANSCRIPT...\n";
    std::exit(2);
  }
  settings.scratch = paths.front();
  settings.transcripts.assign(paths.begin() + 1, paths.end());
  return settings;
}

}  // namespace

int main(int argc, char** argv) {
  const Settings settings = readSettings(argc, argv);
  Tally tally;
  for (std::size_t i = 0; i < settings.transcripts.size(); ++i) {
    sweep(settings.transcripts[i], settings, i, tally);
  }
  std::cout << tally.tried << " of " << tally.points << " fault points tried in "
            << settings.transcripts.size() << " transcripts, " << tally.failed
            << " with something wrong; undo and redo compared in " << tally.repeating << '\n';
  return tally.failed == 0 && tally.tried > 0 ? 0 : 1;
}
