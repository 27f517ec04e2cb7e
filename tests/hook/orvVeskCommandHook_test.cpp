#include "hook/orvVeskCommandHook.h"

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

#include "standalone/widgets/hooks/HookRegistry.h"

namespace {

using orvUI_v1::AppServicesHook;
using orvUI_v1::CommandHook;
using Registry = orvuilib::HookRegistry;

static_assert(std::is_base_of_v<CommandHook, orvVeskCommandHook>);
static_assert(std::is_base_of_v<AppServicesHook, orvVeskCommandHook>);
static_assert(sizeof(orvVeskCommandHook) == sizeof(CommandHook) + sizeof(AppServicesHook),
              "it has no data of its own");

TEST(OrvVeskCommandHook, EditsComeFirst) {
  orvVeskCommandHook hook;
  const auto at = [](auto* part) { return reinterpret_cast<std::uintptr_t>(part); };
  EXPECT_EQ(at(static_cast<CommandHook*>(&hook)), at(&hook));
  EXPECT_EQ(at(static_cast<AppServicesHook*>(&hook)), at(&hook) + sizeof(CommandHook));
}

TEST(OrvVeskCommandHook, InstallsBothOfItsFaces) {
  ASSERT_FALSE(Registry::commandHook());
  ASSERT_FALSE(Registry::appServicesHook());
  orvVeskCommandHook hook;
  EXPECT_EQ(Registry::commandHook(), static_cast<CommandHook*>(&hook));
  EXPECT_EQ(Registry::appServicesHook(), static_cast<AppServicesHook*>(&hook));
}

TEST(OrvVeskCommandHook, IsForAllRuntimes) {
  orvVeskCommandHook hook;
  const auto* any = reinterpret_cast<const ORV_v1::Runtime*>(&hook);
  EXPECT_EQ(Registry::commandHook(any), static_cast<CommandHook*>(&hook));
}

TEST(OrvVeskCommandHook, IsForgottenWhenItGoesByEitherFace) {
  std::unique_ptr<CommandHook> edits(new orvVeskCommandHook);
  edits.reset();
  EXPECT_FALSE(Registry::commandHook());
  EXPECT_FALSE(Registry::appServicesHook());

  std::unique_ptr<AppServicesHook> services(new orvVeskCommandHook);
  ASSERT_TRUE(Registry::commandHook());
  services.reset();
  EXPECT_FALSE(Registry::commandHook());
  EXPECT_FALSE(Registry::appServicesHook());
}

TEST(OrvVeskCommandHook, GoingLeavesAnotherInPlace) {
  auto first = std::make_unique<orvVeskCommandHook>();
  orvVeskCommandHook second;
  first.reset();
  EXPECT_EQ(Registry::commandHook(), static_cast<CommandHook*>(&second));
  EXPECT_EQ(Registry::appServicesHook(), static_cast<AppServicesHook*>(&second));
}

}  // namespace
