#include "standalone/host/scene/NodePatterns.h"

#include <algorithm>
#include <unordered_set>

#include "standalone/host/scene/Scene.h"

namespace vesk {
namespace {

bool isPlainName(std::string_view pattern) { return pattern.find_first_of("*?") == pattern.npos; }

}  // namespace

bool fitsPattern(std::string_view name, std::string_view pattern) {
  std::size_t at = 0;
  std::size_t in = 0;
  std::size_t star = pattern.npos;  // the last "*", and where what it stands for ends
  std::size_t starEnd = 0;
  while (at < name.size()) {
    if (in < pattern.size() && pattern[in] == '*') {
      star = in++;
      starEnd = at;
    } else if (in < pattern.size() && (pattern[in] == '?' || pattern[in] == name[at])) {
      ++in;
      ++at;
    } else if (star != pattern.npos) {
      in = star + 1;
      at = ++starEnd;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of('*', in) == pattern.npos;
}

bool fitsAny(std::string_view name, const NamePatterns& patterns) {
  return std::any_of(patterns.begin(), patterns.end(),
                     [name](const std::string& pattern) { return fitsPattern(name, pattern); });
}

std::vector<SceneNodePtr> findNodes(const Scene& scene, const NamePatterns& patterns,
                                    std::optional<std::string>& missing) {
  std::vector<SceneNodePtr> nodes;
  std::unordered_set<const SceneNode*> known;
  for (const std::string& pattern : patterns) {
    const std::vector<SceneNodePtr> found = findNodesInOrder(scene, {pattern});
    if (found.empty() && !missing) missing = pattern;
    for (const SceneNodePtr& node : found) {
      if (known.insert(node.get()).second) nodes.push_back(node);
    }
  }
  return nodes;
}

std::vector<SceneNodePtr> findNodesInOrder(const Scene& scene, const NamePatterns& names) {
  std::vector<SceneNodePtr> nodes;
  NamePatterns patterns;
  for (const std::string& name : names) {
    if (!isPlainName(name)) {
      patterns.push_back(name);
    } else if (SceneNodePtr node = scene.find(name)) {
      nodes.push_back(std::move(node));
    }
  }
  if (!patterns.empty()) {
    for (const auto& [place, node] : scene.nodes()) {
      if (fitsAny(node->name(), patterns)) nodes.push_back(node);
    }
  }
  std::ranges::sort(nodes, {}, [](const SceneNodePtr& node) { return node->place(); });
  nodes.erase(std::unique(nodes.begin(), nodes.end()), nodes.end());
  return nodes;
}

}  // namespace vesk
