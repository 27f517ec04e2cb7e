#include "platform/ORV_1_0/StringArray.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/ORV_1_0/String.h"
#include "standalone/graph/api/GraphAccess.h"

namespace {

using ORV_v1::GraphAccess;
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

TEST(String, ACopyOutlivesItsOrigin) {
  String copy;
  {
    const String origin = GraphAccess::makeString("a text that is longer than a few characters");
    const String first(origin);
    copy = first;
  }
  EXPECT_FALSE(copy.empty());
  EXPECT_STREQ(copy.toChar(), "a text that is longer than a few characters");
}

TEST(String, IsEmptyAgainAfterAnEmptyOneIsAssigned) {
  String string = GraphAccess::makeString("a");
  const String& same = string;
  string = same;
  EXPECT_STREQ(string.toChar(), "a");
  string = String();
  EXPECT_TRUE(string.empty());
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

TEST(StringArray, ShowsItsTextsToTheLibrary) {
  StringArray array = GraphAccess::makeStringArray({"a", "b"});
  GraphAccess::textsOf(array).push_back("c");
  EXPECT_THAT(texts(array), ElementsAre("a", "b", "c"));
  EXPECT_THAT(GraphAccess::textsOf(std::as_const(array)), ElementsAre("a", "b", "c"));
}

std::string serialized(std::vector<std::string> list) {
  return GraphAccess::makeStringArray(std::move(list))
      .serialize(StringArray::kSerializeWithTags, StringArray::kDefaultSerializationTags)
      .toChar();
}

TEST(StringArray, HasTheModeThatCallersPass) {
  EXPECT_EQ(static_cast<StringArray::SerializeMode>(1), StringArray::kSerializeWithTags);
}

TEST(StringArray, IsSerializedAsOneText) {
  EXPECT_EQ(serialized({"/add1", "a,b"}), R"({/add1,a\,b})");
  EXPECT_EQ(serialized({"/add1"}), "/add1");
  EXPECT_EQ(serialized({}), "{}");
  EXPECT_EQ(serialized({""}), "{,}");
}

TEST(StringArray, IsSerializedWithTheTagsThatAreGiven) {
  const StringArray array = GraphAccess::makeStringArray({"a", "b|c", "d,e"});
  const StringArray::SerializationTags tags{'<', '>', '|', '%'};
  EXPECT_STREQ(array.serialize(StringArray::kSerializeWithTags, tags).toChar(), "<a|b%|c|d,e>");
}

}  // namespace
