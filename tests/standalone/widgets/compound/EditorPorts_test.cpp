#include "tests/standalone/widgets/compound/EditorTesting.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// Ports and wires by keys: a -> b by two wires, c apart from them.
class EditorPortsTest : public EditorTest {
 protected:
  EditorPortsTest() {
    add("core::math::add", "a", -300, -100);
    add("core::math::add", "b", 0, -100);
    add("core::math::negate", "c", 250, 100);
    host.run("orvConnect g /a.result /b.a");
    host.run("orvConnect g /a.result /b.b");
    host.takeEchoes();
    host.session().undoQueue().clear();
    open();
  }

  void left() { key(Qt::Key_Left, Qt::ShiftModifier); }
  void right() { key(Qt::Key_Right, Qt::ShiftModifier); }
  void up() { key(Qt::Key_Up, Qt::ShiftModifier); }
  void down() { key(Qt::Key_Down, Qt::ShiftModifier); }

  /// Presses a key and gives the lines of what must be one undo step.
  Lines step(Qt::Key pressed, Qt::KeyboardModifiers modifiers = {}) {
    return step([&] { key(pressed, modifiers); });
  }
  template <class Do>
  Lines step(Do something) {
    host.takeEchoes();
    host.session().undoQueue().clear();
    const std::string before = stored();
    something();
    return oneStep(before);
  }

  /// Which port of the canvas has the ring, seen by what watching it does; undone again.
  std::string current() {
    host.takeEchoes();
    key(Qt::Key_W);
    const Lines lines = host.takeEchoes();
    undo();
    host.takeEchoes();
    return lines.empty() ? "none" : lines.front();
  }
  static std::string watched(const std::string& node, const std::string& port) {
    return "orvWatchPoint \"g\" \"" + node + "\" \"" + port + "\" -create";
  }

  void makeCompound() {
    host.run("orvCompound g \"/\" -create inner");
    host.run("orvNode g /inner -setMetaData editor.position \"0,200\"");
    host.run("orvCompound g /inner -createInputPort x float -createInputPort y float");
    host.takeEchoes();
  }
};

TEST_F(EditorPortsTest, TheArrowsGoFromPortToPort) {
  click(titleOf("b"));
  left();
  EXPECT_EQ(current(), watched("/b", "a"));
  click(titleOf("b"));
  left();
  down();
  EXPECT_EQ(current(), watched("/b", "b"));
  click(titleOf("b"));
  left();
  down();
  up();
  right();
  EXPECT_EQ(current(), watched("/b", "result"));
}

TEST_F(EditorPortsTest, TheArrowsGoAlongWiresToTheNextNode) {
  click(titleOf("b"));
  left();
  EXPECT_THAT(selected(), ElementsAre("b"));
  left();
  EXPECT_THAT(selected(), IsEmpty());
  left();
  EXPECT_THAT(selected(), ElementsAre("a"));
  right();
  down();
  right();
  EXPECT_THAT(selected(), ElementsAre("b"));
  EXPECT_EQ(current(), watched("/b", "b"));
}

TEST_F(EditorPortsTest, WhereNoWireLeadsTheArrowsGoToTheNearestNode) {
  click(titleOf("b"));
  right();
  right();
  EXPECT_THAT(selected(), ElementsAre("c"));
  left();
  EXPECT_THAT(selected(), ElementsAre("b"));
}

TEST_F(EditorPortsTest, TheArrowsBeginAtTheNodeInTheMiddle) {
  canvas().centreOn({250, 100});
  left();
  EXPECT_THAT(selected(), ElementsAre("c"));
}

TEST_F(EditorPortsTest, AClickEscapeAndAnotherSelectionLetGoOfThePort) {
  const auto hasPort = [this] {
    key(Qt::Key_D, Qt::ShiftModifier);
    return canvas().notice().isEmpty();
  };
  click(titleOf("c"));
  left();
  EXPECT_TRUE(hasPort());
  click(titleOf("c"));
  EXPECT_FALSE(hasPort());
  left();
  key(Qt::Key_Escape);
  EXPECT_FALSE(hasPort());
  click(titleOf("c"));
  left();
  key(Qt::Key_A, Qt::ControlModifier);
  EXPECT_FALSE(hasPort());
  host.takeEchoes();
}

