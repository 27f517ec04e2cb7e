#include <gtest/gtest.h>

#include "standalone/host/language/Tokenizer.h"

namespace {

using namespace vesk;

std::string errorOf(std::string_view text) {
  const TokenizedText read = tokenize(text);
  EXPECT_TRUE(read.statements.empty());
  return read.error ? read.error->text() : "none";
}

constexpr const char* kControl = "the control character ";

TEST(TokenizerErrors, QuotedTextWithoutEndIsToldWhereItBegins) {
  EXPECT_EQ(errorOf("ab \"cd"), "line 1, column 4: the quoted text has no end");
}

TEST(TokenizerErrors, QuotedTextEndsWithItsLine) {
  EXPECT_EQ(errorOf("a\nb \"c\nd\""), "line 2, column 3: the quoted text has no end");
}

TEST(TokenizerErrors, AQuoteInsideAWordIsRefused) {
  EXPECT_EQ(errorOf("ab\"c\""),
            "line 1, column 3: a quote stands inside a word; quote the whole text");
}

TEST(TokenizerErrors, ABlankMustFollowQuotedText) {
  EXPECT_EQ(errorOf("\"a\"b"), "line 1, column 4: a blank is missing after the quoted text");
  EXPECT_EQ(errorOf("\"a\"\"b\""), "line 1, column 4: a blank is missing after the quoted text");
}

TEST(TokenizerErrors, UnknownEscapesAreRefusedAtTheirBackslash) {
  EXPECT_EQ(errorOf(R"("a\x")"),
            R"(line 1, column 3: a backslash must be followed by one of " \ n t r)");
}

TEST(TokenizerErrors, ABackslashAtTheEndIsRefused) {
  EXPECT_EQ(errorOf("\"a\\"),
            R"(line 1, column 3: a backslash must be followed by one of " \ n t r)");
  EXPECT_EQ(errorOf("\"a\\\nb\""),
            R"(line 1, column 3: a backslash must be followed by one of " \ n t r)");
}

TEST(TokenizerErrors, ControlCharactersInAWordAreRefused) {
  EXPECT_EQ(errorOf("a\x01"), std::string("line 1, column 2: ") + kControl + "0x01 is not allowed");
  EXPECT_EQ(errorOf("\x7f"), std::string("line 1, column 1: ") + kControl + "0x7f is not allowed");
}

TEST(TokenizerErrors, ZeroBytesAreRefusedInAWord) {
  EXPECT_EQ(errorOf(std::string_view("ab\0c", 4)),
            std::string("line 1, column 3: ") + kControl + "0x00 is not allowed");
}

TEST(TokenizerErrors, ZeroBytesAreRefusedInQuotedText) {
  EXPECT_EQ(errorOf(std::string_view("\"ab\0c\"", 6)),
            std::string("line 1, column 4: ") + kControl + "0x00 is not allowed");
}

TEST(TokenizerErrors, BytesThatAreNoUtf8AreRefused) {
  EXPECT_EQ(errorOf("a b\xff"), "line 1, column 4: the byte 0xff is not valid UTF-8 here");
}

TEST(TokenizerErrors, OverlongFormsAndSurrogatesAreRefused) {
  EXPECT_EQ(errorOf("\xc0\x80"), "line 1, column 1: the byte 0xc0 is not valid UTF-8 here");
  EXPECT_EQ(errorOf("a\n\xed\xa0\x80"), "line 2, column 1: the byte 0xed is not valid UTF-8 here");
}

TEST(TokenizerErrors, InvalidUtf8IsRefusedInCommentsToo) {
  EXPECT_EQ(errorOf("a // \xff"), "line 1, column 6: the byte 0xff is not valid UTF-8 here");
}

TEST(TokenizerErrors, ColumnsCountCharactersNotBytes) {
  EXPECT_EQ(errorOf("\u65e5\u672c \U0001F600 x\"y"),
            "line 1, column 7: a quote stands inside a word; quote the whole text");
  EXPECT_EQ(errorOf("\"\u00e9\u20ac\" \xff"),
            "line 1, column 6: the byte 0xff is not valid UTF-8 here");
}

TEST(TokenizerErrors, LinesCountFromOneAndColumnsBeginAnewOnEach) {
  EXPECT_EQ(errorOf("\u00e9\u00e9\r\n\n  \u00e9 \"x"),
            "line 3, column 5: the quoted text has no end");
}

TEST(TokenizerErrors, TheFirstErrorIsTold) {
  EXPECT_EQ(errorOf("a\"b\nc\"d"),
            "line 1, column 2: a quote stands inside a word; quote the whole text");
}

TEST(TokenizerErrors, StatementsAheadOfTheErrorAreNotGiven) {
  EXPECT_EQ(errorOf("a; b; \"c"), "line 1, column 7: the quoted text has no end");
}

}  // namespace
