#pragma once

#include <vector>

#include "platform/ORV_1_0/AnnotationList.h"
#include "platform/ORV_1_0/Compound.h"
#include "platform/ORV_1_0/NodeList.h"
#include "standalone/graph/model/NodeObject.h"

namespace orvlib {

using NodeListObject = ObjectList<ORV_v1::NodeList, NodeObject>;
using AnnotationListObject = ObjectList<ORV_v1::AnnotationList, AnnotationObject>;

/// What a compound held before it became a reference (published/FormerContent.h).
class FormerContent;

/// What the library knows of a compound, beside its node.
class ORV_EXPORT CompoundObject final : public WithMetadata<ORV_v1::Compound> {
 public:
  explicit CompoundObject(NodeObject& node);
  ~CompoundObject() override;

  /// Null once the node is gone.
  NodeObject* node() const { return node_; }

  const NodeListObject& nodes() const { return nodes_; }
  NodeListObject& nodes() { return nodes_; }
  const AnnotationListObject& annotations() const { return annotations_; }
  AnnotationListObject& annotations() { return annotations_; }

  /// The inner faces.
  const PortListObject& inputs() const { return inputs_; }
  const PortListObject& outputs() const { return outputs_; }
  PortListObject& list(PortDirection outerDirection) {
    return outerDirection == PortDirection::Input ? inputs_ : outputs_;
  }

  /// The qualified name of the published compound that this comes from; empty without one.
  const std::string& origin() const { return origin_; }
  bool isReference() const { return reference_; }

  /// What comes back when it is no longer a reference; null when that is what it holds.
  FormerContent* former() const { return former_.get(); }

  /// How many levels are above. Commands put compounds down to `kDeepest`; nothing puts one below
  /// `kDeepestStored`, to which graphs are read.
  unsigned int depth() const;
  static constexpr unsigned int kDeepest = 1000;
  static constexpr unsigned int kDeepestStored = 5000;

  /// How many levels of compounds are below. Looks through all of them.
  unsigned int countHeight() const;

  /// Whether these are so many at most. Looks through them only when they may be more.
  bool isNoHigherThan(unsigned int levels) const;

  /// Whether the node, with all that is in it, may come into this level, or the nodes of `other`
  /// may, without any compound being deeper than `deepest`. True for what holds no compound.
  bool hasRoomFor(const NodeObject& node, unsigned int deepest = kDeepest) const;
  bool hasRoomForContentOf(const CompoundObject& other) const;

  /// Whether the metadata key "locked" is "true".
  bool isLocked() const;

  /// Whether it, or a level above it, is referenced or locked.
  bool isOpenToEdits() const;

  // Compound, Namable
  const char* getName() const override;
  void appendNodeName(const char*) override {}
  void appendPortName(const char*) override {}
  void setName(const char* name) override;
  ORV_v1::NodeList& getChildNodes() override { return nodes_; }
  ORV_v1::PortList& compoundInputs() override { return inputs_; }
  ORV_v1::PortList& compoundOutputs() override { return outputs_; }
  ORV_v1::AnnotationList& getAnnotations() override { return annotations_; }
  bool isEditable() override { return isOpenToEdits(); }
  bool canResetToFactory() override;
  void resetToFactory() override;
  bool save(const char* file, ORV_v1::String& error) override;
  bool publish(const char* name, const char* library, const char* description, bool replace,
               ORV_v1::String& error) override;
  bool publishGraph(const char* name, const char* library, const char* description,
                    const char* file, ORV_v1::String& error) override;
  ORV_v1::String getSpecializedTypeName() override;
  bool isReferenced() override { return reference_; }
  bool setIsReferenced(bool referenced) override;
  bool isImported() override { return !origin_.empty() && !reference_; }
  bool addStatePorts(const char* inputName, const char* outputName,
                     const ORV_v1::AddRefWrapper<ORV_v1::PortDataType>& type) override;
  bool removePort(const ORV_v1::AddRefWrapper<ORV_v1::Port>& port) override;

 private:
  friend class Mutator;
  friend class NodeFactory;
  friend class NodeObject;
  ORV_v1::Container* clientContainer() const override;
  ORV_v1::ReferenceCounted* clientObject() override { return this; }
  /// A child of that height has come into the level.
  void raiseHeight(unsigned int childHeight);

  bool becomeReference();
  bool becomeLocal();

  struct StatePorts {
    PortRef input;
    PortRef output;
  };
  StatePorts takeFormerStatePorts(const std::string& inputName, const TypeRef& type);

  NodeObject* node_;
  EmbeddedList<NodeListObject> nodes_;
  EmbeddedList<AnnotationListObject> annotations_;
  EmbeddedList<PortListObject> inputs_;
  EmbeddedList<PortListObject> outputs_;
  std::string origin_;
  bool reference_ = false;

  /// At least as many levels of compounds as there are below. It is raised by what comes in and
  /// stays when something goes; only a count lowers it.
  mutable unsigned int heightBound_ = 0;

  /// Null unless it had content of its own before it became a reference.
  std::unique_ptr<FormerContent> former_;

  /// What `removePort` took away, the latest last. `addStatePorts` brings back the same objects
  /// when it is asked for the latest again: what was done to them since may be done again as well.
  std::vector<StatePorts> formerStatePorts_;
};

}  // namespace orvlib
