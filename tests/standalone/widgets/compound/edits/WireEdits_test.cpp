#include "tests/standalone/widgets/compound/edits/EditsTesting.h"

namespace {

using testing::ElementsAre;

/// What is left when a node between others is removed and healed.
class HealTest : public EditsTest {
 protected:
  HealTest() {
    add("core::math::add", "a", -300, -100);
    add("core::math::negate", "b", 0, -80);
    add("core::math::negate", "c", 200, -60);
    script({"orvConnect g /a.result /b.value", "orvConnect g /b.result /c.value"});
    open();
  }

  Lines heal(std::initializer_list<const char*> names) {
    select(names);
    return step(Qt::Key_Delete, Qt::AltModifier);
  }
};

TEST_F(HealTest, AChainIsClosedOverAllThatGo) {
  add("core::math::negate", "d", 400, -60);
  script({"orvConnect g /c.result /d.value"});
  EXPECT_THAT(heal({"b", "c"}), ElementsAre("orvCompound \"g\" \"/\" -removeNode \"b\"",
                                            "orvCompound \"g\" \"/\" -removeNode \"c\"",
                                            "orvConnect \"g\" \"/a.result\" \"/d.value\""));
}

TEST_F(HealTest, EachBranchGetsTheSource) {
  add("core::math::multiply", "d", 200, 60);
  script({"orvConnect g /b.result /d.a", "orvConnect g /b.result /d.b"});
  heal({"b"});
  orvlib::PortObject* source = node("/a")->port("result");
  EXPECT_EQ(node("/c")->port("value")->source(), source);
  EXPECT_EQ(node("/d")->port("a")->source(), source);
  EXPECT_EQ(node("/d")->port("b")->source(), source);
}

TEST_F(HealTest, AFanInPortGetsAMemberForWhatWentOn) {
  add("core::array::build", "build", 300, 60);
  script({"orvConnect g /b.result /build.elements", "orvConnect g /c.result /build.elements"});
  EXPECT_THAT(heal({"b", "c"}), ElementsAre("orvCompound \"g\" \"/\" -removeNode \"b\"",
                                            "orvCompound \"g\" \"/\" -removeNode \"c\"",
                                            "orvConnect \"g\" \"/a.result\" \"/build.elements\""));
  ASSERT_EQ(node("/build")->port("elements")->madeChildren()->count(), 1u);
}

TEST_F(HealTest, WhatDoesNotFitIsNotConnected) {
  add("core::string::length", "length", -300, 60);
  add("core::math::negate", "e", 300, 60);
  add("core::string::concatenate", "text", -600, 60);
  script({"orvConnect g /text.result /length.text", "orvConnect g /length.result /e.value"});
  EXPECT_THAT(heal({"length"}), ElementsAre("orvCompound \"g\" \"/\" -removeNode \"length\""));
  EXPECT_FALSE(node("/e")->port("value")->hasPeers());
}

}  // namespace
