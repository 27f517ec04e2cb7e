// What it takes to copy and to paste 1,000, 10,000 and 100,000 nodes with two connections and a
// value each: all into the level that they are in, where every name clashes, into an empty one, and
// as one compound. Ends with the milliseconds, and how many times more a node costs in the largest
// copy than in the smallest.

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdio>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/ORV_1_0/CopyCommand.h"
#include "platform/ORV_1_0/PasteCommand.h"
#include "standalone/graph/clipboard/Clipboard.h"
#include "standalone/graph/library/RuntimeRegistry.h"
#include "standalone/graph/storage/GraphText.h"

namespace {

using orvlib::ContainerObject;

std::string nodeName(std::size_t number) { return "add" + std::to_string(number); }

/// Each node takes from the two before it: so many nodes, and twice as many connections.
std::string nodes(std::size_t count) {
  std::string text;
  for (std::size_t i = 0; i < count; ++i) {
    text += "node " + nodeName(i) + " core::math::add\n";
    text += i < 2 ? "value b 0.5\n" : "metadata position 10 20\n";
  }
  for (std::size_t i = 2; i < count; ++i) {
    text += "wire " + nodeName(i - 1) + ".result " + nodeName(i) + ".a\n";
    text += "wire " + nodeName(i - 2) + ".result " + nodeName(i) + ".b\n";
  }
  return text;
}

std::unique_ptr<ContainerObject> graphOf(const std::string& block) {
  auto graph = std::make_unique<ContainerObject>("standard");
  const auto error = readGraph(
      "vesk-graph 1\nruntime standard\ntype float float\ndefinition core::math::add\nin a float\n"
      "in b float\nout result float\ngraph\n" +
          block + "end\n",
      *graph);
  if (error) std::fprintf(stderr, "line %zu: %s\n", error->line, error->reason.c_str());
  return graph;
}

std::unique_ptr<ContainerObject> flat(std::size_t count) {
  return graphOf(nodes(count) + "compound empty\nend\n");
}
std::unique_ptr<ContainerObject> grouped(std::size_t count) {
  return graphOf("compound group\n" + nodes(count) + "end\n");
}

std::vector<std::string> namesIn(ContainerObject& graph) {
  std::vector<std::string> names;
  for (const auto* node : graph.top().compound()->nodes().items()) {
    if (node->name() != "empty") names.push_back(node->name());
  }
  return names;
}

bool copy(ContainerObject& graph, const std::vector<std::string>& names) {
  ORV_v1::CopyCommand command;
  command.setParentCompound(&graph, "/");
  for (const std::string& name : names) command.addSourceNode(name.c_str());
  return command.doit();
}

using Build = std::unique_ptr<ContainerObject> (*)(std::size_t);

/// Times `work` alone, and takes back what it did.
template <class Work>
void measure(benchmark::State& state, Work work) {
  double seconds = 0;
  for (auto _ : state) {
    const auto start = std::chrono::steady_clock::now();
    auto done = work();
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
    state.SetIterationTime(taken.count());
    seconds += taken.count();
    if (done == nullptr) state.SkipWithError("refused");
    if (done != nullptr) done->undo();
  }
  state.counters["ms"] = seconds / static_cast<double>(state.iterations()) * 1e3;
}

using Paste = std::unique_ptr<ORV_v1::PasteCommand>;

Paste paste(ContainerObject& graph, const char* path) {
  auto command = std::make_unique<ORV_v1::PasteCommand>();
  return command->setParentCompound(&graph, path) && command->doit() ? std::move(command) : Paste();
}

void copies(benchmark::State& state, Build build, const char*) {
  const auto graph = build(static_cast<std::size_t>(state.range(0)));
  const auto names = namesIn(*graph);
  struct Nothing {
    static void undo() {}
  };
  measure(state, [&] { return copy(*graph, names) ? std::make_unique<Nothing>() : nullptr; });
}

void pastes(benchmark::State& state, Build build, const char* path) {
  const auto graph = build(static_cast<std::size_t>(state.range(0)));
  copy(*graph, namesIn(*graph));
  measure(state, [&] { return paste(*graph, path); });
}

void both(benchmark::State& state, Build build, const char* path) {
  const auto graph = build(static_cast<std::size_t>(state.range(0)));
  const auto names = namesIn(*graph);
  measure(state, [&] { return copy(*graph, names) ? paste(*graph, path) : Paste(); });
}

void sizes(benchmark::internal::Benchmark* one) {
  one->Arg(1000)->Arg(10000)->Arg(100000)->UseManualTime()->Unit(benchmark::kMillisecond);
}

BENCHMARK_CAPTURE(copies, one_level, flat, "/")->Apply(sizes);
BENCHMARK_CAPTURE(pastes, one_level, flat, "/")->Apply(sizes);
BENCHMARK_CAPTURE(pastes, empty_level, flat, "/empty")->Apply(sizes);
BENCHMARK_CAPTURE(both, one_level, flat, "/")->Apply(sizes);
BENCHMARK_CAPTURE(both, one_compound, grouped, "/")->Apply(sizes);

class CollectingReporter : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      const std::string& name = run.run_name.function_name;
      if (!found.contains(name)) order.push_back(name);
      found[name].push_back(run.counters.at("ms").value);
    }
    ConsoleReporter::ReportRuns(runs);
  }

  std::vector<std::string> order;
  std::map<std::string, std::vector<double>> found;
};

void printTable(const CollectingReporter& reporter) {
  std::printf("\n%-24s %10s %10s %10s %14s\n", "milliseconds", "1,000", "10,000", "100,000",
              "growth a node");
  for (const std::string& name : reporter.order) {
    const std::vector<double>& all = reporter.found.at(name);
    std::printf("%-24s", name.c_str());
    for (const double value : all) std::printf(" %10.2f", value);
    std::printf(" %14.2f\n", all.back() / all.front() / 100);
  }
}

}  // namespace

int main(int argc, char** argv) {
  orvlib::RuntimeRegistry registry;
  registry.load(VESK_SOURCE_DIR "/library");
  registry.makeCurrent();
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  CollectingReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  printTable(reporter);
  return 0;
}
