#include "platform/ORV_1_0/ExplodeCompoundCommand.h"

#include "platform/ORV_1_0/CreateCompoundCommand.h"
#include "tests/standalone/graph/commands/CommandFixture.h"

namespace orvlib {
namespace {

using Texts = std::vector<std::string>;

class ExplodeCompoundCommandTest : public CommandFixture {
 protected:
  ExplodeCompoundCommandTest() : group_(addCompound(top(), "group")) {
    add(top(), "core::math::add", "first");
    add(top(), "core::math::add", "last");
    add(*group_, "core::math::add", "a");
    addPort(*group_, PortDirection::Input, "in", "float");
    addPort(*group_, PortDirection::Output, "out", "float");
    command_.setParentCompound(&graph_, "/");
  }

  bool explode(const char* name) { return command_.addCompoundToExplode(name) && command_.doit(); }

  CompoundObject* group_;
  ORV_v1::ExplodeCompoundCommand command_;
};

TEST_F(ExplodeCompoundCommandTest, JoinsTheWiresThroughThePorts) {
  connect("/first.result", "/group.in");
  connect("/first.result", "/last.b");
  connect("/group.in", "/group/a.a");
  connect("/group.in", "/group/a.b");
  connect("/group/a.result", "/group.out");
  connect("/group.out", "/last.a");
  const std::string before = text();
  ASSERT_TRUE(explode("group"));
  EXPECT_EQ(peers("/first.result"), (Texts{"/a.a", "/a.b", "/last.b"}));
  EXPECT_TRUE(wired("/a.result", "/last.a"));
  EXPECT_EQ(graph_.findNode("/group"), nullptr);
  EXPECT_EQ(command_.getCreatedNodeCount(), 1u);
  EXPECT_STREQ(command_.getCreatedNodeName(0), "a");
  expectReversible(command_, before);
}

TEST_F(ExplodeCompoundCommandTest, AValueThatNothingReplacesGoesToTheTargets) {
  connect("/group.in", "/group/a.a");
  ORV_v1::ModifyCompoundPortCommand value;
  value.setParentCompound(&graph_, "/group");
  value.setPortValues("in", array({"7"}), false);
  ASSERT_TRUE(value.redo());
  const std::string before = text();
  ASSERT_TRUE(explode("group"));
  EXPECT_EQ(values("/a.a"), Texts{"7"});
  expectReversible(command_, before);
}

TEST_F(ExplodeCompoundCommandTest, FollowsAValueThatOnlyPassesThrough) {
  connect("/first.result", "/group.in");
  connect(port("/group.in", 0), port("/group.out", 0));
  connect("/group.out", "/last.a");
  ASSERT_TRUE(explode("group"));
  EXPECT_TRUE(wired("/first.result", "/last.a"));
}

TEST_F(ExplodeCompoundCommandTest, JoinsComponents) {
  addPort(*group_, PortDirection::Input, "vec", "vector3");
  connect("/first.result", "/group.vec.y");
  connect("/group.vec.y", "/group/a.a");
  connect("/group.vec.x", "/group/a.b");
  const std::string before = text();
  ASSERT_TRUE(explode("group"));
  EXPECT_TRUE(wired("/first.result", "/a.a"));
  EXPECT_FALSE(port("/a.b")->hasPeers());
  expectReversible(command_, before);
}

TEST_F(ExplodeCompoundCommandTest, RefusesTypesThatDoNotJoinDirectly) {
  addPort(*group_, PortDirection::Input, "vec", "vector3");
  connect("/first.result", "/group.vec");
  connect("/group.vec.x", "/group/a.a");
  const std::string before = text();
  EXPECT_FALSE(explode("group"));
  EXPECT_EQ(text(), before);
}

TEST_F(ExplodeCompoundCommandTest, RefusesALockedCompound) {
  ASSERT_TRUE(edits_.run(SetMetadata{CompoundRef(group_), [] {
                                       Properties locked;
                                       locked.set("locked", {"true"});
                                       return locked;
                                     }()}));
  EXPECT_FALSE(explode("group"));
}

TEST_F(ExplodeCompoundCommandTest, NamesThatClashGetNumbers) {
  add(*group_, "core::math::add", "first");
  add(*group_, "core::math::add", "group");
  ASSERT_TRUE(explode("group"));
  EXPECT_STREQ(command_.getCreatedNodeName(1), "first1");
  EXPECT_STREQ(command_.getCreatedNodeName(2), "group");
  EXPECT_STREQ(command_.getCreatedNodeName(3), "");
}

TEST_F(ExplodeCompoundCommandTest, ItsInputAndOutputNodesGo) {
  NodeObject* io = insert(*group_, factory().makeIo(NodeKind::Input, "shows"));
  ASSERT_TRUE(edits_.run(SetIoNode{PortRef(port("/group.in")), NodeRef(io), 0}));
  const std::string before = text();
  ASSERT_TRUE(explode("group"));
  EXPECT_EQ(graph_.findNode("/shows"), nullptr);
  expectReversible(command_, before);
}

TEST_F(ExplodeCompoundCommandTest, AnnotationsComeOutToo) {
  const AnnotationRef note(new AnnotationObject(AnnotationKind::StickyNote, "note"));
  const AnnotationRef other(new AnnotationObject(AnnotationKind::StickyNote, "note"));
  ASSERT_TRUE(edits_.run(InsertAnnotation{{CompoundRef(group_), note, 0}}));
  ASSERT_TRUE(edits_.run(InsertAnnotation{{CompoundRef(&top()), other, 0}}));
  const std::string before = text();
  ASSERT_TRUE(explode("group"));
  EXPECT_EQ(graph_.findAnnotation("/note1"), note.get());
  expectReversible(command_, before);
}

TEST_F(ExplodeCompoundCommandTest, ExplodesSeveralThatAreConnected) {
  CompoundObject* next = addCompound(top(), "next");
  addPort(*next, PortDirection::Input, "in", "float");
  add(*next, "core::math::add", "b");
  connect("/next.in", "/next/b.a");
  connect("/group/a.result", "/group.out");
  connect("/group.out", "/next.in");
  const std::string before = text();
  ASSERT_TRUE(command_.addCompoundToExplode("group"));
  ASSERT_TRUE(explode("next"));
  EXPECT_TRUE(wired("/a.result", "/b.a"));
  expectReversible(command_, before);
}

TEST_F(ExplodeCompoundCommandTest, UndoesWhatCreatingACompoundDid) {
  add(top(), "core::math::add", "z");
  connect("/first.result", "/z.a");
  connect("/z.result", "/last.a");
  const std::string before = text();
  ORV_v1::CreateCompoundCommand create;
  create.setParentCompound(&graph_, "/");
  create.addNodeToMove("z");
  ASSERT_TRUE(create.doit());
  ASSERT_TRUE(explode("compound"));
  EXPECT_EQ(text(), before);
}

TEST_F(ExplodeCompoundCommandTest, RecordsOnlyCompoundsAndEachOnce) {
  EXPECT_FALSE(command_.addCompoundToExplode("first"));
  EXPECT_TRUE(command_.addCompoundToExplode("group"));
  EXPECT_TRUE(command_.addCompoundToExplode("group"));
  EXPECT_TRUE(command_.doit());
}

}  // namespace
}  // namespace orvlib
