// The list mode: nodes of a list, each connected to the next.

#include "tests/commands/compound/CompoundNames.h"
#include "tests/commands/graph/ConnectTesting.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class OrvConnectNodes : public ConnectTest {
 protected:
  void connectNodes(const std::string& list) { host.run("orvConnect -connectNodes g " + list); }
  Texts refusedNodes(const std::string& list) { return refusalOf("orvConnect -cn g " + list); }
};

TEST_F(OrvConnectNodes, ConnectsEachToTheNext) {
  connectNodes("{/a,/b,/c}");
  EXPECT_THAT(peers("/b.a"), ElementsAre("/a.result"));
  EXPECT_THAT(peers("/c.a"), ElementsAre("/b.result"));
}

TEST_F(OrvConnectNodes, KeepsTheOrderOfTheList) {
  connectNodes("{/c,/a}");
  EXPECT_THAT(peers("/a.a"), ElementsAre("/c.result"));
}

TEST_F(OrvConnectNodes, ReadsTheFlagBehindTheListToo) {
  host.run("orvConnect g {/a,/b} -cn");
  EXPECT_THAT(peers("/b.a"), ElementsAre("/a.result"));
}

TEST_F(OrvConnectNodes, ConnectsInsideACompound) {
  connectNodes("{/box/d,/box/e}");
  EXPECT_THAT(peers("/box/e.a"), ElementsAre("/box/d.result"));
}

TEST_F(OrvConnectNodes, ReadsNoThirdArgument) {
  connectNodes("{/a,/b} \"/nobody\"");
  EXPECT_THAT(peers("/b.a"), ElementsAre("/a.result"));
}

TEST_F(OrvConnectNodes, IgnoresTheOtherFlags) {
  host.run("openConnect -cn -disconnect -copyMetaData g {/a,/b}");
  EXPECT_THAT(peers("/b.a"), ElementsAre("/a.result"));
  EXPECT_TRUE(command().connectNodesMode);
  EXPECT_FALSE(command().disconnect);
  EXPECT_FALSE(command().copyMetaData);
}

TEST_F(OrvConnectNodes, TakesAFreeInputAndDisplacesNothing) {
  connect("/c.result", "/b.a");
  connectNodes("{/a,/b}");
  EXPECT_THAT(peers("/b.a"), ElementsAre("/c.result"));
  EXPECT_THAT(peers("/b.b"), ElementsAre("/a.result"));
}

TEST_F(OrvConnectNodes, GivesAFanInPortAMember) {
  connectNodes("{/a,/list}");
  EXPECT_THAT(members("/list.elements"), ElementsAre("item"));
}

TEST_F(OrvConnectNodes, CanBeSweptBackAndForth) {
  sweepLine("orvConnect -cn g {/a,/b,/c,/list}");
  sweepLine("orvConnect -cn g {/box/d,/box/e}");
}

TEST_F(OrvConnectNodes, TouchesNeitherPortsNorLineOfThePortMode) {
  LibraryCalls calls;
  connectNodes("{/a,/b}");
  undo();
  redo();
  EXPECT_THAT(calls.take(), IsEmpty());
}

// --- What refuses it

TEST_F(OrvConnectNodes, NamesTheNodeThatIsNotThere) {
  const std::string before = stored();
  EXPECT_THAT(refusedNodes("{/a,/nobody,/b,/noOne}"), ElementsAre("! /nobody is not a node name"));
  EXPECT_THAT(refusedNodes("/nobody"), ElementsAre("! /nobody is not a node name"));
  EXPECT_EQ(stored(), before);
}

TEST_F(OrvConnectNodes, RecordsNothingWithAnUnknownNode) {
  const orvlib::ArmedFault counting(1000);
  refusedNodes("{/a,/b,/nobody}");
  EXPECT_THAT(orvlib::FaultPoints::askedNames(),
              testing::Not(testing::Contains("ConnectNodesCommand connect")));
}

// A list of nodes holds each of them once.
TEST_F(OrvConnectNodes, CountsARepeatedNodeOnce) {
  EXPECT_THAT(refusedNodes("{/a,/a}"), IsEmpty());
  connectNodes("{/a,/b,/a,/c}");
  EXPECT_THAT(peers("/b.a"), ElementsAre("/a.result"));
  EXPECT_THAT(peers("/c.a"), ElementsAre("/b.result"));
  EXPECT_THAT(peers("/a.a"), IsEmpty());
}

TEST_F(OrvConnectNodes, LeavesAListOfNoneToTheLibrary) {
  const orvlib::ArmedFault counting(1000);
  EXPECT_THAT(refusedNodes("\"\""), IsEmpty());
  EXPECT_THAT(refusedNodes("{}"), IsEmpty());
  EXPECT_THAT(orvlib::FaultPoints::askedNames(),
              ElementsAre("Port unserializePortValuesString", "ConnectNodesCommand connect",
                          "Port unserializePortValuesString", "ConnectNodesCommand connect"));
}

