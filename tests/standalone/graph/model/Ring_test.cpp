#include "standalone/graph/model/Ring.h"

#include <gtest/gtest.h>

#include <deque>
#include <memory>
#include <random>

namespace orvlib {
namespace {

template <class T>
std::vector<T> itemsOf(const Ring<T>& ring) {
  std::vector<T> items;
  for (std::size_t i = 0; i < ring.size(); ++i) items.push_back(ring[i]);
  return items;
}

using Numbers = std::vector<int>;

void pushUpTo(Ring<int>& ring, int last, std::size_t limit) {
  for (int i = 1; i <= last; ++i) ring.push(i, limit);
}

TEST(Ring, IsEmptyAtFirst) {
  const Ring<int> ring;
  EXPECT_TRUE(ring.empty());
  EXPECT_EQ(ring.size(), 0u);
}

TEST(Ring, KeepsTheLatestUpToTheLimit) {
  Ring<int> ring;
  pushUpTo(ring, 3, 3);
  EXPECT_EQ(itemsOf(ring), (Numbers{1, 2, 3}));
  ring.push(4, 3);
  EXPECT_EQ(itemsOf(ring), (Numbers{2, 3, 4}));
  EXPECT_EQ(ring.back(), 4);
}

TEST(Ring, OfOneHoldsTheLast) {
  Ring<int> ring;
  pushUpTo(ring, 5, 1);
  EXPECT_EQ(itemsOf(ring), Numbers{5});
}

TEST(Ring, ASmallerLimitLetsTheOldestGo) {
  Ring<int> ring;
  pushUpTo(ring, 7, 5);
  ring.push(8, 2);
  EXPECT_EQ(itemsOf(ring), (Numbers{7, 8}));
  EXPECT_EQ(ring.capacity(), 2u);
}

TEST(Ring, ALargerLimitKeepsAllThatIsThere) {
  Ring<int> ring;
  pushUpTo(ring, 7, 5);
  ring.push(8, 6);
  EXPECT_EQ(itemsOf(ring), (Numbers{3, 4, 5, 6, 7, 8}));
}

TEST(Ring, HasRoomForNoMoreThanItsLimitAndStaysAtOnePlaceWhenFull) {
  Ring<int> ring;
  pushUpTo(ring, 1000, 1000);
  const int* const first = &ring[0];
  EXPECT_EQ(ring.capacity(), 1000u);
  pushUpTo(ring, 10000, 1000);
  EXPECT_EQ(ring.capacity(), 1000u);
  EXPECT_EQ(&ring[0], first);
}

TEST(Ring, HasNoRoomForWhatDidNotCome) {
  Ring<int> ring;
  pushUpTo(ring, 10, 1000000);
  EXPECT_LE(ring.capacity(), 20u);
}

TEST(Ring, LetsGoOfWhatItDropsAtOnce) {
  const auto item = std::make_shared<int>();
  const auto other = std::make_shared<int>();
  Ring<std::shared_ptr<int>> ring;
  for (int i = 0; i < 20; ++i) ring.push(item, 10);
  EXPECT_EQ(item.use_count(), 1 + 10);
  for (int i = 0; i < 4; ++i) ring.push(other, 10);
  EXPECT_EQ(item.use_count(), 1 + 6);
  ring.push(other, 3);
  EXPECT_EQ(item.use_count(), 1);
}

TEST(Ring, GivesItsMemoryBackWhenCleared) {
  Ring<int> ring;
  pushUpTo(ring, 10, 5);
  ring.clear();
  EXPECT_TRUE(ring.empty());
  EXPECT_EQ(ring.capacity(), 0u);
  pushUpTo(ring, 2, 5);
  EXPECT_EQ(itemsOf(ring), (Numbers{1, 2}));
}

TEST(Ring, IsLikeAQueueThatIsCutWhateverTheLimits) {
  std::mt19937 random(1);
  Ring<int> ring;
  std::deque<int> queue;
  std::size_t limit = 10;
  for (int i = 0; i < 20000; ++i) {
    if (random() % 20 == 0) limit = 1 + random() % 40;
    ring.push(i, limit);
    queue.push_back(i);
    while (queue.size() > limit) queue.pop_front();
    ASSERT_EQ(itemsOf(ring), Numbers(queue.begin(), queue.end())) << i;
  }
}

}  // namespace
}  // namespace orvlib
