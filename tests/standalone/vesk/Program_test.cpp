// The program as a user runs it: lines from arguments, scripts and standard input.

#include <gmock/gmock.h>

#include "testPaths.h"
#include "tests/standalone/vesk/ProgramRun.h"

namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

TEST(Program, RunsALineAndSucceeds) {
  const ProgramRun run = runVesk({"-c", "echo hello"});
  EXPECT_EQ(run.out, "hello\n");
  EXPECT_EQ(run.err, "");
  EXPECT_EQ(run.status, 0);
}

TEST(Program, RunsLinesAndScriptsInTheOrderGiven) {
  const TemporaryFolder folder;
  const std::string one = folder.write("one.vesk", "echo one\n");
  const std::string two = folder.write("two.vesk", "echo two\necho three\n");
  const ProgramRun run = runVesk({"-c", "echo a", two, "-c", "echo b", one, "-c", "echo c"});
  EXPECT_EQ(run.out, "a\ntwo\nthree\nb\none\nc\n");
}

TEST(Program, KeepsOneSceneForAllOfThem) {
  const TemporaryFolder folder;
  const std::string script = folder.write("a.vesk", "createNode locator -name two\n");
  const ProgramRun run = runVesk({"-c", "createNode group -name one", script, "-c", "ls"});
  EXPECT_THAT(run.out, EndsWith("one\ntwo\n"));
}

TEST(Program, StopsAtTheFirstLineThatFails) {
  const ProgramRun run = runVesk({"-c", "echo one", "-c", "nonsense", "-c", "echo never"});
  EXPECT_EQ(run.out, "one\n");
  EXPECT_EQ(run.err, "Error: unknown command \"nonsense\"\n-c 2: the line failed with status 3\n");
  EXPECT_EQ(run.status, 1);
}

TEST(Program, TellsTheStatusOfALineThatFailsWithoutAMessage) {
  const ProgramRun run = runVesk({"-c", "orv -listPortTypes nowhere"});
  EXPECT_EQ(run.err, "-c 1: the line failed with status 1\n");
  EXPECT_EQ(run.status, 1);
}

TEST(Program, GoesOnAfterAFailureWhenAskedTo) {
  const ProgramRun run =
      runVesk({"--keep-going", "-c", "nonsense", "-c", "echo on", "-c", "undo", "-c", "echo end"});
  EXPECT_EQ(run.out, "on\nend\n");
  EXPECT_THAT(run.err, HasSubstr("-c 1: the line failed"));
  EXPECT_THAT(run.err, HasSubstr("-c 3: the line failed"));
  EXPECT_EQ(run.status, 1);
}

TEST(Program, GoesOnToTheNextScriptWhenAskedTo) {
  const TemporaryFolder folder;
  const std::string bad = folder.write("bad.vesk", "nonsense\necho bad\n");
  const std::string good = folder.write("good.vesk", "echo good\n");
  EXPECT_EQ(runVesk({"--keep-going", bad, good}).out, "bad\ngood\n");
  EXPECT_EQ(runVesk({bad, good}).out, "");
}

TEST(Program, TellsTheLineOfAScriptThatFails) {
  const TemporaryFolder folder;
  const std::string script = folder.write("a.vesk", "// first\n\necho third\nnonsense\n");
  const ProgramRun run = runVesk({script});
  EXPECT_THAT(run.err, EndsWith(script + ":4: the line failed with status 3\n"));
}

TEST(Program, CountsTheLinesOfEachScriptFromOne) {
  const TemporaryFolder folder;
  const std::string first = folder.write("first.vesk", "echo a\necho b\necho c\n");
  const std::string second = folder.write("second.vesk", "nonsense\n");
  EXPECT_THAT(runVesk({first, second}).err, HasSubstr(second + ":1: "));
}

TEST(Program, TellsTheLineWithinAnArgumentOfSeveralLines) {
  const ProgramRun run = runVesk({"-c", "echo one\nnonsense\necho never"});
  EXPECT_EQ(run.out, "one\n");
  EXPECT_THAT(run.err, EndsWith("-c 1:2: the line failed with status 3\n"));
}

TEST(Program, CannotRunAMissingScript) {
  const ProgramRun run = runVesk({"nowhere.vesk"});
  EXPECT_EQ(run.err, "vesk: cannot read the script \"nowhere.vesk\": No such file or directory\n");
  EXPECT_EQ(run.status, 2);
}

