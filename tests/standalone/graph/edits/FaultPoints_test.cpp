#include "standalone/graph/edits/FaultPoints.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace {

using orvlib::ArmedFault;
using orvlib::FaultPoint;
using orvlib::FaultPoints;

const FaultPoint first("test.first");
const FaultPoint second("test.second");

// A static object that asks before main, from a file that knows nothing of the library's order.
const bool refusedBeforeMain = first.refuses();

TEST(FaultPoints, AreInertWhileNothingIsArmed) {
  EXPECT_FALSE(first.refuses());
  EXPECT_FALSE(refusedBeforeMain);
}

TEST(FaultPoints, AreKnownByName) {
  EXPECT_THAT(FaultPoints::names(), testing::IsSupersetOf({"test.first", "test.second"}));
}

TEST(FaultPoints, AreNamedOnceAndInOrder) {
  const FaultPoint again("test.first");
  const auto names = FaultPoints::names();
  EXPECT_TRUE(std::is_sorted(names.begin(), names.end()));
  EXPECT_EQ(std::count(names.begin(), names.end(), "test.first"), 1);
}

TEST(FaultPoints, AreGoneWithTheirObject) {
  {
    const FaultPoint before("test.before");
    const FaultPoint passing("test.passing");
    const FaultPoint behind("test.behind");
    EXPECT_THAT(FaultPoints::names(), testing::Contains("test.passing"));
  }
  EXPECT_THAT(FaultPoints::names(), testing::Not(testing::Contains("test.passing")));
  EXPECT_THAT(FaultPoints::names(), testing::Contains("test.first"));
}

TEST(FaultPoints, RefuseOnceWhenArmed) {
  const ArmedFault armed("test.first");
  EXPECT_TRUE(first.refuses());
  EXPECT_FALSE(first.refuses());
}

TEST(FaultPoints, RefuseTheAskingThatIsArmed) {
  const ArmedFault armed("test.first", 3);
  EXPECT_FALSE(first.refuses());
  EXPECT_FALSE(first.refuses());
  EXPECT_FALSE(armed.refused());
  EXPECT_TRUE(first.refuses());
  EXPECT_FALSE(first.refuses());
  EXPECT_TRUE(armed.refused());
}

TEST(FaultPoints, RefuseUnderTheArmedNameAlone) {
  const ArmedFault armed("test.second");
  EXPECT_FALSE(first.refuses());
  EXPECT_TRUE(second.refuses());
}

TEST(FaultPoints, OfOneNameAreCountedTogether) {
  const FaultPoint again("test.first");
  const ArmedFault armed("test.first", 2);
  EXPECT_FALSE(again.refuses());
  EXPECT_TRUE(first.refuses());
}

TEST(FaultPoints, OfAnyNameAreCountedTogether) {
  const ArmedFault armed(2);
  EXPECT_FALSE(first.refuses());
  EXPECT_TRUE(second.refuses());
  EXPECT_FALSE(first.refuses());
}

TEST(FaultPoints, CountHowOftenTheyWereAsked) {
  const ArmedFault armed(1000);
  first.refuses();
  second.refuses();
  first.refuses();
  EXPECT_EQ(armed.asked(), 3u);
  EXPECT_FALSE(armed.refused());
}

TEST(FaultPoints, CountTheArmedNameAlone) {
  const ArmedFault armed("test.first");
  first.refuses();
  second.refuses();
  first.refuses();
  EXPECT_EQ(armed.asked(), 2u);
}

TEST(FaultPoints, AreInertAgainWhenDisarmed) {
  { const ArmedFault armed("test.first"); }
  EXPECT_FALSE(first.refuses());
}

TEST(FaultPoints, KeepTheCountWhenDisarmed) {
  {
    const ArmedFault armed(1000);
    first.refuses();
  }
  first.refuses();
  EXPECT_EQ(FaultPoints::asked(), 1u);
}

TEST(FaultPoints, CountFromZeroWhenArmedAgain) {
  FaultPoints::armAny(1000);
  first.refuses();
  const ArmedFault armed(1);
  EXPECT_EQ(armed.asked(), 0u);
  EXPECT_TRUE(first.refuses());
}

TEST(FaultPoints, CannotBeArmedUnderAnUnknownName) {
  const ArmedFault armed("test.frist");
  EXPECT_FALSE(armed.isArmed());
  EXPECT_FALSE(first.refuses());
}

TEST(FaultPoints, CannotBeArmedForTheAskingZero) {
  EXPECT_FALSE(FaultPoints::arm("test.first", 0));
  EXPECT_FALSE(first.refuses());
}

TEST(FaultPoints, TellWhichWereAskedWhileAnyIsArmed) {
  const ArmedFault armed(1000);
  first.refuses();
  second.refuses();
  first.refuses();
  EXPECT_THAT(FaultPoints::askedNames(),
              testing::ElementsAre("test.first", "test.second", "test.first"));
}

}  // namespace
