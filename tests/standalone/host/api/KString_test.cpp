#include "platform/OpenVesk/KString.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>

namespace {

TEST(KString, IsEmptyByDefault) {
  const KString text;
  EXPECT_STREQ(text.asUTF8(), "");
  EXPECT_STREQ(text.asChar(), "");
  EXPECT_EQ(text.length(), 0u);
  EXPECT_EQ(text.numChars(), 0u);
}

TEST(KString, LengthCountsBytesAndNumCharsCharacters) {
  KString text;
  ASSERT_TRUE(text.setUTF8("a\u00e9\u20ac\U0001F600"));
  EXPECT_EQ(text.length(), 10u);
  EXPECT_EQ(text.numChars(), 4u);
}

TEST(KString, NullPointersCountAsEmptyText) {
  KString text(static_cast<const char*>(nullptr));
  EXPECT_STREQ(text.asUTF8(), "");
  text = "a";
  text += static_cast<const char*>(nullptr);
  EXPECT_STREQ(text.asUTF8(), "a");
  EXPECT_FALSE(text == nullptr);
  text = static_cast<const char*>(nullptr);
  EXPECT_EQ(text.length(), 0u);
  EXPECT_TRUE(text == nullptr);
}

TEST(KString, SettingANullPointerEmptiesIt) {
  KString text("a");
  EXPECT_TRUE(text.set(nullptr));
  EXPECT_EQ(text.length(), 0u);
  text = "a";
  EXPECT_TRUE(text.setUTF8(nullptr));
  EXPECT_EQ(text.length(), 0u);
}

TEST(KString, InvalidUtf8IsRefusedAndChangesNothing) {
  KString text("before");
  EXPECT_EQ(text.setUTF8("a\xff").statusCode(), StatusBadArgument);
  EXPECT_EQ(text.setUTF8("\xed\xa0\x80").statusCode(), StatusBadArgument);
  EXPECT_STREQ(text.asUTF8(), "before");
}

TEST(KString, CopiesShareTheirText) {
  const KString text("shared by both");
  const KString copy(text);
  KString assigned;
  assigned = text;
  EXPECT_EQ(copy.asUTF8(), text.asUTF8());
  EXPECT_EQ(assigned.asUTF8(), text.asUTF8());
}

TEST(KString, AppendingToACopyLeavesTheOriginalAlone) {
  const KString text("a");
  KString copy(text);
  copy += "b";
  EXPECT_STREQ(text.asUTF8(), "a");
  EXPECT_STREQ(copy.asUTF8(), "ab");
}

TEST(KString, AssigningToTheOriginalLeavesTheCopyAlone) {
  KString text("a");
  const KString copy(text);
  text = "b";
  EXPECT_STREQ(copy.asUTF8(), "a");
}

TEST(KString, ACopyOutlivesItsOriginal) {
  KString copy;
  {
    const KString text("a text that is longer than a small buffer");
    copy = text;
  }
  EXPECT_STREQ(copy.asUTF8(), "a text that is longer than a small buffer");
}

TEST(KString, AssigningToItselfChangesNothing) {
  KString text("a");
  const KString& self = text;
  text = self;
  EXPECT_STREQ(text.asUTF8(), "a");
}

TEST(KString, AppendingItselfDoublesIt) {
  KString text("ab");
  text += text;
  EXPECT_STREQ(text.asUTF8(), "abab");
}

TEST(KString, AppendingToAnEmptyStringGivesTheOther) {
  KString text;
  text += KString("ab");
  EXPECT_STREQ(text.asUTF8(), "ab");
  text += KString();
  EXPECT_STREQ(text.asUTF8(), "ab");
}

TEST(KString, AppendingAndAssigningGiveTheStringItself) {
  KString text;
  EXPECT_EQ(&(text = "a"), &text);
  EXPECT_EQ(&(text = KString("b")), &text);
  EXPECT_EQ(&(text += "c"), &text);
  EXPECT_EQ(&(text += KString("d")), &text);
  EXPECT_STREQ(text.asUTF8(), "bcd");
}

TEST(KString, ComparesWithNarrowText) {
  const KString text("a");
  EXPECT_TRUE(text == "a");
  EXPECT_FALSE(text != "a");
  EXPECT_TRUE(text != "A");
  EXPECT_TRUE(text != "ab");
  EXPECT_FALSE(text == "");
}

TEST(KString, SubstringTakesBothEnds) {
  const KString text("abcdef");
  EXPECT_STREQ(text.substring(1, 3).asUTF8(), "bcd");
  EXPECT_STREQ(text.substring(2, 2).asUTF8(), "c");
}

TEST(KString, SubstringCountsCharacters) {
  KString text;
  ASSERT_TRUE(text.setUTF8("a\u00e9\u20ac\U0001F600z"));
  EXPECT_STREQ(text.substring(1, 2).asUTF8(), "\u00e9\u20ac");
  EXPECT_STREQ(text.substring(3, 4).asUTF8(), "\U0001F600z");
}

TEST(KString, SubstringCutsOffEndsThatAreOutOfRange) {
  const KString text("abc");
  EXPECT_STREQ(text.substring(-5, 1).asUTF8(), "ab");
  EXPECT_STREQ(text.substring(1, 99).asUTF8(), "bc");
  EXPECT_STREQ(text.substring(INT_MIN, INT_MAX).asUTF8(), "abc");
}

TEST(KString, SubstringOfAnEmptyRangeIsEmpty) {
  const KString text("abc");
  EXPECT_EQ(text.substring(2, 1).length(), 0u);
  EXPECT_EQ(text.substring(3, 9).length(), 0u);
  EXPECT_EQ(text.substring(-3, -1).length(), 0u);
  EXPECT_EQ(text.substring(INT_MAX, INT_MAX).length(), 0u);
  EXPECT_EQ(KString().substring(0, 5).length(), 0u);
}

}  // namespace
