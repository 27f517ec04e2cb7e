#include "standalone/graph/edits/Wiring.h"

#include "standalone/graph/edits/FaultPoints.h"
#include "standalone/graph/edits/WireRules.h"
#include "tests/standalone/graph/GraphFixture.h"

namespace orvlib {
namespace {

class Wiring : public GraphFixture {
 protected:
  NodeObject* addSum(std::string name) { return add(top(), "core::math::add", std::move(name)); }

  static std::vector<std::string> peerNames(const PortObject* port) {
    std::vector<std::string> names;
    for (const PortObject* peer : port->peers().items()) names.push_back(peer->fullPath());
    return names;
  }
  using Names = std::vector<std::string>;
};

TEST_F(Wiring, ConnectsAnOutputToAnInput) {
  NodeObject* one = addSum("one");
  NodeObject* two = addSum("two");
  EXPECT_TRUE(connect(one->port("result"), two->port("a")));
  EXPECT_EQ(peerNames(one->port("result")), Names{"/two.a"});
  EXPECT_EQ(peerNames(two->port("a")), Names{"/one.result"});
}

TEST_F(Wiring, RefusesPortsOfOneDirection) {
  NodeObject* one = addSum("one");
  NodeObject* two = addSum("two");
  EXPECT_FALSE(connect(one->port("a"), two->port("a")));
  EXPECT_FALSE(connect(one->port("result"), two->port("result")));
}

TEST_F(Wiring, RefusesPortsOfOtherLevels) {
  CompoundObject* group = addCompound(top(), "group");
  NodeObject* inner = add(*group, "core::math::add", "inner");
  NodeObject* outer = addSum("outer");
  EXPECT_FALSE(connect(outer->port("result"), inner->port("a")));
  addPort(*group, PortDirection::Input, "in", "float");
  EXPECT_FALSE(connect(port("/group.in", 1), inner->port("a")));
  EXPECT_TRUE(connect(port("/group.in", 0), inner->port("a")));
}

TEST_F(Wiring, RefusesTypesThatDoNotConvert) {
  NodeObject* text = add(top(), "core::constant::string_value", "text");
  EXPECT_FALSE(connect(text->outputList().at(0), addSum("sum")->port("a")));
}

TEST_F(Wiring, RefusesASecondConnectionOfTheSamePorts) {
  NodeObject* one = addSum("one");
  NodeObject* two = addSum("two");
  ASSERT_TRUE(connect(one->port("result"), two->port("a")));
  EXPECT_FALSE(connect(one->port("result"), two->port("a")));
  EXPECT_TRUE(connect(one->port("result"), two->port("b")));
}

TEST_F(Wiring, RefusesACycle) {
  NodeObject* one = addSum("one");
  NodeObject* two = addSum("two");
  NodeObject* three = addSum("three");
  ASSERT_TRUE(connect(one->port("result"), two->port("a")));
  ASSERT_TRUE(connect(two->port("result"), three->port("a")));
  EXPECT_FALSE(connect(three->port("result"), one->port("a")));
  EXPECT_FALSE(connect(one->port("result"), one->port("a")));
  EXPECT_FALSE(one->port("a")->hasPeers());
}

TEST_F(Wiring, RefusesACycleThroughACompound) {
  CompoundObject* group = addCompound(top(), "group");
  PortObject* in = addPort(*group, PortDirection::Input, "in", "float");
  PortObject* out = addPort(*group, PortDirection::Output, "out", "float");
  ASSERT_TRUE(connect(in->twin(), out->twin()));
  EXPECT_FALSE(connect(out, in));
}

TEST_F(Wiring, AllowsWhatIsACycleOfNodesButNotOfValues) {
  CompoundObject* group = addCompound(top(), "group");
  PortObject* in = addPort(*group, PortDirection::Input, "in", "float");
  PortObject* out = addPort(*group, PortDirection::Output, "out", "float");
  EXPECT_TRUE(connect(out, in));
  EXPECT_FALSE(connect(in->twin(), out->twin()));
}

TEST_F(Wiring, RefusesACycleThroughAComponent) {
  NodeObject* split = add(top(), "core::vector::vector3::add", "sum");
  EXPECT_FALSE(
      connect(split->outputList().at(0)->child("x"), split->inputList().at(0)->child("y")));
}

TEST_F(Wiring, TakesAnInputFromItsFormerSource) {
  NodeObject* one = addSum("one");
  NodeObject* two = addSum("two");
  NodeObject* three = addSum("three");
  ASSERT_TRUE(connect(one->port("result"), three->port("a")));
  ASSERT_TRUE(connect(two->port("result"), three->port("a")));
  EXPECT_EQ(peerNames(three->port("a")), Names{"/two.result"});
  EXPECT_FALSE(one->port("result")->hasPeers());
}

TEST_F(Wiring, TakesAPortFromWhatIsConnectedToItsComponents) {
  NodeObject* sum = add(top(), "core::vector::vector3::add", "sum");
  NodeObject* other = add(top(), "core::vector::vector3::add", "other");
  PortObject* target = sum->inputList().at(0);
  ASSERT_TRUE(connect(addSum("x")->port("result"), target->child("x")));
  ASSERT_TRUE(connect(addSum("z")->port("result"), target->child("z")));
  ASSERT_TRUE(connect(other->outputList().at(0), target));
  EXPECT_FALSE(target->child("x")->hasPeers());
  EXPECT_FALSE(target->child("z")->hasPeers());
}

TEST_F(Wiring, TakesAComponentFromWhatIsConnectedAbove) {
  NodeObject* sum = add(top(), "core::vector::vector3::add", "sum");
  NodeObject* other = add(top(), "core::vector::vector3::add", "other");
  PortObject* target = sum->inputList().at(0);
  ASSERT_TRUE(connect(other->outputList().at(0), target));
  ASSERT_TRUE(connect(addSum("x")->port("result"), target->child("x")));
  EXPECT_FALSE(target->hasPeers());
}

TEST_F(Wiring, CutsAllConnectionsOfANodeThatGoes) {
  NodeObject* one = addSum("one");
  NodeObject* two = addSum("two");
  NodeObject* three = addSum("three");
  ASSERT_TRUE(connect(one->port("result"), two->port("a")));
  ASSERT_TRUE(connect(two->port("result"), three->port("a")));
  ASSERT_TRUE(connect(two->port("result"), three->port("b")));
  Transaction removal;
  ASSERT_TRUE(runRemoveNode(removal, *two));
  EXPECT_FALSE(one->port("result")->hasPeers());
  EXPECT_FALSE(three->port("b")->hasPeers());
  ASSERT_TRUE(removal.revert());
  EXPECT_EQ(peerNames(two->port("result")), (Names{"/three.a", "/three.b"}));
  EXPECT_EQ(top().nodes().indexOf(two), 1u);
}

TEST_F(Wiring, DoesNotRemoveTheTop) {
  Transaction removal;
  EXPECT_FALSE(runRemoveNode(removal, graph_.top()));
}

TEST_F(Wiring, DoesNotRemoveAPortOfADefinition) {
  Transaction removal;
  EXPECT_FALSE(runRemovePort(removal, *addSum("one")->port("a")));
}

class FanIn : public Wiring {
 protected:
  FanIn() {
    node_ = addCompound(top(), "group")->node();
    list_ = addPort(*node_->compound(), PortDirection::Input, "list", "array<float>");
    EXPECT_TRUE(edits_.run(SetPortFlags{PortRef(list_), ORV_v1::kPortFanIn}));
  }

