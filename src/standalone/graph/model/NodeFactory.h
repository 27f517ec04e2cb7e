#pragma once

#include <string>
#include <string_view>

#include "standalone/graph/model/CompoundObject.h"

namespace orvlib {

/// Makes the objects of one graph. What it makes is in no level yet.
class ORV_EXPORT NodeFactory {
 public:
  explicit NodeFactory(GraphCore& core) : core_(core) {}

  /// A node of that definition: one that computes, or an instance of a published compound, which is
  /// a reference to it. Null for a published compound that cannot be made, such as one that would
  /// hold itself.
  NodeRef make(ORV_v1::NodeDefinition& definition, std::string name) const;

  /// A node with the ports of the definition, which describes no compound.
  NodeRef makePlain(ORV_v1::NodeDefinition& definition, std::string name) const;

  /// An empty compound without ports.
  NodeRef makeCompound(std::string name) const;

  /// `kind` is Input or Output.
  NodeRef makeIo(NodeKind kind, std::string name) const;

  /// A node that stands in for one of a type that the runtime does not know, or knows otherwise. It
  /// has the ports of the definition, which is that of another time.
  NodeRef makePlaceholder(ORV_v1::NodeDefinition& definition, std::string name) const;

  /// A port that is not the definition's, for a node that computes or stands in.
  PortRef makePort(PortDirection direction, std::string_view name, TypeRef type) const;

  /// A port of a compound, by its outer face; `direction` is that face's.
  PortRef makeCompoundPort(PortDirection direction, std::string_view name, TypeRef type) const;

  /// A member of a fan-in port.
  PortRef makeMember(std::string_view name, TypeRef type) const;

 private:
  NodeRef makeWithPorts(NodeKind kind, ORV_v1::NodeDefinition& definition, std::string name) const;

  GraphCore& core_;
};

}  // namespace orvlib
