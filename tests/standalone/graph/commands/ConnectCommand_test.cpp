#include "platform/ORV_1_0/ConnectCommand.h"

#include "tests/standalone/graph/commands/CommandFixture.h"

namespace orvlib {
namespace {

class ConnectCommandTest : public CommandFixture {
 protected:
  ConnectCommandTest() {
    for (const char* name : {"a", "b", "c"}) add(top(), "core::math::add", name);
    list_ = addCompound(top(), "list");
    addPort(*list_, PortDirection::Input, "values", "array<float>");
    ORV_v1::ModifyNodePortCommand command;
    command.handlePortFlags(handle("/list.values"), ORV_v1::Container::kSearchInput,
                            ORV_v1::Container::kSearchOuter, ORV_v1::kPortFanIn,
                            ORV_v1::QueryPortFlags::kSet);
    EXPECT_TRUE(command.redo());
  }

  bool connectBy(ORV_v1::ConnectCommand& command, const char* from, const char* to,
                 bool copy = false) {
    return command.connect(&graph_, handle(from), handle(to), copy);
  }

  CompoundObject* list_;
};

TEST_F(ConnectCommandTest, ConnectsAtOnceAndGoesBackAndForth) {
  const std::string before = text();
  ORV_v1::ConnectCommand command;
  ASSERT_TRUE(connectBy(command, "/a.result", "/b.a"));
  EXPECT_TRUE(wired("/a.result", "/b.a"));
  expectReversible(command, before);
}

TEST_F(ConnectCommandTest, TakesThePortsInEitherOrder) {
  ORV_v1::ConnectCommand command;
  EXPECT_TRUE(connectBy(command, "/b.a", "/a.result"));
  EXPECT_TRUE(wired("/a.result", "/b.a"));
}

TEST_F(ConnectCommandTest, UndoConnectsWhatWasDisplaced) {
  connect("/a.result", "/c.a");
  const std::string before = text();
  ORV_v1::ConnectCommand command;
  ASSERT_TRUE(connectBy(command, "/b.result", "/c.a"));
  EXPECT_FALSE(wired("/a.result", "/c.a"));
  expectReversible(command, before);
}

TEST_F(ConnectCommandTest, RefusesACycleAndKeepsWhatWasConnected) {
  connect("/a.result", "/b.a");
  connect("/c.result", "/a.a");
  const std::string before = text();
  ORV_v1::ConnectCommand command;
  EXPECT_FALSE(connectBy(command, "/b.result", "/a.a"));
  EXPECT_EQ(text(), before);
}

TEST_F(ConnectCommandTest, RefusesPortsOfAnotherGraph) {
  ContainerObject other("standard");
  ORV_v1::ConnectCommand command;
  EXPECT_FALSE(command.connect(&other, handle("/a.result"), handle("/b.a"), false));
}

TEST_F(ConnectCommandTest, CopiesTheMetadataOfTheOutputAndKeepsOtherKeys) {
  ORV_v1::ModifyNodePortCommand metadata;
  metadata.setPortMetaDataValue(node("/a"), "result", "unit", "m");
  metadata.setPortMetaDataValue(node("/b"), "a", "note", "mine");
  ASSERT_TRUE(metadata.redo());
  const std::string before = text();
  ORV_v1::ConnectCommand command;
  ASSERT_TRUE(connectBy(command, "/a.result", "/b.a", true));
  EXPECT_STREQ(port("/b.a")->getPortMetaDataValue("unit").toChar(), "m");
  EXPECT_STREQ(port("/b.a")->getPortMetaDataValue("note").toChar(), "mine");
  expectReversible(command, before);
}

TEST_F(ConnectCommandTest, AFanInPortGrowsAMemberThatGoesWithItsConnection) {
  ORV_v1::ConnectCommand first;
  ORV_v1::ConnectCommand second;
  ASSERT_TRUE(connectBy(first, "/a.result", "/list.values"));
  const std::string before = text();
  ASSERT_TRUE(connectBy(second, "/b.result", "/list.values"));
  EXPECT_EQ(peers("/list.values.item1"), std::vector<std::string>{"/b.result"});
  expectReversible(second, before);
  ORV_v1::ConnectCommand gone;
  ASSERT_TRUE(gone.disconnect(&graph_, handle("/a.result"), handle("/list.values.item")));
  EXPECT_EQ(port("/list.values.item"), nullptr);
}

TEST_F(ConnectCommandTest, AFanInPortStandsForTheMemberThatIsConnected) {
  connect("/a.result", "/list.values");
  const std::string before = text();
  ORV_v1::ConnectCommand command;
  ASSERT_TRUE(command.disconnect(&graph_, handle("/a.result"), handle("/list.values")));
  EXPECT_EQ(port("/list.values.item"), nullptr);
  expectReversible(command, before);
}

TEST_F(ConnectCommandTest, DisconnectRefusesWhatIsNotConnected) {
  ORV_v1::ConnectCommand command;
  EXPECT_FALSE(command.disconnect(&graph_, handle("/a.result"), handle("/b.a")));
}

TEST_F(ConnectCommandTest, RefusesToGoOutOfTurn) {
  ORV_v1::ConnectCommand command;
  EXPECT_FALSE(command.undo());
  EXPECT_FALSE(command.redo());
  ASSERT_TRUE(connectBy(command, "/a.result", "/b.a"));
  EXPECT_FALSE(command.redo());
  EXPECT_FALSE(connectBy(command, "/a.result", "/c.a"));
  EXPECT_TRUE(command.undo());
  EXPECT_FALSE(command.undo());
}

}  // namespace
}  // namespace orvlib
