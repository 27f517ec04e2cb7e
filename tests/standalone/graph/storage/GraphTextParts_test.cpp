// What a compound is, and selections, as text.

#include <gmock/gmock.h>

#include "standalone/graph/storage/SelectionSeal.h"
#include "tests/standalone/graph/storage/StorageFixture.h"

namespace orvlib {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class ContentText : public StorageFixture {
 protected:
  /// The content of a new compound that is read from the text.
  std::string againContent(std::string_view text) {
    const NodeRef node = factory().makeCompound("fresh");
    expectNoError(readContent(text, *node->compound()));
    return writeContent(*node->compound());
  }

  std::string refusedContent(const std::string& lines) {
    const NodeRef node = factory().makeCompound("fresh");
    const auto error =
        readContent("vesk-compound 1\ncontent\n" + lines + "end\n", *node->compound());
    return error ? error->reason : "";
  }
};

TEST_F(ContentText, HasNothingOfTheNode) {
  load(withBlock(
      "  compound c\n    state frozen\n    metadata k v\n    origin a::b\n"
      "    compound-metadata k w\n    port in many array<float>\n    flags many fan-in\n"
      "    member many item\n    watch many all 5\n    watch .many all 6\n"
      "    compound d\n      origin a::c\n      port in i float\n      watch i all 1\n    end\n"
      "  end\n"));
  EXPECT_EQ(writeContent(*graph_.findCompound("/c")),
            "vesk-compound 1\ntype float float\ntype array<float> array float\n"
            "content\n"
            "  compound-metadata k w\n"
            "  port in many array<float>\n"
            "  flags many fan-in\n"
            "  watch .many all 6\n"
            "  compound d\n"
            "    origin a::c\n"
            "    port in i float\n"
            "    watch i all 1\n"
            "  end\n"
            "end\n");
}

TEST_F(ContentText, ComesOutAsItWas) {
  load(example());
  const std::string text = writeContent(*graph_.findCompound("/tint"));
  EXPECT_THAT(text, HasSubstr("  wire combine.color .result\n"));
  EXPECT_EQ(againContent(text), text);
}

TEST_F(ContentText, HasMembersOnInnerFaces) {
  load(
      withBlock("  compound c\n    port out many array<float>\n    flags many fan-in\n"
                "    member .many item\n    watch .many.item all 6\n"
                "    node n core::math::add\n    wire n.result .many.item\n  end\n"));
  const std::string text = writeContent(*graph_.findCompound("/c"));
  EXPECT_THAT(text, HasSubstr("  member .many item\n  watch .many.item all 6\n"));
  EXPECT_EQ(againContent(text), text);
}

TEST_F(ContentText, HasNoLinesOfTheNode) {
  for (const char* line : {"state frozen\n", "metadata k v\n", "origin a::b\n"}) {
    EXPECT_THAT(refusedContent(line), HasSubstr("does not belong to what stands before it"))
        << line;
  }
}

TEST_F(ContentText, IsNoGraph) {
  const NodeRef node = factory().makeCompound("fresh");
  const auto error = readContent(example(), *node->compound());
  ASSERT_TRUE(error);
  EXPECT_EQ(error->reason, "a text of the format 'vesk-compound' was expected");
}

class SelectionText : public StorageFixture {
 protected:
  std::string write(const std::vector<const char*>& paths,
                    const std::vector<const char*>& notes = {}, const char* level = "/") {
    std::vector<NodeObject*> nodes;
    for (const char* path : paths) nodes.push_back(graph_.findNode(path));
    std::vector<AnnotationObject*> annotations;
    for (const char* path : notes) annotations.push_back(graph_.findAnnotation(path));
    return writeSelection(*graph_.findCompound(level), nodes, annotations);
  }

  static std::string sealed(const std::string& lines) {
    const std::string all = "from \"\"\n" + lines;
    return sealOf(all) + all;
  }

