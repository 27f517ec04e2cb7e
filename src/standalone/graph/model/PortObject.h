#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ORV_1_0/PortList.h"
#include "standalone/graph/library/NodeDescription.h"
#include "standalone/graph/model/GraphVertex.h"
#include "standalone/graph/model/Handles.h"
#include "standalone/graph/model/ObjectList.h"
#include "standalone/graph/texts/Properties.h"

namespace orvlib {

using PortListObject = ObjectList<ORV_v1::PortList, PortObject>;
using PortListRef = ORV_v1::AddRefWrapper<ORV_v1::PortList>;
using TypeRef = ORV_v1::AddRefWrapper<ORV_v1::PortDataType>;

enum class PortKind : unsigned char {
  Plain,      ///< of a node that computes
  Outer,      ///< the face of a compound's port on the compound's node
  Inner,      ///< the face of a compound's port towards its inside
  Component,  ///< a component of the value of the port above
  Member      ///< a member of a fan-in port
};

/// The far ends of a port's connections, in the order in which they were made.
class PeerList {
 public:
  unsigned int count() const { return items_.size(); }

  /// Null past the end.
  PortObject* at(unsigned int index) const { return index < count() ? items_.at(index) : nullptr; }

  unsigned int indexOf(const PortObject* peer) const { return items_.indexOf(peer); }
  bool contains(const PortObject* peer) const { return items_.contains(peer); }
  const OrderedList<PortObject>& items() const { return items_; }

 private:
  friend class PortObject;
  OrderedList<PortObject> items_;
};

/// What the library knows of a port. What both faces of a compound's port share, such as the name,
/// the value and the metadata, is kept by the outer face.
class ORV_EXPORT PortObject final : public ORV_v1::Port {
 public:
  using Name = std::shared_ptr<const std::string>;

  /// Ports are made by `NodeFactory`, and components by the port above.
  PortObject(PortKind kind, PortDirection direction, Name portName, TypeRef type);

  ~PortObject() override;

  PortKind kind() const { return kind_; }
  PortDirection direction() const { return direction_; }
  bool isInput() const { return direction_ == PortDirection::Input; }

  /// Null once the node is gone.
  NodeObject* node() const { return root().node_; }

  /// The port above; null for a top-level port.
  PortObject* above() const { return above_; }
  const PortObject& root() const { return above_ ? above_->root() : *this; }
  PortObject& root() { return above_ ? above_->root() : *this; }

  /// The other face of a compound's port; null for other ports, and when it is gone.
  PortObject* twin() const { return twin_; }

  /// Whether it is the inner face of a compound's port, or below one.
  bool isInner() const { return root().kind_ == PortKind::Inner; }

  /// Whether it is there because the node's definition, or the type of the port above, says so.
  bool isFixed() const { return description_ != nullptr || kind_ == PortKind::Component; }

  /// What the node's definition says of it; null for a port that is not the definition's.
  const PortDescription* description() const { return description_; }

  const std::string& name() const { return *shared().name_; }
  std::string fullName() const;
  std::string fullPath() const;

  const TypeRef& type() const { return shared().type_; }
  const ValueType& valueType() const;

  std::uint32_t flags() const { return shared().flags_; }
  bool isFanInPort() const;

  /// The value that was set; null when the port has its default.
  const Value* ownValue() const { return shared().value_.get(); }

  /// The default of the definition, or the type's.
  const Value& defaultValue() const;
  const Value& unconnectedValue() const { return ownValue() ? *ownValue() : defaultValue(); }

  /// Whether a value can be set: a port that computes what it gives has none, nor has a member of a
  /// fan-in port. A component has its part of the value of the port above.
  bool isSettable() const;

  /// The value that the port has while nothing is connected; nothing unless it is settable.
  std::optional<Value> settableValue() const;

  const Properties& metadata() const;

  /// Its children; null when it has none. Components are made when they are first asked for.
  PortListObject* childList();

  /// Its children as far as they are made already; else null.
  PortListObject* madeChildren() const;

  /// Tells the children that the port above is gone. Whoever drops a list of children calls it.
  static void orphan(const PortListRef& children);

  /// The child of that name; null when there is none.
  PortObject* child(std::string_view name);

  /// The port of that path below this one, such as "r"; null when there is none.
  PortObject* descendant(std::string_view path);

  /// The far ends of its connections.
  const PeerList& peers() const { return peers_; }
  bool hasPeers() const { return peers_.count() > 0; }

  /// The one source of an input; null when nothing is connected.
  PortObject* source() const { return peers_.at(0); }

  /// The far ends as the public interface lists them.
  const PortListObject& listedPeers();

  /// What computes or passes on its value; null once the node is gone.
  GraphVertex* vertex() const;

  /// The input/output node that shows this port; null when none does.
  NodeObject* ioNode() const;

  /// The port that this state port is paired with; null for other ports.
  PortObject* statePartner() const;

  /// Null when it has none.
  WatchPointObject* watchPoint() const;

  /// What a stored text said of the inner face of a port of a placeholder, which has no such face,
  /// line by line: it is stored again as it was.
  const std::vector<std::string>& innerLines() const;

  // Port, Namable, Flaggable
  const char* getName() const override { return name().c_str(); }
  void appendNodeName(const char*) override {}
  void appendPortName(const char*) override {}
  void setName(const char* name) override;
  std::uint32_t getFlags() const override { return flags(); }
  void setFlag(ORV_v1::PortFlags bit) override;
  void clearFlag(ORV_v1::PortFlags bit) override;
  bool anyFlagSet() const override { return flags() != 0; }
  bool isFlagSet(ORV_v1::PortFlags bit) const override { return (flags() & bit) != 0; }

 private:
  friend class Mutator;
  friend class NodeFactory;
  friend class NodeObject;
  friend class ORV_v1::Port;
  struct Extras;

  const PortObject& shared() const { return kind_ == PortKind::Inner && twin_ ? *twin_ : *this; }
  PortObject& shared() { return kind_ == PortKind::Inner && twin_ ? *twin_ : *this; }
  Extras& extras();
  PortListObject* madePeerList() const;
  void insertPeer(unsigned int index, PortObject& peer);
  unsigned int removePeer(PortObject& peer);
  void makeComponents();

  // In large graphs edits wait for memory: what connecting and setting values need stands together.
  PortKind kind_;
  PortDirection direction_;

  /// Of a top-level port.
  NodeObject* node_ = nullptr;
  PortObject* above_ = nullptr;
  PortObject* twin_ = nullptr;
  TypeRef type_;
  std::uint32_t flags_ = 0;
  const PortDescription* description_ = nullptr;
  Name name_;
  std::unique_ptr<const Value> value_;
  PeerList peers_;
  PortListRef children_;
  std::unique_ptr<Extras> extras_;
};

}  // namespace orvlib
