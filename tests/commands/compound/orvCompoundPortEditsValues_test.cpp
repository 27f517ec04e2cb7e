// -setPortDefaultValues and -resetPortDefaultValues.

#include "tests/commands/compound/CompoundTesting.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace {

/// A compound /group with inputs of several types and an output.
class PortValues : public CompoundTest {
 protected:
  PortValues() {
    run("/", "-create group");
    run("/group", "-cip size float -cip color color3 -cip text string -cip list array<float>");
    run("/group", "-cop result float");
  }

  void set(const std::string& port, const std::string& values) {
    run("/group", "-setPortDefaultValues " + port + " " + values);
  }
  std::string values(const std::string& port) {
    return run("/group", "-queryPortDefaultValues " + port);
  }
};

TEST_F(PortValues, AValueOfOneComponentIsOneText) {
  set("size", "2.5");
  EXPECT_EQ(values("size"), "\"2.5\"");
}

TEST_F(PortValues, AValueOfSeveralComponentsIsAList) {
  set("color", "{0.25,0.5,1}");
  EXPECT_EQ(values("color"), R"(["0.25","0.5","1"])");
}

TEST_F(PortValues, AnArrayIsAListOfAnyLength) {
  set("list", "{1,2,3,4}");
  EXPECT_EQ(values("list"), R"(["1","2","3","4"])");
  set("list", "{}");
  EXPECT_EQ(values("list"), "[]");
}

TEST_F(PortValues, ATextMayBeEmpty) {
  set("text", "there");
  set("text", "\"\"");
  EXPECT_EQ(values("text"), "\"\"");
}

TEST_F(PortValues, AnOutputHasAValueToo) {
  set("result", "3");
  EXPECT_EQ(values("result"), "\"3\"");
}

TEST_F(PortValues, AComponentIsSetByItsPath) {
  set("color.g", "0.75");
  EXPECT_EQ(values("color"), R"(["0","0.75","0"])");
}

TEST_F(PortValues, ResettingGivesTheValueOfTheType) {
  set("color", "{1,2,3}");
  run("/group", "-resetPortDefaultValues color");
  EXPECT_EQ(values("color"), R"(["0","0","0"])");
  EXPECT_THAT(stored(), Not(HasSubstr("value color")));
}

TEST_F(PortValues, AComponentIsResetByItsPath) {
  set("color", "{1,2,3}");
  run("/group", "-resetPortDefaultValues color.g");
  EXPECT_EQ(values("color"), R"(["1","0","3"])");
}

TEST_F(PortValues, SettingIsRecordedAheadOfResettingWhereverTheyStand) {
  run("/group", "-resetPortDefaultValues size -setPortDefaultValues size 2");
  EXPECT_EQ(values("size"), "\"0\"");
}

TEST_F(PortValues, ValuesThatDoNotFitAreToldAsAPortThatIsNotThere) {
  const std::string before = stored();
  const auto expected = ElementsAre("! A port named size was not found on group");
  EXPECT_THAT(refusal("/group", "-setPortDefaultValues size wide"), expected);
  EXPECT_THAT(refusal("/group", "-setPortDefaultValues size {1,2}"), expected);
  EXPECT_THAT(refusal("/group", "-setPortDefaultValues size {1"), expected);
  EXPECT_THAT(refusal("/group", "-setPortDefaultValues size \"\""), expected);
  EXPECT_EQ(stored(), before);
}

/// Whether the text could be read is not asked: what is left is a list of none, which an array
/// takes.
TEST_F(PortValues, TextThatCannotBeReadEmptiesAnArray) {
  set("list", "{1,2}");
  set("list", "{1,wide}");
  EXPECT_EQ(values("list"), "[]");
}

TEST_F(PortValues, ValuesAreReadByTheTypeThatThePortHasAheadOfTheLine) {
  EXPECT_THAT(refusal("/group", "-setPortDataType size string -setPortDefaultValues size wide"),
              ElementsAre("! A port named size was not found on group"));
}

