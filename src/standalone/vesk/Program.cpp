#include "standalone/vesk/Program.h"

#include <unistd.h>

#include <QSaveFile>
#include <iostream>

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

/// Runs the lines of one source after the other.
class LineRunner {
 public:
  LineRunner(Platform& platform, LineListener& listener, bool keepGoing)
      : platform_(platform), listener_(listener), keepGoing_(keepGoing) {}

  /// False when the program shall read no more lines.
  bool run(LineSource source, bool tellPlace) {
    while (const auto line = source()) {
      const KStatus status = platform_.runLine(line->text, listener_);
      if (!status) failed_ = true;
      if (!status) tellFailure(tellPlace ? line->place + ": " : "", status);
      if ((!status && !keepGoing_) || platform_.session().quitRequested) return false;
    }
    return true;
  }

  int exitStatus() const {
    const HostSession& session = platform_.session();
    if (!session.quitRequested || session.exitStatus == 0) return failed_ ? kLineFailed : kAllWell;
    // The system keeps the lowest eight bits: a status such as 256 must not come out as success.
    return (session.exitStatus & 0xFF) != 0 ? session.exitStatus : kLineFailed;
  }

 private:
  static void tellFailure(const std::string& place, KStatus status) {
    std::cout.flush();
    std::cerr << place << "the line failed with status " << status.statusCode() << std::endl;
  }

  Platform& platform_;
  LineListener& listener_;
  bool keepGoing_;
  bool failed_ = false;
};

bool runInputs(const ProgramOptions& options, LineRunner& runner, int& status) {
  std::size_t lines = 0;
  for (const ProgramOptions::Input& input : options.inputs) {
    if (input.kind == ProgramOptions::Input::Kind::Line) ++lines;
    std::string reason;
    auto source = openInput(input, lines, reason);
    if (!source) {
      status = cannotStart("cannot read the script \"" + input.text + "\": " + reason);
      return false;
    }
    if (!runner.run(std::move(*source), true)) break;
  }
  return true;
}

int runAll(const ProgramOptions& options, LineListener& listener, Console& console) {
  Platform platform(options, console, !options.transcript);
  if (!platform.problem().empty()) return cannotStart(platform.problem());

  const bool prompt = options.inputs.empty() && !options.batch && isatty(STDIN_FILENO);
  LineRunner runner(platform, listener, options.keepGoing || prompt);
  int status = kAllWell;
  if (prompt) {
    const std::string& folder = platform.session().options().preferencesFolder;
    runner.run(promptLines(platform.session().registry(), folder + "/history"), false);
  } else if (options.inputs.empty()) {
    runner.run(standardInput(), true);
  } else if (!runInputs(options, runner, status)) {
    return status;
  }
  return runner.exitStatus();
}

bool writeAtomically(const std::string& path, const std::string& text) {
  QSaveFile file(QString::fromStdString(path));
  return file.open(QIODevice::WriteOnly) &&
         file.write(text.data(), static_cast<qint64>(text.size())) ==
             static_cast<qint64>(text.size()) &&
         file.commit();
}

/// Runs one transcript in a platform of its own.
int checkTranscript(const ProgramOptions& options, const std::string& path) {
  std::string reason;
  const auto before = readScript(path, reason);
  if (!before) return cannotStart("cannot read the transcript \"" + path + "\": " + reason);

  Console console(std::cout, std::cerr);
  Platform platform(options, console, false);
  if (!platform.problem().empty()) return cannotStart(platform.problem());
  const auto run = [&platform](std::string_view line, LineListener& writer) {
    platform.runLine(line, writer);
  };
  const std::string after = rerunTranscript(*before, run, reason);
  if (!reason.empty()) return cannotStart(path + ": " + reason);
  const std::string difference = textDiff(*before, after);
  if (difference.empty()) return kAllWell;
  std::cout << path << (options.update ? ": updated\n" : ": differs\n") << difference;
  if (!options.update) return kLineFailed;
  return writeAtomically(path, after) ? kAllWell : cannotStart("cannot write \"" + path + "\"");
}

int checkTranscripts(const ProgramOptions& options) {
  int worst = kAllWell;
  for (const ProgramOptions::Input& input : options.inputs) {
    worst = std::max(worst, checkTranscript(options, input.text));
  }
  return worst;
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
