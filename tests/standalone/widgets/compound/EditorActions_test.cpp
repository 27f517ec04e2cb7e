#include <QClipboard>
#include <sstream>

#include "standalone/widgets/compound/scene/ShownValue.h"
#include "standalone/widgets/preferences/Preferences.h"
#include "tests/standalone/widgets/compound/EditorTesting.h"

namespace {

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

/// a -> b -> c, and d alone.
class EditorActionsTest : public EditorTest {
 protected:
  EditorActionsTest() {
    add("core::math::add", "a", -300, -100);
    add("core::math::add", "b", 0, -80);
    add("core::math::negate", "c", 200, -60);
    add("core::math::negate", "d", 0, 150);
    host.run("orvConnect g /a.result /b.a");
    host.run("orvConnect g /b.result /c.value");
    host.takeEchoes();
    host.session().undoQueue().clear();
    open();
  }

  void selectAll(std::initializer_list<const char*> names) {
    key(Qt::Key_Escape);
    for (const char* name : names) click(titleOf(name), Qt::ShiftModifier);
  }

  /// Presses a key and gives the lines of what must be one undo step.
  Lines step(Qt::Key pressed, Qt::KeyboardModifiers modifiers = {}) {
    host.takeEchoes();
    host.session().undoQueue().clear();
    const std::string before = stored();
    key(pressed, modifiers);
    return oneStep(before);
  }
};

TEST_F(EditorActionsTest, RemovesTheSelectionInOneStep) {
  selectAll({"a", "b"});
  EXPECT_THAT(step(Qt::Key_Delete), ElementsAre("orvCompound \"g\" \"/\" -removeNode \"a\"",
                                                "orvCompound \"g\" \"/\" -removeNode \"b\""));
  EXPECT_EQ(scene().boxCount(), 2u);
  EXPECT_EQ(scene().wireCount(), 0u);
}

TEST_F(EditorActionsTest, HealsTheWireOfWhatIsRemoved) {
  selectAll({"b"});
  EXPECT_THAT(step(Qt::Key_Delete, Qt::AltModifier),
              ElementsAre("orvCompound \"g\" \"/\" -removeNode \"b\"",
                          "orvConnect \"g\" \"/a.result\" \"/c.value\""));
  EXPECT_EQ(scene().wireCount(), 1u);
}

TEST_F(EditorActionsTest, CopiesCutsAndPastesAtThePointer) {
  selectAll({"a", "b"});
  key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_THAT(host.takeEchoes(), ElementsAre("orvCopy \"g\" \"/\" -sourceNode \"{a,b}\""));
  hover(at({-200, 100}));
  const Lines lines = step(Qt::Key_V, Qt::ControlModifier);
  ASSERT_THAT(lines, SizeIs(3));
  EXPECT_EQ(lines[0], "orvPaste \"g\" \"/\"");
  EXPECT_THAT(lines[1], HasSubstr("\"-200,100\""));
  EXPECT_EQ(scene().wireCount(), 3u);
}

TEST_F(EditorActionsTest, CutsInOneStep) {
  selectAll({"d"});
  EXPECT_THAT(step(Qt::Key_X, Qt::ControlModifier),
              ElementsAre("orvCopy \"g\" \"/\" -sourceNode \"d\"",
                          "orvCompound \"g\" \"/\" -removeNode \"d\""));
}

TEST_F(EditorActionsTest, DuplicatesBesideTheOriginal) {
  selectAll({"b"});
  const Lines lines = step(Qt::Key_D, Qt::ControlModifier);
  EXPECT_THAT(lines, Contains("orvNode \"g\" \"/b1\" -setMetaData \"editor.position\" \"40,-40\""));
  EXPECT_EQ(node("/b1")->port("a")->source(), node("/a")->port("result"));
}

TEST_F(EditorActionsTest, GroupsAndExplodes) {
  selectAll({"a", "b"});
  const Lines lines = step(Qt::Key_G, Qt::ControlModifier);
  EXPECT_THAT(lines[0], AllOf(HasSubstr("-create \"group\""), HasSubstr("-moveNodeIn \"b\"")));
  ASSERT_TRUE(node("/group"));
  selectAll({"group"});
  const Lines back = step(Qt::Key_G, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_THAT(back[0], HasSubstr("-explode \"group\""));
  EXPECT_TRUE(node("/a"));
  const QPointF apart = box("b")->bounds.topLeft() - box("a")->bounds.topLeft();
  EXPECT_EQ(apart, QPointF(300, 20));
}

TEST_F(EditorActionsTest, ExplodingALockedCompoundMovesNothing) {
  host.run("orvCompound \"g\" \"/\" -create \"closed\"");
  host.run("orvCompound \"g\" \"/closed\" -setMetaData \"locked\" \"true\"");
  selectAll({"closed"});
  const QPointF a = box("a")->bounds.topLeft();
  const QPointF b = box("b")->bounds.topLeft();
  key(Qt::Key_G, Qt::ControlModifier | Qt::ShiftModifier);
  host.takeMessages();
  EXPECT_TRUE(node("/closed"));
  EXPECT_EQ(box("a")->bounds.topLeft(), a);
  EXPECT_EQ(box("b")->bounds.topLeft(), b);
}

TEST_F(EditorActionsTest, FindsNothingAgainOnceTheGraphIsGone) {
  key(Qt::Key_F, Qt::ControlModifier);
  QTest::keyClicks(editor->findChild<QLineEdit*>(), "a");
  editor->editCompound({});
  open();
  key(Qt::Key_F3);
  EXPECT_TRUE(node("/a"));
}

TEST_F(EditorActionsTest, SwitchesStates) {
  selectAll({"a", "b"});
  EXPECT_THAT(step(Qt::Key_E), ElementsAre("orvNode \"g\" \"/a\" -setStateFlag \"e\" false",
                                           "orvNode \"g\" \"/b\" -setStateFlag \"e\" false"));
  EXPECT_THAT(step(Qt::Key_R), Contains("orvNode \"g\" \"/b\" -setStateFlag \"f\" true"));
  EXPECT_THAT(step(Qt::Key_B), Contains("orvNode \"g\" \"/a\" -setStateFlag \"b\" true"));
}

TEST_F(EditorActionsTest, WatchesThePortUnderThePointer) {
  hover(dotOf("a", "result"));
  EXPECT_THAT(step(Qt::Key_W), ElementsAre("orvWatchPoint \"g\" \"/a\" \"result\" -create"));
  EXPECT_TRUE(box("a")->watched);
  EXPECT_EQ(orvuilib::lastValueOf(*node("/a")->port("result")), "0");
  hover(dotOf("a", "result"));
  EXPECT_THAT(step(Qt::Key_W), ElementsAre("orvWatchPoint \"g\" \"/a\" \"result\" -remove"));
}

TEST_F(EditorActionsTest, AlignsAndNudges) {
  selectAll({"a", "b", "c"});
  EXPECT_THAT(step(Qt::Key_Up, Qt::ControlModifier), SizeIs(2));
  EXPECT_EQ(box("c")->bounds.top(), -100);
  selectAll({"d"});
  EXPECT_THAT(step(Qt::Key_Right),
              ElementsAre("orvNode \"g\" \"/d\" -setMetaData \"editor.position\" \"10,150\""));
}

TEST_F(EditorActionsTest, LaysOutFromLeftToRightWithoutOverlap) {
  key(Qt::Key_A, Qt::ControlModifier);
  step(Qt::Key_L);
  EXPECT_LT(box("a")->bounds.right(), box("b")->bounds.left());
  EXPECT_LT(box("b")->bounds.right(), box("c")->bounds.left());
  EXPECT_FALSE(box("d")->bounds.intersects(box("a")->bounds));
}

TEST_F(EditorActionsTest, SelectsWhatIsConnectedAndTheRest) {
  selectAll({"b"});
  key(Qt::Key_BracketLeft);
  EXPECT_THAT(selected(), ElementsAre("b", "a"));
  selectAll({"a"});
  key(Qt::Key_BracketRight);
  EXPECT_THAT(selected(), ElementsAre("a", "b", "c"));
  key(Qt::Key_I, Qt::ControlModifier);
  EXPECT_THAT(selected(), ElementsAre("d"));
}

TEST_F(EditorActionsTest, DisconnectsTheSelection) {
  selectAll({"b"});
  EXPECT_THAT(step(Qt::Key_D),
              ElementsAre("orvConnect \"g\" -disconnect \"/a.result\" \"/b.a\"",
                          "orvConnect \"g\" -disconnect \"/b.result\" \"/c.value\""));
}

TEST_F(EditorActionsTest, RemovesTheWireUnderThePointer) {
  const auto* wire = box("b")->arriving.front();
  key(Qt::Key_Escape);
  hover(at((wire->start + wire->end) / 2));
  EXPECT_THAT(step(Qt::Key_Delete),
              ElementsAre("orvConnect \"g\" -disconnect \"/a.result\" \"/b.a\""));
}

TEST_F(EditorActionsTest, TabOpensTheMenuThatAddsAtThePointer) {
  hover(at({-120, 80}));
  host.session().undoQueue().clear();
  const std::string before = stored();
  key(Qt::Key_Tab);
  ASSERT_TRUE(menu()->isVisible());
  QTest::keyClicks(&menu()->field(), "mltp");
  EXPECT_EQ(menu()->line(0).text, "Multiply");
  QTest::keyClick(&menu()->field(), Qt::Key_Return);
  EXPECT_FALSE(menu()->isVisible());
  EXPECT_THAT(selected(), ElementsAre("multiply"));
  EXPECT_THAT(
      oneStep(before),
      ElementsAre("orvCompound \"g\" \"/\" -addNode \"core::math::multiply\"",
                  "orvNode \"g\" \"/multiply\" -setMetaData \"editor.position\" \"-120,80\""));
}

TEST_F(EditorActionsTest, TheMenuAddsEverythingThatAGraphHolds) {
  for (const char* what : {"Compound", "Input node", "Output node", "Backdrop", "Sticky note"}) {
    host.session().undoQueue().clear();
    const std::string before = stored();
    key(Qt::Key_Tab);
    QTest::keyClicks(&menu()->field(), what);
    ASSERT_EQ(menu()->line(0).text, what);
    QTest::keyClick(&menu()->field(), Qt::Key_Return);
    EXPECT_THAT(oneStep(before), testing::Not(IsEmpty())) << what;
  }
}

TEST_F(EditorActionsTest, ARightClickOnNothingOpensTheMenuAndEscapeClosesIt) {
  QTest::mouseClick(&canvas(), Qt::RightButton, {}, at({-120, 80}));
  ASSERT_TRUE(menu()->isVisible());
  QTest::keyClick(&menu()->field(), Qt::Key_Escape);
  EXPECT_FALSE(menu()->isVisible());
  EXPECT_THAT(host.takeEchoes(), IsEmpty());
}

TEST_F(EditorActionsTest, ARightClickOnAPortOffersItsEdits) {
  host.run("orvCompound g \"/\" -createInputPort x float");
  host.takeEchoes();
  key(Qt::Key_A);
  rightClick(dotOf(*scene().inputs(), "x"));
  choose("Hide port");
  EXPECT_THAT(host.takeEchoes(), ElementsAre("orvCompound \"g\" \"/\" -hidePort \"x\" true"));
  EXPECT_LT(scene().inputs()->portSlots[0].row, 0);
}

TEST_F(EditorActionsTest, DivesInAndOutAndBackAndForward) {
  selectAll({"a"});
  key(Qt::Key_G, Qt::ControlModifier);
  selectAll({"group"});
  key(Qt::Key_Return);
  EXPECT_THAT(editor->breadcrumb().texts(), ElementsAre("g", "/ group"));
  key(Qt::Key_U);
  EXPECT_THAT(selected(), ElementsAre("group"));
  key(Qt::Key_Left, Qt::AltModifier);
  EXPECT_THAT(editor->breadcrumb().texts(), SizeIs(2));
  key(Qt::Key_Right, Qt::AltModifier);
  EXPECT_THAT(editor->breadcrumb().texts(), SizeIs(1));
  host.takeEchoes();
}

TEST_F(EditorActionsTest, FindsByNameTypeAndValueAndGoesThere) {
  selectAll({"d"});
  key(Qt::Key_G, Qt::ControlModifier);
  host.run("orvNode g /group/d -setPortDefaultValues value 0.125");
  key(Qt::Key_F, Qt::ControlModifier);
  orvuilib::SearchList* find = menu("findList");
  ASSERT_TRUE(find->isVisible());
  QTest::keyClicks(&find->field(), "type:negate");
  EXPECT_EQ(find->lineCount(), 2);
  find->field().clear();
  QTest::keyClicks(&find->field(), "0.125");
  ASSERT_EQ(find->lineCount(), 1);
  EXPECT_EQ(find->line(0).place, "value = 0.125");
  QTest::keyClick(&find->field(), Qt::Key_Return);
  EXPECT_THAT(editor->breadcrumb().texts(), SizeIs(2));
  EXPECT_THAT(selected(), ElementsAre("d"));
  host.takeEchoes();
}

TEST_F(EditorActionsTest, CopiesTheSelectionAsLinesThatMakeItAgain) {
  host.run("orvNode g /a -setPortDefaultValues b 2.5");
  host.run("orvNode g /b -setStateFlag f true");
  selectAll({"c", "d"});
  key(Qt::Key_G, Qt::ControlModifier);
  key(Qt::Key_A, Qt::ControlModifier);
  key(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  std::string script = QApplication::clipboard()->text().toStdString();
  const std::string graphText = stored();
  host.run("createNode orvGraph -name h");
  for (std::size_t at = 0; (at = script.find("\"g\"", at)) != std::string::npos;) {
    script.replace(at, 3, "\"h\"");
  }
  std::istringstream lines(script);
  for (std::string line; std::getline(lines, line);) host.run(line);
  EXPECT_EQ(orvlib::writeGraph(static_cast<orvlib::ContainerObject&>(*host.find("h"))), graphText);
  host.takeEchoes();
}

TEST_F(EditorActionsTest, PreferencesAreKeptInTheirSection) {
  key(Qt::Key_G);
  key(Qt::Key_W, Qt::ShiftModifier);
  const QJsonObject section =
      orvuilib::Preferences::instance().section(QStringLiteral("compoundEditor"));
  EXPECT_EQ(section.value("showGrid"), QJsonValue(false));
  EXPECT_EQ(section.value("wireStyle"), QJsonValue("straight"));
  key(Qt::Key_G);
  key(Qt::Key_W, Qt::ShiftModifier);
  key(Qt::Key_W, Qt::ShiftModifier);
  EXPECT_TRUE(orvuilib::Preferences::instance().section("compoundEditor").isEmpty());
}

TEST_F(EditorActionsTest, TheHelpShowsAndGoesWithAnyKey) {
  key(Qt::Key_Question, Qt::ShiftModifier);
  auto* help = canvas().findChild<QWidget*>("helpOverlay");
  ASSERT_TRUE(help->isVisible());
  QTest::keyClick(help, Qt::Key_X);
  EXPECT_FALSE(help->isVisible());
}

TEST_F(EditorActionsTest, UndoAndRedoAreAskedOfTheHost) {
  selectAll({"d"});
  key(Qt::Key_Delete);
  EXPECT_FALSE(node("/d"));
  key(Qt::Key_Z, Qt::ControlModifier);
  host.session().runIdleLines();
  EXPECT_TRUE(node("/d"));
  key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  host.session().runIdleLines();
  EXPECT_FALSE(node("/d"));
  host.takeEchoes();
}

}  // namespace
