#include "standalone/host/scene/NodePatterns.h"

#include <ctime>

#include "tests/standalone/host/scene/SceneTools.h"

namespace vesk {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using vesk::testing::addNode;
using vesk::testing::namesOf;

TEST(NodePatterns, APlainPatternFitsItsNameOnly) {
  EXPECT_TRUE(fitsPattern("add1", "add1"));
  EXPECT_FALSE(fitsPattern("add1", "add"));
  EXPECT_FALSE(fitsPattern("add", "add1"));
  EXPECT_FALSE(fitsPattern("add", "Add"));
}

TEST(NodePatterns, AQuestionMarkStandsForOneCharacter) {
  EXPECT_TRUE(fitsPattern("add1", "add?"));
  EXPECT_FALSE(fitsPattern("add", "add?"));
  EXPECT_FALSE(fitsPattern("add12", "add?"));
}

TEST(NodePatterns, AStarStandsForAnyCharactersAlsoNone) {
  EXPECT_TRUE(fitsPattern("", "*"));
  EXPECT_TRUE(fitsPattern("add", "add*"));
  EXPECT_TRUE(fitsPattern("add12", "*d*2"));
  EXPECT_TRUE(fitsPattern("aabab", "*ab"));
  EXPECT_FALSE(fitsPattern("aaba", "*ab"));
  EXPECT_TRUE(fitsPattern("abc", "a**c*"));
}

TEST(NodePatterns, AnEmptyPatternFitsNoNode) { EXPECT_FALSE(fitsPattern("a", "")); }

TEST(NodePatterns, ManyStarsAreReadInReasonableTime) {
  const std::string name(2000, 'a');
  EXPECT_FALSE(fitsPattern(name, "*a*a*a*a*a*a*a*a*a*a*b"));
}

class FindNodes : public ::testing::Test {
 protected:
  FindNodes() {
    for (const char* name : {"one", "two", "three"}) addNode(scene_, "group", name);
  }

  MessageChannel messages_;
  SceneEvents events_;
  Scene scene_{messages_, events_};
};

TEST_F(FindNodes, GivesTheOrderOfThePatterns) {
  std::optional<std::string> missing;
  EXPECT_THAT(namesOf(findNodes(scene_, {"three", "t*", "one"}, missing)),
              ElementsAre("three", "two", "one"));
  EXPECT_FALSE(missing);
}

TEST_F(FindNodes, NamesTheFirstThatIsMissing) {
  std::optional<std::string> missing;
  findNodes(scene_, {"one", "x*", "y"}, missing);
  EXPECT_EQ(missing, "x*");
}

TEST_F(FindNodes, TellsAnEmptyNameAsMissing) {
  std::optional<std::string> missing;
  findNodes(scene_, {""}, missing);
  EXPECT_EQ(missing, "");
}

TEST_F(FindNodes, CanGiveCreationOrder) {
  EXPECT_THAT(namesOf(findNodesInOrder(scene_, {"t*", "one", "two"})),
              ElementsAre("one", "two", "three"));
  EXPECT_THAT(namesOf(findNodesInOrder(scene_, {"three", "one"})), ElementsAre("one", "three"));
  EXPECT_THAT(namesOf(findNodesInOrder(scene_, {"two", "x", "two"})), ElementsAre("two"));
  EXPECT_THAT(namesOf(findNodesInOrder(scene_, {"x"})), IsEmpty());
}

TEST_F(FindNodes, DoesNotTryEachPlainNameOnEachNode) {
  NamePatterns names;
  for (int i = 0; i < 60'000; ++i) {
    names.push_back(addNode(scene_, "group", "n" + std::to_string(i))->name());
  }
  names.push_back("t*");
  const std::clock_t begin = std::clock();
  EXPECT_EQ(findNodesInOrder(scene_, names).size(), 60'002u);
  EXPECT_LT((std::clock() - begin) / CLOCKS_PER_SEC, 1);
}

}  // namespace
}  // namespace vesk
