#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ORV_1_0/NodeDefinition.h"
#include "standalone/graph/model/GraphCore.h"
#include "standalone/graph/model/NodeObject.h"
#include "standalone/graph/storage/LineWords.h"

namespace orvlib {

/// A definition as a stored text states it, and as the runtime has it now.
struct StatedDefinition {
  NodeObject::DefinitionRef stated;

  /// Null when the runtime knows no definition of that name.
  NodeObject::DefinitionRef current;

  /// Notes which of the stated ports a new node of the current definition has not, or has
  /// otherwise. Further calls do nothing.
  void compareWith(const NodeObject& node);
  bool hasLostPorts() const { return !lost_.empty(); }
  bool hasLost(std::string_view port) const;

 private:
  std::vector<std::string_view> lost_;
  bool compared_ = false;
};

/// Reads the head of a stored text: the types and definitions that it uses.
class StatedDefinitions {
 public:
  explicit StatedDefinitions(GraphCore& core) : core_(core) {}

  /// Reads from the line after the current one up to the first that is of no head, which is then
  /// the current one. Else the reason, of the current line.
  std::string read(LineWords& lines);

  /// `number` counts the definitions of one name from 1. Null for one that is not stated.
  StatedDefinition* find(std::string_view name, std::size_t number);

  /// Null for a type that is not stated.
  TypeRef findType(std::string_view name) const;

 private:
  std::string readType(const std::vector<std::string_view>& words);
  std::string readUnknownType(const std::vector<std::string_view>& words);
  std::string readDefinition(const std::vector<std::string_view>& words);
  std::string readPort(const std::vector<std::string_view>& words);
  void finishDefinition();

  GraphCore& core_;
  std::map<std::string, TypeRef, std::less<>> types_;
  std::map<std::string, std::vector<StatedDefinition>, std::less<>> definitions_;

  /// The one whose ports come; null when there is none.
  std::shared_ptr<NodeDescription> open_;
};

}  // namespace orvlib
