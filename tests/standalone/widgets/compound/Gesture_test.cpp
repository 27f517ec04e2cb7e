#include "standalone/widgets/compound/input/Gesture.h"

#include "tests/standalone/widgets/compound/EditorTesting.h"

namespace {

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

class GestureTest : public EditorTest {
 protected:
  GestureTest() {
    add("core::math::add", "a", -300, -100);
    add("core::math::add", "b", 0, -100);
    add("core::math::negate", "c", 200, 150);
    open();
  }

  void connect(const char* source, const char* target) {
    host.run(std::string("orvConnect g ") + source + " " + target);
    host.takeEchoes();
    host.session().undoQueue().clear();
  }
};

TEST_F(GestureTest, AClickSelectsOneNodeAndShiftAddsAndCtrlToggles) {
  click(titleOf("a"));
  EXPECT_THAT(selected(), ElementsAre("a"));
  click(titleOf("b"), Qt::ShiftModifier);
  EXPECT_THAT(selected(), ElementsAre("a", "b"));
  click(titleOf("a"), Qt::ControlModifier);
  EXPECT_THAT(selected(), ElementsAre("b"));
  click(titleOf("c"));
  EXPECT_THAT(selected(), ElementsAre("c"));
  click(at({-400, 300}));
  EXPECT_THAT(selected(), IsEmpty());
}

TEST_F(GestureTest, AClickOnOneOfManySelectedSelectsItAlone) {
  key(Qt::Key_A, Qt::ControlModifier);
  click(titleOf("b"));
  EXPECT_THAT(selected(), ElementsAre("b"));
}

TEST_F(GestureTest, ABandSelectsWhatItTouches) {
  drag(at({-350, -180}), at({50, 100}));
  EXPECT_THAT(selected(), ElementsAre("a", "b"));
  drag(at({150, 120}), at({260, 240}), Qt::ShiftModifier);
  EXPECT_THAT(selected(), ElementsAre("a", "b", "c"));
  drag(at({-350, -180}), at({-250, 100}), Qt::ControlModifier);
  EXPECT_THAT(selected(), ElementsAre("b", "c"));
}

TEST_F(GestureTest, ABandShowsWhatItWouldSelectAndEscapeGivesItBack) {
  click(titleOf("c"));
  press(at({-350, -180}));
  moveTo(at({-250, 100}));
  EXPECT_THAT(selected(), ElementsAre("a"));
  moveTo(at({50, 100}));
  EXPECT_THAT(selected(), ElementsAre("a", "b"));
  moveTo(at({-250, 100}));
  EXPECT_THAT(selected(), ElementsAre("a"));
  key(Qt::Key_Escape);
  EXPECT_THAT(selected(), ElementsAre("c"));
  QTest::mouseRelease(&canvas(), Qt::LeftButton, {}, at({-250, 100}));
  EXPECT_THAT(selected(), ElementsAre("c"));
}

TEST_F(GestureTest, ABandTakesNotesThatItTouchesAndBackdropsThatItHolds) {
  host.run("orvCompound g \"/\" -addStickyNote text -addBackdrop d");
  host.run("orvCompound g \"/\" -setAnnotationMetaDataValue note editor.position \"-400,200\"");
  host.run("orvCompound g \"/\" -setAnnotationMetaDataValue d editor.position \"-200,200\"");
  host.takeEchoes();
  const auto count = [this] { return scene().selectedNotes().size(); };
  drag(at({-350, 150}), at({-150, 250}));
  EXPECT_EQ(count(), 1u);
  EXPECT_FALSE(scene().selectedNotes()[0]->isBackdrop());
  drag(at({-440, 320}), at({120, 150}));
  EXPECT_EQ(count(), 1u);
  canvas().setZoom(0.5, {});
  canvas().centreOn({});
  drag(at({-440, 420}), at({120, 150}));
  EXPECT_EQ(count(), 2u);
}

TEST_F(GestureTest, APressWithCtrlOnWhatIsSelectedDragsItAlong) {
  key(Qt::Key_A, Qt::ControlModifier);
  drag(titleOf("a"), titleOf("a") + QPoint(40, 30), Qt::ControlModifier);
  EXPECT_THAT(host.takeEchoes(), SizeIs(3));
  EXPECT_THAT(selected(), ElementsAre("a", "b", "c"));
  click(titleOf("a"), Qt::ControlModifier);
  EXPECT_THAT(selected(), ElementsAre("b", "c"));
}

TEST_F(GestureTest, ADragToTheEdgeTakesTheViewAlong) {
  const QPointF before = canvas().centre();
  press(titleOf("a"));
  moveTo(QPoint(canvas().width() - 40, 300));
  moveTo(QPoint(canvas().width() - 2, 300));
  EXPECT_TRUE(QTest::qWaitFor([&] { return canvas().centre().x() > before.x() + 100; }));
  const qreal held = box("a")->bounds.x();
  EXPECT_TRUE(QTest::qWaitFor([&] { return box("a")->bounds.x() > held + 50; }));
  key(Qt::Key_Escape);
  const QPointF stopped = canvas().centre();
  QTest::qWait(50);
  EXPECT_EQ(canvas().centre(), stopped);
  EXPECT_EQ(box("a")->bounds.topLeft(), QPointF(-300, -100));
}

TEST_F(GestureTest, ADragMovesWhatIsSelectedInOneStep) {
  click(titleOf("a"));
  click(titleOf("b"), Qt::ShiftModifier);
  const std::string before = stored();
  drag(titleOf("a"), titleOf("a") + QPoint(40, 30));
  EXPECT_THAT(oneStep(before),
              ElementsAre("orvNode \"g\" \"/a\" -setMetaData \"editor.position\" \"-260,-70\"",
                          "orvNode \"g\" \"/b\" -setMetaData \"editor.position\" \"40,-70\""));
  EXPECT_EQ(box("a")->bounds.topLeft(), QPointF(-260, -70));
  EXPECT_EQ(box("c")->bounds.topLeft(), QPointF(200, 150));
}

TEST_F(GestureTest, ADragOfWhatIsNotSelectedTakesItAlone) {
  click(titleOf("b"));
  drag(titleOf("a"), titleOf("a") + QPoint(40, 0));
  EXPECT_THAT(host.takeEchoes(), SizeIs(1));
  EXPECT_THAT(selected(), ElementsAre("a"));
}

TEST_F(GestureTest, NothingIsWrittenWhileADragGoesOn) {
  press(titleOf("a"));
  moveTo(titleOf("a") + QPoint(50, 50));
  EXPECT_EQ(box("a")->bounds.topLeft(), QPointF(-250, -50));
  EXPECT_THAT(host.takeEchoes(), IsEmpty());
  key(Qt::Key_Escape);
  EXPECT_EQ(box("a")->bounds.topLeft(), QPointF(-300, -100));
  QTest::mouseRelease(&canvas(), Qt::LeftButton, {}, at({0, 0}));
  EXPECT_THAT(host.takeEchoes(), IsEmpty());
}

TEST_F(GestureTest, ADragIsGivenUpWhenWhatItHoldsGoes) {
  press(titleOf("a"));
  moveTo(titleOf("a") + QPoint(50, 50));
  host.run("orvCompound g \"/\" -removeNode a");
  moveTo(at({100, 100}));
  QTest::mouseRelease(&canvas(), Qt::LeftButton, {}, at({100, 100}));
  EXPECT_EQ(box("b")->bounds.topLeft(), QPointF(0, -100));
  host.takeEchoes();
}

TEST_F(GestureTest, AWireIsMadeByADragFromAnOutputToAnInput) {
  const std::string before = stored();
  drag(dotOf("a", "result"), dotOf("b", "a"));
  EXPECT_THAT(oneStep(before), ElementsAre("orvConnect \"g\" \"/a.result\" \"/b.a\""));
  EXPECT_EQ(scene().wireCount(), 1u);
}

TEST_F(GestureTest, AWireIsMadeByADragFromAnInputToAnOutput) {
  drag(dotOf("b", "a"), dotOf("a", "result"));
  EXPECT_THAT(host.takeEchoes(), ElementsAre("orvConnect \"g\" \"/a.result\" \"/b.a\""));
}

TEST_F(GestureTest, AWireThatIsLetGoOnANodeGoesToItsFirstFreePortThatFits) {
  connect("/a.result", "/b.a");
  drag(dotOf("c", "result"), titleOf("b"));
  EXPECT_THAT(host.takeEchoes(), ElementsAre("orvConnect \"g\" \"/c.result\" \"/b.b\""));
}

TEST_F(GestureTest, NoWireIsMadeBetweenPortsThatDoNotFit) {
  add("core::string::length", "s", -300, 150);
  connect("/a.result", "/b.a");
  drag(dotOf("a", "result"), dotOf("s", "text"));
  drag(dotOf("b", "result"), dotOf("a", "a"));
  drag(dotOf("a", "a"), dotOf("c", "value"));
  EXPECT_THAT(host.takeEchoes(), IsEmpty());
}

TEST_F(GestureTest, TheEndOfAWireIsMovedToAnotherPort) {
  connect("/a.result", "/b.a");
  const std::string before = stored();
  drag(dotOf("b", "a"), dotOf("b", "b"));
  EXPECT_THAT(oneStep(before), ElementsAre("orvConnect \"g\" -disconnect \"/a.result\" \"/b.a\"",
                                           "orvConnect \"g\" \"/a.result\" \"/b.b\""));
}

TEST_F(GestureTest, AWireIsRemovedByADragIntoEmptySpace) {
  connect("/a.result", "/b.a");
  const std::string before = stored();
  drag(dotOf("b", "a"), at({-100, 250}));
  EXPECT_THAT(oneStep(before), ElementsAre("orvConnect \"g\" -disconnect \"/a.result\" \"/b.a\""));
  EXPECT_FALSE(menu()->isVisible());
}

TEST_F(GestureTest, ANewWireIntoEmptySpaceOpensTheMenuOfWhatFits) {
  const std::string before = stored();
  drag(dotOf("a", "result"), at({-60, 60}));
  ASSERT_TRUE(menu()->isVisible());
  for (int i = 0; i < menu()->lineCount(); ++i) EXPECT_NE(menu()->line(i).text, "Backdrop");
  QTest::keyClicks(&menu()->field(), "negate");
  EXPECT_EQ(menu()->line(0).place, "core::math");
  QTest::keyClick(&menu()->field(), Qt::Key_Return);
  EXPECT_THAT(oneStep(before),
              ElementsAre("orvCompound \"g\" \"/\" -addNode \"core::math::negate\"",
                          "orvNode \"g\" \"/negate\" -setMetaData \"editor.position\" \"-60,60\"",
                          "orvConnect \"g\" \"/a.result\" \"/negate.value\""));
  EXPECT_THAT(selected(), IsEmpty());  // by the undo
}

TEST_F(GestureTest, ANodeFromAnInputEndsWhereTheWireWasLetGo) {
  const std::string before = stored();
  drag(dotOf("b", "a"), at({-60, 60}));
  ASSERT_TRUE(menu()->isVisible());
  QTest::keyClicks(&menu()->field(), "negate");
  QTest::keyClick(&menu()->field(), Qt::Key_Return);
  ASSERT_TRUE(box("negate"));
  EXPECT_EQ(box("negate")->bounds.topRight(), QPointF(-60, 60));
  EXPECT_THAT(oneStep(before), Contains("orvConnect \"g\" \"/negate.result\" \"/b.a\""));
}

TEST_F(GestureTest, ANodeThatIsLetGoOnAWireIsPutIntoIt) {
  connect("/a.result", "/b.a");
  const QPointF middle = (scene().find(*node("/a")->port("result")).box->bounds.topRight() +
                          box("b")->bounds.topLeft()) /
                         2;
  const std::string before = stored();
  const QPointF grip(box("c")->bounds.width() / 2, 10);
  drag(titleOf("c"), at(middle + QPointF(0, 28)));
  const Lines lines = oneStep(before);
  EXPECT_THAT(lines, SizeIs(3));
  EXPECT_THAT(lines, Contains("orvConnect \"g\" \"/a.result\" \"/c.value\""));
  EXPECT_THAT(lines, Contains("orvConnect \"g\" \"/c.result\" \"/b.a\""));
  EXPECT_EQ(node("/b")->port("a")->source(), node("/c")->port("result"));
}

TEST_F(GestureTest, AWireToTheBoundaryMakesAPortThere) {
  key(Qt::Key_A);
  const std::string before = stored();
  const QPoint addRow = at(orvuilib::addRowOf(*scene().inputs()).center());
  drag(dotOf("a", "b"), addRow);
  EXPECT_THAT(oneStep(before),
              ElementsAre("orvCompound \"g\" \"/\" -createInputPort \"b\" \"float\"",
                          "orvConnect \"g\" \"/.b\" \"/a.b\""));
  EXPECT_EQ(scene().wireCount(), 1u);
}

TEST_F(GestureTest, APortIsMadeOfTheTypeThatIsChosen) {
  key(Qt::Key_A);
  const std::string before = stored();
  click(at(orvuilib::addRowOf(*scene().outputs()).center()));
  ASSERT_TRUE(menu("typeList")->isVisible());
  QTest::keyClicks(&menu("typeList")->field(), "color3");
  QTest::keyClick(&menu("typeList")->field(), Qt::Key_Return);
  EXPECT_FALSE(menu("typeList")->isVisible());
  EXPECT_THAT(oneStep(before),
              ElementsAre("orvCompound \"g\" \"/\" -createOutputPort \"output\" \"color3\""));
}

TEST_F(GestureTest, TheTypeThatWasChosenLastIsOfferedFirst) {
  key(Qt::Key_A);
  for (int i = 0; i < 2; ++i) {
    click(at(orvuilib::addRowOf(*scene().inputs()).center()));
    if (i == 0) QTest::keyClicks(&menu("typeList")->field(), "string");
    QTest::keyClick(&menu("typeList")->field(), Qt::Key_Return);
  }
  EXPECT_THAT(host.takeEchoes(),
              ElementsAre("orvCompound \"g\" \"/\" -createInputPort \"input\" \"string\"",
                          "orvCompound \"g\" \"/\" -createInputPort \"input\" \"string\""));
}

TEST_F(GestureTest, EscapeMakesNoPort) {
  key(Qt::Key_A);
  click(at(orvuilib::addRowOf(*scene().outputs()).center()));
  QTest::keyClick(&menu("typeList")->field(), Qt::Key_Escape);
  EXPECT_TRUE(canvas().hasFocus());
  EXPECT_THAT(host.takeEchoes(), IsEmpty());
}

TEST_F(GestureTest, APortIsMovedOnTheBoundary) {
  host.run("orvCompound g \"/\" -createOutputPort x float");
  host.run("orvCompound g \"/\" -createOutputPort y float");
  key(Qt::Key_A);
  host.takeEchoes();
  host.session().undoQueue().clear();
  const std::string before = stored();
  const QRectF row = orvuilib::rowOf(*scene().outputs(), scene().outputs()->portSlots[0]);
  drag(at(row.center()), at(row.center() + QPointF(0, 22)));
  EXPECT_THAT(oneStep(before), ElementsAre("orvCompound \"g\" \"/\" -movePort \"x\" 1"));
}

TEST_F(GestureTest, ABackdropMovesWithWhatLiesOnIt) {
  click(titleOf("a"));
  key(Qt::Key_B, Qt::ShiftModifier);
  ASSERT_EQ(node("/")->compound()->annotations().count(), 1u);
  host.takeEchoes();
  host.session().undoQueue().clear();
  const std::string before = stored();
  const auto* note = scene().find(node("/")->compound()->annotations().at(0));
  const QPoint head = at(note->bounds.topLeft() + QPointF(20, 10));
  click(head);
  drag(head, head + QPoint(30, 20));
  EXPECT_THAT(oneStep(before), AllOf(SizeIs(2), Contains(HasSubstr("\"/a\" -setMetaData"))));
}

TEST_F(GestureTest, ANoteIsMadeLargerByItsCorner) {
  key(Qt::Key_N, Qt::ShiftModifier);
  const auto* note = scene().find(node("/")->compound()->annotations().at(0));
  host.takeEchoes();
  host.session().undoQueue().clear();
  const QSizeF size = note->bounds.size();
  const std::string before = stored();
  const QPoint corner = at(note->bounds.bottomRight() - QPointF(4, 4));
  drag(corner, corner + QPoint(54, 44));
  EXPECT_THAT(oneStep(before), SizeIs(1)) << "its place is as it was";
  EXPECT_EQ(note->bounds.size(), size + QSizeF(50, 40));
}

TEST_F(GestureTest, TheMiddleButtonPansAndTheWheelZoomsAtThePointer) {
  const QPointF before = canvas().toScene(QPointF(0, 0));
  drag({500, 300}, {560, 340}, {}, Qt::MiddleButton);
  EXPECT_EQ(canvas().toScene(QPointF(60, 40)), before);
  const QPointF kept = canvas().toScene(QPointF(200, 100));
  QWheelEvent wheel({200, 100}, canvas().mapToGlobal(QPointF(200, 100)), {}, {0, 240}, {}, {},
                    Qt::NoScrollPhase, false);
  QApplication::sendEvent(&canvas(), &wheel);
  EXPECT_GT(canvas().zoom(), 1.2);
  EXPECT_NEAR(canvas().toScene(QPointF(200, 100)).x(), kept.x(), 1e-6);
}

TEST_F(GestureTest, ANodeIsRenamedInPlace) {
  const std::string before = stored();
  QTest::mouseDClick(&canvas(), Qt::LeftButton, {}, titleOf("a"));
  auto* field = canvas().findChild<QPlainTextEdit*>("inlineEditor");
  ASSERT_TRUE(field->isVisible());
  QTest::keyClicks(field, "sum");
  QTest::keyClick(field, Qt::Key_Return);
  EXPECT_THAT(oneStep(before), ElementsAre("orvCompound \"g\" \"/\" -renameNode \"a\" \"sum\""));
}

TEST_F(GestureTest, EscapeGivesUpARename) {
  click(titleOf("a"));
  key(Qt::Key_F2);
  auto* field = canvas().findChild<QPlainTextEdit*>("inlineEditor");
  QTest::keyClicks(field, "sum");
  QTest::keyClick(field, Qt::Key_Escape);
  EXPECT_FALSE(field->isVisible());
  EXPECT_THAT(host.takeEchoes(), IsEmpty());
}

TEST_F(GestureTest, ADoubleClickInACompoundsBodyGoesIn) {
  host.run("orvCompound g \"/\" -create inner");
  host.run("orvCompound g \"/inner\" -createInputPort x float");
  const orvuilib::BoxItem& inner = *box("inner");
  const QPoint body = at(inner.bounds.bottomRight() - QPointF(20, 12));
  QTest::mouseDClick(&canvas(), Qt::LeftButton, {}, body);
  EXPECT_THAT(editor->breadcrumb().texts(), ElementsAre("g", "/ inner"));
  host.takeEchoes();
}

TEST_F(GestureTest, EscapeGivesUpWhateverIsHeld) {
  host.run("orvCompound g \"/\" -createInputPort x float -createInputPort y float");
  host.run("orvCompound g \"/\" -addStickyNote text");
  host.run("orvCompound g \"/\" -setAnnotationMetaDataValue note editor.position \"-300,100\"");
  connect("/a.result", "/b.a");
  key(Qt::Key_A);
  const auto* note = scene().find(node("/")->compound()->annotations().at(0));
  const QRectF noteBounds = note->bounds;
  const QPointF inputs = scene().inputs()->bounds.topLeft();
  const QRectF label = orvuilib::rowOf(*scene().inputs(), scene().inputs()->portSlots[0]);
  const std::string before = stored();
  for (const QPoint& from :
       {dotOf("a", "result"), dotOf("b", "a"), at(noteBounds.bottomRight() - QPointF(4, 4)),
        at(noteBounds.center()), at(label.center()), at(inputs + QPointF(20, 10))}) {
    press(from);
    moveTo(from + QPoint(30, 45));
    moveTo(from + QPoint(60, 60));
    key(Qt::Key_Escape);
    QTest::mouseRelease(&canvas(), Qt::LeftButton, {}, from + QPoint(60, 60));
    EXPECT_THAT(host.takeEchoes(), IsEmpty());
    EXPECT_FALSE(menu()->isVisible());
    EXPECT_EQ(note->bounds, noteBounds);
    EXPECT_EQ(scene().inputs()->bounds.topLeft(), inputs);
  }
  EXPECT_EQ(stored(), before);
}

TEST_F(GestureTest, ADoubleClickChangesTheTextOfANoteABackdropAndAPort) {
  host.run("orvCompound g \"/\" -createInputPort x float");
  host.run("orvCompound g \"/\" -addStickyNote text -addBackdrop back");
  host.run("orvCompound g \"/\" -setAnnotationMetaDataValue note editor.position \"-300,100\"");
  host.run("orvCompound g \"/\" -setAnnotationMetaDataValue back editor.position \"-50,100\"");
  key(Qt::Key_A);
  const auto change = [this](const QPointF& where) {
    host.takeEchoes();
    host.session().undoQueue().clear();
    const std::string before = stored();
    QTest::mouseDClick(&canvas(), Qt::LeftButton, {}, at(where));
    QTest::keyClicks(field(), "said");
    QTest::keyClick(field(), Qt::Key_Return);
    return oneStep(before);
  };
  EXPECT_THAT(change({-290, 110}), ElementsAre(HasSubstr("\"note\" \"editor.text\" \"said\"")));
  EXPECT_THAT(change({-40, 110}), ElementsAre(HasSubstr("\"back\" \"editor.text\" \"said\"")));
  const QRectF label = orvuilib::rowOf(*scene().inputs(), scene().inputs()->portSlots[0]);
  EXPECT_THAT(change(label.center()),
              ElementsAre("orvCompound \"g\" \"/\" -renamePort \"x\" \"said\""));
}

TEST_F(GestureTest, ADoubleClickOnADotShowsComponents) {
  add("core::color::mix3", "m", -300, 100);
  const int rows = box("m")->rows;
  QTest::mouseDClick(&canvas(), Qt::LeftButton, {}, dotOf("m", "a"));
  EXPECT_EQ(box("m")->rows, rows + 3);
  QTest::mouseDClick(&canvas(), Qt::LeftButton, {}, dotOf("m", "a"));
  EXPECT_EQ(box("m")->rows, rows);
  EXPECT_THAT(host.takeEchoes(), IsEmpty());
}

TEST_F(GestureTest, ADragKeepsToTheGridWhenThatIsWanted) {
  key(Qt::Key_G, Qt::ShiftModifier);
  drag(titleOf("a"), titleOf("a") + QPoint(33, 27));
  EXPECT_THAT(host.takeEchoes(),
              ElementsAre("orvNode \"g\" \"/a\" -setMetaData \"editor.position\" \"-260,-80\""));
  key(Qt::Key_G, Qt::ShiftModifier);
}

TEST_F(GestureTest, NotesAreCopiedToAnotherLevel) {
  host.run("orvCompound g \"/\" -addStickyNote text -create inner");
  host.run("orvCompound g \"/\" -setAnnotationMetaDataValue note editor.position \"-300,100\"");
  host.run("orvNode g /inner -setMetaData editor.position \"0,150\"");
  click(at({-290, 110}));
  key(Qt::Key_C, Qt::ControlModifier);
  click(titleOf("inner"));
  key(Qt::Key_Return);
  host.takeEchoes();
  host.session().undoQueue().clear();
  const std::string before = stored();
  key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_THAT(oneStep(before), Contains("orvPaste \"g\" \"/inner\""));
  EXPECT_EQ(node("/inner")->compound()->annotations().count(), 1u);
}

}  // namespace
