#include "standalone/vesk/OrvGraphPayload.h"

#include "platform/ORV_1_0/ChangeBracket.h"
#include "standalone/graph/model/Mutator.h"
#include "standalone/host/scene/SceneNode.h"

namespace vesk {

OrvGraphPayload::OrvGraphPayload() { graph_.container().addListener(*this); }

OrvGraphPayload::~OrvGraphPayload() { graph_.container().removeListener(*this); }

std::optional<TextError> OrvGraphPayload::load(std::string_view text) {
  auto error = graph_.load(text);
  if (!error) return std::nullopt;
  return TextError{error->line, std::move(error->reason)};
}

void OrvGraphPayload::enteredScene(SceneNode& node) {
  node_ = &node;
  graph_.container().publishUuid(node.uuid());
  graph_.container().setContainerName(node.name());
}

void OrvGraphPayload::leftScene(SceneNode&) {
  node_ = nullptr;
  graph_.container().withdrawUuid();
  graph_.container().retire();
}

/// The top stands for the graph: who shows the graph's name hears of it as of that of any node.
void OrvGraphPayload::renamed(SceneNode& node) {
  orvlib::ContainerObject& graph = graph_.container();
  graph.setContainerName(node.name());
  const ORV_v1::ChangeBracket bracket = graph.makeChangeBracket(nullptr);
  orvlib::Mutator::renameNode(graph.top(), graph.top().name());
}

void OrvGraphPayload::graphChanged(orvlib::ContainerObject&, std::span<const orvlib::NodeChange>) {
  if (node_) node_->contentChanged();
}

void addOrvGraphType(NodeTypes& types) {
  types.add({"orvGraph", "Holds a graph of nodes that compute.",
             [] { return std::make_unique<OrvGraphPayload>(); }});
}

}  // namespace vesk
