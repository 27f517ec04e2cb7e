#include "platform/OpenVesk/KFnPlugin.h"

#include <dlfcn.h>
#include <gtest/gtest.h>

#include "standalone/host/engine/HostAccess.h"
#include "standalone/host/engine/PluginLoader.h"
#include "tests/support/HostTest.h"

namespace {

using namespace hosttest;

KPxCommand* createNothing() { return nullptr; }
KSyntax makeSyntax() { return {}; }

/// A plug-in whose library is this program, and a host for its commands.
class KFnPluginTest : public ::testing::Test {
 protected:
  KObject handle = HostAccess::object(
      std::make_shared<vesk::Plugin>("aPlugin", "/a", dlopen(nullptr, RTLD_NOW)));
  Host host;
};

KStatusCode statusFor(KObject& handle, const char* required) {
  KStatus status;
  const KFnPlugin plugin(handle, "vendor", "1", required, &status);
  return status.statusCode();
}

TEST_F(KFnPluginTest, HasTheNameUnderWhichTheHostLoadedIt) {
  const KFnPlugin plugin(handle, "vendor", "1", "Any");
  KStatus status = StatusFailure;
  EXPECT_STREQ(plugin.name(&status).asUTF8(), "aPlugin");
  EXPECT_TRUE(status);
}

TEST_F(KFnPluginTest, NotesVendorAndVersion) {
  const KFnPlugin plugin(handle, "a vendor", "1.2", "Any");
  const auto noted = std::dynamic_pointer_cast<vesk::Plugin>(HostAccess::objectOf(handle));
  EXPECT_EQ(noted->vendor, "a vendor");
  EXPECT_EQ(noted->version, "1.2");
}

TEST_F(KFnPluginTest, FitsAnyHostOrThisOne) {
  EXPECT_EQ(statusFor(handle, "Any"), StatusSuccess);
  EXPECT_EQ(statusFor(handle, "20250000"), StatusSuccess);
}

TEST_F(KFnPluginTest, RefusesAnotherHost) {
  for (const char* required : {"20240000", "any", "", static_cast<const char*>(nullptr)}) {
    EXPECT_EQ(statusFor(handle, required), StatusBadArgument);
  }
}

TEST_F(KFnPluginTest, RefusesAnObjectThatIsNoPlugin) {
  KObject nothing;
  EXPECT_EQ(statusFor(nothing, "Any"), StatusFailure);
}

TEST_F(KFnPluginTest, RegistersAndDeregistersItsCommands) {
  KFnPlugin plugin(handle, "", "", "Any");
  EXPECT_TRUE(plugin.registerCommand("mine", createNothing, makeSyntax));
  EXPECT_NE(host.session().registry().find("mine"), nullptr);
  EXPECT_TRUE(plugin.deregisterCommand("mine"));
  EXPECT_EQ(host.session().registry().find("mine"), nullptr);
  EXPECT_EQ(plugin.deregisterCommand("mine").statusCode(), StatusFailure);
}

TEST_F(KFnPluginTest, RefusesANameThatIsTaken) {
  KFnPlugin plugin(handle, "", "", "Any");
  EXPECT_EQ(plugin.registerCommand("undo", createNothing, makeSyntax).statusCode(), StatusFailure);
  EXPECT_EQ(host.session().registry().find("undo")->owner, nullptr);
}

TEST_F(KFnPluginTest, RefusesWhatIsNoCommand) {
  KFnPlugin plugin(handle, "", "", "Any");
  EXPECT_EQ(plugin.registerCommand("a b", createNothing, makeSyntax).statusCode(),
            StatusBadArgument);
  EXPECT_EQ(plugin.registerCommand("a", nullptr, makeSyntax).statusCode(), StatusBadArgument);
  EXPECT_EQ(plugin.registerCommand("a", createNothing, nullptr).statusCode(), StatusBadArgument);
  EXPECT_EQ(host.session().registry().find("a"), nullptr);
}

TEST_F(KFnPluginTest, DeregistersNoCommandOfTheHost) {
  KFnPlugin plugin(handle, "", "", "Any");
  EXPECT_EQ(plugin.deregisterCommand("undo").statusCode(), StatusFailure);
  EXPECT_NE(host.session().registry().find("undo"), nullptr);
}

}  // namespace
