#include "standalone/graph/model/FreeNumbers.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

namespace {

/// Numbers that are taken, and a count of how many were looked at.
class Numbers {
 public:
  std::uint64_t smallest() {
    return numbers.smallest([this](std::uint64_t number) {
      ++looks;
      return taken.contains(number);
    });
  }
  void take(std::uint64_t number) {
    taken.insert(number);
    numbers.take(number);
  }
  void release(std::uint64_t number) {
    taken.erase(number);
    numbers.release(number);
  }

  orvlib::FreeNumbers numbers;
  std::set<std::uint64_t> taken;
  unsigned looks = 0;
};

TEST(FreeNumbers, BeginWithOne) { EXPECT_EQ(Numbers().smallest(), 1u); }

TEST(FreeNumbers, SkipWhatWasTakenBefore) {
  Numbers numbers;
  numbers.taken = {1, 2, 4};
  EXPECT_EQ(numbers.smallest(), 3u);
}

TEST(FreeNumbers, AreNeverZero) {
  Numbers numbers;
  numbers.take(1);
  numbers.take(0);
  numbers.release(0);
  EXPECT_EQ(numbers.smallest(), 2u);
}

TEST(FreeNumbers, AreLookedAtOnceEach) {
  Numbers numbers;
  for (unsigned i = 1; i <= 1000; ++i) numbers.taken.insert(i);
  for (int i = 0; i < 1000; ++i) numbers.take(numbers.smallest());
  EXPECT_EQ(*numbers.taken.rbegin(), 2000u);
  EXPECT_LE(numbers.looks, 2001u);
}

TEST(FreeNumbers, KnowNothingMoreWhenAllAreReleased) {
  Numbers numbers;
  for (int i = 0; i < 100; ++i) numbers.take(numbers.smallest());
  for (const unsigned first : {2u, 1u}) {
    for (unsigned i = first; i <= 100; i += 2) numbers.release(i);
  }
  EXPECT_TRUE(numbers.numbers.isBlank());
}

TEST(FreeNumbers, AreFewLooksUnderAnyMixOfTakingAndReleasing) {
  Numbers numbers;
  std::mt19937 random(3);
  unsigned taken = 0;
  for (int i = 0; i < 20000; ++i) {
    const std::uint64_t any = 1 + random() % 3000;
    if (random() % 2) {
      const std::uint64_t number = random() % 4 ? numbers.smallest() : any;
      if (numbers.taken.contains(number)) continue;
      if (number != any) {
        for (std::uint64_t n = 1; n < number; ++n) ASSERT_TRUE(numbers.taken.contains(n));
      }
      numbers.take(number);
      ++taken;
    } else if (numbers.taken.contains(any)) {
      numbers.release(any);
    }
  }
  EXPECT_LE(numbers.looks, 20000 + taken);
}

}  // namespace
