// What reading a line leaves in the command.

#include "tests/commands/graph/NodeReading.h"

namespace {

using hosttest::Texts;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

class NodeParsingFields : public NodeReadingTest {};

TEST_F(NodeParsingFields, AFilterOfConnectedNodesIsKeptAUseAtATimeInTheirOrder) {
  const ReadNode& read = this->read("-ct zeta -lcn -connectedTo alpha -ct \"\" -ct alpha");
  EXPECT_THAT(read.connectedTo, ElementsAre("zeta", "alpha", "", "alpha"));
  EXPECT_THAT(read.flags, ElementsAre("listConnectedNodes"));
}

TEST_F(NodeParsingFields, AFilterOfConnectedNodesIsNotReadForAListOfPorts) {
  EXPECT_THAT(read("-ct a -lp").connectedTo, IsEmpty());
}

TEST_F(NodeParsingFields, AListOfPortsIsFilteredOnlyWhereItIsAsked) {
  EXPECT_THAT(read("-lp").flags, ElementsAre("listPorts"));
  EXPECT_THAT(read("-lp -c true").flags,
              ElementsAre("filterConnected", "connectedValue", "listPorts"));
  EXPECT_THAT(read("-c false -lp").flags, ElementsAre("filterConnected", "listPorts"));
  EXPECT_THAT(read("-c true -lcn").flags, ElementsAre("listConnectedNodes"));
}

TEST_F(NodeParsingFields, EachQueryOfAPortKeepsItsName) {
  EXPECT_EQ(read("-qpv one").port, "one");
  EXPECT_EQ(read("-qpt one").port, "one");
  EXPECT_EQ(read("-lpc one").port, "one");
  const ReadNode& metadata = read("-qpm one key");
  EXPECT_EQ(metadata.port, "one");
  EXPECT_EQ(metadata.key, "key");
}

// The order in which flags are read decides, and not that of the line.
TEST_F(NodeParsingFields, OfSeveralQueriesOfPortsTheLastReadHasTheName) {
  EXPECT_EQ(read("-qpt two -qpv one").port, "two");
  EXPECT_EQ(read("-qpm three k -qpt two -qpv one").port, "three");
  EXPECT_EQ(read("-lpc four -qpm three k -qpt two -qpv one").port, "four");
  EXPECT_EQ(read("-qpv one -lpc four").port, "four");
  EXPECT_EQ(read("-qpm three k -qpv one").port, "three");
}

TEST_F(NodeParsingFields, AllQueriesOfALineAreKept) {
  EXPECT_THAT(read("-lpc p -qpm p k -qpt p -qpv p -qtn").flags,
              ElementsAre("queryTypeName", "queryPortDefaultValues", "queryPortDataType",
                          "queryPortMetaDataValue", "listPortChildren"));
}

TEST_F(NodeParsingFields, AQueriedPortIsNotLookedFor) {
  read("-qpv nobody");
  read("-qpt nobody -lpc nobody -qpm nobody k");
}

TEST_F(NodeParsingFields, AQueryIsNotUndoable) {
  EXPECT_FALSE(read("-lcn -lp -qpv a -qpt a -qpm a k -lpc a -qtn -qms -mas").undoable);
}

// State flags. 'e' is 101, and a new node has it on, which is the state 0; 'f' is 102, and off.

TEST_F(NodeParsingFields, AStateFlagIsKeptInverted) {
  EXPECT_THAT(read("-ssf e true").stateChanges, ElementsAre("101:0>0"));
  EXPECT_THAT(read("-ssf e false").stateChanges, ElementsAre("101:0>1"));
  EXPECT_THAT(read("-ssf f true").stateChanges, ElementsAre("102:1>0"));
}

TEST_F(NodeParsingFields, StateFlagsAreKeptAUseAtATimeInTheirOrder) {
  EXPECT_THAT(read("-ssf f true -ssf e false -ssf b true -ssf f false").stateChanges,
              ElementsAre("102:1>0", "101:0>1", "98:1>0", "102:1>1"));
}

TEST_F(NodeParsingFields, TheOldStateIsThatOfTheNodeNotOfTheRecordBefore) {
  EXPECT_THAT(read("-ssf f true -ssf f false -ssf f true").stateChanges,
              ElementsAre("102:1>0", "102:1>1", "102:1>0"));
}

TEST_F(NodeParsingFields, TheOldStateIsWhatALineBeforeLeft) {
  run("/a", "-ssf e false");
  EXPECT_THAT(read("-ssf e true").stateChanges, ElementsAre("101:1>0"));
}

TEST_F(NodeParsingFields, TheFirstCharacterOfAKeyAloneCounts) {
  EXPECT_THAT(read("-ssf frozen true").stateChanges, ElementsAre("102:1>0"));
  EXPECT_THAT(read("-ssf \"f \" true").stateChanges, ElementsAre("102:1>0"));
  EXPECT_THAT(read("-ssf \" f\" true").stateChanges, ElementsAre("32:0>0"));
}

TEST_F(NodeParsingFields, AKeyThatTheNodeLacksIsKeptWithAnOldStateOfZeroAndCounts) {
  const ReadNode& read = this->read("-ssf x false");
  EXPECT_THAT(read.stateChanges, ElementsAre("120:0>1"));
  EXPECT_THAT(read.flags, ElementsAre("hasNodeEdits"));
  EXPECT_TRUE(read.undoable);
}

TEST_F(NodeParsingFields, AKeyIsCaseSensitive) {
  EXPECT_THAT(read("-ssf F true").stateChanges, ElementsAre("70:0>0"));
}

TEST_F(NodeParsingFields, AnEmptyKeyIsTheKeyZero) {
  EXPECT_THAT(read("-ssf \"\" false").stateChanges, ElementsAre("0:0>1"));
}

TEST_F(NodeParsingFields, OfAKeyOfSeveralBytesTheFirstByteCounts) {
  EXPECT_THAT(read("-ssf \"ü\" true").stateChanges, ElementsAre("195:0>0"));
  EXPECT_THAT(read("-ssf \"数据\" true").stateChanges, ElementsAre("230:0>0"));
}

TEST_F(NodeParsingFields, AHundredStateFlagsAreKept) {
  std::string flags;
  for (int i = 0; i < 100; ++i) flags += "-ssf f true ";
  const ReadNode& read = this->read(flags);
  EXPECT_THAT(read.stateChanges, SizeIs(100));
  EXPECT_THAT(read.stateChanges, Each("102:1>0"));
}

// Where state flags are refused, nothing says why.

TEST_F(NodeParsingFields, StateFlagsOfANodeInALockedCompoundAreRefusedWithoutAWord) {
  build("/", "-create box");
  build("/box", "-addNode core::math::add");
  build("/box", "-setMetaData locked true");
  const ReadNode& read = readRefused("-ssf e false", "/box/add");
  EXPECT_THAT(read.stateChanges, IsEmpty());
  EXPECT_THAT(read.flags, Not(Contains("hasNodeEdits")));
  EXPECT_FALSE(read.undoable);
}

TEST_F(NodeParsingFields, ALockedCompoundsOwnFlagsAreThoseOfItsParentsNode) {
  build("/", "-create box");
  build("/box", "-setMetaData locked true");
  EXPECT_THAT(read("-ssf f true", "/box").stateChanges, ElementsAre("102:1>0"));
}

TEST_F(NodeParsingFields, StateFlagsOfTheTopNodeAreRefusedWithoutAWord) {
  const ReadNode& read = readRefused("-ssf e false", "/");
  EXPECT_THAT(read.stateChanges, IsEmpty());
  EXPECT_FALSE(read.undoable);
}

TEST_F(NodeParsingFields, ARefusedStateFlagKeepsWhatWasReadAheadOfIt) {
  const ReadNode& read = readRefused("-lp -qtn -ssf e false", "/");
  EXPECT_THAT(read.flags, ElementsAre("queryTypeName", "listPorts"));
}

TEST_F(NodeParsingFields, AnEditThatWasReadAheadOfARefusedStateFlagStaysRecorded) {
  const ReadNode& read = readRefused("-cip p float -ssf e false", "/");
  EXPECT_TRUE(read.undoable);
  EXPECT_THAT(ports("/"), IsEmpty()) << "and is never carried out";
}

}  // namespace
