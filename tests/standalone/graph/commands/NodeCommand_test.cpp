#include "platform/ORV_1_0/NodeCommand.h"

#include "tests/standalone/graph/commands/CommandFixture.h"
#include "tests/standalone/graph/published/PublishedFixture.h"

namespace orvlib {
namespace {

using ORV_v1::NodeFlags;
using Texts = std::vector<std::string>;

constexpr const char* kAdd = "core::math::add";

class NodeCommandTest : public CommandFixture {
 protected:
  NodeCommandTest() { add(top(), kAdd, "a"); }

  Texts created() const { return ORV_v1::GraphAccess::textsOf(command_.getCreatedNodeNames()); }

  ORV_v1::NodeCommand command_;
};

TEST_F(NodeCommandTest, AddsNodesNamedAfterTheirTypes) {
  const std::string before = text();
  ASSERT_TRUE(command_.createNode(compound("/"), kAdd, nullptr));
  ASSERT_TRUE(command_.createNode(compound("/"), kAdd, ""));
  EXPECT_EQ(text(), before);
  ASSERT_TRUE(command_.redo());
  EXPECT_EQ(created(), (Texts{"add", "add1"}));
  expectReversible(command_, before);
}

TEST_F(NodeCommandTest, RefusesAnUnknownTypeAndANullCompound) {
  EXPECT_FALSE(command_.createNode(compound("/"), "none", nullptr));
  EXPECT_FALSE(command_.createNode({}, kAdd, nullptr));
  EXPECT_FALSE(command_.createIONode(compound("/"), static_cast<NodeFlags>(4), nullptr));
}

TEST_F(NodeCommandTest, ConnectsTheNewNode) {
  for (const char* target : {"a.a", "/a.b"}) {
    ORV_v1::NodeCommand command;
    ASSERT_TRUE(command.createNode(compound("/"), kAdd, target));
    ASSERT_TRUE(command.redo());
  }
  EXPECT_TRUE(wired("/add.result", "/a.a"));
  EXPECT_TRUE(wired("/add1.result", "/a.b"));
}

TEST_F(NodeCommandTest, APortToConnectToThatIsMissingUndoesAll) {
  const std::string before = text();
  ASSERT_TRUE(command_.createNode(compound("/"), kAdd, nullptr));
  ASSERT_TRUE(command_.createNode(compound("/"), kAdd, "none.a"));
  EXPECT_FALSE(command_.redo());
  EXPECT_EQ(text(), before);
}

TEST_F(NodeCommandTest, AnInputNodeGetsAPortOfTheCompound) {
  add(*addCompound(top(), "group"), kAdd, "deep");
  const std::string before = text();
  ASSERT_TRUE(command_.createIONode(compound("/group"), NodeFlags::kInputNode, "deep.a"));
  ASSERT_TRUE(command_.redo());
  EXPECT_EQ(created(), Texts{"input"});
  EXPECT_TRUE(wired("/group.a", "/group/deep.a"));
  EXPECT_EQ(graph_.findNode("/group/input")->outputList().at(0), port("/group.a", 0));
  expectReversible(command_, before);
}

TEST_F(NodeCommandTest, AnOutputNodeGetsAPortOfTheCompound) {
  add(*addCompound(top(), "group"), kAdd, "deep");
  const std::string before = text();
  ASSERT_TRUE(command_.createIONode(compound("/group"), NodeFlags::kOutputNode, "deep.result"));
  ASSERT_TRUE(command_.redo());
  EXPECT_EQ(created(), Texts{"output"});
  EXPECT_STREQ(node("/group/output")->getTypeName().toChar(), "output");
  EXPECT_TRUE(wired("/group/deep.result", "/group.result"));
  EXPECT_EQ(compound("/group")->compoundInputs().size(), 0u);
  ASSERT_EQ(compound("/group")->compoundOutputs().size(), 1u);
  EXPECT_EQ(graph_.findNode("/group/output")->inputList().at(0), port("/group.result", 0));
  expectReversible(command_, before);
}

TEST_F(NodeCommandTest, RemovesANodeWithItsConnections) {
  add(top(), kAdd, "b");
  connect("/a.result", "/b.a");
  const std::string before = text();
  ASSERT_TRUE(command_.removeNode(compound("/"), "a"));
  EXPECT_FALSE(command_.removeNode(compound("/"), "none"));
  ASSERT_TRUE(command_.redo());
  EXPECT_EQ(graph_.findNode("/a"), nullptr);
  EXPECT_FALSE(port("/b.a")->hasPeers());
  expectReversible(command_, before);
}

TEST_F(NodeCommandTest, WhatIsNamedTwiceGoesOnce) {
  const std::string before = text();
  ASSERT_TRUE(command_.removeNode(compound("/"), "a"));
  ASSERT_TRUE(command_.removeNode(compound("/"), "a"));
  ASSERT_TRUE(command_.redo());
  EXPECT_EQ(graph_.findNode("/a"), nullptr);
  expectReversible(command_, before);
}

TEST_F(NodeCommandTest, UndoGivesBackTheVeryNode) {
  const NodeRef node(graph_.findNode("/a"));
  command_.removeNode(compound("/"), "a");
  ASSERT_TRUE(command_.redo());
  ASSERT_TRUE(command_.undo());
  EXPECT_EQ(graph_.findNode("/a"), node.get());
}

TEST_F(NodeCommandTest, NamesOfWhatIsUndoneAreNotGiven) {
  command_.createNode(compound("/"), kAdd, nullptr);
  ASSERT_TRUE(command_.redo());
  ASSERT_TRUE(command_.undo());
  EXPECT_EQ(created(), Texts{});
}

/// core::soft is published with two levels inside of it.
class NodeCommandNesting : public PublishedFixture {
 protected:
  NodeCommandNesting() {
    addNested(*soft_, "inner", 2);
    publish();
  }
  bool addAt(unsigned int depth) {
    CompoundObject* level = addNested(top(), "c", depth);
    before_ = stored();
    return command_.createNode(level->node()->asCompound(), "core::soft", nullptr) &&
           command_.redo();
  }

  ORV_v1::NodeCommand command_;
  std::string before_;
};

TEST_F(NodeCommandNesting, APublishedCompoundReachesDownToTheDeepestLevel) {
  EXPECT_TRUE(addAt(CompoundObject::kDeepest - 3));
  EXPECT_EQ(top().countHeight(), CompoundObject::kDeepest);
}

TEST_F(NodeCommandNesting, APublishedCompoundBelowWhichThereIsNoRoomIsRefused) {
  EXPECT_FALSE(addAt(CompoundObject::kDeepest - 2));
  EXPECT_EQ(stored(), before_);
}

}  // namespace
}  // namespace orvlib
