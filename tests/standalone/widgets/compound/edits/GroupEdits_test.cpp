#include "standalone/graph/clipboard/Clipboard.h"
#include "tests/standalone/widgets/compound/edits/EditsTesting.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;

constexpr auto kShiftCtrl = Qt::ControlModifier | Qt::ShiftModifier;

/// add -> negate -> multiply, made by lines: the graph knows no positions.
class GroupEditsTest : public EditsTest {
 protected:
  GroupEditsTest() {
    script({"orvCompound g / -addNode core::math::add -addNode core::math::negate",
            "orvCompound g / -addNode core::math::multiply",
            "orvConnect g /add.result /negate.value", "orvConnect g /negate.result /multiply.a"});
    open();
  }

  QPointF apart(const char* one, const char* other) { return placeOf(other) - placeOf(one); }
};

TEST_F(GroupEditsTest, WhatHasNoPositionIsPastedAsItStood) {
  const QPointF toMultiply = apart("add", "multiply");
  ASSERT_GT(toMultiply.x(), 500);
  select({"multiply", "add"});
  key(Qt::Key_C, Qt::ControlModifier);
  hover(at({40, 300}));
  EXPECT_THAT(step(Qt::Key_V, Qt::ControlModifier), SizeIs(3));
  EXPECT_EQ(placeOf("add1"), QPointF(40, 300));
  EXPECT_EQ(apart("add1", "multiply1"), toMultiply);
}

TEST_F(GroupEditsTest, WhatComesFromElsewhereIsPastedInColumns) {
  host.run("orvCopy g / -sourceNode \"{add,negate,multiply}\"");
  hover(at({-200, 250}));
  step(Qt::Key_V, Qt::ControlModifier);
  EXPECT_LT(box("add1")->bounds.right(), box("negate1")->bounds.left());
  EXPECT_LT(box("negate1")->bounds.right(), box("multiply1")->bounds.left());
  EXPECT_EQ(placeOf("add1"), QPointF(-200, 250));
}

TEST_F(GroupEditsTest, AfterACutThePasteStandsAsItStood) {
  const QPointF toMultiply = apart("add", "multiply");
  select({"add", "multiply"});
  EXPECT_THAT(step(Qt::Key_X, Qt::ControlModifier),
              ElementsAre("orvCopy \"g\" \"/\" -sourceNode \"{add,multiply}\"",
                          "orvCompound \"g\" \"/\" -removeNode \"add\"",
                          "orvCompound \"g\" \"/\" -removeNode \"multiply\""));
  hover(at({0, 100}));
  step(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(apart("add", "multiply"), toMultiply);
}

TEST_F(GroupEditsTest, PastesIntoAnotherLevelAndWithNotes) {
  host.run("orvCompound g / -create inner -addStickyNote x -addBackdrop frame");
  key(Qt::Key_A, Qt::ControlModifier);
  key(Qt::Key_C, Qt::ControlModifier);
  editor->diveInCompound(node("/inner")->asCompound());
  home();
  hover(at({-100, -100}));
  step(Qt::Key_V, Qt::ControlModifier);
  const auto& notes = node("/inner")->compound()->annotations();
  ASSERT_EQ(notes.count(), 2u);
  EXPECT_TRUE(node("/inner/multiply"));
  for (const auto* note : notes.items()) EXPECT_TRUE(note->metadata().find("editor.position"));
  host.takeEchoes();
}

TEST_F(GroupEditsTest, DuplicatesStandBesideWhatTheyAreOfInAnyOrderOfSelecting) {
  select({"multiply", "add"});
  step(Qt::Key_D, Qt::ControlModifier);
  EXPECT_EQ(apart("add", "add1"), QPointF(40, 40));
  EXPECT_EQ(apart("multiply", "multiply1"), QPointF(40, 40));
}

TEST_F(GroupEditsTest, ADuplicateLeavesTheClipboardAsItWas) {
  select({"add"});
  key(Qt::Key_C, Qt::ControlModifier);
  const std::string copied = orvlib::Clipboard::text();
  select({"negate"});
  step(Qt::Key_D, Qt::ControlModifier);
  EXPECT_EQ(orvlib::Clipboard::text(), copied);
  const Lines lines = step(Qt::Key_V, Qt::ControlModifier);
  EXPECT_TRUE(node("/add1"));
  EXPECT_FALSE(node("/negate2"));
  // In a journal the copy of the duplicate is not the last one.
  EXPECT_EQ(lines[0], "orvCopy \"g\" \"/\" -sourceNode \"add\"");
  EXPECT_EQ(lines[1], "orvPaste \"g\" \"/\"");
  EXPECT_EQ(step(Qt::Key_V, Qt::ControlModifier)[0], lines[1]);
}

TEST_F(GroupEditsTest, GroupsAndExplodesByTheseLines) {
  select({"add", "negate"});
  const Lines lines = step(Qt::Key_G, Qt::ControlModifier);
  ASSERT_THAT(lines, SizeIs(2));
  EXPECT_EQ(lines[0],
            "orvCompound -create \"group\" -moveNodeIn \"add\" -moveNodeIn \"negate\" \"g\" \"/\"");
  EXPECT_THAT(lines[1], HasSubstr("orvNode \"g\" \"/group\" -setMetaData \"editor.position\""));
  select({"group"});
  const Lines back = step(Qt::Key_G, kShiftCtrl);
  ASSERT_THAT(back, SizeIs(3));
  EXPECT_EQ(back[0], "orvCompound -explode \"group\" \"g\" \"/\"");
  EXPECT_THAT(back[1], HasSubstr("\"/add\" -setMetaData"));
  EXPECT_THAT(back[2], HasSubstr("\"/negate\" -setMetaData"));
}

TEST_F(GroupEditsTest, WhatIsGroupedAndExplodedStandsWhereItStood) {
  const QPointF toNegate = apart("add", "negate");
  const QRectF before = box("add")->bounds | box("negate")->bounds;
  select({"add", "negate"});
  step(Qt::Key_G, Qt::ControlModifier);
  select({"group"});
  step(Qt::Key_G, kShiftCtrl);
  EXPECT_EQ(apart("add", "negate"), toNegate);
  const QRectF after = box("add")->bounds | box("negate")->bounds;
  EXPECT_NEAR(after.center().x(), before.center().x(), 1);
  EXPECT_NEAR(after.center().y(), before.center().y(), 1);
}

TEST_F(GroupEditsTest, OfSeveralCompoundsALockedOneStaysAndIsNamed) {
  script({"orvCompound g / -create open -moveNodeIn add", "orvCompound g / -create closed",
          "orvCompound g /closed -setMetaData locked true"});
  select({"closed", "open"});
  const QPointF negate = placeOf("negate");
  forget();
  key(Qt::Key_G, kShiftCtrl);
  EXPECT_TRUE(node("/add"));
  EXPECT_TRUE(node("/closed"));
  EXPECT_EQ(placeOf("negate"), negate);
  EXPECT_THAT(selected(), ElementsAre("add"));
  EXPECT_TRUE(canvas().notice().contains("Locked"));
  EXPECT_THAT(host.steps(), SizeIs(1));
  host.takeEchoes();
  host.takeMessages();
}

}  // namespace
