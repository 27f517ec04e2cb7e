#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <unordered_map>
#include <vector>

#include "standalone/host/engine/Observers.h"
#include "standalone/host/scene/SceneNode.h"

namespace vesk {

/// The selected nodes, in the order in which they were selected, each once.
class Selection {
 public:
  /// A rank in the order; a node that was taken out can be put back at its own.
  using Place = std::uint64_t;

  bool contains(const SceneNode& node) const { return places_.contains(&node); }
  std::size_t size() const { return order_.size(); }
  std::vector<SceneNodePtr> nodes() const;

  /// Who hears of each change.
  Observers<>& changed() { return changed_; }

  /// Adds a node behind all others and returns its place. It must not be selected.
  Place add(const SceneNodePtr& node);

  /// Puts a node back at a place that it had. It must not be selected.
  void restore(const SceneNodePtr& node, Place place);

  /// The place it had; nothing when it was not selected.
  std::optional<Place> remove(const SceneNode& node);

 private:
  std::map<Place, SceneNodePtr> order_;
  std::unordered_map<const SceneNode*, Place> places_;
  Place next_ = 1;
  Observers<> changed_;
};

}  // namespace vesk
