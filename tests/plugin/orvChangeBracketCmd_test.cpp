#include "plugin/orvChangeBracketCmd.h"

#include <algorithm>
#include <functional>

#include "platform/ORV_1_0/ModifyNodePortCommand.h"
#include "platform/ORV_1_0/PortList.h"
#include "platform/ORV_1_0/WatchPoint.h"
#include "plugin/pluginMessages.h"
#include "standalone/graph/model/ContainerObject.h"
#include "standalone/host/engine/HostAccess.h"
#include "standalone/host/scene/Scene.h"
#include "tests/support/FailingNew.h"
#include "tests/support/GraphHost.h"
#include "tests/support/GraphProbeCommand.h"

namespace {

using hosttest::GraphHost;
using hosttest::Texts;
using ORV_v1::AddRefWrapper;
using ORV_v1::ChangeBracketClient;
using ORV_v1::Compound;
using ORV_v1::Container;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* kParsingError = "! Invalid parameters detected.  Exiting.";

/// The command, whose plain query stays on the undo queue too.
class UndoableQuery : public orvChangeBracketCmd {
 public:
  static KPxCommand* creator() { return new UndoableQuery; }
  bool isUndoable() const override { return true; }
};

/// Does what its line asks for, takes it back at once, and notes what that made the running result.
class UndoneAtOnce : public orvChangeBracketCmd {
 public:
  static KPxCommand* creator() { return new UndoneAtOnce; }

  KStatus doIt(const KArgList& args) override {
    if (!orvChangeBracketCmd::doIt(args)) return StatusFailure;
    clearResult();
    if (between) between();
    undoStatus = undoIt().statusCode();
    undoResult = vesk::toJson(*vesk::HostSession::current()->engine().runningResult());
    return StatusSuccess;
  }

  static inline std::function<void()> between;
  static inline KStatusCode undoStatus = StatusSuccess;
  static inline std::string undoResult;
};

/// Counts the rounds of changes that it is told of.
class RoundCounter final : public orvlib::ChangeListener {
 public:
  explicit RoundCounter(Container& graph) : graph_(static_cast<orvlib::ContainerObject&>(graph)) {
    graph_.addListener(*this);
  }
  ~RoundCounter() override { graph_.removeListener(*this); }
  void graphChanged(orvlib::ContainerObject&, std::span<const orvlib::NodeChange>) override {
    ++rounds;
  }

  int rounds = 0;

 private:
  orvlib::ContainerObject& graph_;
};

/// A graph "g" with the compound "/group" and the node "/add".
class ChangeBracketCommand : public testing::Test {
 protected:
  ChangeBracketCommand() : graph(host.graph("g")) {
    registerMessages();
    addCommand("orvChangeBracket", orvChangeBracketCmd::creator,
               orvChangeBracketCmd::createSyntax());
    addCommand("undoableQuery", UndoableQuery::creator, orvChangeBracketCmd::createSyntax());
    addCommand("undoneAtOnce", UndoneAtOnce::creator, orvChangeBracketCmd::createSyntax());
    addCommand("graphProbe", GraphProbeCommand::creator, GraphProbeCommand::createSyntax());
    host.run("graphProbe g \"/\" -create \"group\"; graphProbe g \"/\" -addNode core::math::add");
    host.session().undoQueue().clear();
  }

  void addCommand(const char* name, KFnPlugin::Creator creator, const KSyntax& syntax) {
    host.session().registry().add({name, creator, syntax, nullptr, {}});
  }

  bool isOpen() const { return graph.activeChangeBracket(); }
  bool isOpen(const char* path) { return compound(path)->activeChangeBracket(); }
  AddRefWrapper<Compound> compound(const char* path) {
    return graph.findNodeFromPath(path)->asCompound();
  }

  void setInput(const char* name, const char* value) {
    ORV_v1::StringArray values;
    values.add(value);
    ORV_v1::ModifyNodePortCommand command;
    EXPECT_TRUE(command.setPortValues(graph.findNodeFromPath("/add"), name, values, false));
    EXPECT_TRUE(command.redo());
  }

  /// What the watch point on the result of "/add" has recorded.
  Texts recorded() {
    const auto port = graph.findNodeFromPath("/add")->outputs()["result"];
    ORV_v1::StringArray values;
    EXPECT_TRUE(port->getWatchPoint()->getRecordedValues("value", values));
    Texts texts;
    for (const char* text : values) texts.emplace_back(text);
    return texts;
  }

