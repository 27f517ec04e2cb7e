#include "standalone/host/engine/CommandEngine.h"

#include <algorithm>
#include <memory>

#include "standalone/host/engine/HostAccess.h"
#include "standalone/host/engine/HostSession.h"

namespace vesk {
namespace {

/// A line that calls itself without end is stopped before the stack is.
constexpr std::size_t kMaximumDepth = 200;

KArgList argumentsOf(Statement& statement) {
  auto arguments = std::make_shared<ArgumentArray>();
  arguments->reserve(statement.tokens.size() - 1);
  for (std::size_t i = 1; i < statement.tokens.size(); ++i) {
    Token& token = statement.tokens[i];
    arguments->push_back({HostAccess::string(std::move(token.text)), token.kind});
  }
  return HostAccess::argList(std::move(arguments));
}

}  // namespace

KStatus CommandEngine::refuse(std::string_view message) {
  session_.messages().error(message);
  return StatusBadArgument;
}

std::string_view CommandEngine::runningCommand() const {
  return frames_.empty() || !frames_.back().entry ? std::string_view{} : frames_.back().entry->name;
}

std::string_view CommandEngine::callingCommand() const {
  if (frames_.size() < 2) return runningCommand();
  const CommandEntry* entry = frames_[frames_.size() - 2].entry;
  return entry ? entry->name : std::string_view{};
}

bool CommandEngine::isRunningCommandOf(const Plugin* owner) const {
  return std::any_of(frames_.begin(), frames_.end(), [owner](const Frame& frame) {
    return frame.entry && frame.entry->owner == owner;
  });
}

KStatus CommandEngine::run(std::string_view text, ResultValue& result, RunOptions options) {
  result = {};
  if (frames_.size() >= kMaximumDepth) return refuse("the line is nested too deeply in commands");
  const bool outermost = frames_.empty();
  if (!outermost) {
    options.undo &= frames_.back().undo;
    options.display &= frames_.back().display;
  }
  if (options.display) session_.messages().send(MessageKind::Echo, text);

  TokenizedText read = tokenize(text);
  KStatus status = read.error ? refuse("syntax error: " + read.error->text()) : KStatus();
  UndoQueue& undoQueue = session_.undoQueue();
  const bool ownSteps = outermost || options.topLevel;
  lineBegan_.tell({outermost, !read.error});
  if (options.topLevel && !outermost) undoQueue.endStatement(callingCommand());
  for (Statement& statement : read.statements) {
    status = runStatement(statement, result, options);
    if (ownSteps) undoQueue.endStatement(statement.source);
    if (!status) break;
  }
  if (outermost) {
    session_.journal().write(text, options, status);
    lineEnded_.tell({text, result, status, options.display});
  }
  return status;
}

KStatus CommandEngine::runStatement(Statement& statement, ResultValue& result, RunOptions options) {
  const Token& name = statement.tokens.front();
  const auto entry = session_.registry().find(name.text);
  if (!entry) return refuse("unknown command " + quotedBriefly(name.text));
  if (name.kind == TokenKind::Quoted) {
    return refuse("the name of a command is written without quotes: " + name.text);
  }
  std::unique_ptr<KPxCommand> command(entry->creator());
  if (!command) return refuse("the command " + quoted(name.text) + " could not be created");
  HostAccess::bind(*command, entry);

  frames_.push_back({entry.get(), {}, options.undo, options.display});
  const KStatus status = command->doIt(argumentsOf(statement));
  result = std::move(frames_.back().result);
  frames_.pop_back();

  if (status && options.undo && session_.undoQueue().isRecording() && command->isUndoable()) {
    session_.undoQueue().record(std::move(command));
  }
  return status;
}

}  // namespace vesk
