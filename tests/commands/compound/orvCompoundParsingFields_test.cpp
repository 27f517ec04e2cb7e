// What reading a line leaves in the fields of the command.

#include "tests/commands/compound/CompoundReading.h"

namespace {

using testing::ElementsAre;
using Cmd = orvCompoundCmd;

class CompoundFields : public CompoundReadingTest {
 protected:
  CompoundFields() {
    run("/", "-create a");
    run("/", "-create b");
    host.session().undoQueue().clear();
  }
};

TEST_F(CompoundFields, CreateKeepsTheName) {
  const ReadCompound& read = this->read("-create n");
  EXPECT_EQ(read.newCompound, "n");
}

TEST_F(CompoundFields, WhatIsToBeMovedAndExplodedAndResetIsKeptInTheOrderOfTheLine) {
  const ReadCompound& read =
      this->read("-mi z -ec b -mai y -rtf t -mi x -rtf s -ec a -mai w -rtf t");
  EXPECT_THAT(read.moved, ElementsAre("z", "x"));
  EXPECT_THAT(read.movedAnnotations, ElementsAre("y", "w"));
  EXPECT_THAT(read.exploded, ElementsAre("b", "a"));
  EXPECT_THAT(read.reset, ElementsAre("t", "s", "t"));
}

TEST_F(CompoundFields, RenamesAreKeptInTheOrderOfTheLineWhetherOrNotThereIsSuchANode) {
  EXPECT_THAT(read("-rn nothing x -rn a y -rn nothing z").renames,
              ElementsAre("nothing>x", "a>y", "nothing>z"));
}

TEST_F(CompoundFields, ARenameOfNothingIsToldWhenItIsCarriedOut) {
  run("/", "-renameNode nothing x");
  EXPECT_THAT(host.takeMessages(), ElementsAre("! Node named nothing was not found in /"));
}

TEST_F(CompoundFields, SaveAsKeepsItsText) { EXPECT_EQ(read("-saveAs f").savedName, "f"); }

TEST_F(CompoundFields, PublishKeepsItsFourArguments) {
  const ReadCompound read = this->read("-publish n l d true");
  EXPECT_EQ(read.savedName, "n");
  EXPECT_EQ(read.publish2, "l");
  EXPECT_EQ(read.publish3, "d");
  EXPECT_TRUE(read.publishFlag);
  EXPECT_FALSE(this->read("-publish n l d false").publishFlag);
}

TEST_F(CompoundFields, PublishGraphKeepsItsFourTexts) {
  const ReadCompound& read = this->read("-publishGraph n l d f");
  EXPECT_EQ(read.savedName, "n");
  EXPECT_EQ(read.publishGraph2, "l");
  EXPECT_EQ(read.publishGraph3, "d");
  EXPECT_EQ(read.publishGraph4, "f");
  EXPECT_EQ(read.publish2, "");
  EXPECT_EQ(read.publish3, "");
}

TEST_F(CompoundFields, AddStatePortsKeepsItsTexts) {
  const ReadCompound& read = this->read("-addStatePorts i o nonsense");
  EXPECT_EQ(read.statePort1, "i");
  EXPECT_EQ(read.statePort2, "o");
  EXPECT_EQ(read.stateType, "nonsense");
}

TEST_F(CompoundFields, SetIsReferencedKeepsItsValueAndIsAnEditEitherWay) {
  EXPECT_TRUE(read("-setIsReferenced true").isReferenced);
  const ReadCompound& read = this->read("-setIsReferenced false");
  EXPECT_FALSE(read.isReferenced);
  EXPECT_EQ(read.edit, Cmd::kEditSetIsReferenced);
}

TEST_F(CompoundFields, CanResetToFactoryKeepsItsName) {
  EXPECT_EQ(read("-canResetToFactory \"\"").canReset, "");
  EXPECT_EQ(read("-canResetToFactory n").canReset, "n");
}

TEST_F(CompoundFields, QueriesOfMetadataKeepNameAndKey) {
  const ReadCompound& read = this->read("-qam an ak -qpm pn pk");
  EXPECT_EQ(read.annotation, "an");
  EXPECT_EQ(read.annotationKey, "ak");
  EXPECT_EQ(read.port, "pn");
  EXPECT_EQ(read.portKey, "pk");
}

// A path for a file or a node is not looked at before it is needed.
TEST_F(CompoundFields, TextsMayBeEmptyWhereNothingSaysOtherwise) {
  const ReadCompound& read = this->read(
      "-create \"\" -mi \"\" -mai \"\" -rtf \"\" -rn \"\" \"\" -saveAs \"\" -asp \"\" \"\" \"\"");
  EXPECT_THAT(read.moved, ElementsAre(""));
  EXPECT_THAT(read.movedAnnotations, ElementsAre(""));
  EXPECT_THAT(read.reset, ElementsAre(""));
  EXPECT_THAT(read.renames, ElementsAre(">"));
  EXPECT_EQ(read.edit, Cmd::kEditCreate | Cmd::kEditRenameNodes | Cmd::kEditAddStatePorts |
                           Cmd::kEditResetToFactory);
  EXPECT_EQ(read.query, Cmd::kQuerySaveAs);
  EXPECT_THAT(host.takeMessages(),
              ElementsAre("? Node named  was not found and will not be moved into ",
                          "? Backdrop/Sticky named  was not found and will not be moved into "));
}

TEST_F(CompoundFields, ListPortsWithoutADirectionListsBoth) {
  EXPECT_EQ(read("-lp").listPorts, Cmd::kListPortInputs | Cmd::kListPortOutputs);
}

TEST_F(CompoundFields, ListPortsOfBothDirectionsListsBoth) {
  EXPECT_EQ(read("-lp -ip -op").listPorts, Cmd::kListPortInputs | Cmd::kListPortOutputs);
}

TEST_F(CompoundFields, ListPortsOfOneDirectionLeavesOutTheOther) {
  EXPECT_EQ(read("-lp -ip").listPorts, Cmd::kListPortInputs);
  EXPECT_EQ(read("-lp -op").listPorts, Cmd::kListPortOutputs);
}

TEST_F(CompoundFields, ListPortsKeepsWhetherTheyAreToBeConnected) {
  const ReadCompound connected = read("-lp -ip -cn true");
  EXPECT_EQ(connected.listPorts, Cmd::kListPortInputs | Cmd::kListPortConnected);
  EXPECT_TRUE(connected.listPortConnected);
  const ReadCompound free = read("-lp -ip -cn false");
  EXPECT_EQ(free.listPorts, Cmd::kListPortInputs | Cmd::kListPortConnected);
  EXPECT_FALSE(free.listPortConnected);
}

TEST_F(CompoundFields, ListNodesWithoutFiltersSetsNone) {
  const ReadCompound& read = this->read("-ln");
  EXPECT_EQ(read.listNodes, 0u);
  EXPECT_EQ(read.query, Cmd::kQueryListNodes);
}

TEST_F(CompoundFields, ListNodesKeepsTheType) {
  const ReadCompound& read = this->read("-ln -nt core::math::add");
  EXPECT_EQ(read.listNodes, Cmd::kListNodeType);
  EXPECT_EQ(read.listType, "core::math::add");
}

TEST_F(CompoundFields, EachFilterOfConnectionsSetsItsBit) {
  EXPECT_EQ(read("-ln -cn true").listNodes, Cmd::kListConnected);
  EXPECT_EQ(read("-ln -cn false").listNodes, Cmd::kListConnected);
  EXPECT_EQ(read("-ln -cti").listNodes, Cmd::kListConnectedToInput);
  EXPECT_EQ(read("-ln -cto").listNodes, Cmd::kListConnectedToOutput);
  const ReadCompound& read = this->read("-ln -ct p");
  EXPECT_EQ(read.listNodes, Cmd::kListConnectedTo);
  EXPECT_EQ(read.listConnectedTo, "p");
}

TEST_F(CompoundFields, ConnectedNodesMayBeFilteredFurther) {
  const ReadCompound& read = this->read("-ln -ct p -cto -cti -nt t -cn true");
  EXPECT_EQ(read.listNodes, 31u);
  EXPECT_TRUE(read.listConnected);
  EXPECT_EQ(read.listConnectedTo, "p");
}

TEST_F(CompoundFields, NodesWithoutConnectionsAreNotFilteredByWhatTheyAreConnectedTo) {
  const ReadCompound& read = this->read("-ln -ct p -cto -cti -nt t -cn false");
  EXPECT_EQ(read.listNodes, Cmd::kListNodeType | Cmd::kListConnected);
  EXPECT_FALSE(read.listConnected);
  EXPECT_EQ(read.listType, "t");
  EXPECT_EQ(read.listConnectedTo, "");
}

TEST_F(CompoundFields, ConnectedGoesUnderEitherName) {
  for (const char* name : {"-cn", "-connected"}) {
    const ReadCompound& read = this->read("-ln -lp -ct p " + std::string(name) + " true");
    EXPECT_TRUE(read.listConnected) << name;
    EXPECT_TRUE(read.listPortConnected) << name;
    EXPECT_EQ(read.listNodes, Cmd::kListConnected | Cmd::kListConnectedTo) << name;
  }
}

TEST_F(CompoundFields, ConnectedIsForBothListsOfALine) {
  const ReadCompound& read = this->read("-cn true -ln -lp");
  EXPECT_EQ(read.listNodes, Cmd::kListConnected);
  EXPECT_EQ(read.listPorts, 7u);
  EXPECT_TRUE(read.listConnected);
  EXPECT_TRUE(read.listPortConnected);
}

TEST_F(CompoundFields, ConnectedIsForTheOneListOfALine) {
  const ReadCompound nodes = read("-cn true -ln");
  EXPECT_TRUE(nodes.listConnected);
  EXPECT_FALSE(nodes.listPortConnected);
  const ReadCompound ports = read("-cn true -lp");
  EXPECT_FALSE(ports.listConnected);
  EXPECT_TRUE(ports.listPortConnected);
}

TEST_F(CompoundFields, AStickyNoteIsMadeForEachUseAndItsTextIsDropped) {
  EXPECT_EQ(read("-asn text").edit, Cmd::kEditAnnotations);
  run("/", "-asn secret -asn secret -asn \"\"");
  EXPECT_THAT(stored(), testing::Not(testing::HasSubstr("secret")));
  for (const char* name : {"note", "note1", "note2"}) {
    run("/", "-sam " + std::string(name) + " k v");
    EXPECT_EQ(run("/", "-qam " + std::string(name) + " k"), "\"v\"") << name;
  }
  run("/", "-sam note3 k v");
  EXPECT_EQ(run("/", "-qam note3 k"), "");
}

/// The queries of one port share the field of its name.
TEST_F(CompoundFields, OfSeveralPortQueriesTheLastThatIsReadNamesThePort) {
  const unsigned both = Cmd::kQueryPortDataType | Cmd::kQueryPortDefaultValues;
  const ReadCompound values = read("-qpv b -qpt a");
  EXPECT_EQ(values.port, "b");
  EXPECT_EQ(values.query, both);
  const ReadCompound key = read("-qpm c k -qpv b -qpt a");
  EXPECT_EQ(key.port, "c");
  EXPECT_EQ(key.query, both | Cmd::kQueryPortMetaDataValue);
  const ReadCompound children = read("-lpc d -qpm c k -qpv b -qpt a");
  EXPECT_EQ(children.port, "d");
  EXPECT_EQ(children.query, both | Cmd::kQueryPortMetaDataValue | Cmd::kQueryListPortChildren);
}

TEST_F(CompoundFields, TwoPortQueriesAskAboutTheOnePort) {
  run("/", "-setPortDefaultValues p 1");
  run("/", "-setPortDefaultValues q 2");
  EXPECT_EQ(run("/", "-queryPortDataType p -queryPortDefaultValues q"), "\"2\"");
  EXPECT_EQ(run("/", "-queryPortDefaultValues q -queryPortDataType p"), "\"2\"");
}

/// Saving and publishing share the field of the name.
TEST_F(CompoundFields, OfSavingAndPublishingTheLastThatIsReadNames) {
  EXPECT_EQ(read("-publish n l d true -saveAs f").savedName, "n");
  EXPECT_EQ(read("-publishGraph m l d f -saveAs f").savedName, "m");
  const ReadCompound& all = read("-publishGraph m l2 d2 f -publish n l d true -saveAs f");
  EXPECT_EQ(all.savedName, "m");
  EXPECT_EQ(all.publish2, "l");
  EXPECT_EQ(all.publishGraph2, "l2");
  EXPECT_EQ(all.query, Cmd::kQuerySaveAs | Cmd::kQueryPublish | Cmd::kQueryPublishGraph);
}

}  // namespace