  NodeObject* node_;
  PortObject* list_;
};

TEST_F(FanIn, GrowsAMemberForEachConnection) {
  EXPECT_TRUE(list_->isFanIn());
  ASSERT_TRUE(connect(addSum("one")->port("result"), list_));
  ASSERT_TRUE(connect(addSum("two")->port("result"), list_));
  ASSERT_EQ(list_->madeChildren()->count(), 2u);
  PortObject* second = list_->madeChildren()->at(1);
  EXPECT_EQ(second->fullPath(), "/group.list.item1");
  EXPECT_TRUE(second->isMemberFanIn());
  EXPECT_STREQ(second->getDataType()->getName(), "float");
  EXPECT_EQ(peerNames(second), Names{"/two.result"});
  EXPECT_FALSE(list_->hasPeers());
}

TEST_F(FanIn, TakesOneSourceTwice) {
  NodeObject* one = addSum("one");
  EXPECT_TRUE(connect(one->port("result"), list_));
  EXPECT_TRUE(connect(one->port("result"), list_));
  EXPECT_EQ(list_->madeChildren()->count(), 2u);
}

TEST_F(FanIn, LosesAMemberWithItsConnection) {
  NodeObject* one = addSum("one");
  ASSERT_TRUE(connect(one->port("result"), list_));
  ASSERT_TRUE(connect(addSum("two")->port("result"), list_));
  Transaction cut;
  ASSERT_TRUE(runDisconnect(cut, *one->port("result"), *list_->madeChildren()->at(0)));
  ASSERT_EQ(list_->madeChildren()->count(), 1u);
  EXPECT_EQ(list_->madeChildren()->at(0)->name(), "item1");
  ASSERT_TRUE(cut.revert());
  EXPECT_EQ(list_->madeChildren()->at(0)->name(), "item");
  EXPECT_EQ(peerNames(list_->madeChildren()->at(0)), Names{"/one.result"});
}

TEST_F(FanIn, TakesAWholeArrayInPlaceOfItsMembers) {
  ASSERT_TRUE(connect(addSum("one")->port("result"), list_));
  NodeObject* array = add(top(), "core::array::reverse", "array");
  ASSERT_TRUE(connect(array->outputList().at(0), list_));
  EXPECT_EQ(list_->madeChildren()->count(), 0u);
  EXPECT_EQ(peerNames(list_), Names{"/array.result"});
  ASSERT_TRUE(connect(addSum("two")->port("result"), list_));
  EXPECT_FALSE(list_->hasPeers());
  EXPECT_EQ(list_->madeChildren()->count(), 1u);
}

TEST_F(FanIn, IsRemovedWithItsMembers) {
  NodeObject* one = addSum("one");
  ASSERT_TRUE(connect(one->port("result"), list_));
  const PortRef kept(list_);
  Transaction removal;
  ASSERT_TRUE(runRemovePort(removal, *list_));
  EXPECT_FALSE(one->port("result")->hasPeers());
  ASSERT_TRUE(removal.revert());
  EXPECT_EQ(peerNames(one->port("result")), Names{"/group.list.item"});
}

TEST_F(FanIn, LosesAMemberThatAnInputNodeShowsThePortOf) {
  NodeObject* one = addSum("one");
  NodeObject* shown = insert(*node_->compound(), factory().makeIo(NodeKind::Input, "shown"));
  ASSERT_TRUE(edits_.run(SetIoNode{PortRef(list_), NodeRef(shown), 0}));
  ASSERT_TRUE(connect(one->port("result"), list_));
  Transaction cut;
  EXPECT_TRUE(runDisconnect(cut, *one->port("result"), *list_->madeChildren()->at(0)));
  EXPECT_EQ(list_->madeChildren()->count(), 0u);
}

TEST_F(FanIn, RenamesAMemberThoughAnInputNodeShowsMany) {
  NodeObject* shown = insert(*node_->compound(), factory().makeIo(NodeKind::Input, "shown"));
  for (int i = 0; i < 20; ++i) {
    PortObject* port =
        addPort(*node_->compound(), PortDirection::Input, node_->uniquePortName("p"), "float");
    ASSERT_TRUE(edits_.run(SetIoNode{PortRef(port), NodeRef(shown), 99}));
  }
  ASSERT_TRUE(edits_.run(SetIoNode{PortRef(list_), NodeRef(shown), 99}));
  ASSERT_TRUE(connect(addSum("one")->port("result"), list_));
  list_->madeChildren()->at(0)->setName("first");
  EXPECT_TRUE(list_->child("first"));
  EXPECT_EQ(shown->outputList().find("list"), list_->twin());
}

TEST_F(FanIn, LosesAMemberWithTheLastConnectionOfItsComponents) {
  PortObject* points =
      addPort(*node_->compound(), PortDirection::Input, "points", "array<vector3>");
  ASSERT_TRUE(edits_.run(SetPortFlags{PortRef(points), ORV_v1::kPortFanIn}));
  NodeObject* vector = add(top(), "core::vector::vector3::add", "vector");
  ASSERT_TRUE(connect(vector->outputList().at(0), points));
  PortObject* member = points->madeChildren()->at(0);
  NodeObject* one = addSum("one");
  ASSERT_TRUE(connect(one->port("result"), member->child("x")));
  Transaction cut;
  ASSERT_TRUE(runDisconnect(cut, *one->port("result"), *member->child("x")));
  EXPECT_EQ(points->madeChildren()->count(), 0u);
  ASSERT_TRUE(cut.revert());
  EXPECT_EQ(points->madeChildren()->at(0)->child("x")->source(), one->port("result"));
}

TEST_F(FanIn, KeepsItsFlagWhileItHasMembers) {
  ASSERT_TRUE(connect(addSum("one")->port("result"), list_));
  EXPECT_FALSE(edits_.run(SetPortFlags{PortRef(list_), 0}));
  EXPECT_TRUE(list_->isFanIn());
}

TEST_F(Wiring, LeavesNoTraceWhenAnEditIsRefused) {
  NodeObject* one = addSum("one");
  NodeObject* two = addSum("two");
  NodeObject* three = addSum("three");
  ASSERT_TRUE(connect(one->port("result"), three->port("a")));
  for (unsigned nth = 1; nth <= 2; ++nth) {
    const ArmedFault armed(nth);
    EXPECT_FALSE(connect(two->port("result"), three->port("a")));
    EXPECT_TRUE(armed.refused());
    EXPECT_EQ(peerNames(three->port("a")), Names{"/one.result"});
  }
}

}  // namespace
}  // namespace orvlib
