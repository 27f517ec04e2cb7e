#include "standalone/host/engine/ResultValue.h"

#include <gtest/gtest.h>

#include <climits>
#include <limits>

namespace {

using namespace vesk;
using Texts = std::vector<std::string>;

TEST(ResultJson, OfNothingIsEmpty) {
  EXPECT_EQ(toJson({}), "");
  EXPECT_FALSE(hasResult({}));
}

TEST(ResultJson, WritesBooleansAndWholeNumbers) {
  EXPECT_EQ(toJson(true), "true");
  EXPECT_EQ(toJson(false), "false");
  EXPECT_EQ(toJson(INT_MIN), "-2147483648");
  EXPECT_EQ(toJson(UINT_MAX), "4294967295");
}

TEST(ResultJson, WritesDoublesInTheShortestFormThatReadsBack) {
  EXPECT_EQ(toJson(0.1), "0.1");
  EXPECT_EQ(toJson(1.0 / 3.0), "0.3333333333333333");
  EXPECT_EQ(toJson(2.0), "2");
  EXPECT_EQ(toJson(-1e300), "-1e+300");
  EXPECT_EQ(toJson(5e-324), "5e-324");
}

TEST(ResultJson, HasNoNumberForWhatIsNotFinite) {
  EXPECT_EQ(toJson(std::numeric_limits<double>::infinity()), "null");
  EXPECT_EQ(toJson(std::numeric_limits<double>::quiet_NaN()), "null");
}

TEST(ResultJson, QuotesTexts) {
  EXPECT_EQ(toJson(std::string()), "\"\"");
  EXPECT_EQ(toJson(std::string("a \u00e9 \U0001F600 / '")), "\"a \u00e9 \U0001F600 / '\"");
}

TEST(ResultJson, EscapesQuotesBackslashesAndLineEnds) {
  EXPECT_EQ(toJson(std::string("\"\\\n\r\t")), R"("\"\\\n\r\t")");
}

TEST(ResultJson, EscapesOtherControlCharactersByNumber) {
  EXPECT_EQ(toJson(std::string("\x01\x1f\x08") + '\0'), R"("\u0001\u001f\u0008\u0000")");
}

TEST(ResultJson, WritesArraysOnOneLine) {
  EXPECT_EQ(toJson(Texts{}), "[]");
  EXPECT_EQ(toJson(Texts{"a"}), R"(["a"])");
  EXPECT_EQ(toJson(Texts{"", "a\nb", ""}), R"(["","a\nb",""])");
}

TEST(ResultText, IsPlain) {
  EXPECT_EQ(toText({}), "");
  EXPECT_EQ(toText(true), "true");
  EXPECT_EQ(toText(-3), "-3");
  EXPECT_EQ(toText(3u), "3");
  EXPECT_EQ(toText(0.1), "0.1");
  EXPECT_EQ(toText(std::string("a \"b\"")), "a \"b\"");
}

TEST(ResultText, HasOneElementALine) { EXPECT_EQ(toText(Texts{"a", "", "b"}), "a\n\nb"); }

}  // namespace
