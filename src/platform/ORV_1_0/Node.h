#pragma once

#include "platform/ORV_1_0/AddRefWrapper.h"
#include "platform/ORV_1_0/ChangeBracketClient.h"
#include "platform/ORV_1_0/Metadata.h"
#include "platform/ORV_1_0/Namable.h"
#include "platform/ORV_1_0/NodeStateFlags.h"
#include "platform/ORV_1_0/ReferenceCounted.h"
#include "platform/ORV_1_0/String.h"

namespace ORV_v1 {

class Compound;
class Container;
class PortList;

/// One node of a graph, which may be a compound's node. Its `Namable` part gives the node's own
/// name, and setting it there renames the node: the node may get another name than the one asked
/// for, and keeps its name when it cannot be renamed.
class ORV_EXPORT Node : public ReferenceCounted,
                        public Namable,
                        public Metadata,
                        public ChangeBracketClient {
 public:
  /// Null when the container is gone, and for a node that is not in a graph.
  Container* getContainer() const;

  /// The level that holds the node; null for the top node and for a node that is not in a graph.
  AddRefWrapper<Compound> getParentCompound();

  /// The ports; for a compound's node, the outer faces.
  PortList& inputs();
  PortList& outputs();

  virtual bool isCompound() = 0;

  /// A null handle when the node is not a compound's.
  virtual AddRefWrapper<Compound> asCompound() = 0;

  /// "/" for the top node, "/group/add1" for a node below it. The name alone for a node that is not
  /// in a graph.
  virtual Namable getFullPathName() = 0;

  /// The qualified name of the node's definition, such as "core::math::add"; "compound", "input"
  /// and "output" for those kinds of nodes.
  virtual String getTypeName() = 0;

  virtual NodeStateFlags& getStateFlags() = 0;

  /// Tells the node that the flag at `index` has been updated, so that it takes effect.
  virtual void stateFlagChanged(unsigned int index) = 0;

 protected:
  Node();
  ~Node() override;
};

}  // namespace ORV_v1
