#include "platform/OpenVesk/KArgDatabase.h"

#include <gtest/gtest.h>

#include <climits>
#include <limits>

#include "tests/support/LineReading.h"

namespace {

using namespace hosttest;
using S = KSyntax;

/// -t TEXT, -b BOOLEAN, -i INTEGER, -u UNSIGNED, -p TEXT INTEGER and two positional texts.
KSyntax typedSyntax() {
  KSyntax syntax;
  syntax.addFlag("-t", "-text", S::ArgString);
  syntax.addFlag("-b", "-boolean", S::ArgBoolean);
  syntax.addFlag("-i", "-integer", S::ArgInteger);
  syntax.addFlag("-u", "-unsigned", S::ArgUnsigned);
  syntax.addFlag("-p", "-pair", S::ArgString, S::ArgInteger);
  syntax.addArg(S::ArgString);
  syntax.addArg(S::ArgString);
  return syntax;
}

/// Reads `flag VALUE` into a variable that held `former`.
template <class Value>
std::pair<KStatusCode, Value> readFlag(const std::string& flag, const std::string& value,
                                       Value former) {
  const Reading line(typedSyntax(), flag + " " + value);
  const KStatus status = line.database.getFlagArgument(flag.c_str(), 0, former);
  return {status.statusCode(), former};
}

template <class Value>
std::pair<KStatusCode, Value> success(Value value) {
  return {StatusSuccess, value};
}

template <class Value>
std::pair<KStatusCode, Value> refused(Value former) {
  return {StatusBadArgument, former};
}

TEST(KArgDatabase, ReadsTexts) {
  KString value;
  EXPECT_TRUE(Reading(typedSyntax(), "-t \"a \u00e9\"").database.getFlagArgument("-t", 0, value));
  EXPECT_STREQ(value.asUTF8(), "a \u00e9");
}

TEST(KArgDatabase, ReadsBooleansInEverySpellingAndCase) {
  for (const char* text : {"true", "True", "TRUE", "on", "On", "ON", "yes", "Yes", "YES", "1"}) {
    EXPECT_EQ(readFlag("-b", text, false), success(true)) << text;
  }
  for (const char* text : {"false", "False", "FALSE", "off", "Off", "OFF", "no", "No", "NO", "0"}) {
    EXPECT_EQ(readFlag("-b", text, true), success(false)) << text;
  }
}

TEST(KArgDatabase, RefusesOtherTextsAsBooleans) {
  for (const char* text : {"2", "-1", "t", "tru", "truee", "\"\"", "\" true\"", "o", "10"}) {
    EXPECT_EQ(readFlag("-b", text, true), refused(true)) << text;
  }
}

TEST(KArgDatabase, ReadsIntegersOfTheirWholeRange) {
  EXPECT_EQ(readFlag("-i", "2147483647", 0), success(INT_MAX));
  EXPECT_EQ(readFlag("-i", "-2147483648", 0), success(INT_MIN));
  EXPECT_EQ(readFlag("-i", "+5", 0), success(5));
  EXPECT_EQ(readFlag("-i", "007", 0), success(7));
}

TEST(KArgDatabase, RefusesIntegersOutOfRangeAndOtherTexts) {
  for (const char* text : {"2147483648", "-2147483649", "1.0", "1e3", "0x10", "\"\"", "\" 1\"",
                           "\"1 \"", "1a", "\"+-1\"", "\"--1\"", "+"}) {
    EXPECT_EQ(readFlag("-i", text, 77), refused(77)) << text;
  }
}

TEST(KArgDatabase, ReadsUnsignedsOfTheirWholeRange) {
  EXPECT_EQ(readFlag("-u", "0", 77u), success(0u));
  EXPECT_EQ(readFlag("-u", "4294967295", 77u), success(std::numeric_limits<unsigned>::max()));
}

TEST(KArgDatabase, RefusesUnsignedsOutOfRange) {
  for (const char* text : {"-1", "-0", "4294967296", "1.0", "x"}) {
    EXPECT_EQ(readFlag("-u", text, 77u), refused(77u)) << text;
  }
}

TEST(KArgDatabase, ReadsThe32BitsOfAPositionalUnsignedAsAnInteger) {
  KSyntax syntax;
  syntax.addArg(S::ArgUnsigned);
  int value = 7;
  EXPECT_TRUE(Reading(syntax, "4294967295").database.getCommandArgument(0, value));
  EXPECT_EQ(value, -1);
  EXPECT_TRUE(Reading(syntax, "2147483647").database.getCommandArgument(0, value));
  EXPECT_EQ(value, INT_MAX);
}

TEST(KArgDatabase, ReadsAnUnsignedThatFitsAsAnInteger) {
  EXPECT_EQ(readFlag("-u", "2147483647", 0), success(INT_MAX));
  EXPECT_EQ(readFlag("-u", "2147483648", 77), refused(77));
}

TEST(KArgDatabase, ReadsEachArgumentOfAFlagByItsIndex) {
  const Reading line(typedSyntax(), "-p a 5");
  KString text;
  int integer = 0;
  EXPECT_TRUE(line.database.getFlagArgument("-p", 0, text));
  EXPECT_TRUE(line.database.getFlagArgument("-p", 1, integer));
  EXPECT_STREQ(text.asUTF8(), "a");
  EXPECT_EQ(integer, 5);
}

TEST(KArgDatabase, AReadOfTheWrongTypeIsABadArgument) {
  EXPECT_EQ(readFlag("-t", "word", 77), refused(77));
  EXPECT_EQ(readFlag("-t", "word", 77u), refused(77u));
  EXPECT_EQ(readFlag("-t", "word", true), refused(true));
}

TEST(KArgDatabase, AnArgumentThatIsNotThereIsAFailure) {
  const Reading line(typedSyntax(), "-t a");
  KString text("former");
  bool boolean = true;
  EXPECT_EQ(line.database.getFlagArgument("-t", 1, text).statusCode(), StatusFailure);
  EXPECT_EQ(line.database.getFlagArgument("-b", 0, boolean).statusCode(), StatusFailure);
  EXPECT_STREQ(text.asUTF8(), "former");
  EXPECT_TRUE(boolean);
}

TEST(KArgDatabase, AnUndeclaredFlagIsABadArgument) {
  const Reading line(typedSyntax(), "-t a");
  KString text("former");
  int integer = 77;
  EXPECT_EQ(line.database.getFlagArgument("t", 0, text).statusCode(), StatusBadArgument);
  EXPECT_EQ(line.database.getFlagArgument("-z", 0, integer).statusCode(), StatusBadArgument);
  EXPECT_STREQ(text.asUTF8(), "former");
  EXPECT_EQ(integer, 77);
}

TEST(KArgDatabase, ReadsPositionalArguments) {
  const Reading line(typedSyntax(), "-t x a 12");
  KString text;
  int integer = 0;
  EXPECT_TRUE(line.database.getCommandArgument(0, text));
  EXPECT_TRUE(line.database.getCommandArgument(1, integer));
  EXPECT_STREQ(text.asUTF8(), "a");
  EXPECT_EQ(integer, 12);
}

TEST(KArgDatabase, AMissingPositionalArgumentIsAFailure) {
  const Reading line(typedSyntax(), "a");
  KString text("former");
  int integer = 77;
  EXPECT_EQ(line.status(), StatusSuccess);
  EXPECT_EQ(line.database.getCommandArgument(1, text).statusCode(), StatusFailure);
  EXPECT_EQ(line.database.getCommandArgument(1, integer).statusCode(), StatusFailure);
  EXPECT_STREQ(text.asUTF8(), "former");
  EXPECT_EQ(integer, 77);
}

TEST(KArgDatabase, APositionalTextThatIsNoIntegerIsABadArgument) {
  int integer = 77;
  EXPECT_EQ(Reading(typedSyntax(), "a").database.getCommandArgument(0, integer).statusCode(),
            StatusBadArgument);
  EXPECT_EQ(integer, 77);
}

TEST(KArgParserValues, AreEmptyOrZeroOnFailure) {
  const Reading line(typedSyntax(), "-t word");
  KStatus status;
  EXPECT_EQ(line.database.flagArgumentString("-t", 1, &status).length(), 0u);
  EXPECT_EQ(status.statusCode(), StatusFailure);
  EXPECT_EQ(line.database.flagArgumentInt("-i", 0, &status), 0);
  EXPECT_EQ(status.statusCode(), StatusFailure);
  EXPECT_EQ(line.database.flagArgumentInt("-t", 0, &status), 0);
  EXPECT_EQ(status.statusCode(), StatusBadArgument);
  EXPECT_EQ(line.database.flagArgumentString("-z", 0, &status).length(), 0u);
  EXPECT_EQ(status.statusCode(), StatusBadArgument);
}

TEST(KArgParserValues, AreReadFromTheFirstUse) {
  KStatus status = StatusFailure;
  const Reading line(typedSyntax(), "-i -12 -t a");
  EXPECT_EQ(line.database.flagArgumentInt("-i", 0, &status), -12);
  EXPECT_TRUE(status);
  status = StatusFailure;
  EXPECT_STREQ(line.database.flagArgumentString("-text", 0, &status).asUTF8(), "a");
  EXPECT_TRUE(status);
}

TEST(KArgParserValues, NoStatusIsNeeded) {
  KArgList list = argumentsOf("-t a");
  const KArgDatabase database(typedSyntax(), list);
  EXPECT_TRUE(database.isFlagSet("-t"));
  EXPECT_STREQ(database.flagArgumentString("-t", 0).asUTF8(), "a");
  EXPECT_EQ(database.flagArgumentInt("-t", 5), 0);
}

}  // namespace
