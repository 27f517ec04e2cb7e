#include "standalone/host/scene/NodeTypes.h"

#include <algorithm>

#include "standalone/host/scene/NodeNames.h"

namespace vesk {

NodeTypes::NodeTypes() {
  add({"group", "Stands for other nodes under one name."});
  add({"locator", "Marks a place."});
}

bool NodeTypes::add(NodeType type) {
  if (!isNodeName(type.name)) return false;
  std::string name = type.name;
  return types_.try_emplace(std::move(name), std::move(type)).second;
}

const NodeType* NodeTypes::find(std::string_view name) const {
  const auto found = types_.find(name);
  return found == types_.end() ? nullptr : &found->second;
}

std::vector<std::string> NodeTypes::names() const {
  std::vector<std::string> names;
  for (const auto& [name, type] : types_) names.push_back(name);
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace vesk
