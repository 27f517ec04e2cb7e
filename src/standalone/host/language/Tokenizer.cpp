#include "standalone/host/language/Tokenizer.h"

#include <algorithm>
#include <charconv>

#include "standalone/host/language/Utf8.h"

namespace vesk {
namespace {

constexpr bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r'; }
constexpr bool endsStatement(char c) { return c == ';' || c == '\n'; }
constexpr bool isControl(char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }

std::string hexByte(char c) {
  constexpr char kDigits[] = "0123456789abcdef";
  const auto byte = static_cast<unsigned char>(c);
  return {'0', 'x', kDigits[byte >> 4], kDigits[byte & 15]};
}

class Reader {
 public:
  explicit Reader(std::string_view text) : text_(text) {}

  TokenizedText read() {
    if (const std::size_t bad = utf8::findInvalid(text_); bad != utf8::kValid) {
      fail(bad, "the byte " + hexByte(text_[bad]) + " is not valid UTF-8 here");
    }
    while (!result_.error && at_ < text_.size()) readStatement();
    if (result_.error) result_.statements.clear();
    return std::move(result_);
  }

 private:
  void readStatement() {
    std::size_t start = at_;
    std::size_t end = at_;
    Statement statement;
    while (skipBlanks() && !endsStatement(text_[at_])) {
      if (statement.tokens.empty()) {
        start = at_;
        statement.tokens.reserve(6);
      }
      if (!readToken(statement.tokens)) return;
      end = at_;
    }
    if (at_ < text_.size()) ++at_;
    if (statement.tokens.empty()) return;
    statement.source = text_.substr(start, end - start);
    result_.statements.push_back(std::move(statement));
  }

  /// Moves to the next token or statement end; false at the end of the text.
  bool skipBlanks() {
    while (at_ < text_.size() && isBlank(text_[at_])) ++at_;
    if (text_.substr(at_, 2) == "//") at_ = std::min(text_.find('\n', at_), text_.size());
    return at_ < text_.size();
  }

  bool readToken(std::vector<Token>& tokens) {
    const bool read = text_[at_] == '"' ? readQuoted(tokens) : readWord(tokens);
    if (!read || at_ == text_.size() || isBlank(text_[at_]) || endsStatement(text_[at_])) {
      return read;
    }
    return fail(at_, "a blank is missing after the quoted text");
  }

  bool readWord(std::vector<Token>& tokens) {
    const std::size_t start = at_;
    while (at_ < text_.size() && !isBlank(text_[at_]) && !endsStatement(text_[at_])) {
      const char c = text_[at_];
      if (c == '"') return fail(at_, "a quote stands inside a word; quote the whole text");
      if (isControl(c)) return fail(at_, "the control character " + hexByte(c) + " is not allowed");
      ++at_;
    }
    const std::string_view word = text_.substr(start, at_ - start);
    const bool flag = word.front() == '-' && !isNumber(word);
    tokens.push_back({std::string(word), flag ? TokenKind::Flag : TokenKind::Word});
    return true;
  }

  bool readQuoted(std::vector<Token>& tokens) {
    const std::size_t start = at_++;
    std::string value;
    while (true) {
      const std::size_t stop = std::min(text_.find_first_of(kQuotedStops, at_), text_.size());
      value.append(text_, at_, stop - at_);
      at_ = stop;
      if (at_ == text_.size() || text_[at_] == '\n')
        return fail(start, "the quoted text has no end");
      if (text_[at_] == '\0') return fail(at_, "the control character 0x00 is not allowed");
      if (text_[at_] == '"') break;
      if (!readEscape(value)) return false;
    }
    ++at_;
    tokens.push_back({std::move(value), TokenKind::Quoted});
    return true;
  }

  bool readEscape(std::string& value) {
    const char escaped = at_ + 1 < text_.size() ? text_[at_ + 1] : '\0';
    switch (escaped) {
      case '"':
      case '\\':
        value += escaped;
        break;
      case 'n':
        value += '\n';
        break;
      case 't':
        value += '\t';
        break;
      case 'r':
        value += '\r';
        break;
      default:
        return fail(at_, "a backslash must be followed by one of \" \\ n t r");
    }
    at_ += 2;
    return true;
  }

  bool fail(std::size_t offset, std::string reason) {
    const std::string_view before = text_.substr(0, offset);
    const std::size_t lineStart = before.rfind('\n') + 1;
    std::size_t line = 1;
    for (const char c : before) line += c == '\n';
    const std::size_t column = utf8::countCharacters(before.substr(lineStart)) + 1;
    result_.error = SyntaxError{line, column, std::move(reason)};
    return false;
  }

  static constexpr std::string_view kQuotedStops{"\"\\\n\0", 4};

  std::string_view text_;
  std::size_t at_ = 0;
  TokenizedText result_;
};

}  // namespace

std::string SyntaxError::text() const {
  return "line " + std::to_string(line) + ", column " + std::to_string(column) + ": " + reason;
}

TokenizedText tokenize(std::string_view text) { return Reader(text).read(); }

bool isNumber(std::string_view word) {
  if (word.starts_with('-') || word.starts_with('+')) word.remove_prefix(1);
  const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
  if (word.empty() || !(isDigit(word.front()) || word.front() == '.')) return false;
  double value = 0;
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
  return error != std::errc::invalid_argument && end == word.data() + word.size();
}

std::string quoted(std::string_view text) {
  std::string result;
  result.reserve(text.size() + 2);
  result += '"';
  for (const char c : text) {
    switch (c) {
      case '"':
      case '\\':
        result += '\\';
        result += c;
        break;
      case '\n':
        result += "\\n";
        break;
      case '\t':
        result += "\\t";
        break;
      case '\r':
        result += "\\r";
        break;
      default:
        result += c;
    }
  }
  result += '"';
  return result;
}

std::string shortened(std::string_view text) {
  constexpr std::size_t kShownCharacters = 80;
  const std::size_t end = utf8::offsetOfCharacter(text, kShownCharacters);
  return std::string(text.substr(0, end)) + (end < text.size() ? "..." : "");
}

std::string quotedBriefly(std::string_view text) { return quoted(shortened(text)); }

}  // namespace vesk
