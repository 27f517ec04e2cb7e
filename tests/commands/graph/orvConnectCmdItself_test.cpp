// What cannot be joined: a port with itself, and with what belongs to it.

#include "tests/commands/CommandTesting.h"

namespace {

using testing::IsEmpty;

class OrvConnectItself : public CommandTest {
 protected:
  OrvConnectItself() {
    host.run("orvCompound g / -addNode core::math::add -create box -createInputPort top float");
    host.run("orvCompound g /box -createInputPort in float -createOutputPort out float");
    host.session().undoQueue().clear();
  }

  void expectRefused(const std::string& source, const std::string& destination) {
    const std::string before = stored();
    const std::string line = "orvConnect g " + source + " " + destination;
    EXPECT_THAT(refusalOf(line, StatusBadArgument), IsEmpty()) << line;
    EXPECT_EQ(stored(), before) << line;
  }
};

TEST_F(OrvConnectItself, IsRefusedWithoutAWord) {
  for (const char* port : {"/add.a", "/add.result", "/box.in", "/box.out", "/.top", "/"}) {
    expectRefused(port, port);
  }
}

TEST_F(OrvConnectItself, PortsOfDifferentLevelsAreRefusedWithoutAWord) {
  host.run("orvCompound g /box -addNode core::math::add");
  expectRefused("/box/add.result", "/add.a");
  expectRefused("/add.result", "/box/add.a");
}

TEST_F(OrvConnectItself, AnInputOfACompoundMayLeadStraightToItsOutput) {
  sweepLine("orvConnect g /box.in /box.out");
  host.run("orvConnect g /box.in /box.out");
  host.run("orvNode g /box -setPortDefaultValues in 5");
  EXPECT_EQ(host.run("orvCompound g /box -listPorts -connected true"), R"(["in","out"])");
}

}  // namespace
