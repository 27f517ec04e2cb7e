// -listNodes and its filters.

#include "tests/commands/compound/CompoundWiring.h"

using testing::ElementsAre;

namespace {

/// A compound /group: its input `in` goes to both terms of `sum`, and by `flip` to its output
/// `out`; `both` stands between `side` and `through`; `copy` is a compound; `lone` is alone.
class ListNodes : public CompoundTest {
 protected:
  ListNodes() {
    run("/", "-create group");
    run("/group", "-cip in float -cip side float -cop out float -cop through float");
    run("/group", "-an core::math::add -rn add sum");
    run("/group", "-an core::math::negate -rn negate flip");
    run("/group", "-an core::math::add -rn add both");
    run("/group", "-create copy");
    run("/group", "-an core::math::negate -rn negate lone");
    connect(graph, "/group.in", "/group/sum.a");
    connect(graph, "/group.in", "/group/sum.b");
    connect(graph, "/group/sum.result", "/group/flip.value");
    connect(graph, "/group/flip.result", "/group.out");
    connect(graph, "/group.side", "/group/both.b");
    connect(graph, "/group/both.result", "/group.through");
  }

  std::string list(const std::string& flags = "") { return run("/group", "-listNodes " + flags); }
};

TEST_F(ListNodes, WithoutAFilterEachNodeIsListedInTheOrderOfTheLevel) {
  EXPECT_EQ(list(), R"(["sum","flip","both","copy","lone"])");
}

TEST_F(ListNodes, OnlyNodesOfTheLevelAreListed) { EXPECT_EQ(run("/", "-ln"), R"(["group"])"); }

TEST_F(ListNodes, ALevelWithoutNodesHasNoResult) { EXPECT_EQ(run("/group/copy", "-ln"), ""); }

TEST_F(ListNodes, InputOutputNodesAreListed) {
  run("/group/copy", "-addIONode true -addIONode false");
  EXPECT_EQ(run("/group/copy", "-listNodes"), R"(["input","output"])");
}

TEST_F(ListNodes, AnnotationsAreNotListed) {
  run("/group/copy", "-addBackdrop a -addStickyNote b");
  EXPECT_EQ(run("/group/copy", "-listNodes"), "");
}

TEST_F(ListNodes, OfATypeAreTheNodesOfThatQualifiedName) {
  EXPECT_EQ(list("-nodeType core::math::add"), R"(["sum","both"])");
  EXPECT_EQ(list("-nodeType core::math::negate"), R"(["flip","lone"])");
}

TEST_F(ListNodes, OfAnotherTypeAreNone) {
  EXPECT_EQ(list("-nodeType core::math::subtract"), "");
  EXPECT_EQ(list("-nodeType add"), "");
  EXPECT_EQ(list("-nodeType core::math"), "");
}

TEST_F(ListNodes, ConnectedAreThoseWithAnyConnection) {
  EXPECT_EQ(list("-connected true"), R"(["sum","flip","both"])");
}

TEST_F(ListNodes, NotConnectedAreThoseWithNoneAtAll) {
  EXPECT_EQ(list("-connected false"), R"(["copy","lone"])");
}

TEST_F(ListNodes, ConnectedToInputAreThoseThatAnInputOfTheCompoundGoesTo) {
  EXPECT_EQ(list("-connectedToInput"), R"(["sum","both"])");
}

TEST_F(ListNodes, ConnectedToOutputAreThoseThatGoToAnOutputOfTheCompound) {
  EXPECT_EQ(list("-connectedToOutput"), R"(["flip","both"])");
}

TEST_F(ListNodes, BothAreThoseThatAreConnectedToEither) {
  EXPECT_EQ(list("-connectedToOutput -connectedToInput"), R"(["both"])");
}

TEST_F(ListNodes, ConnectedToAnInputGivesEachConnectionAsNodeAndPort) {
  EXPECT_EQ(list("-connectedTo in"), R"(["sum.a","sum.b"])");
  EXPECT_EQ(list("-connectedTo side"), R"(["both.b"])");
}

TEST_F(ListNodes, ConnectedToAnOutputGivesItsConnectionAsNodeAndPort) {
  EXPECT_EQ(list("-connectedTo out"), R"(["flip.result"])");
  EXPECT_EQ(list("-connectedTo through"), R"(["both.result"])");
}

TEST_F(ListNodes, ConnectionsOfSeveralNodesAreInTheOrderOfTheNodes) {
  connect(graph, "/group.in", "/group/lone.value");
  connect(graph, "/group.in", "/group/both.a");
  EXPECT_EQ(list("-connectedTo in"), R"(["sum.a","sum.b","both.a","lone.value"])");
}

TEST_F(ListNodes, ConnectedToNoPortOfTheCompoundAreNone) {
  EXPECT_EQ(list("-connectedTo nosuch"), "");
  EXPECT_EQ(list("-connectedTo \"\""), "");
  EXPECT_EQ(list("-connectedTo result"), "") << "a port of a node beside it";
  EXPECT_EQ(list("-connectedTo /group.in"), "") << "a name, not a path";
}

TEST_F(ListNodes, ConnectedToWithAnotherConnectionFilterGivesPlainNames) {
  EXPECT_EQ(list("-connectedTo in -connected true"), R"(["sum"])");
  EXPECT_EQ(list("-connectedTo in -connectedToInput"), R"(["sum"])");
  EXPECT_EQ(list("-connectedTo through -connectedToInput"), R"(["both"])");
  EXPECT_EQ(list("-connectedTo side -connectedToOutput"), R"(["both"])");
}

TEST_F(ListNodes, ConnectedToWithAnotherConnectionFilterHasToPassBoth) {
  EXPECT_EQ(list("-connectedTo in -connectedToOutput"), "");
  EXPECT_EQ(list("-connectedTo out -connectedToInput"), "");
  EXPECT_EQ(list("-connectedTo nosuch -connected true"), "");
}

TEST_F(ListNodes, AllFiltersTogetherGiveWhatPassesEach) {
  EXPECT_EQ(list("-nodeType core::math::add -connected true -connectedToInput -connectedToOutput "
                 "-connectedTo side"),
            R"(["both"])");
  EXPECT_EQ(list("-nodeType core::math::negate -connected true -connectedToInput "
                 "-connectedToOutput -connectedTo side"),
            "");
}

TEST_F(ListNodes, ATypeBesideConnectedToGivesConnectionsAllTheSame) {
  connect(graph, "/group.in", "/group/lone.value");
  EXPECT_EQ(list("-nodeType core::math::add -connectedTo in"), R"(["sum.a","sum.b"])");
  EXPECT_EQ(list("-nodeType core::math::negate -connectedTo in"), R"(["lone.value"])");
}

TEST_F(ListNodes, ATypeGoesWithTheOtherFilters) {
  EXPECT_EQ(list("-nodeType core::math::negate -connected true"), R"(["flip"])");
  EXPECT_EQ(list("-nodeType core::math::negate -connected false"), R"(["lone"])");
  EXPECT_EQ(list("-nodeType core::math::add -connectedToOutput"), R"(["both"])");
  EXPECT_EQ(list("-nodeType core::math::negate -connectedToInput"), "");
}

TEST_F(ListNodes, ConnectedTrueGoesWithTheOtherFilters) {
  EXPECT_EQ(list("-connected true -connectedToInput"), R"(["sum","both"])");
  EXPECT_EQ(list("-connected true -connectedToOutput"), R"(["flip","both"])");
}

/// For nodes without connections there is nothing to ask about them.
TEST_F(ListNodes, NotConnectedDropsTheFiltersOnConnections) {
  const std::string unconnected = R"(["copy","lone"])";
  EXPECT_EQ(list("-connected false -connectedToInput"), unconnected);
  EXPECT_EQ(list("-connected false -connectedToOutput"), unconnected);
  EXPECT_EQ(list("-connectedTo in -connected false"), unconnected);
  EXPECT_EQ(list("-connected false -connectedToInput -connectedToOutput -connectedTo in"),
            unconnected);
}

TEST_F(ListNodes, NotConnectedKeepsTheFilterOnTheType) {
  EXPECT_EQ(list("-connected false -nodeType core::math::negate"), R"(["lone"])");
}

TEST_F(ListNodes, TheFiltersDoNothingByThemselves) {
  EXPECT_EQ(run("/group",
                "-nodeType core::math::add -connected true -connectedToInput "
                "-connectedToOutput -connectedTo in"),
            "");
}

TEST_F(ListNodes, TheShortFlagsDoTheSame) {
  EXPECT_EQ(run("/group", "-ln -nt core::math::add -cn true -cti -cto -ct side"), R"(["both"])");
}

TEST_F(ListNodes, ACompoundAmongTheNodesIsConnectedByItsOuterPorts) {
  run("/group/copy", "-createInputPort value float -createOutputPort same float");
  run("/group/copy", "-addNode core::math::negate");
  connect(graph, "/group/copy.value", "/group/copy/negate.value");
  connect(graph, "/group/copy/negate.result", "/group/copy.same");
  EXPECT_EQ(list("-connected false"), R"(["copy","lone"])") << "what is inside does not count";
  connect(graph, "/group.in", "/group/copy.value");
  EXPECT_EQ(list("-connectedTo in"), R"(["sum.a","sum.b","copy.value"])");
  EXPECT_EQ(list("-connected false"), R"(["lone"])");
}

TEST_F(ListNodes, ThePortsOfACompoundBesideItAreNoBoundary) {
  run("/group/copy", "-createInputPort in float -createOutputPort out float");
  connect(graph, "/group/sum.result", "/group/copy.in");
  connect(graph, "/group/copy.out", "/group/lone.value");
  EXPECT_EQ(list("-connectedTo in"), R"(["sum.a","sum.b"])");
  EXPECT_EQ(list("-connectedToInput"), R"(["sum","both"])");
  EXPECT_EQ(list("-connectedToOutput"), R"(["flip","both"])");
}

TEST_F(ListNodes, ANodeOutsideIsNotConnectedToTheCompoundBesideIt) {
  run("/", "-addNode core::math::negate");
  connect(graph, "/group.out", "/negate.value");
  EXPECT_EQ(run("/", "-listNodes -connected true"), R"(["group","negate"])");
  EXPECT_EQ(run("/", "-listNodes -connectedToOutput"), "");
  EXPECT_EQ(run("/", "-listNodes -connectedToInput"), "");
  EXPECT_EQ(run("/", "-listNodes -connectedTo out"), "");
}

TEST_F(ListNodes, TheTopCompoundHasABoundaryToo) {
  run("/", "-createInputPort size float");
  connect(graph, "/.size", "/group.in");
  EXPECT_EQ(run("/", "-listNodes -connectedToInput"), R"(["group"])");
  EXPECT_EQ(run("/", "-listNodes -connectedTo size"), R"(["group.in"])");
}

TEST_F(ListNodes, AComponentOfAPortOfTheCompoundGoesByItsFullName) {
  run("/group", "-createInputPort color color3");
  connect(graph, "/group.color.g", "/group/lone.value");
  EXPECT_EQ(list("-connectedTo color.g"), R"(["lone.value"])");
  EXPECT_EQ(list("-connectedTo color"), "");
  EXPECT_EQ(list("-connectedToInput"), R"(["sum","both","lone"])");
}

/// The ports that are looked at are those that stand in the lists of the node.
TEST_F(ListNodes, AConnectionOfAComponentOfANodeIsNotSeen) {
  run("/group", "-addNode core::color::separate3");
  connect(graph, "/group.in", "/group/separate3.color.r");
  EXPECT_EQ(list("-connected false"), R"(["copy","lone","separate3"])");
  EXPECT_EQ(list("-connectedTo in"), R"(["sum.a","sum.b"])");
}

TEST_F(ListNodes, AConnectionOfAMemberOfAFanInPortIsNotSeen) {
  run("/group", "-createInputPort yes bool -addNode core::logic::all");
  connect(graph, "/group.yes", "/group/all.values");
  EXPECT_EQ(list("-connectedToInput"), R"(["sum","both"])");
}

/// An input/output node shows ports of the compound itself: what is beyond them are nodes.
TEST_F(ListNodes, AnInputNodeIsConnectedButNotToTheInput) {
  run("/group", "-addIONode true");
  run("/group", "-movePortToIONode in input");
  EXPECT_EQ(list("-connected true"), R"(["sum","flip","both","input"])");
  EXPECT_EQ(list("-connectedToInput"), R"(["sum","both"])");
  EXPECT_EQ(list("-connectedToOutput"), R"(["flip","both"])");
}

TEST_F(ListNodes, WhatIsListedFollowsTheEditsOfTheLine) {
  EXPECT_EQ(list("-removeNode lone -renameNode sum total -removeNode copy"),
            R"(["total","flip","both"])");
}

TEST_F(ListNodes, ANewNodeThatIsConnectedIsListedAsSuch) {
  EXPECT_EQ(list("-addNode core::math::negate -connectTo in -connectedTo in"),
            R"(["negate","sum.a","sum.b","negate.value"])");
}

}  // namespace
