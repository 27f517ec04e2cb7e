// What it takes to save and to load a graph of 1,000, 10,000 and 100,000 nodes, each with three
// ports, one connection and one value: in one level, in levels of a hundred, and with the
// connections in an order that has nothing to do with that of the nodes.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "standalone/graph/library/RuntimeRegistry.h"
#include "standalone/graph/storage/GraphText.h"

namespace {

constexpr const char* kHead =
    "vesk-graph 1\nruntime standard\ntype float float\n"
    "definition core::math::add\nin a float\nin b float\nout result float\ngraph\n";

std::string nodeName(std::int64_t number) { return "add" + std::to_string(number); }

void appendNode(std::string& text, std::int64_t number) {
  text += "node " + nodeName(number) + " core::math::add\nvalue b 0.5\n";
}

void appendWire(std::string& text, std::int64_t source, std::int64_t target) {
  text += "wire " + nodeName(source) + ".result " + nodeName(target) + ".a\n";
}

std::string chain(std::int64_t count) {
  std::string text = kHead;
  for (std::int64_t i = 0; i < count; ++i) appendNode(text, i);
  for (std::int64_t i = 1; i < count; ++i) appendWire(text, i - 1, i);
  return text + "end\n";
}

std::string nested(std::int64_t count) {
  constexpr std::int64_t kInLevel = 100;
  std::string text = kHead;
  for (std::int64_t first = 0; first < count; first += kInLevel) {
    text += "compound group" + std::to_string(first) + "\n";
    for (std::int64_t i = 0; i < kInLevel; ++i) appendNode(text, first + i);
    for (std::int64_t i = 1; i < kInLevel; ++i) appendWire(text, first + i - 1, first + i);
    text += "end\n";
  }
  return text + "end\n";
}

/// Each node takes from any other that comes before it in a random order.
std::string shuffled(std::int64_t count) {
  std::mt19937 random(1);
  std::vector<std::int64_t> order(static_cast<std::size_t>(count));
  for (std::int64_t i = 0; i < count; ++i) order[static_cast<std::size_t>(i)] = i;
  std::shuffle(order.begin(), order.end(), random);
  std::string text = kHead;
  for (std::int64_t i = 0; i < count; ++i) appendNode(text, i);
  for (std::size_t i = 1; i < order.size(); ++i) appendWire(text, order[random() % i], order[i]);
  return text + "end\n";
}

using Shape = std::string (*)(std::int64_t);

void save(benchmark::State& state, Shape shape) {
  orvlib::ContainerObject graph("standard");
  if (orvlib::readGraph(shape(state.range(0)), graph)) state.SkipWithError("not read");
  for (auto _ : state) benchmark::DoNotOptimize(orvlib::writeGraph(graph));
}

void load(benchmark::State& state, Shape shape) {
  orvlib::ContainerObject graph("standard");
  if (orvlib::readGraph(shape(state.range(0)), graph)) state.SkipWithError("not read");
  const std::string text = orvlib::writeGraph(graph);
  for (auto _ : state) {
    state.PauseTiming();
    auto fresh = std::make_unique<orvlib::ContainerObject>("standard");
    state.ResumeTiming();
    if (orvlib::readGraph(text, *fresh)) state.SkipWithError("not read");
    state.PauseTiming();
    fresh.reset();
    state.ResumeTiming();
  }
}

void sizes(benchmark::internal::Benchmark* one) {
  one->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
}

BENCHMARK_CAPTURE(save, one_level, chain)->Apply(sizes);
BENCHMARK_CAPTURE(load, one_level, chain)->Apply(sizes);
BENCHMARK_CAPTURE(save, nested, nested)->Apply(sizes);
BENCHMARK_CAPTURE(load, nested, nested)->Apply(sizes);
BENCHMARK_CAPTURE(save, shuffled, shuffled)->Apply(sizes);
BENCHMARK_CAPTURE(load, shuffled, shuffled)->Apply(sizes);

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  orvlib::RuntimeRegistry registry;
  for (const auto& one : registry.load(VESK_SOURCE_DIR "/library")) {
    std::fprintf(stderr, "%s\n", one.toText().c_str());
  }
  registry.makeCurrent();
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
