#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "standalone/host/language/StringHash.h"
#include "standalone/host/scene/NodePayload.h"

namespace vesk {

/// A kind of node that the scene can make.
struct NodeType {
  std::string name;     ///< an identifier
  std::string summary;  ///< one sentence

  /// Makes the data of a new node. Absent for a type without data.
  std::function<std::unique_ptr<NodePayload>()> makePayload = {};
};

/// The node types that exist. New ones are registered from outside; the host itself has `group` and
/// `locator`, which carry no data.
class NodeTypes {
 public:
  NodeTypes();

  /// False when the name is taken or no identifier.
  bool add(NodeType type);

  /// Null for an unknown name; else valid while this object lives.
  const NodeType* find(std::string_view name) const;

  /// All names, sorted.
  std::vector<std::string> names() const;

 private:
  StringMap<NodeType> types_;
};

}  // namespace vesk
