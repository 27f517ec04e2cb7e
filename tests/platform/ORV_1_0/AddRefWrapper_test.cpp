#include "platform/ORV_1_0/AddRefWrapper.h"

#include <gtest/gtest.h>

#include "platform/ORV_1_0/ReferenceCounted.h"

namespace {

class Probe : public ORV_v1::ReferenceCounted {
 public:
  explicit Probe(bool& alive) : alive_(alive) { alive_ = true; }
  int answer() const { return 42; }

 private:
  ~Probe() override { alive_ = false; }
  bool& alive_;
};

using Handle = ORV_v1::AddRefWrapper<Probe>;

TEST(ReferenceCounted, DiesInTheReleaseThatReachesZero) {
  bool alive = false;
  auto* probe = new Probe(alive);
  probe->addRef();
  probe->addRef();
  probe->release();
  EXPECT_TRUE(alive);
  probe->release();
  EXPECT_FALSE(alive);
}

TEST(AddRefWrapper, IsNullByDefault) {
  const Handle handle;
  EXPECT_TRUE(handle == nullptr);
  EXPECT_FALSE(handle);
}

TEST(AddRefWrapper, OfANullPointerIsNull) { EXPECT_TRUE(Handle(nullptr) == nullptr); }

TEST(AddRefWrapper, GivesAccessToItsObject) {
  bool alive = false;
  const Handle handle(new Probe(alive));
  EXPECT_TRUE(handle != nullptr);
  EXPECT_EQ(handle->answer(), 42);
  EXPECT_EQ(handle.get(), &*handle);
}

TEST(AddRefWrapper, ReleasesItsObjectAtTheEndOfItsLife) {
  bool alive = false;
  { const Handle handle(new Probe(alive)); }
  EXPECT_FALSE(alive);
}

TEST(AddRefWrapper, ACopyKeepsTheObjectAlive) {
  bool alive = false;
  Handle copy;
  {
    const Handle handle(new Probe(alive));
    copy = handle;
  }
  EXPECT_TRUE(alive);
  copy = Handle();
  EXPECT_FALSE(alive);
}

TEST(AddRefWrapper, AMoveLeavesNullAndCarriesTheOneReference) {
  bool alive = false;
  Handle from(new Probe(alive));
  Handle to(std::move(from));
  EXPECT_TRUE(from == nullptr);  // NOLINT(bugprone-use-after-move)
  to = Handle();
  EXPECT_FALSE(alive);
}

TEST(AddRefWrapper, AMoveAssignmentLeavesNullAndReleasesTheOldObject) {
  bool oldAlive = false;
  bool newAlive = false;
  Handle to(new Probe(oldAlive));
  Handle from(new Probe(newAlive));
  to = std::move(from);
  EXPECT_TRUE(from == nullptr);  // NOLINT(bugprone-use-after-move)
  EXPECT_FALSE(oldAlive);
  EXPECT_TRUE(newAlive);
}

TEST(AddRefWrapper, KeepsItsObjectWhenAssignedToItself) {
  bool alive = false;
  Handle handle(new Probe(alive));
  const Handle& same = handle;
  handle = same;
  EXPECT_TRUE(alive);
}

}  // namespace
