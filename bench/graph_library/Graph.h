#pragma once

#include <deque>
#include <random>
#include <string>
#include <vector>

#include "platform/ORV_1_0/Compound.h"
#include "platform/ORV_1_0/ConnectCommand.h"
#include "platform/ORV_1_0/CreateCompoundCommand.h"
#include "platform/ORV_1_0/ModifyNodePortCommand.h"
#include "platform/ORV_1_0/NodeCommand.h"
#include "platform/ORV_1_0/NodeList.h"
#include "platform/ORV_1_0/PortList.h"
#include "standalone/graph/model/ContainerObject.h"

/// A graph that grows through the library's commands, which are kept for undo.
class Graph {
 public:
  using NodeHandle = ORV_v1::AddRefWrapper<ORV_v1::Node>;

  /// The nodes go into one level, or to the same parts into the levels of `depth` nested compounds.
  explicit Graph(unsigned depth) {
    levels_.push_back(container_.getTopNode()->asCompound());
    for (unsigned i = 1; i < depth; ++i) {
      ORV_v1::CreateCompoundCommand command;
      command.setParentCompound(&container_,
                                levels_.back()->getAsNode()->getFullPathName().getName());
      command.setNewCompoundName("group");
      command.doit();
      const auto path = command.getCreatedCompoundPath();
      levels_.push_back(container_.findNodeFromPath(path.toChar())->asCompound());
    }
  }

  ORV_v1::Container& container() { return container_; }
  std::size_t count() const { return nodes_.size(); }
  const NodeHandle& node(std::size_t index) const { return nodes_[index]; }
  ORV_v1::Compound& level(std::size_t index) { return *levels_[index % levels_.size()]; }

  void add() {
    const auto& level = levels_[nodes_.size() % levels_.size()];
    ORV_v1::NodeCommand& command = added_.emplace_back();
    command.createNode(level, "core::math::add", nullptr);
    command.redo();
    ORV_v1::NodeList& children = level->getChildNodes();
    nodes_.push_back(children[children.size() - 1]);
  }

  void fill(std::size_t count) {
    while (nodes_.size() < count) add();
  }

  /// Connects the node to the one after it in its level.
  void connect(std::size_t index) {
    const NodeHandle& next = nodes_[index + levels_.size()];
    connected_.emplace_back().connect(&container_, nodes_[index]->outputs()[0u], next->inputs()[0u],
                                      false);
  }

  void setValue(std::size_t index, const ORV_v1::StringArray& texts) {
    ORV_v1::ModifyNodePortCommand command;
    command.setPortValues(nodes_[index], "b", texts, false);
    command.redo();
  }

  void undoAllAdds() {
    for (auto command = added_.rbegin(); command != added_.rend(); ++command) command->undo();
  }
  void redoAllAdds() {
    for (auto& command : added_) command.redo();
  }

 private:
  orvlib::ContainerObject container_{"standard"};
  std::vector<ORV_v1::AddRefWrapper<ORV_v1::Compound>> levels_;
  std::vector<NodeHandle> nodes_;
  std::deque<ORV_v1::NodeCommand> added_;
  std::deque<ORV_v1::ConnectCommand> connected_;
};
