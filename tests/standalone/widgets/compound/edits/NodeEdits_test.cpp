#include "standalone/widgets/compound/edits/NodeEdits.h"

#include "standalone/graph/edits/FaultPoints.h"
#include "tests/standalone/widgets/compound/edits/EditsTesting.h"

namespace {

using orvlib::ArmedFault;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// a -> b, and a sticky note.
class NodeEditsTest : public EditsTest {
 protected:
  NodeEditsTest() {
    add("core::math::add", "a", -300, -100);
    add("core::math::negate", "b", 100, -80);
    script({"orvConnect g /a.result /b.value", "orvCompound g / -addStickyNote text",
            "orvCompound g / -setAnnotationMetaDataValue note editor.position \"-300,100\"",
            "orvCompound g / -setAnnotationMetaDataValue note editor.size \"60,40\""});
    open();
  }

  QPointF middleOfWire() {
    const auto* wire = box("b")->arriving.front();
    return (wire->start + wire->end) / 2;
  }
  void openMenuOfWire() {
    rightClick(at(middleOfWire()));
    choose("Put a node into it...");
    ASSERT_TRUE(menu()->isVisible());
  }
  void pick(const char* name) {
    QTest::keyClicks(&menu()->field(), name);
    QTest::keyClick(&menu()->field(), Qt::Key_Return);
  }
  void clickNote() { click(at({-290, 110})); }
};

TEST_F(NodeEditsTest, ANodePutIntoAWireLiesAroundTheMiddleOfIt) {
  const QPointF middle = middleOfWire();
  openMenuOfWire();
  pick("absolute");
  ASSERT_TRUE(node("/absolute"));
  const QPointF away = box("absolute")->bounds.center() - middle;
  EXPECT_LT(away.manhattanLength(), 1);
  EXPECT_EQ(node("/b")->port("value")->source()->node(), node("/absolute"));
  EXPECT_EQ(host.steps().size(), 1u);
  host.takeEchoes();
}

TEST_F(NodeEditsTest, ANodeThatCannotBePutIntoAWireCostsNoOtherStep) {
  for (const char* point : {"NodeCommand createNode", "ConnectCommand connect"}) {
    host.run("orvNode g /a -setPortDefaultValues a 3");
    const std::string before = stored();
    const Lines steps = host.steps();
    {
      const ArmedFault fault(point);
      ASSERT_TRUE(fault.isArmed()) << point;
      openMenuOfWire();
      pick("absolute");
      EXPECT_TRUE(fault.refused()) << point;
    }
    host.session().runIdleLines();
    EXPECT_EQ(stored(), before);
    EXPECT_EQ(host.steps(), steps);
    EXPECT_THAT(canvas().notice().toStdString(), HasSubstr("Insert"));
    host.takeEchoes();
    host.takeMessages();
  }
}

TEST_F(NodeEditsTest, ANoteOfTheSmallestSizeIsNotMadeSmaller) {
  clickNote();
  forget();
  key(Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
  key(Qt::Key_Up, Qt::ControlModifier | Qt::ShiftModifier);
  host.session().runIdleLines();
  EXPECT_THAT(host.takeEchoes(), IsEmpty());
  EXPECT_THAT(host.steps(), IsEmpty());
  EXPECT_TRUE(canvas().notice().isEmpty());
}

TEST_F(NodeEditsTest, ANoteThatGrowsStaysWhereItIsWithoutALine) {
  clickNote();
  EXPECT_THAT(step(Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier),
              ElementsAre("orvCompound \"g\" \"/\" -setAnnotationMetaDataValue \"note\" "
                          "\"editor.size\" \"70,40\""));
}

TEST_F(NodeEditsTest, WhatIsAlignedAlreadyIsLeftAlone) {
  host.run("orvNode g /b -setMetaData editor.position \"100,-100\"");
  select({"a", "b"});
  forget();
  key(Qt::Key_Up, Qt::ControlModifier);
  host.session().runIdleLines();
  EXPECT_THAT(host.takeEchoes(), IsEmpty());
  EXPECT_THAT(host.steps(), IsEmpty());
}

}  // namespace
