#include "standalone/graph/model/OrderedList.h"

#include "bench/graph_structures/Sizes.h"

namespace {

struct Element {};
using List = orvlib::OrderedList<Element>;

/// A level as it is after a life of edits: each element came at a random place.
class Level {
 public:
  explicit Level(const benchmark::State& state)
      : all(static_cast<std::size_t>(state.range(0))), order(shuffled(all.size())) {
    std::mt19937 random(2);
    for (Element& element : all) {
      list.insert(static_cast<unsigned>(random()) % (list.size() + 1), &element);
    }
  }
  unsigned nextIndex() {
    if (++turn_ == order.size()) turn_ = 0;
    return order[turn_];
  }
  Element* nextElement() { return &all[nextIndex()]; }

  std::vector<Element> all;
  std::vector<unsigned> order;
  List list;

 private:
  std::size_t turn_ = 0;
};

void listAppend(benchmark::State& state) {
  std::vector<Element> all(static_cast<std::size_t>(state.range(0)));
  for (auto _ : state) {
    List list;
    for (Element& element : all) list.append(&element);
    benchmark::DoNotOptimize(list.size());
  }
  countOperations(state, state.range(0));
}

void listInsertAndRemove(benchmark::State& state) {
  Level level(state);
  for (auto _ : state) {
    Element* element = level.nextElement();
    level.list.remove(element);
    level.list.insert(level.nextIndex(), element);
  }
  countOperations(state);
}

void listAtRandomIndex(benchmark::State& state) {
  Level level(state);
  for (auto _ : state) benchmark::DoNotOptimize(level.list.at(level.nextIndex()));
  countOperations(state);
}

void listAtEachIndex(benchmark::State& state) {
  Level level(state);
  for (auto _ : state) {
    for (unsigned i = 0; i < level.list.size(); ++i) benchmark::DoNotOptimize(level.list.at(i));
  }
  countOperations(state, state.range(0));
}

void listIndexOf(benchmark::State& state) {
  Level level(state);
  for (auto _ : state) benchmark::DoNotOptimize(level.list.indexOf(level.nextElement()));
  countOperations(state);
}

void listWalk(benchmark::State& state) {
  Level level(state);
  for (auto _ : state) {
    for (Element* element : level.list) benchmark::DoNotOptimize(element);
  }
  countOperations(state, state.range(0));
}

BENCHMARK(listAppend)->Apply(levelSizes);
BENCHMARK(listInsertAndRemove)->Apply(levelSizes);
BENCHMARK(listAtRandomIndex)->Apply(levelSizes);
BENCHMARK(listAtEachIndex)->Apply(levelSizes);
BENCHMARK(listIndexOf)->Apply(levelSizes);
BENCHMARK(listWalk)->Apply(levelSizes);

}  // namespace
