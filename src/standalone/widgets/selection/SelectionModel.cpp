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

void SelectionModel::reveal(const ORV_v1::AddRefWrapper<ORV_v1::Node>& node) {
  if (!node) return;
  bool revealed = false;
  emit revealAsked(node, false, revealed);
  if (!revealed) emit revealAsked(node, true, revealed);
  select({node});
}

}  // namespace orvuilib
