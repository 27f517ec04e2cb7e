#include "platform/OpenVesk/KGlobal.h"
#include "tests/standalone/host/scene/SceneTools.h"

namespace vesk {
namespace {

using ::testing::ElementsAre;
using vesk::testing::LineHost;
using vesk::testing::TemporaryFolder;

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

TEST(OptionVarCommand, IsSavedAfterEachLine) {
  const TemporaryFolder folder;
  SessionOptions options;
  options.preferencesFolder = folder.path("p");
  LineHost host(options);
  host.run("optionVar -stringValue \"größe\" \"木\"");
  LineHost other(options);
  EXPECT_EQ(other.value("optionVar -query \"größe\""), ResultValue("木"));
}

}  // namespace
}  // namespace vesk
