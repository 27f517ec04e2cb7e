#include "standalone/graph/model/NameTable.h"

#include <gtest/gtest.h>

#include <deque>
#include <map>
#include <random>
#include <vector>

namespace {

struct Element {
  std::string name;
};

/// A table of elements whose names stay put.
class Level {
 public:
  Element* add(std::string_view name) {
    Element& element = elements_.emplace_back(Element{std::string(name)});
    return table.add(element.name, &element) ? &element : nullptr;
  }
  std::string addUnique(std::string_view wanted) {
    const std::string name = table.uniqueName(wanted);
    return add(name) ? name : "taken: " + name;
  }
  void fill(unsigned count) {
    for (unsigned i = 0; i < count; ++i) add("other" + std::to_string(i) + "_");
  }

  orvlib::NameTable<Element> table;

 private:
  std::deque<Element> elements_;
};

// Siblings that have nothing to do with the names asked for: they make the table hash or not.
class NameTableAmong : public testing::TestWithParam<unsigned> {
 protected:
  NameTableAmong() { level.fill(GetParam()); }
  Level level;
};
INSTANTIATE_TEST_SUITE_P(Siblings, NameTableAmong, testing::Values(0u, 7u, 8u, 9u, 1000u));

TEST_P(NameTableAmong, FindsAnElementByItsName) {
  Element* element = level.add("add");
  EXPECT_EQ(level.table.find("add"), element);
  EXPECT_TRUE(level.table.contains("add"));
}

TEST_P(NameTableAmong, FindsNothingByAnUnknownName) {
  EXPECT_EQ(level.table.find("add"), nullptr);
  EXPECT_FALSE(level.table.contains(""));
}

TEST_P(NameTableAmong, RefusesANameThatIsTaken) {
  Element* element = level.add("add");
  EXPECT_EQ(level.add("add"), nullptr);
  EXPECT_EQ(level.table.find("add"), element);
  EXPECT_EQ(level.table.size(), GetParam() + 1);
}

TEST_P(NameTableAmong, GivesBackWhatItRemoves) {
  Element* element = level.add("add");
  EXPECT_EQ(level.table.remove("add"), element);
  EXPECT_EQ(level.table.remove("add"), nullptr);
  EXPECT_EQ(level.table.find("add"), nullptr);
  EXPECT_EQ(level.table.size(), GetParam());
}

TEST_P(NameTableAmong, AFreeNameIsUsedAsItIs) {
  EXPECT_EQ(level.addUnique("add"), "add");
  EXPECT_EQ(level.addUnique("add7"), "add7");
}

TEST_P(NameTableAmong, AClashGetsTheSmallestFreeNumber) {
  EXPECT_EQ(level.addUnique("add"), "add");
  EXPECT_EQ(level.addUnique("add"), "add1");
  EXPECT_EQ(level.addUnique("add"), "add2");
}

TEST_P(NameTableAmong, ANumberThatIsTakenIsLeftOut) {
  for (const char* name : {"add", "add1", "add3"}) level.add(name);
  EXPECT_EQ(level.addUnique("add"), "add2");
  EXPECT_EQ(level.addUnique("add"), "add4");
}

TEST_P(NameTableAmong, ANumberedNameThatIsTakenKeepsItsBase) {
  for (const char* name : {"add1", "add2"}) level.add(name);
  EXPECT_EQ(level.addUnique("add1"), "add3");
  EXPECT_EQ(level.addUnique("add2"), "add4");
}

TEST_P(NameTableAmong, ANumberIsFreeAgainAfterRemoval) {
  for (int i = 0; i < 5; ++i) level.addUnique("add");
  level.table.remove("add3");
  level.table.remove("add2");
  EXPECT_EQ(level.addUnique("add"), "add2");
  EXPECT_EQ(level.addUnique("add"), "add3");
  EXPECT_EQ(level.addUnique("add"), "add5");
}

TEST_P(NameTableAmong, ANumberIsNotGivenWhileItIsUsedUnderItsFullName) {
  for (int i = 0; i < 5; ++i) level.addUnique("add");
  level.table.remove("add2");
  level.table.remove("add3");
  level.add("add2");
  EXPECT_EQ(level.addUnique("add"), "add3");
}

TEST_P(NameTableAmong, ASoughtNameIsNotReserved) {
  level.add("add");
  EXPECT_EQ(level.table.uniqueName("add"), "add1");
  EXPECT_EQ(level.table.uniqueName("add"), "add1");
}

TEST_P(NameTableAmong, ANameIsCleanedFirst) {
  EXPECT_EQ(level.addUnique("a b"), "a_b");
  EXPECT_EQ(level.addUnique("a-b"), "a_b1");
  EXPECT_EQ(level.addUnique(""), "_");
  EXPECT_EQ(level.addUnique(""), "_1");
}

TEST_P(NameTableAmong, LeadingZerosBelongToTheBase) {
  level.add("add007");
  EXPECT_EQ(level.addUnique("add007"), "add001");
  EXPECT_EQ(level.addUnique("add007"), "add002");
}

TEST_P(NameTableAmong, MovesWithAllItHolds) {
  Element* element = level.add("add");
  orvlib::NameTable<Element> other = std::move(level.table);
  level.table = std::move(other);
  other = std::move(level.table);
  EXPECT_EQ(other.find("add"), element);
  EXPECT_EQ(other.size(), GetParam() + 1);
}

class NameTableAgainstAMap : public testing::TestWithParam<unsigned> {
 protected:
  unsigned below(std::size_t limit) {
    return static_cast<unsigned>(std::uniform_int_distribution<std::size_t>(0, limit - 1)(random_));
  }

  /// As it is said to be, with a walk over the numbers.
  std::string expectedName(const std::string& wanted) const {
    if (!plain_.contains(wanted)) return wanted;
    const std::string base = orvlib::numberedName(wanted).base;
    for (unsigned n = 1;; ++n) {
      if (!plain_.contains(base + std::to_string(n))) return base + std::to_string(n);
    }
  }

  void add() {
    static const std::vector<std::string> kBases{"a", "b", "a0", "node", "a1234567890123456789"};
    std::string wanted = kBases[below(kBases.size())];
    if (below(3) == 0) wanted += std::to_string(below(GetParam() * 2));
    const std::string name = table_.uniqueName(wanted);
    ASSERT_EQ(name, expectedName(wanted));
    if (below(8) == 0) return;  // Sought and not used.
    Element& element = elements_.emplace_back(Element{name});
    ASSERT_TRUE(table_.add(element.name, &element));
    plain_[name] = &element;
  }

  void remove() {
    if (plain_.empty()) return;
    auto found = plain_.begin();
    std::advance(found, below(plain_.size()));
    ASSERT_EQ(table_.find(found->first), found->second);
    ASSERT_EQ(table_.remove(std::string(found->first)), found->second);
    plain_.erase(found);
  }

  std::mt19937 random_{GetParam()};
  std::deque<Element> elements_;
  std::map<std::string, Element*> plain_;
  orvlib::NameTable<Element> table_;
};
INSTANTIATE_TEST_SUITE_P(Sizes, NameTableAgainstAMap, testing::Values(6u, 12u, 100u, 600u));

TEST_P(NameTableAgainstAMap, GivesTheSmallestFreeNames) {
  bool growing = true;
  for (int i = 0; i < 15000 && !HasFatalFailure(); ++i) {
    if (plain_.size() >= GetParam()) growing = false;
    if (plain_.size() <= GetParam() / 5) growing = true;
    (below(100) < (growing ? 70u : 30u)) ? add() : remove();
    ASSERT_EQ(table_.size(), plain_.size());
  }
}

}  // namespace
