#include "fuzz/checkGraph.h"

#include "fuzz/require.h"
#include "standalone/graph/model/DirtyMarks.h"
#include "tests/standalone/graph/commands/GraphInvariants.h"

namespace fuzz {
namespace {

using orvlib::CompoundObject;
using orvlib::NodeObject;
using orvlib::PortListObject;
using orvlib::PortObject;

/// Calls `visit` for the outer faces of all ports, from a node down.
template <class Visit>
void forEachPort(NodeObject& node, const Visit& visit) {
  for (const PortListObject* list : {&node.inputList(), &node.outputList()}) {
    for (PortObject* port : list->items()) visit(*port);
  }
  if (!node.compound()) return;
  for (NodeObject* child : node.compound()->nodes().items()) {
    const bool shows = child->nodeKind() == orvlib::NodeKind::Input ||
                       child->nodeKind() == orvlib::NodeKind::Output;
    if (!shows) forEachPort(*child, visit);
  }
}

void checkMarks(const PortObject& face) {
  for (const PortObject* peer : face.peers().items()) {
    const PortObject& source = face.isInput() ? *peer : face;
    const PortObject& target = face.isInput() ? face : *peer;
    require(!source.vertex()->dirty || holdsBack(*source.vertex()) || target.vertex()->dirty,
            "what takes a value that must be computed anew must be so too", target.fullPath());
  }
}

}  // namespace

void checkGraph(orvlib::ContainerObject& graph) {
  const std::string broken = brokenRule(graph);
  require(broken.empty(), "a rule of every graph", broken);
  forEachPort(graph.top(), [](PortObject& port) {
    checkMarks(port);
    if (port.twin()) checkMarks(*port.twin());
  });
  const std::string text = writeGraph(graph);
  orvlib::ContainerObject again("again");
  const auto error = readGraph(text, again);
  require(!error, "a graph's text can be read", error ? error->reason + "\n" + text : "");
  const std::string second = writeGraph(again);
  require(second == text, "a graph's text reads back as the same text", text + second);
}

void evaluateAll(orvlib::Graph& graph) {
  forEachPort(graph.container().top(),
              [&graph](PortObject& port) { graph.evaluator().value(port); });
}

}  // namespace fuzz
