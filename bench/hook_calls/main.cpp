// What an edit costs that an editor makes through the hook, from the call to the undo step that it
// leaves, in graphs of 1,000 and 10,000 nodes; what the same line costs when it is typed; and what
// it costs to put the line together. Ends with a table of the three and their ratios.

#include <cstdio>
#include <map>

#include "bench/scripted_lines/Measuring.h"
#include "hook/Target.h"
#include "hook/orvVeskCommandHook.h"
#include "platform/ORV_1_0/PortList.h"

namespace {

using ORV_v1::AddRefWrapper;
using ORV_v1::Node;
using ORV_v1::Port;

/// What an edit is about: what an editor holds already when its user acts.
struct Subject {
  Subject(ScriptedGraph& graph, std::size_t i, std::size_t count)
      : top(graph.top()),
        node(graph.nodes()[nodeName(scattered(i, count)).c_str()]),
        output(graph.nodes()[nodeName(scattered(i, count) / 2).c_str()]->outputs()[0u]),
        input(graph.nodes()[nodeName(count / 2 + scattered(i, count) / 2).c_str()]
                  ->inputs()[scattered(i, count) % 2]),
        text(QStringLiteral("x%1").arg(i)) {}

  AddRefWrapper<ORV_v1::Compound> top;
  AddRefWrapper<Node> node;

  /// Each input once, and no cycle.
  AddRefWrapper<Port> output, input;
  QString text;
};

/// The line of an edit, and the call that makes it.
struct Edit {
  const char* name;
  CommandLine (*line)(const Subject&);
  void (*call)(orvUI_v1::CommandHook&, const Subject&);
};

const QString kType = QStringLiteral("core::math::add");
const QString kKey = QStringLiteral("position");

constexpr Edit kEditsMade[] = {
    {"addNode",
     [](const Subject& s) {
       return lineFor(kCompoundCommand, Target(s.top)).flag("-addNode").text(kType);
     },
     [](orvUI_v1::CommandHook& hook, const Subject& s) { hook.addNode(s.top, kType, {}); }},
    {"renameNode",
     [](const Subject& s) {
       CommandLine line = lineFor(kCompoundCommand, Target(s.node->getParentCompound()));
       return line.flag("-renameNode").text(shortNameOf(*s.node)).text(s.text);
     },
     [](orvUI_v1::CommandHook& hook, const Subject& s) { hook.renameNode(s.node, s.text); }},
    {"removeNode",
     [](const Subject& s) {
       const Target target(containerNameOf(*s.node->getContainer()),
                           pathOf(s.node->getParentCompound()->getAsNode()));
       return lineFor(kCompoundCommand, target).flag("-removeNode").text(shortNameOf(*s.node));
     },
     [](orvUI_v1::CommandHook& hook, const Subject& s) { hook.removeNode(s.node); }},
    {"setMetaData",
     [](const Subject& s) {
       return lineFor(kNodeCommand, Target(s.node)).flag("-setMetaData").text(kKey).text(s.text);
     },
     [](orvUI_v1::CommandHook& hook, const Subject& s) {
       hook.setMetaData(0, s.node, kKey, s.text);
     }},
    {"setPortDefaultValues",
     [](const Subject& s) {
       CommandLine line = lineFor(kNodeCommand, Target(s.input));
       return line.flag("-setPortDefaultValues").text(fullNameOf(s.input)).texts({"0.5"});
     },
     [](orvUI_v1::CommandHook& hook, const Subject& s) {
       hook.setPortDefaultValues(s.input, {"0.5"}, false);
     }},
    {"connectPorts",
     [](const Subject& s) {
       CommandLine line(kConnectCommand);
       line.text(containerNameOf(*s.output->getParentNode()->getContainer()));
       return line.text(pathOf(s.output)).text(pathOf(s.input));
     },
     [](orvUI_v1::CommandHook& hook, const Subject& s) {
       hook.connectPorts(s.output, s.input, false);
     }},
};

std::vector<Subject> subjects(ScriptedGraph& graph, std::size_t count) {
  std::vector<Subject> all;
  for (std::size_t i = 0; i < kEdits; ++i) all.emplace_back(graph, i, count);
  return all;
}

void takeBack(ScriptedGraph& graph) {
  graph.undo(kEdits);
  graph.forget();
}

void typed(benchmark::State& state, const Edit& edit) {
  ScriptedGraph graph(countOf(state));
  Lines lines;
  for (const Subject& one : subjects(graph, countOf(state))) {
    lines.emplace_back(edit.line(one).toKString().asUTF8());
  }
  measure(
      state, graph, kEdits, [&](ScriptedGraph& one) { one.run(lines); }, takeBack);
}

void called(benchmark::State& state, const Edit& edit) {
  ScriptedGraph graph(countOf(state));
  orvVeskCommandHook hook;
  const std::vector<Subject> all = subjects(graph, countOf(state));
  const auto callAll = [&](ScriptedGraph&) {
    for (const Subject& one : all) edit.call(hook, one);
  };
  measure(state, graph, kEdits, callAll, takeBack);
}

void built(benchmark::State& state, const Edit& edit) {
  ScriptedGraph graph(countOf(state));
  const std::vector<Subject> all = subjects(graph, countOf(state));
  const auto buildAll = [&](ScriptedGraph&) {
    for (const Subject& one : all) {
      const KString line = edit.line(one).toKString();
      benchmark::DoNotOptimize(&line);
    }
  };
  measure(state, graph, kEdits, buildAll, nothing);
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

constexpr int kCounts[] = {1000, 10000};
constexpr std::pair<const char*, void (*)(benchmark::State&, const Edit&)> kParts[] = {
    {" typed", typed}, {" called", called}, {" built", built}};

void registerEdits() {
  for (const Edit& edit : kEditsMade) {
    for (const auto& [part, run] : kParts) {
      auto* one = benchmark::RegisterBenchmark((edit.name + std::string(part)).c_str(), run, edit);
      for (const int count : kCounts) one->Arg(count);
      one->UseManualTime();
    }
  }
}

void printTable(CollectingReporter& reporter) {
  std::printf("\n%-22s %8s %8s %8s %8s %8s %15s\n", "", "nodes", "call", "typed", "line",
              "call/typed", "line/call");
  for (const Edit& edit : kEditsMade) {
    for (const int count : kCounts) {
      const double call = reporter.of(edit.name + std::string(" called"), count);
      const double line = reporter.of(edit.name + std::string(" typed"), count);
      const double build = reporter.of(edit.name + std::string(" built"), count);
      if (call == 0 || line == 0) continue;
      std::printf("%-22s %8d %8.0f %8.0f %8.0f %10.2f %15.3f\n", edit.name, count, call, line,
                  build, call / line, build / call);
    }
  }
}

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  orvlib::RuntimeRegistry runtimes;
  runtimes.load(VESK_SOURCE_DIR "/library");
  runtimes.makeCurrent();
  registerEdits();
  CollectingReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  printTable(reporter);
  return 0;
}
