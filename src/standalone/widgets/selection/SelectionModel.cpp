#include "standalone/widgets/selection/SelectionModel.h"

#include <algorithm>

namespace orvuilib {

/// Never destroyed: an editor may still ask while the program goes down.
SelectionModel& SelectionModel::instance() {
  static SelectionModel& only = *new SelectionModel;
  return only;
}

void SelectionModel::select(const Nodes& nodes) {
  Nodes selected;
  std::ranges::copy_if(nodes, std::back_inserter(selected),
                       [](const auto& node) { return !!node; });
  const auto isSame = [](const auto& a, const auto& b) { return a.get() == b.get(); };
  if (std::ranges::equal(selected, nodes_, isSame)) return;
  nodes_ = std::move(selected);
  emit changed();
}

}  // namespace orvuilib
