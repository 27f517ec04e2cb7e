#include "standalone/widgets/compound/input/Interaction.h"

#include <QShortcut>

#include "standalone/widgets/parameters/fields/RangeSlider.h"
#include "tests/standalone/widgets/compound/EditorTesting.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// Keys, and what ends a gesture that its user did not end.
class InteractionTest : public EditorTest {
 protected:
  InteractionTest() {
    add("core::math::add", "a", -300, -100);
    add("core::math::add", "b", 0, -100);
    open();
  }

  /// Holds the title of "a", 50 and 40 away from where it was.
  void holdA() {
    press(titleOf("a"));
    moveTo(titleOf("a") + QPoint(50, 40));
    ASSERT_EQ(box("a")->bounds.topLeft(), QPointF(-250, -60));
  }
  void letGo() {
    QTest::mouseRelease(&canvas(), Qt::LeftButton, {}, at({0, 250}));
    EXPECT_THAT(host.takeEchoes(), IsEmpty());
  }
  bool isHeld() { return box("a")->bounds.topLeft() == QPointF(-250, -60); }
  void run(const char* line) {
    host.run(line);
    host.takeEchoes();
  }
};

TEST_F(InteractionTest, KeysThatTheCanvasDoesNotKnowAreTheWindows) {
  int saved = 0;
  QShortcut save(QKeySequence("Ctrl+S"), editor.get());
  QObject::connect(&save, &QShortcut::activated, [&saved] { ++saved; });
  int duplicated = 0;
  QShortcut duplicate(QKeySequence("Ctrl+D"), editor.get());
  QObject::connect(&duplicate, &QShortcut::activated, [&duplicated] { ++duplicated; });
  canvas().setFocus();
  click(titleOf("a"));
  key(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(saved, 1);
  key(Qt::Key_D, Qt::ControlModifier);
  EXPECT_EQ(duplicated, 0);
  EXPECT_TRUE(node("/a1"));
  host.takeEchoes();
}

TEST_F(InteractionTest, KeysOfTheWindowWorkWhileAFieldIsOpen) {
  int saved = 0;
  QShortcut save(QKeySequence("Ctrl+S"), editor.get());
  QObject::connect(&save, &QShortcut::activated, [&saved] { ++saved; });
  QShortcut plain(QKeySequence("S"), editor.get());
  QObject::connect(&plain, &QShortcut::activated, [&saved] { saved += 100; });
  click(titleOf("a"));
  key(Qt::Key_F2);
  QTest::keyClick(field(), Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(saved, 1);
  QTest::keyClick(field(), Qt::Key_S);
  EXPECT_EQ(field()->toPlainText(), "s");
  QTest::keyClick(field(), Qt::Key_Escape);
  key(Qt::Key_Tab);
  QTest::keyClick(&menu()->field(), Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(saved, 2);
  QTest::keyClick(&menu()->field(), Qt::Key_S);
  EXPECT_EQ(menu()->field().text(), "s");
}

TEST_F(InteractionTest, AMoveGoesOnOverChangesOfOtherThings) {
  host.run("orvCompound g \"/\" -create inner");
  holdA();
  run("orvNode g /b -setPortDefaultValues b 2");
  EXPECT_TRUE(isHeld());
  run("orvNode g /a -setPortDefaultValues b 2");
  EXPECT_TRUE(isHeld());
  run("orvNode g /a -setMetaData note text");
  EXPECT_TRUE(isHeld());
  run("orvCompound g /inner -addNode core::math::add");
  run("orvCompound g \"/\" -removeNode b");
  EXPECT_TRUE(isHeld());
  moveTo(titleOf("a") + QPoint(10, 0));
  QTest::mouseRelease(&canvas(), Qt::LeftButton, {}, titleOf("a") + QPoint(0, 0));
  EXPECT_THAT(host.takeEchoes(), SizeIs(1));
}

TEST_F(InteractionTest, AMoveEndsWhenWhatItHoldsIsPutElsewhere) {
  holdA();
  run("orvNode g /a -setMetaData editor.position \"7,8\"");
  EXPECT_EQ(box("a")->bounds.topLeft(), QPointF(7, 8));
  moveTo(at({100, 100}));
  letGo();
  EXPECT_EQ(box("a")->bounds.topLeft(), QPointF(7, 8));
}

TEST_F(InteractionTest, AMoveEndsWhenTheLevelIsLocked) {
  holdA();
  run("orvCompound g \"/\" -setMetaData locked true");
  EXPECT_EQ(box("a")->bounds.topLeft(), QPointF(-300, -100));
  letGo();
}

TEST_F(InteractionTest, ANoteIsHeldUntilItGoes) {
  run("orvCompound g \"/\" -addStickyNote text");
  run("orvCompound g \"/\" -setAnnotationMetaDataValue note editor.position \"-400,100\"");
  const auto* note = scene().find(node("/")->compound()->annotations().at(0));
  press(at({-390, 110}));
  moveTo(at({-370, 120}));
  run("orvCompound g \"/\" -addStickyNote text");
  EXPECT_EQ(note->bounds.topLeft(), QPointF(-380, 110));
  run("orvCompound g \"/\" -removeAnnotation note");
  EXPECT_THAT(scene().selectedNotes(), IsEmpty());
  moveTo(at({-300, 120}));
  letGo();
}

TEST_F(InteractionTest, AWireGoesOnUntilItsPortGoes) {
  press(dotOf("a", "result"));
  moveTo(dotOf("a", "result") + QPoint(60, 10));
  run("orvNode g /b -setPortDefaultValues b 2");
  moveTo(dotOf("b", "a"));
  QTest::mouseRelease(&canvas(), Qt::LeftButton, {}, dotOf("b", "a"));
  EXPECT_THAT(host.takeEchoes(), ElementsAre("orvConnect \"g\" \"/a.result\" \"/b.a\""));
  press(dotOf("a", "b"));
  moveTo(dotOf("a", "b") + QPoint(-60, 10));
  run("orvCompound g \"/\" -removeNode a");
  moveTo(at({-400, 200}));
  letGo();
  EXPECT_FALSE(menu()->isVisible());
}

TEST_F(InteractionTest, TheEndOfAWireIsLostWithTheWire) {
  run("orvConnect g /a.result /b.a");
  press(dotOf("b", "a"));
  moveTo(dotOf("b", "a") + QPoint(-30, 60));
  run("orvConnect g -disconnect /a.result /b.a");
  moveTo(dotOf("b", "b"));
  letGo();
}

TEST_F(InteractionTest, ABandAndAPanGoOnOverAnyChange) {
  press(at({-350, -180}));
  moveTo(at({50, 100}));
  run("orvCompound g \"/\" -removeNode a");
  EXPECT_THAT(selected(), ElementsAre("b"));
  run("orvCompound g \"/\" -setMetaData locked true");
  moveTo(at({-250, 100}));
  EXPECT_THAT(selected(), IsEmpty());
  QTest::mouseRelease(&canvas(), Qt::LeftButton, {}, at({50, 100}));
  EXPECT_THAT(selected(), ElementsAre("b"));
  const QPointF before = canvas().toScene(QPointF(0, 0));
  press({300, 300}, {}, Qt::MiddleButton);
  moveTo({320, 300}, Qt::MiddleButton);
  run("orvCompound g \"/\" -setMetaData locked false");
  moveTo({340, 330}, Qt::MiddleButton);
  EXPECT_EQ(canvas().toScene(QPointF(40, 30)), before);
}

TEST_F(InteractionTest, AClickThatTheGraphChangesUnderIsAClickAllTheSame) {
  press(titleOf("b"));
  run("orvNode g /b -setPortDefaultValues b 2");
  run("orvCompound g \"/\" -removeNode a");
  QTest::mouseRelease(&canvas(), Qt::LeftButton, {}, titleOf("b"));
  EXPECT_THAT(selected(), ElementsAre("b"));
}

TEST_F(InteractionTest, ADragEndsWithTheFocus) {
  QLineEdit other(editor.get());
  other.show();
  holdA();
  other.setFocus();
  EXPECT_EQ(box("a")->bounds.topLeft(), QPointF(-300, -100));
  letGo();
}

TEST_F(InteractionTest, ADragEndsWhenItsReleaseWentElsewhere) {
  holdA();
  hover(at({200, 200}));
  EXPECT_EQ(box("a")->bounds.topLeft(), QPointF(-300, -100));
  letGo();
}

TEST_F(InteractionTest, ADragEndsWhenTheWindowOrTheCanvasGoes) {
  holdA();
  QEvent deactivate(QEvent::WindowDeactivate);
  QApplication::sendEvent(&canvas(), &deactivate);
  EXPECT_EQ(box("a")->bounds.topLeft(), QPointF(-300, -100));
  letGo();
  holdA();
  editor->hide();
  EXPECT_EQ(box("a")->bounds.topLeft(), QPointF(-300, -100));
  letGo();
}

TEST_F(InteractionTest, SpaceIsForgottenWithTheFocus) {
  QLineEdit other(editor.get());
  other.show();
  const QPointF before = canvas().toScene(QPointF(0, 0));
  canvas().setFocus();
  QTest::keyPress(&canvas(), Qt::Key_Space);
  drag({300, 300}, {340, 330});
  EXPECT_EQ(canvas().toScene(QPointF(40, 30)), before);
  const QPointF panned = canvas().toScene(QPointF(0, 0));
  other.setFocus();
  canvas().setFocus();
  drag({300, 500}, {340, 530});
  EXPECT_EQ(canvas().toScene(QPointF(0, 0)), panned);
}

TEST_F(InteractionTest, AKeyDoesNothingElseWhileAButtonIsHeld) {
  holdA();
  key(Qt::Key_Delete);
  key(Qt::Key_Tab);
  EXPECT_TRUE(isHeld());
  EXPECT_FALSE(menu()->isVisible());
  key(Qt::Key_Escape);
  letGo();
  EXPECT_TRUE(node("/a"));
}

TEST_F(InteractionTest, ASliderIsLetGoWithTheFocusAndWithALostRelease) {
  QWidget window;
  orvuilib::RangeSlider slider(&window);
  QLineEdit other(&window);
  slider.resize(200, 20);
  int cancelled = 0;
  int ended = 0;
  slider.cancelled = [&cancelled] { ++cancelled; };
  slider.ended = [&ended] { ++ended; };
  window.show();
  QApplication::setActiveWindow(&window);
  slider.setFocus();
  QTest::mousePress(&slider, Qt::LeftButton, {}, {50, 10});
  other.setFocus();
  EXPECT_EQ(cancelled, 1);
  QTest::mouseRelease(&slider, Qt::LeftButton, {}, {50, 10});
  QTest::mousePress(&slider, Qt::LeftButton, {}, {50, 10});
  QMouseEvent move(QEvent::MouseMove, {80, 10}, slider.mapToGlobal(QPointF(80, 10)), Qt::NoButton,
                   Qt::NoButton, Qt::NoModifier);
  QApplication::sendEvent(&slider, &move);
  EXPECT_EQ(cancelled, 2);
  EXPECT_FALSE(slider.isDragged());
  QTest::mouseRelease(&slider, Qt::LeftButton, {}, {50, 10});
  EXPECT_EQ(ended, 0);
}

TEST_F(InteractionTest, AnOutputThatIsFedFromWithinTellsItsSource) {
  run("orvCompound g / -create box -moveNodeIn b");
  run("orvCompound g /box -createOutputPort out float");
  const auto tip = [this] {
    return orvuilib::toolTipFor(canvas().hitAt(canvas().toScene(dotOf("box", "out"))));
  };
  EXPECT_TRUE(tip().contains("value: 0")) << tip().toStdString();
  run("orvConnect g /box/b.result /box.out");
  EXPECT_FALSE(tip().contains("value:")) << tip().toStdString();
  EXPECT_TRUE(tip().contains(" b.result")) << tip().toStdString();
}

}  // namespace
