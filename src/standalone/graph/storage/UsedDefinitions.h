#pragma once

#include <absl/container/flat_hash_map.h>
#include <absl/container/flat_hash_set.h>

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "standalone/graph/model/CompoundObject.h"

namespace orvlib {

/// Collects what the head of a stored text states: the types and the definitions that its nodes and
/// ports have.
class UsedDefinitions {
 public:
  void addType(GraphCore& core, const TypeRef& type);

  /// The number of the definition of a node that has one: from 1, among those of its type name. It
  /// is more than 1 only when the nodes of a type are from several times.
  std::size_t add(const NodeObject& node);

  /// The head, sorted by name.
  std::string text() const;

 private:
  void addPort(GraphCore& core, std::string& ports, const PortObject& port);
  std::string portsOf(const NodeObject& node);
  std::size_t number(const std::string& name, std::string ports);

  std::map<std::string, const ValueType*, std::less<>> scalarsAndVectors_;
  std::map<std::string, const ValueType*, std::less<>> arrays_;
  absl::flat_hash_set<const ValueType*> knownTypes_;

  /// The lines of the ports of each definition of a type name.
  std::map<std::string, std::vector<std::string>, std::less<>> definitions_;
  absl::flat_hash_map<const NodeDescription*, std::size_t> numbers_;
};

/// The word for a direction.
constexpr std::string_view directionWord(PortDirection direction) {
  return direction == PortDirection::Input ? "in" : "out";
}

}  // namespace orvlib
