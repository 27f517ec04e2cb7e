// Connections between nodes and between ports.

#include "tests/hook/HookTesting.h"

namespace {

using testing::ElementsAre;

using HookConnections = HookTest;

TEST_F(HookConnections, ConnectNodesJoinsTheFullPaths) {
  bool done = false;
  const auto list = listOf({"/c", "/group", "/a"});
  EXPECT_EQ(editTraceOf([&] { done = hook().connectNodes(*list); }),
            edit(R"(orvConnect "g" -connectNodes "{/c,/group,/a}")"));
  EXPECT_TRUE(done);
  EXPECT_EQ(sourceOf("/group.in"), "/c.result");
  EXPECT_EQ(sourceOf("/a.value"), "/group.out");
}

TEST_F(HookConnections, ConnectNodesInsideACompound) {
  build("/group", "-addNode core::math::absolute");
  const auto list = listOf({"/group/d", "/group/absolute"});
  EXPECT_EQ(editTraceOf([&] { hook().connectNodes(*list); }),
            edit(R"(orvConnect "g" -connectNodes "{/group/d,/group/absolute}")"));
}

TEST_F(HookConnections, ConnectNodesOfNoneStillRunsALine) {
  const auto list = listOf({});
  const Trace trace = traceOf([&] { hook().connectNodes(*list); });
  EXPECT_EQ(trace.journal.back(), R"(orvConnect "" -connectNodes "")");
  EXPECT_THAT(trace.echoes, ElementsAre(R"(orvConnect "" -connectNodes "")"));
  host.takeMessages();
}

TEST_F(HookConnections, ConnectNodesTakesTheGraphOfTheFirstNode) {
  Container& other = host.graph("other");
  host.run("orvCompound other / -addNode core::math::negate");
  host.session().undoQueue().clear();
  const auto list = ORV_v1::NodeList::createNew(nullptr);
  list->add(other.findNodeFromPath("/negate"));
  list->add(node("/a"));
  bool done = true;
  const Trace trace = traceOf([&] { done = hook().connectNodes(*list); });
  EXPECT_EQ(trace.journal.back(), R"(orvConnect "other" -connectNodes "{/negate,/a}")");
  EXPECT_FALSE(done);
  host.takeMessages();
}

TEST_F(HookConnections, ConnectPorts) {
  bool done = false;
  EXPECT_EQ(
      editTraceOf([&] { done = hook().connectPorts(port("/a.result"), port("/b.value"), false); }),
      edit(R"(orvConnect "g" "/a.result" "/b.value")"));
  EXPECT_TRUE(done);
  EXPECT_EQ(sourceOf("/b.value"), "/a.result");
}

TEST_F(HookConnections, ConnectPortsCopiesMetadataOnRequest) {
  host.run("orvNode g /a -setPortMetaDataValue result unit mm");
  EXPECT_EQ(editTraceOf([&] { hook().connectPorts(port("/a.result"), inner("/group.in"), true); }),
            edit(R"(orvConnect "g" "/a.result" "/group.in" -copyMetaData)"));
  EXPECT_STREQ(port("/group.in")->getPortMetaDataValue("unit").toChar(), "mm");
}

TEST_F(HookConnections, DisconnectPorts) {
  host.run("orvConnect g /a.result /b.value");
  bool done = false;
  EXPECT_EQ(
      editTraceOf([&] { done = hook().disconnectPorts(port("/a.result"), port("/b.value")); }),
      edit(R"(orvConnect "g" -disconnect "/a.result" "/b.value")"));
  EXPECT_TRUE(done);
  EXPECT_EQ(sourceOf("/b.value"), "");
}

TEST_F(HookConnections, TheOrderOfSourceAndDestinationIsKept) {
  const Trace there =
      traceOf([&] { hook().connectPorts(port("/b.value"), port("/a.result"), false); });
  EXPECT_EQ(there.journal.back(), R"(orvConnect "g" "/b.value" "/a.result")");
  const Trace back = traceOf([&] { hook().disconnectPorts(port("/b.value"), port("/a.result")); });
  EXPECT_EQ(back.journal.back(), R"(orvConnect "g" -disconnect "/b.value" "/a.result")");
  host.takeMessages();
}

TEST_F(HookConnections, WhatCannotBeDoneIsFalse) {
  const std::string before = stored();
  EXPECT_FALSE(hook().connectPorts(port("/a.value"), port("/b.value"), false));
  EXPECT_FALSE(hook().disconnectPorts(port("/a.result"), port("/b.value")));
  EXPECT_EQ(stored(), before);
}

TEST_F(HookConnections, AFailedLineThatGaveOneIsTrue) {
  replaceByFailure("orvConnect");
  EXPECT_TRUE(hook().connectNodes(*listOf({"/a", "/b"})));
  EXPECT_TRUE(hook().connectPorts(port("/a.result"), port("/b.value"), false));
  EXPECT_TRUE(hook().disconnectPorts(port("/a.result"), port("/b.value")));
}

TEST_F(HookConnections, ASourceWithoutANodeTakesTheGraphOfTheDestination) {
  const PortHandle orphan = port("/c.result");
  build("/", "-removeNode c");
  host.session().undoQueue().clear();
  ASSERT_FALSE(orphan->getParentNode());
  const Trace trace = traceOf([&] { hook().connectPorts(orphan, port("/b.value"), false); });
  EXPECT_EQ(trace.journal.back(), R"(orvConnect "g" "result" "/b.value")");
  const Trace back = traceOf([&] { hook().disconnectPorts(orphan, port("/b.value")); });
  EXPECT_EQ(back.journal.back(), R"(orvConnect "g" -disconnect "result" "/b.value")");
  host.takeMessages();
}

}  // namespace
