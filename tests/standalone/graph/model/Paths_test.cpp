#include "tests/standalone/graph/GraphFixture.h"

namespace orvlib {
namespace {

class Paths : public GraphFixture {
 protected:
  Paths() {
    group_ = addCompound(top(), "group");
    add_ = add(*group_, "core::math::add", "add1");
    addPort(*group_, PortDirection::Input, "in", "color3");
    addPort(top(), PortDirection::Output, "out", "float");
  }

  CompoundObject* group_;
  NodeObject* add_;
};

TEST_F(Paths, ASlashIsTheTop) {
  EXPECT_EQ(graph_.findNode("/"), &graph_.top());
  EXPECT_EQ(graph_.top().fullPath(), "/");
}

TEST_F(Paths, LeadThroughTheLevels) {
  EXPECT_EQ(graph_.findNode("/group/add1"), add_);
  EXPECT_EQ(add_->fullPath(), "/group/add1");
}

TEST_F(Paths, OfACompoundFollowItsNameAndItsPlace) {
  EXPECT_EQ(graph_.findCompound("/group"), group_);
  const NodeRef node(group_->node());
  ASSERT_TRUE(edits_.run(RenameNode{node, "other"}));
  EXPECT_EQ(graph_.findCompound("/group"), nullptr);
  EXPECT_EQ(graph_.findCompound("/other"), group_);
  ASSERT_TRUE(edits_.run(RemoveNode{{CompoundRef(&top()), node, 0}}));
  EXPECT_EQ(graph_.findCompound("/other"), nullptr);
  CompoundObject* another = addCompound(top(), "other");
  EXPECT_EQ(graph_.findCompound("/other"), another);
  EXPECT_EQ(graph_.findCompound("/other/add1"), nullptr);
}

TEST_F(Paths, OfPortsLeadBack) {
  for (const char* path : {"/group/add1.a", "/group.in", "/group.in.g", "/.out"}) {
    ASSERT_TRUE(port(path)) << path;
    EXPECT_EQ(port(path)->fullPath(), path);
  }
}

TEST_F(Paths, ThatAreMalformedLeadNowhere) {
  for (const char* path : {"", "group", "//", "/group/", "//group", "/group//add1", "/add1",
                           "/group/add1/a", "/group/add1.a"}) {
    EXPECT_FALSE(graph_.findNode(path)) << path;
  }
  for (const char* path : {"", "in", "/group", "/group.", "/group.in.", "/group.in.x",
                           "/group.in.r.r", ".out", "out", "/nobody.in", "/group/.in"}) {
    EXPECT_FALSE(port(path)) << path;
  }
}

TEST_F(Paths, FindTheInnerFaceInModeZero) {
  PortObject* outer = port("/group.in", 1);
  PortObject* inner = port("/group.in", 0);
  EXPECT_EQ(outer->twin(), inner);
  EXPECT_EQ(inner->kind(), PortKind::Inner);
  EXPECT_FALSE(inner->isInput());
}

TEST_F(Paths, FindTheOneFaceOfAPlainNodeInBothModes) {
  EXPECT_EQ(port("/group/add1.a", 0), port("/group/add1.a", 1));
}

TEST_F(Paths, CompareTheDirectionOfTheFaceFound) {
  EXPECT_TRUE(graph_.findPort("/group.in", 0, 1));
  EXPECT_FALSE(graph_.findPort("/group.in", 1, 1));
  EXPECT_TRUE(graph_.findPort("/group.in", 1, 0));
  EXPECT_FALSE(graph_.findPort("/group.in", 0, 0));
  EXPECT_TRUE(graph_.findPort("/group.in", 2, 0));
}

TEST_F(Paths, FindNothingForOtherSearchValues) {
  EXPECT_FALSE(graph_.findPort("/group.in", 3, 1));
  EXPECT_FALSE(graph_.findPort("/group.in", 2, 2));
}

TEST_F(Paths, FindTheChildOfTheFaceAskedFor) {
  EXPECT_EQ(port("/group.in.g", 0)->above(), port("/group.in", 0));
  EXPECT_EQ(port("/group.in.g", 1)->above(), port("/group.in", 1));
}

TEST_F(Paths, PairThePortsOfOneLevel) {
  add(*group_, "core::math::add", "add2");
  const auto [from, to] = graph_.findPair("/group/add1.result", "/group/add2.a");
  EXPECT_EQ(from, port("/group/add1.result"));
  EXPECT_EQ(to, port("/group/add2.a"));
}

TEST_F(Paths, PairTheFaceThatLeadsInside) {
  const auto [from, to] = graph_.findPair("/group.in.r", "/group/add1.a");
  EXPECT_EQ(from, port("/group.in.r", 0));
  EXPECT_EQ(to, port("/group/add1.a"));
}

TEST_F(Paths, PairInTheOrderGiven) {
  const auto [from, to] = graph_.findPair("/group/add1.a", "/group.in.r");
  EXPECT_EQ(from, port("/group/add1.a"));
  EXPECT_EQ(to, port("/group.in.r", 0));
}

TEST_F(Paths, PairNothingAcrossLevelsOrOfOneDirection) {
  add(top(), "core::math::add", "add3");
  EXPECT_FALSE(graph_.findPair("/add3.result", "/group/add1.a").first);
  EXPECT_FALSE(graph_.findPair("/group/add1.a", "/group/add1.b").first);
  EXPECT_FALSE(graph_.findPair("/group/add1.result", "/nobody.a").first);
}

TEST_F(Paths, LeadToAnnotations) {
  const AnnotationRef note(new AnnotationObject(AnnotationKind::StickyNote, "note"));
  ASSERT_TRUE(edits_.run(InsertAnnotation{{CompoundRef(group_), note, 0}}));
  EXPECT_EQ(graph_.findAnnotation("/group/note"), note.get());
  for (const char* path : {"/note", "note", "/group/", "/group/add1", "", "/group/add1/note"}) {
    EXPECT_FALSE(graph_.findAnnotation(path)) << path;
  }
}

TEST_F(Paths, OfOneCompoundsPortsPairInTheStatedDirection) {
  addPort(*group_, PortDirection::Output, "out", "color3");
  const auto [from, to] = graph_.findPair("/group.in", "/group.out");
  EXPECT_EQ(from, port("/group.in", 0));
  EXPECT_EQ(to, port("/group.out", 0));
  const auto [outerFrom, outerTo] = graph_.findPair("/group.out", "/group.in");
  EXPECT_EQ(outerFrom, port("/group.out", 1));
  EXPECT_EQ(outerTo, port("/group.in", 1));
  const auto [childFrom, childTo] = graph_.findPair("/group.in.r", "/group.out.g");
  EXPECT_EQ(childFrom, port("/group.in.r", 0));
  EXPECT_EQ(childTo, port("/group.out.g", 0));
}

TEST_F(Paths, OfTheTopsPortsPairInsideInEitherDirection) {
  addPort(top(), PortDirection::Input, "in", "float");
  const auto [from, to] = graph_.findPair("/.in", "/.out");
  EXPECT_EQ(from, port("/.in", 0));
  EXPECT_EQ(to, port("/.out", 0));
  const auto [reverseFrom, reverseTo] = graph_.findPair("/.out", "/.in");
  EXPECT_EQ(reverseFrom, port("/.out", 0));
  EXPECT_EQ(reverseTo, port("/.in", 0));
}

TEST_F(Paths, OfPortsOfOneDirectionDoNotPair) {
  addPort(*group_, PortDirection::Input, "more", "color3");
  EXPECT_FALSE(graph_.findPair("/group.in", "/group.more").first);
  EXPECT_FALSE(graph_.findPair("/group.in", "/group.in").first);
}

}  // namespace
}  // namespace orvlib
