// -listPorts and its filters.

#include "tests/commands/compound/CompoundWiring.h"

namespace {

/// A compound /group between two nodes, whose ports a and x are connected inside, b and y outside,
/// and c and z nowhere.
class ListPorts : public CompoundTest {
 protected:
  ListPorts() {
    run("/", "-create group -addNode core::math::add -addNode core::math::negate");
    run("/group", "-cip c float -cip a float -cip b float -cop z float -cop x float -cop y float");
    run("/group", "-addNode core::math::add");
    connect(graph, "/group.a", "/group/add.a");
    connect(graph, "/group/add.result", "/group.x");
    connect(graph, "/add.result", "/group.b");
    connect(graph, "/group.y", "/negate.value");
  }

  std::string list(const std::string& flags) { return run("/group", "-listPorts " + flags); }
};

TEST_F(ListPorts, InputsComeAheadOfOutputsEachInTheirOrder) {
  EXPECT_EQ(list(""), R"(["c","a","b","z","x","y"])");
}

TEST_F(ListPorts, InputPortListsNoOutputs) { EXPECT_EQ(list("-inputPort"), R"(["c","a","b"])"); }

TEST_F(ListPorts, OutputPortListsNoInputs) { EXPECT_EQ(list("-outputPort"), R"(["z","x","y"])"); }

TEST_F(ListPorts, BothFlagsListBoth) {
  EXPECT_EQ(list("-outputPort -inputPort"), R"(["c","a","b","z","x","y"])");
}

/// The compound's ports are seen from inside.
TEST_F(ListPorts, ConnectedListsThoseThatAreConnectedInside) {
  EXPECT_EQ(list("-connected true"), R"(["a","x"])");
}

TEST_F(ListPorts, NotConnectedListsTheOthers) {
  EXPECT_EQ(list("-connected false"), R"(["c","b","z","y"])");
}

TEST_F(ListPorts, TheFiltersWorkTogether) {
  EXPECT_EQ(list("-inputPort -connected true"), R"(["a"])");
  EXPECT_EQ(list("-outputPort -connected true"), R"(["x"])");
  EXPECT_EQ(list("-inputPort -connected false"), R"(["c","b"])");
  EXPECT_EQ(list("-outputPort -connected false"), R"(["z","y"])");
}

TEST_F(ListPorts, TheShortFlagsDoTheSame) {
  EXPECT_EQ(run("/group", "-lp -ip -cn true"), R"(["a"])");
  EXPECT_EQ(run("/group", "-lp -op -cn false"), R"(["z","y"])");
}

TEST_F(ListPorts, TheFiltersDoNothingByThemselves) {
  EXPECT_EQ(run("/group", "-inputPort -outputPort -connected true"), "");
}

TEST_F(ListPorts, ACompoundWithoutPortsHasNoResult) { EXPECT_EQ(run("/", "-listPorts"), ""); }

TEST_F(ListPorts, WhatNoPortPassesHasNoResult) {
  run("/", "-createInputPort a float");
  EXPECT_EQ(run("/", "-listPorts -connected true"), "");
}

TEST_F(ListPorts, ChildPortsAreNotListed) {
  run("/group", "-createInputPort color color3");
  EXPECT_EQ(list("-inputPort"), R"(["c","a","b","color"])");
}

TEST_F(ListPorts, HiddenPortsAreListed) {
  run("/group", "-hidePort c true");
  EXPECT_EQ(list("-inputPort"), R"(["c","a","b"])");
}

TEST_F(ListPorts, WhatIsListedFollowsTheEditsOfTheLine) {
  EXPECT_EQ(list("-inputPort -createInputPort d float -deletePort c -renamePort a e"),
            R"(["e","b","d"])");
}

/// `-connected` is read for the nodes and for the ports alike.
TEST_F(ListPorts, ConnectedFiltersTheNodesOfTheLineToo) {
  run("/group", "-addNode core::math::negate");
  EXPECT_EQ(list("-listNodes -connected true"), R"(["a","x","add"])");
  EXPECT_EQ(list("-listNodes -connected false"), R"(["c","b","z","y","negate"])");
}

}  // namespace
