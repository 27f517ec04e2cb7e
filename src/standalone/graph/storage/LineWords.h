#pragma once

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ORV_1_0/OrvApi.h"

namespace orvlib {

// A stored text is lines of words with one blank between them. A word of letters, digits and a few
// more characters stands as it is. Any other is in quotes, with a backslash before a quote and a
// backslash, and with \n and \r for line ends; all other bytes are themselves.

/// Appends a blank and the word, in quotes where it needs them.
ORV_EXPORT void addWord(std::string& line, std::string_view word);

/// Takes a stored text apart, line by line.
class ORV_EXPORT LineWords {
 public:
  /// `text` outlives the object.
  explicit LineWords(std::string_view text) : text_(text) {}

  /// Goes to the next line. False when there is none, or none that can be read: see `problem`.
  bool next();

  bool isAtEnd() const { return at_ == text_.size(); }

  /// The number of the line, from 1.
  std::size_t line() const { return line_; }

  /// Why the line could not be read.
  const std::string& problem() const { return problem_; }

  /// The words of the line, valid until the next one is read.
  const std::vector<std::string_view>& words() const { return words_; }

 private:
  bool fail(const char* problem);
  bool readLine(std::string_view line);
  bool readQuoted(std::string_view& line);
  bool readEscaped(std::string_view& line);

  std::string_view text_;
  std::size_t at_ = 0;
  std::size_t line_ = 0;
  std::vector<std::string_view> words_;
  std::deque<std::string> unescaped_;  ///< what words with a backslash stand for
  std::string problem_;
};

}  // namespace orvlib
