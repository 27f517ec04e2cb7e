#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ORV_1_0/Container.h"
#include "standalone/graph/model/AnnotationObject.h"
#include "standalone/graph/model/CompoundObject.h"
#include "standalone/graph/model/GraphCore.h"

namespace orvlib {

/// A graph. It is made empty but for its top compound, and known to nobody until `publishUuid`.
class ORV_EXPORT ContainerObject final : public ORV_v1::Container, public ORV_v1::PortTypeLookup {
 public:
  /// `runtime` names the runtime that types and definitions come from.
  explicit ContainerObject(std::string runtime);
  ~ContainerObject() override;

  /// From now on `Container::getFromUUID` finds it. A UUID that is taken now leads here.
  void publishUuid(const std::string& uuid);
  void withdrawUuid();

  /// The name of the host's object.
  void setContainerName(std::string name) { name_ = std::move(name); }
  const std::string& containerName() const { return name_; }

  GraphCore& core() const { return *core_; }

  /// The node of the top compound.
  NodeObject& top() const { return *top_; }

  /// Null when nothing is there. Paths and the search values are those of `Container`.
  NodeObject* findNode(std::string_view path) const;
  CompoundObject* findCompound(std::string_view path) const;
  PortObject* findPort(std::string_view path, unsigned int ioType, unsigned int mode) const;
  AnnotationObject* findAnnotation(std::string_view path) const;

  /// The faces that a connection from `source` to `destination` joins: one that gives values and
  /// one that takes them; when there is no such pair, the reverse one; else both are null.
  std::pair<PortObject*, PortObject*> findPair(std::string_view source,
                                               std::string_view destination) const;

  /// Takes another graph for the one it had, as when it is loaded.
  void replaceTop(NodeRef top);

  /// Listeners are told in the order in which they were added. They do not own and are not owned.
  void addListener(ChangeListener& listener);
  void removeListener(ChangeListener& listener);

  /// Tells the listeners that the graph goes, so that whoever shows it lets it go. The program
  /// calls it when it takes the graph away and keeps it, as for undo; the graph itself does so at
  /// its end.
  void retire();

  /// Brackets by hand; null is the container. False as `Container` says.
  bool openBracket(ORV_v1::ChangeBracketClient* client);
  bool closeBracket(ORV_v1::ChangeBracketClient* client);
  unsigned int openBracketCount() const { return brackets_; }

  /// Which outermost bracket is open, counted from the first; or comes next.
  std::uint64_t bracketRound() const { return bracketRound_; }

  /// The number of changes so far: another number, another graph.
  std::uint64_t revision() const { return revision_; }

  // Container, PortTypeLookup
  ORV_v1::AddRefWrapper<ORV_v1::Node> getTopNode() override;
  ORV_v1::Namable getContainerName() override;
  ORV_v1::ChangeBracket makeChangeBracket(ORV_v1::ChangeBracketClient* client) override;
  ORV_v1::PortTypeLookup& portTypeLookup() override { return *this; }
  ORV_v1::AddRefWrapper<ORV_v1::PortDataType> findPortType(const char* name) const override;

 private:
  friend class ChangeHold;
  friend class GraphCore;
  friend class Mutator;
  friend struct ORV_v1::GraphAccess;

  using Client = ORV_v1::ChangeBracketClient;

  ORV_v1::Container* clientContainer() const override;
  unsigned int openBrackets() const override { return brackets_; }
  bool holds(const Client& client) const;
  void endBracket(Client& client);
  void release();
  void settle();
  void forget(NodeObject& node);

  /// Notes a change of a node that is in the graph.
  void touch(NodeObject& node, unsigned char bits);

  /// A part of the graph has left it, or come into it: its open brackets go and come with it.
  void nodesLeft();
  void nodesEntered();

  CoreRef core_;
  NodeRef top_;
  std::string name_;
  std::string uuid_;
  std::vector<ChangeListener*> listeners_;
  std::vector<NodeChange> changes_;

  /// Those that listeners are being told of. Both keep their memory from round to round.
  std::vector<NodeChange> told_;

  /// The clients with open brackets, in the graph and, for now, out of it.
  std::vector<Client*> clients_;
  std::vector<Client*> absentClients_;
  unsigned int brackets_ = 0;
  std::uint64_t bracketRound_ = 0;
  bool settling_ = false;
  std::uint64_t revision_ = 0;

  /// What was looked for last: the commands of one line are bound to one level.
  struct FoundCompound {
    std::string path;
    CompoundObject* compound = nullptr;
    std::uint64_t revision = 0;
  };
  mutable FoundCompound lastFound_;
};

}  // namespace orvlib
