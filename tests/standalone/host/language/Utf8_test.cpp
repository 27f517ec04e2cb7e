#include "standalone/host/language/Utf8.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace vesk;

TEST(Utf8, ValidTextOfEveryLengthHasNothingInvalid) {
  EXPECT_EQ(utf8::findInvalid("a\u00e9\u20ac\U0001F600"), utf8::kValid);
  EXPECT_EQ(utf8::findInvalid(""), utf8::kValid);
}

TEST(Utf8, TheBordersOfEachLengthAreValid) {
  for (const char* text :
       {"\x7f", "\xc2\x80", "\xdf\xbf", "\xe0\xa0\x80", "\xef\xbf\xbf", "\xf0\x90\x80\x80",
        "\xf4\x8f\xbf\xbf", "\xed\x9f\xbf", "\xee\x80\x80"}) {
    EXPECT_EQ(utf8::findInvalid(text), utf8::kValid) << text;
  }
}

TEST(Utf8, OverlongFormsAreInvalid) {
  for (const char* text : {"\xc0\x80", "\xc1\xbf", "\xe0\x9f\xbf", "\xf0\x8f\xbf\xbf"}) {
    EXPECT_EQ(utf8::findInvalid(text), 0u);
  }
}

TEST(Utf8, SurrogatesAreInvalid) {
  EXPECT_EQ(utf8::findInvalid("\xed\xa0\x80"), 0u);
  EXPECT_EQ(utf8::findInvalid("\xed\xbf\xbf"), 0u);
}

TEST(Utf8, CharactersPastTheLastAreInvalid) {
  EXPECT_EQ(utf8::findInvalid("\xf4\x90\x80\x80"), 0u);
  EXPECT_EQ(utf8::findInvalid("\xf5\x80\x80\x80"), 0u);
  EXPECT_EQ(utf8::findInvalid("\xff"), 0u);
}

TEST(Utf8, ALoneContinuationByteIsInvalid) { EXPECT_EQ(utf8::findInvalid("ab\x80"), 2u); }

TEST(Utf8, ASequenceThatIsCutOffIsInvalidWhereItBegins) {
  EXPECT_EQ(utf8::findInvalid("abc\xe2\x82"), 3u);
  EXPECT_EQ(utf8::findInvalid("abc\xe2\x82z"), 3u);
}

TEST(Utf8, AnInvalidByteIsFoundAtEveryOffsetBehindPlainText) {
  for (std::size_t offset = 0; offset < 40; ++offset) {
    EXPECT_EQ(utf8::findInvalid(std::string(offset, 'a') + "\xff" + std::string(9, 'b')), offset);
  }
}

TEST(Utf8, CharactersAreCountedNotBytes) {
  EXPECT_EQ(utf8::countCharacters("a\u00e9\u20ac\U0001F600"), 4u);
  EXPECT_EQ(utf8::countCharacters(""), 0u);
}

TEST(Utf8, TheOffsetOfACharacterIsInBytes) {
  const std::string text = "a\u00e9\u20ac\U0001F600";
  EXPECT_EQ(utf8::offsetOfCharacter(text, 0), 0u);
  EXPECT_EQ(utf8::offsetOfCharacter(text, 1), 1u);
  EXPECT_EQ(utf8::offsetOfCharacter(text, 2), 3u);
  EXPECT_EQ(utf8::offsetOfCharacter(text, 3), 6u);
}

TEST(Utf8, TheOffsetPastTheLastCharacterIsTheSize) {
  EXPECT_EQ(utf8::offsetOfCharacter("\u00e9x", 2), 3u);
  EXPECT_EQ(utf8::offsetOfCharacter("\u00e9x", 99), 3u);
}

TEST(Utf8, RepairReplacesEachInvalidByte) {
  EXPECT_EQ(utf8::repaired("a\xff\xfe\u00e9"), "a\ufffd\ufffd\u00e9");
  EXPECT_EQ(utf8::repaired("\xe2\x82"), "\ufffd\ufffd");
}

TEST(Utf8, RepairLeavesValidTextAlone) {
  EXPECT_EQ(utf8::repaired("a\u00e9\u20ac\U0001F600"), "a\u00e9\u20ac\U0001F600");
}

TEST(Utf8, WhatIsAppendedIsReadBackAtTheBordersOfEachLength) {
  for (const char32_t character :
       {U'\x01', U'\x7f', U'\x80', U'\u07ff', U'\u0800', U'\uffff', U'\U00010000', U'\U0010ffff'}) {
    std::string text;
    utf8::append(text, character);
    EXPECT_EQ(utf8::findInvalid(text), utf8::kValid);
    std::size_t offset = 0;
    EXPECT_EQ(utf8::next(text, offset), character);
    EXPECT_EQ(offset, text.size());
  }
}

}  // namespace
