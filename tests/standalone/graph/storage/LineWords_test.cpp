#include "standalone/graph/storage/LineWords.h"

#include <gmock/gmock.h>

#include "tests/standalone/graph/texts/NastyTexts.h"

namespace orvlib {
namespace {

using testing::ElementsAre;

TEST(LineWords, AreCountedByLine) {
  LineWords lines("a\n  b c\n");
  ASSERT_TRUE(lines.next());
  EXPECT_EQ(lines.line(), 1u);
  ASSERT_TRUE(lines.next());
  EXPECT_THAT(lines.words(), ElementsAre("b", "c"));
  EXPECT_EQ(lines.line(), 2u);
  EXPECT_TRUE(lines.isAtEnd());
  EXPECT_FALSE(lines.next());
  EXPECT_EQ(lines.problem(), "the text ends too early");
}

TEST(LineWords, AreRefusedOfALineWithoutAnEnd) {
  LineWords lines("a\nb");
  ASSERT_TRUE(lines.next());
  EXPECT_FALSE(lines.next());
  EXPECT_EQ(lines.problem(), "the text ends within this line");
  EXPECT_EQ(lines.line(), 2u);
}

TEST(LineWords, AreInQuotesWhenTheyNeedThem) {
  std::string line = "x";
  for (const char* word : {"array<float>", "core::math::add", "-1.5e+07", "", "a b", "\"", "\\"}) {
    addWord(line, word);
  }
  EXPECT_EQ(line, R"(x array<float> core::math::add -1.5e+07 "" "a b" "\"" "\\")");
}

TEST(LineWords, OfAnyTextsAreReadBack) {
  NastyTexts nasty(7);
  for (int i = 0; i < 5000; ++i) {
    const std::vector<std::string> texts = nasty.list();
    std::string line = "x";
    for (const std::string& text : texts) addWord(line, text + (i % 7 == 0 ? "\r" : ""));
    line += '\n';
    ASSERT_EQ(std::count(line.begin(), line.end(), '\n'), 1);
    LineWords lines(line);
    ASSERT_TRUE(lines.next()) << line;
    ASSERT_EQ(lines.words().size(), texts.size() + 1) << line;
    for (std::size_t w = 0; w < texts.size(); ++w) {
      ASSERT_EQ(lines.words()[w + 1], texts[w] + (i % 7 == 0 ? "\r" : ""));
    }
  }
}

TEST(LineWords, KeepBytesThatAreNoText) {
  const std::string bytes("\0\xff\x01", 3);
  std::string line = "x";
  addWord(line, bytes);
  line += '\n';
  LineWords lines(line);
  ASSERT_TRUE(lines.next());
  EXPECT_EQ(lines.words()[1], bytes);
}

}  // namespace
}  // namespace orvlib
