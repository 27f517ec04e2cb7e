#include "standalone/graph/model/NodeObject.h"

#include "tests/standalone/graph/GraphFixture.h"

namespace orvlib {
namespace {

class NodeObjectTest : public GraphFixture {
 protected:
  static std::string typeName(NodeObject* node) { return node->getTypeName().toChar(); }
};

TEST_F(NodeObjectTest, KnowsWhereItIs) {
  CompoundObject* group = addCompound(top(), "group");
  NodeObject* node = add(*group, "core::math::add", "sum");
  EXPECT_EQ(node->getContainer(), &graph_);
  EXPECT_EQ(node->getParentCompound().get(), group);
  EXPECT_STREQ(node->getFullPathName().getName(), "/group/sum");
  EXPECT_FALSE(node->isCompound());
  EXPECT_TRUE(node->asCompound() == nullptr);
}

TEST_F(NodeObjectTest, AtTheTopHasNoParent) {
  EXPECT_TRUE(graph_.top().getParentCompound() == nullptr);
  EXPECT_EQ(graph_.top().getContainer(), &graph_);
  EXPECT_TRUE(graph_.top().isCompound());
}

TEST_F(NodeObjectTest, OutOfTheGraphIsInNoContainer) {
  CompoundObject* group = addCompound(top(), "group");
  NodeObject* node = add(*group, "core::math::add", "sum");
  Transaction removal;
  ASSERT_TRUE(runRemoveNode(removal, *group->node()));
  EXPECT_EQ(node->getContainer(), nullptr);
  EXPECT_STREQ(group->node()->getFullPathName().getName(), "group");
}

TEST_F(NodeObjectTest, OutlivesItsGraph) {
  NodeRef node;
  {
    ContainerObject other("standard");
    node = NodeRef(&other.top());
  }
  EXPECT_EQ(node->getContainer(), nullptr);
}

TEST_F(NodeObjectTest, GivesTheNameOfItsType) {
  EXPECT_EQ(typeName(add(top(), "core::math::add", "sum")), "core::math::add");
  EXPECT_EQ(typeName(addCompound(top(), "group")->node()), "compound");
  EXPECT_EQ(typeName(insert(top(), factory().makeIo(NodeKind::Input, "in"))), "input");
  EXPECT_EQ(typeName(insert(top(), factory().makeIo(NodeKind::Output, "out"))), "output");
  auto unknown = std::make_shared<NodeDescription>();
  unknown->name = "far::away";
  const auto definition = ORV_v1::GraphAccess::makeNode(unknown);
  EXPECT_EQ(typeName(insert(top(), factory().makePlaceholder(*definition, "odd"))), "far::away");
}

TEST_F(NodeObjectTest, IsRenamedThroughItsNamablePart) {
  add(top(), "core::math::add", "taken");
  NodeObject* node = add(top(), "core::math::add", "sum");
  ORV_v1::Namable& name = *node;
  name.setName("total");
  EXPECT_STREQ(node->getName(), "total");
  EXPECT_EQ(top().nodes().find("total"), node);
  EXPECT_FALSE(top().nodes().find("sum"));
  name.setName("taken");
  EXPECT_STREQ(node->getName(), "taken1");
  name.setName("no good");
  EXPECT_STREQ(node->getName(), "no_good");
}

TEST_F(NodeObjectTest, KeepsItsNameWhenItCannotBeRenamed) {
  NodeObject* node = add(top(), "core::math::add", "sum");
  node->setName("");
  node->setName(nullptr);
  EXPECT_STREQ(node->getName(), "sum");
  graph_.top().setName("root");
  EXPECT_STREQ(graph_.top().getName(), "top");
}

TEST_F(NodeObjectTest, GivesACopyOfItsNameAsAValue) {
  NodeObject* node = add(top(), "core::math::add", "sum");
  ORV_v1::Namable copy = static_cast<ORV_v1::Namable&>(*node);
  copy.appendPortName("a");
  EXPECT_STREQ(copy.getName(), "sum.a");
  EXPECT_STREQ(node->getName(), "sum");
}

TEST_F(NodeObjectTest, HasThreeStateFlags) {
  ORV_v1::NodeStateFlags& flags = add(top(), "core::math::add", "sum")->getStateFlags();
  ASSERT_EQ(flags.size(), 3u);
  EXPECT_EQ(flags[0].key, 'e');
  EXPECT_EQ(flags[0].state, 0);
  EXPECT_STREQ(flags[1].name.toChar(), "Frozen");
  EXPECT_EQ(flags[1].state, 1);
  EXPECT_EQ(flags[1].defaultState, 1);
  EXPECT_EQ(flags[2].key, 'b');
  EXPECT_FALSE(flags[2].description.empty());
  EXPECT_EQ(flags[3].key, 0);
}

TEST_F(NodeObjectTest, TakesAStateFlagOnceItIsToldOfIt) {
  NodeObject* node = add(top(), "core::math::add", "sum");
  ORV_v1::NodeStateFlags& flags = node->getStateFlags();
  ORV_v1::NodeStateFlag flag = flags[2];
  flag.state = 0;
  flags.update(2, flag);
  EXPECT_FALSE(node->is(NodeState::Bypassed));
  node->stateFlagChanged(2);
  EXPECT_TRUE(node->is(NodeState::Bypassed));
  EXPECT_EQ(node->getStateFlags()[2].state, 0);
}

TEST_F(NodeObjectTest, TakesOverNothingButTheState) {
  ORV_v1::NodeStateFlags& flags = add(top(), "core::math::add", "sum")->getStateFlags();
  ORV_v1::NodeStateFlag flag;
  flag.key = 'x';
  flag.state = 7;
  flags.update(0, flag);
  flags.update(3, flag);
  EXPECT_EQ(flags[0].key, 'e');
  EXPECT_EQ(flags[0].state, 1);
}

TEST_F(NodeObjectTest, ShowsAStateThatWasSetAnotherWay) {
  NodeObject* node = add(top(), "core::math::add", "sum");
  ORV_v1::NodeStateFlags& flags = node->getStateFlags();
  ASSERT_TRUE(edits_.run(SetState{NodeRef(node), NodeState::Frozen, true}));
  EXPECT_EQ(flags[1].state, 0);
}

TEST_F(NodeObjectTest, GivesItsMetadata) {
  NodeObject* node = add(top(), "core::math::add", "sum");
  Properties set;
  set.set("position", {"10", "20"});
  set.set("color", {"red"});
  ASSERT_TRUE(edits_.run(SetMetadata{NodeRef(node), set}));
  ORV_v1::StringArray texts;
  EXPECT_TRUE(node->getMetadataValues("position", texts));
  EXPECT_EQ(texts.size(), 2u);
  EXPECT_FALSE(node->getMetadataValues("none", texts));
  EXPECT_EQ(texts.size(), 0u);
  node->getMetadataKeys(texts);
  ASSERT_EQ(texts.size(), 2u);
  EXPECT_STREQ(texts[1], "color");
  EXPECT_STREQ(node->getMetadata().serialize(ORV_v1::PropertyList::kSerializeAll).toChar(),
               "{position={10,20},color=red}");
}

TEST_F(NodeObjectTest, FindsItsPortsHoweverManyThereAre) {
  CompoundObject* group = addCompound(top(), "group");
  for (int i = 0; i < 100; ++i) {
    addPort(*group, i % 2 ? PortDirection::Input : PortDirection::Output,
            group->node()->uniquePortName("p"), "float");
  }
  NodeObject& node = *group->node();
  ASSERT_TRUE(node.port("p99"));
  EXPECT_TRUE(node.port("p99")->isInput());
  node.port("p98")->setName("last");
  EXPECT_TRUE(node.port("last"));
  EXPECT_FALSE(node.port("p98"));
  EXPECT_EQ(node.uniquePortName("p"), "p98");
  Transaction removal;
  ASSERT_TRUE(runRemovePort(removal, *node.port("p3")));
  EXPECT_EQ(node.uniquePortName("p"), "p3");
  ASSERT_TRUE(removal.revert());
  EXPECT_EQ(node.uniquePortName("p"), "p98");
  EXPECT_EQ(node.port("p3"), node.inputList().at(1));
}

}  // namespace
}  // namespace orvlib
