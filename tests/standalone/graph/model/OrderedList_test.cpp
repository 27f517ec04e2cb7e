#include "standalone/graph/model/OrderedList.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>
#include <utility>
#include <vector>

namespace {

struct Element {
  unsigned number = 0;
};
using List = orvlib::OrderedList<Element>;

std::vector<Element> elements(unsigned count) {
  std::vector<Element> made(count);
  for (unsigned i = 0; i < count; ++i) made[i].number = i;
  return made;
}

List listOf(std::vector<Element>& all) {
  List list;
  for (Element& element : all) list.append(&element);
  return list;
}

std::vector<unsigned> numbers(const List& list) {
  std::vector<unsigned> found;
  for (const Element* element : list) found.push_back(element->number);
  return found;
}

std::vector<unsigned> zeroTo(unsigned count) {
  std::vector<unsigned> all(count);
  std::iota(all.begin(), all.end(), 0u);
  return all;
}

// Inside the object, in one array, in a tree of one leaf, of one branch, and of branches of
// branches.
class OrderedListOfLength : public testing::TestWithParam<unsigned> {
 protected:
  std::vector<Element> all = elements(GetParam());
  List list = listOf(all);
};
INSTANTIATE_TEST_SUITE_P(AnyLength, OrderedListOfLength,
                         testing::Values(1u, 2u, 3u, 32u, 33u, 128u, 129u, 9000u, 20000u, 600000u));

TEST_P(OrderedListOfLength, KeepsTheOrderOfAppending) {
  EXPECT_EQ(numbers(list), zeroTo(GetParam()));
}

TEST_P(OrderedListOfLength, GivesEachElementByItsIndex) {
  for (unsigned i = 0; i < list.size(); ++i) ASSERT_EQ(list.at(i), &all[i]);
  for (unsigned i = list.size(); i-- > 0;) ASSERT_EQ(list.at(i), &all[i]);
}

TEST_P(OrderedListOfLength, GivesTheIndexOfEachElement) {
  for (unsigned i = 0; i < list.size(); ++i) ASSERT_EQ(list.indexOf(&all[i]), i);
  for (unsigned i = list.size(); i-- > 0;) ASSERT_EQ(list.indexOf(&all[i]), i);
}

TEST_P(OrderedListOfLength, KnowsItsFirstAndItsLast) {
  EXPECT_EQ(list.front(), &all.front());
  EXPECT_EQ(list.back(), &all.back());
}

TEST_P(OrderedListOfLength, DoesNotFindAStranger) {
  const Element stranger;
  EXPECT_EQ(list.indexOf(&stranger), List::kNotFound);
  EXPECT_FALSE(list.contains(&stranger));
  EXPECT_TRUE(list.contains(&all.front()));
}

TEST_P(OrderedListOfLength, DoesNotChangeWhenAStrangerIsRemoved) {
  const Element stranger;
  EXPECT_EQ(list.remove(&stranger), List::kNotFound);
  EXPECT_EQ(numbers(list), zeroTo(GetParam()));
}

TEST_P(OrderedListOfLength, RunsEmptyFromItsFront) {
  for (Element& element : all) ASSERT_EQ(list.remove(&element), 0u);
  EXPECT_TRUE(list.empty());
  EXPECT_EQ(list.begin(), list.end());
}

TEST_P(OrderedListOfLength, RunsEmptyFromItsBack) {
  for (unsigned i = GetParam(); i-- > 0;) ASSERT_EQ(list.remove(&all[i]), i);
  EXPECT_TRUE(list.empty());
}

TEST_P(OrderedListOfLength, GrowsAtItsFront) {
  List reversed;
  for (Element& element : all) reversed.insert(0, &element);
  std::vector<unsigned> expected = zeroTo(GetParam());
  std::reverse(expected.begin(), expected.end());
  EXPECT_EQ(numbers(reversed), expected);
}

TEST_P(OrderedListOfLength, CanBeFilledAgainAfterClear) {
  list.clear();
  EXPECT_EQ(list.size(), 0u);
  list.append(&all.back());
  EXPECT_EQ(numbers(list), std::vector<unsigned>{GetParam() - 1});
}

TEST_P(OrderedListOfLength, MovesWithAllItHolds) {
  const List other = std::move(list);
  EXPECT_EQ(numbers(other), zeroTo(GetParam()));
}

TEST(OrderedList, IsSmallWhileItIsEmpty) { EXPECT_EQ(sizeof(List), 24u); }

TEST(OrderedList, InsertsAtTheEndWhereTheIndexIsTooLarge) {
  auto all = elements(3);
  List list;
  list.insert(7, &all[0]);
  list.insert(7, &all[1]);
  list.insert(1, &all[2]);
  EXPECT_EQ(numbers(list), (std::vector<unsigned>{0, 2, 1}));
}

TEST(OrderedList, FollowsAnInsertionBeforeThePlaceLastRead) {
  auto all = elements(1001);
  List list;
  for (unsigned i = 1; i < 1001; ++i) list.append(&all[i]);
  ASSERT_EQ(list.at(700)->number, 701u);
  list.insert(3, &all[0]);
  EXPECT_EQ(list.at(701)->number, 701u);
  EXPECT_EQ(list.indexOf(&all[701]), 701u);
}

/// The list and a plain vector, given the same operations.
class Pair {
 public:
  explicit Pair(unsigned seed) : random_(seed), all_(elements(kElements)) {
    for (Element& element : all_) out_.push_back(&element);
  }

