// Nodes and compounds.

#include "tests/hook/HookTesting.h"

namespace {

using ORV_v1::NodeFlags;
using testing::ElementsAre;
using testing::IsEmpty;

class HookNodes : public HookTest {
 protected:
  /// Creates a compound at the top of the graph.
  void create(const char* name, const Texts& nodePaths, const Texts& annotationNames,
              CompoundHandle& made) {
    const Selection selected{listOf(nodePaths), annotationListOf(annotationNames)};
    hook().createCompound(name, selected.in(top()), made);
  }

  void explode(const Texts& paths) {
    const auto list = listOf(paths);
    ORV_v1::NodeList* compounds = list.get();
    hook().explodeCompounds(top(), compounds);
    EXPECT_EQ(compounds, list.get()) << "the list stays the caller's";
  }
};

TEST_F(HookNodes, AddNodeGivesTheNewNode) {
  NodeHandle made;
  EXPECT_EQ(editTraceOf([&] { made = hook().addNode(compound("/group"), "core::math::add", ""); }),
            edit(R"(orvCompound "g" "/group" -addNode "core::math::add")"));
  EXPECT_EQ(made.get(), node("/group/add").get());
  EXPECT_TRUE(made);
}

TEST_F(HookNodes, AddNodeConnectsOnRequest) {
  NodeHandle made;
  EXPECT_EQ(editTraceOf([&] { made = hook().addNode(top(), "core::math::absolute", "a.result"); }),
            edit(R"(orvCompound "g" "/" -addNode "core::math::absolute" -connectTo "a.result")"));
  EXPECT_EQ(made.get(), node("/absolute").get());
  EXPECT_EQ(sourceOf("/absolute.value"), "/a.result");
}

TEST_F(HookNodes, AddNodeOfAnUnknownTypeGivesNull) {
  NodeHandle made = node("/a");
  const std::string before = stored();
  EXPECT_EQ(traceOf([&] { made = hook().addNode(top(), "no::such", ""); }),
            edit(R"(orvCompound "g" "/" -addNode "no::such")"));
  EXPECT_FALSE(made);
  EXPECT_EQ(stored(), before);
}

TEST_F(HookNodes, AddIONodeOfAnInput) {
  NodeHandle made;
  EXPECT_EQ(
      editTraceOf([&] { made = hook().addIONode(compound("/group"), NodeFlags::kInputNode, ""); }),
      edit(R"(orvCompound "g" "/group" -addIONode true)"));
  EXPECT_EQ(made.get(), node("/group/input1").get());
  EXPECT_TRUE(made);
}

TEST_F(HookNodes, AddIONodeOfAnOutputWithAConnection) {
  NodeHandle made;
  EXPECT_EQ(editTraceOf([&] {
              made = hook().addIONode(compound("/group"), NodeFlags::kOutputNode, "d.result");
            }),
            edit(R"(orvCompound "g" "/group" -addIONode false -connectTo "d.result")"));
  EXPECT_EQ(made.get(), node("/group/output1").get());
  EXPECT_TRUE(port("/group/d.result")->isConnected());
}

TEST_F(HookNodes, AddIONodeTakesNoOtherFlagsForAnInput) {
  for (const unsigned int flags : {0u, 9u, 24u}) {
    const Trace trace =
        traceOf([&] { hook().addIONode(compound("/group"), static_cast<NodeFlags>(flags), ""); });
    EXPECT_EQ(trace, edit(R"(orvCompound "g" "/group" -addIONode false)")) << flags;
  }
}

TEST_F(HookNodes, RenameNodeIsALineOfTheLevelAbove) {
  EXPECT_EQ(editTraceOf([&] { hook().renameNode(node("/group/d"), "e"); }),
            edit(R"(orvCompound "g" "/group" -renameNode "d" "e")"));
  EXPECT_THAT(nodes("/group"), ElementsAre("e", "input", "output"));
}

TEST_F(HookNodes, RemoveNodeIsALineOfTheLevelAbove) {
  EXPECT_EQ(editTraceOf([&] { hook().removeNode(node("/group/d")); }),
            edit(R"(orvCompound "g" "/group" -removeNode "d")"));
  EXPECT_THAT(nodes("/group"), ElementsAre("input", "output"));
}

TEST_F(HookNodes, RemoveNodeWithoutALevelAboveRunsNoLine) {
  EXPECT_EQ(traceOf([&] { hook().removeNode(node("/")); }), Trace{});
  const NodeHandle gone = node("/group/d");
  build("/group", "-removeNode d");
  EXPECT_EQ(traceOf([&] { hook().removeNode(gone); }), Trace{});
}

TEST_F(HookNodes, SetIsReferencedTellsWhichWay) {
  for (const bool referenced : {true, false}) {
    EXPECT_EQ(traceOf([&] { hook().setIsReferenced(compound("/group"), referenced); }),
              edit(std::string(R"(orvCompound "g" "/group" -setIsReferenced )") +
                   (referenced ? "true" : "false")));
    EXPECT_FALSE(compound("/group")->isReferenced()) << "it comes from no published compound";
  }
}

TEST_F(HookNodes, CreateCompoundMovesTheSelectionIn) {
  CompoundHandle made;
  EXPECT_EQ(editTraceOf([&] {
              create("box", {"/b", "/a"}, {"note", "frame"}, made);
            }),
            edit(R"(orvCompound -create "box" -moveNodeIn "b" -moveNodeIn "a" )"
                 R"(-moveAnnotationIn "note" -moveAnnotationIn "frame" "g" "/")"));
  EXPECT_EQ(made.get(), compound("/box").get());
  EXPECT_THAT(nodes("/box"), testing::UnorderedElementsAre("b", "a"));
  EXPECT_THAT(annotations("/box"), testing::UnorderedElementsAre("note", "frame"));
}

TEST_F(HookNodes, CreateCompoundOfNothingMakesAnEmptyOne) {
  CompoundHandle made = compound("/group");
  EXPECT_EQ(editTraceOf([&] { create("box", {}, {}, made); }),
            edit(R"(orvCompound -create "box" "g" "/")"));
  EXPECT_EQ(made.get(), compound("/box").get());
  EXPECT_THAT(nodes("/box"), IsEmpty());
}

TEST_F(HookNodes, CreateCompoundInsideACompound) {
  CompoundHandle made;
  const Selection selected{listOf({"/group/d"}), annotationListOf({})};
  EXPECT_EQ(
      editTraceOf([&] { hook().createCompound("in", selected.in(compound("/group")), made); }),
      edit(R"(orvCompound -create "in" -moveNodeIn "d" "g" "/group")"));
  EXPECT_STREQ(made->getAsNode()->getFullPathName().getName(), "/group/in");
}

TEST_F(HookNodes, CreateCompoundThatFailsLeavesTheHandle) {
  replace("orvCompound", {.doIt = [](auto&, auto&) -> KStatus { return StatusFailure; }});
  CompoundHandle made;
  const std::string line = R"(orvCompound -create "box" "g" "/")";
  EXPECT_EQ(traceOf([&] { create("box", {}, {}, made); }), failed(line));
  EXPECT_FALSE(made) << "the last node is not taken";

  const CompoundHandle held = compound("/group");
  made = held;
  EXPECT_EQ(traceOf([&] { create("box", {}, {}, made); }), failed(line));
  EXPECT_EQ(made.get(), held.get());
}

TEST_F(HookNodes, CreateCompoundTakesTheLastNodeWhateverItIs) {
  replace("orvCompound", {});
  CompoundHandle made;
  create("box", {}, {}, made);
  EXPECT_EQ(made.get(), compound("/group").get()) << "by its place, not by its name";

  const Selection none{listOf({}), annotationListOf({})};
  hook().createCompound("box", none.in(compound("/group")), made);
  EXPECT_FALSE(made) << "the last node is no compound";
}

TEST_F(HookNodes, CreateCompoundInAnEmptyLevelLeavesTheHandle) {
  build("/", "-create hollow");
  replace("orvCompound", {});
  const CompoundHandle held = compound("/group");
  CompoundHandle made = held;
  const Selection none{listOf({}), annotationListOf({})};
  hook().createCompound("box", none.in(compound("/hollow")), made);
  EXPECT_EQ(made.get(), held.get());
}

TEST_F(HookNodes, ExplodeCompoundsIsOneLineForAll) {
  build("/", "-create more");
  EXPECT_EQ(editTraceOf([&] {
              explode({"/more", "/group"});
            }),
            edit(R"(orvCompound -explode "more" -explode "group" "g" "/")"));
  EXPECT_THAT(nodes("/"), ElementsAre("a", "b", "c", "list", "vec", "d"));
}

TEST_F(HookNodes, ExplodeCompoundsOfNoneRunsALineWithoutAFlag) {
  const std::string before = stored();
  EXPECT_EQ(traceOf([&] { explode({}); }), shown(R"(orvCompound "g" "/")"));
  EXPECT_EQ(stored(), before);
}

// Operations without a result drop the status.

TEST_F(HookNodes, AFailureIsTheHostsToTell) {
  build("/group", "-setMetaData locked true");
  const std::string locked = stored();
  hook().renameNode(node("/group/d"), "e");
  hook().removeNode(node("/group/d"));
  EXPECT_EQ(stored(), locked);
  EXPECT_THAT(host.takeMessages(), testing::SizeIs(testing::Ge(2u)));
}

}  // namespace
