#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "standalone/host/scene/SceneNode.h"

namespace vesk {

class Scene;

/// Names of nodes as a line gives them: a name, or a pattern for the whole name, in which "*"
/// stands for any characters and "?" for one.
using NamePatterns = std::vector<std::string>;

bool fitsPattern(std::string_view name, std::string_view pattern);
bool fitsAny(std::string_view name, const NamePatterns& patterns);

/// The nodes that fit: in the order of the patterns, and for one pattern in creation order; each
/// node once. `missing` gets the first pattern that fits no node.
std::vector<SceneNodePtr> findNodes(const Scene& scene, const NamePatterns& patterns,
                                    std::optional<std::string>& missing);

/// The nodes that fit any of the patterns, in creation order.
std::vector<SceneNodePtr> findNodesInOrder(const Scene& scene, const NamePatterns& patterns);

}  // namespace vesk
