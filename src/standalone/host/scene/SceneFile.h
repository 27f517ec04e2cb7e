#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "standalone/host/scene/SceneNode.h"

namespace vesk {

class NodeTypes;
class Scene;

/// What a scene's text says: the nodes in order, not yet in a scene.
struct SceneText {
  std::vector<SceneNodePtr> nodes;
  std::vector<std::string> warnings;  ///< one for each type that nobody registered
  std::string error;                  ///< line and reason; then there are no nodes
};

/// The text of a scene. The same scene gives the same bytes.
std::string writeSceneText(const Scene& scene);

/// Reads and checks a text whole.
SceneText readSceneText(std::string_view text, const NodeTypes& types);

}  // namespace vesk
