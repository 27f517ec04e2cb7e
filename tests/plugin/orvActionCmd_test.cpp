#include "plugin/orvActionCmd.h"

#include "platform/OpenVesk/KGlobal.h"
#include "plugin/pluginMessages.h"
#include "standalone/host/engine/HostAccess.h"
#include "tests/plugin/ModuleTesting.h"
#include "tests/standalone/graph/TemporaryFolder.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class OrvCommand : public ModuleTest {
 protected:
  OrvCommand() { EXPECT_TRUE(load()); }
};

TEST_F(OrvCommand, GivesACallerAStringArray) {
  KCommandResult result;
  ASSERT_TRUE(KGlobal::executeCommand("orv -rt", result, false, false));
  EXPECT_EQ(result.resultType(), 8);
  KStringArray names;
  ASSERT_TRUE(result.getResult(names));
  EXPECT_THAT(HostAccess::texts(names), ElementsAre("empty", "single"));
}

TEST_F(OrvCommand, GivesACallerAnEmptyStringArrayForAnEmptyList) {
  KCommandResult result;
  ASSERT_TRUE(KGlobal::executeCommand("orv -lib empty", result, false, false));
  EXPECT_EQ(result.resultType(), 8);
  KStringArray names;
  names.append("before");
  ASSERT_TRUE(result.getResult(names));
  EXPECT_EQ(names.length(), 0u);
}

TEST_F(OrvCommand, GivesACallerNothingWhereNoActionSetsAResult) {
  for (const char* line : {"orv", "orv -unn", "orv -fp single", "orv -fp none", "orv -lib none"}) {
    KCommandResult result;
    EXPECT_TRUE(KGlobal::executeCommand(line, result, false, false)) << line;
    EXPECT_EQ(result.resultType(), 0) << line;
  }
}

TEST_F(OrvCommand, GivesACallerAFailureAndNoMessageForUnknownNames) {
  for (const char* line :
       {"orv -lpt none", "orv -nd none base", "orv -nd single none", "orv -nd empty base"}) {
    KCommandResult result;
    EXPECT_EQ(KGlobal::executeCommand(line, result, false, false).statusCode(), StatusFailure)
        << line;
    EXPECT_EQ(result.resultType(), 0) << line;
  }
  EXPECT_THAT(takeMessages(), IsEmpty());
}

TEST_F(OrvCommand, IsNotUndoable) {
  EXPECT_TRUE(KGlobal::executeCommand("orv -rt -fp single", true, true));
  EXPECT_TRUE(session_->undoQueue().doneNames().empty());
}

TEST(OrvCommandObject, AsksForNoUndo) {
  const std::unique_ptr<KPxCommand> command(orvActionCmd::creator());
  ASSERT_TRUE(command);
  EXPECT_FALSE(command->isUndoable());
  EXPECT_FALSE(command->undoIt());
  EXPECT_FALSE(command->redoIt());
}

TEST(OrvCommandSyntax, DeclaresItsFlagsWithoutAHyphenAndInOrder) {
  const KSyntax syntax = orvActionCmd::createSyntax();
  std::vector<std::string> flags;
  for (const vesk::FlagSpec& flag : HostAccess::data(syntax).flags()) {
    flags.push_back(flag.shortName + " " + flag.longName + " " +
                    std::to_string(flag.arguments.size()) + (flag.multiUse ? " multi" : ""));
  }
  EXPECT_THAT(flags, ElementsAre("rt runTimes 0", "lib libraries 1", "fp flushProxies 1",
                                 "lpt listPortTypes 1", "nd nodes 2", "unn useNiceName 0"));
}

TEST(OrvCommandSyntax, HasAQueryModeNoEditModeAndNoPositionalArguments) {
  const KSyntax syntax = orvActionCmd::createSyntax();
  EXPECT_TRUE(HostAccess::data(syntax).hasQuery());
  EXPECT_FALSE(HostAccess::data(syntax).hasEdit());
  EXPECT_TRUE(HostAccess::data(syntax).arguments().empty());
}

TEST(OrvCommandFlags, HaveTheirBits) {
  EXPECT_EQ(orvActionCmd::kActionRunTimes, 1);
  EXPECT_EQ(orvActionCmd::kActionUseNiceName, 2);
  EXPECT_EQ(orvActionCmd::kActionLibraries, 4);
  EXPECT_EQ(orvActionCmd::kActionFlushProxies, 8);
  EXPECT_EQ(orvActionCmd::kActionListPortTypes, 16);
  EXPECT_EQ(orvActionCmd::kActionNodes, 32);
}

/// The command under the name "ask", with a syntax that a test makes.
class OrvCommandWithSyntax : public ModuleTest {
 protected:
  void registerAsk(const KSyntax& syntax) {
    registerMessages();
    session_->registry().add({"ask", orvActionCmd::creator, syntax, nullptr, {}});
  }
};

