// Flags are read in an order of their own, whatever the order of the line.

#include <algorithm>

#include "tests/commands/graph/NodeReading.h"

namespace {

using hosttest::Texts;
using orvlib::ArmedFault;
using orvlib::FaultPoints;
using testing::ElementsAre;

/// A flag that is refused in a node of the graph, and the message that tells so.
struct Refused {
  const char* flag;
  const char* arguments;
  const char* message;
};

constexpr const char* kNoName = "! The port name  cannot be empty";

// In the order in which they are read; no two neighbours have the same message.
constexpr Refused kRefused[] = {
    {"-spv", "\"\" 1", kNoName},
    {"-rpv", "reset", "! A port named reset was not found on a"},
    {"-spt", "\"\" int", "! The port name  and the data type int cannot be empty"},
    {"-cip", "p input", "! Unknown port type input"},
    {"-cop", "p output", "! Unknown port type output"},
    {"-dp", "nobody", "! Unknown port type "},
    {"-qpv", "\"\"", kNoName},
    {"-qpt", "\"\"", kNoName},
    {"-spm", "\"\" k v", "! The port name  and the metadata name k cannot be empty"},
    {"-qpm", "p \"\"", "! The port name p cannot be empty"},
    {"-lpc", "\"\"", kNoName},
};

std::string written(const Refused& flag) {
  return std::string(flag.flag) + " " + flag.arguments + " ";
}

class NodeParsingOrder : public NodeReadingTest {};

TEST_F(NodeParsingOrder, TheFirstThatIsRefusedIsToldAlone) {
  for (std::size_t first = 0; first < std::size(kRefused); ++first) {
    std::string forward, backward;
    for (std::size_t i = first; i < std::size(kRefused); ++i) {
      forward += written(kRefused[i]);
      backward = written(kRefused[i]) + backward;
    }
    EXPECT_THAT(refusalOfAll("/a", forward), ElementsAre(kRefused[first].message)) << first;
    EXPECT_THAT(refusalOfAll("/a", backward), ElementsAre(kRefused[first].message)) << first;
  }
}

// Of two with the same message, the fields show which was read.
TEST_F(NodeParsingOrder, ValuesAreQueriedAheadOfTypesAndTypesAheadOfChildren) {
  EXPECT_EQ(readRefused("-qpt \"\" -qpv p").port, "");
  EXPECT_THAT(ReadNodeCmd::last.flags, ElementsAre("queryPortDefaultValues"));
  EXPECT_EQ(readRefused("-lpc p -qpt \"\"").port, "");
  EXPECT_EQ(readRefused("-lpc \"\" -qpt p").port, "");
  EXPECT_THAT(ReadNodeCmd::last.flags, ElementsAre("queryPortDataType"));
  host.takeMessages();
}

TEST_F(NodeParsingOrder, ListsAreReadAheadOfEditsAndTheTypeNameBehindTheQueriesOfPorts) {
  EXPECT_THAT(readRefused("-qtn -spv \"\" 1 -lp -lcn").flags,
              ElementsAre("listConnectedNodes", "listPorts"));
  EXPECT_THAT(readRefused("-qtn -lpc \"\"").flags, ElementsAre());
  EXPECT_THAT(readRefused("-lpc p -qtn -ssf e true", "/").flags,
              ElementsAre("queryTypeName", "listPortChildren"));
  host.takeMessages();
}

TEST_F(NodeParsingOrder, TheStateFlagsComeLast) {
  EXPECT_THAT(refusal("/", "-ssf e false -lpc \"\""), ElementsAre(kNoName));
}

/// What the library is asked to record while a line is read.
Texts recordedBy(const std::function<void()>& read) {
  constexpr unsigned kNever = 1'000'000;
  const ArmedFault counting(kNever);
  read();
  Texts names;
  for (const std::string_view name : FaultPoints::askedNames()) {
    if (name.starts_with("ModifyNodePortCommand ")) names.emplace_back(name.substr(22));
  }
  return names;
}

TEST_F(NodeParsingOrder, EditsAreRecordedInItAndNotInThatOfTheLine) {
  const Texts expected = {"setPortValues", "resetPortValues", "setPortType",         "createPort",
                          "createPort",    "deletePort",      "setPortMetaDataValue"};
  EXPECT_EQ(recordedBy([&] {
              read("-spv a 1 -rpv b -spt own int -cip p float -cop q int -dp own -spm a k v");
            }),
            expected);
  EXPECT_EQ(recordedBy([&] {
              read("-spm a k v -dp own -cop q int -cip p float -spt own int -rpv b -spv a 1");
            }),
            expected);
}

TEST_F(NodeParsingOrder, TheFirstRefusalEndsTheRecording) {
  EXPECT_EQ(recordedBy([&] { readRefused("-spm a k v -cip p nonsense -cop q int -rpv b"); }),
            (Texts{"resetPortValues", "createPort"}));
  EXPECT_THAT(host.takeMessages(), ElementsAre("! Unknown port type nonsense"));
}

TEST_F(NodeParsingOrder, QueriesAndStateFlagsRecordNothing) {
  EXPECT_EQ(recordedBy([&] { read("-lcn -lp -qpv a -qpt a -qpm a k -lpc a -qtn -ssf e true"); }),
            Texts());
}

TEST_F(NodeParsingOrder, AnInputIsMadeAheadOfAnOutputThatAsksForItsName) {
  run("/a", "-cop p int -cip p float");
  EXPECT_EQ(typeOf("/a.p"), "float");
  EXPECT_EQ(typeOf("/a.p1"), "int");
}

// A value is recorded before there is the port that the same line makes.
TEST_F(NodeParsingOrder, AValueForAPortThatTheLineMakesIsRefused) {
  const Texts noPort = {"! A port named p was not found on a"};
  EXPECT_EQ(refusalOfAll("/a", "-cip p float -spv p 1"), noPort);
  EXPECT_EQ(refusalOfAll("/a", "-spv p 1 -cip p float"), noPort);
  EXPECT_EQ(refusalOfAll("/a", "-cip p float -rpv p"), noPort);
  EXPECT_EQ(refusalOfAll("/a", "-cip p float -spt p int"), noPort);
}

TEST_F(NodeParsingOrder, MetadataReachAPortThatTheLineMakes) {
  run("/a", "-spm p unit px -cip p float");
  EXPECT_EQ(metadata("/a.p", "unit"), "px");
}

TEST_F(NodeParsingOrder, APortThatTheLineMakesCanBeDeletedByIt) {
  run("/a", "-dp p -cip p float");
  EXPECT_THAT(ports("/a"), ElementsAre("a", "b", "own", "result"));
  undo();
  redo();
  EXPECT_THAT(ports("/a"), ElementsAre("a", "b", "own", "result"));
}

TEST_F(NodeParsingOrder, AValueIsSetBeforeItIsReset) {
  run("/a", "-spv own 4");
  run("/a", "-rpv own -spv own 5");
  EXPECT_THAT(values("/a.own"), ElementsAre("0"));
}

TEST_F(NodeParsingOrder, AValueIsReadAgainstTheTypeBeforeTheLine) {
  run("/a", "-spt own int -spv own 2.5");
  EXPECT_EQ(typeOf("/a.own"), "int");
  EXPECT_THAT(values("/a.own"), ElementsAre("2"));
}

}  // namespace
