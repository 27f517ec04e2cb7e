#include "standalone/graph/model/UndoOrder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orvlib {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class UndoOrderTest : public testing::Test {
 protected:
  /// A command that notes when it is taken back.
  class Command final : public UndoOrder::Entry {
   public:
    Command(UndoOrderTest& test, std::string name) : test_(test), name_(std::move(name)) {}
    bool fits = true;

   private:
    bool revertNow() override {
      if (fits) test_.undone_.push_back(name_);
      return fits;
    }

    UndoOrderTest& test_;
    std::string name_;
  };

  bool undo(Command& command) { return order_.undo(command, true); }

  UndoOrder order_;
  std::vector<std::string> undone_;
  Command a_{*this, "a"};
  Command b_{*this, "b"};
  Command c_{*this, "c"};
};

TEST_F(UndoOrderTest, TheLatestIsTakenBackAtOnce) {
  order_.done(a_, 1);
  order_.done(b_, 1);
  EXPECT_TRUE(undo(b_));
  EXPECT_THAT(undone_, ElementsAre("b"));
}

TEST_F(UndoOrderTest, WhatWasDoneEarlierInTheSameBracketWaitsForTheLater) {
  for (Command* command : {&a_, &b_, &c_}) order_.done(*command, 1);
  EXPECT_TRUE(undo(a_));
  EXPECT_TRUE(undo(b_));
  EXPECT_TRUE(a_.isWaiting());
  EXPECT_THAT(undone_, IsEmpty());
  EXPECT_TRUE(undo(c_));
  EXPECT_THAT(undone_, ElementsAre("c", "b", "a"));
  EXPECT_FALSE(a_.isWaiting());
}

TEST_F(UndoOrderTest, NobodyWaitsForAnotherBracket) {
  order_.done(a_, 1);
  order_.done(b_, 2);
  EXPECT_TRUE(undo(a_));
  EXPECT_THAT(undone_, ElementsAre("a"));
}

TEST_F(UndoOrderTest, NobodyWaitsWithoutABracket) {
  order_.done(a_, 1);
  order_.done(b_, 1);
  EXPECT_TRUE(order_.undo(a_, false));
  EXPECT_THAT(undone_, ElementsAre("a"));
}

TEST_F(UndoOrderTest, WhatStillWaitsIsTakenBackWithTheBracket) {
  for (Command* command : {&a_, &b_, &c_}) order_.done(*command, 1);
  undo(a_);
  undo(b_);
  order_.undoWaiting();
  EXPECT_THAT(undone_, ElementsAre("b", "a"));
  EXPECT_TRUE(undo(c_));
}

TEST_F(UndoOrderTest, ASecondUndoOfWhatWaitsIsRefused) {
  order_.done(a_, 1);
  order_.done(b_, 1);
  EXPECT_TRUE(undo(a_));
  EXPECT_FALSE(undo(a_));
}

TEST_F(UndoOrderTest, WhatDoesNotFitWithoutABracketStaysDoneAndIsAskedAgain) {
  order_.done(a_, 1);
  a_.fits = false;
  EXPECT_FALSE(order_.undo(a_, false));
  EXPECT_FALSE(a_.isWaiting());
  a_.fits = true;
  EXPECT_TRUE(order_.undo(a_, false));
  EXPECT_THAT(undone_, ElementsAre("a"));
}

TEST_F(UndoOrderTest, WhatDoesNotFitYetIsTakenBackWithTheBracket) {
  order_.done(a_, 1);
  a_.fits = false;
  EXPECT_TRUE(undo(a_));
  EXPECT_TRUE(a_.isWaiting());
  a_.fits = true;
  order_.undoWaiting();
  EXPECT_THAT(undone_, ElementsAre("a"));
}

TEST_F(UndoOrderTest, WhatNeverFitsStaysDoneAndIsAskedAgain) {
  order_.done(a_, 1);
  a_.fits = false;
  EXPECT_TRUE(undo(a_));
  order_.undoWaiting();
  EXPECT_FALSE(a_.isWaiting());
  a_.fits = true;
  EXPECT_TRUE(undo(a_));
  EXPECT_THAT(undone_, ElementsAre("a"));
}

TEST_F(UndoOrderTest, TheLatestThatWaitAreTriedAgainAheadOfTheEndOfTheBracket) {
  for (Command* command : {&a_, &b_, &c_}) order_.done(*command, 1);
  c_.fits = false;
  for (Command* command : {&a_, &b_, &c_}) EXPECT_TRUE(undo(*command));
  order_.undoLatestWaiting();
  EXPECT_THAT(undone_, IsEmpty());
  EXPECT_TRUE(c_.isWaiting());
  c_.fits = true;
  order_.undoLatestWaiting();
  EXPECT_THAT(undone_, ElementsAre("c", "b", "a"));
}

TEST_F(UndoOrderTest, NothingIsTriedAgainBelowWhatIsNotAskedFor) {
  for (Command* command : {&a_, &b_}) order_.done(*command, 1);
  EXPECT_TRUE(undo(a_));
  order_.undoLatestWaiting();
  EXPECT_THAT(undone_, IsEmpty());
}

TEST_F(UndoOrderTest, WhatWaitsAndThenDoesNotFitHoldsUpNothing) {
  for (Command* command : {&a_, &b_, &c_}) order_.done(*command, 1);
  b_.fits = false;
  undo(a_);
  undo(b_);
  EXPECT_TRUE(undo(c_));
  EXPECT_THAT(undone_, ElementsAre("c"));
  order_.undoWaiting();
  EXPECT_THAT(undone_, ElementsAre("c", "a"));
}

TEST_F(UndoOrderTest, ACommandThatIsGoneIsNotWaitedFor) {
  order_.done(a_, 1);
  {
    Command gone(*this, "gone");
    order_.done(gone, 1);
  }
  EXPECT_TRUE(undo(a_));
  EXPECT_THAT(undone_, ElementsAre("a"));
}

TEST_F(UndoOrderTest, WhatIsDoneAgainIsTheLatest) {
  order_.done(a_, 1);
  order_.done(b_, 1);
  order_.done(a_, 1);
  EXPECT_TRUE(undo(b_));
  EXPECT_THAT(undone_, IsEmpty());
  EXPECT_TRUE(undo(a_));
  EXPECT_THAT(undone_, ElementsAre("a", "b"));
}

TEST_F(UndoOrderTest, CommandsMayOutliveTheOrder) {
  Command command(*this, "command");
  {
    UndoOrder order;
    order.done(command, 1);
  }
  EXPECT_FALSE(command.isWaiting());
}

}  // namespace
}  // namespace orvlib
