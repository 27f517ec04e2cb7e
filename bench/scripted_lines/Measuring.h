#pragma once

#include <benchmark/benchmark.h>
#include <time.h>

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "bench/scripted_lines/ScriptedGraph.h"
#include "platform/ORV_1_0/ChangeBracket.h"

using Lines = std::vector<std::string>;

/// A line, and the calls of the graph library that it stands for.
struct Pair {
  const char* name;
  std::function<void(benchmark::State&)> line;
  std::function<void(benchmark::State&)> call;
};

/// Those of `orvCompound`, and those of the commands on single nodes, ports and connections.
std::vector<Pair> compoundPairs();
std::vector<Pair> graphPairs();

/// How many edits are timed together.
inline constexpr std::size_t kEdits = 1000;

inline std::size_t countOf(const benchmark::State& state) {
  return static_cast<std::size_t>(state.range(0));
}

inline std::string nodeName(std::size_t index) {
  return index == 0 ? "add" : "add" + std::to_string(index);
}

/// Nodes from all over the graph, each once.
inline std::size_t scattered(std::size_t i, std::size_t count) { return i * 7919 % count; }

template <class Text>
Lines linesOf(std::size_t count, Text text) {
  Lines lines;
  for (std::size_t i = 0; i < count; ++i) lines.push_back(text(i));
  return lines;
}

/// Of this process, which other work on the machine does not disturb.
inline double processorSeconds() {
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

inline void nothing(ScriptedGraph&) {}

inline void measureLines(benchmark::State& state, std::size_t count, const Lines& lines) {
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
    const ORV_v1::ChangeBracket bracket = graph_.container().makeChangeBracket(graph_.top().get());
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
    const ORV_v1::ChangeBracket bracket = graph_.container().makeChangeBracket(graph_.top().get());
    if (forward) {
      command.redo();
    } else {
      command.undo();
    }
  }

  ScriptedGraph& graph_;
  std::deque<Command> done_;
};
