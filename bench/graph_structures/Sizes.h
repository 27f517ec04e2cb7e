#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdint>
#include <numeric>
#include <random>
#include <vector>

/// How many siblings a level has, in all of these measurements.
inline void levelSizes(benchmark::internal::Benchmark* one) {
  one->Arg(1000)->Arg(10000)->Arg(100000);
}

/// 0 to count - 1, in a random order that is the same in each run.
inline std::vector<unsigned> shuffled(std::size_t count) {
  std::vector<unsigned> all(count);
  std::iota(all.begin(), all.end(), 0u);
  std::shuffle(all.begin(), all.end(), std::mt19937(1));
  return all;
}

/// For a measurement whose iteration does `operations` of what its name says. The report is in
/// seconds of one of them.
inline void countOperations(benchmark::State& state, std::int64_t operations = 1) {
  const auto all = static_cast<double>(state.iterations() * operations);
  state.counters["each"] =
      benchmark::Counter(all, benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}
