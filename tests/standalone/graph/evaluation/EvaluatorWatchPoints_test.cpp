#include "standalone/graph/api/GraphAccess.h"
#include "tests/standalone/graph/evaluation/EvaluationFixture.h"

namespace orvlib {
namespace {

class EvaluatorWatchPoints : public EvaluationFixture {
 protected:
  WatchPointObject* watch(PortObject* port, WatchPointSetup setup = {}) {
    const WatchPointRef made(new WatchPointObject);
    const ChangeHold hold(graph_);
    EXPECT_TRUE(edits_.run(SetWatchPoint{PortRef(port), made}));
    EXPECT_TRUE(edits_.run(SetUpWatchPoint{made, setup}));
    return made.get();
  }

  static std::vector<std::string> recorded(WatchPointObject* watched, const char* name = "value") {
    ORV_v1::StringArray values;
    EXPECT_TRUE(watched->getRecordedValues(name, values));
    return ORV_v1::GraphAccess::textsOf(values);
  }
  using Recorded = std::vector<std::string>;

  void enable(WatchPointObject* watched, bool on) {
    WatchPointSetup setup = watched->setup();
    setup.enabled = on;
    run(SetUpWatchPoint{WatchPointRef(watched), setup});
  }

  NodeObject* sum_ = addSum("sum");
};

TEST_F(EvaluatorWatchPoints, ANewWatchPointRecordsWhatThePortYields) {
  set(sum_->port("a"), 3);
  EXPECT_EQ(recorded(watch(sum_->port("result"))), Recorded{"3"});
}

TEST_F(EvaluatorWatchPoints, ItDoesSoAlsoWhenThePortWasEvaluatedBefore) {
  value(sum_->port("result"));
  EXPECT_EQ(recorded(watch(sum_->port("result"))), Recorded{"0"});
}

TEST_F(EvaluatorWatchPoints, RecordsAfterEachChangeThatReachesThePort) {
  NodeObject* above = addSum("above");
  wire(above->port("result"), sum_->port("a"));
  WatchPointObject* watched = watch(sum_->port("result"));
  set(above->port("a"), 1);
  set(above->port("a"), 2);
  addSum("elsewhere");
  EXPECT_EQ(recorded(watched), (Recorded{"0", "1", "2"}));
}

TEST_F(EvaluatorWatchPoints, RecordsAnEvaluationThatGaveTheSame) {
  WatchPointObject* watched = watch(sum_->port("result"));
  set(sum_->port("a"), 0);
  EXPECT_EQ(recorded(watched), (Recorded{"0", "0"}));
}

TEST_F(EvaluatorWatchPoints, RecordsOnlyChangesWhenSetUpSo) {
  WatchPointSetup setup;
  setup.changesOnly = true;
  WatchPointObject* watched = watch(sum_->port("result"), setup);
  set(sum_->port("a"), 0);
  set(sum_->port("a"), 1);
  EXPECT_EQ(recorded(watched), (Recorded{"0", "1"}));
}

TEST_F(EvaluatorWatchPoints, RecordsOnceForAWholeBracket) {
  WatchPointObject* watched = watch(sum_->port("result"));
  {
    const ChangeHold hold(graph_);
    set(sum_->port("a"), 1);
    set(sum_->port("b"), 2);
    EXPECT_EQ(recorded(watched), Recorded{"0"});
  }
  EXPECT_EQ(recorded(watched), (Recorded{"0", "3"}));
}

TEST_F(EvaluatorWatchPoints, RecordsNothingWhileAClientsBracketIsOpenAndOnceAtItsEnd) {
  WatchPointObject* watched = watch(sum_->port("result"));
  const auto before = evaluator_.computedCount();
  ASSERT_TRUE(graph_.openChangeBracket(nullptr));
  set(sum_->port("a"), 1);
  set(sum_->port("a"), 2);
  set(sum_->port("b"), 3);
  EXPECT_EQ(recorded(watched), Recorded{"0"});
  EXPECT_EQ(evaluator_.computedCount(), before);
  ASSERT_TRUE(graph_.closeChangeBracket(nullptr));
  EXPECT_EQ(recorded(watched), (Recorded{"0", "5"}));
  EXPECT_EQ(evaluator_.computedCount(), before + 1);
}

TEST_F(EvaluatorWatchPoints, RecordsOnlyAtTheEndOfTheOutermostOfTheClientsBrackets) {
  WatchPointObject* watched = watch(sum_->port("result"));
  ASSERT_TRUE(graph_.openChangeBracket(nullptr));
  ASSERT_TRUE(graph_.openChangeBracket(sum_));
  set(sum_->port("a"), 1);
  ASSERT_TRUE(graph_.closeChangeBracket(nullptr));
  EXPECT_EQ(recorded(watched), Recorded{"0"});
  ASSERT_TRUE(graph_.closeChangeBracket(sum_));
  EXPECT_EQ(recorded(watched), (Recorded{"0", "1"}));
}

TEST_F(EvaluatorWatchPoints, RecordsWhatIsAskedForInsideABracket) {
  WatchPointObject* watched = watch(sum_->port("result"));
  {
    const ChangeHold hold(graph_);
    set(sum_->port("a"), 1);
    value(sum_->port("result"));
    EXPECT_EQ(recorded(watched), (Recorded{"0", "1"}));
  }
  EXPECT_EQ(recorded(watched), (Recorded{"0", "1"}));
}

TEST_F(EvaluatorWatchPoints, AskingAgainRecordsNothing) {
  WatchPointObject* watched = watch(sum_->port("result"));
  value(sum_->port("result"));
  EXPECT_EQ(recorded(watched), Recorded{"0"});
}

TEST_F(EvaluatorWatchPoints, NumbersEvaluationsOneByOne) {
  WatchPointObject* one = watch(sum_->port("result"));
  WatchPointObject* two = watch(sum_->port("a"));
  set(sum_->port("a"), 1);
  EXPECT_EQ(recorded(one, "evaluation"), (Recorded{"1", "3"}));
  EXPECT_EQ(recorded(two, "evaluation"), (Recorded{"2", "3"}));
  EXPECT_EQ(evaluator_.evaluationCount(), 3u);
}

TEST_F(EvaluatorWatchPoints, WatchesInputsAndComponents) {
  NodeObject* vector = add(top(), "core::vector::vector3::add", "vector");
  PortObject* input = vector->inputList().at(0);
  WatchPointObject* whole = watch(input);
  WatchPointObject* part = watch(vector->outputList().at(0)->child("y"));
  set(input, Floats{1, 2, 3});
  EXPECT_EQ(recorded(whole), (Recorded{"{0,0,0}", "{1,2,3}"}));
  EXPECT_EQ(recorded(part), (Recorded{"0", "2"}));
}

TEST_F(EvaluatorWatchPoints, WatchesBothFacesOfACompoundsPort) {
  CompoundObject* group = addCompound(top(), "group");
  PortObject* in = addPort(*group, PortDirection::Input, "in", "float");
  WatchPointObject* outside = watch(in);
  WatchPointObject* inside = watch(in->twin());
  set(in, 4);
  EXPECT_EQ(recorded(outside), (Recorded{"0", "4"}));
  EXPECT_EQ(recorded(inside), (Recorded{"0", "4"}));
}

TEST_F(EvaluatorWatchPoints, ADisabledWatchPointRecordsAndEvaluatesNothing) {
  WatchPointObject* watched = watch(sum_->port("result"));
  enable(watched, false);
  const auto before = evaluator_.computedCount();
  set(sum_->port("a"), 1);
  EXPECT_EQ(evaluator_.computedCount(), before);
  value(sum_->port("result"));
  EXPECT_EQ(recorded(watched), Recorded{"0"});
}

TEST_F(EvaluatorWatchPoints, AWatchPointThatIsEnabledAgainRecordsWhatThePortYields) {
  WatchPointObject* watched = watch(sum_->port("result"));
  enable(watched, false);
  set(sum_->port("a"), 1);
  enable(watched, true);
  EXPECT_EQ(recorded(watched), (Recorded{"0", "1"}));
}

TEST_F(EvaluatorWatchPoints, AnInputOfAFrozenNodeIsStillWatched) {
  value(sum_->port("result"));
  setState(sum_, NodeState::Frozen, true);
  WatchPointObject* input = watch(sum_->port("a"));
  WatchPointObject* output = watch(sum_->port("result"));
  set(sum_->port("a"), 1);
  EXPECT_EQ(recorded(input), (Recorded{"0", "1"}));
  EXPECT_EQ(recorded(output), Recorded{"0"});
}

TEST_F(EvaluatorWatchPoints, IsSilentWhileItsNodeIsOutOfTheGraph) {
  NodeObject* above = addSum("above");
  wire(above->port("result"), sum_->port("a"));
  WatchPointObject* watched = watch(sum_->port("result"));
  Transaction edits;
  {
    const ChangeHold hold(graph_);
    ASSERT_TRUE(runRemoveNode(edits, *sum_));
  }
  set(above->port("a"), 1);
  value(sum_->port("result"));
  EXPECT_EQ(recorded(watched), Recorded{"0"});
  {
    const ChangeHold hold(graph_);
    ASSERT_TRUE(edits.revert());
  }
  EXPECT_EQ(recorded(watched), (Recorded{"0", "1"}));
}

TEST_F(EvaluatorWatchPoints, RecordsOfANodeThatComesBackFromARemovedCompound) {
  CompoundObject* group = addCompound(top(), "group");
  NodeObject* inner = add(*group, "core::math::add", "inner");
  WatchPointObject* watched = watch(inner->port("result"));
  const NodeRef removed(group->node());
  ASSERT_TRUE(run(RemoveNode{{CompoundRef(&top()), removed, 0}}));
  set(inner->port("a"), 1);
  addSum("elsewhere");
  const NodeRef kept(inner);
  ASSERT_TRUE(run(RemoveNode{{CompoundRef(group), kept, 0}}));
  ASSERT_TRUE(run(InsertNode{{CompoundRef(&top()), kept, 0}}));
  EXPECT_EQ(recorded(watched), (Recorded{"0", "1"}));
}

TEST_F(EvaluatorWatchPoints, IsSilentWhileItsPortIsOutOfTheNode) {
  PortObject* extra = addOwnPort(sum_, PortDirection::Output, "extra", "float");
  WatchPointObject* watched = watch(extra);
  Transaction edits;
  {
    const ChangeHold hold(graph_);
    ASSERT_TRUE(runRemovePort(edits, *extra));
  }
  set(sum_->port("a"), 1);
  value(sum_->port("result"));
  EXPECT_EQ(recorded(watched), Recorded{"0"});
  {
    const ChangeHold hold(graph_);
    ASSERT_TRUE(edits.revert());
  }
  EXPECT_EQ(recorded(watched).size(), 2u);
}

TEST_F(EvaluatorWatchPoints, RecordsWhatAStepChanges) {
  CompoundObject* group = addCompound(top(), "group");
  group->addStatePorts("before", "after", graph_.core().findType("float"));
  NodeObject* next = add(*group, "core::math::add", "next");
  set(next->port("b"), 1);
  wire(group->node()->port("before")->twin(), next->port("a"));
  wire(next->port("result"), group->node()->port("after")->twin());
  WatchPointObject* watched = watch(group->node()->port("after"));
  evaluator_.step();
  evaluator_.step();
  EXPECT_EQ(recorded(watched), (Recorded{"1", "2", "3"}));
}

TEST_F(EvaluatorWatchPoints, AWatchPointOfANodeThatIsGoneIsOnNoPort) {
  const WatchPointRef watched(watch(sum_->port("result")));
  set(sum_->port("a"), 1);
  {
    const ChangeHold hold(graph_);
    Transaction edits;
    ASSERT_TRUE(runRemoveNode(edits, *sum_));
    edits_ = Transaction();
  }
  addSum("other");
  EXPECT_EQ(watched->port(), nullptr);
  EXPECT_EQ(recorded(watched.get()), (Recorded{"0", "1"}));
}

}  // namespace
}  // namespace orvlib
