#include "standalone/vesk/TextDiff.h"

#include <gtest/gtest.h>

namespace vesk {
namespace {

TEST(TextDiff, IsEmptyForTheSameText) {
  EXPECT_EQ(textDiff("", ""), "");
  EXPECT_EQ(textDiff("a\nb\n", "a\nb\n"), "");
}

TEST(TextDiff, MarksALineThatChanged) { EXPECT_EQ(textDiff("a\n", "b\n"), "- a\n+ b\n"); }

TEST(TextDiff, MarksLinesThatCameOrWent) {
  EXPECT_EQ(textDiff("a\nc\n", "a\nb\nc\n"), "  a\n+ b\n  c\n");
  EXPECT_EQ(textDiff("a\nb\nc\n", "a\nc\n"), "  a\n- b\n  c\n");
  EXPECT_EQ(textDiff("", "a\nb\n"), "+ a\n+ b\n");
  EXPECT_EQ(textDiff("a\nb\n", ""), "- a\n- b\n");
}

TEST(TextDiff, MarksLinesAtBothEnds) {
  EXPECT_EQ(textDiff("a\nb\n", "b\nc\n"), "- a\n  b\n+ c\n");
  EXPECT_EQ(textDiff("b\n", "a\nb\n"), "+ a\n  b\n");
  EXPECT_EQ(textDiff("a\n", "a\nb\n"), "  a\n+ b\n");
}

TEST(TextDiff, KeepsTheLongestRunOfCommonLines) {
  EXPECT_EQ(textDiff("a\nb\nc\nd\n", "b\nd\nx\n"), "- a\n  b\n- c\n  d\n+ x\n");
}

TEST(TextDiff, MarksARepeatedLineOnce) {
  EXPECT_EQ(textDiff("a\na\n", "a\na\na\n"), "  a\n  a\n+ a\n");
  EXPECT_EQ(textDiff("a\na\na\n", "a\n"), "  a\n- a\n- a\n");
}

TEST(TextDiff, ShowsTwoLinesAroundAChange) {
  EXPECT_EQ(textDiff("1\n2\n3\n4\nx\n5\n6\n7\n8\n", "1\n2\n3\n4\ny\n5\n6\n7\n8\n"),
            "...\n  3\n  4\n- x\n+ y\n  5\n  6\n...\n");
}

TEST(TextDiff, ShowsEachOfSeveralChanges) {
  EXPECT_EQ(textDiff("x\n1\n2\n3\n4\n5\ny\n", "X\n1\n2\n3\n4\n5\nY\n"),
            "- x\n+ X\n  1\n  2\n...\n  4\n  5\n- y\n+ Y\n");
}

TEST(TextDiff, TellsWhenOnlyTheLineEndsDiffer) {
  EXPECT_EQ(textDiff("a\nb", "a\nb\n"), "(the line ends differ)\n");
}

TEST(TextDiff, MarksBlankLines) { EXPECT_EQ(textDiff("a\n\nb\n", "a\nb\n"), "  a\n- \n  b\n"); }

TEST(TextDiff, ComparesLongTextsThatDifferInOnePlace) {
  std::string before;
  for (int i = 0; i < 200000; ++i) before += std::to_string(i) + "\n";
  std::string after = before;
  after.replace(after.find("\n100000\n"), 8, "\nchanged\n");
  EXPECT_EQ(textDiff(before, after),
            "...\n  99998\n  99999\n- 100000\n+ changed\n  100001\n  100002\n...\n");
}

}  // namespace
}  // namespace vesk
