// What a watch point adds to the evaluation of a chain of 10,000 nodes whose first value changes,
// at its end, in its middle and at a hundred of its nodes, and what a record costs while a ring of
// 100,000 fills and once it is full. The rounds with and without watch points take turns, so that
// both have the same machine; the figure is the median of the ratios of neighbours.

#include <malloc.h>
#include <time.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "standalone/graph/edits/Wiring.h"
#include "standalone/graph/evaluation/Evaluator.h"
#include "standalone/graph/library/RuntimeRegistry.h"
#include "standalone/graph/model/ChangeHold.h"

namespace {

using namespace orvlib;

/// Of this process, which other work on the machine does not disturb.
double processorSeconds() {
  timespec now{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

/// Additions, each of which takes from the one before.
class Chain {
 public:
  explicit Chain(std::size_t count) : evaluator_(graph_) {
    const auto definition = graph_.core().findDefinition("core::math::add");
    const CompoundRef level(graph_.top().compound());
    const NodeFactory factory(graph_.core());
    for (std::size_t i = 0; i < count; ++i) {
      const NodeRef node = factory.makePlain(*definition, "add" + std::to_string(i));
      edits_.run(InsertNode{{level, node, level->nodes().count()}});
      if (i > 0) runConnect(edits_, *output(i - 1), *node->inputList().at(0), Occupied::Refuse);
    }
  }

  PortObject* output(std::size_t index) const {
    return graph_.top().compound()->nodes().at(static_cast<unsigned>(index))->outputList().at(0);
  }

  void watch(std::size_t index, std::uint32_t limit) {
    const WatchPointRef made(new WatchPointObject);
    WatchPointSetup setup;
    setup.limit = limit;
    const ChangeHold hold(graph_);
    edits_.run(SetUpWatchPoint{made, setup});
    edits_.run(SetWatchPoint{PortRef(output(index)), made});
  }

  void unwatch(std::size_t index) { edits_.run(SetWatchPoint{PortRef(output(index)), {}}); }

  /// Seconds for another first value, and what the last node then gives.
  double evaluate() {
    PortObject* leaf = graph_.top().compound()->nodes().at(0)->inputList().at(0);
    PortObject* last = output(graph_.top().compound()->nodes().count() - 1);
    const double start = processorSeconds();
    {
      const ChangeHold hold(graph_);
      Transaction change;
      value_ += 1;
      change.run(SetPortValue{PortRef(leaf), std::make_unique<const Value>(Floats{value_})});
    }
    evaluator_.value(*last);
    return processorSeconds() - start;
  }

 private:
  mutable ContainerObject graph_{"standard"};
  Evaluator evaluator_;
  Transaction edits_;
  float value_ = 0;
};

double medianOf(std::vector<double> all) {
  std::ranges::nth_element(all, all.begin() + static_cast<std::ptrdiff_t>(all.size() / 2));
  return all[all.size() / 2];
}

double evaluateWatched(Chain& chain, const std::vector<std::size_t>& watched) {
  for (const std::size_t index : watched) chain.watch(index, 100);
  const double taken = chain.evaluate();
  for (const std::size_t index : watched) chain.unwatch(index);
  return taken;
}

/// How much longer an evaluation takes with watch points at these nodes than without. Each comes
/// first in every other round.
double addedBy(Chain& chain, const std::vector<std::size_t>& watched) {
  constexpr int kRounds = 600;
  std::vector<double> ratios;
  for (int i = 0; i < kRounds; ++i) {
    const double early = i % 2 == 0 ? evaluateWatched(chain, watched) : chain.evaluate();
    const double late = i % 2 == 0 ? chain.evaluate() : evaluateWatched(chain, watched);
    ratios.push_back(i % 2 == 0 ? early / late : late / early);
  }
  return medianOf(ratios) - 1;
}

std::size_t usedBytes() {
  const auto info = mallinfo2();
  return info.uordblks + info.hblkhd;
}

/// Seconds for so many records.
double recordSome(WatchPointObject& watched, int count) {
  const Value value = Floats{1};
  const double start = processorSeconds();
  for (int i = 0; i < count; ++i) watched.record(static_cast<std::uint64_t>(i), value);
  return processorSeconds() - start;
}

void measureRing() {
  constexpr int kLimit = 100000;
  Chain chain(1);
  chain.watch(0, kLimit);
  WatchPointObject& watched = *chain.output(0)->watchPoint();
  const std::size_t before = usedBytes();
  const double filling = recordSome(watched, kLimit);
  const std::size_t full = usedBytes();
  const double later = recordSome(watched, 10 * kLimit);
  const std::size_t end = usedBytes();
  std::printf("a record while the ring of %d fills: %.1f ns, once it is full: %.1f ns\n", kLimit,
              filling / kLimit * 1e9, later / (10 * kLimit) * 1e9);
  std::printf("bytes of the full ring: %zu, of that after %d more records: %zu\n", full - before,
              10 * kLimit, end - before);
}

void measureChain() {
  constexpr std::size_t kCount = 10000;
  Chain chain(kCount);
  std::vector<double> alone;
  for (int i = 0; i < 200; ++i) alone.push_back(chain.evaluate());
  std::vector<std::size_t> hundred;
  for (std::size_t i = 0; i < 100; ++i) hundred.push_back(i * 100 + 50);
  std::printf("a chain of %zu nodes, evaluated: %.0f us\n", kCount, medianOf(alone) * 1e6);
  const auto report = [&](const char* where, const std::vector<std::size_t>& watched) {
    std::printf("added by %s: %+.2f %%\n", where, addedBy(chain, watched) * 100);
  };
  report("no watch point", {});
  report("a watch point at its end", {kCount - 1});
  report("a watch point in its middle", {kCount / 2});
  report("watch points at a hundred nodes", hundred);
}

}  // namespace

int main() {
  orvlib::RuntimeRegistry registry;
  registry.load(VESK_SOURCE_DIR "/library");
  registry.makeCurrent();
  measureChain();
  measureRing();
  return 0;
}