  unsigned size() const { return static_cast<unsigned>(plain_.size()); }

  void insert() {
    if (out_.empty()) return;
    std::swap(out_[below(out_.size())], out_.back());
    const unsigned index = below(plain_.size() + 1);
    list_.insert(index, out_.back());
    plain_.insert(plain_.begin() + index, out_.back());
    out_.pop_back();
  }

  void remove() {
    if (plain_.empty()) return;
    const unsigned index = below(plain_.size());
    Element* element = plain_[index];
    ASSERT_EQ(list_.remove(element), index);
    ASSERT_FALSE(list_.contains(element));
    plain_.erase(plain_.begin() + index);
    out_.push_back(element);
  }

  void compareOne() {
    ASSERT_EQ(list_.size(), plain_.size());
    if (plain_.empty()) return;
    const unsigned index = below(plain_.size());
    ASSERT_EQ(list_.at(index), plain_[index]);
    const unsigned other = below(plain_.size());
    ASSERT_EQ(list_.indexOf(plain_[other]), other);
  }

  void compareAll() const {
    ASSERT_TRUE(std::equal(list_.begin(), list_.end(), plain_.begin(), plain_.end()));
  }

  bool chance(unsigned percent) { return below(100) < percent; }

 private:
  static constexpr unsigned kElements = 30000;

  unsigned below(std::size_t limit) {
    return static_cast<unsigned>(std::uniform_int_distribution<std::size_t>(0, limit - 1)(random_));
  }

  std::mt19937 random_;
  std::vector<Element> all_;
  std::vector<Element*> out_;
  std::vector<Element*> plain_;
  List list_;
};

class OrderedListAgainstAVector : public testing::TestWithParam<unsigned> {};
INSTANTIATE_TEST_SUITE_P(Lengths, OrderedListAgainstAVector,
                         testing::Values(5u, 40u, 300u, 5000u, 25000u));

TEST_P(OrderedListAgainstAVector, GrowsAndShrinksAlike) {
  Pair pair(GetParam());
  unsigned steps = 0;
  while (steps < 20000) {
    for (; pair.size() < GetParam(); ++steps) {
      pair.chance(80) ? pair.insert() : pair.remove();
      pair.compareOne();
      if (HasFatalFailure()) return;
    }
    pair.compareAll();
    for (; pair.size() > GetParam() / 50; ++steps) {
      pair.chance(20) ? pair.insert() : pair.remove();
      pair.compareOne();
      if (HasFatalFailure()) return;
    }
    pair.compareAll();
  }
}

}  // namespace
