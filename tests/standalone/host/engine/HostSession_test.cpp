#include "standalone/host/engine/HostSession.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/OpenVesk/KGlobal.h"
#include "tests/support/ProbeCommand.h"

namespace {

using namespace hosttest;
using ::testing::ElementsAre;

TEST(HostSession, IsCurrentWhileItLives) {
  EXPECT_EQ(vesk::HostSession::current(), nullptr);
  {
    vesk::HostSession session;
    EXPECT_EQ(vesk::HostSession::current(), &session);
  }
  EXPECT_EQ(vesk::HostSession::current(), nullptr);
}

TEST(HostSession, TheOneBuiltLastIsCurrent) {
  vesk::HostSession outer;
  {
    vesk::HostSession inner;
    EXPECT_EQ(vesk::HostSession::current(), &inner);
  }
  EXPECT_EQ(vesk::HostSession::current(), &outer);
}

TEST(HostSession, ServicesReachTheCurrentOne) {
  Host outer;
  {
    Host inner;
    KGlobal::displayError("inner");
    EXPECT_THAT(inner.takeMessages(), ElementsAre("! inner"));
  }
  KGlobal::displayWarning("outer");
  EXPECT_THAT(outer.takeMessages(), ElementsAre("? outer"));
}

TEST(HostSession, HasTheHostsOwnCommandsEachWithASummary) {
  vesk::HostSession session;
  for (const std::string& name : session.registry().names()) {
    EXPECT_FALSE(session.registry().find(name)->summary.empty()) << name;
  }
  for (const char* name :
       {"about", "echo", "file", "help", "loadPlugin", "mouse", "optionVar", "pluginInfo", "quit",
        "redo", "source", "undo", "undoInfo", "unloadPlugin"}) {
    EXPECT_NE(session.registry().find(name), nullptr) << name;
  }
}

TEST(HostSession, DeletesItsEditsNewestFirstAtItsEnd) {
  ProbeHost host;
  host.run("edit a; edit b");
  takeDiary();
  host.end();
  EXPECT_THAT(takeDiary(), ElementsAre("delete edit b", "delete edit a"));
}

}  // namespace
