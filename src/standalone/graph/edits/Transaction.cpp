#include "standalone/graph/edits/Transaction.h"

#include "standalone/graph/edits/FaultPoints.h"

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

bool Transaction::revert() {
  for (std::size_t done = edits_.size(); done > 0; --done) {
    if (!refused(edits_[done - 1]) && orvlib::revert(edits_[done - 1])) continue;
    for (; done < edits_.size(); ++done) apply(edits_[done]);
    return false;
  }
  return true;
}

bool Transaction::reapply() {
  for (std::size_t done = 0; done < edits_.size(); ++done) {
    if (!refused(edits_[done]) && apply(edits_[done])) continue;
    while (done > 0) orvlib::revert(edits_[--done]);
    return false;
  }
  return true;
}

}  // namespace orvlib
