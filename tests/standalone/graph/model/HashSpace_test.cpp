#include "standalone/graph/model/HashSpace.h"

#include <gtest/gtest.h>

#include <unordered_set>

namespace {

std::unordered_set<int> numbersBelow(int end) {
  std::unordered_set<int> numbers;
  for (int i = 0; i < end; ++i) numbers.insert(i);
  return numbers;
}

TEST(HashSpace, IsGivenBackWhenFewElementsAreLeft) {
  auto numbers = numbersBelow(10000);
  for (int i = 100; i < 10000; ++i) {
    numbers.erase(i);
    orvlib::releaseUnusedSpace(numbers);
  }
  EXPECT_LT(numbers.bucket_count(), 1000u);
  EXPECT_EQ(numbers, numbersBelow(100));
}

TEST(HashSpace, IsKeptWhileMostElementsAreLeft) {
  auto numbers = numbersBelow(10000);
  const auto before = numbers.bucket_count();
  for (int i = 9000; i < 10000; ++i) {
    numbers.erase(i);
    orvlib::releaseUnusedSpace(numbers);
  }
  EXPECT_EQ(numbers.bucket_count(), before);
}

}  // namespace
