#include "standalone/graph/evaluation/Evaluator.h"

#include "tests/standalone/graph/evaluation/EvaluationFixture.h"

namespace orvlib {
namespace {

using EvaluatorTest = EvaluationFixture;

TEST_F(EvaluatorTest, ComputesANodeFromItsValues) {
  NodeObject* sum = addSum("sum");
  set(sum->port("a"), 2);
  set(sum->port("b"), 3);
  EXPECT_EQ(value(sum->port("result")), number(5));
}

TEST_F(EvaluatorTest, AnInputGivesItsOwnValueWhileNothingIsConnected) {
  NodeObject* sum = addSum("sum");
  EXPECT_EQ(value(sum->port("a")), sum->port("a")->defaultValue());
  set(sum->port("a"), 2);
  EXPECT_EQ(value(sum->port("a")), number(2));
}

TEST_F(EvaluatorTest, AConnectedInputGivesTheValueOfTheSource) {
  NodeObject* one = addSum("one");
  NodeObject* two = addSum("two");
  set(one->port("a"), 2);
  wire(one->port("result"), two->port("a"));
  EXPECT_EQ(value(two->port("a")), number(2));
}

TEST_F(EvaluatorTest, ConvertsToTheTypeOfTheInput) {
  NodeObject* sum = addSum("sum");
  NodeObject* whole = add(top(), "core::math::integer::add", "whole");
  set(sum->port("a"), -2.75);
  ASSERT_TRUE(wire(sum->port("result"), whole->inputList().at(0)));
  EXPECT_EQ(value(whole->inputList().at(0)), Value(Integers{-2}));
  EXPECT_EQ(value(whole->outputList().at(0)), Value(Integers{-2}));
}

TEST_F(EvaluatorTest, AComponentThatIsConnectedReplacesItsPart) {
  NodeObject* sum = addSum("sum");
  set(sum->port("a"), 7);
  NodeObject* vector = add(top(), "core::vector::vector3::add", "vector");
  PortObject* input = vector->inputList().at(0);
  set(input, Floats{1, 2, 3});
  ASSERT_TRUE(wire(sum->port("result"), input->child("y")));
  EXPECT_EQ(value(input), Value(Floats{1, 7, 3}));
  EXPECT_EQ(value(input->child("y")), number(7));
  EXPECT_EQ(value(input->child("z")), number(3));
}

TEST_F(EvaluatorTest, AComponentOfAnOutputGivesItsPart) {
  NodeObject* vector = add(top(), "core::vector::vector3::add", "vector");
  set(vector->inputList().at(0), Floats{1, 2, 3});
  PortObject* part = vector->outputList().at(0)->child("z");
  EXPECT_EQ(value(part), number(3));
  NodeObject* sum = addSum("sum");
  wire(part, sum->port("a"));
  EXPECT_EQ(value(sum->port("result")), number(3));
}

TEST_F(EvaluatorTest, AFanInPortGivesItsMembersInOrder) {
  NodeObject* build = add(top(), "core::array::build", "build");
  PortObject* elements = build->port("elements");
  set(elements, Floats{8, 9});
  EXPECT_EQ(value(build->outputList().at(0)), Value(Floats{8, 9}));
  for (float x : {3.0F, 1.0F, 2.0F}) {
    NodeObject* sum = addSum("sum" + std::to_string(static_cast<int>(x)));
    set(sum->port("a"), x);
    wire(sum->port("result"), elements);
  }
  EXPECT_EQ(value(elements), Value(Floats{3, 1, 2}));
  EXPECT_EQ(value(elements->childList()->at(1)), number(1));
  EXPECT_EQ(value(build->outputList().at(0)), Value(Floats{3, 1, 2}));
}

TEST_F(EvaluatorTest, AMemberWhoseComponentIsConnectedHasTheDefaultElsewhere) {
  NodeObject* build = add(top(), "core::array::build_vector3", "build");
  NodeObject* vector = add(top(), "core::vector::vector3::add", "vector");
  PortObject* elements = build->port("elements");
  ASSERT_TRUE(wire(vector->outputList().at(0), elements));
  PortObject* member = elements->childList()->at(0);
  NodeObject* sum = addSum("sum");
  set(sum->port("a"), 4);
  run(Disconnect{{PortRef(vector->outputList().at(0)), PortRef(member)}});
  ASSERT_TRUE(run(Connect{{PortRef(sum->port("result")), PortRef(member->child("y"))}}));
  EXPECT_EQ(value(elements), Value(Floats{0, 4, 0}));
}

TEST_F(EvaluatorTest, ACompoundsPortsPassThrough) {
  CompoundObject* group = addCompound(top(), "group");
  PortObject* in = addPort(*group, PortDirection::Input, "in", "float");
  PortObject* out = addPort(*group, PortDirection::Output, "out", "int");
  NodeObject* inner = add(*group, "core::math::add", "inner");
  set(inner->port("b"), 0.5);
  ASSERT_TRUE(wire(in->twin(), inner->port("a")));
  ASSERT_TRUE(wire(inner->port("result"), out->twin()));
  set(in, 3);
  EXPECT_EQ(value(in), number(3));
  EXPECT_EQ(value(in->twin()), number(3));
  EXPECT_EQ(value(out->twin()), Value(Integers{3}));
  EXPECT_EQ(value(out), Value(Integers{3}));
}

TEST_F(EvaluatorTest, ADisabledNodeGivesTheDefaultsOfItsTypes) {
  NodeObject* transform = add(top(), "core::matrix::matrix4::transpose", "transform");
  NodeObject* sum = addSum("sum");
  set(sum->port("a"), 2);
  setState(sum, NodeState::Enabled, false);
  setState(transform, NodeState::Enabled, false);
  EXPECT_EQ(value(sum->port("result")), number(0));
  PortObject* result = transform->outputList().at(0);
  EXPECT_EQ(value(result), result->valueType().defaultValue);
  setState(sum, NodeState::Enabled, true);
  EXPECT_EQ(value(sum->port("result")), number(2));
}

TEST_F(EvaluatorTest, ADisabledNodeAsksForNothing) {
  NodeObject* one = addSum("one");
  NodeObject* two = addSum("two");
  wire(one->port("result"), two->port("a"));
  setState(two, NodeState::Enabled, false);
  value(two->port("result"));
  EXPECT_EQ(evaluator_.computedCount(), 1u);
}

TEST_F(EvaluatorTest, ABypassedNodeGivesTheFirstInputOfTheSameType) {
  NodeObject* sum = addSum("sum");
  set(sum->port("a"), 2);
  set(sum->port("b"), 3);
  PortObject* extra = addOwnPort(sum, PortDirection::Input, "extra", "int");
  run(MovePort{PortRef(extra), 0});
  set(extra, Integers{9});
  setState(sum, NodeState::Bypassed, true);
  EXPECT_EQ(value(sum->port("result")), number(2));
  run(MovePort{PortRef(sum->port("b")), 0});
  EXPECT_EQ(value(sum->port("result")), number(3));
}

TEST_F(EvaluatorTest, ABypassedNodeElseGivesTheFirstInputThatConverts) {
  NodeObject* sum = addSum("sum");
  set(sum->port("a"), 2);
  PortObject* whole = addOwnPort(sum, PortDirection::Output, "whole", "int");
  PortObject* text = addOwnPort(sum, PortDirection::Output, "text", "string");
  setState(sum, NodeState::Bypassed, true);
  EXPECT_EQ(value(whole), Value(Integers{2}));
  EXPECT_EQ(value(text), text->valueType().defaultValue);
}

TEST_F(EvaluatorTest, AFrozenNodeKeepsWhatItGave) {
  NodeObject* one = addSum("one");
  NodeObject* two = addSum("two");
  wire(one->port("result"), two->port("a"));
  set(one->port("a"), 2);
  EXPECT_EQ(value(two->port("result")), number(2));
  setState(two, NodeState::Frozen, true);
  set(one->port("a"), 3);
  set(two->port("b"), 10);
  EXPECT_EQ(value(two->port("result")), number(2));
  EXPECT_EQ(value(two->port("a")), number(3));
  setState(two, NodeState::Frozen, false);
  EXPECT_EQ(value(two->port("result")), number(13));
}

TEST_F(EvaluatorTest, AFrozenNodeThatNeverGaveAnythingComputesOnce) {
  NodeObject* sum = addSum("sum");
  set(sum->port("a"), 2);
  setState(sum, NodeState::Frozen, true);
  EXPECT_EQ(value(sum->port("result")), number(2));
  set(sum->port("a"), 3);
  EXPECT_EQ(value(sum->port("result")), number(2));
}

TEST_F(EvaluatorTest, DisabledWinsOverBypassedAndFrozenOverBoth) {
  NodeObject* sum = addSum("sum");
  set(sum->port("a"), 2);
  set(sum->port("b"), 3);
  setState(sum, NodeState::Bypassed, true);
  setState(sum, NodeState::Enabled, false);
  EXPECT_EQ(value(sum->port("result")), number(0));
  setState(sum, NodeState::Enabled, true);
  EXPECT_EQ(value(sum->port("result")), number(2));
  setState(sum, NodeState::Frozen, true);
  setState(sum, NodeState::Enabled, false);
  EXPECT_EQ(value(sum->port("result")), number(2));
}

TEST_F(EvaluatorTest, WhatComputesNothingGivesItsSetValue) {
  NodeObject* placeholder =
      insert(top(), factory().makePlaceholder(*unknownDefinition(), "placeholder"));
  PortObject* out = addOwnPort(placeholder, PortDirection::Output, "out", "float");
  EXPECT_EQ(value(out), number(0));
  set(out, 4);
  EXPECT_EQ(value(out), number(4));
}

TEST_F(EvaluatorTest, AnOutputThatIsNotTheDefinitionsGivesItsSetValue) {
  NodeObject* sum = addSum("sum");
  PortObject* extra = addOwnPort(sum, PortDirection::Output, "extra", "float");
  set(extra, 4);
  set(sum->port("a"), 1);
  run(MovePort{PortRef(extra), 0});
  EXPECT_EQ(value(extra), number(4));
  EXPECT_EQ(value(sum->port("result")), number(1));
}

TEST_F(EvaluatorTest, EachOfManyOutputsGivesItsOwnValueWhereverItMoves) {
  NodeObject* sum = addSum("sum");
  std::vector<PortObject*> extra;
  for (int i = 0; i < 100; ++i) {
    extra.push_back(addOwnPort(sum, PortDirection::Output, "extra" + std::to_string(i), "float"));
    set(extra.back(), static_cast<float>(i));
  }
  EXPECT_EQ(value(extra[70]), number(70));
  run(MovePort{PortRef(extra[70]), 0});
  set(sum->port("a"), 1000);
  for (int i = 0; i < 100; ++i) EXPECT_EQ(value(extra[i]), number(static_cast<float>(i)));
  EXPECT_EQ(value(sum->port("result")), number(1000));
}

TEST_F(EvaluatorTest, AnOutputThatCameBackGivesItsOwnValue) {
  NodeObject* sum = addSum("sum");
  PortObject* first = addOwnPort(sum, PortDirection::Output, "first", "float");
  PortObject* second = addOwnPort(sum, PortDirection::Output, "second", "float");
  set(first, 1);
  set(second, 2);
  EXPECT_EQ(value(second), number(2));
  Transaction edits;
  ASSERT_TRUE(runRemovePort(edits, *first));
  EXPECT_EQ(value(second), number(2));
  ASSERT_TRUE(edits.revert());
  EXPECT_EQ(value(first), number(1));
  EXPECT_EQ(value(second), number(2));
}

TEST_F(EvaluatorTest, AFrozenNodeWhoseOutputsChangeComputesOnce) {
  NodeObject* sum = addSum("sum");
  PortObject* extra = addOwnPort(sum, PortDirection::Output, "extra", "float");
  value(extra);
  setState(sum, NodeState::Frozen, true);
  set(sum->port("a"), 5);
  EXPECT_EQ(value(sum->port("result")), number(0));
  run(SetPortType(PortRef(extra), graph_.core().findType("vector3"), nullptr));
  EXPECT_EQ(value(extra), Value(Floats{0, 0, 0}));
  EXPECT_EQ(value(sum->port("result")), number(5));
}

TEST_F(EvaluatorTest, AChainOfAHundredThousandNodesNeedsNoRecursion) {
  PortObject* last = nullptr;
  PortObject* first = nullptr;
  for (int i = 0; i < 100000; ++i) {
    NodeObject* sum = addSum("sum" + std::to_string(i));
    if (last) edits_.run(Connect{{PortRef(last), PortRef(sum->port("a"))}});
    if (!first) first = sum->port("a");
    last = sum->port("result");
  }
  set(first, 1);
  EXPECT_EQ(value(last), number(1));
  EXPECT_EQ(evaluator_.computedCount(), 100000u);
  set(first, 2);
  EXPECT_EQ(value(last), number(2));
}

TEST_F(EvaluatorTest, ComputesNothingTwiceInADiamond) {
  NodeObject* source = addSum("source");
  NodeObject* left = addSum("left");
  NodeObject* right = addSum("right");
  NodeObject* end = addSum("end");
  wire(source->port("result"), left->port("a"));
  wire(source->port("result"), right->port("a"));
  wire(left->port("result"), end->port("a"));
  wire(right->port("result"), end->port("b"));
  set(source->port("a"), 2);
  EXPECT_EQ(value(end->port("result")), number(4));
  EXPECT_EQ(evaluator_.computedCount(), 4u);
}

TEST_F(EvaluatorTest, ComputesAnewOnlyWhatLiesBelowAnEdit) {
  NodeObject* source = addSum("source");
  NodeObject* left = addSum("left");
  NodeObject* right = addSum("right");
  NodeObject* end = addSum("end");
  wire(source->port("result"), left->port("a"));
  wire(source->port("result"), right->port("a"));
  wire(left->port("result"), end->port("a"));
  value(end->port("result"));
  value(right->port("result"));
  const auto before = evaluator_.computedCount();
  set(left->port("b"), 1);
  value(end->port("result"));
  value(right->port("result"));
  EXPECT_EQ(evaluator_.computedCount(), before + 2);
}

TEST_F(EvaluatorTest, ComputesOnlyWhatIsAskedFor) {
  NodeObject* one = addSum("one");
  NodeObject* two = addSum("two");
  wire(one->port("result"), two->port("a"));
  value(two->port("a"));
  EXPECT_EQ(evaluator_.computedCount(), 1u);
}

TEST_F(EvaluatorTest, NothingBelowAFrozenNodeIsComputedForWhatComesIntoIt) {
  NodeObject* one = addSum("one");
  NodeObject* two = addSum("two");
  wire(one->port("result"), two->port("a"));
  value(two->port("result"));
  setState(one, NodeState::Frozen, true);
  value(two->port("result"));
  const auto before = evaluator_.computedCount();
  set(one->port("a"), 3);
  value(two->port("result"));
  EXPECT_EQ(evaluator_.computedCount(), before);
}

TEST_F(EvaluatorTest, NothingIsComputedUnlessAskedFor) {
  NodeObject* sum = addSum("sum");
  set(sum->port("a"), 3);
  EXPECT_EQ(evaluator_.computedCount(), 0u);
}

TEST_F(EvaluatorTest, ComputesInsideABracketWhatIsAskedFor) {
  NodeObject* sum = addSum("sum");
  const ChangeHold hold(graph_);
  set(sum->port("a"), 3);
  EXPECT_EQ(value(sum->port("result")), number(3));
}

TEST_F(EvaluatorTest, FollowsUndoAndRedo) {
  NodeObject* one = addSum("one");
  NodeObject* two = addSum("two");
  set(one->port("a"), 5);
  Transaction edits;
  ASSERT_TRUE(runConnect(edits, *one->port("result"), *two->port("a"), Occupied::Refuse));
  EXPECT_EQ(value(two->port("result")), number(5));
  ASSERT_TRUE(edits.revert());
  EXPECT_EQ(value(two->port("result")), number(0));
  ASSERT_TRUE(edits.reapply());
  EXPECT_EQ(value(two->port("result")), number(5));
}

TEST_F(EvaluatorTest, APortOfNoNodeGivesItsOwnValue) {
  const PortRef port =
      factory().makePort(PortDirection::Output, "loose", graph_.core().findType("int"));
  EXPECT_EQ(value(port.get()), Value(Integers{0}));
}

TEST_F(EvaluatorTest, MayOutliveItsGraph) {
  auto graph = std::make_unique<ContainerObject>("standard");
  const Evaluator evaluator(*graph);
  graph.reset();
  EXPECT_EQ(evaluator.computedCount(), 0u);
}

}  // namespace
}  // namespace orvlib
