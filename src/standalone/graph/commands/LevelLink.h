#pragma once

#include "standalone/graph/commands/RecordedCommand.h"

namespace orvlib {

/// The level of a graph that a command is bound to.
class LevelLink {
 public:
  /// By the path of its compound. False, and the link as it was, when there is no such compound.
  bool bind(ORV_v1::Container* container, const char* path) {
    auto* graph = static_cast<ContainerObject*>(container);
    CompoundObject* found = graph && path ? graph->findCompound(path) : nullptr;
    if (!found) return false;
    bind(*graph, *found);
    return true;
  }

  void bind(ContainerObject& graph, CompoundObject& level) {
    graph_.bind(graph);
    level_ = CompoundRef(&level);
  }

  /// Null when the link leads nowhere, or the level is no longer in the graph.
  CompoundObject* level() const {
    ContainerObject* graph = container();
    const NodeObject* node = level_ == nullptr ? nullptr : level_->node();
    return graph && node && node->container() == graph ? level_.get() : nullptr;
  }

  /// Null when it leads nowhere, or the graph is gone.
  ContainerObject* container() const { return graph_.container(); }

 private:
  GraphLink graph_;
  CompoundRef level_;
};

}  // namespace orvlib
