#pragma once

#include <memory>
#include <string>
#include <variant>

#include "standalone/graph/model/AnnotationObject.h"
#include "standalone/graph/model/Mutator.h"
#include "standalone/graph/model/WatchPointObject.h"

namespace orvlib {

// The primitive edits: every change of a graph is made of these. Each knows how to be applied and
// how to be taken back, any number of times in turn, and holds no more than it needs for that. An
// edit that does not fit the graph as it is now says false and changes nothing.

/// A node in its place in a level. Taking it out needs all its connections to be gone.
struct NodePlace {
  CompoundRef level;
  NodeRef node;
  unsigned int index;

  bool put();
  bool take();
};
struct InsertNode : NodePlace {
  bool apply() { return put(); }
  bool revert() { return take(); }
};
struct RemoveNode : NodePlace {
  bool apply() { return take(); }
  bool revert() { return put(); }
};

/// Takes a node to another level, with its connections.
struct MoveNode {
  NodeRef node;
  CompoundRef level;
  unsigned int index;
  std::string name;

  bool apply();
  bool revert() { return apply(); }
};

struct RenameNode {
  NodeRef node;
  std::string name;

  bool apply();
  bool revert() { return apply(); }
};

struct AnnotationPlace {
  CompoundRef level;
  AnnotationRef annotation;
  unsigned int index;

  bool put();
  bool take();
};
struct InsertAnnotation : AnnotationPlace {
  bool apply() { return put(); }
  bool revert() { return take(); }
};
struct RemoveAnnotation : AnnotationPlace {
  bool apply() { return take(); }
  bool revert() { return put(); }
};

struct RenameAnnotation {
  AnnotationRef annotation;
  std::string name;

  bool apply();
  bool revert() { return apply(); }
};

/// A top-level port in its place, a compound's port with both faces; or a member of the fan-in port
/// `above`. Taking it out needs all its connections to be gone.
struct PortPlace {
  NodeRef node;
  PortRef port;
  unsigned int index;
  PortRef above = {};

  bool put();
  bool take();
};
/// A fan-in port that is connected as a whole takes no new member. One that it had before comes
/// back all the same.
struct InsertPort : PortPlace {
  bool apply();
  bool revert() { return take(); }
};
struct RemovePort : PortPlace {
  bool apply() { return take(); }
  bool revert() { return put(); }
};

struct RenamePort {
  PortRef port;
  std::string name;

  bool apply();
  bool revert() { return apply(); }
};

/// Within its list.
struct MovePort {
  PortRef port;
  unsigned int index;

  bool apply();
  bool revert() { return apply(); }
};

/// Needs the connections of its children to be gone. The value, null for the default, is one of the
/// type: it changes with it, so that going back never leaves a value of another type.
struct ORV_EXPORT SetPortType {
  SetPortType(PortRef typed, TypeRef type, std::unique_ptr<const Value> value);
  SetPortType(SetPortType&&) = default;
  SetPortType& operator=(SetPortType&&) = default;
  ~SetPortType();

  PortRef port;
  Mutator::TypedPart part;

  bool apply();
  bool revert() { return apply(); }
};

/// A null value is the default.
struct SetPortValue {
  PortRef port;
  std::unique_ptr<const Value> value;

  bool apply();
  bool revert() { return apply(); }
};

/// The fan-in bit changes only while the port has no connections and no members.
struct SetPortFlags {
  PortRef port;
  std::uint32_t flags;

  bool apply();
  bool revert() { return apply(); }
};

/// Shows a compound's port on an input/output node, or on none.
struct SetIoNode {
  PortRef port;
  NodeRef ioNode;
  unsigned int index;

  bool apply();
  bool revert() { return apply(); }
};

struct PairState {
  PortRef input;
  PortRef output;

  bool apply();
  bool revert();
};
struct PartState {
  PortRef input;
  PortRef output;

  bool apply();
  bool revert();
};

/// A connection in its places among those of its ports.
struct Wire {
  PortRef source;
  PortRef target;
  Mutator::WireIndices indices = {~0u, ~0u};

  bool put();
  bool take();
};
struct Connect : Wire {
  bool apply() { return put(); }
  bool revert() { return take(); }
};
struct Disconnect : Wire {
  bool apply() { return take(); }
  bool revert() { return put(); }
};

/// Exchanges all metadata of one object.
struct SetMetadata {
  using Owner = std::variant<NodeRef, CompoundRef, AnnotationRef, PortRef, WatchPointRef>;
  Owner owner;
  Properties set;

  bool apply();
  bool revert() { return apply(); }
};

struct SetState {
  NodeRef node;
  NodeState state;
  bool on;

  bool apply();
  bool revert() { return apply(); }
};

/// Where the content of a compound comes from.
struct SetOrigin {
  CompoundRef compound;
  std::string origin;
  bool reference;

  bool apply();
  bool revert() { return apply(); }
};

/// A null watch point is none.
struct SetWatchPoint {
  PortRef port;
  WatchPointRef watchPoint;

  bool apply();
  bool revert() { return apply(); }
};

struct SetUpWatchPoint {
  WatchPointRef watchPoint;
  WatchPointSetup setup;

  bool apply();
  bool revert() { return apply(); }
};

using Edit =
    std::variant<InsertNode, RemoveNode, MoveNode, RenameNode, InsertAnnotation, RemoveAnnotation,
                 RenameAnnotation, InsertPort, RemovePort, RenamePort, MovePort, SetPortType,
                 SetPortValue, SetPortFlags, SetIoNode, PairState, PartState, Connect, Disconnect,
                 SetMetadata, SetState, SetOrigin, SetWatchPoint, SetUpWatchPoint>;

}  // namespace orvlib
