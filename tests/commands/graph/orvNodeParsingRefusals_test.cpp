// What a line is refused for, one flag at a time, and that nothing of it happens.

#include "tests/commands/graph/NodeReading.h"

namespace {

using orvlib::ArmedFault;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kNoName = "! The port name  cannot be empty";

std::string notFound(const std::string& port) {
  return "! A port named " + port + " was not found on a";
}

class NodeParsingRefusals : public NodeReadingTest {
 protected:
  /// A refusal with one call of the library refused, ahead of which other edits were recorded.
  Texts refusalWith(const char* fault, const std::string& flags) {
    const ArmedFault armed(fault);
    EXPECT_TRUE(armed.isArmed()) << fault;
    Texts told = refusalOfAll("/a", "-setMetaData k v " + flags);
    EXPECT_TRUE(armed.refused()) << fault;
    return told;
  }
};

TEST_F(NodeParsingRefusals, AnEmptyPortNameIsToldOfByEachFlagThatNamesAPort) {
  for (const char* flags :
       {"-spv \"\" 1", "-rpv \"\"", "-cip \"\" float", "-cop \"\" float", "-cip \"\" \"\"",
        "-dp \"\"", "-qpv \"\"", "-qpt \"\"", "-lpc \"\"", "-qpm \"\" k", "-qpm \"\" \"\""}) {
    EXPECT_THAT(refusalOfAll("/a", flags), ElementsAre(kNoName)) << flags;
  }
}

TEST_F(NodeParsingRefusals, AnEmptyKeyOfAQueryIsToldOfAsAnEmptyPortName) {
  EXPECT_THAT(refusalOfAll("/a", "-qpm own \"\""),
              ElementsAre("! The port name own cannot be empty"));
}

TEST_F(NodeParsingRefusals, ATypeNeedsAPortAndAName) {
  EXPECT_THAT(refusalOfAll("/a", "-spt \"\" int"),
              ElementsAre("! The port name  and the data type int cannot be empty"));
  EXPECT_THAT(refusalOfAll("/a", "-spt own \"\""),
              ElementsAre("! The port name own and the data type  cannot be empty"));
  EXPECT_THAT(refusalOfAll("/a", "-spt \"\" \"\""),
              ElementsAre("! The port name  and the data type  cannot be empty"));
}

TEST_F(NodeParsingRefusals, PortMetadataNeedAPortAndAKey) {
  EXPECT_THAT(refusalOfAll("/a", "-spm \"\" k v"),
              ElementsAre("! The port name  and the metadata name k cannot be empty"));
  EXPECT_THAT(refusalOfAll("/a", "-spm own \"\" v"),
              ElementsAre("! The port name own and the metadata name  cannot be empty"));
}

TEST_F(NodeParsingRefusals, PortMetadataMayHaveNoValue) {
  run("/a", "-spm own k v");
  run("/a", "-spm own k \"\"");
  EXPECT_EQ(metadata("/a.own", "k"), "");
}

TEST_F(NodeParsingRefusals, APortThatIsNotThereIsNamedWithTheNode) {
  for (const char* flags : {"-spv nobody 1", "-rpv nobody", "-spt nobody int"}) {
    EXPECT_THAT(refusalOfAll("/a", flags), ElementsAre(notFound("nobody"))) << flags;
  }
}

TEST_F(NodeParsingRefusals, TheNodeIsNamedByItsNameAndNotByItsPath) {
  build("/", "-create box");
  build("/box", "-addNode core::math::add");
  EXPECT_THAT(refusalOfAll("/box/add", "-rpv nobody"),
              ElementsAre("! A port named nobody was not found on add"));
  EXPECT_THAT(refusalOfAll("/", "-rpv nobody"),
              ElementsAre("! A port named nobody was not found on top"));
}

// The message speaks of the port, which is there.
TEST_F(NodeParsingRefusals, ATypeThatIsNotKnownIsToldOfAsAMissingPort) {
  EXPECT_THAT(refusalOfAll("/a", "-spt own nonsense"), ElementsAre(notFound("own")));
}

TEST_F(NodeParsingRefusals, APortOfTheDefinitionKeepsItsTypeAndIsToldOfAsMissing) {
  EXPECT_THAT(refusalOfAll("/a", "-spt a int"), ElementsAre(notFound("a")));
}

TEST_F(NodeParsingRefusals, ValuesThatCannotBeReadAreToldOfAsAMissingPort) {
  for (const char* values : {"nonsense", "{1,2}", "\"{1\"", "\"\"", "\"{}\"", "\" 1\""}) {
    EXPECT_THAT(refusalOfAll("/a", std::string("-spv own ") + values), ElementsAre(notFound("own")))
        << values;
  }
}

TEST_F(NodeParsingRefusals, AnOutputThatIsComputedHasNoValueToSet) {
  EXPECT_THAT(refusalOfAll("/a", "-spv result 1"), ElementsAre(notFound("result")));
  EXPECT_THAT(refusalOfAll("/a", "-rpv result"), ElementsAre(notFound("result")));
}

TEST_F(NodeParsingRefusals, ATypeThatIsNotKnownMakesNoPort) {
  EXPECT_THAT(refusalOfAll("/a", "-cip p magic"), ElementsAre("! Unknown port type magic"));
  EXPECT_THAT(refusalOfAll("/a", "-cop p magic"), ElementsAre("! Unknown port type magic"));
  EXPECT_THAT(refusalOfAll("/a", "-cip p magic -cpv 1"), ElementsAre("! Unknown port type magic"));
}

TEST_F(NodeParsingRefusals, AnEmptyTypeIsLeftToTheLibrary) {
  EXPECT_THAT(refusalOfAll("/a", "-cip p \"\""), ElementsAre(kUnknownNoType));
  EXPECT_THAT(refusalOfAll("/a", "-cop p \"\""), ElementsAre(kUnknownNoType));
}

TEST_F(NodeParsingRefusals, ANodeThatTakesNoPortsIsToldOfAsAnUnknownType) {
  build("/", "-addIONode true");
  EXPECT_THAT(refusalOfAll("/input", "-cip p float"), ElementsAre("! Unknown port type float"));
}

TEST_F(NodeParsingRefusals, OptionsThatCannotBeReadAreShown) {
  for (const char* flag : {"-cip", "-cop"}) {
    EXPECT_THAT(refusalOfAll("/a", std::string(flag) + " p float -cpo \"{unit\""),
                ElementsAre("! Invalid port options \"{unit\""));
  }
}

TEST_F(NodeParsingRefusals, OptionsAreReadAheadOfTheType) {
  EXPECT_THAT(refusalOfAll("/a", "-cip p magic -cpo \"{unit\""),
              ElementsAre("! Invalid port options \"{unit\""));
}

TEST_F(NodeParsingRefusals, AnEmptyNameIsToldOfAheadOfTheOptions) {
  EXPECT_THAT(refusalOfAll("/a", "-cip \"\" float -cpo \"{unit\""), ElementsAre(kNoName));
}

TEST_F(NodeParsingRefusals, AnOutputThatIsRefusedTakesTheInputWithIt) {
  EXPECT_THAT(refusalOfAll("/a", "-cip p float -cop q magic"),
              ElementsAre("! Unknown port type magic"));
}

// The message has a type that nothing names.
TEST_F(NodeParsingRefusals, APortThatCannotBeDeletedIsToldOfAsATypeOfNoName) {
  EXPECT_THAT(refusalOfAll("/a", "-dp nobody"), ElementsAre(kUnknownNoType));
  EXPECT_THAT(refusalOfAll("/a", "-dp a"), ElementsAre(kUnknownNoType)) << "of the definition";
}

TEST_F(NodeParsingRefusals, MetadataOfAPortThatIsNotThereAreLeftOutWithoutAWord) {
  const std::string before = stored();
  run("/a", "-spm nobody k v");
  EXPECT_EQ(stored(), before);
  EXPECT_THAT(host.steps(), ElementsAre(testing::_)) << "and the line is kept";
  undo();
  EXPECT_EQ(stored(), before);
}

TEST_F(NodeParsingRefusals, MetadataThatCannotBeRecordedAreLeftOutWithoutAWord) {
  const ArmedFault armed("ModifyNodePortCommand setPortMetaDataValue");
  run("/a", "-spm own k v -cip p float");
  EXPECT_TRUE(armed.refused());
  EXPECT_EQ(metadata("/a.own", "k"), "");
  EXPECT_THAT(ports("/a"), ElementsAre("a", "b", "own", "p", "result"));
}

TEST_F(NodeParsingRefusals, WhatTheLibraryDoesNotRecordIsToldOfByItsFlag) {
  EXPECT_THAT(refusalWith("ModifyNodePortCommand setPortValues", "-spv own 1"),
              ElementsAre(notFound("own")));
  EXPECT_THAT(refusalWith("ModifyNodePortCommand resetPortValues", "-spv own 1 -rpv own"),
              ElementsAre(notFound("own")));
  EXPECT_THAT(refusalWith("ModifyNodePortCommand setPortType", "-spv own 1 -spt own int"),
              ElementsAre(notFound("own")));
  EXPECT_THAT(refusalWith("ModifyNodePortCommand createPort", "-spv own 1 -cip p float"),
              ElementsAre("! Unknown port type float"));
  EXPECT_THAT(refusalWith("ModifyNodePortCommand createPort", "-spv own 1 -cop p int"),
              ElementsAre("! Unknown port type int"));
  EXPECT_THAT(refusalWith("ModifyNodePortCommand deletePort", "-cip p float -dp own"),
              ElementsAre(kUnknownNoType));
}

TEST_F(NodeParsingRefusals, OptionsThatTheLibraryCannotReadAreShown) {
  EXPECT_THAT(refusalWith("PropertyList unserialize", "-cip p float -cpo \"{unit=px}\""),
              ElementsAre("! Invalid port options \"{unit=px}\""));
}

TEST_F(NodeParsingRefusals, ValuesThatTheLibraryCannotReadRefuseAnEditAndNotANewPort) {
  EXPECT_THAT(refusalWith("Port unserializePortValuesString", "-spv own 1"),
              ElementsAre(notFound("own")));
  const ArmedFault armed("Port unserializePortValuesString");
  run("/a", "-cip p float -cpv 4");
  EXPECT_TRUE(armed.refused());
  EXPECT_THAT(values("/a.p"), ElementsAre("0"));
}

TEST_F(NodeParsingRefusals, WhetherMetadataAreBoundAndRecordedIsNotAsked) {
  for (const char* fault : {"MetadataCommand setMetadata", "MetadataCommand addMetadata",
                            "MetadataCommand removeMetadata", "MetadataCommand clearMetadata",
                            "MetadataCommand setFromPropertyList"}) {
    const ArmedFault armed(fault);
    run("/a", "-smd k v -amd k w -rmd k v -cmd none -mfs \"{}\" -cip p float");
    EXPECT_TRUE(armed.refused()) << fault;
    undo();
  }
}

TEST_F(NodeParsingRefusals, ARefusedStateFlagTakesTheEditsWithIt) {
  EXPECT_THAT(refusalOfAll("/", "-cip p float -setMetaData k v -ssf e false"), IsEmpty());
}

TEST_F(NodeParsingRefusals, ALineAfterARefusedOneStartsAnew) {
  refusal("/a", "-cip p float -cop q magic");
  run("/a", "-cip r float");
  EXPECT_THAT(ports("/a"), ElementsAre("a", "b", "own", "r", "result"));
}

}  // namespace
