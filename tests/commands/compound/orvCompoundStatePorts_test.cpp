#include "tests/commands/compound/CompoundWiring.h"
#include "tests/support/TemporaryFiles.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::Pair;

namespace {

class StatePorts : public CompoundTest {
 protected:
  StatePorts() { run("/", "-create group"); }

  std::string inputs() { return run("/group", "-listPorts -inputPort"); }
  std::string outputs() { return run("/group", "-listPorts -outputPort"); }

  /// Runs the line and gives the names that are kept for undo: input, output.
  std::pair<std::string, std::string> created(const std::string& flags) {
    host.run("openCompound \"g\" \"/group\" " + flags);
    const OpenCompoundCmd* command = OpenCompoundCmd::last;
    if (!command) return {};
    return {command->createdStateInputPort.asUTF8(), command->createdStateOutputPort.asUTF8()};
  }
};

/// Counts how often a graph tells of changes.
class Rounds : public orvlib::ChangeListener {
 public:
  explicit Rounds(ORV_v1::Container& graph)
      : container_(static_cast<orvlib::ContainerObject&>(graph)) {
    container_.addListener(*this);
  }
  ~Rounds() override { container_.removeListener(*this); }
  void graphChanged(orvlib::ContainerObject&, std::span<const orvlib::NodeChange>) override {
    ++count;
  }

  int count = 0;