TEST_F(EditorPortsTest, AWireIsMadeByKeys) {
  click(titleOf("b"));
  right();
  key(Qt::Key_C);
  right();
  EXPECT_THAT(step(Qt::Key_C), ElementsAre("orvConnect \"g\" \"/b.result\" \"/c.value\""));
}

TEST_F(EditorPortsTest, EscapeDropsAWireBegunByKeyAndNothingElse) {
  click(titleOf("b"));
  right();
  key(Qt::Key_C);
  key(Qt::Key_Escape);
  EXPECT_THAT(selected(), ElementsAre("b"));
  right();
  key(Qt::Key_C);
  EXPECT_THAT(host.takeEchoes(), IsEmpty());
  key(Qt::Key_C);
  EXPECT_THAT(host.takeEchoes(), IsEmpty());
}

TEST_F(EditorPortsTest, PortsThatDoNotFitAreNotConnected) {
  click(titleOf("b"));
  left();
  key(Qt::Key_C);
  down();
  key(Qt::Key_C);
  EXPECT_THAT(host.takeEchoes(), IsEmpty());
  EXPECT_FALSE(canvas().notice().isEmpty());
}

TEST_F(EditorPortsTest, TabAddsANodeToAWireBegunByKey) {
  click(titleOf("b"));
  right();
  key(Qt::Key_C);
  const Lines lines = step([this] {
    key(Qt::Key_Tab);
    QTest::keyClicks(&menu()->field(), "negate");
    QTest::keyClick(&menu()->field(), Qt::Key_Return);
  });
  EXPECT_THAT(lines, Contains("orvConnect \"g\" \"/b.result\" \"/negate.value\""));
}

TEST_F(EditorPortsTest, TabPutsANodeIntoTheCurrentWire) {
  click(titleOf("b"));
  left();
  left();
  const Lines lines = step([this] {
    key(Qt::Key_Tab);
    QTest::keyClicks(&menu()->field(), "negate");
    QTest::keyClick(&menu()->field(), Qt::Key_Return);
  });
  EXPECT_THAT(lines, Contains("orvConnect \"g\" \"/a.result\" \"/negate.value\""));
  EXPECT_THAT(lines, Contains("orvConnect \"g\" \"/negate.result\" \"/b.a\""));
}

TEST_F(EditorPortsTest, TheCurrentWireIsRemovedAndWatched) {
  const auto goToSecond = [this] {
    click(titleOf("a"));
    right();
    right();
    down();
  };
  goToSecond();
  EXPECT_EQ(current(), watched("/a", "result"));
  goToSecond();
  EXPECT_THAT(step(Qt::Key_Delete),
              ElementsAre("orvConnect \"g\" -disconnect \"/a.result\" \"/b.b\""));
  undo();
  goToSecond();
  EXPECT_THAT(step(Qt::Key_D), ElementsAre("orvConnect \"g\" -disconnect \"/a.result\" \"/b.b\""));
}

TEST_F(EditorPortsTest, ThePortsWiresAreTakenOffInOneStep) {
  click(titleOf("a"));
  right();
  EXPECT_THAT(step(Qt::Key_D, Qt::ShiftModifier),
              ElementsAre("orvConnect \"g\" -disconnect \"/a.result\" \"/b.a\"",
                          "orvConnect \"g\" -disconnect \"/a.result\" \"/b.b\""));
}

