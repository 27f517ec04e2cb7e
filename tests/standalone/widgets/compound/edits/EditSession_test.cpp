#include "standalone/graph/edits/FaultPoints.h"
#include "tests/standalone/widgets/compound/edits/EditsTesting.h"

namespace {

using orvlib::ArmedFault;
using testing::IsEmpty;

class EditStepTest : public EditsTest {
 protected:
  EditStepTest() {
    add("core::math::add", "a", -300, -100);
    add("core::math::negate", "b", 0, -80);
    script({"orvConnect g /a.result /b.value"});
    open();
  }

  /// A key whose gesture has to leave the graph and the undo queue as they were.
  void expectTakenBack(Qt::Key pressed, Qt::KeyboardModifiers modifiers = {}) {
    host.run("orvNode g /a -setPortDefaultValues a 3");
    const std::string before = stored();
    const Lines steps = host.steps();
    key(pressed, modifiers);
    host.session().runIdleLines();
    EXPECT_EQ(stored(), before);
    EXPECT_EQ(host.steps(), steps);
    EXPECT_FALSE(canvas().notice().isEmpty());
    host.takeEchoes();
    host.takeMessages();
  }
};

TEST_F(EditStepTest, OneOfWhichNoLineWorksLeavesNoStep) {
  host.run("orvCompound g / -create closed");
  host.run("orvCompound g /closed -setMetaData locked true");
  select({"closed"});
  expectTakenBack(Qt::Key_G, Qt::ControlModifier | Qt::ShiftModifier);
}

TEST_F(EditStepTest, OneOfWhichALaterLineFailsIsTakenBackWhole) {
  select({"a", "b"});
  const ArmedFault fault("NodeCommand removeNode", 2);
  ASSERT_TRUE(fault.isArmed());
  expectTakenBack(Qt::Key_Delete);
  EXPECT_TRUE(fault.refused());
  EXPECT_TRUE(node("/a"));
  EXPECT_TRUE(canvas().notice().contains("Remove"));
}

TEST_F(EditStepTest, AWireThatCannotGoToItsNewPortStaysWhereItWas) {
  script({"orvCompound g / -addNode core::math::multiply"});
  host.run("orvNode g /multiply -setMetaData editor.position 0,60");
  const std::string before = stored();
  forget();
  const ArmedFault fault("ConnectCommand connect");
  ASSERT_TRUE(fault.isArmed());
  drag(dotOf("b", "value"), dotOf("multiply", "a"));
  EXPECT_TRUE(fault.refused());
  host.session().runIdleLines();
  EXPECT_EQ(stored(), before);
  EXPECT_TRUE(canvas().notice().contains("Move wire"));
  EXPECT_THAT(host.steps(), IsEmpty());
  host.takeEchoes();
  host.takeMessages();
}

TEST_F(EditStepTest, AnEmptyClipboardPastesNothingAndSaysSo) {
  host.run("orvCopy g /");
  expectTakenBack(Qt::Key_V, Qt::ControlModifier);
  EXPECT_TRUE(canvas().notice().contains("clipboard"));
}

TEST_F(EditStepTest, TheNextUndoReachesTheEditBefore) {
  host.run("orvNode g /a -setPortDefaultValues a 3");
  host.run("orvCopy g /");
  const Lines before = host.steps();
  key(Qt::Key_V, Qt::ControlModifier);
  host.session().runIdleLines();
  EXPECT_EQ(host.steps(), before);
  undo();
  EXPECT_FALSE(node("/a")->port("a")->ownValue());
  host.takeEchoes();
  host.takeMessages();
}

}  // namespace
