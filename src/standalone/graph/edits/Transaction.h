#pragma once

#include <absl/container/inlined_vector.h>

#include "standalone/graph/edits/Edits.h"

namespace orvlib {

/// Edits that belong together: all of them are done, or none. It is built edit by edit, and then
/// taken back and done again as a whole. It holds no copy of the graph.
class ORV_EXPORT Transaction {
 public:
  Transaction() = default;
  Transaction(Transaction&&) = default;
  Transaction& operator=(Transaction&&) = default;

  /// Applies the edit and adds it. False, and nothing changed by it, when it does not fit: the
  /// caller then calls `rollback`.
  template <class One>
  bool run(One edit) {
    edits_.emplace_back(std::move(edit));
    return runLast();
  }

  /// Takes back what has been run, and forgets it.
  void rollback();

  /// Takes all edits back, or does them again. False, and nothing changed, when one of them does
  /// not fit the graph any more.
  bool revert();
  bool reapply();

  /// Leaves what the edit of that number did, and forgets how to take it back. For a change that
  /// nothing else in the transaction builds on.
  void forget(std::size_t index) { edits_.erase(edits_.begin() + index); }

  bool empty() const { return edits_.empty(); }
  std::size_t size() const { return edits_.size(); }

 private:
  bool runLast();
  bool movedNodesFit() const;

  absl::InlinedVector<Edit, 1> edits_;
};

}  // namespace orvlib
