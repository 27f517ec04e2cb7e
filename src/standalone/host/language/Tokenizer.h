#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vesk {

/// A word as written, a text in quotes, or a flag: a word that begins with "-" and is no number.
enum class TokenKind : unsigned char { Word, Quoted, Flag };

struct Token {
  std::string text;  ///< valid UTF-8, escapes resolved
  TokenKind kind;
};

/// One command with its arguments; `source` is its text in the line that was tokenised.
struct Statement {
  std::vector<Token> tokens;
  std::string_view source;
};

/// Where and why a text cannot be read; line and column count from 1, the column in characters.
struct SyntaxError {
  std::size_t line;
  std::size_t column;
  std::string reason;

  std::string text() const;
};

struct TokenizedText {
  std::vector<Statement> statements;
  std::optional<SyntaxError> error;  ///< then there are no statements
};

/// Reads a text of the command language whole. The statements refer to `text`.
///
/// Statements end at ";" or a line end, "//" begins a comment. Tokens stand apart by blanks or tabs
/// and are bare words or double-quoted text with the escapes \" \\ \n \t \r.
TokenizedText tokenize(std::string_view text);

/// Whether a bare word is a decimal number, such as -3, .5 or 1e-4.
bool isNumber(std::string_view word);

/// The text as one quoted token that reads back as the same text.
std::string quoted(std::string_view text);

/// The text in quotes as a message shows it: after 80 characters it ends with "...".
std::string quotedBriefly(std::string_view text);

/// The same without quotes.
std::string shortened(std::string_view text);

}  // namespace vesk
