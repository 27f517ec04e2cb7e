#include "standalone/vesk/recovery/Recovery.h"

#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QMessageBox>
#include <filesystem>
#include <sstream>

#include "standalone/vesk/Gui.h"
#include "standalone/vesk/Startup.h"
#include "standalone/vesk/recovery/KeptJournal.h"
#include "standalone/vesk/recovery/RecoveryOffer.h"
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
                               "orvCompound \"g\" \"/\" -listNodes\nquit\n");
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
  EXPECT_THAT(vesk({"--recover"}, "ls\nquit\n").out, HasSubstr("\nnewer\n"));
  EXPECT_THAT(vesk({"--recover"}, "ls\nquit\n").out, HasSubstr("\nolder\n"));
  EXPECT_THAT(vesk({"--recover"}, "ls\nquit\n").err,
              HasSubstr("Warning: there is nothing to recover\n"));
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

TEST_F(Recovery, APathIsThatOfTheFolderOfThen) {
  vesk({"-c", "createNode group -name a", "-c", "file -saveAs " + quoted(file("s.vesk"))});
  {
    FedProgram program(preferences, {}, folder.path().string());
    program.run("file -open s.vesk");
    program.run("createNode group -name b");
    program.kill();
  }
  const ProgramRun next = vesk({"--recover"}, "ls\nfile -q -path\n");
  EXPECT_THAT(next.out, EndsWith("\na\nb\n" + file("s.vesk") + "\n"));
  EXPECT_THAT(next.err, IsEmpty());
}

TEST_F(Recovery, ASaveThatFailedFailsAgain) {
  cutOff({"createNode group -name a", "file -saveAs " + quoted(file("none/s.vesk"))});
  const ProgramRun next = vesk({"--recover"}, "file -q -path\nfile -q -modified\n");
  EXPECT_THAT(next.out, EndsWith("1 of them failed\n\ntrue\n"));
  EXPECT_THAT(next.err, HasSubstr("it could not be saved then"));
}

TEST_F(Recovery, AnOpenThatFailedFailsAgainThoughTheFileIsThereByNow) {
  cutOff({"createNode group -name a", "file -force -open " + quoted(file("s.vesk"))});
  vesk({"-c", "createNode group -name other", "-c", "file -saveAs " + quoted(file("s.vesk"))});
  EXPECT_THAT(vesk({"--recover"}, "ls\n").out, EndsWith("1 of them failed\na\n"));
}

TEST_F(Recovery, EachOpenFindsTheSceneOfThen) {
  const std::string path = quoted(file("s.vesk"));
  cutOff({"file -force -open " + path, "createNode group -name a", "file -saveAs " + path,
          "createNode group -name b", "file -save", "file -open " + path,
          "createNode group -name c"});
  vesk({"-c", "createNode group -name other", "-c", "file -saveAs " + path});
  EXPECT_THAT(vesk({"--recover"}, "ls\n").out, EndsWith("\na\nb\nc\n"));
}

TEST_F(Recovery, WhatAUserSaysInACommentIsNoMark) {
  cutOff({"// this is without undo", "createNode group -name a", "// opened \"zzz\"",
          "// in \"/nowhere\""});
  const ProgramRun next = vesk({"--recover"}, "undo\nls\n");
  EXPECT_THAT(next.out, Not(HasSubstr("\na\n")));
  EXPECT_THAT(next.err, IsEmpty());
}

TEST_F(Recovery, WhatIsNotSavedIsThereStillWhenNothingFollows) {
  cutOff({"createNode group -name a"});
  EXPECT_THAT(vesk({"--recover"}).out, HasSubstr("ran again"));
  EXPECT_THAT(vesk({"--recover"}, "ls\n" + ("file -saveAs " + quoted(file("s.vesk"))) + "\n").out,
              HasSubstr("\na\n"));
  EXPECT_THAT(journals(), IsEmpty()) << "it is saved";
}

TEST_F(Recovery, AnAbruptEndWhileItRecoversLeavesTheWholeSession) {
  cutOff({"createNode group -name a"});
  const std::string whole = (preferences.path() / "journal" / journals().front()).string();
  const std::string part =
      (preferences.path() / "journal" / "29990101-000000-0000001.vesk").string();
  std::ofstream(part) << "// recovers " << quoted(whole) << "\ncreateNode group -name half\n";
  EXPECT_THAT(vesk({"--recover"}, "ls\nquit\n").out, EndsWith("\na\n"));
  EXPECT_THAT(journals(), IsEmpty());
}

TEST_F(Recovery, OtherFilesInTheFolderAreLeftAlone) {
  std::filesystem::create_directories(preferences.path() / "journal");
  preferences.write("journal/notes.vesk", "createNode group\n");
  EXPECT_THAT(vesk({"--discard"}).out, HasSubstr("0 abandoned sessions"));
  EXPECT_THAT(journals(), SizeIs(1));
}

TEST_F(Recovery, NothingIsRecoveredWhereNoJournalCanBe) {
  folder.write("journal", "a file where the folder should be");
  const ProgramRun run =
      runVesk({"--recover"}, {.variables = {{"VESK_PREFS_DIR", folder.path().string()}}});
  EXPECT_EQ(run.status, 2);
  EXPECT_THAT(run.err, HasSubstr("Warning: no journal can be kept in "));
}

/// Presses a button of the question in a window.
class RecoveryInAWindow : public Recovery {
 protected:
  std::string press(const char* button) {
    vesk::Gui gui;
    std::ostringstream out;
    vesk::Console console(out, out);
    vesk::ProgramOptions options;
    options.preferencesFolder = preferences.path().string();
    vesk::Platform platform(options, console, false);
    const std::unique_ptr<vesk::KeptJournal> kept = vesk::keepJournal(platform.session());
    const auto window = gui.open(platform.session(), options);
    vesk::takeUpJournals(options, platform.session(), kept.get(), window.get());
    auto* box = window->findChild<QMessageBox*>("recovery");
    if (!box) return "no question";
    for (QAbstractButton* one : box->buttons()) {
      if (one->text().remove('&') == button) one->click();
    }
    vesk::Gui::settle();
    platform.runLine("ls", console);
    return out.str();
  }
};

TEST_F(RecoveryInAWindow, RecoverRunsTheLinesAgain) {
  cutOff({"createNode group -name a"});
  EXPECT_THAT(press("Recover"), EndsWith("2 lines of it ran again\na\n"));
}

TEST_F(RecoveryInAWindow, DiscardForgetsThem) {
  cutOff({"createNode group -name a"});
  EXPECT_EQ(press("Discard"), "");
  EXPECT_EQ(press("Later"), "no question");
}

TEST_F(RecoveryInAWindow, LaterAsksAgain) {
  cutOff({"createNode group -name a"});
  EXPECT_EQ(press("Later"), "");
  EXPECT_THAT(press("Recover"), EndsWith("\na\n"));
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
