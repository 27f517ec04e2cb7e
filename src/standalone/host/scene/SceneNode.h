#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "platform/OpenVesk/KUuid.h"
#include "standalone/host/engine/HostObject.h"
#include "standalone/host/scene/NodePayload.h"

namespace vesk {

class Scene;

/// A node: in the scene, or taken out of it and kept alive by an undo step or a handle.
class SceneNode final : public HostObject {
 public:
  SceneNode(std::string type, std::string name, std::string uuid,
            std::unique_ptr<NodePayload> payload);

  const std::string& type() const { return type_; }
  const std::string& name() const { return name_; }

  /// Like "6ba7b810-9dad-11d1-80b4-00c04fd430c8"; the node's own for all its life.
  const std::string& uuid() const { return uuid_; }
  const KUuid& identifier() const { return identifier_; }

  /// Null for a type without data.
  NodePayload* payload() const { return payload_.get(); }

  /// Its rank in creation order; 0 before it first enters the scene.
  std::uint64_t place() const { return place_; }

  bool isInScene() const { return scene_ != nullptr; }

  /// For the payload to tell that its data changed: the scene then has something to save.
  void contentChanged();

  /// A random new UUID as text.
  static std::string makeUuid();

  /// Whether the text is a UUID, written as `makeUuid` writes one.
  static bool isUuid(std::string_view text);

 private:
  friend class Scene;

  std::string type_;
  std::string name_;
  std::string uuid_;
  KUuid identifier_;  ///< of the same text
  std::unique_ptr<NodePayload> payload_;
  Scene* scene_ = nullptr;
  std::uint64_t place_ = 0;
};

using SceneNodePtr = std::shared_ptr<SceneNode>;

}  // namespace vesk
