#include "tests/sweep/FaultRun.h"

#include <algorithm>
#include <limits>
#include <regex>

#include "standalone/graph/edits/FaultPoints.h"
#include "standalone/host/scene/Scene.h"
#include "standalone/host/scene/SceneFile.h"

using orvlib::FaultPoints;

namespace {

/// The errors that the module's commands state, with anything for their arguments.
const std::vector<std::regex>& statedErrors() {
  static const std::vector<std::regex> kErrors = [] {
    std::vector<std::regex> errors;
    for (const char* text :
         {"Invalid parameters detected\\.  Exiting\\.", "A port named .* was not found on .*",
          "Unknown port type .*", "Backdrop/Sticky named .* was not found in .*",
          "Invalid port options \".*\"", ".* is not a DG ORV container",
          ".* is not a compound name", ".* is not a node name", "Node named .* was not found in .*",
          "Failed to create compound", "The node path .* was not found",
          "Compound named .* cannot be reset to factory", "The compound is not editable",
          ".* expects type .*",
          "(undo|redo) of \".*\": .* of .* edits refused; the others were carried out",
          "The compound '.*' cannot be (published as '.*'|saved): the library refused it\\."}) {
      errors.emplace_back("! " + std::string(text));
    }
    return errors;
  }();
  return kErrors;
}

bool isStated(const std::string& message) {
  return std::ranges::any_of(statedErrors(), [&message](const std::regex& error) {
    return std::regex_match(message, error);
  });
}

std::string sceneText(TranscriptRun& run) {
  return vesk::writeSceneText(run.platform().session().scene());
}

std::string messagesOf(const LineOutcome& outcome) {
  std::string text;
  for (const std::string& message : outcome.messages) text += "; " + message;
  return text;
}

/// All steps undone, then done again.
std::string thereAndBack(TranscriptRun& run) {
  vesk::UndoQueue& queue = run.platform().session().undoQueue();
  const std::string before = sceneText(run);
  std::size_t steps = 0;
  for (; queue.doneCount() > 0; ++steps) {
    const LineOutcome outcome = run.run("undo");
    if (outcome.status != 0) return "a step cannot be undone" + messagesOf(outcome);
  }
  for (; steps > 0; --steps) {
    const LineOutcome outcome = run.run("redo");
    if (outcome.status != 0) return "a step cannot be done again" + messagesOf(outcome);
  }
  return before == sceneText(run) ? "" : "undone and done again, the scene is another";
}

/// A small graph of one's own, built, undone and built again in a new scene.
std::string isUsable(TranscriptRun& run) {
  for (const char* line :
       {"file -new -force", "createNode orvGraph -name \"probe\"",
        R"(orvCompound "probe" "/" -createInputPort "x" "float")",
        R"(orvCompound "probe" "/" -create "inner")", "undo", "undo", "redo", "redo",
        R"(orvCompound "probe" "/inner" -createOutputPort "y" "float")"}) {
    if (run.run(line).status != 0) return "afterwards this line fails: " + std::string(line);
  }
  return {};
}

/// The line in which the fault came: as it would have been, or refused by the rules of its command.
/// Brackets and chunks are as ahead of it, or as it leaves them when nothing fails.
std::string judgeFault(const std::string& line, const LineOutcome& before, const LineOutcome& now,
                       const LineOutcome& normal) {
  if (now.hasOpenChunk != before.hasOpenChunk && now.hasOpenChunk != normal.hasOpenChunk) {
    return "it leaves a chunk open";
  }
  // Of several undos in a line, one that is refused leaves a bracket to those behind it.
  const bool several = line.find(';') != std::string::npos;
  if (!several && now.brackets != before.brackets && now.brackets != normal.brackets) {
    return "it leaves a bracket open";
  }
  for (const std::string& message : now.messages) {
    const bool normally = std::ranges::count(normal.messages, message) > 0;
    if (message.starts_with("! ") && !normally && !isStated(message)) {
      return "no rule states its message " + message;
    }
  }
  return {};
}

/// An undo that was refused has left its edits in place, and a line that failed keeps what it did
/// before: then nothing can be compared. A line that went on without what was refused has that too
/// when it is done again, from then on for good.
std::string judgeHistory(TranscriptRun& run, const std::string& sceneBefore) {
  const std::string& line = run.lines()[run.outcomes().size() - 1];
  if (line.starts_with("undo") || line.starts_with("redo")) return {};
  const bool succeeded = run.outcomes().back().status == 0;
  if (!succeeded && sceneText(run) != sceneBefore) return {};
  if (succeeded) thereAndBack(run);
  return thereAndBack(run);
}

std::string at(std::size_t line, const TranscriptRun& run, const std::string& problem) {
  return "line " + std::to_string(line + 1) + " " + run.lines()[line] + ": " + problem;
}

}  // namespace

Reference runReference(TranscriptRun& run) {
  Reference reference;
  FaultPoints::armAny(std::numeric_limits<unsigned>::max());
  while (run.next()) {
  }
  reference.faultPoints = FaultPoints::asked();
  FaultPoints::disarm();
  reference.outcomes = run.outcomes();
  const bool quit = run.platform().session().quitRequested;
  reference.repeats = !quit && thereAndBack(run).empty();
  reference.usable = !quit && isUsable(run).empty();
  return reference;
}

std::string runWithFault(TranscriptRun& run, unsigned nth, const Reference& reference) {
  FaultPoints::armAny(nth);
  LineOutcome before;
  std::string scene;
  while (!FaultPoints::refused()) {
    scene = sceneText(run);
    if (!run.next()) return "the fault never came";
    const std::size_t line = run.outcomes().size() - 1;
    const LineOutcome& now = run.outcomes().back();
    const LineOutcome& normal = reference.outcomes[line];
    std::string problem;
    if (FaultPoints::refused()) {
      problem = judgeFault(run.lines()[line], before, now, normal);
    } else if (now != normal) {
      problem = "it does not do the same each time";
    }
    if (!problem.empty()) return at(line, run, problem);
    before = now;
  }
  FaultPoints::disarm();
  if (run.platform().session().quitRequested) return {};
  const std::size_t line = run.outcomes().size() - 1;
  std::string problem = reference.repeats ? judgeHistory(run, scene) : "";
  if (!problem.empty()) return at(line, run, problem);
  // What follows stands on other ground, but must run.
  while (run.next()) {
  }
  const bool quit = run.platform().session().quitRequested;
  return reference.usable && !quit ? isUsable(run) : "";
}