  GraphHost host;
  Container& graph;
};

/// The command, opened.
struct Fields : orvChangeBracketCmd {
  using orvBaseCmd::containerName;
  using orvChangeBracketCmd::bracketNodePath;
  using orvChangeBracketCmd::closeBracket;
  using orvChangeBracketCmd::openBracket;
};

TEST(ChangeBracketLayout, TheHostsBaseComesFirstAndTheFieldsInOrder) {
  Fields command;
  EXPECT_EQ(static_cast<void*>(static_cast<KPxCommand*>(&command)), &command);
  EXPECT_EQ(static_cast<void*>(static_cast<orvBaseCmd*>(&command)), &command.containerName);
  const std::vector<const void*> parts = {&command, &command.containerName,
                                          &command.bracketNodePath, &command.closeBracket,
                                          &command.openBracket};
  EXPECT_TRUE(std::is_sorted(parts.begin(), parts.end(), std::less<const void*>()));
}

TEST(ChangeBracketLayout, TheCreatorGivesNullWithoutMemory) {
  const FailingNew failing;
  EXPECT_EQ(orvChangeBracketCmd::creator(), nullptr);
}

TEST_F(ChangeBracketCommand, DeclaresTwoTextsAndTwoFlagsAndNoModes) {
  const KSyntax syntax = orvChangeBracketCmd::createSyntax();
  const vesk::SyntaxData& data = HostAccess::data(syntax);
  EXPECT_THAT(data.arguments(), ElementsAre(KSyntax::ArgString, KSyntax::ArgString));
  Texts flags;
  for (const vesk::FlagSpec& flag : data.flags()) {
    flags.push_back(flag.shortName + " " + flag.longName + " " +
                    std::to_string(flag.arguments.size()) + (flag.multiUse ? " multi" : ""));
  }
  EXPECT_THAT(flags, ElementsAre("-c -close 0", "-o -open 0"));
  EXPECT_FALSE(data.hasQuery());
  EXPECT_FALSE(data.hasEdit());
}

TEST_F(ChangeBracketCommand, OpensABracketOnTheContainer) {
  EXPECT_EQ(host.run("orvChangeBracket g -open"), "true");
  EXPECT_TRUE(isOpen());
}

TEST_F(ChangeBracketCommand, ClosesABracketOfTheContainer) {
  graph.openChangeBracket(nullptr);
  EXPECT_EQ(host.run("orvChangeBracket g -close"), "true");
  EXPECT_FALSE(isOpen());
}

TEST_F(ChangeBracketCommand, TellsWhetherTheContainerHasABracket) {
  EXPECT_EQ(host.run("orvChangeBracket g"), "false");
  graph.openChangeBracket(nullptr);
  EXPECT_EQ(host.run("orvChangeBracket g"), "true");
}

TEST_F(ChangeBracketCommand, TheResultIsABoolean) {
  for (const char* line :
       {"orvChangeBracket g", "orvChangeBracket g -open", "orvChangeBracket g -close"}) {
    vesk::ResultValue result;
    ASSERT_TRUE(host.session().runLine(line, result)) << line;
    EXPECT_TRUE(std::holds_alternative<bool>(result)) << line;
  }
}

TEST_F(ChangeBracketCommand, FindsTheContainerByItsIdentifier) {
  const std::string uuid = host.session().scene().find("g")->uuid();
  host.run("orvChangeBracket \"" + uuid + "\" -open");
  EXPECT_TRUE(isOpen());
}

TEST_F(ChangeBracketCommand, AnEmptyPathIsTheContainerItself) {
  EXPECT_EQ(host.run("orvChangeBracket g \"\" -open"), "true");
  EXPECT_FALSE(isOpen("/"));
  EXPECT_EQ(host.run("orvChangeBracket g \"\""), "true");
  EXPECT_EQ(host.run("orvChangeBracket g \"/\""), "false");
}

TEST_F(ChangeBracketCommand, OpensAndClosesABracketOnACompound) {
  EXPECT_EQ(host.run("orvChangeBracket g \"/group\" -open"), "true");
  EXPECT_TRUE(isOpen("/group"));
  EXPECT_FALSE(isOpen("/"));
  EXPECT_EQ(host.run("orvChangeBracket g \"/group\" -close"), "true");
  EXPECT_FALSE(isOpen("/group"));
}

TEST_F(ChangeBracketCommand, TellsWhetherTheCompoundHasABracket) {
  host.run("orvChangeBracket g \"/group\" -open");
  EXPECT_EQ(host.run("orvChangeBracket g \"/group\""), "true");
  EXPECT_EQ(host.run("orvChangeBracket g \"/\""), "false");
}

TEST_F(ChangeBracketCommand, ABracketHoldsAcrossCommands) {
  host.run("orvChangeBracket g -open");
  host.run("graphProbe g \"/\" -addNode core::math::add");
  EXPECT_TRUE(isOpen());
}

TEST_F(ChangeBracketCommand, WithoutABracketEachLineIsToldByItself) {
  const RoundCounter listener(graph);
  host.run("graphProbe g \"/\" -addNode core::math::add");
  host.run("graphProbe g \"/\" -addNode core::math::add");
  EXPECT_EQ(listener.rounds, 2);
}

TEST_F(ChangeBracketCommand, WhatHappensInABracketIsToldOnceWhenItCloses) {
  for (const char* path : {"", "\"/group\""}) {
    const RoundCounter listener(graph);
    host.run(std::string("orvChangeBracket -open g ") + path);
    host.run("graphProbe g \"/\" -addNode core::math::add");
    host.run("graphProbe g \"/\" -addNode core::math::add");
    EXPECT_EQ(listener.rounds, 0) << path;
    host.run(std::string("orvChangeBracket -close g ") + path);
    EXPECT_EQ(listener.rounds, 1) << path;
  }
}

TEST_F(ChangeBracketCommand, AWatchPointRecordsOnceForABracket) {
  host.run("graphProbe g \"/add\" -watchPoint result -addWatchPoint");
  host.run("orvChangeBracket g -open");
  setInput("a", "1");
  setInput("b", "2");
  EXPECT_THAT(recorded(), ElementsAre("0"));
  host.run("orvChangeBracket g -close");
  EXPECT_THAT(recorded(), ElementsAre("0", "3"));
}

TEST_F(ChangeBracketCommand, ARefusalOfTheLibraryIsAResultAndNoFailure) {
  EXPECT_EQ(host.run("orvChangeBracket g -close"), "false");
  EXPECT_THAT(host.takeMessages(), IsEmpty());
}

TEST_F(ChangeBracketCommand, AQueryIsNotUndoable) {
  host.run("orvChangeBracket g");
  host.run("orvChangeBracket g \"/group\"");
  EXPECT_THAT(host.steps(), IsEmpty());
}

TEST_F(ChangeBracketCommand, OpeningAndClosingAreUndoable) {
  host.run("orvChangeBracket g -open; orvChangeBracket g -close");
  EXPECT_EQ(host.steps().size(), 2u);
}

TEST_F(ChangeBracketCommand, UndoOfAnOpeningClosesAndRedoOpensOnTheSameCompound) {
  host.run("orvChangeBracket -open g \"/group\"");
  host.run("undo");
  EXPECT_FALSE(isOpen("/group"));
  EXPECT_FALSE(isOpen());
  host.run("redo");
  EXPECT_TRUE(isOpen("/group"));
}

TEST_F(ChangeBracketCommand, UndoOfAClosingOpensAndRedoCloses) {
  graph.openChangeBracket(nullptr);
  host.run("orvChangeBracket g -close");
  host.run("undo");
  EXPECT_TRUE(isOpen());
  host.run("redo");
  EXPECT_FALSE(isOpen());
}

TEST_F(ChangeBracketCommand, BothFlagsCloseAndTheirUndoOpens) {
  graph.openChangeBracket(nullptr);
  EXPECT_EQ(host.run("orvChangeBracket g -open -close"), "true");
  EXPECT_FALSE(isOpen());
  host.run("undo");
  EXPECT_TRUE(isOpen());
}

TEST_F(ChangeBracketCommand, UndoOfAQueryFails) {
  host.run("undoableQuery g");
  EXPECT_THAT(host.refusal("undo"),
              ElementsAre("! undo of \"undoableQuery g\": 1 of 1 edits refused; "
                          "the others were carried out"));
}

class UndoOfABracket : public ChangeBracketCommand {
 protected:
  ~UndoOfABracket() override { UndoneAtOnce::between = nullptr; }

