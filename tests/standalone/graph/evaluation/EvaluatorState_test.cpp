#include "tests/standalone/graph/evaluation/EvaluationFixture.h"

namespace orvlib {
namespace {

/// A compound that counts: what leaves it is what came in, plus one.
class EvaluatorState : public EvaluationFixture {
 protected:
  EvaluatorState() : group_(addCompound(top(), "group")) {
    EXPECT_TRUE(group_->addStatePorts("before", "after", graph_.core().findType("float")));
    before_ = group_->node()->port("before");
    after_ = group_->node()->port("after");
    NodeObject* sum = add(*group_, "core::math::add", "sum");
    set(sum->port("b"), 1);
    EXPECT_TRUE(wire(before_->twin(), sum->port("a")));
    EXPECT_TRUE(wire(sum->port("result"), after_->twin()));
  }

  CompoundObject* group_;
  PortObject* before_;
  PortObject* after_;
};

TEST_F(EvaluatorState, TheFirstStepBeginsWithTheInputsOwnValue) {
  EXPECT_EQ(value(after_), number(1));
  set(before_, 10);
  EXPECT_EQ(value(before_->twin()), number(10));
  EXPECT_EQ(value(after_), number(11));
}

TEST_F(EvaluatorState, TheFirstStepBeginsWithWhatArrives) {
  NodeObject* sum = addSum("start");
  set(sum->port("a"), 20);
  wire(sum->port("result"), before_);
  EXPECT_EQ(value(after_), number(21));
}

TEST_F(EvaluatorState, EachStepGoesOnFromTheOneBefore) {
  for (const float expected : {1, 2, 3}) {
    EXPECT_EQ(value(after_), number(expected));
    evaluator_.step();
    EXPECT_EQ(value(before_->twin()), number(expected));
  }
}

TEST_F(EvaluatorState, ASecondQuestionInOneStepChangesNothing) {
  EXPECT_EQ(value(after_), number(1));
  EXPECT_EQ(value(after_), number(1));
}

TEST_F(EvaluatorState, TheOuterFaceGivesWhatArrivesAtEachStep) {
  evaluator_.step();
  set(before_, 30);
  EXPECT_EQ(value(before_), number(30));
  EXPECT_EQ(value(before_->twin()), number(1));
}

TEST_F(EvaluatorState, ResettingGoesBackToTheFirstStep) {
  evaluator_.step();
  evaluator_.step();
  set(before_, 5);
  evaluator_.resetState();
  EXPECT_EQ(value(after_), number(6));
}

TEST_F(EvaluatorState, AllPairsStepAtOnce) {
  CompoundObject* follower = addCompound(top(), "follower");
  follower->addStatePorts("before", "after", graph_.core().findType("float"));
  NodeObject* node = follower->node();
  PortObject* in = addPort(*follower, PortDirection::Input, "in", "float");
  wire(in->twin(), node->port("after")->twin());
  wire(after_, in);
  EXPECT_EQ(value(node->port("before")->twin()), number(0));
  evaluator_.step();
  EXPECT_EQ(value(node->port("before")->twin()), number(1));
  evaluator_.step();
  EXPECT_EQ(value(node->port("before")->twin()), number(2));
}

TEST_F(EvaluatorState, ComputesOnlyWhatFollowsAStateThatChanged) {
  CompoundObject* still = addCompound(top(), "still");
  still->addStatePorts("before", "after", graph_.core().findType("float"));
  NodeObject* below = add(*still, "core::math::add", "below");
  wire(still->node()->port("before")->twin(), below->port("a"));
  value(below->port("result"));
  evaluator_.step();
  value(below->port("result"));
  value(after_);
  const auto before = evaluator_.computedCount();
  evaluator_.step();
  value(below->port("result"));
  value(after_);
  EXPECT_EQ(evaluator_.computedCount(), before + 1);
}

TEST_F(EvaluatorState, APairThatIsRemovedBeginsAnewWhenItComesBack) {
  evaluator_.step();
  evaluator_.step();
  Transaction edits;
  ASSERT_TRUE(edits.run(PartState{PortRef(before_), PortRef(after_)}));
  EXPECT_EQ(value(after_), number(1));
  ASSERT_TRUE(edits.revert());
  EXPECT_EQ(value(after_), number(1));
  evaluator_.step();
  EXPECT_EQ(value(after_), number(2));
}

TEST_F(EvaluatorState, ACompoundOutOfTheGraphStandsStill) {
  evaluator_.step();
  Transaction edits;
  ASSERT_TRUE(runRemoveNode(edits, *group_->node()));
  evaluator_.step();
  ASSERT_TRUE(edits.revert());
  EXPECT_EQ(value(after_), number(2));
}

TEST_F(EvaluatorState, StepsAfterTheStatePortsAreGone) {
  evaluator_.step();
  edits_ = Transaction();
  Transaction edits;
  ASSERT_TRUE(runRemovePort(edits, *before_));
  edits = Transaction();
  evaluator_.step();
  EXPECT_EQ(value(after_), number(1));
}

}  // namespace
}  // namespace orvlib
