#include "standalone/graph/edits/Transaction.h"

#include <algorithm>

#include "standalone/graph/edits/FaultPoints.h"
#include "standalone/graph/edits/WireRules.h"

namespace orvlib {
namespace {

// One for each alternative of Edit, in their order.
FaultPoint kEditPoints[] = {
    FaultPoint("edit insertNode"),       FaultPoint("edit removeNode"),
    FaultPoint("edit moveNode"),         FaultPoint("edit renameNode"),
    FaultPoint("edit insertAnnotation"), FaultPoint("edit removeAnnotation"),
    FaultPoint("edit renameAnnotation"), FaultPoint("edit insertPort"),
    FaultPoint("edit removePort"),       FaultPoint("edit renamePort"),
    FaultPoint("edit movePort"),         FaultPoint("edit setPortType"),
    FaultPoint("edit setPortValue"),     FaultPoint("edit setPortFlags"),
    FaultPoint("edit setIoNode"),        FaultPoint("edit pairState"),
    FaultPoint("edit partState"),        FaultPoint("edit connect"),
    FaultPoint("edit disconnect"),       FaultPoint("edit setMetadata"),
    FaultPoint("edit setState"),         FaultPoint("edit setOrigin"),
    FaultPoint("edit setWatchPoint"),    FaultPoint("edit setUpWatchPoint"),
};
static_assert(std::size(kEditPoints) == std::variant_size_v<Edit>);

bool refused(const Edit& edit) { return kEditPoints[edit.index()].refuses(); }

bool apply(Edit& edit) {
  return std::visit([](auto& one) { return one.apply(); }, edit);
}

bool revert(Edit& edit) {
  return std::visit([](auto& one) { return one.revert(); }, edit);
}

}  // namespace

bool Transaction::runLast() {
  if (!refused(edits_.back()) && apply(edits_.back())) return true;
  edits_.pop_back();
  return false;
}

void Transaction::rollback() {
  while (!edits_.empty()) {
    orvlib::revert(edits_.back());
    edits_.pop_back();
  }
}

/// Nodes move one after the other, and connections come along: in the end both ends of each have to
/// be at one level again. They are not when somebody has connected a node since without an edit
/// that can be taken back.
bool Transaction::movedNodesFit() const {
  return std::ranges::all_of(edits_, [](const Edit& edit) {
    const auto* move = std::get_if<MoveNode>(&edit);
    return !move || connectionsMatch(*move->node);
  });
}

bool Transaction::revert() {
  std::size_t done = edits_.size();
  while (done > 0 && !refused(edits_[done - 1]) && orvlib::revert(edits_[done - 1])) --done;
  if (done == 0 && movedNodesFit()) return true;
  for (; done < edits_.size(); ++done) apply(edits_[done]);
  return false;
}

bool Transaction::reapply() {
  std::size_t done = 0;
  while (done < edits_.size() && !refused(edits_[done]) && apply(edits_[done])) ++done;
  if (done == edits_.size() && movedNodesFit()) return true;
  while (done > 0) orvlib::revert(edits_[--done]);
  return false;
}

}  // namespace orvlib
