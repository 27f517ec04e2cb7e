#include "platform/ORV_1_0/CreateCompoundCommand.h"

#include "tests/standalone/graph/commands/CommandFixture.h"

namespace orvlib {
namespace {

using Texts = std::vector<std::string>;

/// first -> a -> b -> last, first -> b.
class CreateCompoundCommandTest : public CommandFixture {
 protected:
  CreateCompoundCommandTest() {
    for (const char* name : {"first", "a", "b", "last"}) add(top(), "core::math::add", name);
    connect("/first.result", "/a.a");
    connect("/first.result", "/b.b");
    connect("/a.result", "/b.a");
    connect("/b.result", "/last.a");
    connect("/b.result", "/last.b");
    command_.setParentCompound(&graph_, "/");
    command_.setNewCompoundName("group");
  }

  bool create(std::initializer_list<const char*> names) {
    for (const char* name : names) {
      if (!command_.addNodeToMove(name)) return false;
    }
    return command_.doit();
  }

  ORV_v1::CreateCompoundCommand command_;
};

TEST_F(CreateCompoundCommandTest, TheCompoundIsTheLastOfItsLevel) {
  ASSERT_TRUE(create({"a"}));
  EXPECT_STREQ(command_.getCreatedCompoundPath().toChar(), "/group");
  EXPECT_EQ(top().nodes().at(top().nodes().count() - 1)->name(), "group");
}

TEST_F(CreateCompoundCommandTest, OneInputForEachSourceAndOneOutputForEachSource) {
  const std::string before = text();
  ASSERT_TRUE(create({"a", "b"}));
  EXPECT_EQ(peers("/first.result"), Texts{"/group.a"});
  EXPECT_EQ(peers("/group.a", 0), (Texts{"/group/a.a", "/group/b.b"}));
  EXPECT_EQ(peers("/group.result"), (Texts{"/last.a", "/last.b"}));
  EXPECT_TRUE(wired("/group/a.result", "/group/b.a"));
  expectReversible(command_, before);
}

TEST_F(CreateCompoundCommandTest, WiresKeepTheirPlaceAtTheSource) {
  ASSERT_TRUE(create({"a"}));
  EXPECT_EQ(peers("/first.result"), (Texts{"/group.a", "/b.b"}));
}

TEST_F(CreateCompoundCommandTest, ThePortShowsTheValueOfItsTarget) {
  ORV_v1::ModifyNodePortCommand value;
  value.setPortValues(node("/a"), "a", array({"3"}), false);
  ASSERT_TRUE(value.redo());
  ASSERT_TRUE(create({"a"}));
  EXPECT_EQ(values("/group.a"), Texts{"3"});
}

TEST_F(CreateCompoundCommandTest, MembersKeepTheirPlace) {
  CompoundObject* list = addCompound(top(), "list");
  PortObject* in = addPort(*list, PortDirection::Input, "values", "array<float>");
  ASSERT_TRUE(edits_.run(SetPortFlags{PortRef(in), ORV_v1::kPortFanIn}));
  for (const char* source : {"/first.result", "/a.result", "/b.result"})
    connect(source, "/list.values");
  const std::string before = text();
  ASSERT_TRUE(create({"list", "a"}));
  EXPECT_EQ(peers("/group/list.values.item"), Texts{"/group.a"});
  EXPECT_EQ(peers("/group/list.values.item1"), Texts{"/group/a.result"});
  EXPECT_EQ(peers("/group/list.values.item2"), Texts{"/group.values"});
  expectReversible(command_, before);
}

TEST_F(CreateCompoundCommandTest, WiresToPortsOfTheLevelGoThroughToo) {
  CompoundObject* outer = addCompound(top(), "outer");
  addPort(*outer, PortDirection::Input, "in", "float");
  add(*outer, "core::math::add", "deep");
  connect("/outer.in", "/outer/deep.a");
  const std::string before = text();
  ASSERT_TRUE(command_.setParentCompound(&graph_, "/outer"));
  ASSERT_TRUE(create({"deep"}));
  EXPECT_EQ(peers("/outer.in", 0), Texts{"/outer/group.a"});
  EXPECT_EQ(peers("/outer/group.a", 0), Texts{"/outer/group/deep.a"});
  expectReversible(command_, before);
}

TEST_F(CreateCompoundCommandTest, RefusesWhatIsMissingOrShowsPorts) {
  insert(top(), factory().makeIo(NodeKind::Input, "in"));
  EXPECT_FALSE(command_.addNodeToMove("none"));
  EXPECT_FALSE(command_.addNodeToMove("in"));
  EXPECT_FALSE(command_.addAnnotationToMove("none"));
}

TEST_F(CreateCompoundCommandTest, WhatIsNamedTwiceMovesOnce) {
  const std::string before = text();
  EXPECT_TRUE(command_.addNodeToMove("a"));
  EXPECT_TRUE(command_.addNodeToMove("a"));
  ASSERT_TRUE(create({}));
  EXPECT_EQ(compound("/group")->getChildNodes().size(), 1u);
  expectReversible(command_, before);
}

TEST_F(CreateCompoundCommandTest, WithNothingToMoveTheCompoundIsEmpty) {
  ASSERT_TRUE(create({}));
  EXPECT_EQ(compound("/group")->getChildNodes().size(), 0u);
}

TEST_F(CreateCompoundCommandTest, MovesAnnotations) {
  const AnnotationRef note(new AnnotationObject(AnnotationKind::Backdrop, "back"));
  ASSERT_TRUE(edits_.run(InsertAnnotation{{CompoundRef(&top()), note, 0}}));
  const std::string before = text();
  ASSERT_TRUE(command_.addAnnotationToMove("back"));
  ASSERT_TRUE(create({}));
  EXPECT_EQ(graph_.findAnnotation("/group/back"), note.get());
  expectReversible(command_, before);
}

TEST_F(CreateCompoundCommandTest, HasNoPathBeforeAndAfterUndo) {
  EXPECT_STREQ(command_.getCreatedCompoundPath().toChar(), "");
  ASSERT_TRUE(create({"a"}));
  ASSERT_TRUE(command_.undo());
  EXPECT_STREQ(command_.getCreatedCompoundPath().toChar(), "");
}

class CreateCompoundNesting : public CommandFixture {
 protected:
  static constexpr unsigned int kDeepest = CompoundObject::kDeepest;

