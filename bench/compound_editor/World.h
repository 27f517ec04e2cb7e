#pragma once

#include <memory>

#include "hook/orvVeskCommandHook.h"
#include "standalone/graph/library/RuntimeRegistry.h"
#include "standalone/graph/model/ContainerObject.h"
#include "standalone/host/engine/HostSession.h"
#include "standalone/widgets/compound/CompoundEditorWidget.h"

/// A host with the module's commands and a graph "g" of that many nodes and twice as many
/// connections, which stand in a grid.
class World {
 public:
  explicit World(int nodes);

  void run(const std::string& line);
  ORV_v1::AddRefWrapper<ORV_v1::Node> top() { return graph_->getTopNode(); }

 private:
  void build(int nodes);

  orvlib::RuntimeRegistry runtimes_;
  vesk::HostSession session_;
  orvVeskCommandHook hook_;
  orvlib::ContainerObject* graph_ = nullptr;
};
