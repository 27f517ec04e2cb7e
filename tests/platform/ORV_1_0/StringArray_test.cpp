#include "platform/ORV_1_0/StringArray.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/ORV_1_0/String.h"

namespace {

using ORV_v1::String;
using ORV_v1::StringArray;
using testing::ElementsAre;

std::vector<std::string> texts(const StringArray& array) {
  std::vector<std::string> result;
  for (const char* text : array) result.emplace_back(text);
  return result;
}

TEST(String, IsEmptyByDefault) {
  const String string;
  EXPECT_TRUE(string.empty());
  EXPECT_STREQ(string.toChar(), "");
}

TEST(StringArray, IsEmptyByDefault) { EXPECT_EQ(StringArray().size(), 0u); }

TEST(StringArray, KeepsTextsInTheOrderOfAdding) {
  StringArray array;
  array.add("b");
  array.add("");
  array.add("a");
  EXPECT_THAT(texts(array), ElementsAre("b", "", "a"));
}

TEST(StringArray, KeepsACopyOfWhatWasAdded) {
  std::string text = "before";
  StringArray array;
  array.add(text.c_str());
  text = "after!";
  EXPECT_STREQ(array[0], "before");
}

TEST(StringArray, NullCountsAsEmptyText) {
  StringArray array;
  array.add(nullptr);
  EXPECT_THAT(texts(array), ElementsAre(""));
}

TEST(StringArray, GivesEmptyTextPastTheEnd) {
  StringArray array;
  array.add("a");
  EXPECT_STREQ(array[1], "");
}

TEST(StringArray, ClearTakesEverythingOut) {
  StringArray array;
  array.add("a");
  array.clear();
  EXPECT_EQ(array.size(), 0u);
}

TEST(StringArray, ACopyIsChangedAlone) {
  StringArray array;
  array.add("a");
  StringArray copy(array);
  copy.add("b");
  EXPECT_THAT(texts(array), ElementsAre("a"));
  array = copy;
  EXPECT_THAT(texts(array), ElementsAre("a", "b"));
}

TEST(StringArray, IteratorsOfDifferentArraysDiffer) {
  const StringArray first;
  const StringArray second;
  EXPECT_FALSE(first.begin() == second.begin());
}

}  // namespace
