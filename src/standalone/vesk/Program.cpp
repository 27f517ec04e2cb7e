#include "standalone/vesk/Program.h"

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <iostream>

#include "standalone/host/engine/AtomicFile.h"
#include "standalone/host/engine/HostVersion.h"
#include "standalone/host/engine/ScriptReader.h"
#include "standalone/vesk/LineSource.h"
#include "standalone/vesk/Prompt.h"
#include "standalone/vesk/Startup.h"
#include "standalone/vesk/TextDiff.h"
#include "standalone/vesk/Transcript.h"

namespace vesk {
namespace {

enum ExitStatus { kAllWell = 0, kLineFailed = 1, kCannotStart = 2 };

int cannotStart(std::string_view reason) {
  std::cout.flush();
  std::cerr << "vesk: " << reason << std::endl;
  return kCannotStart;
}

/// Runs lines until one fails, unless it shall keep going, or quits.
class LineRunner {
 public:
  LineRunner(Platform& platform, LineListener& listener, bool keepGoing)
      : platform_(platform), listener_(listener), keepGoing_(keepGoing) {}

  /// Runs what the start-up left for idle time, then the lines of the source.
  void run(const LineSource& source, bool tellPlace) {
    if (!goesOnAfter(platform_.session().runIdleLines(), "start-up: ")) return;
    while (const auto line = source()) {
      const KStatus status = platform_.runLine(line->text, listener_);
      if (!goesOnAfter(status, tellPlace ? line->place + ": " : "")) return;
    }
  }

  int exitStatus() const {
    const HostSession& session = platform_.session();
    if (!session.quitRequested || session.exitStatus == 0) return failed_ ? kLineFailed : kAllWell;
    // The system keeps the lowest eight bits: a status such as 256 must not come out as success.
    return (session.exitStatus & 0xFF) != 0 ? session.exitStatus : kLineFailed;
  }

 private:
  bool goesOnAfter(KStatus status, const std::string& place) {
    if (!status) {
      failed_ = true;
      tellFailure(place, status);
    }
    return (status || keepGoing_) && !platform_.session().quitRequested;
  }

  static void tellFailure(const std::string& place, KStatus status) {
    std::cout.flush();
    std::cerr << place << "the line failed with status " << status.statusCode() << std::endl;
  }

  Platform& platform_;
  LineListener& listener_;
  bool keepGoing_;
  bool failed_ = false;
};

int runAll(const ProgramOptions& options, LineListener& listener, Console& console) {
  std::string reason;
  const auto inputs = openInputs(options.inputs, reason);
  if (!inputs) return cannotStart(reason);
  Platform platform(options, console, !options.transcript);
  if (!platform.problem().empty()) return cannotStart(platform.problem());

  LineRunner runner(platform, listener, options.keepGoing || !options.batch);
  if (!options.batch) {
    const std::string& folder = platform.session().options().preferencesFolder;
    runner.run(
        promptLines(platform.session().registry(), folder.empty() ? "" : folder + "/history"),
        false);
  } else {
    runner.run(options.inputs.empty() ? standardInput() : *inputs, true);
  }
  return runner.exitStatus();
}

/// Runs one transcript in a platform of its own.
int checkTranscript(const ProgramOptions& options, const std::string& path) {
  std::string reason;
  const auto before = readScript(path, reason, Pipes::Allowed);
  if (!before) return cannotStart("cannot read the transcript \"" + path + "\": " + reason);

  Console console(std::cout, std::cerr);
  Platform platform(options, console, false);
  if (!platform.problem().empty()) return cannotStart(platform.problem());
  const auto run = [&platform](std::string_view line, LineListener& writer) {
    platform.runLine(line, writer);
  };
  const int statusWhenTrue = platform.session().runIdleLines() ? kAllWell : kLineFailed;
  const std::string after = rerunTranscript(*before, run, reason);
  if (!reason.empty()) return cannotStart(path + ": " + reason);
  const std::string difference = textDiff(*before, after);
  if (difference.empty()) return statusWhenTrue;
  std::cout << path << (options.update ? ": updated\n" : ": differs\n") << difference;
  if (!options.update) return kLineFailed;
  reason = writeAtomically(path, after);
  return reason.empty() ? statusWhenTrue : cannotStart("cannot write \"" + path + "\": " + reason);
}

int checkTranscripts(const ProgramOptions& options) {
  int worst = kAllWell;
  for (const ProgramOptions::Input& input : options.inputs) {
    worst = std::max(worst, checkTranscript(options, input.text));
  }
  return worst;
}

/// What is read and would be emptied by the journal; else nothing.
std::string scriptUnderJournal(const ProgramOptions& options) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(options.journal, error)) return {};
  if (options.inputs.empty()) {
    const bool same = std::filesystem::equivalent(options.journal, "/dev/stdin", error);
    return same ? "standard input" : "";
  }
  for (const ProgramOptions::Input& input : options.inputs) {
    if (input.kind != ProgramOptions::Input::Kind::Script) continue;
    if (std::filesystem::equivalent(options.journal, input.text, error)) {
      return "the script \"" + input.text + "\"";
    }
  }
  return {};
}

int runAsAsked(int argc, char** argv) {
  ProgramOptions options;
  const std::string problem = readProgramOptions(argc, argv, options);
  if (!problem.empty()) return cannotStart(problem + "; try vesk --help");
  if (options.help) {
    std::cout << programHelp();
    return kAllWell;
  }
  if (options.version) {
    std::cout << "vesk " << kHostVersion << '\n';
    return kAllWell;
  }
  const std::string overwritten = scriptUnderJournal(options);
  if (!overwritten.empty()) return cannotStart("the journal would overwrite " + overwritten);
  options.batch = options.batch || !options.inputs.empty() || !isatty(STDIN_FILENO);
  if (options.check) return checkTranscripts(options);
  Console console(std::cout, std::cerr);
  if (!options.transcript) return runAll(options, console, console);
  TranscriptWriter writer(std::cout);
  return runAll(options, writer, console);
}

}  // namespace

int runProgram(int argc, char** argv) {
  const int status = runAsAsked(argc, argv);
  return std::cout.flush() ? status : cannotStart("the output cannot be written");
}

}  // namespace vesk
