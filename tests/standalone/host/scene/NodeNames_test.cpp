#include "standalone/host/scene/NodeNames.h"

#include "tests/standalone/host/scene/SceneTools.h"

namespace vesk {
namespace {

SceneNodePtr named(const std::string& name) {
  return std::make_shared<SceneNode>("group", name, SceneNode::makeUuid(), nullptr);
}

TEST(NodeNames, ALetterOrUnderscoreBeginsAName) {
  EXPECT_TRUE(isNodeName("a"));
  EXPECT_TRUE(isNodeName("_9Z"));
  EXPECT_FALSE(isNodeName(""));
  EXPECT_FALSE(isNodeName("9a"));
  EXPECT_FALSE(isNodeName("a b"));
  EXPECT_FALSE(isNodeName("größe"));
}

TEST(NodeNames, EveryOtherCharacterBecomesOneUnderscore) {
  EXPECT_EQ(cleanNodeName("a b-c"), "a_b_c");
  EXPECT_EQ(cleanNodeName("Größe"), "Gr__e");
  EXPECT_EQ(cleanNodeName("\xF0\x9F\x8D\x8E"), "_");
  EXPECT_EQ(cleanNodeName("\"\n"), "__");
}

TEST(NodeNames, AnUnderscoreGoesAheadOfALeadingDigit) { EXPECT_EQ(cleanNodeName("3d"), "_3d"); }

TEST(NodeNames, EmptyTextStaysEmpty) { EXPECT_EQ(cleanNodeName(""), ""); }

TEST(NodeNames, AFreeNameIsKept) {
  NodeNames names;
  EXPECT_EQ(names.freeName("add"), "add");
}

TEST(NodeNames, AClashGetsTheSmallestFreeNumber) {
  NodeNames names;
  for (const char* name : {"add", "add1", "add3"}) names.add(named(name));
  EXPECT_EQ(names.freeName("add"), "add2");
  EXPECT_EQ(names.freeName("add1"), "add11");
}

TEST(NodeNames, ARemovedNumberIsGivenAgain) {
  NodeNames names;
  for (const char* name : {"add", "add1", "add2", "add3"}) names.add(named(name));
  EXPECT_EQ(names.freeName("add"), "add4");
  names.remove("add2");
  EXPECT_EQ(names.freeName("add"), "add2");
}

TEST(NodeNames, ARemovedNameIsANumberOfEachOfItsBases) {
  NodeNames names;
  names.add(named("a"));
  for (int i = 1; i <= 13; ++i) names.add(named("a" + std::to_string(i)));
  names.add(named("a10x"));
  EXPECT_EQ(names.freeName("a"), "a14");
  EXPECT_EQ(names.freeName("a1"), "a14");
  names.remove("a12");
  EXPECT_EQ(names.freeName("a"), "a12");
  EXPECT_EQ(names.freeName("a1"), "a12");
}

TEST(NodeNames, ALeadingZeroMakesNoNumber) {
  NodeNames names;
  for (const char* name : {"a", "a1", "a01"}) names.add(named(name));
  EXPECT_EQ(names.freeName("a"), "a2");
  names.remove("a01");
  EXPECT_EQ(names.freeName("a"), "a2");
}

TEST(NodeNames, FreeNumbersMatchACountFromOneAfterManyChanges) {
  NodeNames names;
  std::vector<std::string> taken;
  unsigned random = 7;
  for (int i = 0; i < 3000; ++i) {
    random = random * 1664525u + 1013904223u;
    const std::string base = (random >> 20) % 2 ? "n" : "n1";
    if ((random >> 16) % 3 == 0 && !taken.empty()) {
      const std::size_t at = (random >> 8) % taken.size();
      names.remove(taken[at]);
      taken.erase(taken.begin() + static_cast<std::ptrdiff_t>(at));
    } else {
      std::string expected = base;
      for (int n = 1; names.find(expected); ++n) expected = base + std::to_string(n);
      ASSERT_EQ(names.freeName(base), expected);
      names.add(named(expected));
      taken.push_back(expected);
    }
  }
}

TEST(NodeNames, ATakenNameIsNotAddedAgain) {
  NodeNames names;
  const SceneNodePtr first = named("a");
  EXPECT_TRUE(names.add(first));
  EXPECT_FALSE(names.add(named("a")));
  EXPECT_EQ(names.find("a"), first);
}

}  // namespace
}  // namespace vesk
