#include "standalone/graph/texts/Properties.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

namespace {

using orvlib::Properties;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsNull;
using testing::Pointee;

/// Enough keys for a hashed lookup.
constexpr int kMany = 100;

Properties withKeys(int count) {
  Properties properties;
  for (int i = 0; i < count; ++i) properties.set("key" + std::to_string(i), {std::to_string(i)});
  return properties;
}

TEST(Properties, AreEmptyByDefault) {
  const Properties properties;
  EXPECT_TRUE(properties.empty());
  EXPECT_THAT(properties.keys(), IsEmpty());
  EXPECT_THAT(properties.find("color"), IsNull());
}

TEST(Properties, TakeOnePointerOfSpace) { EXPECT_EQ(sizeof(Properties), sizeof(void*)); }

TEST(Properties, KeepKeysInTheOrderInWhichTheyCame) {
  Properties properties;
  properties.set("b", {"1"});
  properties.addValue("a", "2");
  properties.set("c", {"3"});
  EXPECT_THAT(properties.keys(), ElementsAre("b", "a", "c"));
}

TEST(Properties, AKeyKeepsItsPlaceWhenItsValuesAreReplaced) {
  Properties properties = withKeys(2);
  properties.set("key0", {"new", ""});
  EXPECT_THAT(properties.keys(), ElementsAre("key0", "key1"));
  EXPECT_THAT(properties.find("key0"), Pointee(ElementsAre("new", "")));
}

TEST(Properties, AddedValuesComeLast) {
  Properties properties;
  properties.addValue("tags", "b");
  properties.addValue("tags", "a");
  properties.addValue("tags", "b");
  EXPECT_THAT(properties.find("tags"), Pointee(ElementsAre("b", "a", "b")));
}

TEST(Properties, OnlyTheFirstEqualValueIsRemoved) {
  Properties properties;
  properties.set("tags", {"b", "a", "b"});
  EXPECT_TRUE(properties.removeValue("tags", "b"));
  EXPECT_THAT(properties.find("tags"), Pointee(ElementsAre("a", "b")));
}

TEST(Properties, AKeyGoesWithItsLastValue) {
  Properties properties = withKeys(2);
  EXPECT_TRUE(properties.removeValue("key0", "0"));
  EXPECT_THAT(properties.keys(), ElementsAre("key1"));
}

TEST(Properties, RemovingAnUnknownValueOrKeyChangesNothing) {
  Properties properties = withKeys(1);
  EXPECT_FALSE(properties.removeValue("key0", "1"));
  EXPECT_FALSE(properties.removeValue("key", "0"));
  EXPECT_FALSE(Properties().removeValue("key", "0"));
  EXPECT_EQ(properties, withKeys(1));
}

TEST(Properties, ClearingTakesAKeyOut) {
  Properties properties = withKeys(3);
  EXPECT_TRUE(properties.clear("key1"));
  EXPECT_FALSE(properties.clear("key1"));
  EXPECT_THAT(properties.keys(), ElementsAre("key0", "key2"));
}

TEST(Properties, SettingNoValuesTakesAKeyOut) {
  Properties properties = withKeys(1);
  EXPECT_TRUE(properties.set("key0", {}));
  EXPECT_TRUE(properties.empty());
}

TEST(Properties, AreEmptyAgainWithoutTheLastKey) {
  Properties properties = withKeys(kMany);
  for (const std::string& key : properties.keys()) EXPECT_TRUE(properties.clear(key));
  EXPECT_TRUE(properties.empty());
  EXPECT_EQ(properties, Properties());
}

TEST(Properties, HaveNoEmptyKey) {
  Properties properties;
  EXPECT_FALSE(properties.set("", {"a"}));
  EXPECT_FALSE(properties.addValue("", "a"));
  EXPECT_TRUE(properties.empty());
}

TEST(Properties, ACopyIsChangedAlone) {
  for (const int count : {1, kMany}) {
    const Properties properties = withKeys(count);
    Properties copy(properties);
    copy.addValue("key0", "more");
    copy.clear("key" + std::to_string(count - 1));
    EXPECT_EQ(properties, withKeys(count));
    EXPECT_THAT(properties.find("key0"), Pointee(ElementsAre("0")));
  }
}

TEST(Properties, ACopyOutlivesItsOrigin) {
  Properties copy;
  {
    Properties origin = withKeys(kMany);
    copy = origin;
  }
  EXPECT_THAT(copy.find("key50"), Pointee(ElementsAre("50")));
  EXPECT_TRUE(copy.addValue("key50", "more"));
  EXPECT_THAT(copy.find("key50"), Pointee(ElementsAre("50", "more")));
}

TEST(Properties, TheOrderOfKeysCountsInAComparison) {
  Properties first = withKeys(2);
  Properties second = withKeys(2);
  EXPECT_EQ(first, second);
  second.clear("key0");
  second.set("key0", {"0"});
  EXPECT_FALSE(first == second);
}

/// The same operations on a set and on a plain list of pairs.
class PropertiesModel {
 public:
  void step(unsigned int random) {
    const std::string key(1, static_cast<char>('A' + random % 60));
    const std::string value(1, static_cast<char>('a' + random / 60 % 3));
    switch (random / 180 % 6) {
      case 0:
        properties.clear(key);
        std::erase_if(pairs, [&](const auto& pair) { return pair.first == key; });
        break;
      case 1:
      case 2:
        properties.removeValue(key, value);
        if (const auto at = std::find(pairs.begin(), pairs.end(), std::pair(key, value));
            at != pairs.end()) {
          pairs.erase(at);
        }
        break;
      default:
        properties.addValue(key, value);
        pairs.emplace_back(key, value);
    }
  }

  std::vector<std::string> valuesInPairs(const std::string& key) const {
    std::vector<std::string> values;
    for (const auto& [one, value] : pairs) {
      if (one == key) values.push_back(value);
    }
    return values;
  }

  Properties properties;
  std::vector<std::pair<std::string, std::string>> pairs;
};

TEST(Properties, BehaveAsAListOfPairsDoes) {
  PropertiesModel model;
  std::mt19937 random(7);
  std::size_t mostKeys = 0;
  for (int i = 0; i < 3000; ++i) {
    model.step(random());
    mostKeys = std::max(mostKeys, model.properties.all().size());
    for (char key = 'A'; key < 'A' + 60; ++key) {
      const auto* values = model.properties.find({&key, 1});
      ASSERT_EQ(values ? *values : std::vector<std::string>(), model.valuesInPairs({key}));
    }
  }
  EXPECT_GT(mostKeys, 30u);
}

}  // namespace
