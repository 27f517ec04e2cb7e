#include "platform/ORV_1_0/Host.h"

#include <gtest/gtest.h>

#include "standalone/graph/library/RuntimeRegistry.h"
#include "testPaths.h"

namespace {

constexpr const char* kRuntimes = VESK_SOURCE_DIR "/tests/data/library";

class Host : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(registry_.load(kRuntimes).empty());
    registry_.makeCurrent();
  }

  orvlib::RuntimeRegistry registry_;
  ORV_v1::Host host_;
};

TEST(HostWithoutARegistry, HasNoRuntimes) {
  const ORV_v1::Host host;
  EXPECT_EQ(host.getNumberOfRuntimes(), 0u);
  EXPECT_EQ(host.getRuntimeAt(0), nullptr);
  EXPECT_EQ(host.getRuntimeByName("empty"), nullptr);
}

TEST(HostWithoutARegistry, HasNoRuntimesOnceTheRegistryIsGone) {
  {
    orvlib::RuntimeRegistry registry;
    registry.load(kRuntimes);
    registry.makeCurrent();
    ASSERT_EQ(ORV_v1::Host().getNumberOfRuntimes(), 2u);
  }
  EXPECT_EQ(ORV_v1::Host().getNumberOfRuntimes(), 0u);
}

TEST_F(Host, ListsTheRuntimesInTheOrderOfTheirFolders) {
  ASSERT_EQ(host_.getNumberOfRuntimes(), 2u);
  EXPECT_STREQ(host_.getRuntimeAt(0)->getName(), "empty");
  EXPECT_STREQ(host_.getRuntimeAt(1)->getName(), "single");
}

TEST_F(Host, GivesNullPastTheEnd) {
  EXPECT_EQ(host_.getRuntimeAt(2), nullptr);
  EXPECT_EQ(host_.getRuntimeAt(~0u), nullptr);
}

TEST_F(Host, FindsARuntimeByName) {
  EXPECT_EQ(host_.getRuntimeByName("single"), host_.getRuntimeAt(1));
}

TEST_F(Host, FindsNoRuntimeByAnotherTextThanItsName) {
  EXPECT_EQ(host_.getRuntimeByName("Single"), nullptr);
  EXPECT_EQ(host_.getRuntimeByName(""), nullptr);
  EXPECT_EQ(host_.getRuntimeByName(nullptr), nullptr);
}

TEST_F(Host, ShowsTheRegistryThatWasMadeCurrentLast) {
  orvlib::RuntimeRegistry other;
  other.makeCurrent();
  EXPECT_EQ(host_.getNumberOfRuntimes(), 0u);
}

}  // namespace