TEST(Program, RunsNothingWhenOneOfItsScriptsCannotBeRead) {
  const TemporaryFolder folder;
  const std::string journal = folder.write("journal", "of the last time\n");
  const ProgramRun run = runVesk({"--journal", journal, "-c", "echo never", "nowhere.vesk"});
  EXPECT_EQ(run.out, "");
  EXPECT_EQ(run.err, "vesk: cannot read the script \"nowhere.vesk\": No such file or directory\n");
  EXPECT_EQ(run.status, 2);
  EXPECT_EQ(readWholeFile(journal), "of the last time\n");
}

TEST(Program, CannotRunADevice) {
  const ProgramRun run = runVesk({"/dev/zero"});
  EXPECT_EQ(run.err, "vesk: cannot read the script \"/dev/zero\": it is a device\n");
  EXPECT_EQ(run.status, 2);
}

TEST(Program, CannotRunAPipeWithoutEnd) {
  const ProgramRun run = runShell("'" + kVesk + "' <(yes)");
  EXPECT_THAT(run.err, EndsWith("it is longer than 256 MiB\n"));
  EXPECT_EQ(run.status, 2);
}

TEST(Program, RunsAScriptFromAPipeThatIsWrittenLater) {
  const TemporaryFolder folder;
  const ProgramRun run = runShell(
      "mkfifo pipe; '" + kVesk + "' pipe -c 'echo end' & echo 'echo piped' > pipe; wait $!",
      {.folder = folder.path().string()});
  EXPECT_EQ(run.out, "piped\nend\n");
  EXPECT_EQ(run.err, "");
}

TEST(Program, DoesNotWaitForAPipeThatALineNames) {
  const TemporaryFolder folder;
  const ProgramRun run = runShell("mkfifo pipe; timeout 20 '" + kVesk + "' -c 'source pipe'",
                                  {.folder = folder.path().string()});
  EXPECT_THAT(run.err, StartsWith("Error: source: cannot read \"pipe\": it is a pipe\n"));
  EXPECT_EQ(run.status, 1);
}

TEST(Program, CannotRunAFolder) {
  const TemporaryFolder folder;
  const ProgramRun run = runVesk({folder.path().string()});
  EXPECT_THAT(run.err, EndsWith("it is a folder\n"));
  EXPECT_EQ(run.status, 2);
}

TEST(Program, RefusesOptionsItDoesNotKnow) {
  const ProgramRun run = runVesk({"--nonsense"});
  EXPECT_EQ(run.err, "vesk: unknown option --nonsense; try vesk --help\n");
  EXPECT_EQ(run.out, "");
  EXPECT_EQ(run.status, 2);
}

TEST(Program, RunsNothingWhenItsOptionsContradictThemselves) {
  const ProgramRun run = runVesk({"-c", "echo never", "--update"});
  EXPECT_EQ(run.out, "");
  EXPECT_EQ(run.status, 2);
}

TEST(Program, PrintsItsHelp) {
  const ProgramRun run = runVesk({"--help", "-c", "echo never"});
  EXPECT_THAT(run.out, StartsWith("Usage: vesk"));
  EXPECT_THAT(run.out, testing::Not(HasSubstr("never\n")));
  EXPECT_EQ(run.status, 0);
}

TEST(Program, PrintsItsVersion) {
  const ProgramRun run = runVesk({"--version"});
  EXPECT_EQ(run.out, "vesk 2.1.0\n");
  EXPECT_EQ(run.status, 0);
}

class ProgramIdleLines : public testing::Test {
 protected:
  const std::string module_ = VESK_BUILD_DIR "/test-modules/idleModule.so";
  const std::string messages_ =
      "Error: unknown command \"nonsense\"\n"
      "Error: idle line: \"echo idle\\nnonsense\" failed with status 3\n";
};

TEST_F(ProgramIdleLines, OfTheStartRunWithoutAnyInput) {
  const ProgramRun run = runVesk({"--plugin", module_});
  EXPECT_EQ(run.out, "idle\n");
  EXPECT_EQ(run.err, messages_ + "start-up: the line failed with status 3\n");
  EXPECT_EQ(run.status, 1);
}

TEST_F(ProgramIdleLines, OfTheStartEndTheRunWhenTheyFail) {
  const ProgramRun run = runVesk({"--plugin", module_, "-c", "echo never"});
  EXPECT_EQ(run.out, "idle\n");
  EXPECT_EQ(run.status, 1);
}

