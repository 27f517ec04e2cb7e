// What an input was connected to, when connecting it to something else has displaced that and then
// failed. The library takes back all that a failed connect did, so that the tests put a connect in
// its place that does not: the command does not rely on it.

#include "standalone/graph/edits/Transaction.h"
#include "tests/commands/compound/CompoundEditTesting.h"
#include "tests/commands/graph/ConnectTesting.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class OrvConnectRepair : public ConnectTest {
 protected:
  /// Breaks the connection and nothing else: a member of a fan-in port stays.
  static void breakWire(const PortHandle& from, const PortHandle& to) {
    using namespace orvlib;
    Transaction edits;
    EXPECT_TRUE(edits.run(Disconnect{{PortRef(static_cast<PortObject*>(from.get())),
                                      PortRef(static_cast<PortObject*>(to.get()))}}));
  }

  /// A connect that breaks what its input was connected to, and fails.
  void displaceAndFail(const PortHandle& input) {
    calls.connect = [input](const PortHandle&, const PortHandle&) {
      breakWire(input->connectedTo()[0u], input);
      return false;
    };
  }

  /// The direct connections that the line asks the library for, refused or not.
  long repairsOf(const std::string& line) {
    const orvlib::ArmedFault counting(1000);
    EXPECT_THAT(refusalOf(line), IsEmpty());
    return std::ranges::count(orvlib::FaultPoints::askedNames(), "Port addConnection");
  }

  LibraryCalls calls;
};

TEST_F(OrvConnectRepair, ConnectsTheFormerSourceAgain) {
  connect("/a.result", "/c.a");
  displaceAndFail(port("/c.a"));
  const std::string before = stored();
  EXPECT_EQ(repairsOf("orvConnect g /b.result /c.a"), 1);
  EXPECT_THAT(peers("/c.a"), ElementsAre("/a.result"));
  EXPECT_EQ(stored(), before);
}

TEST_F(OrvConnectRepair, KnowsTheInputWhenItIsNamedFirst) {
  connect("/a.result", "/c.a");
  displaceAndFail(port("/c.a"));
  EXPECT_EQ(repairsOf("orvConnect g /c.a /b.result"), 1);
  EXPECT_THAT(peers("/c.a"), ElementsAre("/a.result"));
}

TEST_F(OrvConnectRepair, LeavesTheOutputsOtherConnectionsAlone) {
  connect("/b.result", "/list.elements");
  connect("/a.result", "/c.a");
  displaceAndFail(port("/c.a"));
  refusalOf("orvConnect g /b.result /c.a");
  EXPECT_THAT(peers("/b.result"), ElementsAre("/list.elements.item"));
}

TEST_F(OrvConnectRepair, DoesNotMendTheOutput) {
  connect("/b.result", "/c.b");
  calls.connect = [this](const PortHandle& source, const PortHandle&) {
    breakWire(source, port("/c.b"));
    return false;
  };
  EXPECT_EQ(repairsOf("orvConnect g /b.result /c.a"), 0);
  EXPECT_THAT(peers("/c.b"), IsEmpty());
}

TEST_F(OrvConnectRepair, ConnectsTheFormerSourceOfACompoundsInnerFace) {
  connect("/box/d.result", "/box.out");
  displaceAndFail(innerPort("/box.out"));
  refusalOf("orvConnect g /box/e.result /box.out");
  EXPECT_THAT(peersOf(innerPort("/box.out")), ElementsAre("/box/d.result"));
}

TEST_F(OrvConnectRepair, ConnectsTheFormerSourceOfAnArrayThatFansIn) {
  edit("/", "-addNode core::array::build -renameNode build other");
  connect("/other.result", "/list.elements");
  displaceAndFail(port("/list.elements"));
  refusalOf("orvConnect g /a.result /list.elements");
  EXPECT_THAT(peers("/list.elements"), ElementsAre("/other.result"));
}

TEST_F(OrvConnectRepair, ConnectsTheFormerSourceOfAMember) {
  connect("/a.result", "/list.elements");
  displaceAndFail(port("/list.elements.item"));
  refusalOf("orvConnect g /b.result /list.elements.item");
  EXPECT_THAT(peers("/list.elements.item"), ElementsAre("/a.result"));
}

