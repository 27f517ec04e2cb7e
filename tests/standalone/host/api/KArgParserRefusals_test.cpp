#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/LineReading.h"

namespace {

using namespace hosttest;
using S = KSyntax;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

KSyntax usualSyntax() {
  KSyntax syntax;
  syntax.addFlag("-n", "-name", S::ArgString);
  syntax.addFlag("c", "count", S::ArgInteger);
  syntax.addFlag("-u", "-use", S::ArgUnsigned);
  syntax.addFlag("-b", "-boolean", S::ArgBoolean);
  syntax.addFlag("-p", "-pair", S::ArgString, S::ArgString);
  syntax.addFlag("-nn", "-nameNow");
  syntax.addArg(S::ArgString);
  syntax.addArg(S::ArgInteger);
  return syntax;
}

/// The one message, without the command's name, that the arguments give.
std::string refusal(const std::string& arguments) {
  const Texts messages = messagesOf(usualSyntax(), arguments);
  EXPECT_EQ(messages.size(), 1u) << arguments;
  const std::string& message = messages.empty() ? std::string() : messages[0];
  EXPECT_TRUE(message.starts_with("! probe: ")) << message;
  return message.substr(std::min<std::size_t>(message.size(), 9));
}

TEST(KArgParserRefusals, ALineThatFitsIsNoRefusal) {
  EXPECT_THAT(messagesOf(usualSyntax(), "a 5 -n b -count 3"), IsEmpty());
}

TEST(KArgParserRefusals, NameAnUnknownFlagAsItIsWritten) {
  EXPECT_EQ(refusal("-x"), "unknown flag -x");
  EXPECT_EQ(refusal("-"), "unknown flag -");
  EXPECT_EQ(refusal("--name a"), "unknown flag --name");
  EXPECT_EQ(refusal("-\u00e9"), "unknown flag -\u00e9");
}

TEST(KArgParserRefusals, TellWhatAnAmbiguousFlagCouldBe) {
  EXPECT_EQ(refusal("-na a"), "ambiguous flag -na: it could be -name, -nameNow");
}

TEST(KArgParserRefusals, CountTheMissingArgumentsOfAFlag) {
  EXPECT_EQ(refusal("-n"), "flag -name needs 1 argument, 0 given");
  EXPECT_EQ(refusal("-p a"), "flag -pair needs 2 arguments, 1 given");
  EXPECT_EQ(refusal("-p a -nn"), "flag -pair needs 2 arguments, 1 given");
}

TEST(KArgParserRefusals, AFlagIsNamedAsALineWritesIt) {
  EXPECT_EQ(refusal("-c"), "flag -count needs 1 argument, 0 given");
}

TEST(KArgParserRefusals, NameAFlagThatIsGivenTwice) {
  EXPECT_EQ(refusal("-n a -name b"), "flag -name is given more than once");
}

TEST(KArgParserRefusals, NameAnArgumentTooMany) {
  EXPECT_EQ(refusal("a 5 \"b c\""), "too many arguments: \"b c\" is one more than the 2 expected");
}

TEST(KArgParserRefusals, TellTheTypeThatAFlagExpects) {
  EXPECT_EQ(refusal("-count x"), "flag -count expects a whole number, not \"x\"");
  EXPECT_EQ(refusal("-u -1"), "flag -use expects a whole number from 0 to 4294967295, not \"-1\"");
  EXPECT_EQ(refusal("-b maybe"), "flag -boolean expects true or false, not \"maybe\"");
}

TEST(KArgParserRefusals, TellTheRangeThatANumberMisses) {
  EXPECT_EQ(refusal("-u 4294967296"),
            "flag -use expects a whole number from 0 to 4294967295, not \"4294967296\"");
}

TEST(KArgParserRefusals, ShortenLongTexts) {
  const std::string text(100, 'x');
  EXPECT_EQ(refusal("-u " + text),
            "flag -use expects a whole number from 0, not \"" + text.substr(0, 80) + "...\"");
}

TEST(KArgParserRefusals, TellTheTypeThatAPositionalArgumentExpects) {
  EXPECT_EQ(refusal("a b"), "argument 2 expects a whole number, not \"b\"");
}

TEST(KArgParserRefusals, TheFirstThingThatDoesNotFitIsTold) {
  EXPECT_EQ(refusal("-x -count y a b c"), "unknown flag -x");
}

TEST(KArgParserRefusals, AreTheStatusOfTheLine) {
  EXPECT_EQ(Reading(usualSyntax(), "-x").status(), StatusBadArgument);
}

TEST(KArgParserRefusals, TooFewPositionalArgumentsAreNone) {
  EXPECT_THAT(messagesOf(usualSyntax(), ""), IsEmpty());
  EXPECT_EQ(Reading(usualSyntax(), "a").status(), StatusSuccess);
}

TEST(KArgParserRefusals, WhatFitsCanBeReadAllTheSame) {
  const Reading line(usualSyntax(), "-x -n a text -count y 5 extra -nn");
  ASSERT_EQ(line.status(), StatusBadArgument);
  EXPECT_EQ(line.flagText("-n"), "a");
  EXPECT_EQ(line.positional(0), "text");
  EXPECT_EQ(line.positional(1), "5");
  EXPECT_EQ(line.positional(2), "extra");
  EXPECT_TRUE(line.database.isFlagSet("-nn"));
}

TEST(KArgParserRefusals, HaveNoPrefixOutsideACommand) {
  Host host;
  const Reading line(usualSyntax(), "-x");
  EXPECT_THAT(host.takeMessages(), ElementsAre("! unknown flag -x"));
}

}  // namespace
