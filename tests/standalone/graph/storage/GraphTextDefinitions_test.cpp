// What becomes of stored nodes whose definitions the runtime has not, or has otherwise.

#include <gmock/gmock.h>

#include "tests/standalone/graph/RuntimeFolder.h"
#include "tests/standalone/graph/storage/StorageFixture.h"

namespace orvlib {
namespace {

using testing::HasSubstr;

class UnknownDefinitions : public StorageFixture {
 protected:
  static constexpr const char* kUnknown =
      "vesk-graph 1\nruntime standard\ntype float float\ntype triple float p q r\n"
      "type array<float> array float\ntype array<triple> array triple\n"
      "definition core::math::add\nin a float\nin b float\nout result float\n"
      "definition lost::blend\nin base triple\nin many array<triple> fan-in\n"
      "in list array<float>\nout result triple\n"
      "graph\n"
      "  node first core::math::add\n"
      "  node n lost::blend\n"
      "    state frozen\n"
      "    metadata k v\n"
      "    port in more triple\n"
      "    order in many base more list\n"
      "    member many item\n"
      "    value base 0.1 2 3\n"
      "    port-metadata base k v\n"
      "    flags base.p hidden\n"
      "    value list 1 2\n"
      "    flags result hidden\n"
      "    watch result.q all 3\n"
      "  node m lost::blend\n"
      "    flags many hidden\n"
      "  node last core::math::add\n"
      "  wire first.result n.many.item.q\n"
      "  wire n.result m.base\n"
      "  wire m.result.r last.a\n"
      "end\n";
};

TEST_F(UnknownDefinitions, AreKeptWithAllThatIsSet) { EXPECT_EQ(again(kUnknown), kUnknown); }

TEST_F(UnknownDefinitions, MakePlaceholders) {
  load(
      "vesk-graph 1\nruntime standard\ntype odd string\ndefinition lost::one\nin a odd\n"
      "graph\n  node n lost::one\n    value a \"as it was\"\nend\n");
  NodeObject* node = graph_.findNode("/n");
  EXPECT_EQ(node->nodeKind(), NodeKind::Placeholder);
  EXPECT_EQ(node->typeName(), "lost::one");
  EXPECT_TRUE(node->port("a")->isFixed());
  EXPECT_EQ(node->port("a")->valueType().name, "odd");
}

TEST_F(UnknownDefinitions, AreKeptWhenTheWholeRuntimeIsUnknown) {
  std::string text = example();
  text.replace(text.find("standard"), 8, "vanished");
  EXPECT_EQ(again(text), text);
}

TEST_F(UnknownDefinitions, OfAnUnknownRuntimeStillRefuseCycles) {
  EXPECT_THAT(refusal("vesk-graph 1\nruntime vanished\ntype f float\n"
                      "definition d\nin a f\nout b f\ngraph\n  node n d\n  wire n.b n.a\nend\n"),
              HasSubstr("closes a cycle"));
}

TEST_F(UnknownDefinitions, ComeBackWhenTheyAreKnownAgain) {
  std::string text = example();
  text.replace(text.find("standard"), 8, "vanished");
  load(text);
  text = writeGraph(graph_);
  text.replace(text.find("vanished"), 8, "standard");
  load(text);
  EXPECT_EQ(text, example());
  EXPECT_EQ(graph_.findNode("/add")->nodeKind(), NodeKind::Plain);
}

TEST_F(UnknownDefinitions, OfOneNameAreNumbered) {
  const std::string text =
      "vesk-graph 1\nruntime standard\ntype float float\n"
      "definition lost::one\nin a float\n"
      "definition lost::one 2\nin a float\nin b float\n"
      "graph\n  node x lost::one\n  node y lost::one 2\n  node z lost::one\nend\n";
  EXPECT_EQ(again(text), text);
}

/// A runtime whose definition of `core::gate` changes.
class ChangedDefinition : public StorageFixture {
 protected:
  ChangedDefinition() { define("{name: a, type: float}, {name: b, type: float}"); }

  void define(const std::string& inputs) {
    folder_.write("trial/runtime.yaml", RuntimeFolder::kRuntime);
    folder_.write("trial/core.yaml",
                  "library: core\nniceName: Nice\ndescription: Text.\nnodes:\n"
                  "  - name: gate\n    niceName: Nice\n    description: Text.\n    inputs: [" +
                      describe(inputs) + "]\n    outputs: [" + describe("{name: r, type: float}") +
                      "]\n");
    trial_ = std::make_unique<RuntimeRegistry>();
    for (const Diagnostic& one : trial_->load(folder_.path())) ADD_FAILURE() << one.toText();
    trial_->makeCurrent();
  }

