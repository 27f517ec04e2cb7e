#pragma once

#include <string_view>
#include <vector>

#include "platform/OpenVesk/KStatus.h"
#include "standalone/host/engine/Observers.h"
#include "standalone/host/engine/ResultValue.h"
#include "standalone/host/engine/RunOptions.h"
#include "standalone/host/language/Tokenizer.h"

namespace vesk {

class HostSession;
class Plugin;
struct CommandEntry;

/// A line ahead of what it does.
struct BegunLine {
  bool outermost;  ///< no command runs it
  bool readable;   ///< else nothing of it will run
};

/// A line that no other command ran, when it is done.
struct FinishedLine {
  std::string_view text;
  const ResultValue& result;
  KStatus status;
  bool display;  ///< it was echoed
};

/// Runs lines: reads them, finds each command, lets it work, and hands its object to the undo
/// queue.
class CommandEngine {
 public:
  explicit CommandEngine(HostSession& session) : session_(session) {}

  /// Runs a text of the command language. It is read whole before anything of it runs. Stops at the
  /// first statement that fails and returns its status; `result` is that of the last one that ran.
  KStatus run(std::string_view text, ResultValue& result, RunOptions options = {});

  /// Who hears of each line, those of commands among them, when it has been read.
  Observers<BegunLine>& lineBegan() { return lineBegan_; }

  /// Who hears of each line that no other command ran.
  Observers<FinishedLine>& lineEnded() { return lineEnded_; }

  /// Whether a command is running.
  bool isRunning() const { return !frames_.empty(); }

  /// The result of the running command; null outside one.
  ResultValue* runningResult() { return frames_.empty() ? nullptr : &frames_.back().result; }

  /// Whether a command of this plug-in is running.
  bool isRunningCommandOf(const Plugin* owner) const;

  /// The name of the running command; empty outside one.
  std::string_view runningCommand() const;

  /// While it lives, results that commands set are dropped.
  class ScratchResult {
   public:
    explicit ScratchResult(CommandEngine& engine) : engine_(engine) {
      engine_.frames_.push_back({nullptr, {}, false, true});
    }
    ~ScratchResult() { engine_.frames_.pop_back(); }
    ScratchResult(const ScratchResult&) = delete;
    ScratchResult& operator=(const ScratchResult&) = delete;

   private:
    CommandEngine& engine_;
  };

 private:
  struct Frame {
    const CommandEntry* entry;
    ResultValue result;
    bool undo;
    bool display;
  };

  /// The name of the command that ran the running one; its own when a user did.
  std::string_view callingCommand() const;
  KStatus runStatement(Statement& statement, ResultValue& result, RunOptions options);
  KStatus refuse(std::string_view message);

  HostSession& session_;
  std::vector<Frame> frames_;
  Observers<BegunLine> lineBegan_;
  Observers<FinishedLine> lineEnded_;
};

}  // namespace vesk
