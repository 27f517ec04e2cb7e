#include "standalone/graph/model/ContainerObject.h"

#include "platform/ORV_1_0/ChangeBracket.h"
#include "standalone/graph/model/ChangeHold.h"
#include "standalone/graph/model/Mutator.h"
#include "tests/standalone/graph/GraphFixture.h"

namespace orvlib {
namespace {

/// Keeps what it is told.
class Listener final : public ChangeListener {
 public:
  void graphChanged(ContainerObject&, std::span<const NodeChange> changes) override {
    rounds.emplace_back(changes.begin(), changes.end());
  }

  std::vector<std::vector<NodeChange>> rounds;
};

class ContainerObjectTest : public GraphFixture {
 protected:
  ContainerObjectTest() { graph_.addListener(listener_); }
  ~ContainerObjectTest() override { graph_.removeListener(listener_); }

  NodeObject* addHeld(std::string name) {
    const ChangeHold hold(graph_);
    return add(top(), "core::math::add", std::move(name));
  }

  Listener listener_;
};

TEST_F(ContainerObjectTest, IsFoundByItsUuidUntilItIsWithdrawn) {
  EXPECT_EQ(ORV_v1::Container::getFromUUID("here"), nullptr);
  graph_.publishUuid("here");
  EXPECT_EQ(ORV_v1::Container::getFromUUID("here"), &graph_);
  graph_.withdrawUuid();
  EXPECT_EQ(ORV_v1::Container::getFromUUID("here"), nullptr);
}

TEST_F(ContainerObjectTest, IsNotFoundByNothing) {
  EXPECT_EQ(ORV_v1::Container::getFromUUID(""), nullptr);
  EXPECT_EQ(ORV_v1::Container::getFromUUID(nullptr), nullptr);
}

TEST_F(ContainerObjectTest, IsNoLongerFoundWhenItIsGone) {
  {
    ContainerObject other("standard");
    other.publishUuid("other");
  }
  EXPECT_EQ(ORV_v1::Container::getFromUUID("other"), nullptr);
}

TEST_F(ContainerObjectTest, KeepsAUuidThatAnotherTookOver) {
  graph_.publishUuid("shared");
  ContainerObject other("standard");
  other.publishUuid("shared");
  graph_.withdrawUuid();
  EXPECT_EQ(ORV_v1::Container::getFromUUID("shared"), &other);
}

TEST_F(ContainerObjectTest, TellsOfEachChangeWithoutABracket) {
  addHeld("one");
  addHeld("two");
  EXPECT_EQ(listener_.rounds.size(), 2u);
}

TEST_F(ContainerObjectTest, TellsOnceAtTheEndOfTheOutermostBracket) {
  ASSERT_TRUE(graph_.openChangeBracket(nullptr));
  ASSERT_TRUE(graph_.openChangeBracket(&top()));
  NodeObject* one = addHeld("one");
  NodeObject* two = addHeld("two");
  EXPECT_TRUE(graph_.closeChangeBracket(&top()));
  EXPECT_TRUE(listener_.rounds.empty());
  EXPECT_TRUE(graph_.closeChangeBracket(nullptr));
  ASSERT_EQ(listener_.rounds.size(), 1u);
  ASSERT_EQ(listener_.rounds[0].size(), 3u);
  EXPECT_EQ(listener_.rounds[0][0].node.get(), &graph_.top());
  EXPECT_EQ(listener_.rounds[0][0].bits, kContentChange);
  EXPECT_EQ(listener_.rounds[0][1].node.get(), one);
  EXPECT_EQ(listener_.rounds[0][2].node.get(), two);
}

TEST_F(ContainerObjectTest, NamesTheNodesThatCameAndWent) {
  NodeObject* node = addHeld("one");
  EXPECT_EQ(listener_.rounds[0][1].node.get(), node);
  EXPECT_EQ(listener_.rounds[0][1].bits, kPlaceChange);
  const NodeRef kept(node);
  {
    const ChangeHold hold(graph_);
    Mutator::removeNode(*node);
  }
  ASSERT_EQ(listener_.rounds[1].size(), 2u);
  EXPECT_EQ(listener_.rounds[1][1].node.get(), node);
  EXPECT_EQ(listener_.rounds[1][1].bits, kPlaceChange);
}

TEST_F(ContainerObjectTest, TellsThoseWhoStillListenThatItGoes) {
  struct : ChangeListener {
    void graphChanged(ContainerObject&, std::span<const NodeChange>) override {}
    void graphGoes(ContainerObject& container) override {
      EXPECT_EQ(container.top().container(), &container);
      ++gone;
    }
    int gone = 0;
  } stays, leaves;
  {
    ContainerObject other("standard");
    other.addListener(stays);
    other.addListener(leaves);
    other.removeListener(leaves);
  }
  EXPECT_EQ(stays.gone, 1);
  EXPECT_EQ(leaves.gone, 0);
}

TEST_F(ContainerObjectTest, TellsNothingWhenNothingChanged) {
  graph_.openChangeBracket(nullptr);
  graph_.closeChangeBracket(nullptr);
  EXPECT_TRUE(listener_.rounds.empty());
}

TEST_F(ContainerObjectTest, RefusesToCloseWhatIsNotOpen) {
  EXPECT_FALSE(graph_.closeChangeBracket(nullptr));
  ASSERT_TRUE(graph_.openChangeBracket(&top()));
  EXPECT_FALSE(graph_.closeChangeBracket(nullptr));
  EXPECT_TRUE(graph_.closeChangeBracket(&top()));
  EXPECT_FALSE(graph_.closeChangeBracket(&top()));
}

TEST_F(ContainerObjectTest, RefusesAClientOfAnotherGraph) {
  ContainerObject other("standard");
  EXPECT_FALSE(graph_.openChangeBracket(&other));
  EXPECT_FALSE(graph_.openChangeBracket(other.top().compound()));
  EXPECT_FALSE(other.activeChangeBracket());
}

TEST_F(ContainerObjectTest, AnswersForAllItsClients) {
  CompoundObject* group = addCompound(top(), "group");
  graph_.openChangeBracket(group);
  EXPECT_TRUE(graph_.activeChangeBracket());
  EXPECT_TRUE(group->activeChangeBracket());
  EXPECT_FALSE(top().activeChangeBracket());
  graph_.closeChangeBracket(group);
  EXPECT_FALSE(graph_.activeChangeBracket());
}

TEST_F(ContainerObjectTest, TakesANodeAsClient) {
  NodeObject* node = addHeld("one");
  EXPECT_TRUE(graph_.openChangeBracket(node));
  EXPECT_TRUE(node->activeChangeBracket());
  EXPECT_TRUE(graph_.closeChangeBracket(node));
}

TEST_F(ContainerObjectTest, ClosesABracketThatIsAValueWhenItGoes) {
  {
    const ORV_v1::ChangeBracket bracket = graph_.makeChangeBracket(&top());
    EXPECT_TRUE(top().activeChangeBracket());
  }
  EXPECT_FALSE(graph_.activeChangeBracket());
}

TEST_F(ContainerObjectTest, MakesABracketOfItselfForNull) {
  const ORV_v1::ChangeBracket bracket = graph_.makeChangeBracket(nullptr);
  EXPECT_EQ(graph_.openBracketCount(), 1u);
}

TEST_F(ContainerObjectTest, MakesNoBracketForAForeignClient) {
  ContainerObject other("standard");
  const ORV_v1::ChangeBracket bracket = graph_.makeChangeBracket(&other);
  EXPECT_FALSE(graph_.activeChangeBracket());
  EXPECT_FALSE(other.activeChangeBracket());
}

TEST_F(ContainerObjectTest, MayGoBeforeABracketOfIt) {
  auto other = std::make_unique<ContainerObject>("standard");
  const ORV_v1::ChangeBracket bracket = other->makeChangeBracket(other->top().compound());
  other.reset();
}

TEST_F(ContainerObjectTest, SuspendsTheBracketsOfACompoundThatLeaves) {
  CompoundObject* group = addCompound(top(), "group");
  const NodeRef node(group->node());
  graph_.openChangeBracket(group);
  Transaction removal;
  ASSERT_TRUE(runRemoveNode(removal, *node));
  EXPECT_FALSE(graph_.activeChangeBracket());
  EXPECT_FALSE(graph_.closeChangeBracket(group));
  ASSERT_TRUE(removal.revert());
  EXPECT_TRUE(graph_.activeChangeBracket());
  EXPECT_TRUE(graph_.closeChangeBracket(group));
  EXPECT_FALSE(graph_.activeChangeBracket());
}

TEST_F(ContainerObjectTest, SuspendsTheBracketsBelowACompoundThatLeaves) {
  CompoundObject* group = addCompound(top(), "group");
  CompoundObject* inner = addCompound(*group, "inner");
  graph_.openChangeBracket(inner);
  Transaction removal;
  ASSERT_TRUE(runRemoveNode(removal, *group->node()));
  EXPECT_FALSE(graph_.activeChangeBracket());
  ASSERT_TRUE(removal.revert());
  EXPECT_TRUE(inner->activeChangeBracket());
  EXPECT_TRUE(graph_.activeChangeBracket());
  graph_.closeChangeBracket(inner);
}

TEST_F(ContainerObjectTest, ForgetsTheBracketsOfACompoundThatIsGone) {
  {
    CompoundObject* group = addCompound(top(), "group");
    graph_.openChangeBracket(group);
    Transaction removal;
    ASSERT_TRUE(runRemoveNode(removal, *group->node()));
    edits_ = Transaction();
  }
  addCompound(top(), "another");
  EXPECT_FALSE(graph_.activeChangeBracket());
}

TEST_F(ContainerObjectTest, KeepsAClientWhileABracketOfItLives) {
  CompoundObject* group = addCompound(top(), "group");
  std::optional<ORV_v1::ChangeBracket> bracket(graph_.makeChangeBracket(group));
  {
    Transaction removal;
    ASSERT_TRUE(runRemoveNode(removal, *group->node()));
  }
  edits_ = Transaction();
  bracket.reset();
  EXPECT_FALSE(graph_.activeChangeBracket());
}

TEST_F(ContainerObjectTest, TakesABracketThatWasClosedByHandForClosed) {
  {
    const ORV_v1::ChangeBracket bracket = graph_.makeChangeBracket(&top());
    EXPECT_TRUE(graph_.closeChangeBracket(&top()));
  }
  EXPECT_FALSE(top().activeChangeBracket());
  EXPECT_TRUE(graph_.openChangeBracket(&top()));
  EXPECT_TRUE(graph_.closeChangeBracket(&top()));
  EXPECT_FALSE(graph_.activeChangeBracket());
}

TEST_F(ContainerObjectTest, TellsOfWhatAListenerChangesInAFurtherRound) {
  class Renamer final : public ChangeListener {
   public:
    void graphChanged(ContainerObject& graph, std::span<const NodeChange>) override {
      if (NodeObject* node = graph.findNode("/first")) node->setName("second");
    }
  } renamer;
  graph_.addListener(renamer);
  addHeld("first");
  graph_.removeListener(renamer);
  ASSERT_EQ(listener_.rounds.size(), 2u);
  EXPECT_EQ(listener_.rounds[1][0].bits, kIdentityChange);
}

TEST_F(ContainerObjectTest, TellsNothingToAListenerThatLeft) {
  Listener late;
  graph_.addListener(late);
  graph_.removeListener(late);
  addHeld("one");
  EXPECT_TRUE(late.rounds.empty());
}

TEST_F(ContainerObjectTest, GathersWhatChangedOfOneNode) {
  NodeObject* node = addHeld("one");
  listener_.rounds.clear();
  {
    const ChangeHold hold(graph_);
    node->setName("two");
    node->port("a")->setFlag(ORV_v1::kPortHidden);
  }
  ASSERT_EQ(listener_.rounds.size(), 1u);
  ASSERT_EQ(listener_.rounds[0].size(), 1u);
  EXPECT_EQ(listener_.rounds[0][0].bits, kIdentityChange | kValueChange);
}

TEST_F(ContainerObjectTest, HasAnotherRevisionAfterAChange) {
  const auto before = graph_.revision();
  addHeld("one");
  EXPECT_NE(graph_.revision(), before);
}

/// Leaves the graph when that goes, and another with it.
class LeavingListener final : public ChangeListener {
 public:
  void graphChanged(ContainerObject&, std::span<const NodeChange>) override {}
  void graphGoes(ContainerObject& container) override {
    ++told;
    container.removeListener(*this);
    if (other) container.removeListener(*other);
  }

