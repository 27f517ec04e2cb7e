#include <gtest/gtest.h>

#include "platform/OpenVesk/KPxCommand.h"
#include "tests/support/VirtualTable.h"

// A module's commands fill the slots of this table; the host calls through it.

namespace {

class Probe : public KPxCommand {
 public:
  explicit Probe(bool& deleted) : deleted_(deleted) {}
  ~Probe() override { deleted_ = true; }
  KStatus doIt(const KArgList&) override { return StatusBadArgument; }

 private:
  bool& deleted_;
};

TEST(KPxCommandLayout, TheOperationsFollowTheDestructorInTheirOrder) {
  EXPECT_EQ(slotOf(&KPxCommand::doIt), 0);
  EXPECT_EQ(slotOf(&KPxCommand::undoIt), 1);
  EXPECT_EQ(slotOf(&KPxCommand::redoIt), 2);
  EXPECT_EQ(slotOf(&KPxCommand::isUndoable), 3);
  EXPECT_EQ(slotOf(&KPxCommand::hasSyntax), 4);
}

TEST(KPxCommandLayout, TheDestructorComesFirst) {
  using Destructor = void (*)(KPxCommand*);
  bool deleted = false;
  KPxCommand* command = new Probe(deleted);
  const auto* table = *reinterpret_cast<Destructor* const*>(command);
  table[1](command);  // the destructor that also frees the object
  EXPECT_TRUE(deleted);
}

TEST(KPxCommandLayout, TheTableIsWhereTheObjectBegins) {
  bool deleted = false;
  Probe probe(deleted);
  EXPECT_EQ(static_cast<void*>(&probe), static_cast<void*>(static_cast<KPxCommand*>(&probe)));
  EXPECT_EQ(sizeof(KPxCommand), 2 * sizeof(void*));
}

}  // namespace
