#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cstddef>

#include "platform/OpenVesk/KPxCommand.h"

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

/// The slot that a virtual operation has behind the two of the destructor, counted from 0. On this
/// platform a pointer to a virtual member is its offset in the table plus one.
template <class Operation>
std::ptrdiff_t slotOf(Operation operation) {
  const auto parts = std::bit_cast<std::array<std::ptrdiff_t, 2>>(operation);
  EXPECT_EQ(parts[0] % 2, 1) << "it is not virtual";
  return (parts[0] - 1) / static_cast<std::ptrdiff_t>(sizeof(void*)) - 2;
}

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
