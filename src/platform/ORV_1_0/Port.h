#pragma once

#include "platform/ORV_1_0/AddRefWrapper.h"
#include "platform/ORV_1_0/Flaggable.h"
#include "platform/ORV_1_0/GraphEnums.h"
#include "platform/ORV_1_0/Namable.h"
#include "platform/ORV_1_0/PortDataType.h"
#include "platform/ORV_1_0/ReferenceCounted.h"
#include "platform/ORV_1_0/String.h"
#include "platform/ORV_1_0/StringArray.h"

namespace ORV_v1 {

class Compound;
class Node;
class PortList;
class WatchPoint;

/// One port of a node. A compound's port has two faces, each a `Port`: the outer one on the
/// compound's node, and the inner one that the nodes inside connect to. Its `Namable` part gives
/// the port's own name, its `Flaggable` part the flag word (`PortFlags`).
class ORV_EXPORT Port : public ReferenceCounted, public Namable, public Flaggable<PortFlags> {
 public:
  /// The node that has the port; for an inner face, the compound's node. Null for a port whose node
  /// is gone.
  AddRefWrapper<Node> getParentNode();

  /// For an inner face the compound whose port it is; else null.
  AddRefWrapper<Compound> getParentCompound();

  /// The port above a child port; null for a top-level port.
  Port* getParentPort() const;

  /// For an inner face, the reverse of its outer face's.
  PortIOType getPortIOType();

  /// The path below the node: "color.r" for a child port, the name for a top-level port.
  Namable getFullName();

  /// The path from the top of the container: "/group/add1.color.r". Both faces have the same.
  Namable getFullPathName();

  /// Never null: a type that the runtime does not know is stood in for by one of its name.
  AddRefWrapper<PortDataType> getDataType();

  /// The members of a fan-in port, or the components of a value that has any; a null handle for a
  /// port that has neither.
  AddRefWrapper<PortList>& children();

  /// The far ends of this port's own connections, in the order in which they were made. Those of
  /// its children are not among them.
  PortList& connectedTo() const;
  bool isConnected() const;

  bool isFanIn() const;

  /// Whether this is a member of a fan-in port.
  bool isMemberFanIn() const;

  /// Whether this is the inner face of a compound's port.
  bool isCompoundInternalPort() const;

  /// Replaces `values` by the value texts that the port has while nothing is connected, one a
  /// component. False, and `values` unchanged, for an output that computes its value and for a
  /// member of a fan-in port.
  bool getPortDefaultValues(StringArray& values) const;

  /// The values of a key, as list text when there are several; empty when the port lacks the key.
  String getPortMetaDataValue(const char* key);

  /// Connects the two ports, in whichever order they fit, and keeps no record for undo. `replace`
  /// lets it displace what is connected to the input. False, and nothing changed, when the ports
  /// cannot be connected.
  bool addConnection(AddRefWrapper<Port> other, bool replace);

  /// A null handle when the port has none.
  const AddRefWrapper<WatchPoint>& getWatchPoint() const;

  /// Reads a list of values as text. With a type the texts must be a value of it; a null type takes
  /// any list of strings. False, and `values` unchanged, for text that cannot be read.
  static bool unserializePortValuesString(const char* text, StringArray& values,
                                          const AddRefWrapper<PortDataType>& type);

 protected:
  Port();
  ~Port() override;
};

}  // namespace ORV_v1
