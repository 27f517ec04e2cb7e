// Which compound has the bracket while a node is edited, and that the edits ask whether the command
// is undoable.

#include "tests/commands/CommandTesting.h"
#include "tests/commands/graph/LibraryCalls.h"
#include "tests/commands/graph/OpenBrackets.h"

namespace {

using hosttest::Texts;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// A graph "g" with the node "/a", and the compound "/box" with the node "/box/d".
class OrvNodeBracket : public CommandTest {
 protected:
  OrvNodeBracket() {
    host.run("orvCompound g / -addNode core::math::add -renameNode add a -create box");
    host.run("orvCompound g /box -createInputPort in float -addNode core::math::add");
    host.run("orvCompound g /box -renameNode add d");
    host.session().undoQueue().clear();
    calls.atCall = [this] { open.push_back(openBrackets(graph, {"/", "/box"})); };
  }

  /// The brackets that are open while the line is carried out, undone and redone.
  std::vector<Texts> bracketsOf(const std::string& line) {
    open.clear();
    host.run(line);
    undo();
    redo();
    return open;
  }

  LibraryCalls calls;
  std::vector<Texts> open;
};

TEST_F(OrvNodeBracket, IsThatOfTheCompoundAroundTheNode) {
  EXPECT_THAT(bracketsOf("orvNode g /a -setPortDefaultValues a 2"),
              testing::AllOf(SizeIs(3), Each(ElementsAre("/"))));
  EXPECT_THAT(bracketsOf("orvNode g /box/d -setPortDefaultValues a 2"),
              testing::AllOf(SizeIs(3), Each(ElementsAre("/box"))));
}

TEST_F(OrvNodeBracket, OfACompoundIsThatOfTheLevelAboveIt) {
  EXPECT_THAT(bracketsOf("orvNode g /box -setPortDefaultValues in 2"), Each(ElementsAre("/")));
}

TEST_F(OrvNodeBracket, OfTheTopNodeIsThatOfTheGraph) {
  EXPECT_THAT(bracketsOf("orvNode g / -setMetaData k v"), Each(ElementsAre("graph")));
}

/// The command, which says that there is nothing to undo.
class NothingToUndo : public orvNodeCmd {
 public:
  static KPxCommand* creator() { return new NothingToUndo; }
  bool isUndoable() const override { return false; }
};

TEST_F(OrvNodeBracket, WithNothingToUndoNothingIsEdited) {
  addCommand("nothingToUndo", NothingToUndo::creator, orvNodeCmd::createSyntax());
  const std::string before = stored();
  EXPECT_EQ(host.run("nothingToUndo g /a -setPortDefaultValues a 2 -queryTypeName"),
            "\"core::math::add\"");
  EXPECT_EQ(stored(), before);
  EXPECT_THAT(calls.take(), IsEmpty());
}

}  // namespace
