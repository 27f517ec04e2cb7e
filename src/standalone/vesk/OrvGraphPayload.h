#pragma once

#include "standalone/graph/Graph.h"
#include "standalone/host/scene/NodePayload.h"
#include "standalone/host/scene/NodeTypes.h"

namespace vesk {

/// The graph that a scene node of type `orvGraph` carries. While the node is in the scene, the
/// graph is found by the node's UUID and has its name.
class OrvGraphPayload final : public NodePayload, private orvlib::ChangeListener {
 public:
  OrvGraphPayload();
  ~OrvGraphPayload() override;

  orvlib::Graph& graph() { return graph_; }

  std::string save() const override { return graph_.save(); }
  std::optional<TextError> load(std::string_view text) override;
  void enteredScene(SceneNode& node) override;
  void leftScene(SceneNode& node) override;
  void renamed(SceneNode& node) override;

 private:
  void graphChanged(orvlib::ContainerObject& container,
                    std::span<const orvlib::NodeChange> changes) override;

  orvlib::Graph graph_;

  /// Null while the node is out of the scene.
  SceneNode* node_ = nullptr;
};

/// Lets the scene make nodes of type `orvGraph`.
void addOrvGraphType(NodeTypes& types);

}  // namespace vesk
