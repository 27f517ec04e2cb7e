#pragma once

#include <span>
#include <vector>

#include "platform/ORV_1_0/OrvApi.h"
#include "standalone/graph/model/Handles.h"

namespace orvlib {

/// What changed of one node or level; several bits may be set.
enum ChangeBits : unsigned char {
  kValueChange = 1,      ///< a value, a flag of a port, a state flag
  kPortChange = 2,       ///< ports came, went, moved, or changed their name or type
  kWireChange = 4,       ///< connections
  kMetadataChange = 8,   ///< metadata of the node, its compound, its ports or its watch points
  kContentChange = 16,   ///< nodes or annotations of its level
  kIdentityChange = 32,  ///< its name, or what it comes from
  kWatchChange = 64,     ///< watch points of its ports
  kPlaceChange = 128,    ///< it came into a level or left one
};

/// One node and what changed of it. For a change of a level, the node of the compound.
struct NodeChange {
  NodeRef node;
  unsigned char bits;
};

/// Is told of a graph's changes: once for all that happened in one outermost change bracket.
class ORV_EXPORT ChangeListener {
 public:
  virtual ~ChangeListener();

  /// Each node stands there once, in the order of its first change; also nodes that are no longer
  /// in the graph. What a listener changes in its turn is told afterwards.
  virtual void graphChanged(ContainerObject& container, std::span<const NodeChange> changes) = 0;

  /// The graph goes: it is taken away, or about to end, when nodes of it that are still held are in
  /// no graph. A listener may remove itself or others here.
  virtual void graphGoes(ContainerObject& container);
};

}  // namespace orvlib