  static std::string blockOf(const std::string& text) { return text.substr(text.find("nodes\n")); }
};

TEST_F(SelectionText, HasNodesAndAnnotationsInTheOrderOfTheLevel) {
  load(
      withBlock("  node a core::math::add\n  node b core::math::add\n  compound c\n  end\n"
                "  note d\n  note e\n  note f\n"));
  EXPECT_EQ(blockOf(write({"/c", "/a"}, {"/f", "/d"})),
            "nodes\n  node a core::math::add\n  compound c\n  end\n  note d\n  note f\nend\n");
}

TEST_F(SelectionText, StatesWhatItsNodesUse) {
  load(withBlock("  node a core::math::add\n  node b core::vector::vector3::add\n"));
  EXPECT_THAT(write({"/a"}), HasSubstr("\nfrom \"\"\ntype float float\ndefinition "
                                       "core::math::add\nin a float\n"));
}

TEST_F(SelectionText, HasConnectionsWithinAndIntoIt) {
  load(withBlock(
      "  compound g\n    port in i float\n    port out o float\n"
      "    node a core::math::add\n    node b core::math::add\n    node c core::math::add\n"
      "    wire .i a.a\n    wire .i b.a\n    wire a.result b.b\n    wire a.result c.a\n"
      "    wire b.result c.b\n    wire b.result .o\n  end\n"));
  EXPECT_EQ(blockOf(write({"/g/b", "/g/c"}, {}, "/g")),
            "nodes\n  node b core::math::add\n  node c core::math::add\n  wire b.result c.b\n"
            "  incoming b.a /g.i\n  incoming b.b /g/a.result\n  incoming c.a /g/a.result\nend\n");
}

TEST_F(SelectionText, KeepsConnectionsInsideItsCompounds) {
  load(
      withBlock("  compound g\n    port in i float\n    node a core::math::add\n"
                "    wire .i a.a\n  end\n"));
  EXPECT_THAT(write({"/g"}), HasSubstr("    wire .i a.a\n"));
}

TEST_F(SelectionText, KeepsMembersInsideItsCompounds) {
  load(
      withBlock("  compound c\n    port out many array<float>\n    flags many fan-in\n"
                "    member .many item\n    node n core::math::add\n"
                "    wire n.result .many.item\n  end\n"));
  Selection selection;
  expectNoError(readSelection(write({"/c"}), graph_.core(), selection));
  const CompoundObject& level = *selection.carrier->compound();
  NodeObject* node = level.nodes().find("c");
  EXPECT_TRUE(node->port("many")->twin()->descendant("item")->source());
  EXPECT_EQ(writeSelection(level, std::span(&node, 1), {}), write({"/c"}));
}

TEST_F(SelectionText, LeavesOutWhatInputOutputNodesShow) {
  load(
      withBlock("  port in i float\n  io in n\n    metadata k v\n    show i\n"
                "  compound c\n    port out o float\n    io out m\n      show o\n  end\n"));
  EXPECT_EQ(blockOf(write({"/n", "/c"})),
            "nodes\n  io in n\n    metadata k v\n  compound c\n    port out o float\n"
            "    io out m\n      show o\n  end\nend\n");
}

TEST_F(SelectionText, SaysWhichGraphItIsFrom) {
  load(withBlock("  node a core::math::add\n"));
  graph_.publishUuid("1-2-3");
  EXPECT_THAT(write({"/a"}), HasSubstr("\nfrom 1-2-3\ntype float float\n"));
}

TEST_F(SelectionText, HasNoSourcesInAnotherGraph) {
  load(
      withBlock("  node a core::math::add\n  node b core::math::add\n"
                "  wire a.result b.a\n"));
  graph_.publishUuid("1-2-3");
  ContainerObject other("standard");
  Selection selection;
  expectNoError(readSelection(write({"/b"}), other.core(), selection));
  ASSERT_EQ(selection.incoming.size(), 1u);
  EXPECT_EQ(selection.incoming[0].source, "");
}

TEST_F(SelectionText, IsReadIntoACarrier) {
  graph_.publishUuid("1-2-3");
  load(
      withBlock("  node a core::math::add\n  compound c\n    port in many array<float>\n"
                "    flags many fan-in\n    member many item\n  end\n"
                "  wire a.result c.many.item\n"));
  Selection selection;
  expectNoError(readSelection(write({"/c"}), graph_.core(), selection));
  CompoundObject& carrier = *selection.carrier->compound();
  EXPECT_EQ(carrier.nodes().count(), 1u);
  EXPECT_EQ(selection.carrier->container(), nullptr);
  ASSERT_EQ(selection.incoming.size(), 1u);
  EXPECT_EQ(selection.incoming[0].source, "/a.result");
  EXPECT_EQ(selection.incoming[0].target.get(), carrier.nodes().find("c")->portAt("many.item"));
}

TEST_F(SelectionText, OfNothingIsEmpty) {
  Selection selection;
  expectNoError(readSelection(write({}), graph_.core(), selection));
  EXPECT_EQ(selection.carrier->compound()->nodes().count(), 0u);
}

TEST_F(SelectionText, ThatIsRefusedLeavesTheSelectionAsItWas) {
  Selection selection;
  expectNoError(readSelection(sealed("nodes\n  note n\nend\n"), graph_.core(), selection));
  const NodeRef carrier = selection.carrier;
  const auto error =
      readSelection(sealed("nodes\n  note n\n  state frozen\nend\n"), graph_.core(), selection);
  ASSERT_TRUE(error);
  EXPECT_EQ(error->line, 5u);
  EXPECT_EQ(selection.carrier.get(), carrier.get());
}

TEST_F(SelectionText, RefusesIncomingConnectionsOfNoInput) {
  const std::string head =
      "type float float\ndefinition d\nin a float\n"
      "out b float\nnodes\n  node n d\n";
  const auto reason = [&](const char* line) {
    Selection selection;
    const auto error = readSelection(sealed(head + line + "end\n"), graph_.core(), selection);
    return error ? error->reason : "";
  };
  EXPECT_EQ(reason("  incoming n.b /x.y\n"), "the port 'n.b' gives values");
  EXPECT_EQ(reason("  incoming n.c /x.y\n"), "there is no port 'n.c'");
  EXPECT_EQ(reason("  incoming n.a x.y\n"), "'x.y' is no path of a port");
  EXPECT_EQ(reason("  compound c\n  incoming n.a /x.y\n  end\n"),
            "'incoming' does not belong to what stands before it");
}

}  // namespace
}  // namespace orvlib
