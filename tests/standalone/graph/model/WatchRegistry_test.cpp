#include "standalone/graph/model/WatchRegistry.h"

#include "tests/standalone/graph/GraphFixture.h"

namespace orvlib {
namespace {

/// A graph that nothing evaluates: the test takes what waits.
class WatchRegistryTest : public GraphFixture {
 protected:
  using Vertices = std::vector<GraphVertex*>;

  NodeObject* addWatched(CompoundObject& level, std::string name) {
    NodeObject* node = add(level, "core::math::add", std::move(name));
    EXPECT_TRUE(edits_.run(
        SetWatchPoint{PortRef(node->port("result")), WatchPointRef(new WatchPointObject)}));
    return node;
  }

  void remove(CompoundObject& level, NodeObject* node) {
    EXPECT_TRUE(
        edits_.run(RemoveNode{{CompoundRef(&level), NodeRef(node), level.nodes().indexOf(node)}}));
  }

  /// As an evaluation does with what is not in the graph.
  void setAsideWhatWaits() {
    for (GraphVertex* vertex : registry().takeWaiting()) registry().setAside(*vertex);
  }

  /// A watched node that has been removed and set aside.
  NodeObject* addRemoved(std::string name) {
    NodeObject* node = addWatched(top(), std::move(name));
    remove(top(), node);
    setAsideWhatWaits();
    return node;
  }

  Vertices waiting() { return registry().takeWaiting(); }
  WatchRegistry& registry() { return graph_.core().watches(); }
};

TEST_F(WatchRegistryTest, ACompoundThatIsInsertedLeavesAsideWhatIsNotInIt) {
  for (int i = 0; i < 10; ++i) addRemoved("removed" + std::to_string(i));
  addCompound(top(), "group");
  EXPECT_EQ(waiting().size(), 0u);
}

TEST_F(WatchRegistryTest, ANodeThatComesBackIsTheOnlyOneThatWaits) {
  for (int i = 0; i < 10; ++i) addRemoved("removed" + std::to_string(i));
  NodeObject* node = addRemoved("back");
  insert(top(), NodeRef(node));
  EXPECT_EQ(waiting(), Vertices{node});
}

TEST_F(WatchRegistryTest, ACompoundThatComesBackBringsWhatIsInIt) {
  CompoundObject* outer = addCompound(top(), "outer");
  CompoundObject* inner = addCompound(*outer, "inner");
  NodeObject* one = addWatched(*inner, "one");
  NodeObject* two = addWatched(*outer, "two");
  const NodeRef kept(outer->node());
  remove(top(), outer->node());
  setAsideWhatWaits();
  addRemoved("removed");
  insert(top(), kept);
  EXPECT_EQ(waiting(), (Vertices{one, two}));
}

TEST_F(WatchRegistryTest, ANodeThatIsTakenFromARemovedCompoundComesBackByItself) {
  CompoundObject* group = addCompound(top(), "group");
  NodeObject* node = addWatched(*group, "node");
  remove(top(), group->node());
  setAsideWhatWaits();
  const NodeRef kept(node);
  remove(*group, node);
  setAsideWhatWaits();
  insert(top(), kept);
  EXPECT_EQ(waiting(), Vertices{node});
}

TEST_F(WatchRegistryTest, ANodeThatIsPutIntoARemovedCompoundComesBackWithIt) {
  CompoundObject* group = addCompound(top(), "group");
  remove(top(), group->node());
  NodeObject* node = addRemoved("node");
  insert(*group, NodeRef(node));
  setAsideWhatWaits();
  insert(top(), NodeRef(group->node()));
  EXPECT_EQ(waiting(), Vertices{node});
}

TEST_F(WatchRegistryTest, TheFormerGraphComesBackWithItsTop) {
  NodeObject* node = addWatched(top(), "node");
  const NodeRef former(&graph_.top());
  graph_.replaceTop(factory().makeCompound("top"));
  setAsideWhatWaits();
  addCompound(top(), "group");
  EXPECT_EQ(waiting().size(), 0u);
  graph_.replaceTop(former);
  EXPECT_EQ(waiting(), Vertices{node});
}

TEST_F(WatchRegistryTest, ANodeThatIsGoneNeverWaits) {
  addRemoved("removed");
  edits_ = Transaction();
  addCompound(top(), "group");
  EXPECT_EQ(waiting().size(), 0u);
}

}  // namespace
}  // namespace orvlib
