#include "standalone/widgets/colour/ColourDialog.h"
#include "standalone/widgets/colour/ColourPicker.h"
#include "tests/standalone/widgets/compound/EditorTesting.h"

namespace {

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// a -> b; an empty compound with two inputs; a note.
class EditorMenusTest : public EditorTest {
 protected:
  EditorMenusTest() {
    add("core::math::add", "a", -300, -100);
    add("core::math::add", "b", 0, -100);
    host.run("orvConnect g /a.result /b.a");
    host.run("orvCompound g \"/\" -create inner");
    host.run("orvNode g /inner -setMetaData editor.position \"0,60\"");
    host.run("orvCompound g /inner -createInputPort x float -createInputPort y float");
    host.run("orvCompound g \"/\" -createInputPort p float -createInputPort q float");
    host.run("orvCompound g \"/\" -addStickyNote text");
    host.run("orvCompound g \"/\" -setAnnotationMetaDataValue note editor.position \"-300,150\"");
    host.run("orvCompound g \"/\" -setAnnotationMetaDataValue note editor.size \"180,90\"");
    host.run("orvCompound g \"/\" -setMetaData editor.inputsPosition \"-480,-60\"");
    host.takeEchoes();
    host.session().undoQueue().clear();
    open();
  }

  /// Does something, which must be one step of undo, and takes it back; gives its lines.
  template <class Do>
  Lines step(Do something) {
    host.takeEchoes();
    host.session().undoQueue().clear();
    const std::string before = stored();
    something();
    Lines lines = oneStep(before);
    undo();
    host.takeEchoes();
    return lines;
  }
  Lines stepOf(const QPoint& where, const QString& text) {
    return step([&] {
      rightClick(where);
      choose(text);
    });
  }
  QPoint wire() {
    const auto* wire = box("b")->arriving.front();
    return at((wire->start + wire->end) / 2);
  }
  QPoint note() { return at(QPointF(-290, 160)); }
  QPoint inputs() { return at(scene().inputs()->bounds.topLeft() + QPointF(20, 10)); }
  bool isOffered(const QString& text) { return item(text) && item(text)->isEnabled(); }
  void close() { contextMenu()->close(); }
};

TEST_F(EditorMenusTest, EveryItemOfANodeIsOneStep) {
  EXPECT_THAT(stepOf(titleOf("a"), "Remove"),
              ElementsAre("orvCompound \"g\" \"/\" -removeNode \"a\""));
  EXPECT_THAT(stepOf(titleOf("a"), "Disconnect"),
              ElementsAre("orvConnect \"g\" -disconnect \"/a.result\" \"/b.a\""));
  EXPECT_THAT(stepOf(titleOf("a"), "Enabled"),
              ElementsAre("orvNode \"g\" \"/a\" -setStateFlag \"e\" false"));
  EXPECT_THAT(stepOf(titleOf("a"), "Frozen"),
              ElementsAre("orvNode \"g\" \"/a\" -setStateFlag \"f\" true"));
  EXPECT_THAT(stepOf(titleOf("a"), "Bypassed"),
              ElementsAre("orvNode \"g\" \"/a\" -setStateFlag \"b\" true"));
  EXPECT_THAT(stepOf(titleOf("a"), "Group"), Contains(HasSubstr("-create \"group\"")));
}

TEST_F(EditorMenusTest, StatesAreCheckedAndWhatCannotBeDoneIsDisabled) {
  host.run("orvNode g /a -setStateFlag f true");
  rightClick(titleOf("a"));
  EXPECT_TRUE(item("Enabled")->isChecked());
  EXPECT_TRUE(item("Frozen")->isChecked());
  EXPECT_FALSE(item("Bypassed")->isChecked());
  EXPECT_FALSE(isOffered("Explode"));
  EXPECT_FALSE(isOffered("Go in"));
  EXPECT_TRUE(isOffered("Disconnect"));
  close();
  rightClick(titleOf("inner"));
  EXPECT_TRUE(isOffered("Explode"));
  EXPECT_TRUE(isOffered("Go in"));
  EXPECT_FALSE(isOffered("Disconnect"));
  close();
  host.run("orvCompound g \"/\" -setMetaData locked true");
  rightClick(titleOf("a"));
  for (const char* edit : {"Remove", "Rename", "Group", "Cut", "Enabled", "Duplicate"}) {
    EXPECT_FALSE(isOffered(edit)) << edit;
  }
  EXPECT_TRUE(isOffered("Copy"));
  close();
  host.takeEchoes();
}

TEST_F(EditorMenusTest, APortIsWatchedTakenOffAndHidden) {
  EXPECT_THAT(stepOf(dotOf("a", "result"), "Watch"),
              ElementsAre("orvWatchPoint \"g\" \"/a\" \"result\" -create"));
  redo();
  rightClick(dotOf("a", "result"));
  EXPECT_TRUE(item("Watch")->isChecked());
  close();
  EXPECT_THAT(stepOf(dotOf("a", "result"), "Disconnect port"),
              ElementsAre("orvConnect \"g\" -disconnect \"/a.result\" \"/b.a\""));
  EXPECT_THAT(stepOf(dotOf("a", "b"), "Hide port"),
              ElementsAre("orvPort \"g\" \"/a.b\" 0 1 -set 1"));
}

TEST_F(EditorMenusTest, APortOfACompoundIsMovedRetypedRenamedAndDeleted) {
  EXPECT_THAT(stepOf(dotOf("inner", "x"), "Move port down"),
              ElementsAre("orvCompound \"g\" \"/inner\" -movePort \"x\" 1"));
  rightClick(dotOf("inner", "x"));
  EXPECT_TRUE(isOffered("Move port down"));
  EXPECT_FALSE(isOffered("Move port up"));
  close();
  EXPECT_THAT(step([this] {
                rightClick(dotOf("inner", "x"));
                choose("Type...");
                QTest::keyClicks(&menu("typeList")->field(), "vector3");
                QTest::keyClick(&menu("typeList")->field(), Qt::Key_Return);
              }),
              ElementsAre("orvCompound \"g\" \"/inner\" -setPortDataType \"x\" \"vector3\""));
  EXPECT_THAT(step([this] {
                rightClick(dotOf("inner", "x"));
                choose("Rename port");
                QTest::keyClicks(field(), "z");
                QTest::keyClick(field(), Qt::Key_Return);
              }),
              ElementsAre("orvCompound \"g\" \"/inner\" -renamePort \"x\" \"z\""));
  EXPECT_THAT(stepOf(dotOf("inner", "x"), "Delete port"),
              ElementsAre("orvCompound \"g\" \"/inner\" -deletePort \"x\""));
}

TEST_F(EditorMenusTest, TheTypeOfAPortThatStaysIsNoEdit) {
  rightClick(dotOf("inner", "x"));
  choose("Type...");
  const auto* list = menu("typeList")->findChild<QListView*>();
  EXPECT_EQ(menu("typeList")->line(list->currentIndex().row()).text, "float");
  QTest::keyClick(&menu("typeList")->field(), Qt::Key_Return);
  EXPECT_THAT(host.takeEchoes(), IsEmpty());
}

TEST_F(EditorMenusTest, TheBoundaryGetsPortsAndShowsHiddenOnes) {
  EXPECT_THAT(step([this] {
                rightClick(inputs());
                EXPECT_FALSE(item("Add output..."));
                choose("Add input...");
                QTest::keyClick(&menu("typeList")->field(), Qt::Key_Return);
              }),
              ElementsAre("orvCompound \"g\" \"/\" -createInputPort \"input\" \"float\""));
  host.run("orvCompound g \"/\" -hidePort p true");
  host.run("orvCompound g \"/\" -hidePort q true");
  EXPECT_THAT(stepOf(inputs(), "q"), ElementsAre("orvCompound \"g\" \"/\" -hidePort \"q\" false"));
  EXPECT_THAT(stepOf(inputs(), "All of them"),
              ElementsAre("orvCompound \"g\" \"/\" -hidePort \"p\" false",
                          "orvCompound \"g\" \"/\" -hidePort \"q\" false"));
}

TEST_F(EditorMenusTest, ACompoundGetsPortsOfBothSides) {
  EXPECT_THAT(step([this] {
                rightClick(titleOf("inner"));
                choose("Add output...");
                QTest::keyClicks(&menu("typeList")->field(), "int");
                QTest::keyClick(&menu("typeList")->field(), Qt::Key_Return);
              }),
              ElementsAre("orvCompound \"g\" \"/inner\" -createOutputPort \"output\" \"int\""));
}

TEST_F(EditorMenusTest, TheMenuOfAWireIsAboutTheWire) {
  rightClick(wire());
  for (const char* ofPort : {"Hide port", "Disconnect port", "Remove"}) EXPECT_FALSE(item(ofPort));
  close();
  EXPECT_THAT(stepOf(wire(), "Remove wire"),
              ElementsAre("orvConnect \"g\" -disconnect \"/a.result\" \"/b.a\""));
  EXPECT_THAT(stepOf(wire(), "Watch result"),
              ElementsAre("orvWatchPoint \"g\" \"/a\" \"result\" -create"));
  const Lines lines = step([this] {
    rightClick(wire());
    choose("Put a node into it...");
    QTest::keyClicks(&menu()->field(), "negate");
    QTest::keyClick(&menu()->field(), Qt::Key_Return);
  });
  EXPECT_THAT(lines, AllOf(Contains("orvConnect \"g\" \"/a.result\" \"/negate.value\""),
                           Contains("orvConnect \"g\" \"/negate.result\" \"/b.a\"")));
}

TEST_F(EditorMenusTest, ANoteGetsWhatIsForNotes) {
  rightClick(note());
  for (const char* ofNodes : {"Group", "Explode", "Enabled", "Disconnect", "Lay out"}) {
    EXPECT_FALSE(item(ofNodes)) << ofNodes;
  }
  close();
  EXPECT_THAT(step([this] {
                rightClick(note());
                choose("Change text");
                QTest::keyClicks(field(), "hello");
                QTest::keyClick(field(), Qt::Key_Return);
              }),
              ElementsAre(HasSubstr("\"note\" \"editor.text\" \"hello\"")));
  EXPECT_THAT(stepOf(note(), "Remove"),
              ElementsAre("orvCompound \"g\" \"/\" -removeAnnotation \"note\""));
}

TEST_F(EditorMenusTest, TheColourOfANoteIsChosen) {
  EXPECT_THAT(step([this] {
                rightClick(note());
                choose("Colour...");
                auto* dialog =
                    qobject_cast<orvuilib::ColourDialog*>(QApplication::activeModalWidget());
                ASSERT_TRUE(dialog);
                dialog->picker().setColour({1, 0, 0, 0.5});
                EXPECT_EQ(dialog->picker().colour().a, 1) << "a note has no alpha";
                dialog->accept();
              }),
              ElementsAre(HasSubstr("\"note\" \"editor.color\" \"#ff0000\"")));
}

TEST_F(EditorMenusTest, TheColourDialogClosesWithItsNote) {
  rightClick(note());
  choose("Colour...");
  ASSERT_TRUE(QApplication::activeModalWidget());
  host.run("orvCompound g \"/\" -removeAnnotation note");
  EXPECT_FALSE(QApplication::activeModalWidget());
  host.takeEchoes();
}

TEST_F(EditorMenusTest, EmptySpaceOffersPasteAndSelectAllBeforeTheNodes) {
  click(titleOf("a"));
  key(Qt::Key_C, Qt::ControlModifier);
  rightClick(at({-60, 250}));
  ASSERT_EQ(menu()->line(0).text, "Paste at the pointer");
  const Lines lines = step([this] { QTest::keyClick(&menu()->field(), Qt::Key_Return); });
  EXPECT_THAT(lines, Contains(HasSubstr("\"editor.position\" \"-60,250\"")));
  rightClick(at({-60, 250}));
  QTest::keyClicks(&menu()->field(), "select every");
  ASSERT_EQ(menu()->lineCount(), 1);
  QTest::keyClick(&menu()->field(), Qt::Key_Return);
  EXPECT_THAT(selected(), ElementsAre("a", "b", "inner"));
}

TEST_F(EditorMenusTest, TheMenuKeyOpensTheMenuOfTheSelection) {
  click(titleOf("a"));
  key(Qt::Key_F10, Qt::ShiftModifier);
  EXPECT_TRUE(item("Rename"));
  close();
  click(note());
  key(Qt::Key_Menu);
  EXPECT_TRUE(item("Colour..."));
  close();
  key(Qt::Key_Escape);
  key(Qt::Key_Menu);
  EXPECT_TRUE(menu()->isVisible());
}

TEST_F(EditorMenusTest, ANewNoteWaitsForItsText) {
  for (const Qt::Key made : {Qt::Key_N, Qt::Key_B}) {
    key(Qt::Key_Escape);
    key(made, Qt::ShiftModifier);
    ASSERT_TRUE(field()->isVisible());
    EXPECT_THAT(step([this] {
                  QTest::keyClicks(field(), "why");
                  QTest::keyClick(field(), Qt::Key_Return);
                }),
                ElementsAre(HasSubstr("\"editor.text\" \"why\"")));
  }
}

TEST_F(EditorMenusTest, NotesAreMadeInOneStep) {
  EXPECT_THAT(step([this] { key(Qt::Key_N, Qt::ShiftModifier); }),
              ElementsAre("orvCompound \"g\" \"/\" -addStickyNote \"note\"",
                          HasSubstr("\"note1\" \"editor.position\""),
                          HasSubstr("\"note1\" \"editor.size\" \"180,90\"")));
  EXPECT_THAT(step([this] {
                click(titleOf("a"));
                key(Qt::Key_B, Qt::ShiftModifier);
              }),
              ElementsAre("orvCompound \"g\" \"/\" -addBackdrop \"backdrop\"",
                          HasSubstr("\"backdrop\" \"editor.position\" \"-330,-156\""),
                          HasSubstr("\"backdrop\" \"editor.size\"")));
}

TEST_F(EditorMenusTest, NotesGrowAndShrinkByKeys) {
  click(note());
  EXPECT_THAT(step([this] { key(Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier); }),
              Contains(HasSubstr("\"editor.size\" \"190,90\"")));
  EXPECT_THAT(step([this] { key(Qt::Key_Up, Qt::ControlModifier | Qt::ShiftModifier); }),
              Contains(HasSubstr("\"editor.size\" \"180,80\"")));
}

}  // namespace