  static std::string text(const std::string& lines) {
    return "vesk-graph 1\nruntime trial\ntype float float\n"
           "definition core::gate\nin a float\nin b float\nout r float\ngraph\n" +
           lines + "end\n";
  }

  NodeKind kindOf(std::string_view path) { return graph_.findNode(path)->nodeKind(); }

  TemporaryFolder folder_;
  std::unique_ptr<RuntimeRegistry> trial_;

 private:
  /// Each port needs a description.
  static std::string describe(std::string ports) {
    for (std::size_t at = ports.find('}'); at != ports.npos; at = ports.find('}', at + 20)) {
      ports.insert(at, ", description: Text.");
      at += 20;
    }
    return ports;
  }
};

TEST_F(ChangedDefinition, GivesItsNewPorts) {
  define("{name: c, type: float}, {name: b, type: float}, {name: a, type: float}");
  load(text("  node n core::gate\n    value a 1\n    value b 2\n"));
  EXPECT_EQ(kindOf("/n"), NodeKind::Plain);
  EXPECT_TRUE(graph_.findPort("/n.c", 2, 1));
  EXPECT_TRUE(graph_.findPort("/n.a", 2, 1)->ownValue());
}

TEST_F(ChangedDefinition, IsTakenByNodesThatNeedNoneOfWhatIsGone) {
  define("{name: a, type: float}");
  load(text("  node n core::gate\n    value a 1\n"));
  EXPECT_EQ(kindOf("/n"), NodeKind::Plain);
  EXPECT_FALSE(graph_.findPort("/n.b", 2, 1));
}

TEST_F(ChangedDefinition, KeepsNodesThatNeedAPortThatIsGone) {
  define("{name: a, type: float}");
  for (const char* line : {"value b 1", "flags b hidden", "port-metadata b k v", "watch b all 1"}) {
    const std::string stored = text("  node n core::gate\n    " + std::string(line) + "\n");
    load(stored);
    EXPECT_EQ(kindOf("/n"), NodeKind::Placeholder) << line;
    EXPECT_EQ(writeGraph(graph_), stored);
  }
}

TEST_F(ChangedDefinition, KeepsNodesWithAConnectionOfAPortThatIsGone) {
  define("{name: a, type: float}");
  const std::string stored = text(
      "  node m core::gate\n    value b 1\n  node n core::gate\n    value b 2\n"
      "  wire m.r n.b\n");
  load(stored);
  EXPECT_EQ(writeGraph(graph_), stored);
}

TEST_F(ChangedDefinition, KeepsNodesWhosePortHasAnotherTypeNow) {
  define("{name: a, type: float}, {name: b, type: pair}");
  const std::string stored = text("  node n core::gate\n    value b 1\n");
  load(stored);
  EXPECT_EQ(kindOf("/n"), NodeKind::Placeholder);
  EXPECT_EQ(writeGraph(graph_), stored);
}

TEST_F(ChangedDefinition, IsSavedBesideItsFormerSelf) {
  define("{name: a, type: float}");
  load(text("  node m core::gate\n  node n core::gate\n    value b 2\n  wire m.r n.b\n"));
  EXPECT_EQ(kindOf("/m"), NodeKind::Plain);
  EXPECT_EQ(kindOf("/n"), NodeKind::Placeholder);
  const std::string both = writeGraph(graph_);
  EXPECT_THAT(both, HasSubstr("definition core::gate 2\nin a float\nin b float\nout r float\n"));
  EXPECT_THAT(both, HasSubstr("  node m core::gate\n  node n core::gate 2\n"));
  EXPECT_EQ(again(both), both);
}

TEST_F(ChangedDefinition, IsTakenAgainWhenItIsAsItWas) {
  define("{name: a, type: float}");
  load(text("  node n core::gate\n    value b 2\n"));
  const std::string kept = writeGraph(graph_);
  define("{name: a, type: float}, {name: b, type: float}");
  load(kept);
  EXPECT_EQ(kindOf("/n"), NodeKind::Plain);
  EXPECT_EQ(writeGraph(graph_), kept);
}

}  // namespace
}  // namespace orvlib
