#include "standalone/host/engine/CommandEngine.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/OpenVesk/KGlobal.h"
#include "tests/support/ProbeCommand.h"

namespace {

using namespace hosttest;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

ProbeBody failing(KStatusCode code = StatusFailure, bool undoable = true) {
  return {.doIt = [code](KPxCommand&, const KArgList&) { return KStatus(code); },
          .undoable = undoable};
}

TEST(CommandEngine, RunsACommandWithItsArguments) {
  ProbeHost host;
  host.run("edit a \"b c\" -3 -flag");
  EXPECT_EQ(takeDiary().front(), "doIt edit a b c -3 -flag");
}

TEST(CommandEngine, AsksWhetherACommandIsUndoableAfterItsWorkAndNothingElse) {
  ProbeHost host;
  addProbe(host, "query", {});
  host.run("edit a");
  EXPECT_THAT(takeDiary(), ElementsAre("doIt edit a", "isUndoable edit a"));
  host.run("query a");
  EXPECT_THAT(takeDiary(), ElementsAre("doIt query a", "isUndoable query a", "delete query a"));
}

TEST(CommandEngine, ACommandThatFailsIsDeletedAndNotQueued) {
  ProbeHost host;
  addProbe(host, "bad", failing());
  EXPECT_EQ(host.status("bad a"), StatusFailure);
  EXPECT_THAT(takeDiary(), ElementsAre("doIt bad a", "delete bad a"));
  EXPECT_THAT(host.steps(), IsEmpty());
}

TEST(CommandEngine, GivesTheStatusOfTheCommandThatFailed) {
  ProbeHost host;
  addProbe(host, "bad", failing(StatusBadArgument));
  EXPECT_EQ(host.status("bad"), StatusBadArgument);
}

TEST(CommandEngine, TellsOfEachLineThatItBegins) {
  ProbeHost host;
  addProbe(host, "outer", {.doIt = [](KPxCommand&, const KArgList&) {
             return KGlobal::executeCommand("edit \"a", false, false);
           }});
  Texts begun;
  const auto observation =
      host.session().engine().lineBegan().add([&](const vesk::BegunLine& line) {
        begun.push_back(std::string(line.outermost ? "outermost" : "inner") +
                        (line.readable ? "" : ", cannot be read"));
      });
  host.run("edit a; edit b");
  EXPECT_EQ(host.status("outer"), StatusBadArgument);
  host.takeMessages();
  EXPECT_THAT(begun, ElementsAre("outermost", "outermost", "inner, cannot be read"));
}

TEST(CommandEngine, AnUnknownCommandIsABadArgument) {
  ProbeHost host;
  EXPECT_EQ(host.status("no\u00e9 a"), StatusBadArgument);
  EXPECT_THAT(host.takeMessages(), ElementsAre("! unknown command \"no\u00e9\""));
}

TEST(CommandEngine, NamesTellLettersOfEitherCaseApart) {
  ProbeHost host;
  EXPECT_THAT(host.refusal("Edit a"), ElementsAre("! unknown command \"Edit\""));
}

TEST(CommandEngine, AQuotedTextNamesNoCommand) {
  ProbeHost host;
  EXPECT_THAT(host.refusal("\"edit\" a"),
              ElementsAre("! the name of a command is written without quotes: edit"));
}

TEST(CommandEngine, AFlagNamesNoCommand) {
  ProbeHost host;
  EXPECT_THAT(host.refusal("-edit"), ElementsAre("! unknown command \"-edit\""));
}

TEST(CommandEngine, ACreatorThatGivesNothingIsRefused) {
  ProbeHost host;
  const auto create = []() -> KPxCommand* { return nullptr; };
  host.session().registry().add({"none", create, KSyntax(), nullptr, {}});
  EXPECT_THAT(host.refusal("none"), ElementsAre("! the command \"none\" could not be created"));
}

TEST(CommandEngine, RunsStatementsInOrder) {
  ProbeHost host;
  host.run("edit a; edit b\nedit c");
  EXPECT_THAT(host.steps(), ElementsAre("edit a", "edit b", "edit c"));
}

TEST(CommandEngine, StopsAtTheFirstStatementThatFails) {
  ProbeHost host;
  addProbe(host, "bad", failing());
  EXPECT_EQ(host.status("edit a; bad; edit b"), StatusFailure);
  EXPECT_THAT(host.steps(), ElementsAre("edit a"));
}

TEST(CommandEngine, StopsAtAnUnknownCommand) {
  ProbeHost host;
  host.refusal("edit a; unknown; edit b");
  EXPECT_THAT(host.steps(), ElementsAre("edit a"));
}

TEST(CommandEngine, ReadsALineWholeBeforeAnythingOfItRuns) {
  ProbeHost host;
  EXPECT_EQ(host.status("edit a\nedit b; edit \"c"), StatusBadArgument);
  EXPECT_THAT(host.takeMessages(),
              ElementsAre("! syntax error: line 2, column 14: the quoted text has no end"));
  EXPECT_THAT(takeDiary(), IsEmpty());
}

TEST(CommandEngine, TheResultIsThatOfTheLastStatement) {
  ProbeHost host;
  EXPECT_EQ(host.run("about -version; about -batch"), "true");
  EXPECT_EQ(host.run("about -batch; edit a"), "");
}

TEST(CommandEngine, TheResultOfAFailureIsThatOfTheStatementThatFailed) {
  ProbeHost host;
  addProbe(host, "bad", {.doIt = [](KPxCommand&, const KArgList&) {
             KPxCommand::setResult("partial");
             return KStatus(StatusFailure);
           }});
  vesk::ResultValue result;
  EXPECT_FALSE(host.session().runLine("about -batch; bad; about -batch", result));
  EXPECT_EQ(vesk::toJson(result), "\"partial\"");
}

TEST(CommandEngine, ACommandSeesOnlyItsOwnResult) {
  ProbeHost host;
  addProbe(host, "append", {.doIt = [](KPxCommand&, const KArgList&) {
             KPxCommand::appendToResult("b");
             return KStatus();
           }});
  EXPECT_EQ(host.run("about -version; append"), R"(["b"])");
}

TEST(CommandEngine, AnEmptyLineSucceedsWithoutResult) {
  ProbeHost host;
  vesk::ResultValue result = true;
  EXPECT_TRUE(host.session().runLine(" ;; // nothing", result));
  EXPECT_FALSE(vesk::hasResult(result));
}

TEST(CommandEngine, AFailingLineLeavesNoFormerResult) {
  ProbeHost host;
  vesk::ResultValue result = true;
  EXPECT_FALSE(host.session().runLine("unknown", result));
  EXPECT_FALSE(vesk::hasResult(result));
  host.takeMessages();
}

TEST(CommandEngine, WithoutUndoNothingIsQueued) {
  ProbeHost host;
  vesk::ResultValue result;
  EXPECT_TRUE(host.session().engine().run("edit a", result, {.undo = false}));
  EXPECT_THAT(host.steps(), IsEmpty());
  EXPECT_EQ(aliveProbes(), 0);
}

TEST(CommandEngine, EchoesALineThatIsShown) {
  ProbeHost host;
  vesk::ResultValue result;
  host.session().engine().run("edit a; edit b", result, {.display = true});
  host.session().engine().run("edit c", result, {.display = false});
  EXPECT_THAT(host.takeEchoes(), ElementsAre("edit a; edit b"));
}

TEST(CommandEngine, EchoesALineAheadOfItsMessages) {
  std::vector<vesk::MessageKind> kinds;
  vesk::HostSession session;
  session.messages().addSink([&](const vesk::Message& message) { kinds.push_back(message.kind); });
  vesk::ResultValue result;
  session.runLine("unknown", result);
  EXPECT_THAT(kinds, ElementsAre(vesk::MessageKind::Echo, vesk::MessageKind::Error));
}

TEST(CommandEngine, MessagesComeInTheOrderInWhichTheyWereSent) {
  ProbeHost host;
  addProbe(host, "tell", {.doIt = [](KPxCommand&, const KArgList& arguments) {
             KGlobal::displayError("first");
             KGlobal::displayWarning("second");
             if (arguments.length() > 0) KGlobal::executeCommand(arguments.asString(0), true, true);
             KGlobal::displayError("third");
             return KStatus();
           }});
  host.run("tell \"echo inner\"");
  EXPECT_THAT(host.takeMessages(), ElementsAre("! first", "? second", "- inner", "! third"));
}

TEST(CommandEngine, AnErrorThatIsShownFailsNoCommand) {
  ProbeHost host;
  addProbe(host, "tell",
           {.doIt =
                [](KPxCommand&, const KArgList&) {
                  KGlobal::displayError("told");
                  return KStatus();
                },
            .undoable = true});
  EXPECT_EQ(host.status("tell"), StatusSuccess);
  EXPECT_THAT(host.takeMessages(), ElementsAre("! told"));
  EXPECT_THAT(host.steps(), ElementsAre("tell"));
}

}  // namespace
