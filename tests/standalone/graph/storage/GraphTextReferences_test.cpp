// How compounds that refer to published ones are stored.

#include <gmock/gmock.h>

#include "standalone/graph/model/Mutator.h"
#include "tests/standalone/graph/published/PublishedFixture.h"

namespace orvlib {
namespace {

using testing::HasSubstr;
using testing::Not;

class StoredReference : public PublishedFixture {
 protected:
  /// core::soft is published, with 3 at its input; /one is an instance that is fed, /two one whose
  /// input was set back to the default and has a watch point.
  StoredReference() {
    setValue("/soft.size", 3);
    EXPECT_EQ(publish(), "");
    add(top(), "core::math::add", "from");
    EXPECT_TRUE(instance("core::soft", "one"));
    EXPECT_TRUE(instance("core::soft", "two"));
    EXPECT_TRUE(connect("/from.result", "/one.size"));
    EXPECT_TRUE(connect("/one.result", "/two.size"));
    EXPECT_TRUE(edits_.run(SetPortValue{PortRef(port("/two.size")), nullptr}));
    EXPECT_TRUE(edits_.run(SetPortFlags{PortRef(port("/two.result")), ORV_v1::kPortHidden}));
    const WatchPointRef watchPoint(new WatchPointObject);
    EXPECT_TRUE(edits_.run(SetWatchPoint{PortRef(port("/two.size")), watchPoint}));
    EXPECT_TRUE(edits_.run(SetState{NodeRef(graph_.findNode("/two")), NodeState::Frozen, true}));
  }

  void setValue(std::string_view path, float number) {
    auto value = std::make_unique<const Value>(Floats{number});
    EXPECT_TRUE(edits_.run(SetPortValue{PortRef(port(path)), std::move(value)}));
  }

  std::string again(const std::string& text, const std::string& runtime = "standard") {
    ContainerObject other(runtime);
    const auto error = readGraph(text, other);
    EXPECT_FALSE(error) << error->reason;
    return writeGraph(other);
  }
};

TEST_F(StoredReference, IsANodeWithItsOutsideAlone) {
  const std::string text = stored();
  EXPECT_THAT(text, HasSubstr("definition core::soft\nin size float\nout result float\n"));
  EXPECT_THAT(text, HasSubstr("  node one core::soft\n    value size 3\n"
                              "  node two core::soft\n    state frozen\n    watch size all 100\n"
                              "    flags result hidden\n"));
  EXPECT_THAT(text, HasSubstr("  wire one.result two.size\n"));
}

TEST_F(StoredReference, ComesBackWithThePublishedContent) {
  const std::string text = stored();
  ASSERT_FALSE(readGraph(text, graph_));
  EXPECT_EQ(stored(), text);
  EXPECT_TRUE(graph_.findCompound("/one")->isReferenced());
  EXPECT_TRUE(graph_.findNode("/one/twice"));
  EXPECT_TRUE(port("/one.size")->ownValue());
  EXPECT_FALSE(port("/two.size")->ownValue());
}

TEST_F(StoredReference, ThatIsPublishedNoMoreIsAPlaceholder) {
  const std::string text = stored();
  registry_.makeCurrent();  // knows no published compounds
  ASSERT_FALSE(readGraph(text, graph_));
  EXPECT_EQ(graph_.findNode("/one")->nodeKind(), NodeKind::Placeholder);
  EXPECT_EQ(stored(), text);
  fresh_.makeCurrent();
  ASSERT_FALSE(readGraph(text, graph_));
  EXPECT_TRUE(graph_.findCompound("/one"));
}

TEST_F(StoredReference, WithoutAPortThatIsNeededIsAPlaceholder) {
  const std::string text = stored();
  EXPECT_TRUE(edits_.run(RenamePort{PortRef(port("/soft.size")), "measure"}));
  ASSERT_EQ(publish("soft", "", true), "");
  ASSERT_FALSE(readGraph(text, graph_));
  EXPECT_EQ(graph_.findNode("/one")->nodeKind(), NodeKind::Placeholder);
  EXPECT_EQ(stored(), text);
}

TEST_F(StoredReference, InAPublishedCompoundIsAReferenceAgain) {
  CompoundObject* outer = addCompound(top(), "outer");
  const NodeRef inner = factory().make(*graph_.core().findDefinition("core::soft"), "inner");
  insert(*outer, inner);
  EXPECT_THAT(writeContent(*outer), Not(HasSubstr("twice")));
  const NodeRef fresh = factory().makeCompound("fresh");
  ASSERT_FALSE(readContent(writeContent(*outer), *fresh->compound()));
  EXPECT_EQ(writeContent(*fresh->compound()), writeContent(*outer));
}

/// core::soft is published with many as a further output, which has a member inside; /one is an
/// instance, with a watch point at the inner faces of all its ports and at the member.
class StoredInnerFaces : public PublishedFixture {
 protected:
  StoredInnerFaces() {
    many_ = addPort(*soft_, PortDirection::Output, "many", "array<float>");
    EXPECT_TRUE(edits_.run(SetPortFlags{PortRef(many_), ORV_v1::kPortFanIn}));
    EXPECT_TRUE(connect(soft_->nodes().find("twice")->port("result"), many_->twin()));
    watch(soft_->node()->port("result")->twin());
    EXPECT_EQ(publish(), "");
    EXPECT_TRUE(instance("core::soft", "one"));
    NodeObject* one = graph_.findNode("/one");
    watch(one->port("size")->twin());
    watch(one->port("many")->twin()->descendant("item"));
    WatchPointObject* kept = one->port("result")->twin()->watchPoint();
    Properties note;
    note.set("k", {"a b", "w"});
    Mutator::exchangeMetadata(*kept, note);
    text_ = stored();
  }

