#pragma once

#include <string>

#include "standalone/graph/edits/FaultPoints.h"
#include "standalone/graph/edits/Transaction.h"
#include "standalone/graph/model/ChangeHold.h"
#include "standalone/graph/model/UndoOrder.h"

namespace orvlib {

/// The hidden part of a command, made with the first thing that there is to keep. Whoever has a
/// command for each thing that may be asked for uses few of them: one that is not used costs no
/// memory.
template <class Rep>
Rep& made(Rep*& rep) {
  if (!rep) rep = new Rep;
  return *rep;
}

/// How far a library command has come, and the edits that it made: the part that all of them share.
/// The first `redo` builds the edits; `undo` and further ones take the same edits back and do them
/// again, so that whoever holds an object of the graph finds it again.
class RecordedCommand final : private UndoOrder::Entry {
 public:
  /// `build` is given an empty transaction and adds the edits to it; it may say false at any point.
  /// False, and nothing changed, when it does, and when the command is done already.
  template <class Build>
  bool redo(const FaultPoint& fault, ContainerObject* container, Build build) {
    if (fault.refuses() || done_) return false;
    if (!container) return false;
    const ChangeHold hold(*container);
    if (built_) {
      done_ = edits_.reapply();
    } else if (build(edits_)) {
      built_ = done_ = true;
    } else {
      edits_.rollback();
    }
    if (done_) container->core().undoOrder().done(*this, container->bracketRound());
    return done_;
  }

  /// In the order that `UndoOrder` says. False, and nothing changed, when the command is not done
  /// or its edits do not fit any more.
  bool undo(const FaultPoint& fault, ContainerObject* container) {
    if (fault.refuses() || !done_ || !container) return false;
    const bool mayWait = container->openBracketCount() > 0;
    const ChangeHold hold(*container);
    return container->core().undoOrder().undo(*this, mayWait);
  }

  bool isDone() const { return done_ && !isWaiting(); }

  /// Whether the edits are settled, so that nothing more can be recorded.
  bool isBuilt() const { return built_; }

 private:
  bool revertNow() override {
    if (!edits_.revert()) return false;
    done_ = false;
    return true;
  }

  Transaction edits_;
  bool built_ = false;
  bool done_ = false;
};

/// The graph that a command works in, which may go away while an undo step holds the command.
class GraphLink {
 public:
  void bind(ContainerObject& container) { core_ = CoreRef(&container.core()); }

  /// False, and the link as it was, when it leads to another graph.
  bool bindOrKeep(ContainerObject* container) {
    if (!container || (core_ != nullptr && core_->container() != container)) return false;
    core_ = CoreRef(&container->core());
    return true;
  }

  /// Null when it leads nowhere, or the graph is gone.
  ContainerObject* container() const { return core_ == nullptr ? nullptr : core_->container(); }

 private:
  CoreRef core_;
};

}  // namespace orvlib
