// How compounds that refer to published ones are stored.

#include <gmock/gmock.h>

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

}  // namespace
}  // namespace orvlib