  /// The result that undo gives to a line, once `between` has happened.
  std::string undo(const char* line, std::function<void()> between = nullptr) {
    UndoneAtOnce::between = std::move(between);
    host.run(line);
    return UndoneAtOnce::undoResult;
  }
};

TEST_F(UndoOfABracket, OfAnOpeningTellsWhetherItClosed) {
  EXPECT_EQ(undo("undoneAtOnce g -open"), "true");
  EXPECT_FALSE(isOpen());
  EXPECT_EQ(undo("undoneAtOnce g -open", [this] { graph.closeChangeBracket(nullptr); }), "false");
  EXPECT_EQ(UndoneAtOnce::undoStatus, StatusSuccess);
}

TEST_F(UndoOfABracket, OfAClosingTellsThatItOpened) {
  EXPECT_EQ(undo("undoneAtOnce g -close"), "true");
  EXPECT_EQ(UndoneAtOnce::undoStatus, StatusSuccess);
  EXPECT_TRUE(isOpen());
}

TEST_F(UndoOfABracket, OfAQueryFailsWithoutAResult) {
  EXPECT_EQ(undo("undoneAtOnce g"), "");
  EXPECT_EQ(UndoneAtOnce::undoStatus, StatusFailure);
}

TEST_F(ChangeBracketCommand, AMissingContainerNameIsToldInTwoLines) {
  EXPECT_EQ(host.status("orvChangeBracket"), StatusFailure);
  EXPECT_THAT(host.takeMessages(), ElementsAre("! Too few arguments given.", kParsingError));
}

TEST_F(ChangeBracketCommand, ALineThatDoesNotFitIsRefusedWithTheStatusOfTheHost) {
  EXPECT_EQ(host.status("orvChangeBracket g -nonsense -open"), StatusBadArgument);
  EXPECT_THAT(host.takeMessages(),
              ElementsAre("! orvChangeBracket: unknown flag -nonsense", kParsingError));
  EXPECT_FALSE(isOpen());
}

TEST_F(ChangeBracketCommand, AnUnknownContainerIsTold) {
  host.run("createNode group -name \"plain\"");
  for (const char* name : {"nothing", "plain", "\"\""}) {
    EXPECT_EQ(host.status(std::string("orvChangeBracket -open ") + name), StatusFailure);
  }
  EXPECT_THAT(host.takeMessages(),
              ElementsAre("! nothing is not a DG ORV container",
                          "! plain is not a DG ORV container", "!  is not a DG ORV container"));
}

TEST_F(ChangeBracketCommand, TheContainerIsLookedForAheadOfThePath) {
  EXPECT_EQ(host.status("orvChangeBracket nothing \"/nothing\""), StatusFailure);
  EXPECT_THAT(host.takeMessages(), ElementsAre("! nothing is not a DG ORV container"));
}

TEST_F(ChangeBracketCommand, APathOfNothingAndAPathOfAPlainNodeAreToldAlike) {
  EXPECT_EQ(host.status("orvChangeBracket g \"/nothing\" -open"), StatusFailure);
  EXPECT_EQ(host.status("orvChangeBracket g \"/add\""), StatusFailure);
  EXPECT_THAT(host.takeMessages(),
              ElementsAre("! /nothing is not a compound name", "! /add is not a compound name"));
  EXPECT_FALSE(isOpen());
}

TEST_F(ChangeBracketCommand, AFailureGivesNoResult) {
  vesk::ResultValue result;
  EXPECT_FALSE(host.session().runLine("orvChangeBracket g \"/nothing\"", result));
  EXPECT_FALSE(vesk::hasResult(result));
  host.takeMessages();
}

TEST_F(ChangeBracketCommand, UndoAndRedoTellACompoundThatIsGone) {
  host.run("orvChangeBracket g \"/group\" -open");
  compound("/group")->getAsNode()->setName("elsewhere");
  EXPECT_THAT(host.refusal("undo"),
              ElementsAre("! /group is not a compound name", HasSubstr("! undo of")));
  EXPECT_THAT(host.refusal("redo"),
              ElementsAre("! /group is not a compound name", HasSubstr("! redo of")));
  EXPECT_TRUE(isOpen("/elsewhere"));
}

TEST_F(ChangeBracketCommand, UndoTellsAContainerThatIsGone) {
  host.run("orvChangeBracket g -open");
  host.session().scene().rename(host.session().scene().find("g"), "elsewhere");
  EXPECT_THAT(host.refusal("undo"),
              ElementsAre("! g is not a DG ORV container", HasSubstr("! undo of")));
  EXPECT_TRUE(isOpen());
}

}  // namespace
