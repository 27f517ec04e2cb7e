// Lines of scripts and of standard input, whatever bytes they are made of.

#include "standalone/vesk/LineSource.h"

#include <gmock/gmock.h>

#include "tests/standalone/vesk/ProgramRun.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

using vesk::ProgramOptions;

std::vector<std::string> linesOf(ProgramOptions::Input::Kind kind, const std::string& text) {
  std::string reason;
  const auto source = vesk::openInputs({{kind, text}}, reason);
  EXPECT_TRUE(source) << reason;
  std::vector<std::string> lines;
  while (const auto line = (*source)()) lines.push_back(line->place + "|" + line->text);
  return lines;
}

std::vector<std::string> linesOfScript(const std::string& bytes) {
  const TemporaryFolder folder;
  const std::string path = folder.write("a", bytes);
  std::vector<std::string> lines = linesOf(ProgramOptions::Input::Kind::Script, path);
  for (std::string& line : lines) line.erase(0, path.size() + 1);
  return lines;
}

ProgramRun runInput(const std::string& input) {
  return runVesk({"--keep-going"}, {.input = input});
}

TEST(LineSource, GivesTheLinesOfAScriptWithTheirNumbers) {
  EXPECT_THAT(linesOfScript("one\ntwo\n"), ElementsAre("1|one", "2|two"));
}

TEST(LineSource, GivesALastLineWithoutALineEnd) {
  EXPECT_THAT(linesOfScript("one\ntwo"), ElementsAre("1|one", "2|two"));
}

TEST(LineSource, GivesBlankLinesToo) {
  EXPECT_THAT(linesOfScript("\none\n\n"), ElementsAre("1|", "2|one", "3|"));
}

TEST(LineSource, GivesNothingForAnEmptyScript) { EXPECT_THAT(linesOfScript(""), ElementsAre()); }

TEST(LineSource, GivesALineOfTheCommandLineOnce) {
  EXPECT_THAT(linesOf(ProgramOptions::Input::Kind::Line, "echo a; echo b"),
              ElementsAre("-c 1|echo a; echo b"));
  EXPECT_THAT(linesOf(ProgramOptions::Input::Kind::Line, ""), ElementsAre("-c 1|"));
}

TEST(LineSource, SplitsSeveralLinesOfTheCommandLine) {
  EXPECT_THAT(linesOf(ProgramOptions::Input::Kind::Line, "echo a\necho b\n"),
              ElementsAre("-c 1:1|echo a", "-c 1:2|echo b"));
}

TEST(LineSource, SaysWhyAScriptCannotBeRead) {
  std::string reason;
  EXPECT_FALSE(vesk::openInputs({{ProgramOptions::Input::Kind::Script, "/"}}, reason));
  EXPECT_EQ(reason, "cannot read the script \"/\": it is a folder");
}

TEST(StandardInput, IsRunLineByLine) {
  const ProgramRun run = runInput("echo one\necho two\n");
  EXPECT_EQ(run.out, "one\ntwo\n");
  EXPECT_EQ(run.status, 0);
}

TEST(StandardInput, NeedsNoLastLineEnd) {
  EXPECT_EQ(runInput("echo one\necho two").out, "one\ntwo\n");
}

TEST(StandardInput, MayHaveTheLineEndsOfOtherSystems) {
  const ProgramRun run = runInput("echo one\r\necho two\r\n\r\n// nothing\r\n");
  EXPECT_EQ(run.out, "one\ntwo\n");
  EXPECT_EQ(run.status, 0);
}

TEST(StandardInput, MayBeEmpty) {
  const ProgramRun run = runInput("");
  EXPECT_EQ(run.out + run.err, "");
  EXPECT_EQ(run.status, 0);
}

TEST(StandardInput, TellsTheLineThatFails) {
  const ProgramRun run = runVesk({}, {.input = "echo one\nnonsense\necho never\n"});
  EXPECT_EQ(run.out, "one\n");
  EXPECT_THAT(run.err, HasSubstr("standard input:2: the line failed with status 3\n"));
  EXPECT_EQ(run.status, 1);
}

TEST(StandardInput, MayBeginWithAByteOrderMark) {
  const ProgramRun run = runInput(
      "\xEF\xBB\xBF"
      "echo one\necho two\n");
  EXPECT_EQ(run.out, "one\ntwo\n");
  EXPECT_EQ(run.err, "");
}

TEST(StandardInput, HasAByteOrderMarkOnItsFirstLineOnly) {
  EXPECT_EQ(runInput("echo one\n\xEF\xBB\xBF"
                     "echo two\n")
                .out,
            "one\n");
}

TEST(StandardInput, RefusesZeroBytesWithTheirPlaceAndGoesOn) {
  using namespace std::string_literals;
  const ProgramRun run = runInput("echo a\0b\necho \"c\0d\"\necho on\n"s);
  EXPECT_EQ(run.out, "on\n");
  EXPECT_THAT(run.err, HasSubstr("line 1, column 7: the control character 0x00 is not allowed"));
  EXPECT_THAT(run.err, HasSubstr("line 1, column 8: the control character 0x00 is not allowed"));
}

TEST(StandardInput, RefusesInvalidUtf8WithItsPlaceAndGoesOn) {
  const ProgramRun run = runInput("echo \xff\xfe\necho \"\xc3\"\necho on\n");
  EXPECT_EQ(run.out, "on\n");
  EXPECT_THAT(run.err, HasSubstr("line 1, column 6: the byte 0xff is not valid UTF-8 here"));
  EXPECT_THAT(run.err, HasSubstr("line 1, column 7: the byte 0xc3 is not valid UTF-8 here"));
}

TEST(StandardInput, TakesALineOfAMegabyte) {
  const std::string text(1 << 20, 'x');
  const ProgramRun run = runInput("echo \"" + text + "\"\necho on\n");
  EXPECT_EQ(run.out, text + "\non\n");
  EXPECT_EQ(run.status, 0);
}

TEST(StandardInput, IsNotReadWhenLinesAreGiven) {
  EXPECT_EQ(runVesk({"-c", "echo given"}, {.input = "echo never\n"}).out, "given\n");
}

TEST(StandardInput, RunsEachLineAsSoonAsItIsThere) {
  const ProgramRun run = runShell("coproc V { '" + kVesk +
                                  "'; }; echo 'about -version' >&${V[1]}; "
                                  "read -t 20 -r line <&${V[0]}; echo \"got $line\"; "
                                  "echo quit >&${V[1]}; wait $V_PID");
  EXPECT_EQ(run.out, "got 2.1.0\n");
}

}  // namespace
