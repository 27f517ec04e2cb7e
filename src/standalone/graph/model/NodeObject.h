#pragma once

#include "platform/ORV_1_0/Node.h"
#include "platform/ORV_1_0/NodeDefinition.h"
#include "standalone/graph/model/PortObject.h"
#include "standalone/graph/model/WithMetadata.h"

namespace orvlib {

class NodeCache;

enum class NodeKind : unsigned char {
  Plain,        ///< computes what its definition says
  Compound,     ///< has a level of its own
  Input,        ///< shows inputs of the compound that it is in
  Output,       ///< shows outputs of the compound that it is in
  Placeholder,  ///< of a type that the runtime does not know
};

/// A node's states. The order is that of its state flags.
enum class NodeState : unsigned char { Enabled, Frozen, Bypassed };

/// What the library knows of a node.
class ORV_EXPORT NodeObject final : public WithMetadata<ORV_v1::Node>, public GraphVertex {
 public:
  using DefinitionRef = ORV_v1::AddRefWrapper<ORV_v1::NodeDefinition>;

  /// Nodes are made by `NodeFactory`, in no graph yet.
  NodeObject(GraphCore& core, NodeKind kind, std::string name);
  ~NodeObject() override;

  /// Of the graph that the node was made for, whether or not it is in it now.
  GraphCore& core() const { return *core_; }

  NodeKind nodeKind() const { return nodeKind_; }
  const std::string& name() const { return name_; }

  /// Null for the top node and for a node that is not in a level.
  CompoundObject* parent() const { return parent_; }

  /// Null when it has no level of its own.
  CompoundObject* compound() const { return compound_.get(); }

  /// Null when it or a level above it is not in a graph.
  ContainerObject* container() const;

  /// Null but for a plain node and a placeholder.
  const NodeDescription* description() const { return description_; }

  /// The text of `getTypeName`.
  std::string typeName() const;

  /// "/" for the top, the name alone for what is in no graph.
  std::string fullPath() const;

  PortListObject& inputList() { return inputs_; }
  PortListObject& outputList() { return outputs_; }
  const PortListObject& inputList() const { return inputs_; }
  const PortListObject& outputList() const { return outputs_; }
  PortListObject& list(PortDirection direction) {
    return direction == PortDirection::Input ? inputs_ : outputs_;
  }

  /// Whether it computes with its ports. A compound's ports compute by themselves, and an
  /// input/output node only shows such ports.
  bool hasOwnPorts() const {
    return nodeKind_ == NodeKind::Plain || nodeKind_ == NodeKind::Placeholder;
  }

  /// The top-level port of that name, of either direction; null when there is none. For a
  /// compound's node, the outer face.
  PortObject* port(std::string_view name) const;

  /// The port of that path below the node, such as "color.r".
  PortObject* portAt(std::string_view fullName) const;

  /// A name that no port has: `wanted`, or with the smallest free number.
  std::string uniquePortName(std::string_view wanted);

  bool is(NodeState state) const { return (states_ & bit(state)) != 0; }

  /// What has been computed; null before the first time.
  NodeCache* cache() const { return cache_.get(); }

  // Node, Namable
  const char* getName() const override { return name_.c_str(); }
  void appendNodeName(const char*) override {}
  void appendPortName(const char*) override {}
  void setName(const char* name) override;
  bool isCompound() override { return nodeKind_ == NodeKind::Compound; }
  ORV_v1::AddRefWrapper<ORV_v1::Compound> asCompound() override;
  ORV_v1::Namable getFullPathName() override;
  ORV_v1::String getTypeName() override;
  ORV_v1::NodeStateFlags& getStateFlags() override;
  void stateFlagChanged(unsigned int index) override;

 private:
  friend class Evaluator;
  friend class Mutator;
  friend class CompoundObject;
  friend class ContainerObject;
  friend class NodeFactory;
  friend class ORV_v1::Node;
  struct Extras;

  static unsigned char bit(NodeState state) {
    return static_cast<unsigned char>(1u << static_cast<unsigned int>(state));
  }
  ORV_v1::Container* clientContainer() const override;
  ORV_v1::ReferenceCounted* clientObject() override { return this; }
  Extras& extras();

  /// The names of all ports; made for a node of many ports, and kept true from then on.
  NameTable<PortObject>& portNames();
  NameTable<PortObject>* madePortNames() const;

  // In large graphs edits wait for memory: what connecting and setting values need stands together.
  NodeKind nodeKind_;
  unsigned char states_;
  unsigned char changes_ = 0;
  CoreRef core_;
  CompoundObject* parent_ = nullptr;
  std::unique_ptr<Extras> extras_;
  EmbeddedList<PortListObject> inputs_;
  EmbeddedList<PortListObject> outputs_;
  std::unique_ptr<NodeCache> cache_;
  CompoundRef compound_;
  std::string name_;
  DefinitionRef definition_;
  const NodeDescription* description_ = nullptr;
};

}  // namespace orvlib
