#include "platform/ORV_1_0/OptionalStringArray.h"

#include <gtest/gtest.h>

namespace {

using ORV_v1::OptionalStringArray;
using ORV_v1::StringArray;

StringArray oneText(const char* text) {
  StringArray array;
  array.add(text);
  return array;
}

TEST(OptionalStringArray, IsAbsentByDefault) {
  const OptionalStringArray optional;
  EXPECT_FALSE(optional.isValid());
  EXPECT_EQ(optional.getValues().size(), 0u);
}

TEST(OptionalStringArray, AnEmptyArrayIsNotAbsent) {
  OptionalStringArray optional;
  optional.setValues(StringArray());
  EXPECT_TRUE(optional.isValid());
  EXPECT_EQ(optional.getValues().size(), 0u);
}

TEST(OptionalStringArray, GivesTheLastArrayBack) {
  OptionalStringArray optional;
  optional.setValues(oneText("a"));
  optional.setValues(oneText("b"));
  ASSERT_EQ(optional.getValues().size(), 1u);
  EXPECT_STREQ(optional.getValues()[0], "b");
}

TEST(OptionalStringArray, ACopyIsChangedAlone) {
  OptionalStringArray optional;
  optional.setValues(oneText("a"));
  OptionalStringArray copy(optional);
  copy.setValues(oneText("b"));
  EXPECT_STREQ(optional.getValues()[0], "a");
  copy = OptionalStringArray();
  EXPECT_FALSE(copy.isValid());
}

}  // namespace
