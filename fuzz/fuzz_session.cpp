// Whole sessions: lines of all commands, undo and redo between them. Each line of the input, up to
// a line end, makes one line. What is undone to the beginning and done again is the same scene.

#include <algorithm>
#include <cstdint>
#include <iostream>

#include "fuzz/SessionLines.h"
#include "fuzz/checkGraph.h"
#include "fuzz/require.h"
#include "standalone/host/language/Tokenizer.h"

namespace {

using fuzz::checkGraph;
using fuzz::evaluateAll;
using fuzz::require;
using fuzz::SessionLines;
using fuzz::SessionWorld;

constexpr int kMostLines = 60;

/// What no undo takes back (see the pages of these commands in docs/), or what ends the history.
constexpr std::string_view kNotUndone[] = {"-setIsReferenced", "-sir ", "-resetToFactory", "-rtf ",
                                           "-publish",         "-pub ", "-pbg ",           "file ",
                                           "source ",          "-swf",  "undoInfo",        "-fp",
                                           "-flushProxies"};

class Run {
 public:
  explicit Run(SessionWorld& world) : world_(world), first_(world.sceneText()) {}

  void take(const std::string& line) {
    if (verbose()) std::cerr << "> " << line << std::endl;
    for (const std::string_view word : kNotUndone) exact_ = exact_ && line.find(word) == line.npos;
    const std::string before = world_.sceneText();
    const bool worked(world_.run(line));
    if (verbose() && !worked) std::cerr << "  refused" << std::endl;
    if (!worked && exact_ && world_.sceneText() != before) noteLeftovers(line);
    require(!world_.session().engine().isRunning(), "no command runs when its line is done", line);
    require(!queue().isUndoing() && !queue().isRedoing(), "no undo runs when it is done", line);
  }

  void finish() {
    queue().setEnabled(true);
    for (int left = kMostLines; left > 0 && queue().hasOpenChunk(); --left) queue().closeChunk();
    require(!queue().hasOpenChunk(), "no chunk is left open but what lines opened");
    for (orvlib::Graph* graph : world_.graphs()) checkGraph(graph->container());
    goBackAndForth();
  }

 private:
  /// What the stages of a line did before one failed stays and is not undone, as the pages of the
  /// module's commands say. Any other line that is refused changes nothing.
  void noteLeftovers(const std::string& line) {
    const auto read = vesk::tokenize(line);
    require(!read.error && line.starts_with("orv"), "a refused line changes nothing", line);
    const auto flags = std::ranges::count(read.statements.front().tokens, vesk::TokenKind::Flag,
                                          &vesk::Token::kind);
    require(flags > 1, "a refused line of one flag changes nothing", line);
    exact_ = false;
  }

  static bool verbose() {
    static const bool verbose = std::getenv("VESK_FUZZ_LINES") != nullptr;
    return verbose;
  }

  vesk::UndoQueue& queue() { return world_.session().undoQueue(); }

  void goBackAndForth() {
    redoAll();
    const std::string last = world_.sceneText();
    undoAll();
    const std::string begin = world_.sceneText();
    for (orvlib::Graph* graph : world_.graphs()) checkGraph(graph->container());
    if (exact_) require(begin == first_, "undo leads back to the beginning", begin + first_);
    redoAll();
    const std::string again = world_.sceneText();
    if (exact_) require(again == last, "redo leads to the end again", again + last);
    for (orvlib::Graph* graph : world_.graphs()) evaluateAll(*graph);
    for (orvlib::Graph* graph : world_.graphs()) checkGraph(graph->container());
  }

  void undoAll() {
    while (queue().doneCount() > 0) {
      const std::string name = queue().undoName();
      const bool undone = queue().undo();
      if (exact_) require(undone, "a step can be undone", name);
    }
  }

  void redoAll() {
    while (queue().stepCount() > queue().doneCount()) {
      const std::string name = queue().redoName();
      const bool redone = queue().redo();
      if (exact_) require(redone, "a step can be redone", name);
    }
  }

  SessionWorld& world_;
  std::string first_;
  bool exact_ = true;
};

/// It is never taken down, but for its files: libFuzzer still reads what the module counted.
SessionWorld& world() {
  static auto* const instance = new SessionWorld;
  static const int cleaning = std::atexit([] { instance->files().remove(); });
  require(cleaning == 0, "the files are taken away at the end");
  return *instance;
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  world();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view rest(reinterpret_cast<const char*>(data), size);
  world().beginAnew();
  Run run(world());
  for (int lines = 0; lines < kMostLines && !rest.empty(); ++lines) {
    const std::size_t end = std::min(rest.find('\n'), rest.size());
    run.take(SessionLines(world(), fuzz::Bytes(rest.substr(0, end))).line());
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  run.finish();
  return 0;
}
