#pragma once

#include <QString>
#include <random>

/// Texts of all kinds, the same ones for the same seed: empty, plain, full of what a line of the
/// host escapes, control characters, Latin-1, the rest of the basic plane, what is beyond it, what
/// looks like a line or a list, all of it mixed, and long ones. All are valid Unicode without
/// U+0000.
class RandomTexts {
 public:
  explicit RandomTexts(unsigned seed) : random_(seed) {}

  unsigned below(unsigned count) { return static_cast<unsigned>(random_() % count); }

  /// At most some twenty characters, or now and then some thousands.
  QString any();

  /// The same, but short.
  QString brief();

  std::mt19937& engine() { return random_; }

 private:
  enum Kind : unsigned {
    kPlain,
    kEscaped,
    kControl,
    kLatin,
    kBasicPlane,
    kBeyond,
    kLineLike,
    kKinds
  };

  QString characterOf(unsigned kind);
  QString ofLength(unsigned length);

  std::mt19937 random_;
};
