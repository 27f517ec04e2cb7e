// After each of many random edits, what the evaluator gives and what watch points have recorded is
// what a plain evaluation gives.

#include "standalone/graph/texts/ListText.h"
#include "standalone/graph/types/ValueText.h"
#include "tests/standalone/graph/evaluation/RandomEdits.h"
#include "tests/standalone/graph/evaluation/Reference.h"

namespace orvlib {
namespace {

class RandomlyEdited : public EvaluationFixture, public testing::WithParamInterface<unsigned> {
 protected:
  template <class Visit>
  void forEachPort(Visit visit) {
    const auto withChildren = [&visit](auto& self, PortObject& port) -> void {
      visit(port);
      if (!port.madeChildren()) return;
      for (PortObject* child : port.madeChildren()->items()) self(self, *child);
    };
    for (NodeObject* node : edits_.nodes()) {
      for (PortListObject* list : {&node->inputList(), &node->outputList()}) {
        for (PortObject* port : list->items()) {
          withChildren(withChildren, *port);
          if (port->twin()) withChildren(withChildren, *port->twin());
        }
      }
    }
  }

  /// What the outputs of a node are, or a pair of state ports is.
  using Shape = std::vector<std::pair<const PortObject*, std::string>>;

  static Shape shapeOfOutputs(const NodeObject& node) {
    Shape shape;
    for (PortObject* port : node.outputList().items())
      shape.emplace_back(port, port->valueType().name);
    return shape;
  }

  static Shape shapeOfPair(const PortObject& input) {
    const PortObject* output = input.statePartner();
    if (!output) return {};
    return {{&input, input.valueType().name}, {output, output->valueType().name}};
  }

  /// Tells the reference what has been forgotten.
  void forget() {
    for (NodeObject* node : edits_.nodes()) {
      const Shape outputs = shapeOfOutputs(*node);
      const bool same = std::exchange(outputs_[node], outputs) == outputs;
      if (!same && node->hasOwnPorts()) reference_.forgetGiven(*node);
      for (PortObject* port : node->inputList().items()) {
        if (port->kind() == PortKind::Outer) pairs_.try_emplace(port);
      }
    }
    // Also of ports that an undo step keeps.
    for (auto& [port, former] : pairs_) {
      const Shape shape = shapeOfPair(*port);
      if (shape != former || shape.empty()) reference_.forgetState(*port);
      former = shape;
    }
  }

  void checkWatchPoints() {
    forEachPort([this](PortObject& port) {
      WatchPointObject* watched = port.watchPoint();
      if (!watched || !watched->isEnabled()) return;
      ORV_v1::StringArray values;
      ASSERT_TRUE(watched->getRecordedValues("value", values));
      ASSERT_GT(values.size(), 0u) << port.fullPath();
      ASSERT_EQ(values[values.size() - 1], writeList(printValue(reference_.of(port))))
          << port.fullPath();
      ++watchPointsChecked_;
    });
  }

  void checkValues() {
    forEachPort([this](PortObject& port) {
      ASSERT_EQ(printValue(evaluator_.value(port)), printValue(reference_.of(port)))
          << port.fullPath() << (port.isInner() ? " (inner)" : "")
          << (port.statePartner() ? " (state)" : "");
      ++portsChecked_;
    });
    for (NodeObject* node : edits_.nodes()) reference_.noteGiven(*node);
  }

  void stepBoth() {
    std::map<PortObject*, Value> next;
    forEachPort([&](PortObject& port) {
      if (port.kind() != PortKind::Outer || !port.isInput() || !port.statePartner()) return;
      PortObject& output = *port.statePartner();
      next[&port] = convert(reference_.of(output), output.valueType(), port.valueType());
    });
    for (auto& [port, state] : next) reference_.setState(*port, state);
    statesSet_ += next.size();
    evaluator_.step();
  }

  void doOne(unsigned number) {
    if (number % 7 == 3) {
      stepBoth();
    } else if (number % 97 == 1) {
      evaluator_.resetState();
      reference_.forgetStates();
    } else {
      edits_.doOne();
    }
    forget();
    reference_.restart();
  }

  RandomEdits edits_{graph_, GetParam()};
  Reference reference_;
  std::map<const NodeObject*, Shape> outputs_;
  std::map<PortObject*, Shape> pairs_;
  std::size_t portsChecked_ = 0;
  std::size_t watchPointsChecked_ = 0;
  std::size_t statesSet_ = 0;
};

TEST_P(RandomlyEdited, EveryPortGivesWhatAPlainEvaluationGives) {
  for (unsigned number = 0; number < 600; ++number) {
    doOne(number);
    checkWatchPoints();
    checkValues();
    ASSERT_FALSE(HasFatalFailure()) << "after edit " << number;
  }
  EXPECT_GT(portsChecked_, 10000u);
  EXPECT_GT(watchPointsChecked_, 100u);
  EXPECT_GT(statesSet_, 10u);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomlyEdited, testing::Range(1u, 9u));

}  // namespace
}  // namespace orvlib
