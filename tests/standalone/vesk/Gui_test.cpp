#include "standalone/vesk/Gui.h"

#include <gmock/gmock.h>

#include <QImage>
#include <QTimer>

#include "standalone/workspace/workspaceCommands.h"
#include "tests/standalone/vesk/ProgramRun.h"

namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;

const std::map<std::string, std::string> kUnseen = {{"QT_QPA_PLATFORM", "offscreen"}};
const std::map<std::string, std::string> kNoDisplay = {
    {"QT_QPA_PLATFORM", ""}, {"DISPLAY", ""}, {"WAYLAND_DISPLAY", ""}};

ProgramRun runWindow(std::vector<std::string> arguments, const std::string& preferences = {}) {
  arguments.insert(arguments.begin(), {"--gui", "--no-plugin"});
  if (!preferences.empty()) arguments.insert(arguments.end(), {"--prefs", preferences});
  return runVesk(arguments, {.variables = kUnseen});
}

TEST(Gui, WithoutADisplayTheProgramSaysSoAndStaysAShell) {
  const ProgramRun run =
      runVesk({"--gui", "-c", "about -batch", "-c", "echo on"}, {.variables = kNoDisplay});
  EXPECT_EQ(run.out, "true\non\n");
  EXPECT_EQ(run.err, "vesk: there is no display, so there is no window\n");
  EXPECT_EQ(run.status, 0);
}

const std::string kUnreachable = "vesk: the display cannot be reached, so there is no window\n";

TEST(Gui, WithADisplayThatCannotBeReachedTheProgramSaysSoAndStaysAShell) {
  const std::map<std::string, std::string> displays[] = {
      {{"QT_QPA_PLATFORM", "xcb"}, {"DISPLAY", ":4242"}},
      {{"QT_QPA_PLATFORM", ""}, {"DISPLAY", ":4242"}, {"WAYLAND_DISPLAY", "none"}},
      {{"QT_QPA_PLATFORM", "nonsense"}},
  };
  for (const auto& variables : displays) {
    for (const char* batch : {"--keep-going", "--batch"}) {
      const ProgramRun run = runVesk(
          {"--gui", batch, "-c", "about -batch", "-c", "workspaceControl -ls", "-c", "echo on"},
          {.variables = variables});
      EXPECT_EQ(run.out.substr(0, 5), "true\n");
      EXPECT_EQ(run.err.substr(0, kUnreachable.size()), kUnreachable);
      EXPECT_THAT(run.err, HasSubstr("there is no window; start vesk with --gui\n"));
      EXPECT_EQ(run.status, 1) << "a line failed";
    }
    const ProgramRun run = runVesk({"--gui"}, {.input = "echo on\n", .variables = variables});
    EXPECT_EQ(run.out, "on\n");
    EXPECT_EQ(run.err, kUnreachable);
    EXPECT_EQ(run.status, 0);
  }
}

TEST(Gui, LinesRunWithTheWindowThereAndInBatchTheProgramThenEnds) {
  const ProgramRun run =
      runWindow({"--batch", "-c", "workspaceControl -q -exists outliner", "-c", "about -batch"});
  EXPECT_EQ(run.out, "true\ntrue\n");
  EXPECT_THAT(run.err, IsEmpty());
  EXPECT_EQ(run.status, 0);
}

TEST(Gui, InBatchWithoutLinesThoseOfStandardInputRun) {
  const ProgramRun run = runVesk({"--gui", "--no-plugin", "--batch"},
                                 {.input = "workspaceControl -ls\n", .variables = kUnseen});
  EXPECT_EQ(run.out, "outliner\nundoHistory\ncommandPanel\n");
}

TEST(Gui, SomebodySitsInFrontOfAWindowThatStays) {
  const ProgramRun run = runWindow({"-c", "about -batch", "-c", "quit -exitCode 7"});
  EXPECT_EQ(run.out, "false\n");
  EXPECT_EQ(run.status, 7);
}

TEST(Gui, AQuitFromTheEventLoopLeavesItAndKeepsTheWorkspace) {
  const TemporaryFolder folder;
  vesk::SessionOptions options;
  options.batch = false;
  options.preferencesFolder = folder.path().string();
  vesk::Gui gui;
  vesk::HostSession session(options);
  vesk::registerWorkspaceCommands(session.registry());
  const auto window = gui.open(session, {});
  QTimer::singleShot(0, [] { vesk::runLine("workspaceControl -uiScript \"quit\" p"); });
  gui.run(session, *window);
  EXPECT_TRUE(session.quitRequested);
  EXPECT_THAT(readWholeFile(options.preferencesFolder + "/workspace.json"),
              HasSubstr("\"uiScript\": \"quit\""));
}

TEST(Gui, ASavedWorkspaceComesBackAheadOfTheLines) {
  const TemporaryFolder folder;
  const std::string preferences = folder.path().string();
  runWindow(
      {"--batch", "-c", "workspaceControl -uiScript \"echo made\" p", "-c", "workspace -save"},
      preferences);
  const ProgramRun run = runWindow({"-c", "echo line", "-c", "quit"}, preferences);
  EXPECT_EQ(run.out, "made\nline\n");
}

TEST(Gui, InBatchTheSavedWorkspaceDoesNotCountAndNoneIsSaved) {
  const TemporaryFolder folder;
  const std::string file = folder.write("workspace.json", "damaged");
  const ProgramRun run =
      runWindow({"--batch", "-c", "workspaceControl -ls"}, folder.path().string());
  EXPECT_THAT(run.err, IsEmpty());
  EXPECT_EQ(readWholeFile(file), "damaged");
}

TEST(Gui, ADamagedWorkspaceGivesAWarning) {
  const TemporaryFolder folder;
  folder.write("workspace.json", "damaged");
  const ProgramRun run = runWindow({"-c", "quit"}, folder.path().string());
  EXPECT_THAT(run.err, HasSubstr("Warning: the workspace "));
  EXPECT_EQ(run.status, 0);
}

TEST(Gui, TheScaleOfTheRunScalesTheWindow) {
  const TemporaryFolder folder;
  const std::string path = (folder.path() / "p.png").string();
  const ProgramRun run =
      runWindow({"--batch", "--scale", "200", "-c", "snapshot -file \"" + path + "\""});
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(QImage(QString::fromStdString(path)).size(), QSize(2560, 1600));
}

TEST(Gui, ALineThatFailsFailsTheRun) {
  const ProgramRun run = runWindow({"--batch", "-c", "snapshot -panel none -file x.png"});
  EXPECT_THAT(run.err, HasSubstr("Error: snapshot: no panel is named \"none\"\n"));
  EXPECT_EQ(run.status, 1);
}

TEST(Gui, TheLocaleOfTheProgramStays) {
  const ProgramRun run = runWindow({"--batch", "-c", "echo \"\u7a97\u53e3\"", "-c",
                                    "optionVar -floatValue x 1.5; optionVar -query x"});
  EXPECT_EQ(run.out, "\u7a97\u53e3\n1.5\n");
}

TEST(Gui, TheModuleIsUnloadedBehindTheWindow) {
  const ProgramRun run =
      runVesk({"--gui", "--batch", "-c", "createNode orvGraph -name a", "-c", "undo"},
              {.variables = kUnseen});
  EXPECT_EQ(run.status, 0) << run.err;
}

}  // namespace
