// The text of the command language: whatever is read is read again the same, and what is quoted
// comes back.

#include <algorithm>

#include "fuzz/Bytes.h"
#include "fuzz/require.h"
#include "standalone/host/engine/Arguments.h"
#include "standalone/host/engine/ScriptReader.h"
#include "standalone/host/language/Tokenizer.h"
#include "standalone/host/language/Utf8.h"

namespace {

using fuzz::require;
using vesk::Statement;
using vesk::Token;
using vesk::TokenKind;

bool same(const std::vector<Token>& a, const std::vector<Token>& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const Token& x, const Token& y) {
    return x.kind == y.kind && x.text == y.text;
  });
}

std::string written(const Statement& statement) {
  std::string line;
  for (const Token& token : statement.tokens) {
    if (!line.empty()) line += ' ';
    line += token.kind == TokenKind::Quoted ? vesk::quoted(token.text) : token.text;
  }
  return line;
}

void checkReadsAs(std::string_view text, const Statement& statement, std::string_view what) {
  const vesk::TokenizedText again = vesk::tokenize(text);
  require(!again.error && again.statements.size() == 1, what, text);
  require(same(again.statements[0].tokens, statement.tokens), what, text);
}

void checkToken(const Token& token) {
  require(vesk::utf8::findInvalid(token.text) == vesk::utf8::kValid, "a token is UTF-8");
  const bool dashed = token.text.starts_with('-');
  if (token.kind == TokenKind::Flag) require(dashed, "a flag begins with a dash", token.text);
  if (token.kind == TokenKind::Word) {
    require(!token.text.empty(), "a word is not empty");
    require(!dashed || vesk::isNumber(token.text), "a word with a dash is a number", token.text);
  }
}

void checkStatement(std::string_view text, const Statement& statement) {
  require(!statement.tokens.empty(), "a statement has a token");
  require(statement.source.data() >= text.data() &&
              statement.source.data() + statement.source.size() <= text.data() + text.size(),
          "a statement's source lies in the text");
  for (const Token& token : statement.tokens) checkToken(token);
  checkReadsAs(statement.source, statement, "a statement's source reads as the statement");
  checkReadsAs(written(statement), statement, "written tokens read back");
}

void checkError(std::string_view text, const vesk::TokenizedText& read) {
  require(read.statements.empty(), "an error leaves no statements");
  const auto lines = static_cast<std::size_t>(std::ranges::count(text, '\n')) + 1;
  require(read.error->line >= 1 && read.error->line <= lines, "the line of an error is there");
  require(read.error->column >= 1 && read.error->column <= text.size() + 1,
          "the column of an error is there");
  require(!read.error->text().empty(), "an error has a text");
}

void checkText(std::string_view text) {
  const vesk::TokenizedText read = vesk::tokenize(text);
  if (read.error) return checkError(text, read);
  for (const Statement& statement : read.statements) checkStatement(text, statement);
}

void checkQuoting(std::string_view text) {
  if (text.find('\0') != text.npos) return;  // no text of the language holds it
  const std::string quoted = vesk::quoted(text);
  checkReadsAs(quoted, {{{std::string(text), TokenKind::Quoted}}, quoted}, "a quoted text returns");
  const std::string brief = vesk::quotedBriefly(text);
  require(!vesk::tokenize(brief).error, "a shortened quoted text can be read", brief);
}

void checkUtf8(std::string_view text) {
  std::size_t offset = 0;
  std::size_t count = 0;
  std::string again;
  for (; offset < text.size(); ++count) {
    require(vesk::utf8::offsetOfCharacter(text, count) == offset, "characters are where they are");
    vesk::utf8::append(again, vesk::utf8::next(text, offset));
  }
  require(again == text, "characters make the text again", text);
  require(count == vesk::utf8::countCharacters(text), "characters are counted");
}

void checkNumbers(std::string_view word) {
  int integer = 0;
  unsigned natural = 0;
  double number = 0;
  bool boolean = false;
  if (vesk::readInt(word, integer)) require(vesk::isNumber(word), "an int is a number", word);
  if (vesk::readUnsigned(word, natural)) require(vesk::isNumber(word), "so is a natural", word);
  if (vesk::readDouble(word, number)) require(vesk::isNumber(word), "so is a double", word);
  vesk::readBool(word, boolean);
}

void checkLines(std::string_view script) {
  std::size_t lines = 0;
  vesk::forEachLine(vesk::withoutByteOrderMark(script), [&](std::string_view line, std::size_t n) {
    require(n == ++lines, "lines are counted from 1");
    require(line.find('\n') == line.npos, "a line has no line end");
    const vesk::TokenizedText read = vesk::tokenize(line);
    if (vesk::isCommentLine(line) && !read.error) {
      require(read.statements.empty(), "a comment says nothing", line);
    }
    return true;
  });
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  checkText(text);
  checkNumbers(text);
  checkLines(text);
  const std::string valid = vesk::utf8::repaired(text);
  require(vesk::utf8::findInvalid(valid) == vesk::utf8::kValid, "a repaired text is valid");
  checkUtf8(valid);
  checkQuoting(valid);
  return 0;
}
