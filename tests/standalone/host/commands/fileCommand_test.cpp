#include "tests/standalone/host/scene/SceneTools.h"

namespace vesk {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using vesk::testing::LineHost;
using vesk::testing::readFile;
using vesk::testing::stateOf;
using vesk::testing::TemporaryFolder;
using vesk::testing::writeFile;

class FileCommandLines : public ::testing::Test {
 protected:
  std::string line(const std::string& flag, const std::string& name) {
    return "file " + flag + " " + vesk::quoted(folder_.path(name));
  }

  TemporaryFolder folder_;
  LineHost host_;
};

TEST_F(FileCommandLines, SaveAsAndOpenGiveTheSameScene) {
  host_.run("createNode note -name n; createNode group; select -clear");
  const std::string before = stateOf(host_.scene());
  host_.run(line("-saveAs", "Größe.vesk"));
  host_.run("file -new");
  EXPECT_EQ(host_.scene().size(), 0u);
  host_.run(line("-open", "Größe.vesk"));
  EXPECT_EQ(stateOf(host_.scene()), before);
}

TEST_F(FileCommandLines, SaveWritesTheFileAgain) {
  host_.run("createNode group");
  host_.run(line("-saveAs", "s"));
  host_.run("createNode group; file -save");
  EXPECT_EQ(readFile(folder_.path("s")), writeSceneText(host_.scene()));
}

TEST_F(FileCommandLines, SaveNeedsAFile) {
  EXPECT_THAT(host_.refusal("file -save"),
              ElementsAre("! file: the scene has no file yet; use -saveAs"));
}

TEST_F(FileCommandLines, AnEmptyPathIsRefused) {
  for (const char* text : {"file -open \"\"", "file -saveAs \"\""}) {
    EXPECT_THAT(host_.refusal(text), ElementsAre("! file: the path is empty"));
  }
}

TEST_F(FileCommandLines, QueryTellsPathAndState) {
  EXPECT_EQ(host_.value("file -query -path"), ResultValue(""));
  EXPECT_EQ(host_.value("file -query -modified"), ResultValue(false));
  host_.run("createNode group");
  EXPECT_EQ(host_.value("file -q -m"), ResultValue(true));
  host_.run(line("-saveAs", "s"));
  EXPECT_EQ(host_.value("file -query -path"), ResultValue(folder_.path("s")));
  EXPECT_EQ(host_.value("file -query -modified"), ResultValue(false));
}

TEST_F(FileCommandLines, UnsavedChangesAreNotDropped) {
  host_.run("createNode group");
  const std::string before = stateOf(host_.scene());
  for (const std::string& text : {std::string("file -new"), line("-open", "s")}) {
    EXPECT_THAT(host_.refusal(text),
                ElementsAre("! file: the scene that has no file yet has unsaved changes; save it, "
                            "or drop them with -force"));
    EXPECT_EQ(stateOf(host_.scene()), before);
  }
  host_.run(line("-saveAs", "s"));
  host_.run("createNode group");
  EXPECT_THAT(host_.refusal("file -new"), ElementsAre(HasSubstr(vesk::quoted(folder_.path("s")))));
}

TEST_F(FileCommandLines, ForceDropsUnsavedChanges) {
  host_.run(line("-saveAs", "s"));
  host_.run("createNode group");
  host_.run(line("-force -open", "s"));
  EXPECT_EQ(host_.scene().size(), 0u);
  host_.run("createNode group; file -new -force");
  EXPECT_EQ(host_.scene().size(), 0u);
  EXPECT_EQ(host_.value("file -query -path"), ResultValue(""));
}

TEST_F(FileCommandLines, NewAndOpenForgetTheUndoSteps) {
  host_.run("createNode group; createNode group; undo");
  host_.run("file -new -force");
  EXPECT_THAT(host_.refusal("undo"), ElementsAre(HasSubstr("nothing to undo")));
  EXPECT_THAT(host_.refusal("redo"), ElementsAre(HasSubstr("nothing to redo")));
  host_.run(line("-saveAs", "s"));
  host_.run("createNode group");
  host_.run(line("-force -open", "s"));
  EXPECT_THAT(host_.refusal("undo"), ElementsAre(HasSubstr("nothing to undo")));
}

TEST_F(FileCommandLines, ARefusedOpenKeepsSceneAndUndoSteps) {
  writeFile(folder_.path("damaged"), "vesk-scene 1\nend");
  host_.run("createNode group -name g");
  EXPECT_THAT(host_.refusal(line("-force -open", "damaged")),
              ElementsAre("! cannot open " + vesk::quoted(folder_.path("damaged")) +
                          ": line 2: the file ends within this line"));
  EXPECT_EQ(host_.run("ls"), "[\"g\"]");
  host_.run("undo");
  EXPECT_EQ(host_.run("ls"), "[]");
}

TEST_F(FileCommandLines, ADeviceIsNotOpened) {
  host_.run("createNode group -name g");
  EXPECT_THAT(host_.refusal("file -force -open /dev/null"),
              ElementsAre("! cannot open \"/dev/null\": it is no regular file"));
  EXPECT_EQ(host_.run("ls"), "[\"g\"]");
}

TEST_F(FileCommandLines, SaveKeepsTheUndoSteps) {
  host_.run("createNode group");
  host_.run(line("-saveAs", "s"));
  host_.run("undo");
  EXPECT_EQ(host_.run("ls"), "[]");
  EXPECT_EQ(host_.value("file -query -modified"), ResultValue(true));
}

TEST_F(FileCommandLines, OneActionAtATime) {
  for (const char* text : {"file", "file -new -save", "file -force"}) {
    EXPECT_THAT(host_.refusal(text),
                ElementsAre("! file: one of -new, -open, -save and -saveAs is needed"));
  }
}

TEST_F(FileCommandLines, FlagsOutOfPlaceAreRefused) {
  EXPECT_EQ(host_.refusal("file -save -force").size(), 1u);
  EXPECT_EQ(host_.refusal("file -new -path").size(), 1u);
  EXPECT_EQ(host_.refusal("file -query").size(), 1u);
  EXPECT_EQ(host_.refusal("file -query -path -modified").size(), 1u);
  EXPECT_EQ(host_.refusal("file -query -new").size(), 1u);
}

}  // namespace
}  // namespace vesk
