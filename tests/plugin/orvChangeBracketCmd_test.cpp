#include "plugin/orvChangeBracketCmd.h"

#include "plugin/pluginMessages.h"
#include "standalone/host/engine/HostAccess.h"
#include "standalone/host/scene/Scene.h"
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

/// A graph "g" with the compound "/group" and the node "/add".
class ChangeBracketCommand : public testing::Test {
 protected:
  ChangeBracketCommand() : graph(host.graph("g")) {
    registerMessages();
    addCommand("orvChangeBracket", orvChangeBracketCmd::creator,
               orvChangeBracketCmd::createSyntax());
    addCommand("undoableQuery", UndoableQuery::creator, orvChangeBracketCmd::createSyntax());
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

  GraphHost host;
  Container& graph;
};

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
