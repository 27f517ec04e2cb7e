#pragma once

#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "standalone/host/language/Tokenizer.h"

/// A token of a line: a text in quotes, or, written as a literal here, a bare word or flag.
struct Word {
  Word(std::string given) : text(std::move(given)), kind(vesk::TokenKind::Quoted) {}
  Word(const char* bare)
      : text(bare), kind(*bare == '-' ? vesk::TokenKind::Flag : vesk::TokenKind::Word) {}
  bool operator==(const Word&) const = default;

  std::string text;
  vesk::TokenKind kind;
};
using Words = std::vector<Word>;

inline void PrintTo(const Word& word, std::ostream* out) {
  *out << (word.kind == vesk::TokenKind::Quoted ? vesk::quoted(word.text) : word.text);
}

inline Words wordsOf(const vesk::Statement& statement) {
  Words words;
  for (const vesk::Token& token : statement.tokens) {
    Word& word = words.emplace_back(token.text);
    word.kind = token.kind;
  }
  return words;
}
