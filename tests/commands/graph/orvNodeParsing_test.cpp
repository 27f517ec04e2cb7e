// How a line gets as far as its flags, and the shape of the command.

#include <algorithm>
#include <functional>
#include <type_traits>

#include "standalone/host/scene/Scene.h"
#include "tests/commands/graph/NodeReading.h"
#include "tests/support/VirtualTable.h"

namespace {

using hosttest::Texts;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// The command, opened as far as its fields go.
struct Fields : orvNodeCmd {
  std::vector<const void*> inOrder() const {
    return {&containerName,
            &nodePath,
            &portName,
            &metaDataName,
            &connectedToPorts,
            &queryTypeName,
            &filterConnected,
            &connectedValue,
            &listConnectedNodes,
            &listPorts,
            &queryPortDefaultValues,
            &queryPortDataType,
            &queryPortMetaDataValue,
            &listPortChildren,
            &hasNodeEdits,
            &portCommand,
            &stateFlagChanges};
  }
  bool anySet() const {
    return queryTypeName || filterConnected || connectedValue || listConnectedNodes || listPorts ||
           queryPortDefaultValues || queryPortDataType || queryPortMetaDataValue ||
           listPortChildren || hasNodeEdits;
  }
  bool holdsNothing() const { return connectedToPorts.empty() && stateFlagChanges.empty(); }
  using orvNodeCmd::StateFlagChange;
};

static_assert(std::is_base_of_v<orvMetadataCmd, orvNodeCmd>);
static_assert(std::is_base_of_v<KPxCommand, orvNodeCmd>);
static_assert(std::is_same_v<decltype(&orvNodeCmd::creator), KPxCommand* (*)()>);
static_assert(std::is_same_v<decltype(&orvNodeCmd::hasSyntax), decltype(&KPxCommand::hasSyntax)>,
              "the host's own");

TEST(NodeLayout, TheMetadataBaseComesFirstThenTheHostsThenTheFieldsInOrder) {
  Fields command;
  EXPECT_EQ(static_cast<void*>(static_cast<orvMetadataCmd*>(&command)), &command);
  std::vector<const void*> parts = command.inOrder();
  parts.insert(parts.begin() + 1, static_cast<KPxCommand*>(&command));
  EXPECT_TRUE(std::is_sorted(parts.begin(), parts.end(), std::less<const void*>()));
}

TEST(NodeLayout, AStateFlagChangeHoldsItsFieldsInOrder) {
  const Fields::StateFlagChange change;
  static_assert(sizeof(change.flagKey) == 1);
  static_assert(std::is_same_v<decltype(change.oldState), std::uint32_t>);
  static_assert(std::is_same_v<decltype(change.newState), std::uint32_t>);
  const std::vector<const void*> parts = {&change.flagKey, &change.oldState, &change.newState};
  EXPECT_TRUE(std::is_sorted(parts.begin(), parts.end(), std::less<const void*>()));
  EXPECT_EQ(change.flagKey, 0);
  EXPECT_EQ(change.oldState, 0u);
  EXPECT_EQ(change.newState, 0u);
}

TEST(NodeLayout, NothingIsSetInANewObject) {
  const Fields command;
  EXPECT_FALSE(command.anySet());
  EXPECT_TRUE(command.holdsNothing());
  EXPECT_FALSE(command.isUndoable());
}

TEST(NodeLayout, TheOperationsComeInTheHostsOrder) {
  EXPECT_EQ(slotOf(&orvNodeCmd::doIt), 0);
  EXPECT_EQ(slotOf(&orvNodeCmd::undoIt), 1);
  EXPECT_EQ(slotOf(&orvNodeCmd::redoIt), 2);
  EXPECT_EQ(slotOf(&orvNodeCmd::isUndoable), 3);
}

TEST(NodeLayout, TheCreatorGivesTheHostsBaseOfANewObject) {
  KPxCommand* made = orvNodeCmd::creator();
  auto* command = dynamic_cast<orvNodeCmd*>(made);
  ASSERT_NE(command, nullptr);
  EXPECT_EQ(made, static_cast<KPxCommand*>(command));
  EXPECT_NE(static_cast<void*>(made), static_cast<void*>(command)) << "it is not the first base";
  delete made;
}

class NodeParsing : public NodeReadingTest {
 protected:
  /// Runs a line of `orvNode` that must fail with `StatusFailure`; gives its messages.
  Texts failure(const std::string& arguments) {
    const std::string before = stored();
    EXPECT_EQ(host.status("orvNode " + arguments), StatusFailure) << arguments;
    EXPECT_EQ(stored(), before) << arguments;
    EXPECT_THAT(host.steps(), IsEmpty());
    return host.takeMessages();
  }

