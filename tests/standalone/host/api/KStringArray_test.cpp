#include "platform/OpenVesk/KStringArray.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

KStringArray arrayOf(std::initializer_list<const char*> texts) {
  KStringArray array;
  for (const char* text : texts) EXPECT_TRUE(array.append(text));
  return array;
}

std::vector<std::string> textsIn(const KStringArray& array) {
  std::vector<std::string> texts;
  for (const KString& text : array) texts.emplace_back(text.asUTF8());
  return texts;
}

TEST(KStringArray, IsEmptyByDefault) {
  const KStringArray array;
  EXPECT_EQ(array.length(), 0u);
  EXPECT_TRUE(array.begin() == array.end());
}

TEST(KStringArray, KeepsWhatIsAppendedInOrder) {
  const KStringArray array = arrayOf({"a", "", "a"});
  EXPECT_EQ(array.length(), 3u);
  EXPECT_THAT(textsIn(array), ElementsAre("a", "", "a"));
}

TEST(KStringArray, AnElementOfItselfMayBeAppended) {
  KStringArray array = arrayOf({"a"});
  for (int i = 0; i < 100; ++i) array.append(array[0]);
  EXPECT_EQ(array.length(), 101u);
  EXPECT_THAT(textsIn(array), ::testing::Each("a"));
}

TEST(KStringArray, ElementsCanBeWritten) {
  KStringArray array = arrayOf({"a", "b"});
  array[1] = "c";
  array[0] += "d";
  EXPECT_THAT(textsIn(array), ElementsAre("ad", "c"));
}

TEST(KStringArray, ACopyIsAValueOfItsOwn) {
  KStringArray array = arrayOf({"a"});
  KStringArray copy(array);
  KStringArray assigned;
  assigned = array;
  array[0] = "b";
  array.append("c");
  EXPECT_THAT(textsIn(copy), ElementsAre("a"));
  EXPECT_THAT(textsIn(assigned), ElementsAre("a"));
}

TEST(KStringArray, AssigningToItselfChangesNothing) {
  KStringArray array = arrayOf({"a", "b"});
  const KStringArray& self = array;
  array = self;
  EXPECT_THAT(textsIn(array), ElementsAre("a", "b"));
}

TEST(KStringArray, SetLengthCutsTheEndOff) {
  KStringArray array = arrayOf({"a", "b", "c"});
  EXPECT_TRUE(array.setLength(1));
  EXPECT_THAT(textsIn(array), ElementsAre("a"));
  EXPECT_TRUE(array.setLength(0));
  EXPECT_THAT(textsIn(array), IsEmpty());
}

TEST(KStringArray, SetLengthFillsUpWithEmptyStrings) {
  KStringArray array = arrayOf({"a"});
  EXPECT_TRUE(array.setLength(3));
  EXPECT_THAT(textsIn(array), ElementsAre("a", "", ""));
}

TEST(KStringArray, AConstIndexGivesACopy) {
  const KStringArray array = arrayOf({"a"});
  KString element = array[0];
  element = "b";
  EXPECT_THAT(textsIn(array), ElementsAre("a"));
}

TEST(KStringArrayIterator, WalksTheElements) {
  const KStringArray array = arrayOf({"a", "b"});
  auto iterator = array.begin();
  EXPECT_TRUE(iterator != array.end());
  EXPECT_STREQ((*iterator).asUTF8(), "a");
  EXPECT_STREQ((*++iterator).asUTF8(), "b");
  EXPECT_TRUE(++iterator == array.end());
}

TEST(KStringArrayDeathTest, AnIndexPastTheEndEndsTheProgram) {
  KStringArray array = arrayOf({"a"});
  EXPECT_DEATH(array[1] = "b", "KStringArray: index 1 of an array of length 1");
}

TEST(KStringArrayDeathTest, AConstIndexPastTheEndEndsTheProgram) {
  const KStringArray array;
  EXPECT_DEATH(static_cast<void>(array[7]), "KStringArray: index 7 of an array of length 0");
}

}  // namespace