TEST_F(OrvConnectRepair, DoesNotMendTheMembersOfAFanInPort) {
  connect("/a.result", "/list.elements");
  calls.connect = [this](const PortHandle&, const PortHandle&) {
    breakWire(port("/a.result"), port("/list.elements.item"));
    return false;
  };
  EXPECT_EQ(repairsOf("orvConnect g /b.result /list.elements"), 0);
  EXPECT_THAT(peers("/list.elements.item"), IsEmpty());
}

TEST_F(OrvConnectRepair, DoesNothingWhenNothingWasConnected) {
  calls.connect = [](const PortHandle&, const PortHandle&) { return false; };
  EXPECT_EQ(repairsOf("orvConnect g /b.result /c.a"), 0);
  EXPECT_THAT(peers("/c.a"), IsEmpty());
}

TEST_F(OrvConnectRepair, DoesNothingWhenTheSourceIsStillConnected) {
  connect("/a.result", "/c.a");
  calls.connect = [](const PortHandle&, const PortHandle&) { return false; };
  EXPECT_EQ(repairsOf("orvConnect g /b.result /c.a"), 0);
  EXPECT_THAT(peers("/c.a"), ElementsAre("/a.result"));
}

TEST_F(OrvConnectRepair, DoesNothingWhenTheLibraryTakesBackWhatItDid) {
  connect("/a.result", "/c.a");
  const orvlib::ArmedFault armed("edit connect");
  const std::string before = stored();
  EXPECT_THAT(refusalOf("orvConnect g /b.result /c.a"), IsEmpty());
  EXPECT_EQ(stored(), before);
}

// Only the numbers of connections are compared.
TEST_F(OrvConnectRepair, DoesNothingWhenAnotherSourceHasTakenThePlace) {
  connect("/a.result", "/c.a");
  calls.connect = [this](const PortHandle& source, const PortHandle& destination) {
    breakWire(port("/a.result"), destination);
    EXPECT_TRUE(source->addConnection(destination, false));
    return false;
  };
  EXPECT_EQ(repairsOf("orvConnect g /b.result /c.a"), 1);  // that of the test's connect
  EXPECT_THAT(peers("/c.a"), ElementsAre("/b.result"));
}

TEST_F(OrvConnectRepair, DisplacesNothingInItsTurn) {
  for (const char* name : {"from", "to"}) {
    edit("/",
         std::string("-addNode core::constant::color3_value -renameNode color3_value ") + name);
  }
  connect("/from.result", "/to.value");
  calls.connect = [this](const PortHandle&, const PortHandle& destination) {
    breakWire(destination->connectedTo()[0u], destination);
    EXPECT_TRUE(port("/a.result")->addConnection(port("/to.value.r"), false));
    return false;
  };
  refusalOf("orvConnect g /b.result /to.value");
  EXPECT_THAT(peers("/to.value.r"), ElementsAre("/a.result"));
  EXPECT_THAT(peers("/to.value"), IsEmpty());
}

TEST_F(OrvConnectRepair, IgnoresThatTheFormerSourceCannotBeConnected) {
  connect("/a.result", "/c.a");
  displaceAndFail(port("/c.a"));
  const orvlib::ArmedFault armed("Port addConnection");
  EXPECT_THAT(refusalOf("orvConnect g /b.result /c.a"), IsEmpty());
  EXPECT_TRUE(armed.refused());
  EXPECT_THAT(peers("/c.a"), IsEmpty());
}

TEST_F(OrvConnectRepair, IsMadeWithinTheBracket) {
  connect("/a.result", "/c.a");
  displaceAndFail(port("/c.a"));
  const ChangeRounds rounds(graph);
  refusalOf("orvConnect g /b.result /c.a");
  EXPECT_EQ(rounds.count, 1);
}

TEST_F(OrvConnectRepair, IsNotMadeAfterADisconnect) {
  connect("/a.result", "/c.a");
  const orvlib::ArmedFault armed("edit disconnect");
  EXPECT_THAT(refusalOf("orvConnect -d g /a.result /c.a"), IsEmpty());
  EXPECT_THAT(peers("/c.a"), ElementsAre("/a.result"));
}

TEST_F(OrvConnectRepair, DropsWhatItNotedWhenTheConnectWorks) {
  connect("/a.result", "/c.a");
  calls.connect = [this](const PortHandle&, const PortHandle& destination) {
    breakWire(port("/a.result"), destination);
    return true;
  };
  host.run("orvConnect g /b.result /c.a");
  EXPECT_THAT(peers("/c.a"), IsEmpty());
}

}  // namespace