  static constexpr const char* kNoContainer = "!  is not a DG ORV container";
};

TEST_F(NodeParsing, OfNoArgumentsAtAllLooksForAContainerOfNoName) {
  EXPECT_THAT(failure(""), ElementsAre(kNoContainer));
}

// The host's status for a line that does not fit is none that ends the command, which then finds
// no container in what it has read.
TEST_F(NodeParsing, ALineThatDoesNotFitIsCarriedOutAndFindsNoContainer) {
  EXPECT_THAT(failure("g \"/a\" -nonsense"),
              ElementsAre("! orvNode: unknown flag -nonsense", kParsingError, kNoContainer));
  EXPECT_THAT(failure("g \"/a\" extra"),
              ElementsAre(HasSubstr("\"extra\""), kParsingError, kNoContainer));
  EXPECT_THAT(failure("g \"/a\" -createInputPort p"),
              ElementsAre(HasSubstr("-createInputPort"), kParsingError, kNoContainer));
}

TEST_F(NodeParsing, ALineThatDoesNotFitIsToldAheadOfAMissingContainer) {
  EXPECT_THAT(failure("nothing \"/nothing\" -nonsense"),
              ElementsAre("! orvNode: unknown flag -nonsense", kParsingError, kNoContainer));
  EXPECT_THAT(failure("-nonsense"),
              ElementsAre("! orvNode: unknown flag -nonsense", kParsingError, kNoContainer));
}

TEST_F(NodeParsing, WithoutAContainerThereAreTwoMessages) {
  EXPECT_THAT(failure("-listPorts"), ElementsAre(kTooFew, kParsingError));
}

TEST_F(NodeParsing, WithoutAPathThereIsOneMessage) {
  EXPECT_THAT(failure("g"), ElementsAre(kTooFew));
  EXPECT_THAT(failure("g -createInputPort p float"), ElementsAre(kTooFew));
}

TEST_F(NodeParsing, AMissingPathIsToldAheadOfAWrongContainer) {
  EXPECT_THAT(failure("nothing"), ElementsAre(kTooFew));
}

TEST_F(NodeParsing, AContainerThatIsNotThereIsNamedAndThenThePath) {
  EXPECT_THAT(failure("nothing \"/a\""), ElementsAre("! nothing is not a DG ORV container",
                                                     "! The node path /a was not found"));
}

TEST_F(NodeParsing, ASceneNodeThatHoldsNoGraphIsNoContainer) {
  host.run("createNode group -name plain");
  host.session().undoQueue().clear();
  EXPECT_THAT(failure("plain \"/a\""),
              ElementsAre("! plain is not a DG ORV container", "! The node path /a was not found"));
}

TEST_F(NodeParsing, TheContainerIsFoundByItsIdentifierToo) {
  const std::string uuid = host.session().scene().find("g")->uuid();
  EXPECT_EQ(host.run("orvNode \"" + uuid + "\" \"/a\" -queryTypeName"), R"("core::math::add")");
}

TEST_F(NodeParsing, WhatIsNoNodeIsNamedByItsPath) {
  for (const char* path : {"/nothing", "/a.result", "a", "", "/a/a", "//", "/a/", "/A"}) {
    EXPECT_THAT(failure("g \"" + std::string(path) + "\""),
                ElementsAre("! The node path " + std::string(path) + " was not found"));
  }
}

TEST_F(NodeParsing, ANodeOfAnyLevelIsFound) {
  build("/", "-create outer");
  build("/outer", "-create inner");
  build("/outer/inner", "-addNode core::math::negate");
  EXPECT_EQ(run("/outer/inner/negate", "-queryTypeName"), R"("core::math::negate")");
  EXPECT_EQ(run("/outer/inner", "-queryTypeName"), R"("compound")");
  EXPECT_EQ(run("/", "-queryTypeName"), R"("compound")");
}

TEST_F(NodeParsing, TheNodeIsLookedForAheadOfTheMetadata) {
  EXPECT_THAT(failure("g \"/nothing\" -queryMetaData \"\""),
              ElementsAre("! The node path /nothing was not found"));
}

TEST_F(NodeParsing, MetadataThatAreRefusedGiveTwoMessages) {
  EXPECT_THAT(failure("g \"/a\" -setMetaData \"\" v"),
              ElementsAre("! The metadata name cannot be empty", kParsingError));
  EXPECT_THAT(failure("g \"/a\" -setMetaDataFromString \"{\""),
              ElementsAre("! Invalid metadata string format", kParsingError));
}

TEST_F(NodeParsing, MetadataAreReadAheadOfAllOtherFlags) {
  const ReadNode& read = readRefused("-listConnectedNodes -listPorts -clearMetaData \"\"");
  EXPECT_THAT(read.flags, IsEmpty());
  EXPECT_THAT(host.takeMessages(),
              ElementsAre("! The metadata name cannot be empty", kParsingError));
}

TEST_F(NodeParsing, AMetadataEditThatWasReadAheadOfARefusalIsNotCarriedOut) {
  EXPECT_THAT(failure("g \"/a\" -setMetaData k v -queryPortDataType \"\""),
              ElementsAre("! The port name  cannot be empty"));
  EXPECT_EQ(run("/a", "-queryMetaDatas"), "[]");
}

TEST_F(NodeParsing, MetadataAloneMakeALineUndoableAndAreNoNodeEdits) {
  const ReadNode& read = this->read("-setMetaData k v");
  EXPECT_TRUE(read.undoable);
  EXPECT_THAT(read.flags, IsEmpty());
}

TEST_F(NodeParsing, KeepsTheContainerAndThePathAsTheyWereWritten) {
  const ReadNode& read = this->read("");
  EXPECT_EQ(read.container, "g");
  EXPECT_EQ(read.path, "/a");
}

TEST_F(NodeParsing, OnlyReads) {
  const std::string before = stored();
  read("-cip p float -cop q int -spv a 3 -rpv b -spt own int -spm a k v -ssf e false -smd k v");
  EXPECT_EQ(stored(), before);
}

/// Reads its line twice before it is carried out.
class ReadTwiceCmd : public OpenNodeCmd {
 public:
  static KPxCommand* creator() { return new ReadTwiceCmd; }
  KStatus doIt(const KArgList& args) override {
    carriesOut = false;
    orvNodeCmd::doIt(args);
    carriesOut = true;
    const KStatus status = orvNodeCmd::doIt(args);
    changes = stateFlagChanges.size();
    filters = connectedToPorts.size();
    return status;
  }
  KStatus redoIt() override { return carriesOut ? orvNodeCmd::redoIt() : StatusSuccess; }

  static inline std::size_t changes = 0;
  static inline std::size_t filters = 0;

 private:
  bool carriesOut = true;
};

TEST_F(NodeParsing, HoldsOneRecordAUseHoweverOftenALineIsRead) {
  addCommand("readTwice", ReadTwiceCmd::creator);
  host.run("readTwice g \"/a\" -ssf e false -ssf f true -lcn -ct a -ct b -ct own");
  EXPECT_EQ(ReadTwiceCmd::changes, 2u);
  EXPECT_EQ(ReadTwiceCmd::filters, 3u);
}

}  // namespace
