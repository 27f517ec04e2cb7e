#include "standalone/host/scene/NodeTypes.h"

#include "tests/standalone/host/scene/SceneTools.h"

namespace vesk {
namespace {

using ::testing::ElementsAre;
using vesk::testing::noteType;

TEST(NodeTypes, TheHostHasTwoTypesWithoutData) {
  const NodeTypes types;
  EXPECT_THAT(types.names(), ElementsAre("group", "locator"));
  EXPECT_FALSE(types.find("group")->makePayload);
  EXPECT_FALSE(types.find("locator")->summary.empty());
}

TEST(NodeTypes, OthersAreRegisteredFromOutside) {
  NodeTypes types;
  EXPECT_TRUE(types.add(noteType()));
  EXPECT_EQ(types.find("note")->summary, "Holds a text.");
  EXPECT_THAT(types.names(), ElementsAre("group", "locator", "note"));
}

TEST(NodeTypes, ATakenNameIsRefused) {
  NodeTypes types;
  EXPECT_FALSE(types.add({"group", "Another."}));
  EXPECT_NE(types.find("group")->summary, "Another.");
}

TEST(NodeTypes, ANameMustBeAnIdentifier) {
  NodeTypes types;
  EXPECT_FALSE(types.add({"", "Nothing."}));
  EXPECT_FALSE(types.add({"my type", "Two words."}));
}

TEST(NodeTypes, AnUnknownNameGivesNull) { EXPECT_EQ(NodeTypes().find("note"), nullptr); }

}  // namespace
}  // namespace vesk
