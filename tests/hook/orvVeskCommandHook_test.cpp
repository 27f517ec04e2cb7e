#include "hook/orvVeskCommandHook.h"

#include <memory>
#include <type_traits>

#include "tests/hook/HookTesting.h"

namespace {

/// How hooks were installed.
hosttest::Texts installed;

void noteInstalled(const char* face, const void* hook, const void* runtime) {
  installed.push_back(std::string(face) + (hook ? "" : " null") + (runtime ? " of a runtime" : ""));
}

}  // namespace

/// These come ahead of the library's own, which cannot tell the order.
void orvUI_v1::setCommandHook(CommandHook* hook, ORV_v1::Runtime* runtime) {
  noteInstalled("edits", hook, runtime);
  orvuilib::HookRegistry::install(hook, runtime);
}

void orvUI_v1::setAppServicesHook(AppServicesHook* hook) {
  noteInstalled("services", hook, nullptr);
  orvuilib::HookRegistry::install(hook);
}

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

TEST(OrvVeskCommandHook, InstallsTheEditsFirstAndTakesNothingAway) {
  installed.clear();
  std::make_unique<orvVeskCommandHook>().reset();
  EXPECT_THAT(installed, testing::ElementsAre("edits", "services"));
}

TEST(OrvVeskCommandHook, OfTheModuleInstallsItselfOnceAndTakesNothingAway) {
  hosttest::GraphHost host;
  installed.clear();
  ASSERT_TRUE(host.session().plugins().load(kModulePath));
  EXPECT_THAT(installed, testing::ElementsAre("edits", "services"));
  installed.clear();
  ASSERT_TRUE(host.session().plugins().unload(kModuleName));
  EXPECT_THAT(installed, testing::IsEmpty());
}

class HookOperations : public HookTest {
 protected:
  /// Lets a command note whether a change bracket is open while it runs.
  void watch(const std::string& command) {
    replace(command, {.doIt = [this, command](auto&, auto&) -> KStatus {
              const bool open = graph.activeChangeBracket() || level().activeChangeBracket();
              seen.push_back(command + (open ? " in a bracket" : ""));
              return StatusSuccess;
            }});
  }

  ORV_v1::Compound& level() { return *top(); }

  Texts seen;
};

/// That is left to the commands.
TEST_F(HookOperations, OpenNoChangeBracketForALine) {
  for (const char* command : {"orvCompound", "orvNode", "orvConnect", "orvPort"}) watch(command);
  hook().renameNode(node("/a"), "e");
  hook().setPortDefaultValues(port("/a.value"), {"1"}, false);
  hook().connectPorts(port("/a.result"), port("/b.value"), false);
  hook().setPortFlag(port("/a.value"), 8);
  EXPECT_THAT(seen, testing::ElementsAre("orvCompound", "orvNode", "orvConnect", "orvPort"));
}

}  // namespace
