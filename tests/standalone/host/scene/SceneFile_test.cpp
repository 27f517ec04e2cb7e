#include "standalone/host/scene/SceneFile.h"

#include "tests/standalone/host/scene/SceneTools.h"

namespace vesk {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using vesk::testing::addNode;
using vesk::testing::noteType;

const std::string kUuid1 = "6ba7b810-9dad-11d1-80b4-00c04fd430c8";
const std::string kUuid2 = "6ba7b811-9dad-11d1-80b4-00c04fd430c8";

class SceneTexts : public ::testing::Test {
 protected:
  SceneTexts() { scene_.types().add(noteType()); }

  SceneText read(std::string_view text) const { return readSceneText(text, scene_.types()); }

  /// The text of the nodes, put into a new scene.
  std::string written(const SceneText& read) {
    Scene other(messages_, events_);
    for (const SceneNodePtr& node : read.nodes) other.insert(node);
    return writeSceneText(other);
  }

  MessageChannel messages_;
  SceneEvents events_;
  Scene scene_{messages_, events_};
};

TEST_F(SceneTexts, AnEmptySceneIsAHeaderAndAnEnd) {
  EXPECT_EQ(writeSceneText(scene_), "vesk-scene 1\nend 0\n");
  const SceneText text = read("vesk-scene 1\nend 0\n");
  EXPECT_EQ(text.error, "");
  EXPECT_THAT(text.nodes, IsEmpty());
}

TEST_F(SceneTexts, HoldOneRecordANode) {
  const SceneNodePtr group = addNode(scene_, "group", "g");
  const SceneNodePtr note = addNode(scene_, "note", "n", "two\nlines");
  EXPECT_EQ(writeSceneText(scene_),
            "vesk-scene 1\n"
            "node \"group\" \"g\" \"" +
                group->uuid() +
                "\" 0\n"
                "node \"note\" \"n\" \"" +
                note->uuid() +
                "\" 9\n"
                "two\nlines\n"
                "end 2\n");
}

TEST_F(SceneTexts, ReadBackAsTheSameNodes) {
  addNode(scene_, "note", "b", "data");
  addNode(scene_, "group", "a");
  const std::string text = writeSceneText(scene_);
  const SceneText back = read(text);
  ASSERT_EQ(back.error, "");
  ASSERT_EQ(back.nodes.size(), 2u);
  EXPECT_EQ(back.nodes[0]->name(), "b");
  EXPECT_EQ(back.nodes[0]->uuid(), scene_.find("b")->uuid());
  EXPECT_FALSE(back.nodes[0]->isInScene());
  EXPECT_EQ(written(back), text);
}

class SceneTextPayloads : public SceneTexts, public ::testing::WithParamInterface<std::string> {};

TEST_P(SceneTextPayloads, AreKeptByteForByte) {
  addNode(scene_, "note", "n", GetParam());
  addNode(scene_, "group", "behind");
  const std::string text = writeSceneText(scene_);
  const SceneText back = read(text);
  ASSERT_EQ(back.error, "");
  EXPECT_EQ(back.nodes[0]->payload()->save(), GetParam());
  EXPECT_EQ(written(back), text);
}

INSTANTIATE_TEST_SUITE_P(All, SceneTextPayloads,
                         ::testing::Values("", "plain", "\n", "ends with\n", "\r\n\r",
                                           "\"quotes\" \\", "end 1\n", "node \"group\" \"x\"",
                                           "Größe 木 🍎", std::string("\0\xFF\x80\0", 4),
                                           "; // no comment"));

TEST_F(SceneTexts, AreRefusedCutOffAtAnyByte) {
  addNode(scene_, "note", "n", "line 1\nline 2");
  addNode(scene_, "group", "g");
  addNode(scene_, "note", "foreign", "\n\n");
  for (int i = 0; i < 9; ++i) addNode(scene_, "locator", "p");
  const std::string text = writeSceneText(scene_);
  ASSERT_EQ(read(text).error, "");
  for (std::size_t size = 0; size < text.size(); ++size) {
    const SceneText cut = read(std::string_view(text).substr(0, size));
    ASSERT_NE(cut.error, "") << "at byte " << size;
    ASSERT_THAT(cut.nodes, IsEmpty()) << "at byte " << size;
  }
}

TEST_F(SceneTexts, OfAForeignTypeKeepItsDataAndWarnOnceForTheType) {
  const std::string text =
      "vesk-scene 1\n"
      "node \"alien thing\" \"x\" \"" +
      kUuid1 +
      "\" 5\nbad\n\xFF\n"
      "node \"alien thing\" \"y\" \"" +
      kUuid2 +
      "\" 0\n"
      "end 2\n";
  const SceneText back = read(text);
  ASSERT_EQ(back.error, "");
  EXPECT_THAT(back.warnings, ElementsAre("nobody registered the node type \"alien thing\"; kept as "
                                         "stored: \"x\", \"y\""));
  EXPECT_EQ(back.nodes[0]->type(), "alien thing");
  EXPECT_EQ(written(back), text);
}

TEST_F(SceneTexts, OfManyForeignNodesNameTheFirstFew) {
  std::string text = "vesk-scene 1\n";
  for (int i = 0; i < 7; ++i) {
    text += "node \"alien\" \"x" + std::to_string(i) + "\" \"" + SceneNode::makeUuid() + "\" 0\n";
  }
  EXPECT_THAT(read(text + "end 7\n").warnings,
              ElementsAre(HasSubstr("\"x0\", \"x1\", \"x2\", \"x3\", \"x4\" and 2 more")));
}

TEST_F(SceneTexts, CountTheLinesOfDataInTheirErrors) {
  const std::string text =
      "vesk-scene 1\n"
      "node \"note\" \"n\" \"" +
      kUuid1 +
      "\" 5\n\n\n\n\n\n\n"
      "what\n";
  EXPECT_EQ(read(text).error, "line 9: unknown record \"what\"");
}

TEST_F(SceneTexts, NameTheLineAtWhichThePayloadRefuses) {
  const std::string text =
      "vesk-scene 1\n"
      "node \"note\" \"n\" \"" +
      kUuid1 + "\" 8\nfine\nbad\nend 1\n";
  EXPECT_EQ(read(text).error, "line 4: data of node \"n\": a bad line");
}

struct Damage {
  std::string text;
  std::string error;
};

class DamagedSceneTexts : public SceneTexts, public ::testing::WithParamInterface<Damage> {};

TEST_P(DamagedSceneTexts, AreRefusedWithLineAndReason) {
  const SceneText text = read(GetParam().text);
  EXPECT_EQ(text.error, GetParam().error);
  EXPECT_THAT(text.nodes, IsEmpty());
  EXPECT_THAT(text.warnings, IsEmpty());
}

std::string node(const std::string& name, const std::string& uuid, const std::string& rest = "0") {
  return "node \"group\" \"" + name + "\" \"" + uuid + "\" " + rest + "\n";
}

const std::string kHead = "vesk-scene 1\n";
const std::string kNodeHint = "a node needs type, name and UUID in quotes and a count of bytes";

INSTANTIATE_TEST_SUITE_P(
    All, DamagedSceneTexts,
    ::testing::Values(
        Damage{"", "line 1: the file ends too early"},
        Damage{"\n", "line 1: one record was expected"},
        Damage{"other 1\nend 0\n", "line 1: this is no scene file"},
        Damage{"vesk-scene\nend 0\n", "line 1: this is no scene file"},
        Damage{"vesk-scene 2\nend 0\n",
               "line 1: the format version \"2\" is not known; it should be 1"},
        Damage{"\xEF\xBB\xBFvesk-scene 1\nend 0\n", "line 1: this is no scene file"},
        Damage{"vesk-scene 1; end 0\n", "line 1: one record was expected"},
        Damage{kHead, "line 2: the file ends too early"},
        Damage{kHead + "end 0", "line 2: the file ends within this line"},
        Damage{kHead + "end\n", "line 2: the end needs a count of nodes"},
        Damage{kHead + "end \"0\"\n", "line 2: the end needs a count of nodes"},
        Damage{kHead + "end -1\n", "line 2: the end needs a count of nodes"},
        Damage{kHead + "end 0 0\n", "line 2: the end needs a count of nodes"},
        Damage{kHead + "end 1\n", "line 2: the end counts 1 nodes, the file holds 0"},
        Damage{kHead + node("a", kUuid1) + "end 0\n",
               "line 3: the end counts 0 nodes, the file holds 1"},
        Damage{kHead + "end 0\nend 0\n", "line 3: something follows the end"},
        Damage{kHead + "end 0\n\n", "line 3: something follows the end"},
        Damage{kHead + "\nend 0\n", "line 2: one record was expected"},
        Damage{kHead + "what 0\nend 0\n", "line 2: unknown record \"what\""},
        Damage{kHead + "node \"group\n", "line 2: column 6: the quoted text has no end"},
        Damage{kHead + "node \"gr\\oup\"\n",
               "line 2: column 9: a backslash must be followed by one of \" \\ n t r"},
        Damage{kHead + "node \"gr\xFFup\"\n",
               "line 2: column 9: the byte 0xff is not valid UTF-8 here"},
        Damage{kHead + "node \"group\" \"a\" \"" + kUuid1 + "\"\n", "line 2: " + kNodeHint},
        Damage{kHead + "node group \"a\" \"" + kUuid1 + "\" 0\n", "line 2: " + kNodeHint},
        Damage{kHead + "node \"\" \"a\" \"" + kUuid1 + "\" 0\n", "line 2: the node type is empty"},
        Damage{kHead + node("a b", kUuid1), "line 2: \"a b\" is no node name"},
        Damage{kHead + node("", kUuid1), "line 2: \"\" is no node name"},
        Damage{kHead + node("a", "6ba7"), "line 2: \"6ba7\" is no UUID"},
        Damage{kHead + node("a", "00000000-0000-0000-0000-000000000000"),
               "line 2: \"00000000-0000-0000-0000-000000000000\" is no UUID"},
        Damage{kHead + node("a", kUuid1) + node("a", kUuid2) + "end 2\n",
               "line 3: a second node has the name \"a\""},
        Damage{kHead + node("a", kUuid1) + node("b", kUuid1) + "end 2\n",
               "line 3: a second node has the UUID \"" + kUuid1 + "\""},
        Damage{kHead + node("a", kUuid1, "x"), "line 2: \"x\" is no count of bytes"},
        Damage{kHead + node("a", kUuid1, "-1"), "line 2: \"-1\" is no count of bytes"},
        Damage{kHead + node("a", kUuid1, "99999999999999999999999"),
               "line 2: \"99999999999999999999999\" is no count of bytes"},
        Damage{kHead + node("a", kUuid1, "18446744073709551615") + "end 1\n",
               "line 2: 18446744073709551615 bytes of data and a line end were expected, 6 bytes "
               "follow"},
        Damage{kHead + node("a", kUuid1, "3") + "abc",
               "line 2: 3 bytes of data and a line end were expected, 3 bytes follow"},
        Damage{kHead + node("a", kUuid1, "3") + "abcd\nend 1\n",
               "line 3: a line end was expected behind the data"},
        Damage{kHead + node("a", kUuid1, "3") + "abc\nend 1\n",
               "line 3: a node of type \"group\" has no data"}));

TEST_F(SceneTexts, KeepALineEndOfAnotherSystemOutOfTheRecords) {
  const SceneText text = read("vesk-scene 1\r\n" + node("a", kUuid1, "0\r") + "end 1\r\n");
  EXPECT_EQ(text.error, "");
  EXPECT_EQ(text.nodes.size(), 1u);
}

TEST_F(SceneTexts, FlippedBytesNeverCrashAndNeverHalfRead) {
  addNode(scene_, "note", "n", "some\ndata");
  addNode(scene_, "group", "g");
  const std::string text = writeSceneText(scene_);
  for (std::size_t at = 0; at < text.size(); ++at) {
    for (const char c : {'\0', '\n', ' ', '"', '9', 'x', '\xFF'}) {
      std::string changed = text;
      changed[at] = c;
      const SceneText back = read(changed);
      ASSERT_EQ(back.nodes.size(), back.error.empty() ? 2u : 0u) << "at byte " << at;
    }
  }
}

}  // namespace
}  // namespace vesk