TEST_F(PortValues, AValueIsSetAheadOfTheOtherEditsOfItsPort) {
  run("/group", "-setPortDefaultValues size 2.5 -renamePort size count -setPortDataType count int");
  EXPECT_EQ(values("count"), "\"2\"");
}

TEST_F(PortValues, ALineWithValuesAloneIsUndoable) {
  const auto before = host.steps().size();
  set("size", "2");
  run("/group", "-resetPortDefaultValues size");
  EXPECT_EQ(host.steps().size(), before + 2);
}

TEST_F(PortValues, ValuesOfACompoundThatIsNotEditableAreSet) {
  run("/group", "-setMetaData locked true");
  set("size", "2");
  EXPECT_EQ(values("size"), "\"2\"");
  run("/group", "-resetPortDefaultValues size");
  EXPECT_EQ(values("size"), "\"0\"");
}

TEST_F(PortValues, BesideAnotherEditTheyAreSetAheadOfTheRefusal) {
  run("/group", "-setMetaData locked true");
  EXPECT_THAT(refusal("/group", "-setPortDefaultValues size 2 -hidePort size true"),
              ElementsAre("! The compound is not editable"));
  EXPECT_EQ(values("size"), "\"2\"");
  EXPECT_THAT(stored(), Not(HasSubstr("flags size")));
}

TEST_F(PortValues, AValueThatCannotBeSetFailsNothing) {
  const std::string before = stored();
  const orvlib::ArmedFault fault("ModifyCompoundPortCommand redo");
  EXPECT_EQ(run("/group", "-setPortDefaultValues size 2 -listPorts -outputPort"), R"(["result"])");
  EXPECT_TRUE(fault.refused());
  EXPECT_EQ(stored(), before);
}

TEST_F(PortValues, AValueThatCannotBeSetLeavesTheOtherEditsOfTheLine) {
  const orvlib::ArmedFault fault("edit setPortValue");
  run("/group", "-setPortDefaultValues size 2 -hidePort size true");
  EXPECT_EQ(values("size"), "\"0\"");
  EXPECT_THAT(stored(), HasSubstr("flags size hidden\n"));
}

TEST_F(PortValues, ThePortEditsThatFailAfterwardsLeaveTheValueSet) {
  const orvlib::ArmedFault fault("ModifyCompoundPortCommand redo", 2);
  EXPECT_THAT(refusal("/group", "-setPortDefaultValues size 2 -hidePort size true"), IsEmpty());
  EXPECT_EQ(values("size"), "\"2\"");
}

/// The decoding of the values is not asked for its answer, so what refuses is the recording.
TEST_F(PortValues, ValuesThatTheLibraryDoesNotReadAreToldAsAPortThatIsNotThere) {
  const orvlib::ArmedFault fault("Port unserializePortValuesString");
  EXPECT_THAT(refusal("/group", "-setPortDefaultValues size 2"),
              ElementsAre("! A port named size was not found on group"));
  EXPECT_TRUE(fault.refused());
}

TEST_F(PortValues, UndoGivesTheFormerValueBack) {
  sweep("/group", "-setPortDefaultValues size 2");
  sweep("/group", "-setPortDefaultValues color.g 2");
  set("color", "{1,2,3}");
  set("list", "{1,2,3}");
  sweep("/group", "-setPortDefaultValues color {4,5,6}");
  sweep("/group", "-setPortDefaultValues list {}");
  sweep("/group", "-resetPortDefaultValues color");
  sweep("/group", "-resetPortDefaultValues color.r");
}

TEST_F(PortValues, UndoOfAValueBesideOtherEditsGivesBothBack) {
  set("size", "1");
  sweep("/group", "-setPortDefaultValues size 2.5 -renamePort size width -hidePort width true");
}

TEST_F(PortValues, AValueThatCouldNotBeSetIsNotUndone) {
  set("size", "1");
  {
    const orvlib::ArmedFault fault("ModifyCompoundPortCommand redo");
    set("size", "2");
  }
  undo();
  EXPECT_EQ(values("size"), "\"1\"");
}

}  // namespace
