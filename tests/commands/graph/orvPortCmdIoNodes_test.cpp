// Flags of ports that an input or output node shows.

#include "tests/commands/CommandTesting.h"

namespace {

class OrvPortOfIoNodes : public CommandTest {
 protected:
  OrvPortOfIoNodes() {
    host.run("orvCompound g / -create box");
    host.run("orvCompound g /box -createInputPort in float -createOutputPort out float");
    host.run("orvCompound g /box -addIONode true -addIONode false");
    host.run("orvCompound g /box -movePortToIONode in input");
    host.session().undoQueue().clear();
  }
};

TEST_F(OrvPortOfIoNodes, AreSetByThePathOfTheNodeThatShowsThem) {
  sweepLine("orvPort g /box/input.in 1 1 -set 4");
  host.run("orvPort g /box/input.in 1 1 -set 4");
  EXPECT_EQ(host.run("orvPort g /box/input.in 1 1 -qf"), "4");
  EXPECT_EQ(host.run("orvPort g /box.in 0 1 -qf"), "4");
  EXPECT_EQ(host.run("orvPort g /box.in 1 0 -qf"), "4");
}

TEST_F(OrvPortOfIoNodes, AreSetByThePathOfTheCompound) {
  sweepLine("orvPort g /box.in 1 0 -set 4");
  sweepLine("orvPort g /box.out 0 0 -set 4");
}

}  // namespace
