#include "standalone/graph/model/UndoOrder.h"

namespace orvlib {

void UndoOrder::Entry::leave() {
  if (!earlier_) return;
  earlier_->later_ = later_;
  later_->earlier_ = earlier_;
  earlier_ = later_ = nullptr;
  waiting_ = false;
}

/// A command may outlive the graph: from then on it stands alone.
UndoOrder::~UndoOrder() {
  while (ends_.earlier_ != &ends_) ends_.earlier_->leave();
  ends_.earlier_ = ends_.later_ = nullptr;
}

void UndoOrder::done(Entry& entry, std::uint64_t round) {
  entry.leave();
  entry.round_ = round;
  entry.earlier_ = ends_.earlier_;
  entry.later_ = &ends_;
  entry.earlier_->later_ = &entry;
  ends_.earlier_ = &entry;
}

bool UndoOrder::revert(Entry& entry) {
  entry.waiting_ = false;
  if (!entry.revertNow()) return false;
  entry.leave();
  return true;
}

bool UndoOrder::wait(Entry& entry) { return anyWaiting_ = entry.waiting_ = true; }

bool UndoOrder::undo(Entry& entry, bool mayWait) {
  if (entry.waiting_) return false;
  if (mayWait && isBelowOthers(entry)) return wait(entry);
  Entry* next = entry.earlier_;
  if (!revert(entry)) return mayWait && wait(entry);
  while (next->waiting_ && !isBelowOthers(*next)) {
    Entry& waiting = *next;
    next = next->earlier_;
    if (!revert(waiting)) break;
  }
  return true;
}

void UndoOrder::undoWaiting() {
  if (!anyWaiting_) return;
  anyWaiting_ = false;
  for (Entry* next = ends_.earlier_; next != &ends_;) {
    Entry& entry = *next;
    next = next->earlier_;
    if (entry.waiting_) revert(entry);
  }
}

void UndoOrder::undoLatestWaiting() {
  while (anyWaiting_ && ends_.earlier_->waiting_) {
    Entry& latest = *ends_.earlier_;
    if (revert(latest)) continue;
    wait(latest);
    break;
  }
}

}  // namespace orvlib
