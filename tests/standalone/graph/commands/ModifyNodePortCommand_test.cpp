#include "platform/ORV_1_0/ModifyNodePortCommand.h"

#include "standalone/graph/edits/FaultPoints.h"
#include "tests/standalone/graph/commands/CommandFixture.h"

namespace orvlib {
namespace {

using ORV_v1::PortIOType;
using Texts = std::vector<std::string>;

class ModifyNodePortCommandTest : public CommandFixture {
 protected:
  ModifyNodePortCommandTest() {
    add(top(), "core::math::add", "a");
    add(top(), "core::math::add", "b");
    add(top(), "core::vector::vector3::add", "v");
  }

  bool create(const char* path, const char* name, const char* type) {
    return command_.createPort(node(path), PortIOType::kInput, name, type,
                               ORV_v1::PortProperties());
  }

  bool set(const char* path, const char* name, Texts texts, bool interactive = false) {
    return command_.setPortValues(node(path), name, array(std::move(texts)), interactive);
  }

  /// Gives "/a" a fan-in port "values".
  void addFanIn() {
    ORV_v1::PortProperties properties;
    properties.setFlags(ORV_v1::kPortFanIn);
    ORV_v1::ModifyNodePortCommand command;
    command.createPort(node("/a"), PortIOType::kInput, "values", "array<float>", properties);
    ASSERT_TRUE(command.redo());
  }

