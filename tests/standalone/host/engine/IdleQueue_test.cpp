#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/OpenVesk/KGlobal.h"
#include "tests/support/ProbeCommand.h"

namespace {

using namespace hosttest;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// A command that leaves each of its arguments on the idle queue.
ProbeBody postponer(bool display = true) {
  return {.doIt = [display](KPxCommand&, const KArgList& lines) {
    for (unsigned i = 0; i < lines.length(); ++i) {
      EXPECT_TRUE(KGlobal::executeCommandOnIdle(lines.asString(i), display));
    }
    return KStatus();
  }};
}

TEST(IdleLines, RunInOrderBehindTheLineThatAddedThem) {
  ProbeHost host;
  addProbe(host, "later", postponer());
  host.run("later \"edit a\" \"edit b\"; edit now");
  EXPECT_THAT(host.steps(), ElementsAre("edit now", "edit a", "edit b"));
}

TEST(IdleLines, RunAlsoWhenTheLineThatAddedThemFails) {
  ProbeHost host;
  addProbe(host, "later", postponer());
  host.refusal("later \"edit a\"; unknown");
  EXPECT_THAT(host.steps(), ElementsAre("edit a"));
}

TEST(IdleLines, RunBehindThoseThatWaitWhenAnIdleLineAddsThem) {
  ProbeHost host;
  addProbe(host, "later", postponer());
  host.run("later \"later \\\"edit c\\\"\" \"edit b\"");
  EXPECT_THAT(host.steps(), ElementsAre("edit b", "edit c"));
}

TEST(IdleLines, AFailureIsToldAndStopsNoOther) {
  ProbeHost host;
  addProbe(host, "later", postponer());
  EXPECT_THAT(host.refusal("later unknown \"edit a\""),
              ElementsAre("! unknown command \"unknown\"",
                          "! idle line: \"unknown\" failed with status 3"));
  EXPECT_THAT(host.steps(), ElementsAre("edit a"));
}

TEST(IdleLines, TheFirstFailureIsThatOfTheLineThatAddedThem) {
  ProbeHost host;
  addProbe(host, "later", postponer());
  addProbe(host, "refuse",
           {.doIt = [](KPxCommand&, const KArgList&) { return KStatus(StatusFailure); }});
  EXPECT_EQ(host.status("later refuse unknown"), StatusFailure);
  EXPECT_EQ(host.status("later unknown refuse"), StatusBadArgument);
  EXPECT_EQ(host.status("later refuse; unknown"), StatusBadArgument);
  EXPECT_EQ(host.takeMessages().size(), 8u);
}

TEST(IdleLines, DoNotRunInsideACommand) {
  ProbeHost host;
  Texts inside;
  addProbe(host, "busy", {.doIt = [&](KPxCommand&, const KArgList&) {
             KGlobal::executeCommandOnIdle("edit a", true);
             host.session().runIdleLines();
             inside = host.steps();
             return KStatus();
           }});
  host.run("busy");
  EXPECT_THAT(inside, IsEmpty());
  EXPECT_THAT(host.steps(), ElementsAre("edit a"));
}

TEST(IdleLines, AreEchoedOnlyWhenTheyAreShown) {
  ProbeHost host;
  addProbe(host, "shown", postponer(true));
  addProbe(host, "hidden", postponer(false));
  host.run("shown \"edit a\"; hidden \"edit b\"");
  EXPECT_THAT(host.takeEchoes(), ElementsAre("shown \"edit a\"; hidden \"edit b\"", "edit a"));
}

TEST(IdleLines, WaitUntilSomebodyIsIdle) {
  ProbeHost host;
  EXPECT_TRUE(KGlobal::executeCommandOnIdle("edit a", true));
  EXPECT_THAT(host.steps(), IsEmpty());
  host.session().runIdleLines();
  EXPECT_THAT(host.steps(), ElementsAre("edit a"));
  EXPECT_TRUE(host.session().idleQueue().isEmpty());
}

TEST(IdleLines, DoNotRunOnceTheProgramShallEnd) {
  ProbeHost host;
  addProbe(host, "later", postponer());
  host.run("later quit \"edit a\"");
  EXPECT_THAT(host.steps(), IsEmpty());
}

}  // namespace
