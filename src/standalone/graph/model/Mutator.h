#pragma once

#include <string>

#include "standalone/graph/model/ContainerObject.h"
#include "standalone/graph/model/NodeFactory.h"
#include "standalone/graph/model/WatchPointObject.h"

namespace orvlib {

/// The raw changes that the primitive edits are made of, and the reading of files; nothing else
/// calls them. They check nothing. Each tells the graph what it touched, when the object is in it.
class ORV_EXPORT Mutator {
 public:
  // Levels. An index past the end counts as the end; a removal gives the index that was.
  static void insertNode(CompoundObject& level, NodeObject& node, unsigned int index);
  static unsigned int removeNode(NodeObject& node);
  static void renameNode(NodeObject& node, std::string name);

  static void insertAnnotation(CompoundObject& level, AnnotationObject& annotation,
                               unsigned int index);
  static unsigned int removeAnnotation(AnnotationObject& annotation);
  static void renameAnnotation(AnnotationObject& annotation, std::string name);

  // Ports: top-level ones, and members of a fan-in port. A compound's port goes by its outer face.
  static void insertPort(NodeObject& node, PortObject& port, unsigned int index);
  static unsigned int removePort(PortObject& port);
  static void insertMember(PortObject& fanIn, PortObject& member, unsigned int index);
  static unsigned int removeMember(PortObject& member);
  static unsigned int movePort(PortObject& port, unsigned int index);
  static void renamePort(PortObject& port, std::string name);

  /// Takes type, value and children in exchange for the port's: both faces' children for a
  /// compound's port. Children that are put away belong to no port.
  struct TypedPart {
    TypeRef type;
    std::unique_ptr<const Value> value;
    PortListRef children;
    PortListRef innerChildren;
  };
  static void exchangeType(PortObject& port, TypedPart& part);

  /// Exchanges the value that was set; null is the default.
  static void exchangeValue(PortObject& port, std::unique_ptr<const Value>& value);
  static void setFlags(PortObject& port, std::uint32_t flags);

  /// Shows a compound's port on an input/output node, or on none. Gives the index that it had on
  /// the former node.
  static unsigned int setIoNode(PortObject& port, NodeObject* ioNode, unsigned int index);

  /// Pairs two ports of a compound as state ports, or parts them again.
  static void pairState(PortObject& input, PortObject& output);
  static void partState(PortObject& port);

  /// What the input of a pair of state ports gives from now on; null is what arrives, as at the
  /// first step.
  static void setHeldState(PortObject& input, std::unique_ptr<const Value> value);

  // Connections, `source` giving and `target` taking values.
  struct WireIndices {
    unsigned int atSource;
    unsigned int atTarget;
  };
  static void connect(PortObject& source, PortObject& target, WireIndices indices);
  static WireIndices disconnect(PortObject& source, PortObject& target);

  // Metadata: exchanges the whole set.
  static void exchangeMetadata(NodeObject& node, Properties& set);
  static void exchangeMetadata(CompoundObject& compound, Properties& set);
  static void exchangeMetadata(AnnotationObject& annotation, Properties& set);
  static void exchangeMetadata(PortObject& port, Properties& set);
  static void exchangeMetadata(WatchPointObject& watchPoint, Properties& set);

  // The rest.
  static void setState(NodeObject& node, NodeState state, bool on);
  static void setOrigin(CompoundObject& compound, std::string origin, bool reference);

  /// Exchanges the port's watch point; null is none.
  static void exchangeWatchPoint(PortObject& port, WatchPointRef& watchPoint);
  static void setUp(WatchPointObject& watchPoint, const WatchPointSetup& setup);

  /// Adds a line to what is stored of the inner face that a placeholder's port has not.
  static void addInnerLine(PortObject& port, std::string line);

 private:
  static void touch(NodeObject* node, unsigned char bits);
  static void becomeDirty(PortObject& port);

  /// The port came, went, moved or changed its type.
  static void portChanges(GraphVertex& vertex, const PortObject& port);
  static void outputsChange(NodeObject& node);
  static void forgetState(PortObject& port);

  // The watch points of a port and of those below it.
  static void watchesLeave(GraphVertex& vertex, PortObject& port);
  static void watchesEnter(GraphVertex& vertex, PortObject& port);
  static void startWatch(GraphVertex& vertex, PortObject& port);

  /// A watch point that is enabled now records at the next occasion.
  static void noteWatch(WatchPointObject& watchPoint);
  static void exchangeChildren(PortObject& face, PortListRef& children);
  static PortListObject& ioList(NodeObject& ioNode);
};

}  // namespace orvlib