  ORV_v1::ModifyNodePortCommand command_;
};

TEST_F(ModifyNodePortCommandTest, SetsAValueWithUndo) {
  const std::string before = text();
  ASSERT_TRUE(set("/a", "a", {"2.5"}));
  ASSERT_TRUE(command_.redo());
  EXPECT_EQ(values("/a.a"), Texts{"2.5"});
  expectReversible(command_, before);
}

TEST_F(ModifyNodePortCommandTest, RefusesValuesThatDoNotFit) {
  EXPECT_FALSE(set("/a", "a", {"two"}));
  EXPECT_FALSE(set("/a", "a", {"1", "2"}));
  EXPECT_FALSE(set("/a", "result", {"1"}));
  EXPECT_FALSE(set("/a", "none", {"1"}));
}

TEST_F(ModifyNodePortCommandTest, TheValueOfAComponentGoesIntoThePortAbove) {
  const std::string before = text();
  ASSERT_TRUE(set("/v", "a.y", {"3"}));
  ASSERT_TRUE(command_.redo());
  EXPECT_EQ(values("/v.a"), (Texts{"0", "3", "0"}));
  expectReversible(command_, before);
}

TEST_F(ModifyNodePortCommandTest, ResettingAComponentLeavesTheOthers) {
  set("/v", "a", {"1", "2", "3"});
  command_.resetPortValues(node("/v"), "a.y");
  ASSERT_TRUE(command_.redo());
  EXPECT_EQ(values("/v.a"), (Texts{"1", "0", "3"}));
}

TEST_F(ModifyNodePortCommandTest, AnInteractiveValueKeepsNothingToUndo) {
  ASSERT_TRUE(set("/a", "a", {"1"}, true));
  ASSERT_TRUE(set("/a", "b", {"2"}));
  ASSERT_TRUE(command_.redo());
  command_.undo();
  EXPECT_EQ(values("/a.a"), Texts{"1"});
  EXPECT_EQ(values("/a.b"), Texts{"0"});
}

TEST_F(ModifyNodePortCommandTest, NoInteractiveValueGivesTheDefaultBackForGood) {
  const std::string before = text();
  ASSERT_TRUE(set("/a", "a", {"1"}, true));
  ASSERT_TRUE(command_.redo());
  ORV_v1::ModifyNodePortCommand command;
  EXPECT_FALSE(command.setPortValues(node("/a"), "a", array({}), false));
  ASSERT_TRUE(command.setPortValues(node("/a"), "a", array({}), true));
  ASSERT_TRUE(command.redo());
  EXPECT_EQ(text(), before);
  command.undo();
  EXPECT_EQ(text(), before);
}

TEST_F(ModifyNodePortCommandTest, AnArrayHasNoElementsByNoInteractiveValue) {
  add(top(), "core::array::build", "list");
  ORV_v1::PortProperties properties;
  properties.defaultValues().setValues(array({"1", "2"}));
  ASSERT_TRUE(command_.createPort(node("/list"), PortIOType::kInput, "numbers", "array<float>",
                                  properties));
  ASSERT_TRUE(set("/list", "numbers", {}, true));
  ASSERT_TRUE(command_.redo());
  EXPECT_EQ(values("/list.numbers"), Texts{});
}

TEST_F(ModifyNodePortCommandTest, AnInteractiveValueIsTakenBackWhenTheCommandFails) {
  ASSERT_TRUE(set("/a", "a", {"1"}, true));
  ASSERT_TRUE(set("/b", "a", {"1"}));
  const ArmedFault fault("edit setPortValue", 2);
  EXPECT_FALSE(command_.redo());
  EXPECT_EQ(values("/a.a"), Texts{"0"});
}

TEST_F(ModifyNodePortCommandTest, CreatesAPortWithWhatItIsGiven) {
  const std::string before = text();
  ORV_v1::PortProperties properties;
  properties.setFlags(ORV_v1::kPortHidden);
  properties.options().unserialize("{unit=m}", ORV_v1::PropertyList::kSerializeAll);
  properties.defaultValues().setValues(array({"1", "2", "3"}));
  ASSERT_TRUE(command_.createPort(node("/a"), PortIOType::kInput, "extra", "vector3", properties));
  ASSERT_TRUE(command_.redo());
  EXPECT_EQ(values("/a.extra"), (Texts{"1", "2", "3"}));
  EXPECT_EQ(port("/a.extra")->getFlags(), ORV_v1::kPortHidden);
  EXPECT_STREQ(port("/a.extra")->getPortMetaDataValue("unit").toChar(), "m");
  expectReversible(command_, before);
}

TEST_F(ModifyNodePortCommandTest, RefusesAnUnknownType) {
  EXPECT_FALSE(create("/a", "extra", "nothing"));
}

TEST_F(ModifyNodePortCommandTest, LeavesOutDefaultsThatDoNotFit) {
  ORV_v1::PortProperties properties;
  properties.defaultValues().setValues(array({"x"}));
  ASSERT_TRUE(command_.createPort(node("/a"), PortIOType::kInput, "e", "float", properties));
  ASSERT_TRUE(command_.redo());
  EXPECT_EQ(values("/a.e"), Texts{"0"});
}

TEST_F(ModifyNodePortCommandTest, APortWithoutANameGetsOne) {
  ASSERT_TRUE(create("/a", "", "float"));
  ASSERT_TRUE(create("/a", "", "float"));
  ASSERT_TRUE(command_.redo());
  EXPECT_EQ(values("/a.port"), Texts{"0"});
  EXPECT_EQ(values("/a.port1"), Texts{"0"});
}

TEST_F(ModifyNodePortCommandTest, APortThatIsRecordedCountsAsThere) {
  ASSERT_TRUE(create("/a", "extra", "vector3"));
  EXPECT_TRUE(set("/a", "extra", {"1", "2", "3"}));
  EXPECT_TRUE(set("/a", "extra.z", {"4"}));
  EXPECT_TRUE(command_.setPortType(node("/a"), "extra", "float"));
  EXPECT_FALSE(set("/a", "extra.z", {"4"}));
  EXPECT_TRUE(set("/a", "extra", {"7"}));
  ASSERT_TRUE(command_.redo());
  EXPECT_EQ(values("/a.extra"), Texts{"7"});
}

TEST_F(ModifyNodePortCommandTest, ADeletedPortNoLongerCounts) {
  ASSERT_TRUE(create("/a", "extra", "float"));
  ASSERT_TRUE(command_.deletePort(node("/a"), "extra"));
  EXPECT_FALSE(set("/a", "extra", {"1"}));
  const std::string before = text();
  ASSERT_TRUE(command_.redo());
  EXPECT_EQ(text(), before);
}

TEST_F(ModifyNodePortCommandTest, APortOfTheDefinitionStaysAsItIs) {
  EXPECT_FALSE(command_.deletePort(node("/a"), "a"));
  EXPECT_FALSE(command_.setPortType(node("/a"), "a", "int"));
}

TEST_F(ModifyNodePortCommandTest, MakesAndDeletesAMember) {
  addFanIn();
  const std::string before = text();
  ASSERT_TRUE(create("/a", "values.x", "float"));
  ASSERT_TRUE(create("/a", "values.x", ""));
  ASSERT_TRUE(command_.redo());
  ASSERT_NE(port("/a.values.x1"), nullptr);
  EXPECT_EQ(port("/a.values.x")->valueType().name, "float");
  expectReversible(command_, before);
  ORV_v1::ModifyNodePortCommand gone;
  ASSERT_TRUE(gone.deletePort(node("/a"), "values.x"));
  ASSERT_TRUE(gone.redo());
  EXPECT_EQ(port("/a.values.x"), nullptr);
}

TEST_F(ModifyNodePortCommandTest, AMemberNeedsAFanInPort) {
  EXPECT_FALSE(create("/a", "a.x", "float"));
  EXPECT_FALSE(create("/a", "none.x", "float"));
}

TEST_F(ModifyNodePortCommandTest, ANewTypeKeepsMembersThatFit) {
  addFanIn();
  connect("/b.result", "/a.values");
  const std::string before = text();
  ASSERT_TRUE(command_.setPortType(node("/a"), "values", "array<int>"));
  ASSERT_TRUE(command_.redo());
  EXPECT_TRUE(wired("/b.result", "/a.values.item"));
  expectReversible(command_, before);
}

TEST_F(ModifyNodePortCommandTest, ANewTypeDropsMembersThatDoNotFit) {
  addFanIn();
  connect("/b.result", "/a.values");
  const std::string before = text();
  ASSERT_TRUE(command_.setPortType(node("/a"), "values", "array<string>"));
  ASSERT_TRUE(command_.redo());
  EXPECT_FALSE(port("/b.result")->hasPeers());
  expectReversible(command_, before);
}

TEST_F(ModifyNodePortCommandTest, FlagsAskForTheSearchValuesOfThePort) {
  const auto handleFlags = [&](std::uint32_t ioType, std::uint32_t mode) {
    return command_.handlePortFlags(handle("/a.a"),
                                    static_cast<ORV_v1::Container::ESearchIOType>(ioType),
                                    static_cast<ORV_v1::Container::ESearchMode>(mode),
                                    ORV_v1::PortFlags(8), ORV_v1::QueryPortFlags::kSet);
  };
  EXPECT_FALSE(handleFlags(1, 1));
  EXPECT_FALSE(handleFlags(0, 2));
  EXPECT_TRUE(handleFlags(0, 1));
  ASSERT_TRUE(command_.redo());
  EXPECT_EQ(port("/a.a")->getFlags(), 8u);
  command_.undo();
  EXPECT_EQ(port("/a.a")->getFlags(), 0u);
}

TEST_F(ModifyNodePortCommandTest, WithNothingRecordedRedoIsTrue) {
  EXPECT_TRUE(command_.redo());
  EXPECT_TRUE(command_.redo());
}

TEST_F(ModifyNodePortCommandTest, AnEmptyMetadataValueRemovesTheKey) {
  command_.setPortMetaDataValue(node("/a"), "a", "unit", "m");
  ASSERT_TRUE(command_.redo());
  ORV_v1::ModifyNodePortCommand gone;
  EXPECT_FALSE(gone.setPortMetaDataValue(node("/a"), "a", "", "m"));
  ASSERT_TRUE(gone.setPortMetaDataValue(node("/a"), "a", "unit", ""));
  ASSERT_TRUE(gone.redo());
  EXPECT_TRUE(port("/a.a")->metadata().empty());
}

}  // namespace
}  // namespace orvlib