  /// Around what is at that path, at its level.
  bool wrap(const char* level, const char* name, const char* created) {
    ORV_v1::CreateCompoundCommand command;
    command.setParentCompound(&graph_, level);
    command.setNewCompoundName(created);
    return command.addNodeToMove(name) && command.doit();
  }
};

TEST_F(CreateCompoundNesting, WhatMovesInIsNestedAsDeepAsWhatIsMade) {
  add(top(), "core::math::add", "n0");
  for (unsigned int i = 0; i < kDeepest; ++i) {
    const std::string former = "n" + std::to_string(i);
    ASSERT_TRUE(wrap("/", former.c_str(), ("n" + std::to_string(i + 1)).c_str())) << i;
  }
  const std::string before = text();
  EXPECT_FALSE(wrap("/", "n1000", "more"));
  EXPECT_EQ(text(), before);
  EXPECT_EQ(top().countHeight(), kDeepest);
  ContainerObject other("standard");
  EXPECT_FALSE(readGraph(before, other));
}

TEST_F(CreateCompoundNesting, NothingIsMadeBelowTheDeepest) {
  CompoundObject* innermost = addNested(top(), "c", kDeepest);
  add(*innermost, "core::math::add", "sum");
  const std::string before = text();
  const std::string path = innermost->node()->fullPath();
  EXPECT_FALSE(wrap(path.c_str(), "sum", "more"));
  EXPECT_EQ(text(), before);
}

TEST_F(CreateCompoundNesting, OneThatIsHighForTheLevelStaysWhereItIs) {
  CompoundObject* low = addNested(top(), "c", 600);
  CompoundObject* innermost = addNested(*low, "d", 400);
  const std::string before = text();
  const std::string path = low->node()->fullPath();
  EXPECT_FALSE(wrap(path.c_str(), "d", "more"));
  EXPECT_EQ(text(), before);
  const CompoundRef level(innermost->node()->parent());
  ASSERT_TRUE(edits_.run(RemoveNode{{level, NodeRef(innermost->node()), 0}}));
  EXPECT_TRUE(wrap(path.c_str(), "d", "more"));
  EXPECT_EQ(top().countHeight(), kDeepest);
}

}  // namespace
}  // namespace orvlib