TEST_F(OrvConnectNodes, TakesAMissingListForAListOfNone) {
  const orvlib::ArmedFault counting(1000);
  EXPECT_THAT(refusedNodes(""), IsEmpty());
  EXPECT_THAT(orvlib::FaultPoints::askedNames(), testing::Contains("ConnectNodesCommand connect"));
}

TEST_F(OrvConnectNodes, TakesAListThatCannotBeReadForAListOfNone) {
  EXPECT_THAT(refusedNodes("\"{/a,/b\""), IsEmpty());
  EXPECT_THAT(peers("/b.a"), IsEmpty());
}

TEST_F(OrvConnectNodes, LeavesASingleNodeAndSeveralLevelsToTheLibrary) {
  EXPECT_THAT(refusedNodes("/a"), IsEmpty());
  EXPECT_THAT(refusedNodes("{/a,/box/d}"), IsEmpty());
}

TEST_F(OrvConnectNodes, TellsOfAMissingContainerTwice) {
  EXPECT_THAT(refusalOf("orvConnect -cn"), ElementsAre(kTooFew, kParsing));
}

TEST_F(OrvConnectNodes, ChangesNothingWhenOneOfTheConnectionsCannotBeMade) {
  const std::string before = stored();
  EXPECT_THAT(refusedNodes("{/a,/b,/list,/c}"), IsEmpty());
  EXPECT_EQ(stored(), before);
}

TEST_F(OrvConnectNodes, PassesAnyFaultOnAsItsStatus) {
  const std::string before = stored();
  for (const char* fault : {"ConnectNodesCommand connect", "ConnectNodesCommand doit",
                            "ConnectNodesCommand redo", "edit connect"}) {
    const orvlib::ArmedFault armed(fault);
    EXPECT_THAT(refusedNodes("{/a,/b}"), IsEmpty()) << fault;
    EXPECT_TRUE(armed.refused()) << fault;
    EXPECT_EQ(stored(), before) << fault;
  }
  EXPECT_THAT(host.steps(), IsEmpty());
}

TEST_F(OrvConnectNodes, IsSilentWhenAnUndoOrARedoIsRefused) {
  host.run("openConnect -cn g {/a,/b}");
  {
    const orvlib::ArmedFault armed("ConnectNodesCommand undo");
    EXPECT_EQ(command().undoIt().statusCode(), StatusFailure);
  }
  EXPECT_EQ(command().undoIt().statusCode(), StatusSuccess);
  {
    const orvlib::ArmedFault armed("ConnectNodesCommand redo");
    EXPECT_EQ(command().redoIt().statusCode(), StatusFailure);
  }
  EXPECT_EQ(command().redoIt().statusCode(), StatusSuccess);
}

TEST_F(OrvConnectNodes, ShowsAwkwardNamesAsTheyWereWritten) {
  const std::string longName(1000, 'x');
  EXPECT_THAT(refusedNodes(quoted("say \"a\"")), ElementsAre("! say \"a\" is not a node name"));
  EXPECT_THAT(refusedNodes(quoted("a\\\\b")), ElementsAre("! a\\b is not a node name"));
  EXPECT_THAT(refusedNodes(quoted("/a ")), ElementsAre("! /a  is not a node name"));
  EXPECT_THAT(refusedNodes(quoted("one\ntwo")), ElementsAre("! one\ntwo is not a node name"));
  EXPECT_THAT(refusedNodes(quoted("Größe 数据")), ElementsAre("! Größe 数据 is not a node name"));
  EXPECT_THAT(refusedNodes(quoted("^1s")), ElementsAre("! ^1s is not a node name"));
  EXPECT_THAT(refusedNodes("{,}"), ElementsAre("!  is not a node name"));
  EXPECT_THAT(refusedNodes(longName), ElementsAre("! " + longName + " is not a node name"));
}

// --- What it does not ask

TEST_F(OrvConnectNodes, AsksNoCompoundWhetherItIsEditable) {
  edit("/box", "-setMetaData locked true");
  connectNodes("{/box/d,/box/e}");
  EXPECT_THAT(peers("/box/e.a"), ElementsAre("/box/d.result"));
}

TEST_F(OrvConnectNodes, UndoesAndRedoesWithoutItsGraphByThatName) {
  host.run("openConnect -cn g {/a,/b}");
  OpenConnectCmd& held = command();
  host.run("rename g other");
  EXPECT_EQ(held.undoIt().statusCode(), StatusSuccess);
  EXPECT_THAT(peers("/b.a"), IsEmpty());
  EXPECT_EQ(held.redoIt().statusCode(), StatusSuccess);
}

TEST_F(OrvConnectNodes, ConnectsAHundredNodes) {
  std::string list = "{/a";
  for (int i = 0; i < 100; ++i) {
    const std::string name = "n" + std::to_string(i);
    addNodes("/", {name});
    list += ",/" + name;
  }
  host.session().undoQueue().clear();
  sweepLine("orvConnect -cn g " + list + "}");
}

}  // namespace
