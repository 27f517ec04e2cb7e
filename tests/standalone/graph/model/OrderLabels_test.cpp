#include "standalone/graph/model/OrderLabels.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <random>
#include <vector>

namespace {

using orvlib::OrderedVertex;
using orvlib::OrderLabels;

struct Vertex : OrderedVertex {};

std::vector<const OrderedVertex*> inOrder(const OrderLabels& labels) {
  std::vector<const OrderedVertex*> found;
  for (const OrderedVertex* v = labels.first(); v; v = OrderLabels::next(*v)) found.push_back(v);
  return found;
}

bool labelsRise(const OrderLabels& labels) {
  const auto all = inOrder(labels);
  return std::adjacent_find(all.begin(), all.end(), [](const auto* a, const auto* b) {
           return !a->standsBefore(*b);
         }) == all.end();
}

TEST(OrderLabels, AppendedVerticesStandOneBehindTheOther) {
  OrderLabels labels;
  Vertex a, b, c;
  for (Vertex* v : {&a, &b, &c}) labels.append(*v);
  EXPECT_TRUE(a.standsBefore(b));
  EXPECT_TRUE(b.standsBefore(c));
  EXPECT_FALSE(c.standsBefore(a));
  EXPECT_EQ(labels.size(), 3u);
}

TEST(OrderLabels, AVertexGoesRightBehindItsPlace) {
  OrderLabels labels;
  Vertex a, b, c;
  labels.append(a);
  labels.append(b);
  labels.insertAfter(&a, c);
  EXPECT_EQ(inOrder(labels), (std::vector<const OrderedVertex*>{&a, &c, &b}));
}

TEST(OrderLabels, AVertexWithoutAPlaceGoesBeforeAll) {
  OrderLabels labels;
  Vertex a, b;
  labels.append(a);
  labels.insertAfter(nullptr, b);
  EXPECT_EQ(inOrder(labels), (std::vector<const OrderedVertex*>{&b, &a}));
}

TEST(OrderLabels, ARemovedVertexLeavesItsNeighboursSideBySide) {
  OrderLabels labels;
  Vertex a, b, c;
  for (Vertex* v : {&a, &b, &c}) labels.append(*v);
  labels.remove(b);
  EXPECT_EQ(inOrder(labels), (std::vector<const OrderedVertex*>{&a, &c}));
  EXPECT_EQ(OrderLabels::previous(c), &a);
}

TEST(OrderLabels, TheFirstAndTheLastCanBeRemoved) {
  OrderLabels labels;
  Vertex a, b, c;
  for (Vertex* v : {&a, &b, &c}) labels.append(*v);
  labels.remove(a);
  labels.remove(c);
  labels.append(a);
  EXPECT_EQ(inOrder(labels), (std::vector<const OrderedVertex*>{&b, &a}));
}

// Halving the room at one place uses up 62 bits of label soon.
TEST(OrderLabels, ThereIsAlwaysRoomBehindTheSameVertex) {
  OrderLabels labels;
  std::deque<Vertex> all(20000);
  labels.append(all[0]);
  labels.append(all[1]);
  for (std::size_t i = 2; i < all.size(); ++i) labels.insertAfter(&all[0], all[i]);
  EXPECT_TRUE(labelsRise(labels));
  EXPECT_EQ(inOrder(labels).size(), all.size());
}

TEST(OrderLabels, ThereIsAlwaysRoomBeforeTheSameVertex) {
  OrderLabels labels;
  std::deque<Vertex> all(20000);
  labels.append(all[0]);
  labels.append(all[1]);
  for (std::size_t i = 2; i < all.size(); ++i) {
    labels.insertAfter(OrderLabels::previous(all[1]), all[i]);
  }
  EXPECT_TRUE(labelsRise(labels));
}

TEST(OrderLabels, ThereIsAlwaysRoomBeforeAll) {
  OrderLabels labels;
  std::deque<Vertex> all(20000);
  for (Vertex& v : all) labels.insertAfter(nullptr, v);
  EXPECT_TRUE(labelsRise(labels));
  EXPECT_EQ(labels.first(), &all.back());
}

class OrderLabelsRun : public testing::TestWithParam<int> {};
// Where the run goes: before all, between two, at the end.
INSTANTIATE_TEST_SUITE_P(Places, OrderLabelsRun, testing::Values(-1, 0, 1));

TEST_P(OrderLabelsRun, StandsInItsOwnOrderAtItsPlace) {
  OrderLabels labels;
  std::deque<Vertex> all(2);
  labels.append(all[0]);
  labels.append(all[1]);
  std::vector<const OrderedVertex*> expected = inOrder(labels);
  OrderedVertex* place = GetParam() < 0 ? nullptr : &all[static_cast<std::size_t>(GetParam())];
  for (int i = 0; i < 200; ++i) {
    std::vector<OrderedVertex*> run;
    for (int k = 0; k < 70; ++k) run.push_back(&all.emplace_back());
    labels.insertAfter(place, run);
    expected.insert(expected.begin() + GetParam() + 1, run.begin(), run.end());
  }
  EXPECT_EQ(inOrder(labels), expected);
  EXPECT_TRUE(labelsRise(labels));
}

TEST(OrderLabels, KeepsTheOrderOfAListUnderRandomEdits) {
  constexpr std::size_t kVertices = 3000;
  std::mt19937 random(7);
  const auto below = [&](std::size_t n) {
    return std::uniform_int_distribution<std::size_t>(0, n - 1)(random);
  };
  OrderLabels labels;
  std::deque<Vertex> all(kVertices);
  std::vector<OrderedVertex*> out, plain;
  for (Vertex& v : all) out.push_back(&v);
  for (int i = 0; i < 30000; ++i) {
    if (!out.empty() && below(100) < 60) {
      // Most go to few places, where the labels are dense.
      const std::size_t at = below(4) ? plain.size() / 3 : below(plain.size() + 1);
      labels.insertAfter(at ? plain[at - 1] : nullptr, *out.back());
      plain.insert(plain.begin() + static_cast<std::ptrdiff_t>(at), out.back());
      out.pop_back();
    } else if (!plain.empty()) {
      const std::size_t at = below(plain.size());
      labels.remove(*plain[at]);
      out.push_back(plain[at]);
      plain.erase(plain.begin() + static_cast<std::ptrdiff_t>(at));
    }
    ASSERT_TRUE(i % 100 != 0 || labelsRise(labels));
  }
  const auto found = inOrder(labels);
  ASSERT_TRUE(std::equal(found.begin(), found.end(), plain.begin(), plain.end()));
}

}  // namespace
