#include "tests/standalone/host/scene/SceneTools.h"

namespace vesk {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using vesk::testing::LineHost;
using vesk::testing::stateOf;

class SceneCommandLines : public ::testing::Test {
 protected:
  std::string state() { return stateOf(host_.scene()); }
  std::string names() { return host_.run("ls"); }
  std::string selected() { return host_.run("ls -selection"); }

  /// The line is refused with this error and changes nothing, undo steps included.
  void expectRefused(std::string_view line, const std::string& error) {
    const std::string before = state();
    const auto steps = host_.session().undoQueue().doneNames();
    EXPECT_THAT(host_.refusal(line), ElementsAre("! " + error));
    EXPECT_EQ(state(), before) << line;
    EXPECT_EQ(host_.session().undoQueue().doneNames(), steps) << line;
  }

  /// After the line, undo and redo give the states before and after it again and again.
  void expectUndoable(std::string_view line) {
    const std::string before = state();
    host_.run(line);
    const std::string after = state();
    for (int i = 0; i < 2; ++i) {
      host_.run("undo");
      EXPECT_EQ(state(), before) << line;
      host_.run("redo");
      EXPECT_EQ(state(), after) << line;
    }
  }

  LineHost host_;
};

TEST_F(SceneCommandLines, CreateNodeGivesTheNameItGot) {
  EXPECT_EQ(host_.value("createNode group"), ResultValue("group"));
  EXPECT_EQ(host_.value("createNode group"), ResultValue("group1"));
  EXPECT_EQ(host_.value("createNode locator -name \"my place\""), ResultValue("my_place"));
  EXPECT_EQ(host_.value("createNode locator -n \"\""), ResultValue("locator"));
  EXPECT_EQ(host_.value("createNode note -name \"木\""), ResultValue("_"));
}

TEST_F(SceneCommandLines, CreateNodeSelectsTheNewNodeOnly) {
  host_.run("createNode group; createNode locator");
  EXPECT_EQ(selected(), "[\"locator\"]");
}

TEST_F(SceneCommandLines, CreateNodeRefusesAnUnknownType) {
  expectRefused("createNode \"no type\"", "createNode: unknown node type \"no type\"");
  expectRefused("createNode", "createNode: the node type is missing");
}

TEST_F(SceneCommandLines, CreateNodeIsUndoable) {
  host_.run("createNode group -name a; createNode group -name b; select a b");
  expectUndoable("createNode note -name c");
}

TEST_F(SceneCommandLines, RedoPutsTheVeryNodeBack) {
  host_.run("createNode group -name a");
  const SceneNodePtr node = host_.scene().find("a");
  host_.run("undo; redo");
  EXPECT_EQ(host_.scene().find("a"), node);
}

TEST_F(SceneCommandLines, DeleteTakesNamesAndPatterns) {
  host_.run("createNode group -name a1; createNode group -name a2; createNode group -name b");
  host_.run("delete a?");
  EXPECT_EQ(names(), "[\"b\"]");
}

TEST_F(SceneCommandLines, DeleteWithoutNamesTakesTheSelection) {
  host_.run("createNode group -name a; createNode group -name b; createNode group -name c");
  host_.run("select c a; delete");
  EXPECT_EQ(names(), "[\"b\"]");
  expectRefused("delete", "delete: no names are given and nothing is selected");
}

TEST_F(SceneCommandLines, DeleteTakesANodeNamedTwiceOnce) {
  host_.run("createNode group -name a");
  host_.run("delete a a");
  EXPECT_EQ(names(), "[]");
  host_.run("undo");
  EXPECT_EQ(names(), "[\"a\"]");
}

TEST_F(SceneCommandLines, DeleteIsUndoable) {
  for (const char* name : {"a", "b", "c", "d"}) {
    host_.run(std::string("createNode note -name ") + name);
  }
  host_.run("select d b a");
  expectUndoable("delete b d");
  expectUndoable("delete c");
  expectUndoable("delete");
}

TEST_F(SceneCommandLines, UndoOfDeletePutsTheVeryNodeBack) {
  host_.run("createNode note -name a");
  const SceneNodePtr node = host_.scene().find("a");
  host_.run("delete a; undo");
  EXPECT_EQ(host_.scene().find("a"), node);
}

TEST_F(SceneCommandLines, ANameThatFitsNothingChangesNothing) {
  host_.run("createNode group -name a; createNode group -name b; select a");
  expectRefused("delete a none b", "delete: no node is named \"none\"");
  expectRefused("delete \"\"", "delete: no node is named \"\"");
  expectRefused("select b x*", "select: no node is named \"x*\"");
  expectRefused("select -deselect a none", "select: no node is named \"none\"");
  expectRefused("rename none c", "rename: no node is named \"none\"");
  expectRefused("rename a? c", "rename: no node is named \"a?\"");
}

TEST_F(SceneCommandLines, RenameGivesTheNameItGot) {
  host_.run("createNode group -name a; createNode group -name b");
  EXPECT_EQ(host_.value("rename a c"), ResultValue("c"));
  EXPECT_EQ(host_.value("rename c b"), ResultValue("b1"));
  EXPECT_EQ(host_.value("rename b1 \"3 x\""), ResultValue("_3_x"));
  expectRefused("rename _3_x \"\"", "rename: the new name is empty");
  EXPECT_EQ(host_.value("rename _3_x group"), ResultValue("group"));
  EXPECT_EQ(names(), "[\"group\",\"b\"]");
}

TEST_F(SceneCommandLines, RenameNeedsTwoNames) {
  host_.run("createNode group -name a");
  expectRefused("rename a", "rename: the name of a node and its new name are needed");
}

TEST_F(SceneCommandLines, RenameIsUndoable) {
  host_.run("createNode group -name a; createNode group -name b");
  expectUndoable("rename a b");
  expectUndoable("rename b1 b1");
}

TEST_F(SceneCommandLines, SelectReplacesTheSelectionInTheOrderGiven) {
  for (const char* name : {"a", "b", "c"}) {
    host_.run(std::string("createNode group -name ") + name);
  }
  host_.run("select c a");
  EXPECT_EQ(selected(), "[\"c\",\"a\"]");
  host_.run("select -add b c");
  EXPECT_EQ(selected(), "[\"c\",\"a\",\"b\"]");
  host_.run("select -toggle a b");
  EXPECT_EQ(selected(), "[\"c\"]");
  host_.run("select -toggle b");
  EXPECT_EQ(selected(), "[\"c\",\"b\"]");
  host_.run("select -deselect c a");
  EXPECT_EQ(selected(), "[\"b\"]");
  host_.run("select -clear");
  EXPECT_EQ(selected(), "[]");
}

TEST_F(SceneCommandLines, SelectIsUndoable) {
  for (const char* name : {"a", "b", "c"}) {
    host_.run(std::string("createNode group -name ") + name);
  }
  for (const char* line :
       {"select b", "select c a b", "select -add a", "select -toggle *", "select -deselect *",
        "select *", "select -deselect b", "select -toggle a b", "select -clear", "select -clear"}) {
    expectUndoable(line);
  }
}

TEST_F(SceneCommandLines, SelectRefusesWhatMakesNoSense) {
  host_.run("createNode group -name a");
  expectRefused("select", "select: no names are given");
  expectRefused("select -add", "select: no names are given");
  expectRefused("select -clear a", "select: -clear takes no names");
  expectRefused("select -add -toggle a", "select: its flags exclude each other");
}

TEST_F(SceneCommandLines, LsListsInCreationOrderEachNodeOnce) {
  for (const char* line :
       {"createNode note -name b", "createNode group -name a1", "createNode note -name a2"}) {
    host_.run(line);
  }
  EXPECT_EQ(host_.run("ls"), R"(["b","a1","a2"])");
  EXPECT_EQ(host_.run("ls a2 a* b"), R"(["b","a1","a2"])");
  EXPECT_EQ(host_.run("ls a?"), R"(["a1","a2"])");
  EXPECT_EQ(host_.run("ls b"), R"(["b"])");
  EXPECT_EQ(host_.run("ls -type note"), R"(["b","a2"])");
  EXPECT_EQ(host_.run("ls a* -type note"), R"(["a2"])");
}

TEST_F(SceneCommandLines, LsGivesAnEmptyListWhenNothingFits) {
  EXPECT_EQ(host_.value("ls"), ResultValue(std::vector<std::string>{}));
  EXPECT_EQ(host_.run("ls none x*"), "[]");
  EXPECT_EQ(host_.run("ls -type none"), "[]");
}

TEST_F(SceneCommandLines, LsCanListTheSelectionInItsOrder) {
  host_.run("createNode group -name a; createNode note -name b; createNode group -name c");
  host_.run("select c b a");
  EXPECT_EQ(host_.run("ls -selection -type group"), R"(["c","a"])");
  EXPECT_EQ(host_.run("ls -sl a b"), R"(["b","a"])");
}

TEST_F(SceneCommandLines, LsCanGiveUuids) {
  host_.run("createNode group -name a");
  EXPECT_EQ(host_.run("ls a -uuid"), "[\"" + host_.scene().find("a")->uuid() + "\"]");
}

TEST_F(SceneCommandLines, LsIsNoUndoStep) {
  host_.run("createNode group; ls");
  EXPECT_EQ(host_.session().undoQueue().undoName(), "createNode group");
}

TEST_F(SceneCommandLines, AnUndoThatCannotWorkChangesNothingAndSaysWhy) {
  host_.run("createNode group -name a; createNode group -name b; delete a b");
  host_.runWithoutUndo("createNode locator -name a");
  const std::string before = state();
  EXPECT_THAT(host_.refusal("undo"),
              ElementsAre("! node \"a\": another node has its name or its UUID",
                          HasSubstr("undo of \"delete a b\"")));
  EXPECT_EQ(state(), before);
}

TEST_F(SceneCommandLines, AHalfBlockedUndoTakesBackWhatItDid) {
  host_.run("createNode group -name a; createNode group -name b; delete a b");
  host_.runWithoutUndo("createNode locator -name b");
  const std::string before = state();
  EXPECT_EQ(host_.refusal("undo").size(), 2u);
  EXPECT_EQ(state(), before);
}

TEST_F(SceneCommandLines, AnUndoOfANodeThatIsGoneIsRefused) {
  host_.run("createNode group -name a");
  host_.runWithoutUndo("delete a");
  EXPECT_THAT(host_.refusal("undo"),
              ElementsAre("! node \"a\": it is not in the scene any more", HasSubstr("undo of")));
}

TEST_F(SceneCommandLines, AnUndoOfARenameToATakenNameIsRefused) {
  host_.run("createNode group -name a; rename a b");
  host_.runWithoutUndo("createNode group -name a");
  EXPECT_THAT(host_.refusal("undo"),
              ElementsAre("! node \"b\": another node has the name \"a\"", HasSubstr("undo of")));
  EXPECT_EQ(names(), "[\"b\",\"a\"]");
}

}  // namespace
}  // namespace vesk
