#include "standalone/vesk/recovery/Recovery.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "tests/standalone/vesk/recovery/RecoveryTesting.h"

namespace {

using ::testing::AllOf;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

class Recovery : public ::testing::Test {
 protected:
  ProgramRun vesk(std::vector<std::string> arguments, const std::string& input = {}) {
    return runVesk(arguments, {.input = input,
                               .variables = {{"VESK_PREFS_DIR", preferences.path().string()},
                                             {"VESK_PUBLISHED_DIR", preferences.path().string()}}});
  }

  std::vector<std::string> journals() const {
    std::vector<std::string> names;
    std::error_code none;
    for (const auto& entry :
         std::filesystem::directory_iterator(preferences.path() / "journal", none)) {
      names.push_back(entry.path().filename());
    }
    return names;
  }

  /// Runs the lines and ends as a power cut does.
  void cutOff(const std::vector<std::string>& lines) {
    FedProgram program(preferences);
    for (const std::string& line : lines) program.run(line);
    program.kill();
  }

  std::string file(const std::string& name) const { return (folder.path() / name).string(); }

  static std::string quoted(const std::string& text) { return '"' + text + '"'; }

  TemporaryFolder preferences;
  TemporaryFolder folder;
};

TEST_F(Recovery, AProgramThatEndsLeavesNothing) {
  FedProgram program(preferences);
  program.run("createNode group");
  EXPECT_THAT(journals(), SizeIs(1));
  program.end();
  EXPECT_THAT(journals(), IsEmpty());
  EXPECT_THAT(vesk({}, "about -version\n").err, IsEmpty());
}

TEST_F(Recovery, AnAbruptEndIsToldOfAtTheNextStart) {
  cutOff({"createNode group", "createNode group"});
  const ProgramRun next = vesk({}, "ls\n");
  EXPECT_THAT(next.err, AllOf(HasSubstr("Warning: the session of 20"),
                              HasSubstr("ended abruptly, after 4 lines; vesk --recover runs them"
                                        " again, --discard forgets them\n")));
  EXPECT_EQ(next.out, "") << "it is not run again unasked";
  EXPECT_EQ(next.status, 0);
  EXPECT_THAT(vesk({}, "ls\n").err, HasSubstr("ended abruptly")) << "as long as nobody decides";
}

TEST_F(Recovery, RunsTheLinesAgain) {
  cutOff({R"(createNode group -name "a")", R"(createNode group -name "b")", "undo",
          R"(createNode orvGraph -name "g")", R"(orvCompound "g" "/" -addNode "core::math::add")"});
  const ProgramRun next = vesk({"--recover"},
                               "ls\norvCompound \"g\" \"/\" -listNodes\nundo\n"
                               "orvCompound \"g\" \"/\" -listNodes\n");
  EXPECT_THAT(next.out, HasSubstr("10 lines of it ran again\na\ng\nadd\n"));
  EXPECT_THAT(next.err, IsEmpty()) << "the undo queue is there too";
  EXPECT_THAT(journals(), IsEmpty());
}

TEST_F(Recovery, LinesThatFailedFailAgainAndAreCounted) {
  cutOff({R"(createNode group -name "a")", "mud", R"(createNode group -name "b")"});
  const ProgramRun next = vesk({"--recover"}, "ls\n");
  EXPECT_THAT(next.out, HasSubstr("6 lines of it ran again, 1 of them failed\na\nb\n"));
}

TEST_F(Recovery, ALineThatWasNotFinishedIsLeftOut) {
  cutOff({R"(createNode group -name "a")"});
  const std::string journal = (preferences.path() / "journal" / journals().front()).string();
  std::ofstream(journal, std::ios::app) << R"(createNode group -name "half)";
  const ProgramRun next = vesk({"--recover"}, "ls\n");
  EXPECT_THAT(next.out, EndsWith("2 lines of it ran again\na\n"));
  EXPECT_THAT(next.err, IsEmpty());
}

TEST_F(Recovery, AFileThatWasSavedInBetweenIsNotEditedTwice) {
  const std::string path = quoted(file("s.vesk"));
  vesk({"-c", "createNode group -name a", "-c", "file -saveAs " + path});
  cutOff(
      {"file -open " + path, "createNode group -name b", "file -save", "createNode group -name c"});
  const std::string saved = readWholeFile(file("s.vesk"));
  const ProgramRun next = vesk({"--recover"}, "ls\nfile -q -modified\nfile -q -path\n");
  EXPECT_THAT(next.out, HasSubstr("\na\nb\nc\ntrue\n" + file("s.vesk")));
  EXPECT_EQ(readWholeFile(file("s.vesk")), saved) << "a replay writes no scene";
}

