// Kills `vesk` at random moments while it edits and saves, and looks at what is left:
//   power_cut TIMES [SEED]
// The scene's file must be one of the scenes that were saved, the settings must be whole, and a
// recovery must give the scene after the last line that had finished.

#include <QCoreApplication>
#include <QJsonDocument>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <random>
#include <regex>

#include "tests/standalone/vesk/ProgramRun.h"
#include "tests/standalone/vesk/recovery/RecoveryTesting.h"

namespace {

constexpr int kLines = 400;
constexpr int kSaveEvery = 7;

/// What one run does: edits of a graph, undo and redo, settings, and a save now and then.
std::vector<std::string> makeLines(std::mt19937& random) {
  const auto below = [&random](int bound) { return static_cast<int>(random() % bound); };
  std::vector<std::string> lines = {R"(createNode orvGraph -name "g")",
                                    R"(file -saveAs "scene.vesk")"};
  int added = 0;
  while (lines.size() < kLines) {
    const std::string node = "add" + (added > 1 ? std::to_string(below(added)) : std::string());
    switch (lines.size() % kSaveEvery == 0 ? 5 : below(5)) {
      case 0:
        lines.push_back(R"(orvCompound "g" "/" -addNode "core::math::add")");
        ++added;
        break;
      case 1:
        lines.push_back("orvNode \"g\" \"/" + node + "\" -setPortDefaultValues \"a\" \"" +
                        std::to_string(below(1000)) + "\"");
        break;
      case 2:
        lines.push_back("optionVar -intValue \"turn\" " + std::to_string(lines.size()));
        break;
      case 3:
        lines.push_back(below(2) == 0 ? "undo" : "redo");
        break;
      case 4:
        lines.push_back("orvConnect \"g\" \"/add.result\" \"/" + node + ".b\"");
        break;
      default:
        lines.push_back("file -save");
    }
  }
  return lines;
}

/// Made anew in each run.
std::string withoutUuids(const std::string& scene) {
  static const std::regex kUuid("[0-9a-fA-F]{8}(-[0-9a-fA-F]{4}){3}-[0-9a-fA-F]{12}");
  return std::regex_replace(scene, kUuid, "UUID");
}

std::string join(const std::vector<std::string>& lines, std::size_t count) {
  std::string text;
  for (std::size_t i = 0; i < count; ++i) text += lines[i] + '\n';
  return text;
}

class Cut {
 public:
  explicit Cut(unsigned seed) : random_(seed), lines_(makeLines(random_)) {}

  /// What is wrong; empty when nothing is lost.
  std::string run() {
    const std::size_t finished = runAndKill();
    std::string problem = problemOfSettings();
    if (problem.empty()) problem = problemOfFile(finished);
    return problem.empty() ? problemOfRecovery(finished) : problem;
  }

 private:
  ProgramRun vesk(const TemporaryFolder& preferences, const TemporaryFolder& folder,
                  const std::vector<std::string>& options, const std::string& input) const {
    std::vector<std::string> arguments{"--keep-going"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return runVesk(arguments, {.input = input,
                               .variables = {{"VESK_PREFS_DIR", preferences.path().string()}},
                               .folder = folder.path().string()});
  }

  /// How many lines the journal says had finished.
  std::size_t runAndKill() {
    FedProgram program(preferences_, {}, folder_.path().string());
    program.write(join(lines_, lines_.size()));
    const auto microseconds = std::chrono::microseconds(random_() % 250000);
    std::this_thread::sleep_for(microseconds);
    program.kill();
    return linesOfJournal();
  }

  std::size_t linesOfJournal() const {
    std::error_code none;
    for (const auto& entry :
         std::filesystem::directory_iterator(preferences_.path() / "journal", none)) {
      if (entry.path().extension() != ".vesk") continue;
      std::ifstream file(entry.path());
      std::size_t count = 0;
      for (std::string line; std::getline(file, line);) count += !line.starts_with("//");
      return count;
    }
    return 0;
  }

  std::string problemOfSettings() const {
    const std::string path = (preferences_.path() / "optionVars.json").string();
    if (!std::filesystem::exists(path)) return {};
    const QByteArray text = QByteArray::fromStdString(readWholeFile(path));
    return QJsonDocument::fromJson(text).isObject() ? "" : "the settings are damaged";
  }

  /// The scene after so many lines, made without a kill.
  std::string sceneAfter(std::size_t count) {
    const TemporaryFolder preferences, folder;
    vesk(preferences, folder, {}, join(lines_, count) + "file -saveAs \"copy.vesk\"\n");
    return withoutUuids(readWholeFile((folder.path() / "copy.vesk").string()));
  }

  /// The last save that had finished, or one that was under way.
  std::string problemOfFile(std::size_t finished) {
    const std::string path = (folder_.path() / "scene.vesk").string();
    std::vector<std::size_t> saves;
    for (std::size_t i = 0; i < std::min(finished + 1, lines_.size()); ++i) {
      if (lines_[i].starts_with("file ")) saves.push_back(i);
    }
    if (!std::filesystem::exists(path)) {
      return saves.empty() || saves.front() >= finished ? "" : "the saved scene is gone";
    }
    const std::string file = withoutUuids(readWholeFile(path));
    for (auto save = saves.rbegin(); save != saves.rend() && save != saves.rbegin() + 2; ++save) {
      if (file == sceneAfter(*save)) return {};
    }
    return "the scene's file is none of those that were saved last";
  }

  std::string problemOfRecovery(std::size_t finished) {
    if (finished == 0) return {};
    const ProgramRun next =
        vesk(preferences_, folder_, {"--recover"}, "file -saveAs \"recovered.vesk\"\n");
    const std::string recovered =
        withoutUuids(readWholeFile((folder_.path() / "recovered.vesk").string()));
    if (recovered == sceneAfter(finished)) return {};
    return "the recovery gives another scene: " + next.err;
  }

  std::mt19937 random_;
  std::vector<std::string> lines_;
  TemporaryFolder preferences_;
  TemporaryFolder folder_;
};

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  const int times = argc > 1 ? std::atoi(argv[1]) : 10;
  const unsigned seed = argc > 2 ? static_cast<unsigned>(std::atoi(argv[2])) : 1;
  for (int i = 0; i < times; ++i) {
    Cut cut(seed + static_cast<unsigned>(i));
    const std::string problem = cut.run();
    if (problem.empty()) continue;
    std::printf("power_cut 1 %u: %s\n", seed + static_cast<unsigned>(i), problem.c_str());
    return 1;
  }
  std::printf("%d abrupt ends: nothing was lost\n", times);
  return 0;
}
