#pragma once

#include <cstdint>

#include "platform/ORV_1_0/OrvApi.h"

namespace orvlib {

/// The commands of a graph that are done, in the order in which they were done.
///
/// Edits build on those before them, so what was done within one outermost change bracket is taken
/// back in the reverse order, in whichever order that is asked for: while a bracket is open, an
/// undo waits for that of what the same bracket did later. What still waits when the bracket closes
/// is taken back then, as far as it fits the graph.
class ORV_EXPORT UndoOrder {
 public:
  /// A command's place. It leaves by itself when it goes.
  class ORV_EXPORT Entry {
   public:
    Entry() = default;
    Entry(const Entry&) = delete;
    Entry& operator=(const Entry&) = delete;
    virtual ~Entry() { leave(); }

    /// The undo was asked for and has yet to come.
    bool isWaiting() const { return waiting_; }

   private:
    friend class UndoOrder;

    /// Takes the edits back. False, and nothing changed, when they do not fit.
    virtual bool revertNow() = 0;

    void leave();

    Entry* earlier_ = nullptr;
    Entry* later_ = nullptr;
    std::uint64_t round_ = 0;  ///< which outermost bracket it was done in
    bool waiting_ = false;
  };

  UndoOrder() { ends_.earlier_ = ends_.later_ = &ends_; }
  ~UndoOrder();

  /// The entry was done last, in that round of brackets.
  void done(Entry& entry, std::uint64_t round);

  /// Takes the entry back, and then what waited for it. When `mayWait`, it waits if others are to
  /// go first or if it does not fit yet: what is in its way may go within the same bracket. False,
  /// and nothing changed, when it does not fit or is asked for already.
  bool undo(Entry& entry, bool mayWait);

  /// Takes back what waits, the latest first.
  void undoWaiting();

  /// Tries again what waits, as long as it is what was done last.
  void undoLatestWaiting();

 private:
  class Ends final : public Entry {
    bool revertNow() override { return false; }
  };

  bool isBelowOthers(const Entry& entry) const {
    return entry.later_ != &ends_ && entry.later_->round_ == entry.round_;
  }
  static bool revert(Entry& entry);
  bool wait(Entry& entry);

  Ends ends_;
  bool anyWaiting_ = false;
};

}  // namespace orvlib
