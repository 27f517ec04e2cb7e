#include <deque>

#include "bench/graph_structures/Sizes.h"
#include "standalone/graph/model/NameTable.h"

namespace {

/// A level whose siblings all wanted the same name.
class Level {
 public:
  explicit Level(const benchmark::State& state)
      : order_(shuffled(static_cast<std::size_t>(state.range(0)))) {
    for (std::size_t i = 0; i < order_.size(); ++i) add();
  }
  void add() {
    names.push_back(table.uniqueName("add"));
    table.add(names.back(), &names.back());
  }
  std::string& nextName() {
    if (++turn_ == order_.size()) turn_ = 0;
    return names[order_[turn_]];
  }

  std::deque<std::string> names;
  orvlib::NameTable<std::string> table;

 private:
  std::vector<unsigned> order_;
  std::size_t turn_ = 0;
};

void nameUniqueAndAdd(benchmark::State& state) {
  for (auto _ : state) {
    const Level level(state);
    benchmark::DoNotOptimize(&level);
  }
  countOperations(state, state.range(0));
}

void nameFind(benchmark::State& state) {
  Level level(state);
  for (auto _ : state) benchmark::DoNotOptimize(level.table.find(level.nextName()));
  countOperations(state);
}

void nameUnique(benchmark::State& state) {
  Level level(state);
  for (auto _ : state) benchmark::DoNotOptimize(level.table.uniqueName("add"));
  countOperations(state);
}

void nameRemoveAndUniqueAndAdd(benchmark::State& state) {
  Level level(state);
  for (auto _ : state) {
    std::string& name = level.nextName();
    level.table.remove(name);
    name = level.table.uniqueName("add");
    level.table.add(name, &name);
  }
  countOperations(state);
}

/// Half of the siblings go, in a random order, and come back.
void nameRemoveHalfAndAddAgain(benchmark::State& state) {
  Level level(state);
  const auto half = state.range(0) / 2;
  std::vector<std::string*> gone;
  for (auto _ : state) {
    for (std::int64_t i = 0; i < half; ++i) {
      gone.push_back(&level.nextName());
      level.table.remove(*gone.back());
    }
    for (std::string* name : gone) {
      *name = level.table.uniqueName("add");
      level.table.add(*name, name);
    }
    gone.clear();
  }
  countOperations(state, half);
}

BENCHMARK(nameUniqueAndAdd)->Apply(levelSizes);
BENCHMARK(nameFind)->Apply(levelSizes);
BENCHMARK(nameUnique)->Apply(levelSizes);
BENCHMARK(nameRemoveAndUniqueAndAdd)->Apply(levelSizes);
BENCHMARK(nameRemoveHalfAndAddAgain)->Apply(levelSizes);

}  // namespace
