#include "platform/OpenVesk/KFnDependencyNode.h"
#include "platform/OpenVesk/KMessage.h"
#include "platform/OpenVesk/KSceneMessage.h"
#include "platform/OpenVesk/KSelectionList.h"
#include "standalone/host/engine/HostAccess.h"
#include "tests/standalone/host/scene/SceneTools.h"

namespace vesk {
namespace {

using vesk::testing::addNode;
using vesk::testing::LineHost;

void ignore(void*) {}

TEST(SceneHandles, LeadFromANameToTheUuid) {
  LineHost host;
  const SceneNodePtr node = addNode(host.scene(), "note", "n");
  KSelectionList list;
  EXPECT_TRUE(KGlobal::getSelectionListByName("n", list));
  KObject object;
  EXPECT_TRUE(list.getDependNode(0, object));
  KStatus status = StatusFailure;
  const KFnDependencyNode function(object, &status);
  EXPECT_TRUE(status);
  EXPECT_EQ(HostAccess::text(function.uuid(&status).asString()), node->uuid());
  EXPECT_TRUE(status);
}

TEST(SceneHandles, AnUnknownNameLeavesTheListEmpty) {
  const LineHost host;
  KSelectionList list;
  KObject object;
  EXPECT_FALSE(KGlobal::getSelectionListByName("n", list));
  EXPECT_FALSE(list.getDependNode(0, object));
  EXPECT_EQ(HostAccess::objectOf(object), nullptr);
}

TEST(SceneHandles, PastTheEndTheHandleIsUnchanged) {
  LineHost host;
  const SceneNodePtr node = addNode(host.scene(), "note", "n");
  KObject object = HostAccess::object(node);
  const KSelectionList list;
  EXPECT_FALSE(list.getDependNode(0, object));
  EXPECT_EQ(HostAccess::objectOf(object), node);
}

TEST(SceneHandles, ANullHandleIsNoNode) {
  KObject object;
  KStatus status;
  const KFnDependencyNode function(object, &status);
  EXPECT_FALSE(status);
  status = StatusSuccess;
  EXPECT_EQ(function.uuid(&status).asString().length(), 0u);
  EXPECT_FALSE(status);
}

TEST(SceneHandles, AnotherObjectIsNoNode) {
  KObject object = HostAccess::object(std::make_shared<HostObject>());
  KStatus status;
  const KFnDependencyNode function(object, &status);
  EXPECT_FALSE(status);
}

TEST(SceneHandles, OutliveNodeAndSession) {
  KObject object;
  std::string uuid;
  {
    LineHost host;
    const SceneNodePtr node = addNode(host.scene(), "note", "n");
    uuid = node->uuid();
    object = HostAccess::object(node);
  }
  KStatus status;
  const KFnDependencyNode function(object, &status);
  EXPECT_EQ(HostAccess::text(function.uuid(&status).asString()), uuid);
}

TEST(SceneMessages, ReachACallbackUntilItIsRemoved) {
  LineHost host;
  int calls = 0;
  KStatus status = StatusFailure;
  const std::uint64_t id = KSceneMessage::addCallback(
      KSceneMessage::kExiting, [](void* count) { ++*static_cast<int*>(count); }, &calls, &status);
  EXPECT_TRUE(status);
  EXPECT_NE(id, 0u);
  host.session().sceneEvents().send(SceneEvent::Exiting);
  EXPECT_TRUE(KMessage::removeCallback(id));
  EXPECT_FALSE(KMessage::removeCallback(id));
  host.session().sceneEvents().send(SceneEvent::Exiting);
  EXPECT_EQ(calls, 1);
}

TEST(SceneMessages, ANullFunctionIsRefused) {
  const LineHost host;
  KStatus status;
  EXPECT_EQ(KSceneMessage::addCallback(KSceneMessage::kExiting, nullptr, nullptr, &status), 0u);
  EXPECT_EQ(status.statusCode(), StatusBadArgument);
}

TEST(SceneMessages, WithoutASessionNothingIsRegistered) {
  ASSERT_EQ(HostSession::current(), nullptr);
  KStatus status;
  EXPECT_EQ(KSceneMessage::addCallback(KSceneMessage::kExiting, ignore, nullptr, &status), 0u);
  EXPECT_FALSE(status);
  EXPECT_EQ(KSceneMessage::addCallback(KSceneMessage::kExiting, ignore), 0u);
  EXPECT_FALSE(KMessage::removeCallback(1));
}

}  // namespace
}  // namespace vesk
