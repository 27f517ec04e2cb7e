#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "platform/OpenVesk/KGlobal.h"
#include "standalone/host/language/Tokenizer.h"
#include "tests/support/ProbeCommand.h"
#include "tests/support/TemporaryFiles.h"

namespace {

using namespace hosttest;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// A host and a folder of scripts.
class SourceCommand : public ::testing::Test {
 protected:
  /// The line that sources a script of this text.
  std::string script(std::string_view text, std::string_view name = "script") const {
    return "source " + vesk::quoted(files.write(name, text));
  }
  std::string failedAt(std::string_view name, int line) const {
    return "! source: " + files.path(name) + ":" + std::to_string(line) + ": the line failed";
  }

  TemporaryFiles files;
  ProbeHost host;
};

TEST_F(SourceCommand, RunsTheLinesOfAScript) {
  host.run(script("edit a\n\n// a comment\nedit b; edit c\n"));
  EXPECT_THAT(host.steps(), ElementsAre("edit a", "edit b", "edit c"));
}

TEST_F(SourceCommand, EachStatementIsAnUndoStepOfItsOwn) {
  host.run(script("edit a\nedit b\n"));
  host.run("undo");
  EXPECT_THAT(host.steps(), ElementsAre("edit a"));
}

TEST_F(SourceCommand, ItsLinesMayUndoEachOther) {
  host.run(script("edit a\nedit b\nundo\n"));
  EXPECT_THAT(host.steps(), ElementsAre("edit a"));
}

TEST_F(SourceCommand, TheLastLineNeedsNoEnd) {
  host.run(script("edit a\nedit b"));
  EXPECT_THAT(host.steps(), ElementsAre("edit a", "edit b"));
}

TEST_F(SourceCommand, ReadsLineEndsOfTwoBytes) {
  host.run(script("edit a\r\nedit b\r\n"));
  EXPECT_THAT(host.steps(), ElementsAre("edit a", "edit b"));
}

TEST_F(SourceCommand, PassesOverAByteOrderMark) {
  host.run(
      script("\xEF\xBB\xBF"
             "edit a\n"));
  EXPECT_THAT(host.steps(), ElementsAre("edit a"));
}

TEST_F(SourceCommand, TakesNoDevicesAndNoPipes) {
  const std::string pipe = files.path("pipe");
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_THAT(host.refusal("source \"/dev/zero\""),
              ElementsAre("! source: cannot read \"/dev/zero\": it is a device"));
  EXPECT_THAT(host.refusal("source " + vesk::quoted(pipe)),
              ElementsAre("! source: cannot read " + vesk::quoted(pipe) + ": it is a pipe"));
}

TEST_F(SourceCommand, BlankLinesAndCommentsKeepTheResult) {
  EXPECT_EQ(host.run(script("about -batch\n\n  // the end\n")), "true");
}

TEST_F(SourceCommand, GivesTheResultOfTheLastLine) {
  EXPECT_EQ(host.run(script("about -version\nabout -batch\n")), "true");
  EXPECT_EQ(host.run(script("about -batch\nedit a\n")), "");
  EXPECT_EQ(host.run(script("")), "");
}

TEST_F(SourceCommand, StopsAtTheFirstLineThatFailsAndTellsItsPlace) {
  EXPECT_EQ(host.status(script("edit a\n\nedit b; unknown; edit c\nedit d\n")), StatusBadArgument);
  EXPECT_THAT(host.takeMessages(),
              ElementsAre("! unknown command \"unknown\"", failedAt("script", 3)));
  EXPECT_THAT(host.steps(), ElementsAre("edit a", "edit b"));
}

TEST_F(SourceCommand, ReadsALineWholeBeforeItRuns) {
  EXPECT_THAT(host.refusal(script("edit a\nedit b; edit \"c\n")),
              ElementsAre("! syntax error: line 1, column 14: the quoted text has no end",
                          failedAt("script", 2)));
  EXPECT_THAT(host.steps(), ElementsAre("edit a"));
}

TEST_F(SourceCommand, TellsThePlaceInEveryScriptOnTheWay) {
  const std::string inner = script("edit a\nunknown\n", "inner");
  EXPECT_THAT(
      host.refusal(script("edit b\n\n" + inner + "\n", "outer")),
      ElementsAre("! unknown command \"unknown\"", failedAt("inner", 2), failedAt("outer", 3)));
}

TEST_F(SourceCommand, TheLinesOfANestedScriptAreStepsOfTheirOwnToo) {
  const std::string inner = script("edit b\nedit c\n", "inner");
  host.run(script("edit a\n" + inner + "\nedit d\n", "outer"));
  EXPECT_THAT(host.steps(), ElementsAre("edit a", "edit b", "edit c", "edit d"));
}

TEST_F(SourceCommand, AScriptThatSourcesItselfWithoutEndIsStopped) {
  const std::string line = "source " + vesk::quoted(files.path("self"));
  const Texts messages = host.refusal(script("edit a\n" + line, "self"));
  ASSERT_EQ(messages.size(), 201u);
  EXPECT_EQ(messages.front(), "! the line is nested too deeply in commands");
  EXPECT_EQ(messages.back(), failedAt("self", 2));
  EXPECT_EQ(host.steps().size(), 199u);
}

TEST_F(SourceCommand, StepsOfAScriptBelongToTheChunkThatIsOpen) {
  host.run("undoInfo -ock -cn chunk; " + script("edit a\nedit b\n") + "; undoInfo -cck");
  EXPECT_THAT(host.steps(), ElementsAre("chunk"));
}

TEST_F(SourceCommand, EditsThatACommandMadeAheadOfItAreAStepOfTheirOwn) {
  const std::string line = "edit a; " + script("edit b\n");
  addProbe(host, "run", {.doIt = [&](KPxCommand&, const KArgList&) {
             return KGlobal::executeCommand(line.c_str(), false, true);
           }});
  host.run("run");
  EXPECT_THAT(host.steps(), ElementsAre("run", "edit b"));
}

TEST_F(SourceCommand, WithoutUndoItsLinesAreNotQueued) {
  vesk::ResultValue result;
  EXPECT_TRUE(host.session().engine().run(script("edit a\n"), result, {.undo = false}));
  EXPECT_THAT(host.steps(), IsEmpty());
}

TEST_F(SourceCommand, StopsAtQuit) {
  host.run(script("edit a\nquit -exitCode 3\nedit b\n"));
  EXPECT_THAT(host.steps(), ElementsAre("edit a"));
  EXPECT_EQ(host.session().exitStatus, 3);
}

TEST_F(SourceCommand, RefusesAFileThatIsNotThere) {
  const std::string path = files.path("missing");
  EXPECT_THAT(host.refusal("source " + vesk::quoted(path)),
              ElementsAre("! source: cannot read \"" + path + "\": No such file or directory"));
}

TEST_F(SourceCommand, RefusesAFolder) {
  const std::string path = files.path("");
  EXPECT_THAT(host.refusal("source " + vesk::quoted(path)),
              ElementsAre("! source: cannot read " + vesk::quoted(path) + ": it is a folder"));
}

TEST_F(SourceCommand, WithoutPathSaysWhatIsMissing) {
  EXPECT_THAT(host.refusal("source"), ElementsAre("! source: the path of the script is missing"));
}

TEST(QuitCommand, AsksForTheEndWithItsExitStatus) {
  Host host;
  EXPECT_FALSE(host.session().quitRequested);
  host.run("quit -exitCode 7");
  EXPECT_TRUE(host.session().quitRequested);
  EXPECT_EQ(host.session().exitStatus, 7);
}

TEST(QuitCommand, ExitsWithZeroUnlessItIsToldOtherwise) {
  Host host;
  host.run("quit");
  EXPECT_TRUE(host.session().quitRequested);
  EXPECT_EQ(host.session().exitStatus, 0);
}

TEST(QuitCommand, WithABadExitCodeDoesNotQuit) {
  Host host;
  host.refusal("quit -exitCode many");
  EXPECT_FALSE(host.session().quitRequested);
}

}  // namespace
