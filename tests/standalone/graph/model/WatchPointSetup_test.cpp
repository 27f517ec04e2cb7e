#include "standalone/graph/model/WatchPointSetup.h"

#include <gtest/gtest.h>

namespace orvlib {
namespace {

TEST(WatchPointSetup, OfANewWatchPoint) {
  const WatchPointSetup setup;
  EXPECT_EQ(setup.get("record"), "all");
  EXPECT_EQ(setup.get("limit"), "100");
  EXPECT_EQ(setup.get("format"), "shortest");
  EXPECT_EQ(setup.get("digits"), "6");
  EXPECT_EQ(setup.get("other"), "");
}

TEST(WatchPointSetup, GivesEachChoiceAsItWasSet) {
  for (const WatchPointParameter& parameter : watchPointParameters()) {
    for (const WatchPointChoice& choice : parameter.choices) {
      WatchPointSetup setup;
      EXPECT_TRUE(setup.set(parameter.name, choice.value)) << choice.value;
      EXPECT_EQ(setup.get(parameter.name), choice.value);
    }
  }
}

TEST(WatchPointSetup, KeepsWhatEachParameterStandsFor) {
  WatchPointSetup setup;
  EXPECT_TRUE(setup.set("record", "changes"));
  EXPECT_TRUE(setup.set("limit", "1000000"));
  EXPECT_TRUE(setup.set("format", "scientific"));
  EXPECT_TRUE(setup.set("digits", "20"));
  EXPECT_EQ(setup, (WatchPointSetup{true, true, 1000000, {FloatForm::Style::Scientific, 20}}));
}

TEST(WatchPointSetup, TakesOnlyWhatAParameterCanBe) {
  WatchPointSetup setup;
  for (const char* limit : {"0", "-1", "1000001", "4294967297", "", "1 ", "1.5", "ten"}) {
    EXPECT_FALSE(setup.set("limit", limit)) << limit;
  }
  for (const char* digits : {"-1", "21", "256", "4294967296", "", "1.5", "all"}) {
    EXPECT_FALSE(setup.set("digits", digits)) << digits;
  }
  for (const char* choice : {"", "All", "none", "shortest"}) {
    EXPECT_FALSE(setup.set("record", choice)) << choice;
  }
  for (const char* choice : {"", "Fixed", "6", "all"}) {
    EXPECT_FALSE(setup.set("format", choice)) << choice;
  }
  EXPECT_FALSE(setup.set("other", "all"));
  EXPECT_EQ(setup, WatchPointSetup());
}

TEST(WatchPointSetup, FindsParametersByName) {
  for (const WatchPointParameter& parameter : watchPointParameters()) {
    EXPECT_EQ(findWatchPointParameter(parameter.name), &parameter);
  }
  EXPECT_EQ(findWatchPointParameter("other"), nullptr);
  EXPECT_EQ(findWatchPointParameter(""), nullptr);
}

}  // namespace
}  // namespace orvlib
