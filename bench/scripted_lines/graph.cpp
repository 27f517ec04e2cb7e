#include "bench/scripted_lines/Measuring.h"
#include "platform/ORV_1_0/ConnectCommand.h"
#include "platform/ORV_1_0/ModifyNodePortCommand.h"
#include "platform/ORV_1_0/PortList.h"

namespace {

using ORV_v1::AddRefWrapper;
using ORV_v1::ConnectCommand;
using ORV_v1::ModifyNodePortCommand;
using ORV_v1::Node;
using ORV_v1::Port;
using Handle = AddRefWrapper<Port>;

/// How many connections the listed node has.
constexpr std::size_t kConnections = 1000;

std::string path(std::size_t index) { return "/" + nodeName(index); }

/// Connection `i`: from a node of the first half of the graph to one of the second, so that none
/// closes a cycle, and to each input once.
struct Wire {
  Wire(std::size_t i, std::size_t count) {
    const std::size_t place = scattered(i, count);
    source = path(place / 2) + ".result";
    destination = path(count / 2 + place / 2) + (place % 2 == 0 ? ".a" : ".b");
  }
  std::string source;
  std::string destination;
};

std::string connectText(std::size_t i, std::size_t count, const char* flag) {
  const Wire wire(i, count);
  return std::string("orvConnect ") + flag + "\"g\" \"" + wire.source + "\" \"" + wire.destination +
         "\"";
}

Lines connectLines(std::size_t count, const char* flag = "") {
  return linesOf(kEdits, [&](std::size_t i) { return connectText(i, count, flag); });
}

/// The commands that connect, kept for undo.
class Connections {
 public:
  Connections(ScriptedGraph& graph, std::size_t count) : graph_(graph), count_(count) {}

  void connect() {
    for (std::size_t i = 0; i < kEdits; ++i) act(i, true);
  }
  void disconnect() {
    for (std::size_t i = 0; i < kEdits; ++i) act(i, false);
  }
  void undo() {
    for (auto command = done_.rbegin(); command != done_.rend(); ++command) command->undo();
  }
  void redo() {
    for (ConnectCommand& command : done_) command.redo();
  }
  void clear() { done_.clear(); }

 private:
  void act(std::size_t i, bool connect) {
    const Wire wire(i, count_);
    Handle source, destination;
    graph_.container().findPortsForConnection(wire.source.c_str(), wire.destination.c_str(),
                                              &source, &destination);
    ConnectCommand& command = done_.emplace_back();
    if (connect) {
      command.connect(&graph_.container(), source, destination, false);
    } else {
      command.disconnect(&graph_.container(), source, destination);
    }
  }

