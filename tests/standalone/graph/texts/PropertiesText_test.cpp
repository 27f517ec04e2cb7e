#include "standalone/graph/texts/PropertiesText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/standalone/graph/texts/NastyTexts.h"

namespace {

using orvlib::Properties;
using orvlib::readProperties;
using orvlib::writeProperties;
using testing::Eq;
using testing::Optional;

Properties make(std::initializer_list<orvlib::Property> all) {
  Properties properties;
  for (const auto& [key, values] : all) properties.set(key, values);
  return properties;
}

std::string written(std::initializer_list<orvlib::Property> all) {
  return writeProperties(make(all));
}

TEST(PropertiesText, AnEmptySetIsAPairOfBraces) { EXPECT_EQ(written({}), "{}"); }

TEST(PropertiesText, EachKeyHasAListOfValues) {
  EXPECT_EQ(written({{"color", {"dark red"}}, {"tags", {"a", "b"}}, {"note", {""}}}),
            "{color=dark red,tags={a,b},note={,}}");
}

TEST(PropertiesText, TagsAreEscapedInKeysAndValues) {
  EXPECT_EQ(written({{"a=b,c", {"d=e,f{}"}}}), R"({a\=b\,c=d=e\,f\{\}})");
}

TEST(PropertiesText, EmptyTextIsAnEmptySet) {
  EXPECT_THAT(readProperties(""), Optional(Properties()));
}

TEST(PropertiesText, ASeparatorMayFollowTheLastKey) {
  EXPECT_THAT(readProperties("{a=1,}"), Optional(make({{"a", {"1"}}})));
}

TEST(PropertiesText, BlanksCount) {
  EXPECT_THAT(readProperties("{a=1, b = 2}"), Optional(make({{"a", {"1"}}, {" b ", {" 2"}}})));
}

TEST(PropertiesText, RefusesMalformedTexts) {
  for (const char* text :
       {"{",       "}",      "a",        "a=1",       "{a}",       "{a=1",    "{a=1,",
        "{a=1,b}", "{a={1}", "{a={1}}}", "{a={1}b}",  "{a={{1}}}", "{a=1{}}", "{a=1}b",
        "{a=1} ",  " {a=1}", "{a\\=1}",  "{a=1\\",    "{a=\\1}",   "{\\a=1}", "{a=1\\=2}",
        "{{a}=1}", ",",      "{,}",      "{a=1,,b=2}"}) {
    EXPECT_EQ(readProperties(text), std::nullopt) << text;
  }
}

TEST(PropertiesText, RefusesAnEmptyKey) {
  EXPECT_EQ(readProperties("{=1}"), std::nullopt);
  EXPECT_EQ(readProperties("{a=1,=2}"), std::nullopt);
}

TEST(PropertiesText, RefusesAKeyWithoutValues) {
  EXPECT_EQ(readProperties("{a=}"), std::nullopt);
  EXPECT_EQ(readProperties("{a={}}"), std::nullopt);
  EXPECT_EQ(readProperties("{a=,b=1}"), std::nullopt);
}

TEST(PropertiesText, RefusesAKeyThatComesTwice) {
  EXPECT_EQ(readProperties("{a=1,b=2,a=3}"), std::nullopt);
}

TEST(PropertiesText, GivesEverySetBack) {
  NastyTexts nasty(30);
  for (int i = 0; i < 4000; ++i) {
    Properties properties;
    for (std::size_t keys = nasty.upTo(4); keys > 0; --keys) {
      const std::string key = nasty.text();
      properties.set(key, nasty.list());
    }
    const std::string text = writeProperties(properties);
    ASSERT_THAT(readProperties(text), Optional(Eq(properties))) << text;
  }
}

TEST(PropertiesText, GivesASetOfManyKeysBack) {
  Properties properties;
  for (int i = 0; i < 5000; ++i) properties.set("key" + std::to_string(i), {std::to_string(i)});
  EXPECT_THAT(readProperties(writeProperties(properties)), Optional(Eq(properties)));
}

}  // namespace
