#include "platform/ORV_1_0/ModifyCompoundPortCommand.h"

#include "tests/standalone/graph/commands/CommandFixture.h"

namespace orvlib {
namespace {

using ORV_v1::PortIOType;
using Texts = std::vector<std::string>;

class ModifyCompoundPortCommandTest : public CommandFixture {
 protected:
  ModifyCompoundPortCommandTest() : group_(addCompound(top(), "group")) {
    add(top(), "core::math::add", "outside");
    add(*group_, "core::math::add", "inside");
    addPort(*group_, PortDirection::Input, "p", "float");
    addPort(*group_, PortDirection::Input, "q", "float");
    addPort(*group_, PortDirection::Output, "r", "vector3");
    EXPECT_TRUE(command_.setParentCompound(&graph_, "/group"));
  }

  Texts inputNames() const {
    Texts names;
    for (const PortObject* port : group_->node()->inputList().items()) {
      names.push_back(port->name());
    }
    return names;
  }

  CompoundObject* group_;
  ORV_v1::ModifyCompoundPortCommand command_;
};

TEST_F(ModifyCompoundPortCommandTest, CreatesAPortWithBothFacesAtTheEnd) {
  const std::string before = text();
  ASSERT_TRUE(command_.createPort(PortIOType::kInput, "p", "color4", ORV_v1::PortProperties()));
  ASSERT_TRUE(command_.redo());
  EXPECT_EQ(inputNames(), (Texts{"p", "q", "p1"}));
  EXPECT_EQ(group_->inputs().at(2), port("/group.p1", 0));
  expectReversible(command_, before);
}

TEST_F(ModifyCompoundPortCommandTest, ARenamedPortCountsUnderItsNewName) {
  const std::string before = text();
  ASSERT_TRUE(command_.renamePort("p", "fresh"));
  EXPECT_FALSE(command_.hidePort("p", true));
  EXPECT_TRUE(command_.hidePort("fresh", true));
  EXPECT_TRUE(command_.renamePort("q", "fresh"));
  EXPECT_TRUE(command_.setPortValues("fresh1", array({"4"}), false));
  ASSERT_TRUE(command_.redo());
  EXPECT_EQ(inputNames(), (Texts{"fresh", "fresh1"}));
  EXPECT_EQ(values("/group.fresh1"), Texts{"4"});
  EXPECT_TRUE(port("/group.fresh")->isFlagSet(ORV_v1::kPortHidden));
  expectReversible(command_, before);
}

TEST_F(ModifyCompoundPortCommandTest, MovesWithinTheList) {
  const std::string before = text();
  ASSERT_TRUE(command_.movePort("p", 99u));
  ASSERT_TRUE(command_.redo());
  EXPECT_EQ(inputNames(), (Texts{"q", "p"}));
  EXPECT_EQ(group_->inputs().at(1), port("/group.p", 0));
  expectReversible(command_, before);
}

TEST_F(ModifyCompoundPortCommandTest, MovesToAnInputNodeOfItsDirection) {
  NodeObject* io = insert(*group_, factory().makeIo(NodeKind::Input, "in"));
  const std::string before = text();
  EXPECT_FALSE(command_.movePort("r", "in"));
  EXPECT_FALSE(command_.movePort("p", "inside"));
  ASSERT_TRUE(command_.movePort("p", "in"));
  ASSERT_TRUE(command_.redo());
  EXPECT_EQ(io->outputList().at(0), port("/group.p", 0));
  expectReversible(command_, before);
}

TEST_F(ModifyCompoundPortCommandTest, ANewTypeDropsWiresThatNoLongerFit) {
  connect("/outside.result", "/group.p");
  connect("/group.p", "/group/inside.a");
  const std::string before = text();
  ASSERT_TRUE(command_.setPortDataType("p", "vector3"));
  ASSERT_TRUE(command_.redo());
  EXPECT_TRUE(wired("/outside.result", "/group.p"));
  EXPECT_FALSE(port("/group/inside.a")->hasPeers());
  expectReversible(command_, before);
}

TEST_F(ModifyCompoundPortCommandTest, ANewTypeConvertsTheValue) {
  ASSERT_TRUE(command_.setPortValues("p", array({"2.5"}), false));
  ASSERT_TRUE(command_.setPortDataType("p", "int"));
  ASSERT_TRUE(command_.redo());
  EXPECT_EQ(values("/group.p"), Texts{"2"});
}

TEST_F(ModifyCompoundPortCommandTest, ANewTypeDropsAValueThatDoesNotConvert) {
  ASSERT_TRUE(command_.setPortValues("p", array({"2.5"}), false));
  ASSERT_TRUE(command_.setPortDataType("p", "string"));
  ASSERT_TRUE(command_.redo());
  EXPECT_EQ(port("/group.p")->ownValue(), nullptr);
}

TEST_F(ModifyCompoundPortCommandTest, ANewTypeKeepsTheWiresOfChildrenByName) {
  addPort(*group_, PortDirection::Input, "color", "color3");
  connect("/outside.result", "/group.color.g");
  const std::string before = text();
  ASSERT_TRUE(command_.setPortDataType("color", "color4"));
  ASSERT_TRUE(command_.redo());
  EXPECT_TRUE(wired("/outside.result", "/group.color.g"));
  expectReversible(command_, before);
}

TEST_F(ModifyCompoundPortCommandTest, DeletesAPortWithTheWiresOfBothFaces) {
  connect("/outside.result", "/group.p");
  connect("/group.p", "/group/inside.a");
  const std::string before = text();
  ASSERT_TRUE(command_.deletePort("p"));
  EXPECT_FALSE(command_.deletePort("p"));
  ASSERT_TRUE(command_.redo());
  EXPECT_EQ(inputNames(), Texts{"q"});
  EXPECT_FALSE(port("/outside.result")->hasPeers());
  expectReversible(command_, before);
}

TEST_F(ModifyCompoundPortCommandTest, APortThatIsMissingIsNotRecorded) {
  EXPECT_FALSE(command_.renamePort("none", "x"));
  EXPECT_FALSE(command_.movePort("none", 0u));
  EXPECT_FALSE(command_.setPortDataType("p", "nothing"));
  EXPECT_FALSE(command_.resetPortValues("none"));
  EXPECT_FALSE(command_.deletePort(nullptr));
}

TEST_F(ModifyCompoundPortCommandTest, IsBoundByAPortOfTheCompound) {
  ORV_v1::ModifyCompoundPortCommand command(handle("/group.p", 0));
  ASSERT_TRUE(command.setPortValues("p", array({"3"}), true));
  ASSERT_TRUE(command.doit());
  EXPECT_EQ(values("/group.p"), Texts{"3"});
}

TEST_F(ModifyCompoundPortCommandTest, AnUnboundCommandRecordsNothing) {
  ORV_v1::ModifyCompoundPortCommand command;
  EXPECT_FALSE(command.setParentCompound(&graph_, "/outside"));
  EXPECT_FALSE(command.hidePort("p", true));
  EXPECT_TRUE(command.redo());
}

TEST_F(ModifyCompoundPortCommandTest, ANameWithADotIsForAMemberOfAFanInPort) {
  PortObject* list = addPort(*group_, PortDirection::Input, "list", "array<float>");
  ASSERT_TRUE(edits_.run(SetPortFlags{PortRef(list), ORV_v1::kPortFanIn}));
  const std::string before = text();
  for (const char* name : {".", ".new", "p.new", "none.new", "list."}) {
    EXPECT_FALSE(command_.createPort(PortIOType::kInput, name, "float", ORV_v1::PortProperties()))
        << name;
  }
  ASSERT_TRUE(
      command_.createPort(PortIOType::kInput, "list.new", "float", ORV_v1::PortProperties()));
  ASSERT_TRUE(command_.redo());
  EXPECT_TRUE(port("/group.list.new"));
  expectReversible(command_, before);
}

}  // namespace
}  // namespace orvlib
