#include <gtest/gtest.h>

#include <string>

#include "platform/OpenVesk/KString.h"
#include "tests/support/Latin1Locale.h"

namespace {

using hosttest::Latin1Locale;

constexpr const char* kLatin1 = "caf\xe9";
constexpr const char* kUtf8 = "caf\u00e9";

KString fromUtf8(const char* utf8) {
  KString text;
  EXPECT_TRUE(text.setUTF8(utf8));
  return text;
}

TEST(NarrowText, IsUtf8InThePlainLocale) {
  const KString text(kUtf8);
  EXPECT_STREQ(text.asUTF8(), kUtf8);
  EXPECT_EQ(text.asChar(), text.asUTF8());
  EXPECT_TRUE(text == kUtf8);
}

TEST(NarrowText, InvalidBytesAreRefusedInThePlainLocale) {
  KString text("before");
  EXPECT_EQ(text.set(kLatin1).statusCode(), StatusBadArgument);
  EXPECT_STREQ(text.asUTF8(), "before");
}

TEST(NarrowText, InvalidBytesOfAPlainArgumentAreReplacedInThePlainLocale) {
  EXPECT_STREQ(KString(kLatin1).asUTF8(), "caf\ufffd");
  KString text;
  text = kLatin1;
  EXPECT_STREQ(text.asUTF8(), "caf\ufffd");
  EXPECT_TRUE(text != kLatin1);
}

TEST(NarrowText, IsReadAsLatin1InALatin1Locale) {
  const Latin1Locale locale;
  const KString text(kLatin1);
  EXPECT_STREQ(text.asUTF8(), kUtf8);
  EXPECT_EQ(text.length(), 5u);
  EXPECT_EQ(text.numChars(), 4u);
}

TEST(NarrowText, IsGivenAsLatin1InALatin1Locale) {
  const Latin1Locale locale;
  EXPECT_STREQ(fromUtf8(kUtf8).asChar(), kLatin1);
}

TEST(NarrowText, CharactersThatTheEncodingLacksBecomeQuestionMarks) {
  const Latin1Locale locale;
  const KString text = fromUtf8("a\u20acb\u65e5\U0001F600");
  EXPECT_STREQ(text.asChar(), "a?b??");
  EXPECT_STREQ(text.asUTF8(), "a\u20acb\u65e5\U0001F600");
}

TEST(NarrowText, SetReadsLatin1AndSetUtf8ReadsUtf8InALatin1Locale) {
  const Latin1Locale locale;
  KString text;
  EXPECT_TRUE(text.set(kLatin1));
  EXPECT_STREQ(text.asUTF8(), kUtf8);
  EXPECT_TRUE(text.setUTF8(kUtf8));
  EXPECT_STREQ(text.asUTF8(), kUtf8);
  EXPECT_EQ(text.setUTF8(kLatin1).statusCode(), StatusBadArgument);
}

TEST(NarrowText, ComparesAsLatin1InALatin1Locale) {
  const Latin1Locale locale;
  const KString text = fromUtf8(kUtf8);
  EXPECT_TRUE(text == kLatin1);
  EXPECT_FALSE(text != kLatin1);
  EXPECT_TRUE(text != kUtf8);
}

TEST(NarrowText, IsAppendedAsLatin1InALatin1Locale) {
  const Latin1Locale locale;
  KString text("x ");
  text += kLatin1;
  EXPECT_STREQ(text.asUTF8(), "x caf\u00e9");
  EXPECT_STREQ(text.asChar(), "x caf\xe9");
}

TEST(NarrowText, FollowsAChangeOfTheString) {
  const Latin1Locale locale;
  KString text = fromUtf8("\u00e9");
  EXPECT_STREQ(text.asChar(), "\xe9");
  text += fromUtf8("\u00e8");
  EXPECT_STREQ(text.asChar(), "\xe9\xe8");
}

TEST(NarrowText, StaysWhereItIsWhenAskedForAgain) {
  const Latin1Locale locale;
  const KString text = fromUtf8("\u00e9 a text that is longer than a small buffer");
  const KString copy(text);
  const char* first = text.asChar();
  EXPECT_EQ(text.asChar(), first);
  EXPECT_EQ(copy.asChar(), first);
  EXPECT_STREQ(first, "\xe9 a text that is longer than a small buffer");
}

TEST(NarrowText, FollowsTheLocale) {
  const KString text = fromUtf8(kUtf8);
  {
    const Latin1Locale locale;
    EXPECT_STREQ(text.asChar(), kLatin1);
  }
  EXPECT_STREQ(text.asChar(), kUtf8);
}

TEST(NarrowText, EveryLatin1CharacterReadsBackAsItself) {
  const Latin1Locale locale;
  std::string narrow;
  for (int byte = 1; byte < 256; ++byte) narrow += static_cast<char>(byte);
  const KString text(narrow.c_str());
  EXPECT_EQ(text.asChar(), narrow);
  EXPECT_EQ(text.numChars(), 255u);
}

TEST(NarrowText, SubstringCountsCharactersInALatin1Locale) {
  const Latin1Locale locale;
  EXPECT_STREQ(KString(kLatin1).substring(2, 3).asChar(), "f\xe9");
}

}  // namespace
