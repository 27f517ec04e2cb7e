#include "standalone/widgets/compound/parts/FuzzyMatch.h"

#include <gtest/gtest.h>

using orvuilib::fuzzyScore;

namespace {

TEST(FuzzyMatch, FitsWhenTheCharactersStandThereInTheirOrder) {
  EXPECT_GT(fuzzyScore("mlt", "Multiply"), 0);
  EXPECT_GT(fuzzyScore("MULT", "multiply"), 0);
  EXPECT_EQ(fuzzyScore("tlm", "Multiply"), 0);
  EXPECT_EQ(fuzzyScore("multiplyy", "Multiply"), 0);
  EXPECT_EQ(fuzzyScore("a", ""), 0);
}

TEST(FuzzyMatch, AnEmptyPatternFitsEverythingAlike) {
  EXPECT_GT(fuzzyScore("", ""), 0);
  EXPECT_EQ(fuzzyScore("", "a"), fuzzyScore("", "something longer"));
}

TEST(FuzzyMatch, PrefersTheBeginningRunsWordsAndShortTexts) {
  EXPECT_GT(fuzzyScore("add", "Add"), fuzzyScore("add", "Read Data"));
  EXPECT_GT(fuzzyScore("add", "Add"), fuzzyScore("add", "Address list"));
  EXPECT_GT(fuzzyScore("sn", "Sticky Note"), fuzzyScore("sn", "Cosine"));
}

TEST(FuzzyMatch, TakesTheBestPlaceOfATextThatFitsTwice) {
  EXPECT_GT(fuzzyScore("cos", "c o s cos"), fuzzyScore("cos", "c o s c.o.s"));
}

}  // namespace
