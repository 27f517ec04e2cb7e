#include <gtest/gtest.h>

#include "platform/OpenVesk/KArgDatabase.h"
#include "platform/OpenVesk/KFnDependencyNode.h"
#include "platform/OpenVesk/KFnPlugin.h"
#include "platform/OpenVesk/KGlobal.h"
#include "platform/OpenVesk/KMessage.h"
#include "platform/OpenVesk/KSceneMessage.h"
#include "platform/OpenVesk/KStringResource.h"
#include "standalone/host/engine/HostAccess.h"
#include "standalone/host/engine/HostSession.h"

namespace {

/// No session is current; every call must come back and say no.
class WithoutSession : public ::testing::Test {
 protected:
  void SetUp() override { ASSERT_EQ(vesk::HostSession::current(), nullptr); }
};

TEST_F(WithoutSession, LinesFail) {
  KCommandResult result;
  int integer = 77;
  EXPECT_EQ(KGlobal::executeCommand("help", true, true).statusCode(), StatusFailure);
  EXPECT_EQ(KGlobal::executeCommand("help", result, true, true).statusCode(), StatusFailure);
  EXPECT_EQ(result.resultType(), KCommandResult::kNone);
  EXPECT_EQ(KGlobal::executeCommand("help", integer, true, true).statusCode(), StatusFailure);
  EXPECT_EQ(integer, 77);
  EXPECT_EQ(KGlobal::executeCommandOnIdle("help", true).statusCode(), StatusFailure);
}

TEST_F(WithoutSession, NothingIsUndoneOrRedone) {
  EXPECT_FALSE(KGlobal::isUndoing());
  EXPECT_FALSE(KGlobal::isRedoing());
}

TEST_F(WithoutSession, NoSceneObjectIsFound) {
  KSelectionList list;
  KObject object;
  EXPECT_EQ(KGlobal::getSelectionListByName("a", list).statusCode(), StatusFailure);
  EXPECT_EQ(list.getDependNode(0, object).statusCode(), StatusFailure);
}

TEST_F(WithoutSession, NoCallbackIsAddedOrRemoved) {
  KStatus status;
  EXPECT_EQ(KSceneMessage::addCallback(
                KSceneMessage::kExiting, [](void*) {}, nullptr, &status),
            0u);
  EXPECT_EQ(status.statusCode(), StatusFailure);
  EXPECT_EQ(KMessage::removeCallback(1).statusCode(), StatusFailure);
}

TEST_F(WithoutSession, TextsAreTheirDefaults) {
  const KStringResourceId id("plugin", "key", "the default");
  KStatus status;
  EXPECT_EQ(KStringResource::registerString(id).statusCode(), StatusFailure);
  EXPECT_STREQ(KStringResource::getString(id, status).asUTF8(), "the default");
  EXPECT_EQ(status.statusCode(), StatusFailure);
}

TEST_F(WithoutSession, MessagesAndResultsAreDropped) {
  KGlobal::displayError("nobody hears this");
  KGlobal::displayWarning("nor this");
  KPxCommand::setResult("text");
  KPxCommand::appendToResult("text");
  KPxCommand::clearResult();
  EXPECT_EQ(vesk::HostSession::current(), nullptr);
}

TEST_F(WithoutSession, ARefusedLineIsToldByItsStatusAlone) {
  auto arguments = std::make_shared<vesk::ArgumentArray>();
  arguments->push_back({KString("-a"), vesk::TokenKind::Flag});
  KStatus status;
  const KArgDatabase database(KSyntax(), HostAccess::argList(std::move(arguments)), &status);
  EXPECT_EQ(status.statusCode(), StatusBadArgument);
}

TEST_F(WithoutSession, NoPluginRegistersCommands) {
  KObject object;
  KStatus status;
  KFnPlugin plugin(object, "vendor", "1", "Any", &status);
  EXPECT_EQ(status.statusCode(), StatusFailure);
  EXPECT_EQ(plugin.name(&status).length(), 0u);
  EXPECT_EQ(status.statusCode(), StatusFailure);
  EXPECT_EQ(plugin.registerCommand("a", nullptr, nullptr).statusCode(), StatusFailure);
  EXPECT_EQ(plugin.deregisterCommand("a").statusCode(), StatusFailure);
}

}  // namespace
