#include "platform/Foundation/KObject.h"

#include <gtest/gtest.h>

#include "standalone/host/engine/HostAccess.h"

namespace {

using Target = std::shared_ptr<vesk::HostObject>;

TEST(KObject, IsANullHandleByDefault) {
  const KObject object;
  const KObject copy(object);
  EXPECT_EQ(HostAccess::objectOf(object), nullptr);
  EXPECT_EQ(HostAccess::objectOf(copy), nullptr);
}

TEST(KObject, ItsCopiesAreHandlesOnTheSameObject) {
  const Target target = std::make_shared<vesk::HostObject>();
  const KObject object = HostAccess::object(target);
  const KObject copy(object);
  KObject assigned;
  assigned = object;
  EXPECT_EQ(HostAccess::objectOf(copy), target);
  EXPECT_EQ(HostAccess::objectOf(assigned), target);
}

TEST(KObject, KeepsItsObjectAliveUntilTheLastHandleIsGone) {
  std::weak_ptr<vesk::HostObject> watched;
  {
    KObject copy;
    {
      const KObject object = HostAccess::object(std::make_shared<vesk::HostObject>());
      watched = HostAccess::objectOf(object);
      copy = object;
    }
    EXPECT_FALSE(watched.expired());
  }
  EXPECT_TRUE(watched.expired());
}

TEST(KObject, AssigningToItselfChangesNothing) {
  const Target target = std::make_shared<vesk::HostObject>();
  KObject object = HostAccess::object(target);
  const KObject& self = object;
  object = self;
  EXPECT_EQ(HostAccess::objectOf(object), target);
}

}  // namespace
