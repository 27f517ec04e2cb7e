// The lists of connected nodes and of ports.

#include "tests/commands/graph/NodeTesting.h"

namespace {

using hosttest::Texts;

/// A graph with the node "m" (core::color::mix3: inputs "a", "b", "weight", output "result"), the
/// nodes "n1" and "n2" (core::math::negate) and "other" (as "m").
class NodeListings : public NodeTest {
 protected:
  NodeListings() {
    build("/", "-an core::color::mix3 -rn mix3 m");
    build("/", "-an core::color::mix3 -rn mix3 other");
    build("/", "-an core::math::negate -rn negate n1");
    build("/", "-an core::math::negate -rn negate n2");
  }
};

TEST_F(NodeListings, ANodeWithoutConnectionsListsNoNodes) { EXPECT_EQ(run("/m", "-lcn"), ""); }

TEST_F(NodeListings, ConnectedNodesAreThoseOfInputsAndOutputsInTheOrderOfTheirNames) {
  connect("/n2.result", "/m.weight");
  connect("/m.result", "/other.a");
  EXPECT_EQ(run("/m", "-lcn"), R"(["n2","other"])");
  connect("/n1.result", "/m.a.r");
  EXPECT_EQ(run("/m", "-lcn"), R"(["n1","n2","other"])");
}

TEST_F(NodeListings, ANodeOfSeveralConnectionsIsListedOnce) {
  connect("/n1.result", "/m.weight");
  connect("/n1.result", "/m.a.r");
  connect("/n1.result", "/m.a.g");
  EXPECT_EQ(run("/m", "-lcn"), R"(["n1"])");
}

TEST_F(NodeListings, TheOrderOfNodesIsThatOfTheirBytes) {
  for (const char* name : {"b", "ab", "B", "a_", "a", "a1", "_"}) {
    build("/", std::string("-an core::math::negate -rn negate ") + name);
    connect("/n1.result", ("/" + std::string(name) + ".value").c_str());
  }
  EXPECT_EQ(run("/n1", "-lcn"), R"(["B","_","a","a1","a_","ab","b"])");
}

TEST_F(NodeListings, ChildrenAreFoundThoughThePortAboveIsNotConnected) {
  connect("/n1.result", "/m.b.g");
  EXPECT_FALSE(port("/m.b")->isConnected());
  EXPECT_EQ(run("/m", "-lcn"), R"(["n1"])");
}

TEST_F(NodeListings, MembersOfFanInPortsAreFound) {
  build("/", "-an core::array::build");
  connect("/n1.result", "/build.elements");
  connect("/n2.result", "/build.elements");
  EXPECT_EQ(run("/build", "-lcn"), R"(["n1","n2"])");
  EXPECT_EQ(run("/build", "-lcn -ct elements.item1"), R"(["n2.result"])");
}

TEST_F(NodeListings, OfACompoundAreTheNodesAroundIt) {
  build("/", "-create box");
  build("/box", "-cip in float -cop out float -an core::math::absolute");
  connect("/n1.result", "/box.in");
  connect("/box.in", "/box/absolute.value");
  connect("/box.out", "/n2.value");
  EXPECT_EQ(run("/box", "-lcn"), R"(["n1","n2"])");
  EXPECT_EQ(run("/box/absolute", "-lcn"), R"(["box"])");
  EXPECT_EQ(run("/n1", "-lcn"), R"(["box"])");
}

// With a filter: the far ends, and of those ports only that it names.

TEST_F(NodeListings, AFilterListsTheFarEndsOfThePortItNames) {
  connect("/n1.result", "/m.weight");
  connect("/n2.result", "/m.a.r");
  connect("/m.result", "/other.b");
  EXPECT_EQ(run("/m", "-lcn -ct weight"), R"(["n1.result"])");
  EXPECT_EQ(run("/m", "-lcn -ct result"), R"(["other.b"])");
  EXPECT_EQ(run("/m", "-lcn -ct result -ct weight -ct a.r"),
            R"(["n1.result","n2.result","other.b"])");
}

TEST_F(NodeListings, AFarEndIsNamedByItsFullNameBelowTheNode) {
  connect("/m.result.g", "/other.a.r");
  EXPECT_EQ(run("/m", "-lcn -ct result.g"), R"(["other.a.r"])");
}

TEST_F(NodeListings, AFilterTwiceListsAFarEndOnce) {
  connect("/n1.result", "/m.weight");
  EXPECT_EQ(run("/m", "-lcn -ct weight -ct weight"), R"(["n1.result"])");
}

TEST_F(NodeListings, AFilterListsEachFarEndOfOneNode) {
  connect("/n1.result", "/m.weight");
  connect("/n1.result", "/m.a.r");
  connect("/n1.result", "/m.b.g");
  EXPECT_EQ(run("/n1", "-lcn"), R"(["m"])");
  EXPECT_EQ(run("/n1", "-lcn -ct result"), R"(["m.a.r","m.b.g","m.weight"])");
}

TEST_F(NodeListings, AFilterNamesAFullNameExactly) {
  connect("/n1.result", "/m.weight");
  connect("/n2.result", "/m.a.r");
  for (const char* filter : {"Weight", "weigh", "weightx", "\"weight \"", "r", "a", "\"\"",
                             "nobody", "\"*\"", "m.weight"}) {
    EXPECT_EQ(run("/m", std::string("-lcn -ct ") + filter), "") << filter;
  }
}

TEST_F(NodeListings, AFilterOfSomethingWrongLeavesTheOthers) {
  connect("/n1.result", "/m.weight");
  EXPECT_EQ(run("/m", "-lcn -ct nobody -ct weight"), R"(["n1.result"])");
}

TEST_F(NodeListings, AFilterOfAPortAboveAConnectedOneListsNothing) {
  connect("/n1.result", "/m.a.r");
  EXPECT_EQ(run("/m", "-lcn -ct a"), "");
}

// Ports.

TEST_F(NodeListings, PortsAreInputsThenOutputsInTheOrderOfTheNode) {
  EXPECT_EQ(run("/m", "-lp"), R"(["m.a","m.b","m.weight","m.result"])");
  run("/m", "-cip zeta float -cop alpha float");
  EXPECT_EQ(run("/m", "-lp"), R"(["m.a","m.b","m.weight","m.zeta","m.result","m.alpha"])");
}

TEST_F(NodeListings, PortsOfANodeWithoutAnyAreNone) {
  build("/", "-create box");
  EXPECT_EQ(run("/box", "-lp"), "");
}

TEST_F(NodeListings, PortsAreNamedWithTheNodeAndNotWithItsPath) {
  build("/", "-create box");
  build("/box", "-an core::math::negate");
  EXPECT_EQ(run("/box/negate", "-lp"), R"(["negate.value","negate.result"])");
}

TEST_F(NodeListings, PortsAreFilteredByWhetherTheyAreConnected) {
  connect("/n1.result", "/m.weight");
  connect("/m.result", "/other.a");
  EXPECT_EQ(run("/m", "-lp -c true"), R"(["m.weight","m.result"])");
  EXPECT_EQ(run("/m", "-lp -c false"), R"(["m.a","m.b"])");
  EXPECT_EQ(run("/n2", "-lp -c true"), "");
}

TEST_F(NodeListings, AConnectedChildIsNoConnectedPort) {
  connect("/n1.result", "/m.a.r");
  EXPECT_EQ(run("/m", "-lp -c true"), "");
  EXPECT_EQ(run("/m", "-lp -c false"), R"(["m.a","m.b","m.weight","m.result"])");
}

TEST_F(NodeListings, AFilterOfConnectedNodesIsNoneOfPorts) {
  connect("/n1.result", "/m.weight");
  EXPECT_EQ(run("/m", "-lp -ct weight"), R"(["m.a","m.b","m.weight","m.result"])");
  EXPECT_EQ(run("/m", "-lcn -c false"), R"(["n1"])");
}

TEST_F(NodeListings, NodesComeAheadOfPortsInOneResult) {
  connect("/n1.result", "/m.weight");
  EXPECT_EQ(run("/m", "-lp -lcn -c true"), R"(["n1","m.weight"])");
  EXPECT_EQ(run("/m", "-lp -lcn -c true -ct weight"), R"(["n1.result","m.weight"])");
}

TEST_F(NodeListings, AHundredConnectionsAreListed) {
  std::string expected;
  for (int i = 10; i < 110; ++i) {
    const std::string name = "x" + std::to_string(1000 + i);
    build("/", "-an core::math::negate -rn negate " + name);
    connect("/n1.result", ("/" + name + ".value").c_str());
    expected += (expected.empty() ? "[\"" : ",\"") + name + "\"";
  }
  EXPECT_EQ(run("/n1", "-lcn"), expected + "]");
}

}  // namespace
