#pragma once

#include <absl/container/flat_hash_map.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "standalone/graph/model/NodeObject.h"

namespace orvlib {

/// A port that a request is about: one that is there when the request is recorded, or one that a
/// request before it makes.
struct PlannedPort {
  static constexpr std::size_t kNone = ~std::size_t{0};

  PortRef port = {};
  std::size_t made = kNone;  ///< the number of the request that makes it
  std::string below = {};    ///< the path of a child below that port
};

/// The ports as they will be when the requests recorded so far have been carried out. While these
/// make, rename, remove and retype none, it is empty and costs nothing.
class PortPlan {
 public:
  /// What will be known of a port.
  struct View {
    PlannedPort target;
    TypeRef type;
    PortDirection direction = PortDirection::Input;
    std::uint32_t flags = 0;
    bool fixed = false;     ///< the definition's, or a component
    bool member = false;    ///< of a fan-in port
    bool settable = false;  ///< takes values

    bool isFanInPort() const;
  };

  /// Whether there will be such a port; `view` says which.
  bool find(NodeObject& node, std::string_view path, View& view) const;

  /// The name that a port gets which asks for `wanted`; `above` is the path of a fan-in port, with
  /// a dot at its end, or empty.
  std::string uniqueName(NodeObject& node, const std::string& above, std::string_view wanted);

  // What requests change. A path is that of a top-level port or of a member.
  void make(NodeObject& node, const std::string& path, View view);
  void rename(NodeObject& node, const std::string& path, const std::string& newPath);
  void remove(NodeObject& node, const std::string& path);
  void retype(NodeObject& node, const std::string& path, TypeRef type);

 private:
  using Key = std::pair<const NodeObject*, std::string>;

  bool findTop(NodeObject& node, const std::string& path, View& view) const;
  bool findBelow(NodeObject& node, std::string_view path, View& view) const;
  bool descend(NodeObject& node, std::string_view top, std::string_view name, View& view) const;

  struct Changes {
    /// Null for what is gone.
    absl::flat_hash_map<Key, std::unique_ptr<View>> ports;

    /// For a base that clashed: all lower numbers are taken. Forgotten when a name becomes free.
    absl::flat_hash_map<Key, std::uint64_t> nextNumbers;
  };
  Changes& changes();

  std::unique_ptr<Changes> changes_;  ///< Null while nothing is planned.
};

}  // namespace orvlib
