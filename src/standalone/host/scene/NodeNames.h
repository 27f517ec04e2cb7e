#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "standalone/host/language/StringHash.h"
#include "standalone/host/scene/SceneNode.h"

namespace vesk {

/// `[A-Za-z_][A-Za-z0-9_]*`
bool isNodeName(std::string_view text);

/// The text as a node name: every other character becomes "_", and "_" comes ahead of a digit at
/// the beginning. Empty text stays empty.
std::string cleanNodeName(std::string_view text);

/// The names in use, and which number is free.
class NodeNames {
 public:
  /// Null for a name that is not in use.
  SceneNodePtr find(std::string_view name) const;

  /// False when the name is taken.
  bool add(const SceneNodePtr& node);
  void remove(std::string_view name);

  /// `name`, or `name` with the smallest number from 1 that makes it free.
  std::string freeName(std::string_view name);

 private:
  StringMap<SceneNodePtr> nodes_;

  /// By base: every number from 1 up to this one is taken. Spares counting from 1 each time.
  StringMap<std::uint64_t> takenBelow_;
};

}  // namespace vesk
