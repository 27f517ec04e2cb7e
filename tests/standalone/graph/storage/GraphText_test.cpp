#include "standalone/graph/storage/GraphText.h"

#include <gmock/gmock.h>

#include "tests/standalone/graph/storage/StorageFixture.h"

namespace orvlib {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class GraphText : public StorageFixture {
 protected:
  /// Whether exactly these lines of a block come out as they were.
  void expectKept(const std::string& lines) {
    load(withBlock(lines));
    EXPECT_THAT(writeGraph(graph_), HasSubstr("graph\n" + lines + "end\n"));
  }

  static std::vector<std::string> names(const auto& list) {
    std::vector<std::string> all;
    for (const auto* item : list.items()) all.push_back(item->name());
    return all;
  }

  static Properties properties(std::vector<Property> all) {
    Properties set;
    for (Property& one : all) set.set(one.key, std::move(one.values));
    return set;
  }

  bool run(Edit edit) { return edits_.run(std::move(edit)); }
};

TEST_F(GraphText, OfAnEmptyGraphIsHeadAndBlock) {
  EXPECT_EQ(writeGraph(graph_), "vesk-graph 1\nruntime standard\ngraph\nend\n");
}

TEST_F(GraphText, OfTheDocumentedExampleComesOutAsItWas) { EXPECT_EQ(again(example()), example()); }

TEST_F(GraphText, WithEveryKindOfLineComesOutAsItWas) { EXPECT_EQ(again(rich()), rich()); }

TEST_F(GraphText, StatesOnlyWhatIsUsed) {
  load(withBlock("  node n core::math::add\n"));
  EXPECT_EQ(writeGraph(graph_),
            "vesk-graph 1\nruntime standard\ntype float float\n"
            "definition core::math::add\nin a float\nin b float\nout result float\n"
            "graph\n  node n core::math::add\nend\n");
}

TEST_F(GraphText, OfABuiltGraphIsReadBackWithEveryObject) {
  NodeObject* one = add(top(), "core::math::add", "one");
  CompoundObject* group = addCompound(top(), "group");
  addPort(*group, PortDirection::Input, "x", "float");
  ASSERT_TRUE(connect("/one.result", "/group.x"));
  ASSERT_TRUE(run(SetMetadata{NodeRef(one), properties({{"k", {"v", ""}}})}));
  const std::string text = writeGraph(graph_);

  ContainerObject other("standard");
  expectNoError(readGraph(text, other));
  EXPECT_EQ(writeGraph(other), text);
  EXPECT_THAT(names(other.top().compound()->nodes()), ElementsAre("one", "group"));
  const PortObject* x = other.findPort("/group.x", 2, 1);
  ASSERT_TRUE(x && x->source());
  EXPECT_EQ(x->source()->fullPath(), "/one.result");
  EXPECT_EQ(other.findNode("/one")->metadata(), one->metadata());
  EXPECT_EQ(other.findNode("/one")->description(), one->description());
}

TEST_F(GraphText, KeepsTheOrderOfNodes) {
  expectKept("  node z core::math::add\n  compound m\n  end\n  io out a\n");
}

TEST_F(GraphText, KeepsStates) {
  expectKept("  node n core::math::add\n    state disabled frozen bypassed\n");
  EXPECT_TRUE(graph_.findNode("/n")->is(NodeState::Frozen));
  EXPECT_FALSE(graph_.findNode("/n")->is(NodeState::Enabled));
}

TEST_F(GraphText, KeepsMetadataOfNodesAndCompoundsApart) {
  expectKept(
      "  compound c\n    metadata a 1 2\n    metadata \"\\\"k\\n\" \"\"\n"
      "    compound-metadata b 3\n  end\n");
  EXPECT_EQ(graph_.findNode("/c")->metadata(), properties({{"a", {"1", "2"}}, {"\"k\n", {""}}}));
  EXPECT_EQ(graph_.findCompound("/c")->metadata(), properties({{"b", {"3"}}}));
}

TEST_F(GraphText, KeepsWhatTheTopHas) {
  expectKept("  state frozen\n  metadata a 1\n  compound-metadata b 2\n  port in x float\n");
}

TEST_F(GraphText, KeepsPortsThatAreNotTheDefinitions) {
  expectKept("  node n core::math::add\n    port in more vector3\n    port out other string\n");
  EXPECT_THAT(names(graph_.findNode("/n")->inputList()), ElementsAre("a", "b", "more"));
  EXPECT_FALSE(graph_.findPort("/n.more", 2, 1)->isFixed());
}

TEST_F(GraphText, KeepsTheOrderOfPorts) {
  expectKept("  node n core::math::add\n    port in more float\n    order in b more a\n");
  EXPECT_THAT(names(graph_.findNode("/n")->inputList()), ElementsAre("b", "more", "a"));
}

TEST_F(GraphText, KeepsBothFacesOfACompoundsPorts) {
  expectKept("  compound c\n    port in i float\n    port out o vector3\n  end\n");
  const PortObject* inner = graph_.findPort("/c.o", 2, 0);
  ASSERT_TRUE(inner && inner->twin());
  EXPECT_TRUE(inner->isInner());
  EXPECT_TRUE(inner->isInput());
  EXPECT_EQ(inner->twin(), graph_.findPort("/c.o", 2, 1));
}

TEST_F(GraphText, KeepsValuesThatWereSetAlsoWhenTheyAreTheDefault) {
  expectKept(
      "  port in t string\n  port in list array<float>\n  value t \"two\\nlines; \\\"x\\\"\"\n"
      "  value list\n  node n core::math::add\n    value a 0\n    value b -1.5e-07\n");
  EXPECT_TRUE(graph_.findPort("/n.a", 2, 1)->ownValue());
}

TEST_F(GraphText, KeepsValuesOfSeveralComponents) {
  expectKept("  node n core::vector::vector3::add\n    value b 0.1 inf nan\n");
}

TEST_F(GraphText, KeepsFlagsOfPortsAndComponents) {
  expectKept(
      "  node n core::vector::vector3::add\n    flags a hidden\n    flags a.y hidden 12\n"
      "    flags result fan-in\n");
  EXPECT_EQ(graph_.findPort("/n.a.y", 2, 1)->flags(), 13u);
}

TEST_F(GraphText, KeepsMetadataOfPortsComponentsAndMembers) {
  expectKept(
      "  compound c\n    port in many array<float>\n    flags many fan-in\n"
      "    member many item\n    port-metadata many k 1\n    port-metadata many.item k 2\n"
      "    node n core::vector::vector3::add\n      port-metadata a.x k 3\n  end\n");
}

TEST_F(GraphText, KeepsMembersOfFanInPortsWithTheirConnections) {
  expectKept(
      "  compound c\n    port in many array<float>\n    flags many fan-in\n    member many b\n"
      "    member many a\n  end\n  node n core::math::add\n  wire n.result c.many.b\n"
      "  wire n.result c.many.a\n");
  const PortObject* many = graph_.findPort("/c.many", 2, 1);
  ASSERT_TRUE(many->isFanInPort() && many->madeChildren());
  EXPECT_THAT(names(*many->madeChildren()), ElementsAre("b", "a"));
}

TEST_F(GraphText, KeepsInputOutputNodesAndWhatTheyShowInOrder) {
  expectKept(
      "  port in a float\n  port in b float\n  port out c float\n  io in first\n    show b\n"
      "    show a\n  io out last\n    metadata k v\n    show c\n");
  EXPECT_THAT(names(graph_.findNode("/first")->outputList()), ElementsAre("b", "a"));
  EXPECT_EQ(graph_.findPort("/c", 2, 1), nullptr);
  EXPECT_EQ(graph_.top().port("c")->ioNode(), graph_.findNode("/last"));
}

TEST_F(GraphText, KeepsStatePorts) {
  expectKept("  compound c\n    port in i float\n    port out o float\n    pair i o\n  end\n");
  EXPECT_EQ(graph_.findPort("/c.i", 2, 1)->statePartner(), graph_.findPort("/c.o", 2, 1));
}

TEST_F(GraphText, KeepsTheOrderOfConnectionsOfASource) {
  expectKept(
      "  node a core::math::add\n  node b core::math::add\n  node c core::math::add\n"
      "  wire a.result c.a\n  wire a.result b.b\n  wire a.result b.a\n");
  EXPECT_EQ(graph_.findPort("/a.result", 2, 1)->peers().at(2)->fullPath(), "/b.a");
}

TEST_F(GraphText, KeepsConnectionsOfComponents) {
  expectKept(
      "  port in v vector3\n  node a core::vector::vector3::add\n"
      "  node b core::vector::vector3::add\n  wire .v.z a.a.x\n  wire a.result b.b\n"
      "  wire a.result.y b.a.z\n");
}

TEST_F(GraphText, KeepsConnectionsAgainstTheOrderOfNodes) {
  expectKept(
      "  node a core::math::add\n  node b core::math::add\n  node c core::math::add\n"
      "  wire b.result a.a\n  wire c.result b.a\n");
}

TEST_F(GraphText, KeepsConnectionsThroughACompound) {
  expectKept(
      "  compound c\n    port in i float\n    port out o float\n    wire .i .o\n  end\n"
      "  node n core::math::add\n  wire c.o n.a\n");
}

TEST_F(GraphText, KeepsAnnotations) {
  expectKept("  note z\n    metadata text \"a b\"\n  backdrop a\n  note m\n");
  EXPECT_EQ(graph_.findAnnotation("/a")->kind(), AnnotationKind::Backdrop);
  EXPECT_THAT(names(top().annotations()), ElementsAre("z", "a", "m"));
}

TEST_F(GraphText, KeepsTheFormatOfWatchPoints) {
  expectKept(
      "  node n core::math::add\n    watch a all 100 format fixed\n"
      "    watch b all 100 off digits 3\n"
      "    watch result changes 5 off format scientific digits 0\n");
  EXPECT_EQ(graph_.findPort("/n.result", 2, 1)->watchPoint()->setup(),
            (WatchPointSetup{false, true, 5, {FloatForm::Style::Scientific, 0}}));
}

TEST_F(GraphText, ReadsTheFormatOfWatchPointsInAnyOrderAndWithoutNeed) {
  load(withBlock("  node n core::math::add\n    watch a all 9 digits 3 format shortest\n"));
  EXPECT_EQ(writeGraph(graph_).find("watch"), writeGraph(graph_).find("watch a all 9 digits 3\n"));
}

TEST_F(GraphText, KeepsWatchPointsOfBothFaces) {
  expectKept(
      "  compound c\n    port in v vector3\n    watch v all 100\n    watch-metadata v k 1\n"
      "    watch v.x changes 5 off\n    watch .v changes 7\n    watch .v.y all 8\n  end\n");
  const PortObject* inner = graph_.findPort("/c.v", 2, 0);
  ASSERT_TRUE(inner->watchPoint());
  EXPECT_EQ(inner->watchPoint()->setup().limit, 7u);
  EXPECT_FALSE(graph_.findPort("/c.v.x", 2, 1)->watchPoint()->setup().enabled);
}

TEST_F(GraphText, KeepsMembersInsideOfACompoundWithTheirConnections) {
  const std::string text = withBlock(
      "  compound c\n    port out many array<float>\n    flags many fan-in\n"
      "    watch many all 5\n    member .many b\n    member .many a\n"
      "    watch .many.a all 6\n    node n core::math::add\n    wire n.result .many.b\n"
      "    wire n.result .many.a\n  end\n");
  load(text);
  EXPECT_EQ(graph_.findPort("/c.many.a", 2, 0)->source(), graph_.findPort("/c/n.result", 2, 1));
  EXPECT_EQ(writeGraph(graph_), again(text));
  EXPECT_THAT(writeGraph(graph_), HasSubstr(text.substr(text.find("graph\n  compound"))));
}

TEST_F(GraphText, OfAMemberThatGrewInsideOfACompoundIsRead) {
  CompoundObject* compound = addCompound(top(), "c");
  PortObject* out = addPort(*compound, PortDirection::Output, "out", "array<float>");
  ASSERT_TRUE(edits_.run(SetPortFlags{PortRef(out), ORV_v1::kPortFanIn}));
  NodeObject* node = add(*compound, "core::math::add", "a");
  ASSERT_TRUE(connect(node->port("result"), out->twin()));
  const std::string text = writeGraph(graph_);
  EXPECT_THAT(text, HasSubstr("    member .out item\n"));
  EXPECT_EQ(again(text), text);
}

TEST_F(GraphText, KeepsTheOriginOfAnImportedCompound) {
  expectKept("  compound c\n    origin my::published\n  end\n");
  EXPECT_TRUE(graph_.findCompound("/c")->isImported());
}

TEST_F(GraphText, KeepsTheRuntimeOfTheText) {
  ContainerObject other("other");
  expectNoError(readGraph(example(), other));
  EXPECT_EQ(other.core().runtime(), "standard");
  EXPECT_EQ(other.findNode("/add")->nodeKind(), NodeKind::Plain);
}

TEST_F(GraphText, TakesTheFormerGraphsPlace) {
  const NodeRef former(add(top(), "core::math::add", "former"));
  load(example());
  EXPECT_EQ(former->container(), nullptr);
  EXPECT_EQ(graph_.findNode("/former"), nullptr);
  EXPECT_EQ(graph_.findNode("/add")->container(), &graph_);
}

TEST_F(GraphText, EndsTheBracketsOfTheFormerGraph) {
  NodeObject* node = add(top(), "core::math::add", "former");
  ASSERT_TRUE(graph_.openBracket(node));
  ASSERT_TRUE(graph_.openBracket(nullptr));
  load(example());
  EXPECT_EQ(graph_.openBracketCount(), 1u);
  EXPECT_TRUE(graph_.closeBracket(nullptr));
}

TEST_F(GraphText, IsReadOfAsManyLevelsAsThereMayBe) {
  std::string lines;
  for (int i = 0; i < 1000; ++i) lines += "compound c\n";
  for (int i = 0; i < 1000; ++i) lines += "end\n";
  load(withBlock(lines));
  EXPECT_EQ(again(writeGraph(graph_)), writeGraph(graph_));
}

TEST_F(GraphText, TellsListenersOnce) {
  struct Counter : ChangeListener {
    int calls = 0;
    void graphChanged(ContainerObject&, std::span<const NodeChange>) override { ++calls; }
  } counter;
  graph_.addListener(counter);
  load(example());
  EXPECT_EQ(counter.calls, 1);
  graph_.removeListener(counter);
}

}  // namespace
}  // namespace orvlib