TEST_F(ProgramIdleLines, OfTheStartComeAheadOfTheLinesGiven) {
  const ProgramRun run = runVesk({"--keep-going", "--plugin", module_, "-c", "echo on"});
  EXPECT_EQ(run.out, "idle\non\n");
  EXPECT_EQ(run.status, 1);
}

TEST_F(ProgramIdleLines, OfTheStartBelongToNoTranscript) {
  const TemporaryFolder folder;
  const std::string transcript = folder.write("a.vtr", "> echo on\n: on\n");
  const ProgramRun run = runVesk({"--plugin", module_, "--check", transcript});
  EXPECT_EQ(run.out, "idle\n");
  EXPECT_EQ(run.err, messages_);
  EXPECT_EQ(run.status, 1);
}

TEST_F(ProgramIdleLines, EndTheRunWhenTheyFail) {
  const ProgramRun run =
      runVesk({"--no-plugin", "-c", "loadPlugin \"" + module_ + "\"", "-c", "echo never"});
  EXPECT_EQ(run.out, "idle\nidleModule\n");
  EXPECT_EQ(run.err, messages_ + "-c 1: the line failed with status 3\n");
  EXPECT_EQ(run.status, 1);
}

TEST(ProgramBatch, IsTrueWhereNobodyCanAnswer) {
  const TemporaryFolder folder;
  EXPECT_EQ(runVesk({"-c", "about -batch"}).out, "true\n");
  EXPECT_EQ(runVesk({folder.write("a.vesk", "about -batch\n")}).out, "true\n");
  EXPECT_EQ(runVesk({}, {.input = "about -batch\n"}).out, "true\n");
}

TEST(ProgramQuit, EndsTheRun) {
  const ProgramRun run = runVesk({"-c", "quit", "-c", "echo never"});
  EXPECT_EQ(run.out, "");
  EXPECT_EQ(run.status, 0);
}

TEST(ProgramQuit, EndsAScriptAndWhatComesBehindIt) {
  const TemporaryFolder folder;
  const std::string script = folder.write("a.vesk", "echo one\nquit -exitCode 7\necho never\n");
  const ProgramRun run = runVesk({script, "-c", "echo never"});
  EXPECT_EQ(run.out, "one\n");
  EXPECT_EQ(run.status, 7);
}

TEST(ProgramQuit, EndsTheReadingOfASourcedScript) {
  const TemporaryFolder folder;
  const std::string script = folder.write("a.vesk", "quit\necho never\n");
  const ProgramRun run = runVesk({"-c", "source \"" + script + "\"", "-c", "echo never"});
  EXPECT_EQ(run.out, "");
  EXPECT_EQ(run.status, 0);
}

TEST(ProgramQuit, GivesTheExitCode) {
  EXPECT_EQ(runVesk({"-c", "quit -exitCode 3"}).status, 3);
  EXPECT_EQ(runVesk({"-c", "quit -ec 255"}).status, 255);
  EXPECT_EQ(runVesk({"-c", "quit -exitCode 0"}).status, 0);
}

TEST(ProgramQuit, NeverTurnsAnExitCodeIntoSuccess) {
  EXPECT_EQ(runVesk({"-c", "quit -exitCode 256"}).status, 1);
  EXPECT_EQ(runVesk({"-c", "quit -exitCode -1"}).status, 255);
}

TEST(ProgramQuit, DoesNotHideALineThatFailed) {
  EXPECT_EQ(runVesk({"--keep-going", "-c", "nonsense", "-c", "quit"}).status, 1);
}

TEST(ProgramOutput, GoesBesideErrorsAndWarnings) {
  const ProgramRun run = runVesk({"--keep-going", "-c", "about -version; nonsense"});
  EXPECT_EQ(run.out, "2.1.0\n");
  EXPECT_THAT(run.err, StartsWith("Error: "));
}

TEST(ProgramOutput, ThatCannotBeWrittenIsToldAndIsNoSuccess) {
  const ProgramRun run = runShell("'" + kVesk + "' -c help > /dev/full");
  EXPECT_EQ(run.err, "vesk: the output cannot be written\n");
  EXPECT_EQ(run.status, 2);
}

TEST(ProgramOutput, ShowsListsOneElementALine) {
  EXPECT_EQ(runVesk({"-c", "createNode group -name a; createNode group -name b; ls"}).out,
            "a\nb\n");
}

TEST(ProgramOutput, ShowsNothingForAnEmptyListOrNoResult) {
  EXPECT_EQ(runVesk({"-c", "ls", "-c", "select -clear"}).out, "");
}

}  // namespace
