#include "standalone/widgets/compound/parts/FuzzyMatch.h"

#include <algorithm>

namespace orvuilib {
namespace {

constexpr int kFits = 1000;
constexpr int kRun = 15;
constexpr int kWordStart = 12;
constexpr int kTextStart = 25;

bool beginsWord(const QString& text, qsizetype at) {
  if (at == 0 || !text[at - 1].isLetterOrNumber()) return true;
  return text[at].isUpper() && text[at - 1].isLower();
}

/// From `from` on, always the next character that fits; 0 when one does not.
int scoreFrom(const QString& pattern, const QString& text, qsizetype from) {
  int score = kFits;
  qsizetype last = -2;
  qsizetype at = from;
  for (const QChar wanted : pattern) {
    while (at < text.size() && text[at].toCaseFolded() != wanted.toCaseFolded()) ++at;
    if (at == text.size()) return 0;
    if (at == last + 1) score += kRun;
    if (at == 0) score += kTextStart;
    if (beginsWord(text, at)) score += kWordStart;
    last = at++;
  }
  return std::max(score - static_cast<int>(text.size()), 1);
}

}  // namespace

int fuzzyScore(const QString& pattern, const QString& text) {
  if (pattern.isEmpty()) return kFits;
  int best = 0;
  const QChar first = pattern.front().toCaseFolded();
  for (qsizetype at = 0; at < text.size(); ++at) {
    if (text[at].toCaseFolded() == first) best = std::max(best, scoreFrom(pattern, text, at));
  }
  return best;
}

}  // namespace orvuilib
