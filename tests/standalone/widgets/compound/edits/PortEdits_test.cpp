#include "standalone/widgets/compound/edits/PortEdits.h"

#include "tests/standalone/widgets/compound/edits/EditsTesting.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kMove = "orvCompound \"g\" \"/\" -movePort ";

/// A level with the inputs a, b, c and d.
class PortEditsTest : public EditsTest {
 protected:
  PortEditsTest() {
    script({"orvCompound g / -createInputPort a float -createInputPort b color3",
            "orvCompound g / -createInputPort c float -createInputPort d float"});
    open();
    key(Qt::Key_A);
  }

  const orvuilib::PortSlot& slotOf(const orvuilib::BoxItem& its, const std::string& port) {
    for (const auto& slot : its.portSlots) {
      if (slot.port->name() == port && slot.depth == 0) return slot;
    }
    ADD_FAILURE() << "no port " << port;
    return its.portSlots.front();
  }
  QPoint rowOf(const std::string& port) {
    const orvuilib::BoxItem& inputs = *scene().inputs();
    return at(orvuilib::rowOf(inputs, slotOf(inputs, port)).center());
  }

  Lines order() {
    Lines names;
    for (const auto* port : node("/")->inputList().items()) names.push_back(port->name());
    return names;
  }

  /// Drags the label of a port over that of another; must be one step.
  Lines moveTo(const std::string& port, const QPoint& to) {
    forget();
    const std::string before = stored();
    drag(rowOf(port), to);
    return oneStep(before);
  }
};

TEST_F(PortEditsTest, APortGoesWhereItIsLetGo) {
  EXPECT_THAT(moveTo("a", rowOf("c") + QPoint(0, 4)), ElementsAre(std::string(kMove) + "\"a\" 2"));
  EXPECT_THAT(order(), ElementsAre("b", "c", "a", "d"));
  EXPECT_THAT(moveTo("d", rowOf("b") - QPoint(0, 4)), ElementsAre(std::string(kMove) + "\"d\" 0"));
  EXPECT_THAT(order(), ElementsAre("d", "b", "c", "a"));
}

TEST_F(PortEditsTest, BeyondTheEndsItGoesToTheEnd) {
  moveTo("b", rowOf("d") + QPoint(0, 200));
  EXPECT_THAT(order(), ElementsAre("a", "c", "d", "b"));
  moveTo("d", rowOf("a") - QPoint(0, 200));
  EXPECT_THAT(order(), ElementsAre("d", "a", "c", "b"));
}

TEST_F(PortEditsTest, HiddenPortsAreNoPlaces) {
  script({"orvCompound g / -hidePort b true"});
  EXPECT_THAT(moveTo("a", rowOf("c") + QPoint(0, 4)), ElementsAre(std::string(kMove) + "\"a\" 2"));
  EXPECT_THAT(order(), ElementsAre("b", "c", "a", "d"));
}

TEST_F(PortEditsTest, OpenComponentsAreNoPlaces) {
  const orvuilib::BoxItem& inputs = *scene().inputs();
  QTest::mouseDClick(&canvas(), Qt::LeftButton, {}, dotOf(inputs, "b"));
  ASSERT_EQ(inputs.rows, 8);
  forget();
  drag(rowOf("a"), rowOf("b") + QPoint(0, 19));
  EXPECT_THAT(host.takeEchoes(), IsEmpty()) << "above the middle of the open port";
  moveTo("a", rowOf("c") - QPoint(0, 4));
  EXPECT_THAT(order(), ElementsAre("b", "a", "c", "d"));
}

TEST_F(PortEditsTest, PortsOnAnInputNodeAreNoPlacesOfTheBoundary) {
  script({"orvCompound g / -addIONode true", "orvCompound g / -movePortToIONode b input"});
  EXPECT_THAT(moveTo("a", rowOf("c") + QPoint(0, 4)), ElementsAre(std::string(kMove) + "\"a\" 2"));
}

TEST_F(PortEditsTest, WhereItIsItStays) {
  forget();
  drag(rowOf("b"), rowOf("b") + QPoint(12, 6));
  EXPECT_THAT(host.takeEchoes(), IsEmpty());
  EXPECT_THAT(host.steps(), IsEmpty());
}

TEST_F(PortEditsTest, OnAnInputNodeTheyChangePlacesThere) {
  script({"orvCompound g / -addIONode true", "orvCompound g / -movePortToIONode a input",
          "orvCompound g / -movePortToIONode b input",
          "orvCompound g / -movePortToIONode c input"});
  orvlib::PortObject* first = box("input")->portSlots[0].port.get();
  ASSERT_EQ(first->name(), "a");
  const std::string before = stored();
  orvuilib::EditSession session(const_cast<orvuilib::LevelScene&>(scene()));
  EXPECT_TRUE(orvuilib::edits::movePort(session, *first, 1));
  EXPECT_THAT(oneStep(before),
              ElementsAre("orvCompound \"g\" \"/\" -movePortToIONode \"b\" \"input\"",
                          "orvCompound \"g\" \"/\" -movePortToIONode \"a\" \"input\"",
                          "orvCompound \"g\" \"/\" -movePortToIONode \"c\" \"input\""));
  EXPECT_EQ(box("input")->portSlots[0].port->name(), "b");
  EXPECT_EQ(box("input")->portSlots[1].port->name(), "a");
}

}  // namespace
