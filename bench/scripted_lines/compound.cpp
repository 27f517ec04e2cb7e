#include "bench/scripted_lines/Measuring.h"
#include "platform/ORV_1_0/CreateCompoundCommand.h"
#include "platform/ORV_1_0/PortList.h"

namespace {

using ORV_v1::AddRefWrapper;
using ORV_v1::ChangeBracket;
using ORV_v1::CreateCompoundCommand;
using ORV_v1::Node;
using ORV_v1::NodeCommand;
using ORV_v1::Port;

/// What a line that makes a compound moves in.
constexpr std::size_t kMoved = 100;

std::string line(const std::string& flags) { return "orvCompound \"g\" \"/\" " + flags; }

Lines addLines() {
  return linesOf(kEdits, [](std::size_t) { return line("-addNode \"core::math::add\""); });
}

void makeAdds(ScriptedGraph& graph, Calls<NodeCommand>& calls) {
  for (std::size_t i = 0; i < kEdits; ++i) {
    calls.make(
        [&](NodeCommand& command) { command.createNode(graph.top(), "core::math::add", nullptr); });
  }
}

void addLine(benchmark::State& state) { measureLines(state, countOf(state), addLines()); }

void addCall(benchmark::State& state) {
  ScriptedGraph graph(countOf(state));
  Calls<NodeCommand> calls(graph);
  measure(
      state, graph, kEdits, [&](ScriptedGraph& one) { makeAdds(one, calls); },
      [&](ScriptedGraph&) {
        calls.undo();
        calls.clear();
      });
}

void removeLine(benchmark::State& state) {
  const std::size_t count = countOf(state);
  measureLines(state, count, linesOf(kEdits, [&](std::size_t i) {
                 return line("-removeNode \"" + nodeName(scattered(i, count)) + "\"");
               }));
}

void removeCall(benchmark::State& state) {
  const std::size_t count = countOf(state);
  ScriptedGraph graph(count);
  Calls<NodeCommand> calls(graph);
  const auto removeAll = [&](ScriptedGraph& one) {
    for (std::size_t i = 0; i < kEdits; ++i) {
      calls.make([&](NodeCommand& command) {
        command.removeNode(one.top(), nodeName(scattered(i, count)).c_str());
      });
    }
  };
  measure(state, graph, kEdits, removeAll, [&](ScriptedGraph&) {
    calls.undo();
    calls.clear();
  });
}

void renameLine(benchmark::State& state) {
  const std::size_t count = countOf(state);
  measureLines(state, count, linesOf(kEdits, [&](std::size_t i) {
                 return line("-renameNode \"" + nodeName(scattered(i, count)) + "\" \"x" +
                             std::to_string(i) + "\"");
               }));
}

void renameCall(benchmark::State& state) {
  const std::size_t count = countOf(state);
  ScriptedGraph graph(count);
  const auto rename = [&](const std::string& from, const std::string& to) {
    const ChangeBracket bracket = graph.container().makeChangeBracket(graph.top().get());
    graph.nodes()[from.c_str()]->setName(to.c_str());
  };
  const auto other = [](std::size_t i) { return "x" + std::to_string(i); };
  measure(
      state, graph, kEdits,
      [&](ScriptedGraph&) {
        for (std::size_t i = 0; i < kEdits; ++i) rename(nodeName(scattered(i, count)), other(i));
      },
      [&](ScriptedGraph&) {
        for (std::size_t i = 0; i < kEdits; ++i) rename(other(i), nodeName(scattered(i, count)));
      });
}

void createLine(benchmark::State& state) {
  std::string flags = "-create \"group\"";
  for (std::size_t i = 0; i < kMoved; ++i) {
    flags += " -moveNodeIn \"" + nodeName(scattered(i, countOf(state))) + "\"";
  }
  measureLines(state, countOf(state), {line(flags)});
}

void createCall(benchmark::State& state) {
  const std::size_t count = countOf(state);
  ScriptedGraph graph(count);
  Calls<CreateCompoundCommand> calls(graph);
  const auto create = [&](ScriptedGraph& one) {
    calls.make([&](CreateCompoundCommand& command) {
      command.setParentCompound(&one.container(), "/");
      command.setNewCompoundName("group");
      for (std::size_t i = 0; i < kMoved; ++i) {
        command.addNodeToMove(nodeName(scattered(i, count)).c_str());
      }
    });
  };
  measure(state, graph, 1, create, [&](ScriptedGraph&) {
    calls.undo();
    calls.clear();
  });
}

void undoLine(benchmark::State& state) {
  ScriptedGraph graph(countOf(state));
  graph.run(addLines());
  measure(
      state, graph, kEdits, [](ScriptedGraph& one) { one.undo(kEdits); },
      [](ScriptedGraph& one) { one.redo(kEdits); });
}

void undoCall(benchmark::State& state) {
  ScriptedGraph graph(countOf(state));
  Calls<NodeCommand> calls(graph);
  makeAdds(graph, calls);
  measure(
      state, graph, kEdits, [&](ScriptedGraph&) { calls.undo(); },
      [&](ScriptedGraph&) { calls.redo(); });
}

void redoLine(benchmark::State& state) {
  ScriptedGraph graph(countOf(state));
  graph.run(addLines());
  graph.undo(kEdits);
  measure(
      state, graph, kEdits, [](ScriptedGraph& one) { one.redo(kEdits); },
      [](ScriptedGraph& one) { one.undo(kEdits); });
}

void redoCall(benchmark::State& state) {
  ScriptedGraph graph(countOf(state));
  Calls<NodeCommand> calls(graph);
  makeAdds(graph, calls);
  calls.undo();
  measure(
      state, graph, kEdits, [&](ScriptedGraph&) { calls.redo(); },
      [&](ScriptedGraph&) { calls.undo(); });
}

void listLine(benchmark::State& state, const std::string& filter) {
  ScriptedGraph graph(countOf(state));
  const std::string text = line("-listNodes " + filter);
  measure(
      state, graph, 1, [&](ScriptedGraph& one) { one.run(text); }, nothing);
}

bool isConnected(Node& node) {
  for (const ORV_v1::PortList* ports : {&node.outputs(), &node.inputs()}) {
    for (const AddRefWrapper<Port>& port : *ports) {
      if (port->connectedTo().size() > 0) return true;
    }
  }
  return false;
}

/// Asks the library for the names of all nodes that pass.
template <class Filter>
void listCall(benchmark::State& state, Filter passes) {
  ScriptedGraph graph(countOf(state));
  const auto list = [&](ScriptedGraph& one) {
    KStringArray names;
    for (const AddRefWrapper<Node>& node : one.nodes()) {
      if (passes(*node)) names.append(node->getName());
    }
    benchmark::DoNotOptimize(&names);
  };
  measure(state, graph, 1, list, nothing);
}

Pair listing(const char* name, const std::string& filter, bool (*passes)(Node&)) {
  return {name, [filter](benchmark::State& state) { listLine(state, filter); },
          [passes](benchmark::State& state) { listCall(state, passes); }};
}

bool any(Node&) { return true; }
bool isAdd(Node& node) {
  return std::string_view(node.getTypeName().toChar()) == "core::math::add";
}
bool isFree(Node& node) { return !isConnected(node); }

}  // namespace

std::vector<Pair> compoundPairs() {
  return {
      {"addNode", addLine, addCall},
      {"undo addNode", undoLine, undoCall},
      {"redo addNode", redoLine, redoCall},
      {"removeNode", removeLine, removeCall},
      {"renameNode", renameLine, renameCall},
      {"create", createLine, createCall},
      listing("listNodes", "", any),
      listing("listNodes nodeType", "-nodeType \"core::math::add\"", isAdd),
      listing("listNodes connected", "-connected false", isFree),
      listing("listNodes connectedToInput", "-connectedToInput", isConnected),
      listing("listNodes connectedToOutput", "-connectedToOutput", isConnected),
      listing("listNodes connectedTo", "-connectedTo \"x\"", isConnected),
  };
}
