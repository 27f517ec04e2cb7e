#include "standalone/host/engine/UndoQueue.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "standalone/host/engine/CommandRegistry.h"
#include "standalone/host/engine/HostAccess.h"
#include "standalone/host/engine/Messages.h"
#include "standalone/host/language/Tokenizer.h"

namespace vesk {
namespace {

bool isOwnedBy(const std::unique_ptr<KPxCommand>& command, const Plugin* owner) {
  const CommandEntry* entry = HostAccess::entryOf(*command);
  return entry && entry->owner == owner;
}

/// Newest first: an older edit may own what a newer one refers to.
void forget(std::vector<std::unique_ptr<KPxCommand>>& commands) {
  while (!commands.empty()) commands.pop_back();
}

/// Deletes the commands of an owner. True when there were some and nothing else.
bool forgetThoseOf(const Plugin* owner, std::vector<std::unique_ptr<KPxCommand>>& commands) {
  for (auto command = commands.rbegin(); command != commands.rend(); ++command) {
    if (isOwnedBy(*command, owner)) command->reset();
  }
  return std::erase(commands, nullptr) > 0 && commands.empty();
}

std::vector<std::string> namesOf(auto first, auto last) {
  std::vector<std::string> names;
  std::transform(first, last, std::back_inserter(names),
                 [](const auto& step) { return step.name; });
  return names;
}

}  // namespace

UndoQueue::UndoQueue(MessageChannel& messages) : messages_(messages) {}

UndoQueue::~UndoQueue() = default;

void UndoQueue::record(std::unique_ptr<KPxCommand> command) {
  pending_.push_back(std::move(command));
}

void UndoQueue::endStatement(std::string_view name) {
  if (pending_.empty()) return;
  if (hasOpenChunk()) {
    if (chunk_.name.empty()) chunk_.name = name;
    std::move(pending_.begin(), pending_.end(), std::back_inserter(chunk_.commands));
    pending_.clear();
  } else {
    push({std::string(name), std::exchange(pending_, {})});
  }
}

void UndoQueue::push(UndoStep step) {
  if (!step.commands.empty()) forgetUndone();
  done_.push_back(std::move(step));
  trim();
  changed_.tell();
}

void UndoQueue::trim() {
  if (limit_ == 0) return;
  for (; done_.size() > limit_; done_.pop_front()) forget(done_.front().commands);
}

void UndoQueue::forgetUndone() {
  for (; !undone_.empty(); undone_.pop_front()) forget(undone_.front().commands);
}

void UndoQueue::setLimit(std::size_t limit) {
  limit_ = limit;
  trim();
  changed_.tell();
}

bool UndoQueue::mayRun(std::string_view what, const std::deque<UndoStep>& from) {
  std::string reason;
  if (running_ != Running::No) {
    reason = "an undo or redo is running";
  } else if (!enabled_) {
    reason = "undo is switched off";
  } else if (hasOpenChunk()) {
    reason = "the undo chunk " + quoted(chunkName()) + " is still open";
  } else if (!pending_.empty()) {
    reason = "the running command has made edits";
  } else if (from.empty()) {
    reason = "there is nothing to " + std::string(what);
  }
  if (!reason.empty()) messages_.error("cannot " + std::string(what) + ": " + reason);
  return reason.empty();
}

bool UndoQueue::undo() { return mayRun("undo", done_) && carry(done_, undone_, Running::Undo); }

bool UndoQueue::redo() { return mayRun("redo", undone_) && carry(undone_, done_, Running::Redo); }

bool UndoQueue::carry(std::deque<UndoStep>& from, std::deque<UndoStep>& to, Running direction) {
  UndoStep step = std::move(from.back());
  from.pop_back();
  running_ = direction;
  cleared_ = false;
  const bool worked = runStep(step, direction);
  running_ = Running::No;
  if (cleared_) {
    forget(step.commands);
  } else {
    to.push_back(std::move(step));
    trim();
  }
  changed_.tell();
  return worked;
}

bool UndoQueue::runStep(UndoStep& step, Running direction) {
  const bool undo = direction == Running::Undo;
  std::size_t refused = 0;
  for (std::size_t i = 0; i < step.commands.size(); ++i) {
    KPxCommand& command = *step.commands[undo ? step.commands.size() - 1 - i : i];
    if (!(undo ? command.undoIt() : command.redoIt())) ++refused;
  }
  if (refused == 0) return true;
  messages_.error(std::string(undo ? "undo" : "redo") + " of " + quoted(step.name) + ": " +
                  std::to_string(refused) + " of " + std::to_string(step.commands.size()) +
                  " edits refused; the others were carried out");
  return false;
}

void UndoQueue::openChunk(std::string_view name) {
  chunks_.emplace_back(name);
  if (chunk_.name.empty()) chunk_.name = name;
}

bool UndoQueue::closeChunk() {
  if (chunks_.empty()) return false;
  chunks_.pop_back();
  if (!chunks_.empty()) return true;
  UndoStep step = std::exchange(chunk_, {});
  const bool leavesEmptyStep = isRecording() && pending_.empty();
  if (leavesEmptyStep || !step.commands.empty()) push(std::move(step));
  return true;
}

const std::string& UndoQueue::stepName(std::size_t index) const {
  return index < done_.size() ? done_[index].name
                              : undone_[undone_.size() - 1 - (index - done_.size())].name;
}

std::vector<std::string> UndoQueue::doneNames() const {
  return namesOf(done_.begin(), done_.end());
}

std::vector<std::string> UndoQueue::undoneNames() const {
  return namesOf(undone_.rbegin(), undone_.rend());
}

void UndoQueue::clear() {
  cleared_ = true;
  forgetUndone();
  forget(pending_);
  forget(chunk_.commands);
  chunk_ = {};
  chunks_.clear();
  for (; !done_.empty(); done_.pop_back()) forget(done_.back().commands);
  changed_.tell();
}

void UndoQueue::removeCommandsOf(const Plugin* owner) {
  std::erase_if(undone_, [&](UndoStep& step) { return forgetThoseOf(owner, step.commands); });
  forgetThoseOf(owner, pending_);
  forgetThoseOf(owner, chunk_.commands);
  std::deque<UndoStep> kept;
  for (; !done_.empty(); done_.pop_back()) {
    if (!forgetThoseOf(owner, done_.back().commands)) kept.push_front(std::move(done_.back()));
  }
  done_ = std::move(kept);
  changed_.tell();
}

}  // namespace vesk
