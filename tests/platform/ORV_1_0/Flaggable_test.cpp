#include "platform/ORV_1_0/Flaggable.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/VirtualTable.h"

namespace {

enum Action { kFirst = 1, kSecond = 2, kThird = 4 };
enum class Scoped : std::uint32_t { kLast = 0x80000000u };

using Flags = ORV_v1::Flaggable<Action>;

constexpr auto mask(int bits) { return static_cast<Action>(bits); }

TEST(Flaggable, IsZeroAtConstruction) {
  const Flags flags;
  EXPECT_EQ(flags.getFlags(), 0u);
  EXPECT_FALSE(flags.anyFlagSet());
}

TEST(Flaggable, SettingABitKeepsTheOthers) {
  Flags flags;
  flags.setFlag(kFirst);
  flags.setFlag(kThird);
  EXPECT_EQ(flags.getFlags(), 5u);
}

TEST(Flaggable, ClearingABitKeepsTheOthers) {
  Flags flags;
  flags.setFlag(mask(7));
  flags.clearFlag(kSecond);
  EXPECT_EQ(flags.getFlags(), 5u);
}

TEST(Flaggable, ClearingABitThatIsNotSetChangesNothing) {
  Flags flags;
  flags.setFlag(kFirst);
  flags.clearFlag(kSecond);
  EXPECT_EQ(flags.getFlags(), 1u);
}

TEST(Flaggable, AMaskTestsForAnyOfItsBits) {
  Flags flags;
  flags.setFlag(kSecond);
  EXPECT_TRUE(flags.isFlagSet(mask(kFirst | kSecond)));
  EXPECT_FALSE(flags.isFlagSet(mask(kFirst | kThird)));
}

TEST(Flaggable, TheEmptyMaskIsNeverSet) {
  Flags flags;
  flags.setFlag(mask(7));
  EXPECT_FALSE(flags.isFlagSet(mask(0)));
}

TEST(Flaggable, HoldsTheHighestOf32Bits) {
  ORV_v1::Flaggable<Scoped> flags;
  flags.setFlag(Scoped::kLast);
  EXPECT_EQ(flags.getFlags(), 0x80000000u);
  EXPECT_TRUE(flags.isFlagSet(Scoped::kLast));
}

/// Notes which operations were reached through the virtual table.
class Recorder : public Flags {
 public:
  explicit Recorder(std::string& calls) : calls_(calls) {}
  ~Recorder() override { calls_ += "d"; }
  std::uint32_t getFlags() const override { return note("g"), 0; }
  void setFlag(Action) override { note("s"); }
  void clearFlag(Action) override { note("c"); }
  bool anyFlagSet() const override { return note("a"), false; }
  bool isFlagSet(Action) const override { return note("i"), false; }

 private:
  void note(const char* call) const { calls_ += call; }
  std::string& calls_;
};

TEST(Flaggable, EachOperationIsVirtual) {
  std::string calls;
  Flags* flags = new Recorder(calls);
  flags->getFlags();
  flags->setFlag(kFirst);
  flags->clearFlag(kFirst);
  flags->anyFlagSet();
  flags->isFlagSet(kFirst);
  delete flags;
  EXPECT_EQ(calls, "gscaid");
}

TEST(Flaggable, TheOperationsFollowTheDestructorInTheirOrder) {
  EXPECT_EQ(slotOf(&Flags::getFlags), 0);
  EXPECT_EQ(slotOf(&Flags::setFlag), 1);
  EXPECT_EQ(slotOf(&Flags::clearFlag), 2);
  EXPECT_EQ(slotOf(&Flags::anyFlagSet), 3);
  EXPECT_EQ(slotOf(&Flags::isFlagSet), 4);
}

}  // namespace
