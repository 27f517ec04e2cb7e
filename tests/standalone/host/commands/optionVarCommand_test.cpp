#include <chrono>
#include <filesystem>
#include <thread>

#include "platform/OpenVesk/KGlobal.h"
#include "tests/standalone/host/scene/SceneTools.h"

namespace vesk {
namespace {

using ::testing::ElementsAre;
using vesk::testing::LineHost;
using vesk::testing::TemporaryFolder;
using vesk::testing::writeFile;

TEST(OptionVarCommand, GivesBackEachTypeAsItWasSet) {
  LineHost host;
  host.run("optionVar -intValue \"i\" -3");
  host.run("optionVar -floatValue f 2.0");
  host.run("optionVar -stringValue s \"-text \\\"1\\\"\"");
  EXPECT_EQ(host.value("optionVar -query \"i\""), ResultValue(-3));
  EXPECT_EQ(host.value("optionVar -query f"), ResultValue(2.0));
  EXPECT_EQ(host.value("optionVar -q s"), ResultValue("-text \"1\""));
}

TEST(OptionVarCommand, TellsAnExistingNameAsAWholeNumber) {
  LineHost host;
  EXPECT_EQ(host.value("optionVar -exists \"v\""), ResultValue(0));
  host.run("optionVar -stringValue v \"\"");
  EXPECT_EQ(host.value("optionVar -exists \"v\""), ResultValue(1));
  int exists = 0;
  EXPECT_TRUE(KGlobal::executeCommand("optionVar -exists \"v\"", exists, false, false));
  EXPECT_EQ(exists, 1);
}

TEST(OptionVarCommand, ListsNamesSorted) {
  LineHost host;
  EXPECT_EQ(host.run("optionVar -list"), "[]");
  host.run("optionVar -intValue b 1; optionVar -intValue a 1");
  EXPECT_EQ(host.run("optionVar -list"), "[\"a\",\"b\"]");
}

TEST(OptionVarCommand, RemovesAName) {
  LineHost host;
  host.run("optionVar -intValue v 1; optionVar -remove v");
  EXPECT_EQ(host.run("optionVar -exists v"), "0");
}

TEST(OptionVarCommand, RefusesAnUnknownNameByName) {
  LineHost host;
  for (const char* line : {"optionVar -query \"no such\"", "optionVar -remove \"no such\""}) {
    EXPECT_THAT(host.refusal(line),
                ElementsAre("! optionVar: no option variable is named \"no such\""));
  }
}

TEST(OptionVarCommand, NeedsJustOneOfItsFlags) {
  LineHost host;
  for (const char* line : {"optionVar", "optionVar -list -exists v"}) {
    EXPECT_THAT(host.refusal(line), ElementsAre("! optionVar: one of its flags is needed"));
  }
}

TEST(OptionVarCommand, RefusesWhatDoesNotFitAndChangesNothing) {
  LineHost host;
  host.run("optionVar -intValue v 1");
  for (const char* line : {"optionVar -intValue v 1.5", "optionVar -intValue v 2147483648",
                           "optionVar -floatValue v x", "optionVar -floatValue v nan",
                           "optionVar -stringValue v", "optionVar -intValue \"\" 1"}) {
    EXPECT_EQ(host.refusal(line).size(), 1u) << line;
  }
  EXPECT_EQ(host.run("optionVar -query v"), "1");
  EXPECT_EQ(host.run("optionVar -list"), "[\"v\"]");
}

TEST(OptionVarCommand, IsNoUndoStep) {
  LineHost host;
  host.run("optionVar -intValue v 1");
  EXPECT_EQ(host.session().undoQueue().undoName(), "");
}

class KeptOptionVariables : public ::testing::Test {
 protected:
  SessionOptions options(bool batch = true) const {
    SessionOptions options;
    options.preferencesFolder = folder_.path("p");
    options.batch = batch;
    return options;
  }

  /// What another session finds.
  ResultValue stored(const std::string& name) const {
    return LineHost(options()).value("optionVar -query " + name);
  }

  const TemporaryFolder folder_;
  const std::string path_ = vesk::quoted(folder_.path("p/optionVars.json"));
};

TEST_F(KeptOptionVariables, AreSavedByTheFirstLineThatSetsOne) {
  LineHost host(options());
  host.run("optionVar -stringValue \"größe\" \"木\"");
  EXPECT_EQ(stored("\"größe\""), ResultValue("木"));
}

TEST_F(KeptOptionVariables, AreSavedAfterEachLineOfAUserAtThePrompt) {
  LineHost host(options(false));
  for (const int value : {1, 2, 3}) {
    host.run("optionVar -intValue v " + std::to_string(value));
    EXPECT_EQ(stored("v"), ResultValue(value));
  }
}

TEST_F(KeptOptionVariables, AreSavedAtQuit) {
  LineHost host(options());
  host.run("optionVar -intValue v 1; optionVar -intValue v 2; quit");
  EXPECT_EQ(stored("v"), ResultValue(2));
}

TEST_F(KeptOptionVariables, AreSavedAtTheEndOfTheSession) {
  LineHost(options()).run("optionVar -intValue v 1; optionVar -intValue v 2");
  EXPECT_EQ(stored("v"), ResultValue(2));
}

TEST_F(KeptOptionVariables, AreSavedByALaterLineOfAnyCommand) {
  LineHost host(options());
  host.run("optionVar -intValue v 1; optionVar -intValue v 2");
  std::this_thread::sleep_for(std::chrono::milliseconds(1100));
  host.run("ls");
  EXPECT_EQ(stored("v"), ResultValue(2));
}

TEST_F(KeptOptionVariables, ThatCannotBeReadFailEachLine) {
  std::filesystem::create_directories(folder_.path("p/optionVars.json"));
  LineHost host(options());
  for (const char* line :
       {"optionVar -query v", "optionVar -exists v", "optionVar -list", "optionVar -intValue v 1",
        "optionVar -floatValue v 1", "optionVar -stringValue v 1", "optionVar -remove v"}) {
    EXPECT_THAT(host.refusal(line), ElementsAre("! the option variables in " + path_ +
                                                " cannot be read: it is a folder"))
        << line;
  }
}

TEST_F(KeptOptionVariables, ThatCannotBeSavedFailTheLineThatSetsOne) {
  writeFile(folder_.path("p"), "a file where the folder should be");
  LineHost host(options());
  for (const char* line :
       {"optionVar -intValue v 1", "optionVar -floatValue v 1", "optionVar -stringValue v 1"}) {
    EXPECT_THAT(host.refusal(line), ElementsAre("! option variables cannot be saved in " + path_ +
                                                ": the folder cannot be made"));
  }
  EXPECT_EQ(host.run("optionVar -list"), "[]");
}

TEST_F(KeptOptionVariables, ThatCannotBeSavedFailTheLineThatRemovesOne) {
  LineHost(options()).run("optionVar -intValue v 1");
  LineHost host(options());
  host.run("optionVar -list");
  std::filesystem::remove_all(folder_.path("p"));
  writeFile(folder_.path("p"), "a file where the folder should be");
  EXPECT_EQ(host.refusal("optionVar -remove v").size(), 1u);
  EXPECT_EQ(host.run("optionVar -query v"), "1");
}

}  // namespace
}  // namespace vesk