  void watch(PortObject* port) {
    ASSERT_TRUE(port);
    ASSERT_TRUE(edits_.run(SetWatchPoint{PortRef(port), WatchPointRef(new WatchPointObject)}));
  }

  NodeKind kindOfOne() { return graph_.findNode("/one")->nodeKind(); }

  std::string refusalOfOne(const std::string& lines) {
    const std::string head = text_.substr(0, text_.find("\ngraph\n") + 1);
    const auto error = readGraph(head + "graph\n  node one core::soft\n" + lines + "end\n", graph_);
    return error ? error->reason : "";
  }

  PortObject* many_;
  std::string text_;
};

TEST_F(StoredInnerFaces, HaveTheirWatchPointsButNotTheirMembers) {
  EXPECT_THAT(text_, HasSubstr("  node one core::soft\n"
                               "    watch .size all 100\n"
                               "    watch .result all 100\n"
                               "    watch-metadata .result k \"a b\" w\n"
                               "    watch .many.item all 100\n"));
}

TEST_F(StoredInnerFaces, ComeBackWithMembersAndWatchPoints) {
  ASSERT_FALSE(readGraph(text_, graph_));
  EXPECT_EQ(stored(), text_);
  ASSERT_EQ(kindOfOne(), NodeKind::Compound);
  EXPECT_TRUE(graph_.findPort("/one.many.item", 2, 0)->source());
  EXPECT_TRUE(graph_.findPort("/one.many.item", 2, 0)->watchPoint());
}

TEST_F(StoredInnerFaces, HaveNoWatchPointThatWasTakenOffTheInstance) {
  PortObject* inner = graph_.findNode("/one")->port("result")->twin();
  ASSERT_TRUE(edits_.run(SetWatchPoint{PortRef(inner), {}}));
  const std::string text = stored();
  ASSERT_FALSE(readGraph(text, graph_));
  EXPECT_FALSE(graph_.findNode("/one")->port("result")->twin()->watchPoint());
  EXPECT_EQ(stored(), text);
}

TEST_F(StoredInnerFaces, TakeNoMembersOfTheirOwn) {
  EXPECT_EQ(refusalOfOne("    member .many more\n"), "the members of '.many' are its definition's");
}

TEST_F(StoredInnerFaces, OfAnUnknownDefinitionAreKept) {
  registry_.makeCurrent();  // knows no published compounds
  ASSERT_FALSE(readGraph(text_, graph_));
  EXPECT_EQ(kindOfOne(), NodeKind::Placeholder);
  EXPECT_EQ(stored(), text_);
}

TEST_F(StoredInnerFaces, OfAnUnknownDefinitionGoWithACopy) {
  registry_.makeCurrent();
  ASSERT_FALSE(readGraph(text_, graph_));
  NodeObject* node = graph_.findNode("/one");
  const std::string text = writeSelection(top(), std::span(&node, 1), {});
  Selection selection;
  ASSERT_FALSE(readSelection(text, graph_.core(), selection));
  node = selection.carrier->compound()->nodes().find("one");
  EXPECT_EQ(writeSelection(*selection.carrier->compound(), std::span(&node, 1), {}), text);
  EXPECT_THAT(text, HasSubstr("    watch .many.item all 100\n"));
}

TEST_F(StoredInnerFaces, WorkAgainWhenTheDefinitionIsBack) {
  registry_.makeCurrent();
  ASSERT_FALSE(readGraph(text_, graph_));
  const std::string kept = stored();
  fresh_.makeCurrent();
  ASSERT_FALSE(readGraph(kept, graph_));
  EXPECT_EQ(kindOfOne(), NodeKind::Compound);
  EXPECT_TRUE(graph_.findNode("/one")->port("size")->twin()->watchPoint());
  EXPECT_EQ(stored(), text_);
}

TEST_F(StoredInnerFaces, WithoutAPortThatIsWatchedMakeAPlaceholder) {
  EXPECT_TRUE(edits_.run(RenamePort{PortRef(port("/soft.size")), "measure"}));
  ASSERT_EQ(publish("soft", "", true), "");
  ASSERT_FALSE(readGraph(text_, graph_));
  EXPECT_EQ(kindOfOne(), NodeKind::Placeholder);
  EXPECT_EQ(stored(), text_);
}

TEST_F(StoredInnerFaces, WithoutAMemberThatIsWatchedMakeAPlaceholder) {
  PortObject* item = many_->twin()->descendant("item");
  EXPECT_TRUE(edits_.run(RenamePort{PortRef(item), "other"}));
  ASSERT_EQ(publish("soft", "", true), "");
  ASSERT_FALSE(readGraph(text_, graph_));
  EXPECT_EQ(kindOfOne(), NodeKind::Placeholder);
  EXPECT_EQ(stored(), text_);
}

TEST_F(StoredInnerFaces, OfAnUnknownDefinitionAreCheckedAsFarAsTheyCanBe) {
  registry_.makeCurrent();
  EXPECT_EQ(refusalOfOne("    watch .lost all 1\n"), "there is no port '.lost'");
  EXPECT_EQ(refusalOfOne("    watch .size some 1\n"), "'some' cannot be recorded");
  EXPECT_EQ(refusalOfOne("    watch .size all 1\n    watch .size all 1\n"),
            "'.size' is watched already");
  EXPECT_EQ(refusalOfOne("    watch-metadata .size k v\n"), "'.size' is not watched");
  EXPECT_EQ(refusalOfOne("    watch .size all 1\n    watch-metadata .size k v\n"
                         "    watch-metadata .size k w\n"),
            "the metadata 'k' comes twice");
}

TEST_F(StoredReference, ThatWouldBeTooDeepIsKeptAsAPlaceholder) {
  CompoundObject* level = addNested(top(), "c", CompoundObject::kDeepestStored - 1);
  insert(*level, factory().make(*graph_.core().findDefinition("core::soft"), "deep"));
  const std::string text = stored();
  EXPECT_EQ(again(text), text);
  EXPECT_TRUE(told_.empty());
  addCompound(*soft_, "inner");
  ASSERT_EQ(publish("soft", "", true), "");
  told_.clear();
  ContainerObject other("standard");
  ASSERT_FALSE(readGraph(text, other));
  EXPECT_EQ(other.findNode(level->node()->fullPath() + "/deep")->nodeKind(), NodeKind::Placeholder);
  EXPECT_TRUE(other.findNode("/one/inner"));
  EXPECT_EQ(other.top().compound()->countHeight(), CompoundObject::kDeepestStored - 1);
  EXPECT_EQ(told_, std::vector<std::string>{"there can be no 'core::soft': compounds are nested "
                                            "more than 5000 deep"});
}

}  // namespace
}  // namespace orvlib
