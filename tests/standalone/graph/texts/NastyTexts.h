#pragma once

#include <array>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

/// Random texts of few characters, most of which mean something to one of the text forms. The same
/// seed gives the same texts.
class NastyTexts {
 public:
  explicit NastyTexts(std::uint32_t seed) : random_(seed) {}

  std::size_t upTo(std::size_t most) { return random_() % (most + 1); }

  std::string text() {
    std::string text;
    for (std::size_t pieces = upTo(5); pieces > 0; --pieces)
      text += kPieces[upTo(kPieces.size() - 1)];
    return text;
  }

  std::vector<std::string> list(std::size_t mostTexts = 4) {
    std::vector<std::string> texts(upTo(mostTexts));
    for (std::string& one : texts) one = text();
    return texts;
  }

 private:
  static constexpr std::array<const char*, 18> kPieces = {"{",   "}",    ",",  "\\", "=", "{}",
                                                          "{,}", "\\\\", "\"", "'",  " ", "\n",
                                                          "\t",  "a",    "b",  ";",  "ü", "日本"};

  std::mt19937 random_;
};