TEST_F(EditorPortsTest, APortOfACompoundIsMovedRenamedRetypedHiddenShownAndDeleted) {
  makeCompound();
  const auto goToX = [this] {
    click(titleOf("inner"));
    left();
  };
  goToX();
  EXPECT_THAT(step(Qt::Key_PageDown, Qt::ShiftModifier),
              ElementsAre("orvCompound \"g\" \"/inner\" -movePort \"x\" 1"));
  EXPECT_THAT(step(Qt::Key_PageUp, Qt::ShiftModifier),
              ElementsAre("orvCompound \"g\" \"/inner\" -movePort \"x\" 0"));
  goToX();
  EXPECT_THAT(step([this] {
                key(Qt::Key_F2, Qt::ShiftModifier);
                QTest::keyClicks(field(), "z");
                QTest::keyClick(field(), Qt::Key_Return);
              }),
              ElementsAre("orvCompound \"g\" \"/inner\" -renamePort \"x\" \"z\""));
  goToX();
  EXPECT_THAT(step([this] {
                key(Qt::Key_T, Qt::ShiftModifier);
                QTest::keyClicks(&menu("typeList")->field(), "color3");
                QTest::keyClick(&menu("typeList")->field(), Qt::Key_Return);
              }),
              ElementsAre("orvCompound \"g\" \"/inner\" -setPortDataType \"z\" \"color3\""));
  goToX();
  EXPECT_THAT(step(Qt::Key_H, Qt::ShiftModifier),
              ElementsAre("orvCompound \"g\" \"/inner\" -hidePort \"z\" true"));
  click(titleOf("inner"));
  EXPECT_THAT(step(Qt::Key_H, Qt::ControlModifier | Qt::ShiftModifier),
              ElementsAre("orvCompound \"g\" \"/inner\" -hidePort \"z\" false"));
  goToX();
  EXPECT_THAT(step(Qt::Key_Delete, Qt::ShiftModifier),
              ElementsAre("orvCompound \"g\" \"/inner\" -deletePort \"z\""));
}

TEST_F(EditorPortsTest, APortIsMadeByKeyAndIsTheCurrentOne) {
  makeCompound();
  click(titleOf("inner"));
  EXPECT_THAT(step([this] {
                key(Qt::Key_O, Qt::ShiftModifier);
                QTest::keyClick(&menu("typeList")->field(), Qt::Key_Return);
              }),
              ElementsAre("orvCompound \"g\" \"/inner\" -createOutputPort \"output\" \"float\""));
  key(Qt::Key_Escape);
  EXPECT_THAT(step([this] {
                key(Qt::Key_I, Qt::ShiftModifier);
                QTest::keyClick(&menu("typeList")->field(), Qt::Key_Return);
              }),
              ElementsAre("orvCompound \"g\" \"/\" -createInputPort \"input\" \"float\""));
  key(Qt::Key_I, Qt::ShiftModifier);
  QTest::keyClick(&menu("typeList")->field(), Qt::Key_Return);
  host.takeEchoes();
  key(Qt::Key_Delete, Qt::ShiftModifier);
  EXPECT_THAT(host.takeEchoes(), ElementsAre("orvCompound \"g\" \"/\" -deletePort \"input1\""));
}

TEST_F(EditorPortsTest, ComponentsAreShownByKey) {
  add("core::color::mix3", "m", -300, 100);
  const auto rows = box("m")->rows;
  click(titleOf("m"));
  left();
  key(Qt::Key_O);
  EXPECT_EQ(box("m")->rows, rows + 3);
  down();
  EXPECT_THAT(current(), HasSubstr("\"a.r\""));
}

TEST_F(EditorPortsTest, APlainNodesPortsKeepTheirNames) {
  click(titleOf("a"));
  left();
  key(Qt::Key_F2, Qt::ShiftModifier);
  key(Qt::Key_Delete, Qt::ShiftModifier);
  EXPECT_FALSE(field()->isVisible());
  EXPECT_THAT(host.takeEchoes(), IsEmpty());
}

TEST_F(EditorPortsTest, NothingIsEditedInALockedLevel) {
  click(titleOf("a"));
  right();
  host.run("orvCompound g \"/\" -setMetaData locked true");
  host.takeEchoes();
  for (const Qt::Key each : {Qt::Key_D, Qt::Key_H, Qt::Key_I, Qt::Key_Delete, Qt::Key_T}) {
    key(each, Qt::ShiftModifier);
  }
  key(Qt::Key_C);
  right();
  key(Qt::Key_C);
  EXPECT_THAT(host.takeEchoes(), IsEmpty());
  EXPECT_FALSE(menu("typeList")->isVisible());
  EXPECT_TRUE(canvas().notice().contains("locked"));
}

TEST_F(EditorPortsTest, APortThatGoesIsNoLongerCurrent) {
  makeCompound();
  click(titleOf("inner"));
  left();
  key(Qt::Key_C);
  host.run("orvCompound g /inner -deletePort x");
  host.takeEchoes();
  key(Qt::Key_D, Qt::ShiftModifier);
  EXPECT_FALSE(canvas().notice().isEmpty());
  canvas().grab();
}

}  // namespace