  int told = 0;
  LeavingListener* other = nullptr;
};

TEST_F(ContainerObjectTest, TellsThatItGoes) {
  LeavingListener first;
  LeavingListener second;
  LeavingListener third;
  first.other = &second;
  {
    ContainerObject other("standard");
    for (LeavingListener* listener : {&first, &second, &third}) other.addListener(*listener);
  }
  EXPECT_EQ(first.told, 1);
  EXPECT_EQ(second.told, 0);
  EXPECT_EQ(third.told, 1);
}

TEST_F(ContainerObjectTest, FindsPortTypesOfItsRuntime) {
  EXPECT_STREQ(graph_.portTypeLookup().findPortType("float")->getName(), "float");
  EXPECT_TRUE(graph_.portTypeLookup().findPortType("nothing") == nullptr);
  EXPECT_TRUE(graph_.portTypeLookup().findPortType(nullptr) == nullptr);
  ContainerObject other("no such runtime");
  EXPECT_TRUE(other.portTypeLookup().findPortType("float") == nullptr);
}

TEST_F(ContainerObjectTest, GivesItsNameAndItsTop) {
  graph_.setContainerName("shot");
  EXPECT_STREQ(graph_.getContainerName().getName(), "shot");
  EXPECT_EQ(graph_.getTopNode().get(), &graph_.top());
}

}  // namespace
}  // namespace orvlib
