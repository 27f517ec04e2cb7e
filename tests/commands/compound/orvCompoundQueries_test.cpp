// The queries of one port, and how the queries of a line add up.

#include "tests/commands/compound/CompoundWiring.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// A compound /group with ports of several types.
class PortQueries : public CompoundTest {
 protected:
  PortQueries() {
    run("/", "-create group");
    run("/group", "-cip size float -cip color color3 -cip list array<float> -cop result float");
    run("/group", "-setPortMetaDataValue size niceName \"The size\"");
  }

  std::string query(const std::string& flags) { return run("/group", flags); }

  void expectRefusal(const std::string& flags, const std::string& message) {
    EXPECT_THAT(refusal("/group", flags), ElementsAre("! " + message)) << flags;
  }
};

TEST_F(PortQueries, ADataTypeIsItsName) {
  EXPECT_EQ(query("-queryPortDataType color"), "\"color3\"");
  EXPECT_EQ(query("-queryPortDataType list"), "\"array<float>\"");
  EXPECT_EQ(query("-queryPortDataType result"), "\"float\"");
}

TEST_F(PortQueries, APortOfTheTopCompoundIsFound) {
  run("/", "-createInputPort a int");
  EXPECT_EQ(run("/", "-queryPortDataType a"), "\"int\"");
}

TEST_F(PortQueries, AChildPortGoesByItsPath) {
  EXPECT_EQ(query("-queryPortDataType color.g"), "\"float\"");
  EXPECT_EQ(query("-queryPortDefaultValues color.g"), "\"0\"");
}

TEST_F(PortQueries, ADefaultValueOfOneTextIsAText) {
  EXPECT_EQ(query("-queryPortDefaultValues size"), "\"0\"");
  run("/group", "-setPortDefaultValues list 7");
  EXPECT_EQ(query("-queryPortDefaultValues list"), "\"7\"");
}

TEST_F(PortQueries, ADefaultValueOfSeveralTextsIsAList) {
  EXPECT_EQ(query("-queryPortDefaultValues color"), R"(["0","0","0"])");
  run("/group", "-setPortDefaultValues list {1,2}");
  EXPECT_EQ(query("-queryPortDefaultValues list"), R"(["1","2"])");
}

TEST_F(PortQueries, ADefaultValueOfNoTextIsAnEmptyList) {
  EXPECT_EQ(query("-queryPortDefaultValues list"), "[]");
}

TEST_F(PortQueries, APortWithNoDefaultValueToGiveIsFalse) {
  const orvlib::ArmedFault fault("Port getPortDefaultValues");
  EXPECT_EQ(query("-queryPortDefaultValues size"), "false");
  EXPECT_TRUE(fault.refused());
}

TEST_F(PortQueries, AMetadataValueIsAText) {
  EXPECT_EQ(query("-queryPortMetaDataValue size niceName"), "\"The size\"");
}

TEST_F(PortQueries, AnUnknownMetadataKeyIsAnEmptyText) {
  EXPECT_EQ(query("-queryPortMetaDataValue size nosuch"), "\"\"");
}

TEST_F(PortQueries, ChildrenAreTheComponentsByName) {
  EXPECT_EQ(query("-listPortChildren color"), R"(["r","g","b"])");
}

TEST_F(PortQueries, ChildrenOfAFanInPortAreItsMembers) {
  run("/group", "-createOutputPort many array<float> -portFlags 2");
  run("/group", "-addNode core::math::add -addNode core::math::add");
  EXPECT_EQ(query("-listPortChildren many"), "[]") << "the list is there, and empty";
  connect(graph, "/group/add.result", "/group.many");
  connect(graph, "/group/add1.result", "/group.many");
  EXPECT_EQ(query("-listPortChildren many"), R"(["item","item1"])");
}

/// The compound's ports are seen from inside, and the members of an input stand outside.
TEST_F(PortQueries, AFanInInputHasNoMembersInside) {
  run("/group", "-createInputPort many array<float> -portFlags 2");
  run("/group", "-createInputPort many.a float");
  EXPECT_EQ(query("-listPortChildren many"), "");
}

TEST_F(PortQueries, APortWithoutChildrenHasNoListOfThem) {
  EXPECT_EQ(query("-listPortChildren size"), "");
}

TEST_F(PortQueries, APortThatIsNotThereHasNoResult) {
  EXPECT_EQ(query("-queryPortDataType nosuch"), "");
  EXPECT_EQ(query("-queryPortDefaultValues nosuch"), "");
  EXPECT_EQ(query("-queryPortMetaDataValue nosuch k"), "");
  EXPECT_EQ(query("-listPortChildren nosuch"), "");
}

TEST_F(PortQueries, OnlyPortsOfTheCompoundItselfAreAskedFor) {
  run("/group", "-addNode core::math::add");
  EXPECT_EQ(query("-queryPortDataType add.a"), "");
  EXPECT_EQ(query("-queryPortDataType a"), "");
}

TEST_F(PortQueries, AnEmptyPortNameIsRefused) {
  const std::string message = "The port name  cannot be empty";
  expectRefusal("-queryPortDataType \"\"", message);
  expectRefusal("-queryPortDefaultValues \"\"", message);
  expectRefusal("-queryPortMetaDataValue \"\" k", message);
  expectRefusal("-listPortChildren \"\"", message);
}

TEST_F(PortQueries, AnEmptyMetadataKeyIsRefusedWithTheNameOfThePort) {
  expectRefusal("-queryPortMetaDataValue size \"\"", "The port name size cannot be empty");
}

TEST_F(PortQueries, ARefusedQueryFailsTheEditsOfItsLineToo) {
  const std::string before = stored();
  expectRefusal("-addNode core::math::add -queryPortDataType \"\"",
                "The port name  cannot be empty");
  EXPECT_EQ(stored(), before);
}

