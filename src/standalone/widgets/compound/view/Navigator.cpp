#include "standalone/widgets/compound/view/Navigator.h"

#include <algorithm>

#include "standalone/graph/model/ContainerObject.h"

namespace orvuilib {

using orvlib::NodeObject;
using orvlib::NodeRef;

void Navigator::open(NodeObject* top) {
  top_ = NodeRef(top);
  history_.clear();
  views_.clear();
  at_ = 0;
  if (top) history_.push_back(placeOf(*top));
}

NodeObject* Navigator::current() const {
  return history_.empty() ? nullptr : history_[at_].level();
}

void Navigator::go(NodeObject& level) {
  if (current() == &level) return;
  history_.resize(at_ + 1);
  history_.push_back(placeOf(level));
  at_ = history_.size() - 1;
}

void Navigator::back() {
  if (canGoBack()) --at_;
}

void Navigator::forward() {
  if (canGoForward()) ++at_;
}

Navigator::Place Navigator::placeOf(NodeObject& level) {
  Place place;
  for (NodeObject* node = &level; node; node = node->parent() ? node->parent()->node() : nullptr) {
    place.chain.emplace_back(node);
  }
  std::ranges::reverse(place.chain);
  return place;
}

bool Navigator::isThere(const NodeObject& level) const {
  const orvlib::ContainerObject* container = level.container();
  return container && &container->top() == top_.get() && level.compound();
}

/// A place whose level is gone becomes the nearest level above it that is there; places that become
/// like the one before them go.
bool Navigator::leaveWhatIsGone() {
  NodeObject* const shown = current();
  if (!shown) return false;
  std::vector<Place> kept;
  std::size_t at = 0;
  for (std::size_t i = 0; i < history_.size(); ++i) {
    Place place = std::move(history_[i]);
    while (!place.chain.empty() && !isThere(*place.level())) place.chain.pop_back();
    const bool same = !place.chain.empty() && !kept.empty() && kept.back().level() == place.level();
    if (!place.chain.empty() && !same) kept.push_back(std::move(place));
    if (i <= at_) at = kept.empty() ? 0 : kept.size() - 1;
  }
  history_ = std::move(kept);
  at_ = at;
  std::erase_if(views_, [this](const auto& entry) {
    return std::ranges::none_of(
        history_, [&entry](const Place& place) { return place.level() == entry.first; });
  });
  return current() != shown;
}

std::vector<NodeObject*> Navigator::path() const {
  std::vector<NodeObject*> path;
  if (history_.empty()) return path;
  for (const NodeRef& node : history_[at_].chain) path.push_back(node.get());
  return path;
}

}  // namespace orvuilib
