#include "standalone/graph/storage/LineWords.h"

#include <algorithm>
#include <array>

namespace orvlib {
namespace {

constexpr std::array<bool, 256> bareCharacters() {
  std::array<bool, 256> bare{};
  for (int c = '0'; c <= '9'; ++c) bare[static_cast<std::size_t>(c)] = true;
  for (int c = 'a'; c <= 'z'; ++c) bare[static_cast<std::size_t>(c)] = true;
  for (int c = 'A'; c <= 'Z'; ++c) bare[static_cast<std::size_t>(c)] = true;
  for (const char c : {'_', ':', '.', '<', '>', '+', '-', '/'}) {
    bare[static_cast<unsigned char>(c)] = true;
  }
  return bare;
}

constexpr std::array<bool, 256> kBare = bareCharacters();

bool isBare(char c) { return kBare[static_cast<unsigned char>(c)]; }

bool isBareWord(std::string_view word) {
  return !word.empty() && std::all_of(word.begin(), word.end(), isBare);
}

void appendQuoted(std::string& line, std::string_view word) {
  line += '"';
  for (const char c : word) {
    if (c == '"' || c == '\\') line += '\\';
    if (c == '\n') {
      line += "\\n";
    } else if (c == '\r') {
      line += "\\r";
    } else {
      line += c;
    }
  }
  line += '"';
}

/// What stands behind a backslash; 0 for what may not.
char unescaped(char c) {
  switch (c) {
    case '"':
    case '\\':
      return c;
    case 'n':
      return '\n';
    case 'r':
      return '\r';
    default:
      return 0;
  }
}

}  // namespace

void addWord(std::string& line, std::string_view word) {
  line += ' ';
  if (isBareWord(word)) {
    line += word;
  } else {
    appendQuoted(line, word);
  }
}

bool LineWords::next() {
  if (isAtEnd()) {
    ++line_;
    return fail("the text ends too early");
  }
  ++line_;
  const std::size_t end = text_.find('\n', at_);
  if (end == text_.npos) return fail("the text ends within this line");
  const std::string_view line = text_.substr(at_, end - at_);
  at_ = end + 1;
  return readLine(line);
}

bool LineWords::fail(const char* problem) {
  problem_ = problem;
  return false;
}

bool LineWords::readLine(std::string_view line) {
  words_.clear();
  if (!unescaped_.empty()) unescaped_.clear();
  line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
  while (!line.empty()) {
    if (line.front() == '"') {
      if (!readQuoted(line)) return false;
    } else {
      const auto* end = std::find_if_not(line.begin(), line.end(), isBare);
      const auto length = static_cast<std::size_t>(end - line.begin());
      if (length == 0) return fail("a word begins with a character that needs quotes");
      words_.push_back(line.substr(0, length));
      line.remove_prefix(length);
    }
    if (line.empty()) break;
    if (line.front() != ' ') return fail("a blank was expected between two words");
    line.remove_prefix(1);
    if (line.empty()) return fail("the line ends with a blank");
  }
  return words_.empty() ? fail("the line is empty") : true;
}

bool LineWords::readQuoted(std::string_view& line) {
  line.remove_prefix(1);
  const std::size_t end = line.find_first_of("\"\\");
  if (end == line.npos) return fail("a quote is not closed");
  if (line[end] == '\\') return readEscaped(line);
  words_.push_back(line.substr(0, end));
  line.remove_prefix(end + 1);
  return true;
}

bool LineWords::readEscaped(std::string_view& line) {
  std::string& word = unescaped_.emplace_back();
  while (true) {
    const std::size_t end = line.find_first_of("\"\\");
    if (end == line.npos) return fail("a quote is not closed");
    word += line.substr(0, end);
    const bool closed = line[end] == '"';
    line.remove_prefix(end + 1);
    if (closed) break;
    const char meant = line.empty() ? '\0' : unescaped(line.front());
    if (meant == '\0') return fail("a backslash stands before a character that needs none");
    word += meant;
    line.remove_prefix(1);
  }
  words_.push_back(word);
  return true;
}

}  // namespace orvlib
