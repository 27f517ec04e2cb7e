// What the program leaves on disk: preferences, journals and scenes.

#include <gmock/gmock.h>

#include <filesystem>

#include "tests/standalone/vesk/ProgramRun.h"

namespace {

using testing::HasSubstr;

namespace fs = std::filesystem;

class Preferences : public testing::Test {
 protected:
  std::string path(const std::string& name) const { return (folder_.path() / name).string(); }

  TemporaryFolder folder_;
};

TEST_F(Preferences, SurviveTheProgram) {
  const std::string prefs = path("new/prefs");
  runVesk({"--prefs", prefs, "-c", "optionVar -intValue frames 24", "-c",
           "optionVar -stringValue user \"Größe\"", "-c", "optionVar -floatValue gain 0.1"});
  const ProgramRun run = runVesk({"--prefs", prefs, "--transcript", "-c", "optionVar -query frames",
                                  "-c", "optionVar -query user", "-c", "optionVar -query gain"});
  EXPECT_EQ(run.out,
            "> optionVar -query frames\n= 24\n> optionVar -query user\n= \"Größe\"\n"
            "> optionVar -query gain\n= 0.1\n");
}

TEST_F(Preferences, LieInTheFolderOfTheVariable) {
  const ProgramRun run = runVesk({"-c", "optionVar -intValue frames 24"},
                                 {.variables = {{"VESK_PREFS_DIR", path("there")}}});
  EXPECT_EQ(run.status, 0);
  EXPECT_TRUE(fs::exists(path("there/optionVars.json")));
}

TEST_F(Preferences, LieInTheFolderOfTheOptionRatherThanOfTheVariable) {
  runVesk({"--prefs", path("option"), "-c", "optionVar -intValue frames 24"},
          {.variables = {{"VESK_PREFS_DIR", path("variable")}}});
  EXPECT_TRUE(fs::exists(path("option/optionVars.json")));
  EXPECT_FALSE(fs::exists(path("variable")));
}

TEST_F(Preferences, LieInTheUsersConfigurationFolderOtherwise) {
  runVesk({"-c", "optionVar -intValue frames 24"},
          {.variables = {{"VESK_PREFS_DIR", ""}, {"XDG_CONFIG_HOME", path("config")}}});
  EXPECT_TRUE(fs::exists(path("config/vesk/optionVars.json")));
}

TEST_F(Preferences, AreNotTouchedByTranscripts) {
  const std::map<std::string, std::string> variables{{"VESK_PREFS_DIR", path("user")}};
  runVesk({"-c", "optionVar -intValue frames 24"}, {.variables = variables});
  const std::string before = readWholeFile(path("user/optionVars.json"));
  const ProgramRun run = runVesk(
      {"--transcript", "-c", "optionVar -exists frames", "-c", "optionVar -intValue frames 30"},
      {.variables = variables});
  EXPECT_THAT(run.out, HasSubstr("= 0\n"));
  EXPECT_EQ(readWholeFile(path("user/optionVars.json")), before);
}

TEST_F(Preferences, ThatAreDamagedAreKeptAside) {
  folder_.write("prefs/optionVars.json", "{ damaged");
  const ProgramRun run = runVesk({"--prefs", path("prefs"), "-c", "optionVar -intValue new 1"});
  EXPECT_THAT(run.err, HasSubstr("Warning: the option variables in"));
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(readWholeFile(path("prefs/optionVars.json.damaged")), "{ damaged");
  EXPECT_EQ(runVesk({"--prefs", path("prefs"), "-c", "optionVar -list"}).out, "new\n");
}

TEST_F(Preferences, ThatCannotBeKeptFailTheLine) {
  const std::string file = folder_.write("file", "text");
  const ProgramRun run = runVesk({"--prefs", file, "-c", "optionVar -intValue new 1"});
  EXPECT_THAT(run.err, HasSubstr("Error: option variables cannot be saved in \"" + file +
                                 "/optionVars.json\": the folder cannot be made\n"));
  EXPECT_EQ(run.status, 1);
}

TEST_F(Preferences, AreSharedByProgramsThatRunAtOnce) {
  const std::string line =
      "'" + kVesk + "' --prefs '" + path("prefs") + "' -c 'optionVar -intValue ";
  const ProgramRun run =
      runShell("for i in 1 2 3 4; do " + line + "'$i' 1' & done; wait; " + line + "last 1'");
  EXPECT_EQ(run.err, "");
  EXPECT_EQ(runVesk({"--prefs", path("prefs"), "-c", "optionVar -list"}).out, "1\n2\n3\n4\nlast\n");
}

class JournalOfTheProgram : public Preferences {
 protected:
  std::string journal() const { return readWholeFile(path("journal")); }
};

TEST_F(JournalOfTheProgram, HoldsTheLinesThatRan) {
  runVesk({"--journal", path("journal"), "-c", "createNode group -name a", "-c", "ls"});
  EXPECT_EQ(journal(), "createNode group -name a\nls\n");
}

TEST_F(JournalOfTheProgram, MarksALineThatFailed) {
  runVesk({"--journal", path("journal"), "--keep-going", "-c", "nonsense", "-c", "echo \"bad", "-c",
           "ls"});
  EXPECT_EQ(journal(),
            "// Error: unknown command \"nonsense\"\n// failed with status 3\nnonsense\n"
            "// Error: syntax error: line 1, column 6: the quoted text has no end\n"
            "// failed with status 3\n// not readable: echo \"bad\nls\n");
}

TEST_F(JournalOfTheProgram, GivesTheSameSceneWhenItIsRunAgain) {
  const std::vector<std::string> edits = {"createNode group -name a",
                                          "createNode locator -name b; rename a c",
                                          "createNode group -name a; delete b",
                                          "undo",
                                          "undoInfo -openChunk",
                                          "createNode group -name \"x y\"",
                                          "rename c \"größer\"",
                                          "undoInfo -closeChunk",
                                          "undo",
                                          "redo"};
  std::vector<std::string> arguments = {"--journal", path("journal")};
  for (const std::string& edit : edits) arguments.insert(arguments.end(), {"-c", edit});
  arguments.insert(arguments.end(), {"-c", "ls"});
  const ProgramRun first = runVesk(arguments);
  ASSERT_EQ(first.status, 0) << first.err;

  const ProgramRun again = runVesk({path("journal")});
  EXPECT_EQ(again.out, first.out);
  EXPECT_EQ(again.status, 0);
}

TEST_F(JournalOfTheProgram, IsBegunAnew) {
  for (const char* line : {"echo one", "echo two"}) {
    runVesk({"--journal", path("journal"), "-c", line});
  }
  EXPECT_EQ(journal(), "echo two\n");
}

TEST_F(JournalOfTheProgram, MustBeWritable) {
  const ProgramRun run = runVesk({"--journal", path("no/such/folder/journal"), "-c", "echo never"});
  EXPECT_EQ(run.err,
            "vesk: the journal \"" + path("no/such/folder/journal") + "\" cannot be written\n");
  EXPECT_EQ(run.out, "");
  EXPECT_EQ(run.status, 2);
}

/// The program must not start, and leave the file as it is.
void expectNoJournalOver(const std::string& script, const ProgramRun& run,
                         const std::string& what) {
  EXPECT_EQ(run.err, "vesk: the journal would overwrite " + what + "\n");
  EXPECT_EQ(run.out, "");
  EXPECT_EQ(run.status, 2);
  EXPECT_EQ(readWholeFile(script), "// a script\n");
}

TEST_F(JournalOfTheProgram, NeverOverwritesAScriptThatIsRun) {
  const std::string script = folder_.write("a.vesk", "// a script\n");
  const std::string what = "the script \"" + script + "\"";
  fs::create_symlink(script, path("symbolic"));
  fs::create_hard_link(script, path("hard"));
  for (const std::string& journal : {script, path("symbolic"), path("hard"), path("./a.vesk")}) {
    expectNoJournalOver(script, runVesk({"-c", "echo never", "--journal", journal, script}), what);
  }
  expectNoJournalOver(script, runVesk({"--check", "--journal", script, script}), what);
}

TEST_F(JournalOfTheProgram, NeverOverwritesTheFileThatIsStandardInput) {
  const std::string script = folder_.write("a.vesk", "// a script\n");
  const std::string quoted = " '" + script + "'";
  expectNoJournalOver(script, runShell("'" + kVesk + "' --journal" + quoted + " <" + quoted),
                      "standard input");
}

TEST_F(JournalOfTheProgram, MayGoToADeviceThatIsAlsoRead) {
  const ProgramRun run = runShell("'" + kVesk + "' --journal /dev/null < /dev/null");
  EXPECT_EQ(run.err, "");
  EXPECT_EQ(run.status, 0);
}

class SceneOfTheProgram : public Preferences {};

TEST_F(SceneOfTheProgram, IsSavedAndOpenedAgain) {
  const std::string save = "file -saveAs \"" + path("a.scene") + "\"";
  runVesk({"-c", "createNode group -name a; createNode locator -name b", "-c", save});
  const ProgramRun run =
      runVesk({"-c", "file -open \"" + path("a.scene") + "\"", "-c", "ls", "-c", "file -q -path"});
  EXPECT_EQ(run.out, "a\nb\n" + path("a.scene") + "\n");
}

TEST_F(SceneOfTheProgram, IsToldByFileAndLineWhenItCannotBeRead) {
  const std::string bad = folder_.write("bad.scene", "vesk-scene 1\nnonsense\n");
  const ProgramRun run = runVesk({"-c", "file -open \"" + bad + "\""});
  EXPECT_THAT(run.err, HasSubstr("cannot open \"" + bad + "\": line 2"));
  EXPECT_EQ(run.status, 1);
}

TEST_F(SceneOfTheProgram, IsNotSavedWhereThereIsNoFolder) {
  const ProgramRun run = runVesk({"-c", "file -saveAs \"" + path("no/folder/a.scene") + "\""});
  EXPECT_THAT(run.err, HasSubstr("cannot save \"" + path("no/folder/a.scene") + "\": "));
  EXPECT_EQ(run.status, 1);
}

}  // namespace
