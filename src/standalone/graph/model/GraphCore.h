#pragma once

#include <absl/container/flat_hash_map.h>
#include <absl/container/flat_hash_set.h>

#include <array>
#include <vector>

#include "platform/ORV_1_0/NodeDefinition.h"
#include "platform/ORV_1_0/ReferenceCounted.h"
#include "standalone/graph/model/Changes.h"
#include "standalone/graph/model/PortObject.h"
#include "standalone/graph/model/TopologicalOrder.h"
#include "standalone/graph/model/UndoOrder.h"
#include "standalone/graph/model/WatchRegistry.h"
#include "standalone/graph/model/WireArcs.h"

namespace orvlib {

class LoadedRuntime;

/// What the objects of one graph share. It lives as long as the last of them, also of those that an
/// undo step keeps after their graph is gone.
class ORV_EXPORT GraphCore final : public ORV_v1::ReferenceCounted {
 public:
  struct KnownDefinition {
    ORV_v1::AddRefWrapper<ORV_v1::NodeDefinition> definition;  ///< keeps the key from reuse
    std::vector<TypeRef> portTypes;
  };

  GraphCore(ContainerObject& container, std::string runtime);

  /// Null once the graph is gone.
  ContainerObject* container() const { return container_; }

  /// The name of the runtime that types and definitions come from.
  const std::string& runtime() const { return vocabulary_.runtime; }

  /// Null for an unknown name.
  TypeRef findType(std::string_view name) const;
  ORV_v1::AddRefWrapper<ORV_v1::NodeDefinition> findDefinition(std::string_view name) const;

  /// The type of that name, or one that stands in for it: one that `keepType` was given, else any
  /// number of texts.
  TypeRef typeOrStandIn(std::string_view name);

  /// Lets the type stand in for the unknown one of its name. The first of a name stays.
  void keepType(const std::shared_ptr<const ValueType>& type);

  /// The runtime's name, and what has been learnt of its types. Objects that were made before an
  /// exchange keep the types that they have.
  struct Vocabulary {
    std::string runtime;
    absl::flat_hash_map<const ORV_v1::NodeDefinition*, KnownDefinition> known = {};
    NameMap<TypeRef> standIns = {};
    std::array<TypeRef, 4> scalarTypes = {};
  };
  void exchangeVocabulary(Vocabulary& other) { std::swap(vocabulary_, other); }

  /// The scalar type that a component of a value of `type` has; null when values of `type` have no
  /// named components.
  TypeRef componentType(const ValueType& type);

  /// The type of an array's elements; null for any other type.
  TypeRef elementType(const ValueType& type) const;

  /// The types of a definition's ports, in their order.
  const std::vector<TypeRef>& portTypes(ORV_v1::NodeDefinition& definition);

  TopologicalOrder& order() { return order_; }

  /// Whether `target` may take values from `source`; makes the order of computing fit when it may.
  bool orderWire(GraphVertex& source, GraphVertex& target);

  WatchRegistry& watches() { return watches_; }
  UndoOrder& undoOrder() { return undoOrder_; }

  /// The inputs of all pairs of state ports, by their outer faces.
  absl::flat_hash_set<PortObject*>& stateInputs() { return stateInputs_; }

  /// The node is about to go.
  void forget(NodeObject& node);

 private:
  friend class ContainerObject;

  const LoadedRuntime* loadedRuntime() const;
  TypeRef findScalarType(ScalarKind scalar) const;
  TypeRef findStandIn(std::string_view name) const;
  TypeRef findScalarStandIn(ScalarKind scalar) const;

  ContainerObject* container_;
  Vocabulary vocabulary_;
  WireArcs arcs_;
  TopologicalOrder order_{arcs_};
  WatchRegistry watches_;
  UndoOrder undoOrder_;
  absl::flat_hash_set<PortObject*> stateInputs_;
};

}  // namespace orvlib
