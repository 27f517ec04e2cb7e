#include "standalone/graph/model/NameRules.h"

#include <gtest/gtest.h>

#include "standalone/graph/library/Names.h"

namespace {

using orvlib::cleanName;
using orvlib::numberedName;
constexpr auto kNoNumber = orvlib::NumberedName::kNoNumber;

TEST(NameRules, AProperNameStaysAsItIs) {
  for (const char* name : {"add", "_", "Add_12", "x9"}) EXPECT_EQ(cleanName(name), name);
}

TEST(NameRules, OtherCharactersBecomeUnderscores) {
  EXPECT_EQ(cleanName("a b-c.d"), "a_b_c_d");
  EXPECT_EQ(cleanName("core::add"), "core__add");
}

TEST(NameRules, ACharacterOfSeveralBytesBecomesOneUnderscore) {
  EXPECT_EQ(cleanName("stra\u00dfe"), "stra_e");
  EXPECT_EQ(cleanName("\u20ac\u20ac"), "__");
  EXPECT_EQ(cleanName("x\U0001F600y"), "x_y");
}

TEST(NameRules, EachByteThatIsNoCharacterBecomesAnUnderscore) {
  EXPECT_EQ(cleanName("a\x80\x80z"), "a__z");
  EXPECT_EQ(cleanName("a\xe4z"), "a_z");
  EXPECT_EQ(cleanName("a\xe2\x82"), "a_");
}

TEST(NameRules, ALeadingDigitGetsAnUnderscoreBeforeIt) { EXPECT_EQ(cleanName("2nd"), "_2nd"); }

TEST(NameRules, AnEmptyTextBecomesAnUnderscore) { EXPECT_EQ(cleanName(""), "_"); }

TEST(NameRules, EveryByteGivesAProperName) {
  for (int c = 0; c < 256; ++c) {
    const std::string text(1, static_cast<char>(c));
    EXPECT_TRUE(orvlib::isIdentifier(cleanName(text))) << c;
    EXPECT_TRUE(orvlib::isIdentifier(cleanName("a" + text + "b"))) << c;
  }
}

TEST(NameRules, ANameWithoutDigitsAtItsEndHasNoNumber) {
  for (const char* name : {"add", "a1b", "_"}) {
    EXPECT_EQ(numberedName(name), (orvlib::NumberedName{name, kNoNumber}));
  }
}

TEST(NameRules, ANumberIsAllDigitsAtTheEnd) {
  EXPECT_EQ(numberedName("add1"), (orvlib::NumberedName{"add", 1}));
  EXPECT_EQ(numberedName("add120"), (orvlib::NumberedName{"add", 120}));
  EXPECT_EQ(numberedName("a1b2"), (orvlib::NumberedName{"a1b", 2}));
}

TEST(NameRules, ANumberHasNoLeadingZero) {
  EXPECT_EQ(numberedName("add007"), (orvlib::NumberedName{"add00", 7}));
  EXPECT_EQ(numberedName("add0"), (orvlib::NumberedName{"add", 0}));
  EXPECT_EQ(numberedName("add00"), (orvlib::NumberedName{"add0", 0}));
}

TEST(NameRules, TooManyDigitsAreNoNumber) {
  EXPECT_EQ(numberedName("a123456789012345678"), (orvlib::NumberedName{"a", 123456789012345678}));
  EXPECT_EQ(numberedName("a1234567890123456789"),
            (orvlib::NumberedName{"a1234567890123456789_", kNoNumber}));
}

TEST(NameRules, AnyNumberOfABaseIsReadBack) {
  for (const char* name : {"add", "add1", "add0", "add00", "add07", "a1b", "_", "_9",
                           "a1234567890123456789", "a00000000000000000000", "a9_"}) {
    const std::string base = numberedName(name).base;
    for (const std::uint64_t number : {1, 2, 9, 10, 100000}) {
      EXPECT_EQ(numberedName(base + std::to_string(number)), (orvlib::NumberedName{base, number}));
    }
  }
}

}  // namespace
