#include "platform/OpenVesk/KSyntax.h"

#include <gtest/gtest.h>

#include "tests/support/LineReading.h"

namespace {

using namespace hosttest;
using S = KSyntax;

TEST(KSyntax, DeclaresFlagsWithAndWithoutALeadingMinus) {
  KSyntax syntax;
  EXPECT_TRUE(syntax.addFlag("-a", "-all"));
  EXPECT_TRUE(syntax.addFlag("b", "bare"));
  const Reading line(syntax, "-a -bare");
  EXPECT_EQ(line.status(), StatusSuccess);
  EXPECT_TRUE(line.database.isFlagSet("-a"));
  EXPECT_TRUE(line.database.isFlagSet("b"));
}

TEST(KSyntax, RefusesFlagsWithoutName) {
  KSyntax syntax;
  EXPECT_EQ(syntax.addFlag("", "-all").statusCode(), StatusBadArgument);
  EXPECT_EQ(syntax.addFlag("-a", "").statusCode(), StatusBadArgument);
  EXPECT_EQ(syntax.addFlag("-", "-all").statusCode(), StatusBadArgument);
  EXPECT_EQ(syntax.addFlag(nullptr, "-all").statusCode(), StatusBadArgument);
  EXPECT_EQ(syntax.addFlag("-a", nullptr).statusCode(), StatusBadArgument);
}

TEST(KSyntax, RefusesNamesThatAreTaken) {
  KSyntax syntax;
  ASSERT_TRUE(syntax.addFlag("-a", "-all"));
  EXPECT_EQ(syntax.addFlag("-a", "-other").statusCode(), StatusBadArgument);
  EXPECT_EQ(syntax.addFlag("-o", "-all").statusCode(), StatusBadArgument);
  EXPECT_EQ(syntax.addFlag("-all", "-other").statusCode(), StatusBadArgument);
  EXPECT_EQ(syntax.addFlag("a", "other").statusCode(), StatusBadArgument);
}

TEST(KSyntax, ARefusedFlagLeavesNothingBehind) {
  KSyntax syntax;
  ASSERT_TRUE(syntax.addFlag("-a", "-all"));
  ASSERT_FALSE(syntax.addFlag("-o", "-all"));
  EXPECT_EQ(Reading(syntax, "-o").status(), StatusBadArgument);
  EXPECT_TRUE(syntax.addFlag("-o", "-other"));
}

TEST(KSyntax, OneNameMayBeShortAndLongNameOfTheSameFlag) {
  KSyntax syntax;
  EXPECT_TRUE(syntax.addFlag("-a", "-a"));
  EXPECT_TRUE(Reading(syntax, "-a").database.isFlagSet("-a"));
}

TEST(KSyntax, RefusesArgumentsBehindAnUnusedPosition) {
  KSyntax syntax;
  EXPECT_EQ(syntax.addFlag("-a", "-all", S::ArgNone, S::ArgString).statusCode(), StatusBadArgument);
  EXPECT_EQ(syntax.addFlag("-b", "-bad", S::ArgString, S::ArgNone, S::ArgNone, S::ArgInteger)
                .statusCode(),
            StatusBadArgument);
  EXPECT_EQ(Reading(syntax, "-a").status(), StatusBadArgument);
}

TEST(KSyntax, AFlagMayTakeSixArguments) {
  KSyntax syntax;
  ASSERT_TRUE(syntax.addFlag("-a", "-all", S::ArgString, S::ArgString, S::ArgString, S::ArgString,
                             S::ArgString, S::ArgString));
  const Reading line(syntax, "-a 1 2 3 4 5 6");
  EXPECT_EQ(line.status(), StatusSuccess);
  EXPECT_EQ(line.flagText("-a", 5), "6");
}

TEST(KSyntax, RefusesAPositionalArgumentOfNothing) {
  KSyntax syntax;
  EXPECT_EQ(syntax.addArg(S::ArgNone).statusCode(), StatusBadArgument);
  EXPECT_EQ(Reading(syntax, "x").status(), StatusBadArgument);
}

TEST(KSyntax, OnlyDeclaredFlagsCanBeMarked) {
  KSyntax syntax;
  ASSERT_TRUE(syntax.addFlag("-a", "-all", S::ArgString));
  EXPECT_TRUE(syntax.makeFlagMultiUse("-a"));
  EXPECT_TRUE(syntax.makeFlagQueryWithFullArgs("-a", true));
  for (const char* name : {"a", "-b", "", static_cast<const char*>(nullptr)}) {
    EXPECT_EQ(syntax.makeFlagMultiUse(name).statusCode(), StatusBadArgument);
    EXPECT_EQ(syntax.makeFlagQueryWithFullArgs(name, true).statusCode(), StatusBadArgument);
  }
}

TEST(KSyntax, AChangedCopyLeavesTheOriginalAlone) {
  KSyntax original;
  ASSERT_TRUE(original.addFlag("-a", "-all"));
  KSyntax copy(original);
  ASSERT_TRUE(copy.addFlag("-b", "-both"));
  ASSERT_TRUE(copy.makeFlagMultiUse("-a"));
  ASSERT_TRUE(copy.addArg(S::ArgString));
  copy.enableQuery(true);
  EXPECT_EQ(Reading(original, "-b").status(), StatusBadArgument);
  EXPECT_EQ(Reading(original, "-a -a").status(), StatusBadArgument);
  EXPECT_EQ(Reading(original, "x").status(), StatusBadArgument);
  EXPECT_EQ(Reading(original, "-q").status(), StatusBadArgument);
  EXPECT_EQ(Reading(copy, "-q -a -a -b x").status(), StatusSuccess);
}

TEST(KSyntax, AChangedOriginalLeavesItsCopiesAlone) {
  KSyntax original;
  const KSyntax copy(original);
  KSyntax assigned;
  assigned = original;
  ASSERT_TRUE(original.addFlag("-a", "-all"));
  EXPECT_EQ(Reading(copy, "-a").status(), StatusBadArgument);
  EXPECT_EQ(Reading(assigned, "-a").status(), StatusBadArgument);
}

TEST(KSyntax, AChangeBehindAReadingLeavesTheReadingAlone) {
  KSyntax syntax;
  ASSERT_TRUE(syntax.addFlag("-a", "-all"));
  const Reading line(syntax, "-a");
  ASSERT_TRUE(syntax.addFlag("-b", "-both"));
  KStatus status;
  EXPECT_FALSE(line.database.isFlagSet("-b", &status));
  EXPECT_EQ(status.statusCode(), StatusBadArgument);
  EXPECT_TRUE(line.database.isFlagSet("-a"));
}

}  // namespace
