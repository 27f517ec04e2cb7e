#include <gtest/gtest.h>

#include <array>
#include <string>

#include "platform/OpenVesk/KString.h"

namespace {

using Arguments = std::array<KString, 10>;

Arguments unused() {
  Arguments arguments;
  arguments.fill(KString::argUnused);
  return arguments;
}

KString formatOnto(KString target, const KString& format, const Arguments& a) {
  EXPECT_TRUE(target.format(format, a[0], a[1], a[2], a[3], a[4], a[5], a[6], a[7], a[8], a[9]));
  return target;
}

std::string formatted(const char* format, const std::vector<const char*>& texts) {
  Arguments arguments = unused();
  for (std::size_t i = 0; i < texts.size(); ++i) arguments[i] = texts[i];
  return formatOnto(KString("former"), format, arguments).asUTF8();
}

TEST(KStringFormat, ReplacesThePositionsByTheArguments) {
  EXPECT_EQ(formatted("<^1s|^2s>", {"a", "b"}), "<a|b>");
}

TEST(KStringFormat, KnowsTenPositions) {
  EXPECT_EQ(formatted("^1s^2s^3s^4s^5s^6s^7s^8s^9s^10s",
                      {"a", "b", "c", "d", "e", "f", "g", "h", "i", "j"}),
            "abcdefghij");
}

TEST(KStringFormat, TheTenthPositionIsNotTheFirst) {
  EXPECT_EQ(formatted("^10s ^1s0s", {"a", "b", "c", "d", "e", "f", "g", "h", "i", "j"}), "j a0s");
}

TEST(KStringFormat, PositionsMayComeInAnyOrderAndMoreThanOnce) {
  EXPECT_EQ(formatted("^2s ^1s ^2s", {"a", "b"}), "b a b");
}

TEST(KStringFormat, APositionWithoutArgumentStaysAsItStands) {
  EXPECT_EQ(formatted("^1s ^2s ^10s", {"a"}), "a ^2s ^10s");
}

TEST(KStringFormat, AnEmptyArgumentReplacesItsPosition) {
  EXPECT_EQ(formatted("<^1s>", {""}), "<>");
}

TEST(KStringFormat, AnArgumentThatIsACaretIsNoUnusedOne) {
  EXPECT_EQ(formatted("<^1s>", {"^"}), "<^>");
}

TEST(KStringFormat, WhatIsNoPositionStaysAsItStands) {
  EXPECT_EQ(formatted("^0s ^11s ^01s ^100s ^s ^1 ^1d ^-1s ^^1s", {"a"}),
            "^0s ^11s ^01s ^100s ^s ^1 ^1d ^-1s ^a");
}

TEST(KStringFormat, ACaretMayEndTheFormat) {
  EXPECT_EQ(formatted("^1s^", {"a"}), "a^");
  EXPECT_EQ(formatted("^1s^1", {"a"}), "a^1");
  EXPECT_EQ(formatted("^1s^10", {"a"}), "a^10");
}

TEST(KStringFormat, PositionsInArgumentsAreNotReplaced) {
  EXPECT_EQ(formatted("^1s ^2s", {"^2s", "^1s"}), "^2s ^1s");
}

TEST(KStringFormat, TextOfAnyScriptPassesThrough) {
  EXPECT_EQ(formatted("\u20ac^1s\U0001F600", {"\u00e9"}), "\u20ac\u00e9\U0001F600");
}

TEST(KStringFormat, AnEmptyFormatGivesAnEmptyString) { EXPECT_EQ(formatted("", {"a"}), ""); }

TEST(KStringFormat, TheFormatMayBeTheStringItself) {
  KString text("<^1s>");
  const KString& u = KString::argUnused;
  EXPECT_TRUE(text.format(text, "a", u, u, u, u, u, u, u, u, u));
  EXPECT_STREQ(text.asUTF8(), "<a>");
}

TEST(KStringFormat, AnArgumentMayBeTheStringItself) {
  KString text("a");
  const KString& u = KString::argUnused;
  EXPECT_TRUE(text.format("<^1s^2s>", text, text, u, u, u, u, u, u, u, u));
  EXPECT_STREQ(text.asUTF8(), "<aa>");
}

TEST(KStringFormat, FormatAndArgumentMayBothBeTheStringItself) {
  KString text("<^1s>");
  const KString& u = KString::argUnused;
  EXPECT_TRUE(text.format(text, text, u, u, u, u, u, u, u, u, u));
  EXPECT_STREQ(text.asUTF8(), "<<^1s>>");
}

TEST(KStringFormat, ACopyOfTheFillerFillsToo) {
  const KString copy(KString::argUnused);
  Arguments arguments = unused();
  arguments[0] = copy;
  EXPECT_STREQ(formatOnto({}, "<^1s>", arguments).asUTF8(), "<^1s>");
}

}  // namespace
