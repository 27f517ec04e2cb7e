// Graphs, parts of them, and scenes as text.

#include "fuzz/checkGraph.h"
#include "fuzz/readers.h"
#include "fuzz/require.h"
#include "platform/ORV_1_0/PasteCommand.h"
#include "standalone/graph/clipboard/Clipboard.h"
#include "standalone/graph/model/NodeFactory.h"
#include "standalone/graph/storage/SelectionSeal.h"
#include "standalone/host/scene/NodeTypes.h"
#include "standalone/host/scene/SceneFile.h"
#include "standalone/vesk/OrvGraphPayload.h"

namespace fuzz {
namespace {

void checkError(const std::optional<orvlib::StorageError>& error, std::string_view text) {
  const auto lines = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')) + 1;
  require(error->line <= lines + 1, "the line of an error is there", error->reason);
  require(!error->reason.empty(), "an error has a reason");
}

/// Pastes and takes back.
void paste(orvlib::ContainerObject& graph, const std::string& text) {
  orvlib::Clipboard::setText(text);
  ORV_v1::PasteCommand command;
  require(command.setParentCompound(&graph, "/"), "there is a top level");
  command.duplicateSourceInputConnections(true);
  const std::string before = writeGraph(graph);
  if (!command.doit()) return require(writeGraph(graph) == before, "no paste, no change", text);
  checkGraph(graph);
  const std::string after = writeGraph(graph);
  require(command.undo(), "a paste can be undone");
  require(writeGraph(graph) == before, "undo takes a paste back", text);
  require(command.redo(), "a paste can be redone");
  require(writeGraph(graph) == after, "redo pastes again", text);
}

}  // namespace

void readGraphText(std::string_view text) {
  orvlib::Graph graph;
  const std::string before = graph.save();
  if (const auto error = graph.load(text)) {
    checkError(error, text);
    return require(graph.save() == before, "a text that is refused changes nothing", text);
  }
  checkGraph(graph.container());
  evaluateAll(graph);
  checkGraph(graph.container());
}

void readContentText(std::string_view text) {
  orvlib::Graph graph;
  const auto node = orvlib::NodeFactory(graph.container().core()).makeCompound("read");
  if (const auto error = orvlib::readContent(text, *node->compound())) {
    return checkError(error, text);
  }
  const std::string written = writeContent(*node->compound());
  const auto again = orvlib::NodeFactory(graph.container().core()).makeCompound("again");
  require(!orvlib::readContent(written, *again->compound()), "a content's text can be read");
  require(writeContent(*again->compound()) == written, "and reads back", written);
}

/// Without a seal of its own the text gets the right one, which no random text would have.
void readSelectionText(std::string_view text) {
  const bool sealed = text.starts_with("vesk-nodes");
  orvlib::Graph graph;
  graph.container().publishUuid("here");
  paste(graph.container(), (sealed ? "" : orvlib::sealOf(text)) + std::string(text));
  evaluateAll(graph);
}

void readSceneText(std::string_view text) {
  vesk::NodeTypes types;
  vesk::addOrvGraphType(types);
  const vesk::SceneText scene = vesk::readSceneText(text, types);
  if (!scene.error.empty()) return require(scene.nodes.empty(), "an error leaves no nodes");
  for (const vesk::SceneNodePtr& node : scene.nodes) {
    require(vesk::SceneNode::isUuid(node->uuid()), "a node has a UUID", node->uuid());
    if (!node->payload()) continue;
    const std::string saved = node->payload()->save();
    const vesk::NodeType* type = types.find(node->type());
    if (!type) continue;
    const auto again = type->makePayload();
    require(!again->load(saved), "a node's data can be read", saved);
    require(again->save() == saved, "a node's data reads back", saved);
  }
}

}  // namespace fuzz
