#include "standalone/host/engine/Arguments.h"

#include <gtest/gtest.h>

namespace {

using namespace vesk;

TEST(ReadDouble, ReadsDecimalNumbers) {
  double value = 0;
  EXPECT_TRUE(readDouble("-1.5e3", value));
  EXPECT_EQ(value, -1500.0);
  EXPECT_TRUE(readDouble("+.25", value));
  EXPECT_EQ(value, 0.25);
  EXPECT_TRUE(readDouble("7", value));
  EXPECT_EQ(value, 7.0);
}

TEST(ReadDouble, RefusesEverythingElseAndChangesNothing) {
  double value = 77;
  for (const char* text : {"", "x", "inf", "nan", "0x10", "1.5x", " 1", "1,5", "+-1", "1e999"}) {
    EXPECT_FALSE(readDouble(text, value)) << text;
  }
  EXPECT_EQ(value, 77.0);
}

TEST(ReadBool, ChangesNothingForATextThatIsNone) {
  bool value = true;
  EXPECT_FALSE(readBool("maybe", value));
  EXPECT_TRUE(value);
  EXPECT_TRUE(readBool("nO", value));
  EXPECT_FALSE(value);
}

TEST(ReadInt, ChangesNothingForATextThatIsNone) {
  int value = 77;
  EXPECT_FALSE(readInt("99999999999", value));
  EXPECT_FALSE(readInt("1x", value));
  EXPECT_EQ(value, 77);
}

}  // namespace
