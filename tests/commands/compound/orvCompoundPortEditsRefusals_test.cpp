// What port edits refuse, and what they say.

#include "tests/commands/compound/CompoundTesting.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace {

/// A compound /group/inner with the inputs a and b and an output x.
class PortEditRefusals : public CompoundTest {
 protected:
  PortEditRefusals() {
    run("/", "-create group");
    run("/group", "-create inner");
    run(kPath, "-cip a float -cip b float -cop x float");
  }

  /// The line fails with this message, and the graph stays.
  void expectRefusal(const std::string& flags, const std::string& message) {
    const std::string before = stored();
    EXPECT_THAT(refusal(kPath, flags), ElementsAre("! " + message)) << flags;
    EXPECT_EQ(stored(), before) << flags;
  }

  /// The line works as it is, and when the library does not record the edit it fails as if port a
  /// were not there.
  void expectFaultIsNoPort(const std::string& operation, const std::string& flags) {
    {
      const orvlib::ArmedFault fault("ModifyCompoundPortCommand " + operation);
      expectRefusal(flags, "A port named a was not found on inner");
      EXPECT_TRUE(fault.refused()) << operation;
    }
    run(kPath, flags);
  }

  static constexpr const char* kPath = "/group/inner";
};

TEST_F(PortEditRefusals, APortThatIsNotThereIsToldWithTheShortNameOfTheCompound) {
  const std::string message = "A port named nosuch was not found on inner";
  expectRefusal("-renamePort nosuch c", message);
  expectRefusal("-movePort nosuch 0", message);
  expectRefusal("-movePortToIONode nosuch input", message);
  expectRefusal("-hidePort nosuch true", message);
  expectRefusal("-setPortDataType nosuch float", message);
  expectRefusal("-setPortDefaultValues nosuch 1", message);
  expectRefusal("-resetPortDefaultValues nosuch", message);
  expectRefusal("-deletePort nosuch", message);
}

TEST_F(PortEditRefusals, AnEmptyPortNameIsAPortThatIsNotThereWhereNothingElseIsAsked) {
  const std::string message = "A port named  was not found on inner";
  expectRefusal("-renamePort \"\" c", message);
  expectRefusal("-movePort \"\" 0", message);
  expectRefusal("-movePortToIONode \"\" input", message);
  expectRefusal("-hidePort \"\" true", message);
  expectRefusal("-deletePort \"\"", message);
}

TEST_F(PortEditRefusals, AnEmptyPortOrTypeIsToldWithBoth) {
  expectRefusal("-setPortDataType \"\" int",
                "The port name  and the data type int cannot be empty");
  expectRefusal("-setPortDataType a \"\"", "The port name a and the data type  cannot be empty");
  expectRefusal("-setPortDataType \"\" \"\"", "The port name  and the data type  cannot be empty");
}

TEST_F(PortEditRefusals, AnEmptyPortOrKeyIsToldWithBoth) {
  expectRefusal("-setPortMetaDataValue \"\" k v",
                "The port name  and the metadata name k cannot be empty");
  expectRefusal("-setPortMetaDataValue a \"\" v",
                "The port name a and the metadata name  cannot be empty");
  expectRefusal("-setPortMetaDataValue \"\" \"\" v",
                "The port name  and the metadata name  cannot be empty");
}

TEST_F(PortEditRefusals, AnEmptyPortOfAValueEditIsTold) {
  expectRefusal("-setPortDefaultValues \"\" 1", "The port name  cannot be empty");
  expectRefusal("-resetPortDefaultValues \"\"", "The port name  cannot be empty");
}

TEST_F(PortEditRefusals, AnUnknownTypeIsToldAsAPortThatIsNotThere) {
  expectRefusal("-setPortDataType a nosuch", "A port named a was not found on inner");
}

TEST_F(PortEditRefusals, AnIONodeThatIsNotThereIsToldAsAPortThatIsNotThere) {
  expectRefusal("-movePortToIONode a nosuch", "A port named a was not found on inner");
}

TEST_F(PortEditRefusals, AnIONodeOfTheOtherDirectionIsToldAsAPortThatIsNotThere) {
  run(kPath, "-addIONode false -addNode core::math::add");
  expectRefusal("-movePortToIONode a output", "A port named a was not found on inner");
  expectRefusal("-movePortToIONode a add", "A port named a was not found on inner");
}

TEST_F(PortEditRefusals, AnEmptyNewNameIsToldAsAPortThatIsNotThere) {
  expectRefusal("-renamePort a \"\"", "A port named a was not found on inner");
}

TEST_F(PortEditRefusals, ARenameIsRefusedByItsOldName) {
  expectRefusal("-renamePort a c -renamePort nosuch d",
                "A port named nosuch was not found on inner");
}

TEST_F(PortEditRefusals, ADeletionStopsAtThePortThatIsNotThere) {
  expectRefusal("-deletePort a -deletePort nosuch1 -deletePort nosuch2",
                "A port named nosuch1 was not found on inner");
}

TEST_F(PortEditRefusals, APortThatTheLineRenamesIsGoneForLaterEdits) {
  expectRefusal("-renamePort a c -movePort a 1", "A port named a was not found on inner");
  expectRefusal("-renamePort a c -renamePort a d", "A port named a was not found on inner");
}

