#include "standalone/vesk/Transcript.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "tests/standalone/vesk/ProgramRun.h"

namespace vesk {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

std::string written(const std::function<void(TranscriptWriter&)>& events) {
  std::ostringstream out;
  TranscriptWriter writer(out);
  events(writer);
  return out.str();
}

TEST(TranscriptWriter, MarksLinesMessagesAndResults) {
  EXPECT_EQ(written([](TranscriptWriter& writer) {
              writer.lineBegins("do it");
              writer.message({MessageKind::Warning, "careful"});
              writer.message({MessageKind::Error, "wrong"});
              writer.message({MessageKind::Print, "said"});
              writer.lineEnded(std::vector<std::string>{"a", "b"}, StatusBadArgument);
            }),
            "> do it\n? careful\n! wrong\n: said\n= [\"a\",\"b\"]\n# status 3\n");
}

TEST(TranscriptWriter, WritesNothingForNoResultAndSuccess) {
  EXPECT_EQ(written([](TranscriptWriter& writer) { writer.lineEnded({}, StatusSuccess); }), "");
}

TEST(TranscriptWriter, WritesNoEchoes) {
  EXPECT_EQ(written([](TranscriptWriter& writer) {
              writer.message({MessageKind::Echo, "line"});
            }),
            "");
}

TEST(TranscriptWriter, MarksEveryLineOfAMessage) {
  EXPECT_EQ(written([](TranscriptWriter& writer) {
              writer.message({MessageKind::Error, "one\ntwo\n"});
            }),
            "! one\n! two\n! \n");
}

TEST(TranscriptWriter, LeavesCommentsAndBlankLinesUnmarked) {
  EXPECT_EQ(written([](TranscriptWriter& writer) {
              writer.lineBegins("// why");
              writer.lineBegins("");
              writer.lineBegins("  // still");
              writer.lineBegins("echo // said");
            }),
            "// why\n\n  // still\n> echo // said\n");
}

class Rerun : public ::testing::Test {
 protected:
  std::string rerun(const std::string& transcript) {
    return rerunTranscript(
        transcript,
        [this](std::string_view line, LineListener& listener) {
          lines_.emplace_back(line);
          listener.lineBegins(line);
          listener.lineEnded(std::string("new"), StatusSuccess);
        },
        error_);
  }

  std::vector<std::string> lines_;
  std::string error_;
};

TEST_F(Rerun, RunsTheMarkedLinesInOrder) {
  rerun("> one\n= \"old\"\n\n// two\n>  two \n");
  EXPECT_THAT(lines_, ElementsAre("one", " two "));
}

TEST_F(Rerun, ReplacesAllThatCameOut) {
  EXPECT_EQ(rerun("> one\n! e\n? w\n: p\n= 1\n# status 1\n> two\n"),
            "> one\n= \"new\"\n> two\n= \"new\"\n");
}

TEST_F(Rerun, KeepsCommentsAndBlankLines) {
  EXPECT_EQ(rerun("// why\n\n> one\n\n"), "// why\n\n> one\n= \"new\"\n\n");
}

TEST_F(Rerun, RunsNothingWhenALineIsOfNoKind) {
  EXPECT_EQ(rerun("> one\nnonsense\n> two\n"), "");
  EXPECT_EQ(error_, "line 2 is no line of a transcript");
  EXPECT_THAT(lines_, IsEmpty());
}

TEST_F(Rerun, TakesAnEmptyTranscript) {
  EXPECT_EQ(rerun(""), "");
  EXPECT_EQ(error_, "");
}

class TranscriptFile : public ::testing::Test {
 protected:
  ProgramRun check(const std::string& text, const std::vector<std::string>& more = {}) {
    path_ = folder_.write("a.vtr", text);
    std::vector<std::string> arguments = {"--check", path_};
    arguments.insert(arguments.end(), more.begin(), more.end());
    return runVesk(arguments);
  }

