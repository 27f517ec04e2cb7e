#include "standalone/host/language/Tokenizer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace vesk;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// The tokens of each statement: w a word, q a quoted text, f a flag.
std::vector<std::vector<std::string>> read(std::string_view text) {
  std::vector<std::vector<std::string>> result;
  const TokenizedText tokenized = tokenize(text);
  EXPECT_FALSE(tokenized.error.has_value()) << tokenized.error->text();
  for (const Statement& statement : tokenized.statements) {
    auto& tokens = result.emplace_back();
    for (const Token& token : statement.tokens) {
      tokens.push_back(std::string(1, "wqf"[static_cast<int>(token.kind)]) + ":" + token.text);
    }
  }
  return result;
}

TEST(Tokenizer, BlanksAndTabsStandBetweenWords) {
  EXPECT_THAT(read("  a \t b\tc "), ElementsAre(ElementsAre("w:a", "w:b", "w:c")));
}

TEST(Tokenizer, AnEmptyTextHasNoStatement) {
  EXPECT_THAT(read(""), IsEmpty());
  EXPECT_THAT(read(" \t\r\n;; \n;"), IsEmpty());
}

TEST(Tokenizer, QuotedTextKeepsBlanksAndSeparators) {
  EXPECT_THAT(read("\"a b;c//d\""), ElementsAre(ElementsAre("q:a b;c//d")));
}

TEST(Tokenizer, QuotedTextMayBeEmpty) {
  EXPECT_THAT(read("x \"\""), ElementsAre(ElementsAre("w:x", "q:")));
}

TEST(Tokenizer, EscapesAreResolvedInQuotedText) {
  EXPECT_THAT(read(R"("\"\\\n\t\r")"), ElementsAre(ElementsAre("q:\"\\\n\t\r")));
}

TEST(Tokenizer, ABackslashInAWordStandsForItself) {
  EXPECT_THAT(read(R"(a\n\\)"), ElementsAre(ElementsAre(R"(w:a\n\\)")));
}

TEST(Tokenizer, StatementsEndAtASemicolonAndAtALineEnd) {
  EXPECT_THAT(read("a;b ; c\nd"), ElementsAre(ElementsAre("w:a"), ElementsAre("w:b"),
                                              ElementsAre("w:c"), ElementsAre("w:d")));
}

TEST(Tokenizer, ASemicolonMayFollowQuotedTextAtOnce) {
  EXPECT_THAT(read("\"a\";b"), ElementsAre(ElementsAre("q:a"), ElementsAre("w:b")));
}

TEST(Tokenizer, LineEndsOfTwoBytesReadLikeThoseOfOne) {
  EXPECT_THAT(read("a b\r\nc\r\n"), ElementsAre(ElementsAre("w:a", "w:b"), ElementsAre("w:c")));
}

TEST(Tokenizer, ACommentGoesToTheEndOfItsLine) {
  EXPECT_THAT(read("a // b; \"c\nd //"), ElementsAre(ElementsAre("w:a"), ElementsAre("w:d")));
}

TEST(Tokenizer, ACommentMayFollowASemicolonAndStandAlone) {
  EXPECT_THAT(read("// first\na;// second\n// third"), ElementsAre(ElementsAre("w:a")));
}

TEST(Tokenizer, SlashesInsideAWordBeginNoComment) {
  EXPECT_THAT(read("a//b /c"), ElementsAre(ElementsAre("w:a//b", "w:/c")));
}

TEST(Tokenizer, AWordThatBeginsWithAMinusIsAFlag) {
  EXPECT_THAT(read("-a -long - -- -inf -nan -0x1 -1a -. --3 -e5"),
              ElementsAre(ElementsAre("f:-a", "f:-long", "f:-", "f:--", "f:-inf", "f:-nan",
                                      "f:-0x1", "f:-1a", "f:-.", "f:--3", "f:-e5")));
}

TEST(Tokenizer, ANegativeNumberIsNoFlag) {
  EXPECT_THAT(read("-3 -.5 -1e-4 -1.5E+3 -0 -5. -1e999"),
              ElementsAre(ElementsAre("w:-3", "w:-.5", "w:-1e-4", "w:-1.5E+3", "w:-0", "w:-5.",
                                      "w:-1e999")));
}

TEST(Tokenizer, QuotedTextIsNeverAFlag) {
  EXPECT_THAT(read("\"-a\""), ElementsAre(ElementsAre("q:-a")));
}

TEST(Tokenizer, WordsMayBeOfAnyScript) {
  EXPECT_THAT(read("\u00fcn\u00efc\u00f6de \U0001F600"),
              ElementsAre(ElementsAre("w:\u00fcn\u00efc\u00f6de", "w:\U0001F600")));
}

TEST(Tokenizer, QuotedTextMayHoldControlCharacters) {
  EXPECT_THAT(read("\"\x01\t\x7f\""), ElementsAre(ElementsAre("q:\x01\t\x7f")));
}

TEST(Tokenizer, TheSourceOfAStatementIsItsTextWithoutBlanksAndComment) {
  const std::string text = "  a \"b c\"  ; d  // e\n f";
  const TokenizedText read = tokenize(text);
  ASSERT_EQ(read.statements.size(), 3u);
  EXPECT_EQ(read.statements[0].source, "a \"b c\"");
  EXPECT_EQ(read.statements[1].source, "d");
  EXPECT_EQ(read.statements[2].source, "f");
}

TEST(Tokenizer, ALineOfAMegabyteIsReadWhole) {
  const std::string word(1 << 20, 'x');
  const TokenizedText read = tokenize("a " + word + " \"" + word + "\" b");
  ASSERT_EQ(read.statements.size(), 1u);
  ASSERT_EQ(read.statements[0].tokens.size(), 4u);
  EXPECT_EQ(read.statements[0].tokens[1].text, word);
  EXPECT_EQ(read.statements[0].tokens[2].text, word);
}

TEST(Tokenizer, AMillionTokensAreRead) {
  std::string text;
  for (int i = 0; i < 1'000'000; ++i) text += "a ";
  EXPECT_EQ(tokenize(text).statements.at(0).tokens.size(), 1'000'000u);
}

TEST(IsNumber, TakesDecimalNumbersWithAndWithoutSign) {
  for (const char* word : {"0", "12", "-12", "+12", ".5", "5.", "-.5", "1e4", "1E-4", "1e999"}) {
    EXPECT_TRUE(isNumber(word)) << word;
  }
}

TEST(IsNumber, RefusesEverythingElse) {
  for (const char* word : {"", "-", "+", ".", "-.", "a", "1a", "0x1", "inf", "nan", "-inf", "--1",
                           "+-1", "-+1", "1 ", " 1", "1e", "1.2.3", "1,5"}) {
    EXPECT_FALSE(isNumber(word)) << word;
  }
}

}  // namespace
