#include "standalone/host/engine/CommandRegistry.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace vesk;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Outcome = CommandRegistry::Outcome;

KPxCommand* createNothing() { return nullptr; }

Outcome add(CommandRegistry& registry, const std::string& name, const Plugin* owner = nullptr) {
  return registry.add({name, createNothing, KSyntax(), owner, {}});
}

/// Owners are told apart by their address alone.
const Plugin* owner(int number) {
  static char places[2];
  return reinterpret_cast<const Plugin*>(&places[number]);
}

TEST(CommandRegistry, FindsWhatWasAdded) {
  CommandRegistry registry;
  EXPECT_EQ(add(registry, "b"), Outcome::Registered);
  EXPECT_EQ(add(registry, "a_1Z"), Outcome::Registered);
  ASSERT_NE(registry.find("a_1Z"), nullptr);
  EXPECT_EQ(registry.find("a_1Z")->name, "a_1Z");
  EXPECT_EQ(registry.find("A_1Z"), nullptr);
  EXPECT_THAT(registry.names(), ElementsAre("a_1Z", "b"));
}

TEST(CommandRegistry, RefusesANameThatIsTaken) {
  CommandRegistry registry;
  add(registry, "a", owner(0));
  EXPECT_EQ(add(registry, "a", owner(1)), Outcome::NameTaken);
  EXPECT_EQ(registry.find("a")->owner, owner(0));
}

TEST(CommandRegistry, RefusesWhatNoLineCanName) {
  CommandRegistry registry;
  for (const char* name :
       {"", "1a", "a-b", "a b", "-a", "a;", "\u00e9", "a.b", "@", "[", "`", "{"}) {
    EXPECT_EQ(add(registry, name), Outcome::BadName) << name;
  }
  EXPECT_THAT(registry.names(), IsEmpty());
}

TEST(CommandRegistry, RefusesACommandThatCannotBeCreated) {
  CommandRegistry registry;
  EXPECT_EQ(registry.add({"a", nullptr, KSyntax(), nullptr, {}}), Outcome::BadName);
}

TEST(CommandRegistry, OnlyItsOwnerRemovesACommand) {
  CommandRegistry registry;
  add(registry, "a", owner(0));
  EXPECT_FALSE(registry.remove("a", owner(1)));
  EXPECT_FALSE(registry.remove("a", nullptr));
  EXPECT_FALSE(registry.remove("b", owner(0)));
  EXPECT_TRUE(registry.remove("a", owner(0)));
  EXPECT_EQ(registry.find("a"), nullptr);
}

TEST(CommandRegistry, ARemovedNameIsFreeAgain) {
  CommandRegistry registry;
  add(registry, "a", owner(0));
  registry.remove("a", owner(0));
  EXPECT_EQ(add(registry, "a", owner(1)), Outcome::Registered);
}

TEST(CommandRegistry, KnowsTheCommandsOfEachOwner) {
  CommandRegistry registry;
  add(registry, "c", owner(0));
  add(registry, "a", owner(0));
  add(registry, "b", owner(1));
  EXPECT_THAT(registry.namesOf(owner(0)), ElementsAre("a", "c"));
  EXPECT_TRUE(registry.hasCommandOf(owner(0)));
  registry.removeAllOf(owner(0));
  EXPECT_FALSE(registry.hasCommandOf(owner(0)));
  EXPECT_THAT(registry.names(), ElementsAre("b"));
}

TEST(CommandRegistry, AnEntryThatSomebodyHoldsOutlivesItsRemoval) {
  CommandRegistry registry;
  add(registry, "a");
  const auto entry = registry.find("a");
  registry.remove("a", nullptr);
  EXPECT_EQ(entry->name, "a");
}

}  // namespace