TEST_F(OrvCommandWithSyntax, RefusesTheEditMode) {
  KSyntax syntax = orvActionCmd::createSyntax();
  syntax.enableEdit(true);
  registerAsk(syntax);
  EXPECT_EQ(run("ask -e -rt").statusCode(), StatusFailure);
  EXPECT_THAT(takeMessages(), ElementsAre("! This command does not support edits."));
  EXPECT_FALSE(vesk::hasResult(result_));
}

TEST_F(OrvCommandWithSyntax, GoesOnReadingFlagsInTheEditMode) {
  KSyntax syntax;
  syntax.enableEdit(true);
  for (const char* flag : {"rt", "unn", "lib", "fp", "lpt", "nd"}) {
    syntax.addFlag(flag, (std::string(flag) + "Long").c_str());
  }
  registerAsk(syntax);
  EXPECT_EQ(run("ask -e -nd -lib").statusCode(), StatusFailure);
  EXPECT_THAT(takeMessages(),
              ElementsAre("! This command does not support edits.", "! lib expects type STRING",
                          "! nd expects type STRING STRING"));
}

TEST_F(OrvCommandWithSyntax, TellsEveryFlagWhoseArgumentCannotBeRead) {
  KSyntax syntax;
  for (const char* flag : {"rt", "unn", "lib", "fp", "lpt"}) {
    syntax.addFlag(flag, (std::string(flag) + "Long").c_str());
  }
  syntax.addFlag("nd", "ndLong", KSyntax::ArgString);
  registerAsk(syntax);
  EXPECT_EQ(run("ask -nd single -lpt -fp -lib").statusCode(), StatusFailure);
  EXPECT_THAT(takeMessages(),
              ElementsAre("! lib expects type STRING", "! fp expects type STRING",
                          "! lpt expects type STRING", "! nd expects type STRING STRING"));
}

TEST_F(OrvCommandWithSyntax, AnEarlierFlagThatIsReadDoesNotCoverALaterThatIsNot) {
  KSyntax syntax;
  syntax.addFlag("rt", "runTimes");
  syntax.addFlag("unn", "useNiceName");
  syntax.addFlag("lib", "libraries");
  syntax.addFlag("fp", "flushProxies", KSyntax::ArgString);
  syntax.addFlag("lpt", "listPortTypes", KSyntax::ArgString);
  syntax.addFlag("nd", "nodes", KSyntax::ArgString, KSyntax::ArgString);
  registerAsk(syntax);
  EXPECT_EQ(run("ask -lib -fp single").statusCode(), StatusFailure);
  EXPECT_THAT(takeMessages(), ElementsAre("! lib expects type STRING"));
}

/// A runtime in a folder that a test writes.
class OrvCommandOnFiles : public ModuleTest {
 protected:
  OrvCommandOnFiles() {
    EXPECT_TRUE(load());
    folder_.write("own/runtime.yaml",
                  "name: own\nniceName: Own\ndescription: A test's.\nrootLibrary: lib\n"
                  "portTypes: []\n");
    writeLibrary("first", "First");
    EXPECT_TRUE(runtimes_.load(folder_.path()).empty());
  }

  void writeLibrary(const std::string& node, const std::string& niceName) {
    folder_.write("own/lib.yaml",
                  "library: lib\nniceName: Lib\ndescription: One.\nnodes:\n  - {name: " + node +
                      ", niceName: " + niceName + ", description: It.}\n");
  }

  TemporaryFolder folder_;
};

TEST_F(OrvCommandOnFiles, FlushProxiesLetsTheRuntimeReadItsFilesAgain) {
  writeLibrary("second", "Second");
  EXPECT_EQ(resultOf("orv -nd own lib"), R"(["lib::first"])");
  EXPECT_EQ(resultOf("orv -fp own"), "");
  EXPECT_EQ(resultOf("orv -nd own lib"), R"(["lib::second"])");
}

TEST_F(OrvCommandOnFiles, FlushProxiesLeavesTheOtherRuntimes) {
  writeLibrary("second", "Second");
  EXPECT_EQ(resultOf("orv -fp single"), "");
  EXPECT_EQ(resultOf("orv -nd own lib"), R"(["lib::first"])");
}

TEST_F(OrvCommandOnFiles, ALineFlushesBeforeItListsNodesAndAfterItListsLibraries) {
  folder_.write("own/more.yaml", "library: lib::more\nniceName: More\ndescription: Two.\n");
  EXPECT_EQ(resultOf("orv -lib own -fp own"), R"(["lib"])");
  EXPECT_EQ(resultOf("orv -lib own"), R"(["lib","lib::more"])");

  writeLibrary("second", "Second");
  EXPECT_EQ(resultOf("orv -fp own -nd own lib"), R"(["lib::second"])");
}

TEST_F(OrvCommandOnFiles, NamesBeyondAsciiReachTheLibraryWhole) {
  writeLibrary("second", "Größe 雪");
  EXPECT_EQ(resultOf("orv -fp own -nd own lib -unn"), R"(["Größe 雪"])");
}

}  // namespace
