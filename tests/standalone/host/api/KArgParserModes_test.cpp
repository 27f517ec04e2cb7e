#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/LineReading.h"

namespace {

using namespace hosttest;
using S = KSyntax;
using ::testing::ElementsAre;

/// With both modes: -a TEXT, -k TEXT TEXT kept in query, -o TEXT TEXT kept but optional there.
KSyntax modalSyntax() {
  KSyntax syntax;
  syntax.enableQuery(true);
  syntax.enableEdit(true);
  syntax.addFlag("-a", "-asked", S::ArgString);
  syntax.addFlag("-k", "-kept", S::ArgString, S::ArgString);
  syntax.makeFlagQueryWithFullArgs("-k", true);
  syntax.addFlag("-o", "-optional", S::ArgString, S::ArgString);
  syntax.makeFlagQueryWithFullArgs("-o", false);
  syntax.addArg(S::ArgString);
  return syntax;
}

Reading read(std::string_view line) { return Reading(modalSyntax(), line); }

TEST(KArgParserModes, ALineIsInNoModeByDefault) {
  KStatus status = StatusFailure;
  const Reading line = read("-a b");
  EXPECT_FALSE(line.database.isQuery(&status));
  EXPECT_TRUE(status);
  status = StatusFailure;
  EXPECT_FALSE(line.database.isEdit(&status));
  EXPECT_TRUE(status);
}

TEST(KArgParserModes, QueryModeHasAShortAndALongName) {
  for (const char* text : {"-q", "-query", "-a -q", "x -q"}) {
    EXPECT_TRUE(read(text).database.isQuery()) << text;
    EXPECT_FALSE(read(text).database.isEdit()) << text;
  }
}

TEST(KArgParserModes, EditModeHasAShortAndALongName) {
  for (const char* text : {"-e", "-edit", "-a b -e"}) {
    EXPECT_TRUE(read(text).database.isEdit()) << text;
    EXPECT_FALSE(read(text).database.isQuery()) << text;
  }
}

TEST(KArgParserModes, AModeMayBeGivenTwice) {
  EXPECT_EQ(read("-q -query").status(), StatusSuccess);
}

TEST(KArgParserModes, BothModesExcludeEachOther) {
  EXPECT_EQ(read("-q -e").status(), StatusBadArgument);
  EXPECT_THAT(messagesOf(modalSyntax(), "-e -q"),
              ElementsAre("! probe: query mode and edit mode exclude each other"));
}

TEST(KArgParserModes, AModeThatIsNotEnabledIsAnUnknownFlag) {
  KSyntax syntax;
  syntax.enableQuery(true);
  EXPECT_THAT(messagesOf(syntax, "-edit"), ElementsAre("! probe: unknown flag -edit"));
  syntax.enableQuery(false);
  EXPECT_THAT(messagesOf(syntax, "-q"), ElementsAre("! probe: unknown flag -q"));
}

TEST(KArgParserModes, AQuotedModeIsAnArgument) {
  const Reading line = read("\"-q\"");
  EXPECT_FALSE(line.database.isQuery());
  EXPECT_EQ(line.positional(0), "-q");
}

TEST(KArgParserModes, FlagsLoseTheirArgumentsInQueryMode) {
  const Reading line = read("-q -a text");
  EXPECT_EQ(line.status(), StatusSuccess);
  EXPECT_TRUE(line.database.isFlagSet("-a"));
  EXPECT_EQ(line.positional(0), "text");
  KStatus status;
  line.database.flagArgumentString("-a", 0, &status);
  EXPECT_EQ(status.statusCode(), StatusFailure);
}

TEST(KArgParserModes, QueryModeCountsForFlagsAheadOfItToo) {
  const Reading line = read("-a text -q");
  EXPECT_EQ(line.status(), StatusSuccess);
  EXPECT_EQ(line.positional(0), "text");
}

TEST(KArgParserModes, FlagsKeepTheirArgumentsInEditMode) {
  const Reading line = read("-e -a b");
  EXPECT_EQ(line.status(), StatusSuccess);
  EXPECT_EQ(line.flagText("-a"), "b");
}

TEST(KArgParserModes, AMarkedFlagKeepsItsArgumentsInQueryMode) {
  const Reading line = read("-q -k b c text");
  EXPECT_EQ(line.status(), StatusSuccess);
  EXPECT_EQ(line.flagText("-k", 1), "c");
  EXPECT_EQ(line.positional(0), "text");
}

TEST(KArgParserModes, AMarkedFlagNeedsItsArgumentsInQueryMode) {
  EXPECT_THAT(messagesOf(modalSyntax(), "-q -k"),
              ElementsAre("! probe: flag -kept needs 2 arguments, 0 given"));
}

TEST(KArgParserModes, ArgumentsThatAreNotRequiredMayBeLeftOutInQueryMode) {
  const Reading line = read("-q -o");
  EXPECT_EQ(line.status(), StatusSuccess);
  EXPECT_TRUE(line.database.isFlagSet("-o"));
  EXPECT_EQ(read("-q -o b c").flagText("-o", 1), "c");
}

TEST(KArgParserModes, ArgumentsThatAreNotRequiredComeAllOrNone) {
  EXPECT_THAT(messagesOf(modalSyntax(), "-q -o b"),
              ElementsAre("! probe: flag -optional needs 2 arguments, 1 given"));
}

TEST(KArgParserModes, ArgumentsThatAreNotRequiredInQueryModeAreRequiredElsewhere) {
  EXPECT_EQ(read("-o").status(), StatusBadArgument);
  EXPECT_EQ(read("-e -o").status(), StatusBadArgument);
}

TEST(KArgParserModes, TypesAreCheckedInQueryModeToo) {
  KSyntax syntax;
  syntax.enableQuery(true);
  syntax.addFlag("-c", "-count", S::ArgInteger);
  syntax.makeFlagQueryWithFullArgs("-c", false);
  EXPECT_EQ(Reading(syntax, "-q -c x").status(), StatusBadArgument);
  EXPECT_EQ(Reading(syntax, "-q -c 1").status(), StatusSuccess);
}

}  // namespace
