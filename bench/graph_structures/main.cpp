// What an operation of the graph library's structures costs in levels of 1,000, 10,000 and 100,000
// siblings. Ends with the nanoseconds of one operation, and how many times more it costs in the
// largest level than in the smallest: what is left there is cache misses and logarithms.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace {

class CollectingReporter : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      auto& found = nanoseconds[run.run_name.function_name];
      if (found.empty()) order.push_back(run.run_name.function_name);
      found.push_back(run.counters.at("each").value * 1e9);
    }
    ConsoleReporter::ReportRuns(runs);
  }
  std::vector<std::string> order;
  std::map<std::string, std::vector<double>> nanoseconds;
};

void printTable(const CollectingReporter& reporter) {
  std::printf("\n%-28s %10s %10s %10s %10s\n", "nanoseconds each", "1,000", "10,000", "100,000",
              "growth");
  for (const std::string& name : reporter.order) {
    const std::vector<double>& found = reporter.nanoseconds.at(name);
    std::printf("%-28s", name.c_str());
    for (const double value : found) std::printf(" %10.1f", value);
    std::printf(" %10.2f\n", found.back() / found.front());
  }
}

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  CollectingReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  printTable(reporter);
  return 0;
}
