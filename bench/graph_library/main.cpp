// What an operation of the graph library costs through its commands, in graphs of 1,000, 10,000 and
// 100,000 nodes: all in one level, or spread over compounds that are nested four deep. Ends with
// the nanoseconds of one operation and how many times more it costs in the largest graph than in
// the smallest, and with the bytes that a node takes together with the command that added it.

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <map>
#include <numeric>

#include "bench/graph_library/BoundCommands.h"
#include "bench/graph_library/Graph.h"
#include "standalone/graph/library/RuntimeRegistry.h"

namespace {

using Sizes = benchmark::internal::Benchmark;

void allSizes(Sizes* one) {
  for (const int depth : {1, 4}) {
    for (const int count : {1000, 10000, 100000}) one->Args({count, depth});
  }
  one->UseManualTime();
}

std::size_t countOf(const benchmark::State& state) {
  return static_cast<std::size_t>(state.range(0));
}

std::vector<std::size_t> shuffled(std::size_t count) {
  std::vector<std::size_t> all(count);
  std::iota(all.begin(), all.end(), 0u);
  std::shuffle(all.begin(), all.end(), std::mt19937(1));
  return all;
}

/// Times `operation` for the whole graph, which `prepare` has filled.
template <class Prepare, class Operation>
void measure(benchmark::State& state, std::size_t operations, Prepare prepare,
             Operation operation) {
  double seconds = 0;
  for (auto _ : state) {
    Graph graph(static_cast<unsigned>(state.range(1)));
    prepare(graph);
    const auto start = std::chrono::steady_clock::now();
    operation(graph);
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
    state.SetIterationTime(taken.count());
    seconds += taken.count();
  }
  const auto all = static_cast<double>(state.iterations()) * static_cast<double>(operations);
  state.counters["ns"] = seconds / all * 1e9;
}

void nothing(Graph&) {}

void add(benchmark::State& state) {
  const std::size_t count = countOf(state);
  measure(state, count, nothing, [&](Graph& graph) { graph.fill(count); });
}

std::vector<std::size_t> inOrder(std::size_t count) {
  std::vector<std::size_t> all(count);
  std::iota(all.begin(), all.end(), 0u);
  return all;
}

void connect(benchmark::State& state, const std::vector<std::size_t>& order) {
  const std::size_t count = countOf(state);
  measure(
      state, order.size(), [&](Graph& graph) { graph.fill(count); },
      [&](Graph& graph) {
        for (const std::size_t index : order) graph.connect(index);
      });
}

void connectInOrder(benchmark::State& state) { connect(state, inOrder(countOf(state) - 4)); }
void connectShuffled(benchmark::State& state) { connect(state, shuffled(countOf(state) - 4)); }

void setValue(benchmark::State& state, const std::vector<std::size_t>& order) {
  const std::size_t count = countOf(state);
  ORV_v1::StringArray texts;
  texts.add("0.5");
  measure(
      state, count, [&](Graph& graph) { graph.fill(count); },
      [&](Graph& graph) {
        for (const std::size_t index : order) graph.setValue(index, texts);
      });
}

void setValueInOrder(benchmark::State& state) { setValue(state, inOrder(countOf(state))); }
void setValueShuffled(benchmark::State& state) { setValue(state, shuffled(countOf(state))); }

void findByName(benchmark::State& state) {
  const std::size_t count = countOf(state);
  const auto order = shuffled(count);
  std::vector<std::string> names;
  measure(
      state, count,
      [&](Graph& graph) {
        graph.fill(count);
        names.clear();
        for (const std::size_t index : order) names.push_back(graph.node(index)->getName());
      },
      [&](Graph& graph) {
        for (std::size_t i = 0; i < count; ++i) {
          const ORV_v1::NodeList& children = graph.level(order[i]).getChildNodes();
          benchmark::DoNotOptimize(children[names[i].c_str()]);
        }
      });
}

void findByPath(benchmark::State& state) {
  const std::size_t count = countOf(state);
  const auto order = shuffled(count);
  std::vector<std::string> paths;
  measure(
      state, count,
      [&](Graph& graph) {
        graph.fill(count);
        paths.clear();
        for (const std::size_t index : order) {
          paths.emplace_back(graph.node(index)->getFullPathName().getName());
        }
      },
      [&](Graph& graph) {
        for (const std::string& path : paths) {
          benchmark::DoNotOptimize(graph.container().findNodeFromPath(path.c_str()));
        }
      });
}

void rename(benchmark::State& state) {
  const std::size_t count = countOf(state);
  const auto order = shuffled(count);
  measure(
      state, count, [&](Graph& graph) { graph.fill(count); },
      [&](Graph& graph) {
        for (const std::size_t index : order) graph.node(index)->setName("renamed");
      });
}

void remove(benchmark::State& state) {
  const std::size_t count = countOf(state);
  const auto order = shuffled(count);
  std::deque<ORV_v1::NodeCommand> commands;
  measure(
      state, count, [&](Graph& graph) { graph.fill(count); },
      [&](Graph& graph) {
        for (const std::size_t index : order) {
          const Graph::NodeHandle& node = graph.node(index);
          ORV_v1::NodeCommand& command = commands.emplace_back();
          command.removeNode(node->getParentCompound(), node->getName());
          command.redo();
        }
      });
}

void undoAll(benchmark::State& state) {
  const std::size_t count = countOf(state);
  measure(
      state, count, [&](Graph& graph) { graph.fill(count); },
      [](Graph& graph) { graph.undoAllAdds(); });
}

void redoAll(benchmark::State& state) {
  const std::size_t count = countOf(state);
  measure(
      state, count,
      [&](Graph& graph) {
        graph.fill(count);
        graph.undoAllAdds();
      },
      [](Graph& graph) { graph.redoAllAdds(); });
}

void bindEmptyCommands(benchmark::State& state) {
  const std::size_t count = countOf(state);
  std::string path;
  measure(
      state, count,
      [&](Graph& graph) {
        graph.fill(count);
        path = graph.level(3).getAsNode()->getFullPathName().getName();
      },
      [&](Graph& graph) {
        for (std::size_t i = 0; i < count; ++i) {
          BoundCommands commands(graph.container(), path.c_str());
          benchmark::DoNotOptimize(commands.redo());
        }
      });
}

BENCHMARK(add)->Apply(allSizes);
BENCHMARK(connectInOrder)->Apply(allSizes);
BENCHMARK(connectShuffled)->Apply(allSizes);
BENCHMARK(setValueInOrder)->Apply(allSizes);
BENCHMARK(setValueShuffled)->Apply(allSizes);
BENCHMARK(findByName)->Apply(allSizes);
BENCHMARK(findByPath)->Apply(allSizes);
BENCHMARK(rename)->Apply(allSizes);
BENCHMARK(remove)->Apply(allSizes);
BENCHMARK(undoAll)->Apply(allSizes);
BENCHMARK(redoAll)->Apply(allSizes);
BENCHMARK(bindEmptyCommands)->Apply(allSizes);

class CollectingReporter : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      const bool nested = run.run_name.args.ends_with("/4");
      const std::string name = run.run_name.function_name + (nested ? ", nested" : "");
      if (!found.contains(name)) order.push_back(name);
      found[name].push_back(run.counters.at("ns").value);
    }
    ConsoleReporter::ReportRuns(runs);
  }

  std::vector<std::string> order;
  std::map<std::string, std::vector<double>> found;
};

void printTable(const CollectingReporter& reporter) {
  std::printf("\n%-24s %10s %10s %10s %10s\n", "nanoseconds each", "1,000", "10,000", "100,000",
              "growth");
  for (const std::string& name : reporter.order) {
    const std::vector<double>& each = reporter.found.at(name);
    std::printf("%-24s", name.c_str());
    for (const double value : each) std::printf(" %10.1f", value);
    std::printf(" %10.2f\n", each.back() / each.front());
  }
}

std::size_t usedBytes() {
  const auto info = mallinfo2();
  return info.uordblks + info.hblkhd;
}

void printBytes() {
  constexpr std::size_t kCount = 100000;
  Graph graph(1);
  const std::size_t before = usedBytes();
  graph.fill(kCount);
  const std::size_t each = (usedBytes() - before) / kCount;
  std::printf("\n%zu bytes for a node with the command that added it\n", each);
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
  printBytes();
  return 0;
}