  ScriptedGraph& graph_;
  std::size_t count_;
  std::deque<ConnectCommand> done_;
};

void connectLine(benchmark::State& state) {
  measureLines(state, countOf(state), connectLines(countOf(state)));
}

void connectCall(benchmark::State& state) {
  ScriptedGraph graph(countOf(state));
  Connections calls(graph, countOf(state));
  measure(
      state, graph, kEdits, [&](ScriptedGraph&) { calls.connect(); },
      [&](ScriptedGraph&) {
        calls.undo();
        calls.clear();
      });
}

void disconnectLine(benchmark::State& state) {
  ScriptedGraph graph(countOf(state));
  graph.run(connectLines(countOf(state)));
  graph.forget();
  const Lines lines = connectLines(countOf(state), "-disconnect ");
  measure(
      state, graph, kEdits, [&](ScriptedGraph& one) { one.run(lines); },
      [&](ScriptedGraph& one) {
        one.undo(kEdits);
        one.forget();
      });
}

void disconnectCall(benchmark::State& state) {
  ScriptedGraph graph(countOf(state));
  Connections calls(graph, countOf(state));
  calls.connect();
  calls.clear();
  measure(
      state, graph, kEdits, [&](ScriptedGraph&) { calls.disconnect(); },
      [&](ScriptedGraph&) {
        calls.undo();
        calls.clear();
      });
}

void undoConnectLine(benchmark::State& state) {
  ScriptedGraph graph(countOf(state));
  graph.run(connectLines(countOf(state)));
  measure(
      state, graph, kEdits, [](ScriptedGraph& one) { one.undo(kEdits); },
      [](ScriptedGraph& one) { one.redo(kEdits); });
}

void undoConnectCall(benchmark::State& state) {
  ScriptedGraph graph(countOf(state));
  Connections calls(graph, countOf(state));
  calls.connect();
  measure(
      state, graph, kEdits, [&](ScriptedGraph&) { calls.undo(); },
      [&](ScriptedGraph&) { calls.redo(); });
}

void redoConnectLine(benchmark::State& state) {
  ScriptedGraph graph(countOf(state));
  graph.run(connectLines(countOf(state)));
  graph.undo(kEdits);
  measure(
      state, graph, kEdits, [](ScriptedGraph& one) { one.redo(kEdits); },
      [](ScriptedGraph& one) { one.undo(kEdits); });
}

void redoConnectCall(benchmark::State& state) {
  ScriptedGraph graph(countOf(state));
  Connections calls(graph, countOf(state));
  calls.connect();
  calls.undo();
  measure(
      state, graph, kEdits, [&](ScriptedGraph&) { calls.redo(); },
      [&](ScriptedGraph&) { calls.undo(); });
}

void setValueLine(benchmark::State& state) {
  const std::size_t count = countOf(state);
  measureLines(state, count, linesOf(kEdits, [&](std::size_t i) {
                 return "orvNode \"g\" \"" + path(scattered(i, count)) +
                        "\" -setPortDefaultValues \"b\" \"" + std::to_string(i) + ".5\"";
               }));
}

void setValueCall(benchmark::State& state) {
  const std::size_t count = countOf(state);
  ScriptedGraph graph(count);
  Calls<ModifyNodePortCommand> calls(graph);
  const auto setAll = [&](ScriptedGraph& one) {
    for (std::size_t i = 0; i < kEdits; ++i) {
      calls.make([&](ModifyNodePortCommand& command) {
        const AddRefWrapper<Node> node =
            one.container().findNodeFromPath(path(scattered(i, count)).c_str());
        ORV_v1::StringArray values;
        values.add((std::to_string(i) + ".5").c_str());
        command.setPortValues(node, "b", values, false);
      });
    }
  };
  measure(state, graph, kEdits, setAll, [&](ScriptedGraph&) {
    calls.undo();
    calls.clear();
  });
}

void listPortsLine(benchmark::State& state) {
  const std::size_t count = countOf(state);
  ScriptedGraph graph(count);
  const Lines lines = linesOf(kEdits, [&](std::size_t i) {
    return "orvNode \"g\" \"" + path(scattered(i, count)) + "\" -listPorts";
  });
  measure(
      state, graph, kEdits, [&](ScriptedGraph& one) { one.run(lines); }, nothing);
}

void listPortsCall(benchmark::State& state) {
  const std::size_t count = countOf(state);
  ScriptedGraph graph(count);
  const auto list = [&](ScriptedGraph& one) {
    for (std::size_t i = 0; i < kEdits; ++i) {
      const auto node = one.container().findNodeFromPath(path(scattered(i, count)).c_str());
      KStringArray names;
      for (const ORV_v1::PortList* ports : {&node->inputs(), &node->outputs()}) {
        for (const Handle& port : *ports) names.append(port->getName());
      }
      benchmark::DoNotOptimize(&names);
    }
  };
  measure(state, graph, kEdits, list, nothing);
}

/// Connects the first node to as many others as there are, at most `kConnections`.
void connectManyToFirst(ScriptedGraph& graph, std::size_t count) {
  for (std::size_t i = 1; i < std::min(count, kConnections + 1); ++i) {
    graph.run("orvConnect \"g\" \"/add.result\" \"" + path(i) + ".a\"");
  }
  graph.forget();
}

void listConnectedLine(benchmark::State& state) {
  ScriptedGraph graph(countOf(state));
  connectManyToFirst(graph, countOf(state));
  measure(
      state, graph, 1,
      [&](ScriptedGraph& one) { one.run("orvNode \"g\" \"/add\" -listConnectedNodes"); }, nothing);
}

void listConnectedCall(benchmark::State& state) {
  ScriptedGraph graph(countOf(state));
  connectManyToFirst(graph, countOf(state));
  const auto list = [&](ScriptedGraph& one) {
    KStringArray names;
    const auto node = one.container().findNodeFromPath("/add");
    for (const Handle& far : node->outputs()[0u]->connectedTo()) {
      names.append(far->getParentNode()->getName());
    }
    benchmark::DoNotOptimize(&names);
  };
  measure(state, graph, 1, list, nothing);
}

}  // namespace

std::vector<Pair> graphPairs() {
  return {
      {"connect", connectLine, connectCall},
      {"disconnect", disconnectLine, disconnectCall},
      {"undo connect", undoConnectLine, undoConnectCall},
      {"redo connect", redoConnectLine, redoConnectCall},
      {"setPortDefaultValues", setValueLine, setValueCall},
      {"listPorts", listPortsLine, listPortsCall},
      {"listConnectedNodes", listConnectedLine, listConnectedCall},
  };
}
