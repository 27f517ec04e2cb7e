// Values that are set at once, past the host.

#include "standalone/graph/api/GraphAccess.h"
#include "tests/hook/DirectValueCalls.h"
#include "tests/hook/HookTesting.h"

namespace {

using testing::ElementsAre;

class HookDirectValues : public HookTest {
 protected:
  /// Sets values directly, which must run no line; gives the calls of the library.
  Texts setDirectly(const PortHandle& port, const QList<QString>& list) {
    DirectValueCalls calls;
    brackets.clear();
    calls.atCall = [this] { brackets.push_back(openBrackets()); };
    EXPECT_EQ(traceOf([&] { hook().setPortDefaultValues(port, list, true); }), Trace{});
    EXPECT_FALSE(graph.activeChangeBracket()) << "the bracket is closed again";
    return calls.take();
  }

  /// For each call of the library the compounds that had a bracket of their own, and "graph" when
  /// the graph had one.
  Texts brackets;

 private:
  std::string openBrackets() {
    std::string open;
    for (const char* path : {"/", "/group"}) {
      if (ORV_v1::GraphAccess::ownBrackets(*compound(path)) > 0) open += path;
    }
    if (ORV_v1::GraphAccess::ownBrackets(graph) > 0) open += "graph";
    return open;
  }
};

TEST_F(HookDirectValues, ChangeTheGraphWithoutALine) {
  EXPECT_THAT(setDirectly(port("/vec.vector"), {"1", "2", "3"}),
              ElementsAre("node /vec vector {1,2,3} interactive", "node doit"));
  EXPECT_THAT(values(port("/vec.vector")), ElementsAre("1", "2", "3"));
}

TEST_F(HookDirectValues, OfAComponent) {
  EXPECT_THAT(setDirectly(port("/vec.vector.z"), {"9"}),
              ElementsAre("node /vec vector.z {9} interactive", "node doit"));
  EXPECT_THAT(values(port("/vec.vector")), ElementsAre("0", "0", "9"));
}

/// From the first call of the library to the last.
TEST_F(HookDirectValues, AreSetInABracketOfTheLevel) {
  setDirectly(port("/a.value"), {"2"});
  EXPECT_THAT(brackets, ElementsAre("/", "/"));
  setDirectly(port("/group/d.value"), {"2"});
  EXPECT_THAT(brackets, ElementsAre("/group", "/group"));
  setDirectly(inner("/group.out"), {"2"});
  EXPECT_THAT(brackets, ElementsAre("/", "/")) << "the level of the compound's node";
}

TEST_F(HookDirectValues, OfTheTopNodeAreSetInABracketOfTheGraph) {
  build("/", "-createInputPort size float");
  setDirectly(port("/.size"), {"2"});
  EXPECT_THAT(brackets, ElementsAre("graph", "graph"));
  EXPECT_THAT(values(port("/.size")), ElementsAre("2"));
}

TEST_F(HookDirectValues, OfBothFaces) {
  EXPECT_THAT(setDirectly(port("/group.in"), {"4"}),
              ElementsAre("node /group in {4} interactive", "node doit"));
  EXPECT_THAT(values(port("/group.in")), ElementsAre("4"));
  EXPECT_THAT(setDirectly(inner("/group.out"), {"6"}),
              ElementsAre("compound out {6} interactive", "compound doit"));
  EXPECT_THAT(values(inner("/group.out")), ElementsAre("6"));
}

TEST_F(HookDirectValues, OfANodeInsideACompound) {
  setDirectly(port("/group/d.value"), {"6"});
  EXPECT_THAT(values(port("/group/d.value")), ElementsAre("6"));
}

TEST_F(HookDirectValues, ThatDoNotFitChangeNothing) {
  const std::string before = stored();
  setDirectly(port("/a.value"), {"nonsense"});
  setDirectly(port("/a.value"), {"1", "2"});
  EXPECT_EQ(stored(), before);
}

TEST_F(HookDirectValues, AreTakenBackByNoUndo) {
  hook().renameNode(node("/b"), "e");
  hook().setPortDefaultValues(port("/a.value"), {"3"}, true);
  host.run("undo");
  EXPECT_TRUE(node("/b"));
  EXPECT_THAT(values(port("/a.value")), ElementsAre("3"));
}

}  // namespace