  TemporaryFolder folder_;
  std::string path_;
};

TEST_F(TranscriptFile, IsAcceptedWhenItIsTrue) {
  const ProgramRun run = check("// a comment\n> about -version\n= \"2.1.0\"\n");
  EXPECT_EQ(run.out + run.err, "");
  EXPECT_EQ(run.status, 0);
}

TEST_F(TranscriptFile, IsRefusedWithWhatDiffers) {
  const ProgramRun run = check("> about -version\n= \"1.0\"\n");
  EXPECT_EQ(run.out, path_ + ": differs\n  > about -version\n- = \"1.0\"\n+ = \"2.1.0\"\n");
  EXPECT_EQ(run.status, 1);
}

TEST_F(TranscriptFile, IsRefusedForEachKindOfLine) {
  for (const char* line :
       {"! an error\n", "? a warning\n", ": a print\n", "= 1\n", "# status 1\n"}) {
    const ProgramRun run = check(std::string("> select -clear\n") + line);
    EXPECT_EQ(run.status, 1) << line;
    EXPECT_THAT(run.out, HasSubstr(std::string("- ") + line));
  }
}

TEST_F(TranscriptFile, IsRefusedForWhatItDoesNotTell) {
  for (const char* line : {"nonsense", "echo said", "about -version", "orv -lpt nowhere"}) {
    EXPECT_EQ(check(std::string("> ") + line + "\n").status, 1) << line;
  }
}

TEST_F(TranscriptFile, IsLeftAloneByACheck) {
  const std::string text = "> about -version\n= \"1.0\"\n";
  check(text);
  EXPECT_EQ(readWholeFile(path_), text);
}

TEST_F(TranscriptFile, IsRewrittenByAnUpdate) {
  const ProgramRun run = check("// why\n\n> about -version\n= \"1.0\"\n", {"--update"});
  EXPECT_THAT(run.out, StartsWith(path_ + ": updated\n"));
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(readWholeFile(path_), "// why\n\n> about -version\n= \"2.1.0\"\n");
}

TEST_F(TranscriptFile, IsNotTouchedByAnUpdateWhenItIsTrue) {
  const std::string text = "> about -version\n= \"2.1.0\"\n";
  folder_.write("a.vtr", text);
  const auto longAgo = std::filesystem::file_time_type{};
  std::filesystem::last_write_time(folder_.path() / "a.vtr", longAgo);
  const ProgramRun run = runVesk({"--check", "--update", (folder_.path() / "a.vtr").string()});
  EXPECT_EQ(run.out, "");
  EXPECT_EQ(std::filesystem::last_write_time(folder_.path() / "a.vtr"), longAgo);
}

TEST_F(TranscriptFile, ThatCannotBeRewrittenIsToldWithTheReason) {
  const ProgramRun run = runShell("'" + kVesk + "' --check --update <(echo '> about -version')");
  EXPECT_THAT(run.err, HasSubstr("vesk: cannot write \"/dev/fd/"));
  EXPECT_THAT(run.err, HasSubstr("\": it is no regular file\n"));
  EXPECT_EQ(run.status, 2);
}

TEST_F(TranscriptFile, OfLinesOfNoKindIsNotRun) {
  const ProgramRun run = check("> about -version\nnonsense\n");
  EXPECT_EQ(run.err, "vesk: " + path_ + ": line 2 is no line of a transcript\n");
  EXPECT_EQ(run.status, 2);
}

TEST_F(TranscriptFile, MustBeThere) {
  const ProgramRun run = runVesk({"--check", "nowhere.vtr"});
  EXPECT_THAT(run.err, HasSubstr("cannot read the transcript \"nowhere.vtr\""));
  EXPECT_EQ(run.status, 2);
}

TEST_F(TranscriptFile, HasASceneOfItsOwn) {
  const std::string text = "> createNode group -name a\n= \"a\"\n> ls\n= [\"a\"]\n";
  const std::string other = folder_.write("b.vtr", text);
  EXPECT_EQ(check(text, {other}).status, 0);
}

TEST_F(TranscriptFile, ThatDiffersCountsAmongSeveral) {
  const std::string bad = folder_.write("b.vtr", "> about -version\n");
  const std::string good = folder_.write("c.vtr", "> about -version\n= \"2.1.0\"\n");
  const ProgramRun run = runVesk({"--check", good, bad, good});
  EXPECT_THAT(run.out, StartsWith(bad + ": differs\n"));
  EXPECT_EQ(run.status, 1);
}

TEST_F(TranscriptFile, ThatTheProgramWroteIsAccepted) {
  const std::string script = folder_.write(
      "a.vesk",
      "// a comment\n\necho \"one\\ntwo\"\nnonsense\necho \"no end\n  about -version  \n"
      "orv -rt -nonsense\r\norv -lpt nowhere\ncreateNode group -name a; ls // both\n"
      "optionVar -stringValue t \"a \\\"b\\\" \\\\ \\t\"; optionVar -query t\n\t// end\n");
  const ProgramRun run = runVesk({"--transcript", "--keep-going", script});
  EXPECT_EQ(run.status, 1);
  const ProgramRun again = check(run.out);
  EXPECT_EQ(again.out + again.err, "");
  EXPECT_EQ(again.status, 0);
}

TEST_F(TranscriptFile, ThatTheProgramWroteOfAnArgumentOfSeveralLinesIsAccepted) {
  const ProgramRun run = runVesk({"--transcript", "-c", "echo one\necho two"});
  EXPECT_EQ(run.out, "> echo one\n: one\n> echo two\n: two\n");
  EXPECT_EQ(check(run.out).status, 0);
}

TEST_F(TranscriptFile, ThatTheProgramWroteDespiteABadLibraryIsAccepted) {
  folder_.write("libraries/bad/runtime.yaml", "nonsense\n");
  const std::string libraries = (folder_.path() / "libraries").string();
  const ProgramRun run = runVesk({"--library", libraries, "--transcript", "-c", "orv -rt"});
  EXPECT_EQ(run.out, "> orv -rt\n= []\n");
  EXPECT_EQ(check(run.out, {"--library", libraries}).status, 0);
}

}  // namespace
}  // namespace vesk