TEST_F(PortQueries, OfSeveralQueriesThePortOfTheLastInTheOrderOfTheCommandIsAsked) {
  EXPECT_EQ(query("-queryPortDefaultValues color -queryPortDataType size"), R"(["0","0","0"])");
  EXPECT_EQ(query("-listPortChildren color -queryPortMetaDataValue size niceName"), "\"\"");
}

TEST_F(PortQueries, MetadataIsPreferredToTheOtherQueries) {
  EXPECT_EQ(query("-queryPortMetaDataValue color k -listPortChildren size "
                  "-queryPortDefaultValues color -queryPortDataType color"),
            "\"\"");
  EXPECT_EQ(query("-queryPortMetaDataValue color niceName -listPortChildren size"), "\"The size\"");
}

TEST_F(PortQueries, ChildrenArePreferredToDefaultValuesAndTypes) {
  EXPECT_EQ(query("-queryPortDefaultValues size -queryPortDataType size -listPortChildren color"),
            R"(["r","g","b"])");
  EXPECT_EQ(query("-queryPortDefaultValues size -listPortChildren size"), "")
      << "also where there are none";
}

TEST_F(PortQueries, DefaultValuesArePreferredToTypes) {
  EXPECT_EQ(query("-queryPortDataType size -queryPortDefaultValues size"), "\"0\"");
}

TEST_F(PortQueries, TheShortFlagsDoTheSame) {
  EXPECT_EQ(query("-qpt color"), "\"color3\"");
  EXPECT_EQ(query("-qpv color"), R"(["0","0","0"])");
  EXPECT_EQ(query("-qpm size niceName"), "\"The size\"");
  EXPECT_EQ(query("-lpc color"), R"(["r","g","b"])");
}

TEST_F(PortQueries, QueriesSeeTheEditsOfTheirLine) {
  EXPECT_EQ(query("-queryPortDataType new -createInputPort new int"), "\"int\"");
  EXPECT_EQ(query("-queryPortDefaultValues size -setPortDefaultValues size 2"), "\"2\"");
}

TEST_F(PortQueries, QueriesAreNoStepToUndo) {
  const auto before = host.steps();
  query("-queryPortDataType size");
  query("-listPorts -queryIsEditable");
  EXPECT_EQ(host.steps(), before);
}

TEST_F(PortQueries, QueriesAreAnsweredInACompoundThatIsNotEditable) {
  run("/group", "-setMetaData locked true");
  EXPECT_EQ(query("-queryPortDataType size"), "\"float\"");
  EXPECT_EQ(query("-listPorts -outputPort"), R"(["result"])");
}

class QueryResults : public CompoundTest {
 protected:
  QueryResults() {
    run("/", "-create group");
    run("/group", "-createInputPort a float -addNode core::math::add -addBackdrop back");
    run("/group", "-setAnnotationMetaDataValue back k annotated -setMetaData k v");
  }

  std::string query(const std::string& flags) { return run("/group", flags); }
};

TEST_F(QueryResults, ALaterQueryTakesThePlaceOfAnEarlierOneWhateverTheOrderOfTheLine) {
  EXPECT_EQ(query("-queryAnnotationMetaDataValue back k -queryPortDataType a"), "\"annotated\"");
  EXPECT_EQ(query("-specializedTypeName -queryAnnotationMetaDataValue back k"), "\"\"");
  EXPECT_EQ(query("-queryIsReferenced -specializedTypeName"), "false");
  EXPECT_EQ(query("-queryMetaData k -queryIsEditable -queryIsImported"), R"(["v"])");
  run("/group", "-create inner");
  EXPECT_EQ(query("-canResetToFactory inner -queryMetaData k"), "false");
  EXPECT_EQ(query("-canResetToFactory inner -listNodes"), "false");
}

TEST_F(QueryResults, OfTheQuestionsOfTheCompoundWhetherItIsEditableComesLast) {
  EXPECT_EQ(query("-queryIsEditable -queryIsImported -queryIsReferenced"), "true");
  EXPECT_EQ(query("-queryIsImported -queryIsReferenced"), "false");
}

TEST_F(QueryResults, AnAnnotationTakesThePlaceOfAListOfPorts) {
  EXPECT_EQ(query("-queryAnnotationMetaDataValue back k -listPorts"), "\"annotated\"");
}

TEST_F(QueryResults, AListOfPortsIsAddedToAText) {
  EXPECT_EQ(query("-queryPortDataType a -listPorts"), R"(["float","a"])");
}

TEST_F(QueryResults, AListOfNodesIsAddedToAListOfPorts) {
  EXPECT_EQ(query("-listNodes -listPorts"), R"(["a","add"])");
}

TEST_F(QueryResults, AMetadataQueryTakesThePlaceOfAListOfPorts) {
  EXPECT_EQ(query("-listPorts -queryMetaData k"), R"(["v"])");
}

TEST_F(QueryResults, AListOfNodesIsAddedToTheAnswersAheadOfIt) {
  EXPECT_EQ(query("-listNodes -queryMetaData k"), R"(["v","add"])");
}

TEST_F(QueryResults, WhatAnEditGaveIsFollowedByWhatALineLists) {
  EXPECT_EQ(query("-addNode core::math::negate -listPorts"), R"(["negate","a"])");
}

TEST_F(QueryResults, QueriesRunAgainOnRedo) {
  run("/", "-createInputPort a float -canResetToFactory nosuch");
  EXPECT_THAT(host.takeMessages(), ElementsAre("! nosuch"));
  undo();
  EXPECT_THAT(host.takeMessages(), IsEmpty());
  redo();
  EXPECT_THAT(host.takeMessages(), ElementsAre("! nosuch"));
}

}  // namespace
