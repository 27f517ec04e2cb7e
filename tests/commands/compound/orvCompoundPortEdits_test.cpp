// The port edits other than making ports and setting their values: each does its work.

#include "tests/commands/compound/CompoundTesting.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

namespace {

/// A compound /group with the inputs a, b and c and the outputs x and y.
class PortEdits : public CompoundTest {
 protected:
  PortEdits() {
    run("/", "-create group");
    run("/group", "-cip a float -cip b float -cip c float -cop x float -cop y float");
  }

  std::string inputs() { return run("/group", "-listPorts -inputPort"); }
  std::string outputs() { return run("/group", "-listPorts -outputPort"); }
  std::string type(const std::string& port) { return run("/group", "-queryPortDataType " + port); }
};

TEST_F(PortEdits, RenamingGivesThePortTheNewNameAndItsPlace) {
  run("/group", "-renamePort b size");
  EXPECT_EQ(inputs(), R"(["a","size","c"])");
}

TEST_F(PortEdits, RenamesAreDoneInTheOrderOfTheirUses) {
  run("/group", "-renamePort a d -renamePort d e -renamePort b a");
  EXPECT_EQ(inputs(), R"(["e","a","c"])");
}

TEST_F(PortEdits, ARenameToATakenNameGetsANumber) {
  run("/group", "-renamePort x a");
  EXPECT_EQ(outputs(), R"(["a1","y"])");
}

TEST_F(PortEdits, APortThatTheLineMakesCanBeEditedInIt) {
  run("/group", "-renamePort new size -hidePort size true -createInputPort new float");
  EXPECT_EQ(inputs(), R"(["a","b","c","size"])");
  EXPECT_THAT(stored(), HasSubstr("flags size hidden\n"));
}

TEST_F(PortEdits, MovingPutsThePortToAPositionAmongItsDirection) {
  run("/group", "-movePort c 0");
  EXPECT_EQ(inputs(), R"(["c","a","b"])");
  run("/group", "-movePort y 0");
  EXPECT_EQ(outputs(), R"(["y","x"])");
  EXPECT_EQ(inputs(), R"(["c","a","b"])");
}

TEST_F(PortEdits, APositionPastTheEndIsTheEnd) {
  run("/group", "-movePort a 4294967295");
  EXPECT_EQ(inputs(), R"(["b","c","a"])");
}

TEST_F(PortEdits, MovingToAnInputNodeShowsTheInputThere) {
  run("/group", "-addIONode true");
  run("/group", "-movePortToIONode b input");
  EXPECT_THAT(stored(), HasSubstr("io in input\n      show b\n"));
}

TEST_F(PortEdits, MovingToAnOutputNodeShowsTheOutputThere) {
  run("/group", "-addIONode false");
  run("/group", "-movePortToIONode y output");
  EXPECT_THAT(stored(), HasSubstr("io out output\n      show y\n"));
}

TEST_F(PortEdits, HidingAndShowingSetsTheFlagOfThePort) {
  run("/group", "-hidePort a true");
  EXPECT_THAT(stored(), HasSubstr("flags a hidden\n"));
  run("/group", "-hidePort a false");
  EXPECT_THAT(stored(), Not(HasSubstr("flags a")));
}

TEST_F(PortEdits, HidingLeavesOtherFlagsAlone) {
  run("/group", "-createInputPort d float -portFlags 8");
  run("/group", "-hidePort d true");
  EXPECT_THAT(stored(), HasSubstr("flags d hidden 8\n"));
  run("/group", "-hidePort d false");
  EXPECT_THAT(stored(), HasSubstr("flags d 8\n"));
}

TEST_F(PortEdits, ShowingAPortThatIsShownIsAnEditAllTheSame) {
  const auto before = host.steps().size();
  run("/group", "-hidePort a false");
  EXPECT_EQ(host.steps().size(), before + 1);
}

TEST_F(PortEdits, ThePortGetsTheNewType) {
  run("/group", "-setPortDataType a color3");
  EXPECT_EQ(type("a"), "\"color3\"");
  EXPECT_EQ(type("b"), "\"float\"");
}

TEST_F(PortEdits, MetadataOfAPortIsSetByItsKey) {
  run("/group", "-setPortMetaDataValue a niceName \"Base color\"");
  EXPECT_EQ(run("/group", "-queryPortMetaDataValue a niceName"), "\"Base color\"");
}

TEST_F(PortEdits, AnEmptyMetadataValueRemovesTheKey) {
  run("/group", "-setPortMetaDataValue a k v");
  run("/group", "-setPortMetaDataValue a k \"\"");
  EXPECT_THAT(stored(), Not(HasSubstr("port-metadata")));
}

TEST_F(PortEdits, MetadataOfAPortThatIsNotThereIsPassedOver) {
  const std::string before = stored();
  run("/group", "-setPortMetaDataValue nosuch k v");
  EXPECT_EQ(stored(), before);
}

TEST_F(PortEdits, MetadataOfAPortThatIsNotThereIsAnEditAllTheSame) {
  const auto before = host.steps().size();
  run("/group", "-setPortMetaDataValue nosuch k v");
  EXPECT_EQ(host.steps().size(), before + 1);
}

TEST_F(PortEdits, AMetadataEditThatTheLibraryDoesNotRecordIsPassedOver) {
  const std::string before = stored();
  const orvlib::ArmedFault fault("ModifyCompoundPortCommand setPortMetaDataValue");
  run("/group", "-setPortMetaDataValue a k v");
  EXPECT_TRUE(fault.refused());
  EXPECT_EQ(stored(), before);
}

TEST_F(PortEdits, EachUseOfDeletePortTakesAPortOut) {
  run("/group", "-deletePort a -deletePort y -deletePort c");
  EXPECT_EQ(inputs(), R"(["b"])");
  EXPECT_EQ(outputs(), R"(["x"])");
}

TEST_F(PortEdits, APortThatTheLineMakesIsDeletedAgain) {
  const std::string before = stored();
  run("/group", "-deletePort d -createInputPort d float");
  EXPECT_EQ(stored(), before);
}

TEST_F(PortEdits, EditsOfOnePortAreDoneInTheOrderOfTheCommandWhateverThatOfTheLine) {
  run("/group",
      "-setPortMetaDataValue e k v -setPortDataType e int -hidePort e true -movePort e 0 "
      "-renamePort d e -createInputPort d float");
  EXPECT_EQ(inputs(), R"(["e","a","b","c"])");
  EXPECT_EQ(type("e"), "\"int\"");
  EXPECT_THAT(stored(), HasSubstr("flags e hidden\n"));
  EXPECT_EQ(run("/group", "-queryPortMetaDataValue e k"), "\"v\"");
}

TEST_F(PortEdits, PortsAreEditedAfterNodesAreAdded) {
  run("/group", "-renamePort a size -addNode core::math::add -connectTo a");
  EXPECT_THAT(stored(), HasSubstr("wire .size add.a\n"));
}

TEST_F(PortEdits, PortsOfACompoundThatIsNotEditableStay) {
  run("/group", "-addIONode true");
  run("/group", "-setMetaData locked true");
  const std::string before = stored();
  for (const char* flags :
       {"-renamePort a d", "-movePort a 1", "-movePortToIONode a input", "-hidePort a true",
        "-setPortDataType a int", "-setPortMetaDataValue a k v", "-deletePort a"}) {
    EXPECT_THAT(refusal("/group", flags), ElementsAre("! The compound is not editable")) << flags;
    EXPECT_EQ(stored(), before) << flags;
  }
}

TEST_F(PortEdits, PortsOfTheTopCompoundAreEditedAlike) {
  run("/", "-createInputPort a float");
  run("/", "-renamePort a b -hidePort b true");
  EXPECT_EQ(run("/", "-listPorts"), R"(["b"])");
  EXPECT_THAT(stored(), HasSubstr("flags b hidden\n"));
}

}  // namespace