TEST_F(Recovery, UndoReachesBeyondASave) {
  const std::string path = quoted(file("s.vesk"));
  cutOff({"createNode group -name a", "file -saveAs " + path, "undo"});
  EXPECT_EQ(vesk({"--recover"}, "ls\n").out.find("\na\n"), std::string::npos);
}

TEST_F(Recovery, AnAbruptEndOfTheRecoveredSessionLosesNothing) {
  const std::string path = quoted(file("s.vesk"));
  vesk({"-c", "createNode group -name a", "-c", "file -saveAs " + path});
  cutOff({"file -open " + path, "createNode group -name b", "file -save"});
  {
    FedProgram program(preferences, {"--recover"});
    program.run("createNode group -name c");
    program.kill();
  }
  EXPECT_THAT(journals(), SizeIs(2)) << "one journal, and the scene it opened";
  EXPECT_THAT(vesk({"--recover"}, "ls\n").out, HasSubstr("\na\nb\nc\n"));
}

TEST_F(Recovery, TheNewestIsTakenUpFirst) {
  cutOff({"createNode group -name older"});
  std::this_thread::sleep_for(std::chrono::milliseconds(1100));
  cutOff({"createNode group -name newer"});
  EXPECT_THAT(vesk({"--recover"}, "ls\n").out, HasSubstr("\nnewer\n"));
  EXPECT_THAT(vesk({"--recover"}, "ls\n").out, HasSubstr("\nolder\n"));
  EXPECT_THAT(vesk({"--recover"}, "ls\n").err, HasSubstr("Warning: there is nothing to recover\n"));
}

TEST_F(Recovery, WhatIsDiscardedIsGone) {
  cutOff({"createNode group"});
  EXPECT_EQ(vesk({"--discard"}, "").out, "1 abandoned session discarded\n");
  EXPECT_THAT(journals(), IsEmpty());
  EXPECT_THAT(vesk({}, "ls\n").err, IsEmpty());
}

TEST_F(Recovery, ASessionThatStillRunsIsNobodyElses) {
  FedProgram program(preferences);
  program.run("createNode group -name a");
  EXPECT_THAT(vesk({}, "ls\n").err, IsEmpty());
  EXPECT_THAT(vesk({"--recover"}, "ls\n").err, HasSubstr("there is nothing to recover"));
  program.run("createNode group -name b");
  program.kill();
  EXPECT_THAT(vesk({"--recover"}, "ls\n").out, HasSubstr("\na\nb\n"));
}

TEST_F(Recovery, AScriptNeedsNoJournal) {
  const std::string path = folder.write("s", "createNode group\n");
  EXPECT_THAT(vesk({path, "-c", "ls"}).err, IsEmpty());
  EXPECT_FALSE(std::filesystem::exists(preferences.path() / "journal"));
}

TEST_F(Recovery, AnEndWithoutALineIsNoneToTellOf) {
  {
    FedProgram program(preferences);
    program.write("// nothing yet\n");
    while (journals().empty()) std::this_thread::sleep_for(std::chrono::milliseconds(5));
    program.kill();
  }
  EXPECT_THAT(vesk({}, "ls\n").err, Not(HasSubstr("abruptly")));
}

TEST_F(Recovery, WithoutAPlaceForItTheUserIsTold) {
  folder.write("journal", "a file where the folder should be");
  const ProgramRun run = runVesk(
      {}, {.input = "echo on\n", .variables = {{"VESK_PREFS_DIR", folder.path().string()}}});
  EXPECT_THAT(run.err, HasSubstr("Warning: no journal can be kept in "));
  EXPECT_EQ(run.out, "on\n");
}

TEST_F(Recovery, GoesAloneWithWhatItCannotGoWith) {
  for (const char* other : {"--transcript", "--discard", "--journal=x"}) {
    const ProgramRun run = vesk({"--recover", other});
    EXPECT_EQ(run.status, 2) << other;
    EXPECT_THAT(run.err, HasSubstr("exclude each other")) << other;
  }
}

}  // namespace
