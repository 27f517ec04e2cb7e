// What a scripted edit of a graph costs, from the text of its line to the undo step that it leaves,
// in graphs of 1,000, 10,000 and 100,000 nodes; and what the same calls of the graph library cost
// without a line. Ends with the nanoseconds of one line and how many times more it takes than the
// calls. A line that makes a compound moves 100 nodes in, and a listing lists the whole graph.

#include <benchmark/benchmark.h>
#include <time.h>

#include <algorithm>
#include <deque>
#include <functional>
#include <map>

#include "bench/scripted_lines/ScriptedGraph.h"
#include "platform/ORV_1_0/ChangeBracket.h"
#include "platform/ORV_1_0/PortList.h"

namespace {

using ORV_v1::AddRefWrapper;
using ORV_v1::ChangeBracket;
using ORV_v1::CreateCompoundCommand;
using ORV_v1::Node;
using ORV_v1::NodeCommand;
using ORV_v1::Port;
using Lines = std::vector<std::string>;

constexpr std::size_t kEdits = 1000;
constexpr std::size_t kMoved = 100;

std::string nodeName(std::size_t index) {
  return index == 0 ? "add" : "add" + std::to_string(index);
}

std::string line(const std::string& flags) { return "orvCompound \"g\" \"/\" " + flags; }

template <class Flags>
Lines linesOf(std::size_t count, Flags flags) {
  Lines lines;
  for (std::size_t i = 0; i < count; ++i) lines.push_back(line(flags(i)));
  return lines;
}

/// Nodes from all over the graph, each once.
std::size_t scattered(std::size_t i, std::size_t count) { return i * 7919 % count; }

/// Of this process, which other work on the machine does not disturb.
double processorSeconds() {
  timespec now{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

/// Times `work`, which does `operations`, on one graph; `restore` takes it back untimed.
template <class Work, class Restore>
void measure(benchmark::State& state, ScriptedGraph& graph, std::size_t operations, Work work,
             Restore restore) {
  double seconds = 0;
  for (auto _ : state) {
    const double start = processorSeconds();
    work(graph);
    const double taken = processorSeconds() - start;
    restore(graph);
    state.SetIterationTime(taken);
    seconds += taken;
  }
  const auto all = static_cast<double>(state.iterations()) * static_cast<double>(operations);
  state.counters["ns"] = seconds / all * 1e9;
}

void nothing(ScriptedGraph&) {}

void measureLines(benchmark::State& state, std::size_t count, const Lines& lines) {
  ScriptedGraph graph(count);
  measure(
      state, graph, lines.size(), [&](ScriptedGraph& one) { one.run(lines); },
      [&](ScriptedGraph& one) {
        one.undo(lines.size());
        one.forget();
      });
}

/// The commands of the library that stand for so many lines, kept for undo.
template <class Command>
class Calls {
 public:
  explicit Calls(ScriptedGraph& graph) : graph_(graph) {}

  template <class Record>
  void make(Record record) {
    const ChangeBracket bracket = graph_.container().makeChangeBracket(graph_.top().get());
    Command& command = done_.emplace_back();
    record(command);
    command.redo();
  }

  void undo() {
    for (auto command = done_.rbegin(); command != done_.rend(); ++command) run(*command, false);
  }
  void redo() {
    for (Command& command : done_) run(command, true);
  }
  void clear() { done_.clear(); }

 private:
  void run(Command& command, bool forward) {
    const ChangeBracket bracket = graph_.container().makeChangeBracket(graph_.top().get());
    forward ? command.redo() : command.undo();
  }

  ScriptedGraph& graph_;
  std::deque<Command> done_;
};

std::size_t countOf(const benchmark::State& state) {
  return static_cast<std::size_t>(state.range(0));
}

Lines addLines() {
  return linesOf(kEdits, [](std::size_t) { return "-addNode \"core::math::add\""; });
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
                 return "-removeNode \"" + nodeName(scattered(i, count)) + "\"";
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
                 return "-renameNode \"" + nodeName(scattered(i, count)) + "\" \"x" +
                        std::to_string(i) + "\"";
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

struct Pair {
  const char* name;
  std::function<void(benchmark::State&)> line;
  std::function<void(benchmark::State&)> call;
};

Pair listing(const char* name, const std::string& filter, bool (*passes)(Node&)) {
  return {name, [filter](benchmark::State& state) { listLine(state, filter); },
          [passes](benchmark::State& state) { listCall(state, passes); }};
}

bool any(Node&) { return true; }
bool isAdd(Node& node) {
  return std::string_view(node.getTypeName().toChar()) == "core::math::add";
}
bool isFree(Node& node) { return !isConnected(node); }

const std::vector<Pair>& pairs() {
  static const std::vector<Pair> all = {
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
  return all;
}

class CollectingReporter : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      const auto ns = run.counters.find("ns");
      if (ns != run.counters.end()) nanoseconds[run.benchmark_name()] = ns->second;
    }
    ConsoleReporter::ReportRuns(runs);
  }

  double of(const std::string& name, int count) {
    return nanoseconds[name + "/" + std::to_string(count) + "/manual_time"];
  }

  std::map<std::string, double> nanoseconds;
};

constexpr int kCounts[] = {1000, 10000, 100000};

void registerPairs() {
  for (const Pair& pair : pairs()) {
    for (const auto& [part, run] : {std::pair("line", pair.line), std::pair("call", pair.call)}) {
      auto* one = benchmark::RegisterBenchmark((std::string(pair.name) + " " + part).c_str(), run);
      for (const int count : kCounts) one->Arg(count);
      one->UseManualTime();
    }
  }
}

void printTable(CollectingReporter& reporter) {
  std::printf("\n%-28s %30s %27s\n%-28s", "", "nanoseconds a line", "a line / the calls", "");
  for (int table = 0; table < 2; ++table) {
    for (const int count : kCounts) std::printf(table == 0 ? " %9d" : " %8d", count);
  }
  std::printf("\n");
  for (const Pair& pair : pairs()) {
    const std::string name = pair.name;
    if (reporter.of(name + " line", kCounts[0]) == 0) continue;
    std::printf("%-28s", pair.name);
    for (const int count : kCounts) std::printf(" %9.0f", reporter.of(name + " line", count));
    for (const int count : kCounts) {
      std::printf(" %8.2f",
                  reporter.of(name + " line", count) / reporter.of(name + " call", count));
    }
    std::printf("\n");
  }
}

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  orvlib::RuntimeRegistry runtimes;
  runtimes.load(VESK_SOURCE_DIR "/library");
  runtimes.makeCurrent();
  registerPairs();
  CollectingReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  printTable(reporter);
  return 0;
}
