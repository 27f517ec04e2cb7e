#include "standalone/vesk/Program.h"

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <iostream>

#include "standalone/host/engine/AtomicFile.h"
#include "standalone/host/engine/HostVersion.h"
#include "standalone/host/engine/ScriptReader.h"
#include "standalone/vesk/Display.h"
#include "standalone/vesk/Gui.h"
#include "standalone/vesk/LineSource.h"
#include "standalone/vesk/Prompt.h"
#include "standalone/vesk/Startup.h"
#include "standalone/vesk/TextDiff.h"
#include "standalone/vesk/Transcript.h"
#include "standalone/vesk/recovery/KeptJournal.h"
#include "standalone/vesk/recovery/RecoveryOffer.h"

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
  /// `settle`, which may be null, is called after each line.
  LineRunner(Platform& platform, LineListener& listener, bool keepGoing, void (*settle)())
      : platform_(platform), listener_(listener), keepGoing_(keepGoing), settle_(settle) {}

  /// Runs what the start-up left for idle time, then the lines of the source.
  void run(const LineSource& source, bool tellPlace) {
    if (!goesOnAfter(platform_.session().runIdleLines(), "start-up: ")) return;
    while (const auto line = source()) {
      const KStatus status = platform_.runLine(line->text, listener_);
      if (settle_) settle_();
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
  void (*settle_)();
  bool failed_ = false;
};

LineSource prompt(HostSession& session) {
  const std::string& folder = session.options().preferencesFolder;
  return promptLines(session.registry(), folder.empty() ? "" : folder + "/history");
}

/// `gui` is null for a program without a window.
int runAll(const ProgramOptions& options, LineListener& listener, Console& console, Gui* gui) {
  std::string reason;
  const auto inputs = openInputs(options.inputs, reason);
  if (!inputs) return cannotStart(reason);
  Platform platform(options, console, !options.transcript);
  if (!platform.problem().empty()) return cannotStart(platform.problem());

  HostSession& session = platform.session();
  const auto journal = keepsJournal(options) ? keepJournal(session) : nullptr;
  const auto window = gui ? gui->open(session, options) : nullptr;
  // In front of a window nothing waits for the program's end.
  if (gui) std::cout << std::unitbuf;
  LineRunner runner(platform, listener, options.keepGoing || !options.batch,
                    gui ? Gui::settleSometimes : nullptr);
  if (keepsJournal(options)) {
    takeUpJournals(options, session, journal.get(), options.batch ? nullptr : window.get());
    if (options.recover && !journal) return kCannotStart;
  }
  if (options.batch) {
    runner.run(options.inputs.empty() ? standardInput() : *inputs, true);
  } else if (gui) {
    runner.run(*inputs, true);
    gui->run(session, *window);
  } else {
    runner.run(prompt(session), false);
  }
  if (gui) Gui::settle();
  return runner.exitStatus();
}

/// Runs one transcript in a platform of its own.
int checkTranscript(const ProgramOptions& options, const std::string& path, Gui* gui) {
  std::string reason;
  const auto before = readScript(path, reason, Pipes::Allowed);
  if (!before) return cannotStart("cannot read the transcript \"" + path + "\": " + reason);

  Console console(std::cout, std::cerr);
  Platform platform(options, console, false);
  if (!platform.problem().empty()) return cannotStart(platform.problem());
  const auto window = gui ? gui->open(platform.session(), options) : nullptr;
  const auto run = [&](std::string_view line, LineListener& writer) {
    platform.runLine(line, writer);
    if (gui) Gui::settle();
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

int checkTranscripts(const ProgramOptions& options, Gui* gui) {
  int worst = kAllWell;
  for (const ProgramOptions::Input& input : options.inputs) {
    worst = std::max(worst, checkTranscript(options, input.text, gui));
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

/// Null when no window is asked for, or none can be shown.
std::unique_ptr<Gui> makeGui(const ProgramOptions& options) {
  if (!options.gui) return nullptr;
  const Display display = findDisplay();
  if (display == Display::There) return std::make_unique<Gui>();
  std::cerr << (display == Display::None
                    ? "vesk: there is no display, so there is no window"
                    : "vesk: the display cannot be reached, so there is no window")
            << std::endl;
  return nullptr;
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
  const std::unique_ptr<Gui> gui = makeGui(options);
  const bool asksNobody = !options.inputs.empty() || !isatty(STDIN_FILENO);
  options.batch = options.batch || options.check || (!gui && asksNobody);
  if (options.check) return checkTranscripts(options, gui.get());
  Console console(std::cout, std::cerr);
  if (!options.transcript) return runAll(options, console, console, gui.get());
  TranscriptWriter writer(std::cout);
  return runAll(options, writer, console, gui.get());
}

}  // namespace

int runProgram(int argc, char** argv) {
  const int status = runAsAsked(argc, argv);
  return std::cout.flush() ? status : cannotStart("the output cannot be written");
}

}  // namespace vesk
