#include "standalone/widgets/hooks/HookRegistry.h"

#include <gtest/gtest.h>

#include <memory>

#include "standalone/graph/library/RuntimeRegistry.h"
#include "testPaths.h"
#include "tests/standalone/widgets/hooks/IdleHooks.h"

namespace {

using orvUI_v1::setAppServicesHook;
using orvUI_v1::setCommandHook;
using orvuilib::HookRegistry;

/// Two runtimes.
class HookRegistryTest : public testing::Test {
 protected:
  HookRegistryTest() {
    EXPECT_TRUE(registry_.load(VESK_SOURCE_DIR "/tests/data/library").empty());
    registry_.makeCurrent();
    first = registry_.at(0);
    second = registry_.at(1);
    EXPECT_TRUE(first && second && first != second);
  }
  ~HookRegistryTest() override {
    EXPECT_FALSE(HookRegistry::commandHook());
    EXPECT_FALSE(HookRegistry::commandHook(first));
    EXPECT_FALSE(HookRegistry::appServicesHook());
  }

  ORV_v1::Runtime* first = nullptr;
  ORV_v1::Runtime* second = nullptr;

 private:
  orvlib::RuntimeRegistry registry_;
};

TEST_F(HookRegistryTest, WithoutAHookThereIsNone) {
  EXPECT_FALSE(HookRegistry::commandHook());
  EXPECT_FALSE(HookRegistry::commandHook(first));
  EXPECT_FALSE(HookRegistry::appServicesHook());
}

TEST_F(HookRegistryTest, AHookOfNoRuntimeIsThatOfAll) {
  IdleCommandHook hook;
  setCommandHook(&hook, nullptr);
  EXPECT_EQ(HookRegistry::commandHook(), &hook);
  EXPECT_EQ(HookRegistry::commandHook(first), &hook);
}

TEST_F(HookRegistryTest, ARuntimesOwnHookComesFirst) {
  IdleCommandHook all, own;
  setCommandHook(&own, first);
  EXPECT_FALSE(HookRegistry::commandHook());
  EXPECT_FALSE(HookRegistry::commandHook(second));
  setCommandHook(&all, nullptr);
  EXPECT_EQ(HookRegistry::commandHook(first), &own);
  EXPECT_EQ(HookRegistry::commandHook(second), &all);
  EXPECT_EQ(HookRegistry::commandHook(), &all);
}

TEST_F(HookRegistryTest, TheLastOneInstalledIsTheOne) {
  IdleCommandHook one, other;
  setCommandHook(&one, first);
  setCommandHook(&other, first);
  EXPECT_EQ(HookRegistry::commandHook(first), &other);
}

TEST_F(HookRegistryTest, NullTakesBackWhatWasInstalledThere) {
  IdleCommandHook all, own;
  setCommandHook(&all, nullptr);
  setCommandHook(&own, first);
  setCommandHook(nullptr, first);
  EXPECT_EQ(HookRegistry::commandHook(first), &all);
  setCommandHook(nullptr, nullptr);
  EXPECT_FALSE(HookRegistry::commandHook(first));
  setCommandHook(nullptr, second);
}

TEST_F(HookRegistryTest, AHookThatGoesIsForgottenEverywhere) {
  IdleCommandHook other;
  auto hook = std::make_unique<IdleCommandHook>();
  setCommandHook(hook.get(), nullptr);
  setCommandHook(hook.get(), first);
  setCommandHook(&other, second);
  hook.reset();
  EXPECT_FALSE(HookRegistry::commandHook());
  EXPECT_FALSE(HookRegistry::commandHook(first));
  EXPECT_EQ(HookRegistry::commandHook(second), &other);
}

TEST_F(HookRegistryTest, AHookThatIsNotInstalledGoesUnnoticed) {
  IdleCommandHook hook;
  setCommandHook(&hook, nullptr);
  std::make_unique<IdleCommandHook>().reset();
  EXPECT_EQ(HookRegistry::commandHook(), &hook);
}

TEST_F(HookRegistryTest, TheServicesAreOneForAll) {
  auto one = std::make_unique<IdleServicesHook>();
  auto other = std::make_unique<IdleServicesHook>();
  setAppServicesHook(one.get());
  EXPECT_EQ(HookRegistry::appServicesHook(), one.get());
  setAppServicesHook(other.get());
  one.reset();
  EXPECT_EQ(HookRegistry::appServicesHook(), other.get());
  other.reset();
  EXPECT_FALSE(HookRegistry::appServicesHook());
}

TEST_F(HookRegistryTest, NullTakesTheServicesBack) {
  IdleServicesHook hook;
  setAppServicesHook(&hook);
  setAppServicesHook(nullptr);
  EXPECT_FALSE(HookRegistry::appServicesHook());
}

TEST_F(HookRegistryTest, OperationsAreCalledByTheInterface) {
  IdleServicesHook hook;
  setAppServicesHook(&hook);
  HookRegistry::appServicesHook()->syncUserPrefs(7);
  EXPECT_EQ(hook.syncs, std::vector<int>{7});
}

}  // namespace
