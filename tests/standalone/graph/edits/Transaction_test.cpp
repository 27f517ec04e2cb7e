#include "standalone/graph/edits/Transaction.h"

#include "standalone/graph/edits/FaultPoints.h"
#include "tests/standalone/graph/GraphFixture.h"

namespace orvlib {
namespace {

class TransactionTest : public GraphFixture {
 protected:
  TransactionTest() : node_(add(top(), "core::math::add", "sum")) {}

  bool rename(Transaction& edits, std::string name) {
    return edits.run(RenameNode{NodeRef(node_), std::move(name)});
  }

  /// Renames the node to "one" and then to "two".
  Transaction twoRenames() {
    Transaction edits;
    EXPECT_TRUE(rename(edits, "one"));
    EXPECT_TRUE(rename(edits, "two"));
    return edits;
  }

  NodeObject* node_;
};

TEST_F(TransactionTest, AppliesAsItGoes) {
  Transaction edits;
  EXPECT_TRUE(edits.empty());
  EXPECT_TRUE(rename(edits, "one"));
  EXPECT_EQ(node_->name(), "one");
  EXPECT_FALSE(edits.empty());
}

TEST_F(TransactionTest, GoesBackAndForth) {
  Transaction edits = twoRenames();
  for (int i = 0; i < 3; ++i) {
    EXPECT_TRUE(edits.revert());
    EXPECT_EQ(node_->name(), "sum");
    EXPECT_TRUE(edits.reapply());
    EXPECT_EQ(node_->name(), "two");
  }
}

TEST_F(TransactionTest, DoesNotKeepAnEditThatDoesNotFit) {
  add(top(), "core::math::add", "taken");
  Transaction edits;
  EXPECT_FALSE(rename(edits, "taken"));
  EXPECT_TRUE(edits.empty());
  EXPECT_EQ(node_->name(), "sum");
}

TEST_F(TransactionTest, TakesBackWhatWasRun) {
  Transaction edits = twoRenames();
  edits.rollback();
  EXPECT_TRUE(edits.empty());
  EXPECT_EQ(node_->name(), "sum");
}

TEST_F(TransactionTest, ChangesNothingWhenItDoesNotFitAnyMore) {
  Transaction edits = twoRenames();
  ASSERT_TRUE(edits.revert());
  node_->setName("other");
  NodeObject* blocker = add(top(), "core::math::add", "two");
  EXPECT_FALSE(edits.reapply());
  EXPECT_EQ(node_->name(), "other");
  EXPECT_EQ(blocker->name(), "two");
}

TEST_F(TransactionTest, ChangesNothingWhenAnyEditIsRefused) {
  Transaction edits = twoRenames();
  for (unsigned nth = 1; nth <= 2; ++nth) {
    const ArmedFault armed("edit renameNode", nth);
    EXPECT_FALSE(edits.revert());
    EXPECT_EQ(node_->name(), "two");
  }
  ASSERT_TRUE(edits.revert());
  for (unsigned nth = 1; nth <= 2; ++nth) {
    const ArmedFault armed("edit renameNode", nth);
    EXPECT_FALSE(edits.reapply());
    EXPECT_EQ(node_->name(), "sum");
  }
}

}  // namespace
}  // namespace orvlib