 private:
  orvlib::ContainerObject& container_;
};

TEST_F(StatePorts, TheFirstNameIsAnInputAndTheSecondItsOutput) {
  EXPECT_EQ(run("/group", "-addStatePorts now next color3"), "true");
  EXPECT_EQ(inputs(), R"(["now"])");
  EXPECT_EQ(outputs(), R"(["next"])");
  EXPECT_EQ(run("/group", "-queryPortDataType now"), "\"color3\"");
  EXPECT_THAT(stored(), HasSubstr("pair now next\n"));
}

TEST_F(StatePorts, TheyAreTheLastOfTheirLists) {
  run("/group", "-createInputPort a float -createOutputPort b float");
  run("/group", "-addStatePorts now next float");
  EXPECT_EQ(inputs(), R"(["a","now"])");
  EXPECT_EQ(outputs(), R"(["b","next"])");
}

TEST_F(StatePorts, TheNamesThatTheyGotAreKeptForUndo) {
  run("/group", "-createInputPort now float -createOutputPort next float");
  EXPECT_THAT(created("-addStatePorts now next float"), Pair("now1", "next1"));
}

TEST_F(StatePorts, UndoTakesThemOutAndRedoMakesThemAnew) {
  sweep("/group", "-addStatePorts now next float");
  run("/group", "-createInputPort now float -createOutputPort next float");
  sweep("/group", "-addStatePorts now next float");
}

TEST_F(StatePorts, UndoTakesThemOutWithTheirConnections) {
  run("/group", "-addNode core::math::add");
  const std::string before = stored();
  run("/group", "-addStatePorts now next float");
  connect(graph, "/group.now", "/group/add.a");
  connect(graph, "/group/add.result", "/group.next");
  undo();
  EXPECT_EQ(stored(), before);
}

TEST_F(StatePorts, UndoKeepsTheNames) {
  EXPECT_THAT(created("-addStatePorts now next float"), Pair("now", "next"));
  undo();
  ASSERT_NE(OpenCompoundCmd::last, nullptr);
  EXPECT_STREQ(OpenCompoundCmd::last->createdStateInputPort.asUTF8(), "now");
  EXPECT_STREQ(OpenCompoundCmd::last->createdStateOutputPort.asUTF8(), "next");
}

TEST_F(StatePorts, RedoKeepsTheNamesThatItGave) {
  run("/group", "-addStatePorts now next float");
  undo();
  graph.findNodeFromPath("/group")->asCompound()->addStatePorts(
      "now", "next", graph.portTypeLookup().findPortType("int"));
  redo();
  EXPECT_EQ(inputs(), R"(["now","now1"])");
  undo();
  EXPECT_EQ(inputs(), R"(["now"])");
  EXPECT_EQ(run("/group", "-queryPortDataType now"), "\"int\"");
}

/// The ports are found by name, in their own list each.
TEST_F(StatePorts, UndoPassesOverAPortThatHasAnotherNameNow) {
  run("/group", "-addStatePorts now next float");
  graph
      .findPortFromPath("/group.now", ORV_v1::Container::kSearchEither,
                        ORV_v1::Container::kSearchOuter)
      ->setName("other");
  undo();
  EXPECT_EQ(inputs(), R"(["other"])");
  EXPECT_EQ(outputs(), "");
}

TEST_F(StatePorts, UndoOfTheOutputIsToldFirst) {
  run("/group", "-addStatePorts now next float");
  const orvlib::ArmedFault fault("Compound removePort", 1);
  undo();
  EXPECT_EQ(inputs(), "");
  EXPECT_EQ(outputs(), R"(["next"])") << "and what it says is not asked";
}

TEST_F(StatePorts, AnUnknownTypeIsToldAndIsNoFailure) {
  const std::string before = stored();
  EXPECT_EQ(run("/group", "-addStatePorts now next nosuch"), "");
  EXPECT_THAT(host.takeMessages(), ElementsAre("! Unknown port type nosuch"));
  EXPECT_EQ(stored(), before);
}

TEST_F(StatePorts, AnUnknownTypeIsAnEditAllTheSame) {
  const auto before = host.steps().size();
  run("/group", "-addStatePorts now next nosuch");
  EXPECT_THAT(host.takeMessages(), ElementsAre("! Unknown port type nosuch"));
  EXPECT_EQ(host.steps().size(), before + 1);
}

TEST_F(StatePorts, UndoOfAnUnknownTypeTakesNothingOut) {
  run("/group", "-addStatePorts now next float");
  const std::string before = stored();
  EXPECT_THAT(created("-addStatePorts now next nosuch"), Pair("", ""));
  EXPECT_THAT(host.takeMessages(), ElementsAre("! Unknown port type nosuch"));
  undo();
  EXPECT_EQ(stored(), before);
}

TEST_F(StatePorts, RedoOfAnUnknownTypeTellsItAgain) {
  run("/group", "-addStatePorts now next nosuch");
  undo();
  host.takeMessages();
  redo();
  EXPECT_THAT(host.takeMessages(), ElementsAre("! Unknown port type nosuch"));
}

TEST_F(StatePorts, PortsThatCouldNotBeMadeAreFalse) {
  const std::string before = stored();
  const orvlib::ArmedFault fault("Compound addStatePorts");
  EXPECT_EQ(run("/group", "-addStatePorts now next float"), "false");
  EXPECT_EQ(stored(), before);
}

TEST_F(StatePorts, UndoOfPortsThatCouldNotBeMadeTakesNothingOut) {
  run("/group", "-createInputPort a float -createOutputPort b float");
  const std::string before = stored();
  {
    const orvlib::ArmedFault fault("Compound addStatePorts");
    EXPECT_THAT(created("-addStatePorts now next float"), Pair("", ""));
  }
  undo();
  EXPECT_EQ(stored(), before);
}

TEST_F(StatePorts, ACompoundThatIsNotEditableGetsNone) {
  run("/group", "-setMetaData locked true");
  const std::string before = stored();
  EXPECT_THAT(refusal("/group", "-addStatePorts now next float"),
              ElementsAre("! The compound is not editable"));
  EXPECT_EQ(stored(), before);
}

TEST_F(StatePorts, TheyAreMadeOutsideTheBracketOfTheOtherEdits) {
  Rounds rounds(graph);
  run("/group", "-addNode core::math::add -createInputPort a float -hidePort a true");
  EXPECT_EQ(rounds.count, 1);
  run("/group", "-createInputPort b float -addStatePorts now next float");
  EXPECT_EQ(rounds.count, 3);
}

TEST_F(StatePorts, TheyAreMadeAfterThePortsThatTheLineLists) {
  EXPECT_EQ(run("/group", "-addStatePorts now next float -listPorts"), "true");
  EXPECT_EQ(inputs(), R"(["now"])");
}

TEST_F(StatePorts, ThePortQueriesOfTheLineDoNotSeeThem) {
  EXPECT_EQ(run("/group", "-addStatePorts now next nosuch -queryPortDataType now"), "");
  host.takeMessages();
  EXPECT_EQ(run("/group", "-addStatePorts now next float -queryPortDataType now"), "true");
}

TEST_F(StatePorts, TheirAnswerTakesThePlaceOfThatOfSaving) {
  const hosttest::TemporaryFiles files;
  const orvlib::ArmedFault fault("Compound addStatePorts");
  EXPECT_EQ(run("/group", "-addStatePorts now next float -saveAs " + files.path("group.yaml")),
            "false");
  EXPECT_TRUE(std::filesystem::exists(files.path("group.yaml")));
}

TEST_F(StatePorts, LaterQueriesTakeThePlaceOfTheirAnswer) {
  EXPECT_EQ(run("/group", "-addStatePorts now next float -queryIsImported"), "false");
  EXPECT_EQ(run("/group", "-addStatePorts a b float -specializedTypeName"), "\"\"");
}

TEST_F(StatePorts, TheNodesOfTheLineAreThere) {
  EXPECT_EQ(run("/group", "-addNode core::math::add -addStatePorts now next float"), "true");
  EXPECT_EQ(run("/group", "-listNodes"), R"(["add"])");
  undo();
  EXPECT_EQ(run("/group", "-listNodes"), "");
  EXPECT_EQ(inputs(), "");
}

TEST_F(StatePorts, ALineThatFailsAmongItsEditsMakesNone) {
  const orvlib::ArmedFault fault("ModifyCompoundPortCommand redo");
  EXPECT_THAT(refusal("/group", "-addStatePorts now next float"), IsEmpty());
  EXPECT_EQ(inputs(), "");
}

TEST_F(StatePorts, TheTopCompoundHasThemToo) {
  EXPECT_EQ(run("/", "-asp now next float"), "true");
  EXPECT_EQ(run("/", "-listPorts"), R"(["now","next"])");
  undo();
  EXPECT_EQ(run("/", "-listPorts"), "");
}

}  // namespace
