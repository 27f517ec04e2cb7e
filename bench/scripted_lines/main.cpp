// What a scripted edit of a graph costs, from the text of its line to the undo step that it leaves,
// in graphs of 1,000, 10,000 and 100,000 nodes; and what the same calls of the graph library cost
// without a line. Ends with the nanoseconds of one line and how many times more it takes than the
// calls. A line that makes a compound moves 100 nodes in, and a listing lists the whole graph.

#include <cstdio>
#include <map>

#include "bench/scripted_lines/Measuring.h"
#include "standalone/graph/library/RuntimeRegistry.h"

namespace {

const std::vector<Pair>& pairs() {
  static const std::vector<Pair> all = [] {
    std::vector<Pair> both = compoundPairs();
    for (Pair& pair : graphPairs()) both.push_back(std::move(pair));
    return both;
  }();
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
