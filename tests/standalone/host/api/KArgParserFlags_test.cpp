#include <gtest/gtest.h>

#include "tests/support/LineReading.h"

namespace {

using namespace hosttest;
using S = KSyntax;

/// -n/-name TEXT, -c/-count INT, multi-use pair/pairs TEXT TEXT, -f/-force, a text, an integer.
KSyntax usualSyntax() {
  KSyntax syntax;
  syntax.addFlag("-n", "-name", S::ArgString);
  syntax.addFlag("-c", "-count", S::ArgInteger);
  syntax.addFlag("p", "pairs", S::ArgString, S::ArgString);
  syntax.makeFlagMultiUse("p");
  syntax.addFlag("-f", "-force");
  syntax.addArg(S::ArgString);
  syntax.addArg(S::ArgInteger);
  return syntax;
}

Reading read(std::string_view line) { return Reading(usualSyntax(), line); }

KStatusCode askFor(const Reading& line, const char* flag) {
  KStatus status;
  line.database.isFlagSet(flag, &status);
  return status.statusCode();
}

TEST(KArgParserFlags, AreSetWhenTheyAreGiven) {
  const Reading line = read("-name a");
  EXPECT_TRUE(line.database.isFlagSet("-n"));
  EXPECT_FALSE(line.database.isFlagSet("-f"));
}

TEST(KArgParserFlags, AreAskedForByTheirShortAndLongName) {
  const Reading line = read("-f");
  EXPECT_TRUE(line.database.isFlagSet("-f"));
  EXPECT_TRUE(line.database.isFlagSet("-force"));
}

TEST(KArgParserFlags, AreAskedForExactlyAsDeclared) {
  const Reading line = read("-pairs a b -f");
  EXPECT_TRUE(line.database.isFlagSet("p"));
  EXPECT_TRUE(line.database.isFlagSet("pairs"));
  for (const char* name : {"-p", "-pairs", "f", "force", "-forc", "", "-x"}) {
    EXPECT_FALSE(line.database.isFlagSet(name)) << name;
    EXPECT_EQ(askFor(line, name), StatusBadArgument) << name;
  }
  EXPECT_EQ(askFor(line, nullptr), StatusBadArgument);
}

TEST(KArgParserFlags, NotBeingGivenIsNoFailure) {
  EXPECT_EQ(askFor(read(""), "-f"), StatusSuccess);
  EXPECT_EQ(askFor(read("-f"), "-f"), StatusSuccess);
}

TEST(KArgParserFlags, StandBeforeBetweenAndBehindPositionalArguments) {
  for (const char* text : {"-n a -f text 5", "text -n a 5 -f", "text 5 -f -n a"}) {
    const Reading line = read(text);
    EXPECT_EQ(line.status(), StatusSuccess) << text;
    EXPECT_EQ(line.flagText("-n"), "a") << text;
    EXPECT_TRUE(line.database.isFlagSet("-f")) << text;
    EXPECT_EQ(line.positional(0), "text") << text;
    EXPECT_EQ(line.positional(1), "5") << text;
  }
}

TEST(KArgParserFlags, ABeginningOfOneLongNameMeansIt) {
  KSyntax syntax;
  syntax.addFlag("-a", "-addNode");
  syntax.addFlag("-r", "-removeNode");
  EXPECT_TRUE(Reading(syntax, "-rem").database.isFlagSet("-r"));
}

TEST(KArgParserFlags, AWholeNameWinsOverALongerOne) {
  KSyntax syntax;
  syntax.addFlag("-a", "-add");
  syntax.addFlag("-an", "-addNode");
  const Reading line(syntax, "-add");
  EXPECT_EQ(line.status(), StatusSuccess);
  EXPECT_TRUE(line.database.isFlagSet("-a"));
  EXPECT_FALSE(line.database.isFlagSet("-an"));
}

TEST(KArgParserFlags, AShortNameWinsOverTheBeginningOfALongOne) {
  KSyntax syntax;
  syntax.addFlag("-x", "-add");
  syntax.addFlag("-ad", "-other");
  const Reading line(syntax, "-ad");
  EXPECT_EQ(line.status(), StatusSuccess);
  EXPECT_TRUE(line.database.isFlagSet("-other"));
}

TEST(KArgParserFlags, NamesTellLettersOfEitherCaseApart) {
  EXPECT_EQ(read("-F").status(), StatusBadArgument);
}

TEST(KArgParserFlags, AQuotedFlagIsAnArgument) {
  const Reading line = read("\"-f\"");
  EXPECT_EQ(line.status(), StatusSuccess);
  EXPECT_FALSE(line.database.isFlagSet("-f"));
  EXPECT_EQ(line.positional(0), "-f");
}

TEST(KArgParserFlags, ArgumentsThatBeginWithAMinusMustBeQuoted) {
  EXPECT_EQ(read("-n \"-a\"").flagText("-n"), "-a");
  EXPECT_EQ(read("-n -a").status(), StatusBadArgument);
}

TEST(KArgParserFlags, NegativeNumbersAreArguments) {
  const Reading line = read("-c -3 text -4");
  EXPECT_EQ(line.status(), StatusSuccess);
  EXPECT_EQ(line.database.flagArgumentInt("-c", 0), -3);
  EXPECT_EQ(line.positional(1), "-4");
}

TEST(KArgParserFlags, AFlagThatIsNotMultiUseKeepsItsFirstUse) {
  const Reading line = read("-n a -n b");
  EXPECT_EQ(line.status(), StatusBadArgument);
  EXPECT_EQ(line.flagText("-n"), "a");
  EXPECT_EQ(line.database.numberOfFlagUses("-n"), 1u);
}

TEST(KArgParserFlags, ShortAndLongNameAreUsesOfTheSameFlag) {
  EXPECT_EQ(read("-n a -name b").status(), StatusBadArgument);
  EXPECT_EQ(read("-p a b -pairs c d").database.numberOfFlagUses("p"), 2u);
}

TEST(KArgParserMultiUse, CountsItsUses) {
  EXPECT_EQ(read("").database.numberOfFlagUses("p"), 0u);
  EXPECT_EQ(read("-p a b").database.numberOfFlagUses("p"), 1u);
  EXPECT_EQ(read("").database.numberOfFlagUses("unknown"), 0u);
}

TEST(KArgParserMultiUse, GivesTheArgumentsOfEachUse) {
  std::string text;
  for (int i = 0; i < 100; ++i) text += "-p a" + std::to_string(i) + " b" + std::to_string(i) + " ";
  const Reading line = read(text);
  ASSERT_EQ(line.status(), StatusSuccess);
  ASSERT_EQ(line.database.numberOfFlagUses("p"), 100u);
  for (unsigned i = 0; i < 100; ++i) {
    KArgList list;
    ASSERT_TRUE(line.database.getFlagArgumentList("p", i, list));
    ASSERT_EQ(list.length(), 2u);
    EXPECT_EQ(list.asString(0).asUTF8(), "a" + std::to_string(i));
    EXPECT_EQ(list.asString(1).asUTF8(), "b" + std::to_string(i));
  }
}

TEST(KArgParserMultiUse, AUsePastTheLastLeavesTheListUnchanged) {
  const Reading line = read("-p a b");
  KArgList list = argumentsOf("former");
  EXPECT_EQ(line.database.getFlagArgumentList("p", 1, list).statusCode(), StatusFailure);
  EXPECT_EQ(line.database.getFlagArgumentList("-n", 0, list).statusCode(), StatusFailure);
  EXPECT_EQ(line.database.getFlagArgumentList("-x", 0, list).statusCode(), StatusBadArgument);
  ASSERT_EQ(list.length(), 1u);
  EXPECT_STREQ(list.asString(0).asUTF8(), "former");
}

TEST(KArgParserMultiUse, AListOutlivesItsReading) {
  KArgList list;
  ASSERT_TRUE(read("-p a b").database.getFlagArgumentList("p", 0, list));
  EXPECT_STREQ(list.asString(1).asUTF8(), "b");
}

TEST(KArgParserMultiUse, AListCanBeReadAgainstASyntax) {
  KArgList list;
  ASSERT_TRUE(read("text -p a 7 -f").database.getFlagArgumentList("p", 0, list));
  KStatus status = StatusFailure;
  const KArgDatabase inner(usualSyntax(), list, &status);
  EXPECT_TRUE(status);
  int value = 0;
  EXPECT_TRUE(inner.getCommandArgument(1, value));
  EXPECT_EQ(value, 7);
}

TEST(KArgParserMultiUse, AFlagWithoutArgumentsHasAnEmptyListForItsUse) {
  KArgList list = argumentsOf("former");
  ASSERT_TRUE(read("-f").database.getFlagArgumentList("-f", 0, list));
  EXPECT_EQ(list.length(), 0u);
}

}  // namespace
