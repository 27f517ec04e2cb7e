#include <gtest/gtest.h>

#include <random>

#include "standalone/host/language/Tokenizer.h"
#include "standalone/host/language/Utf8.h"

namespace {

using namespace vesk;

/// Text of any characters but zero, with those that mean something to the language among them.
std::string randomText(std::mt19937& random) {
  constexpr char32_t kSpecial[] = {U'"', U'\\', U'\n', U'\t', U'\r', U';', U'/', U'-', U' ', U'n'};
  constexpr char32_t kLimits[] = {0x80, 0x800, 0xD800, 0x110000};
  std::string text;
  for (unsigned left = random() % 40; left > 0; --left) {
    if (random() % 3 == 0) {
      utf8::append(text, kSpecial[random() % std::size(kSpecial)]);
    } else {
      char32_t character = 1 + random() % (kLimits[random() % 4] - 1);
      if (character >= 0xD800 && character < 0xE000) character -= 0x1000;
      utf8::append(text, character);
    }
  }
  return text;
}

TEST(Quoted, ReadsBackAsTheSameText) {
  std::mt19937 random(20250000);
  for (int i = 0; i < 2000; ++i) {
    const std::string text = randomText(random);
    const std::string line = "command " + vesk::quoted(text) + " end";
    const TokenizedText read = tokenize(line);
    ASSERT_FALSE(read.error.has_value()) << line << ": " << read.error->text();
    ASSERT_EQ(read.statements.size(), 1u) << line;
    ASSERT_EQ(read.statements[0].tokens.size(), 3u) << line;
    ASSERT_EQ(read.statements[0].tokens[1].text, text);
    ASSERT_EQ(read.statements[0].tokens[1].kind, TokenKind::Quoted);
  }
}

TEST(Quoted, EscapesWhatWouldEndTheTextOrTheLine) {
  EXPECT_EQ(vesk::quoted("a\"b\\c\nd\te\rf"), R"("a\"b\\c\nd\te\rf")");
}

TEST(Quoted, LeavesEveryOtherCharacterAsItIs) {
  EXPECT_EQ(vesk::quoted("\u00e9 ;'\x01"), "\"\u00e9 ;'\x01\"");
}

}  // namespace
