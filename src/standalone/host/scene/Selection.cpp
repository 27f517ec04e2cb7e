#include "standalone/host/scene/Selection.h"

namespace vesk {

std::vector<SceneNodePtr> Selection::nodes() const {
  std::vector<SceneNodePtr> nodes;
  nodes.reserve(order_.size());
  for (const auto& [place, node] : order_) nodes.push_back(node);
  return nodes;
}

Selection::Place Selection::add(const SceneNodePtr& node) {
  restore(node, next_);
  return next_++;
}

void Selection::restore(const SceneNodePtr& node, Place place) {
  order_.emplace(place, node);
  places_.emplace(node.get(), place);
  changed_.tell();
}

std::optional<Selection::Place> Selection::remove(const SceneNode& node) {
  const auto found = places_.find(&node);
  if (found == places_.end()) return {};
  const Place place = found->second;
  places_.erase(found);
  order_.erase(place);
  changed_.tell();
  return place;
}

}  // namespace vesk
