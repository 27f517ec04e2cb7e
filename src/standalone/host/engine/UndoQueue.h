#pragma once

#include <cstddef>
#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/OpenVesk/KPxCommand.h"
#include "standalone/host/engine/Observers.h"

namespace vesk {

class MessageChannel;
class Plugin;

/// What a user undoes and redoes at once: the commands of one statement or chunk.
struct UndoStep {
  std::string name;
  std::vector<std::unique_ptr<KPxCommand>> commands;
};

/// The history of edits: steps done, and steps undone that wait for redo.
///
/// The commands of a statement are gathered until it ends and then become one step, or part of the
/// chunk that is open. An empty chunk leaves an empty step, so that closing and undoing a chunk
/// never reaches an older edit; it keeps what waits for redo. One that a statement with edits of
/// its own opens and closes leaves none: those edits are the statement's step.
class UndoQueue {
 public:
  explicit UndoQueue(MessageChannel& messages);
  ~UndoQueue();

  // Recording, for the command engine.
  void record(std::unique_ptr<KPxCommand> command);
  void endStatement(std::string_view name);

  /// Undo or redo one step. False, with the reason shown, when there is none, a chunk is open,
  /// recording is off, an undo or redo is running, or a command refused. After a refusal the other
  /// commands of the step are still undone or redone and the step changes sides, so that no step
  /// can block the ones behind it.
  bool undo();
  bool redo();
  bool isUndoing() const { return running_ == Running::Undo; }
  bool isRedoing() const { return running_ == Running::Redo; }

  bool isRecording() const { return enabled_ && running_ == Running::No; }
  bool isEnabled() const { return enabled_; }

  /// Recording goes on or off; the history stays.
  void setEnabled(bool enabled) { enabled_ = enabled; }

  /// Chunks nest; the outermost one becomes the step. The name is that of the outermost chunk that
  /// has one, else that of the chunk's first statement.
  void openChunk(std::string_view name);
  /// False when none is open.
  bool closeChunk();
  bool hasOpenChunk() const { return !chunks_.empty(); }
  /// Of the innermost open chunk; empty when none is open.
  std::string chunkName() const { return chunks_.empty() ? "" : chunks_.back(); }

  /// How many steps are kept; 0 for all. The oldest go first.
  void setLimit(std::size_t limit);
  std::size_t limit() const { return limit_; }

  /// The next step to undo or redo; empty when there is none.
  std::string undoName() const { return done_.empty() ? "" : done_.back().name; }
  std::string redoName() const { return undone_.empty() ? "" : undone_.back().name; }

  /// The steps in a row: those done, oldest first, then those undone, the next to redo first.
  std::size_t doneCount() const { return done_.size(); }
  std::size_t stepCount() const { return done_.size() + undone_.size(); }
  const std::string& stepName(std::size_t index) const;

  /// Who hears that steps have come, gone or changed sides.
  Observers<>& changed() { return changed_; }

  /// Oldest first, and the next to redo first.
  std::vector<std::string> doneNames() const;
  std::vector<std::string> undoneNames() const;

  /// Forgets everything, newest first, open chunks and the step that runs included.
  void clear();

  /// Deletes the commands of a plug-in, and the steps that hold nothing else.
  void removeCommandsOf(const Plugin* owner);

 private:
  enum class Running { No, Undo, Redo };

  bool mayRun(std::string_view what, const std::deque<UndoStep>& from);
  bool carry(std::deque<UndoStep>& from, std::deque<UndoStep>& to, Running direction);
  bool runStep(UndoStep& step, Running direction);
  void push(UndoStep step);
  void trim();
  void forgetUndone();

  MessageChannel& messages_;
  Observers<> changed_;
  std::deque<UndoStep> done_;
  std::deque<UndoStep> undone_;
  std::vector<std::unique_ptr<KPxCommand>> pending_;  ///< of the statement that runs
  std::vector<std::string> chunks_;                   ///< names of the open chunks
  UndoStep chunk_;                                    ///< what the open chunks gathered
  std::size_t limit_ = 0;
  Running running_ = Running::No;
  bool enabled_ = true;
  bool cleared_ = false;  ///< since the undo or redo that runs began
};

}  // namespace vesk
