#include "standalone/graph/texts/ListText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

#include "tests/standalone/graph/texts/NastyTexts.h"

namespace {

using orvlib::ListTags;
using orvlib::readList;
using orvlib::writeList;
using testing::ElementsAre;
using testing::Eq;
using testing::IsEmpty;
using testing::Optional;
using Texts = std::vector<std::string>;

std::string written(const Texts& texts) { return writeList(texts); }

TEST(ListText, OneTextIsWrittenBare) { EXPECT_EQ(written({"/group/add1"}), "/group/add1"); }

TEST(ListText, SeveralTextsAreWrittenInBraces) { EXPECT_EQ(written({"a", "b c"}), "{a,b c}"); }

TEST(ListText, NoTextsAndEmptyTextsAreToldApart) {
  EXPECT_EQ(written({}), "{}");
  EXPECT_EQ(written({""}), "{,}");
  EXPECT_EQ(written({"", ""}), "{,,}");
  EXPECT_EQ(written({"", "a"}), "{,a}");
  EXPECT_EQ(written({"a", ""}), "{a,,}");
}

TEST(ListText, EachTagInATextIsEscaped) {
  EXPECT_EQ(written({"a{b}c,d\\e"}), R"(a\{b\}c\,d\\e)");
  EXPECT_EQ(written({"{a,b}", "c"}), R"({\{a\,b\},c})");
}

TEST(ListText, NothingElseIsEscaped) { EXPECT_EQ(written({"a=\"b\"; \n"}), "a=\"b\"; \n"); }

TEST(ListText, IsWrittenWithOtherTags) {
  EXPECT_EQ(writeList(Texts{"a", "b;c", "d,e"}, ListTags{'[', ']', ';', '^'}), "[a;b^;c;d,e]");
}

TEST(ListText, EmptyTextIsAnEmptyList) { EXPECT_THAT(readList(""), Optional(IsEmpty())); }

TEST(ListText, ASeparatorMayFollowTheLastText) {
  EXPECT_THAT(readList("{a,b,}"), Optional(ElementsAre("a", "b")));
}

TEST(ListText, ASeparatorOutsideBracesStandsForItself) {
  EXPECT_THAT(readList("Hello, world,"), Optional(ElementsAre("Hello, world,")));
}

TEST(ListText, BlanksCount) {
  EXPECT_THAT(readList("{ a , b }"), Optional(ElementsAre(" a ", " b ")));
  EXPECT_THAT(readList(" "), Optional(ElementsAre(" ")));
}

TEST(ListText, RefusesMalformedTexts) {
  for (const char* text : {"{",    "}",       "{a",    "{a,",    "a}",   "a{",     "{a}}",
                           "{{a}", "{{a},b}", "{a}b",  "{a} ",   " {a}", "{a}{b}", "\\",
                           "a\\",  "{a\\",    "{a\\}", "{a,\\}", "\\a",  "{\\n}",  "{a\\ }"}) {
    EXPECT_EQ(readList(text), std::nullopt) << text;
  }
}

TEST(ListText, GivesEveryListBack) {
  NastyTexts nasty(20);
  for (int i = 0; i < 4000; ++i) {
    const Texts texts = nasty.list();
    ASSERT_THAT(readList(written(texts)), Optional(Eq(texts))) << written(texts);
  }
}

TEST(ListText, GivesEveryListBackWithOtherTags) {
  const ListTags tags{'(', ')', ' ', '='};
  NastyTexts nasty(21);
  for (int i = 0; i < 1000; ++i) {
    const Texts texts = nasty.list();
    ASSERT_THAT(readList(writeList(texts, tags), tags), Optional(Eq(texts)));
  }
}

TEST(ListText, GivesListsOfListTextsBack) {
  NastyTexts nasty(22);
  for (int i = 0; i < 500; ++i) {
    const Texts texts = {written(nasty.list()), written({written(nasty.list()), nasty.text()})};
    ASSERT_THAT(readList(written(texts)), Optional(Eq(texts)));
  }
}

TEST(ListText, GivesBytesThatAreNoTextBack) {
  const Texts texts = {std::string("a\0b", 3), "\xff\xfe{", std::string(1, '\0')};
  EXPECT_THAT(readList(written(texts)), Optional(Eq(texts)));
}

TEST(ListText, WritesDifferentListsDifferently) {
  NastyTexts nasty(23);
  std::map<std::string, Texts> writtenAs;
  for (int i = 0; i < 4000; ++i) {
    const Texts texts = nasty.list(2);
    const auto [known, added] = writtenAs.emplace(written(texts), texts);
    ASSERT_EQ(known->second, texts) << known->first;
  }
}

TEST(ListText, WhatIsReadFromAnyTextIsReadAgainWhenWritten) {
  NastyTexts nasty(24);
  int accepted = 0;
  for (int i = 0; i < 4000; ++i) {
    const auto texts = readList(nasty.text());
    if (!texts) continue;
    ++accepted;
    ASSERT_EQ(readList(written(*texts)), texts);
  }
  EXPECT_GT(accepted, 500);
}

}  // namespace