TEST_F(PortEditRefusals, APortThatTheLineDeletesIsGoneForLaterUses) {
  expectRefusal("-deletePort a -deletePort a", "A port named a was not found on inner");
}

TEST_F(PortEditRefusals, ValuesAreRecordedApartAndDoNotSeeThePortsThatTheLineMakes) {
  expectRefusal("-createInputPort c float -setPortDefaultValues c 1",
                "A port named c was not found on inner");
  expectRefusal("-renamePort a c -resetPortDefaultValues c",
                "A port named c was not found on inner");
}

TEST_F(PortEditRefusals, TheFirstRefusalInTheOrderOfTheCommandIsTold) {
  const std::string flags[] = {"-renamePort no1 c",
                               "-movePort no2 0",
                               "-movePortToIONode no3 n",
                               "-hidePort no4 true",
                               "-setPortDataType no5 int",
                               "-setPortDefaultValues no6 1",
                               "-resetPortDefaultValues no7",
                               "-setPortMetaDataValue \"\" k v",
                               "-deletePort no9"};
  const std::string messages[] = {"A port named no1 was not found on inner",
                                  "A port named no2 was not found on inner",
                                  "A port named no3 was not found on inner",
                                  "A port named no4 was not found on inner",
                                  "A port named no5 was not found on inner",
                                  "A port named no6 was not found on inner",
                                  "A port named no7 was not found on inner",
                                  "The port name  and the metadata name k cannot be empty",
                                  "A port named no9 was not found on inner"};
  std::string line;
  for (std::size_t i = std::size(flags); i > 0; --i) {
    line += flags[i - 1] + " ";
    expectRefusal(line, messages[i - 1]);
  }
}

TEST_F(PortEditRefusals, NothingOfARefusedLineIsCarriedOut) {
  expectRefusal(
      "-addNode core::math::add -setMetaData k v -addBackdrop n -createInputPort c int "
      "-setPortDefaultValues a 2 -deletePort nosuch",
      "A port named nosuch was not found on inner");
}

TEST_F(PortEditRefusals, AnEditThatTheLibraryDoesNotRecordIsAPortThatIsNotThere) {
  run(kPath, "-addIONode true");
  expectFaultIsNoPort("movePort", "-movePort a 1");
  expectFaultIsNoPort("movePort", "-movePortToIONode a input");
  expectFaultIsNoPort("hidePort", "-hidePort a true");
  expectFaultIsNoPort("setPortDataType", "-setPortDataType a int");
  expectFaultIsNoPort("setPortValues", "-setPortDefaultValues a 2");
  expectFaultIsNoPort("resetPortValues", "-resetPortDefaultValues a");
  expectFaultIsNoPort("deletePort", "-deletePort a");
}

TEST_F(PortEditRefusals, ARenameThatTheLibraryDoesNotRecordIsAPortThatIsNotThere) {
  expectFaultIsNoPort("renamePort", "-renamePort a c");
}

TEST_F(PortEditRefusals, TheUseThatTheLibraryDoesNotRecordIsTheOneThatIsTold) {
  const orvlib::ArmedFault fault("ModifyCompoundPortCommand deletePort", 2);
  expectRefusal("-deletePort a -deletePort b", "A port named b was not found on inner");
}

TEST_F(PortEditRefusals, PortEditsThatCannotBeDoneFailTheLineWithoutAMessage) {
  const std::string before = stored();
  const orvlib::ArmedFault fault("ModifyCompoundPortCommand redo");
  EXPECT_THAT(refusal(kPath, "-renamePort a c"), IsEmpty());
  EXPECT_TRUE(fault.refused());
  EXPECT_EQ(stored(), before);
}

TEST_F(PortEditRefusals, OnePortEditThatCannotBeDoneTakesTheOthersBack) {
  const std::string before = stored();
  const orvlib::ArmedFault fault("edit removePort");
  EXPECT_THAT(refusal(kPath, "-createInputPort c float -renamePort a d -deletePort b"), IsEmpty());
  EXPECT_TRUE(fault.refused());
  EXPECT_EQ(stored(), before);
}

TEST_F(PortEditRefusals, PortEditsAreCarriedOutAlsoWhenThereAreNone) {
  const orvlib::ArmedFault fault("ModifyCompoundPortCommand redo");
  EXPECT_THAT(refusal(kPath, "-addNode core::math::add"), IsEmpty());
  EXPECT_TRUE(fault.refused());
}

TEST_F(PortEditRefusals, WhatWasDoneAheadOfThePortEditsStaysWhenTheyFail) {
  const orvlib::ArmedFault fault("ModifyCompoundPortCommand redo");
  EXPECT_THAT(refusal(kPath, "-addNode core::math::add -renamePort a c -renameNode add sum"),
              IsEmpty());
  EXPECT_EQ(run(kPath, "-listNodes"), R"(["add"])") << "and what comes after them is left out";
  EXPECT_EQ(run(kPath, "-listPorts"), R"(["a","b","x"])");
}

TEST_F(PortEditRefusals, PortEditsThatFailLeaveTheQueriesOut) {
  const orvlib::ArmedFault fault("ModifyCompoundPortCommand redo");
  vesk::ResultValue result;
  EXPECT_EQ(host.session().runLine(line(kPath, "-renamePort a c -listPorts"), result).statusCode(),
            StatusFailure);
  EXPECT_EQ(vesk::toJson(result), "");
}

}  // namespace
