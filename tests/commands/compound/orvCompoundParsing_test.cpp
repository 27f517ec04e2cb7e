// How a line gets as far as its flags, and the shape of the command.

#include <algorithm>
#include <functional>
#include <type_traits>

#include "standalone/host/scene/Scene.h"
#include "tests/commands/compound/CompoundReading.h"
#include "tests/support/VirtualTable.h"

namespace {

using hosttest::Texts;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* kParsingError = "! Invalid parameters detected.  Exiting.";
constexpr const char* kTooFew = "! Too few arguments given.";

/// The command, opened as far as its fields go.
struct Fields : orvCompoundCmd {
  std::vector<const void*> inOrder() const {
    return {&containerName,
            &compoundPath,
            &queryFlags,
            &editFlags,
            &createCommand,
            &newCompoundName,
            &nodesToMove,
            &annotationsToMove,
            &explodeCommand,
            &compoundsToExplode,
            &addNodeCommand,
            &removeNodeCommand,
            &renames,
            &annotationCommand,
            &portCommand,
            &portValueCommand,
            &saveOrPublishName,
            &publishArgument2,
            &publishArgument3,
            &publishFlag,
            &publishGraphArgument2,
            &publishGraphArgument3,
            &publishGraphArgument4,
            &isReferencedValue,
            &listNodesFlags,
            &listNodeType,
            &listConnectedValue,
            &listConnectedTo,
            &listPortsFlags,
            &listPortConnectedValue,
            &queriedPortName,
            &queriedPortMetaName,
            &resetToFactoryNodes,
            &canResetNodeName,
            &statePortFirstName,
            &statePortSecondName,
            &statePortType,
            &createdStateOutputPort,
            &createdStateInputPort,
            &queriedAnnotationName,
            &queriedAnnotationMetaName};
  }
  std::vector<unsigned> words() const {
    return {queryFlags.getFlags(), editFlags.getFlags(), listNodesFlags.getFlags(),
            listPortsFlags.getFlags()};
  }
  using orvCompoundCmd::NodeRename;
};

static_assert(std::is_base_of_v<orvMetadataCmd, orvCompoundCmd>);
static_assert(std::is_base_of_v<KPxCommand, orvCompoundCmd>);
static_assert(std::is_same_v<decltype(&orvCompoundCmd::creator), KPxCommand* (*)()>);
static_assert(
    std::is_same_v<decltype(&orvCompoundCmd::hasSyntax), decltype(&KPxCommand::hasSyntax)>,
    "the host's own");

TEST(CompoundLayout, TheMetadataBaseComesFirstThenTheHostsThenTheFieldsInOrder) {
  Fields command;
  EXPECT_EQ(static_cast<void*>(static_cast<orvMetadataCmd*>(&command)), &command);
  std::vector<const void*> parts = command.inOrder();
  parts.insert(parts.begin() + 1, static_cast<KPxCommand*>(&command));
  EXPECT_TRUE(std::is_sorted(parts.begin(), parts.end(), std::less<const void*>()));
}

TEST(CompoundLayout, ARenameHoldsItsFieldsInOrder) {
  const Fields::NodeRename rename;
  const std::vector<const void*> parts = {&rename.from, &rename.to, &rename.actual, &rename.failed};
  EXPECT_TRUE(std::is_sorted(parts.begin(), parts.end(), std::less<const void*>()));
  EXPECT_FALSE(rename.failed);
}

TEST(CompoundLayout, AllFourWordsAreZeroInANewObject) {
  EXPECT_THAT(Fields().words(), ElementsAre(0u, 0u, 0u, 0u));
  EXPECT_FALSE(Fields().isUndoable());
}

TEST(CompoundLayout, TheOperationsComeInTheHostsOrder) {
  EXPECT_EQ(slotOf(&orvCompoundCmd::doIt), 0);
  EXPECT_EQ(slotOf(&orvCompoundCmd::undoIt), 1);
  EXPECT_EQ(slotOf(&orvCompoundCmd::redoIt), 2);
  EXPECT_EQ(slotOf(&orvCompoundCmd::isUndoable), 3);
}

TEST(CompoundLayout, TheCreatorGivesTheHostsBaseOfANewObject) {
  KPxCommand* made = orvCompoundCmd::creator();
  auto* command = dynamic_cast<orvCompoundCmd*>(made);
  ASSERT_NE(command, nullptr);
  EXPECT_EQ(made, static_cast<KPxCommand*>(command));
  EXPECT_NE(static_cast<void*>(made), static_cast<void*>(command)) << "it is not the first base";
  delete made;
}

class CompoundParsing : public CompoundReadingTest {
 protected:
  /// Runs a line of `orvCompound` that must fail with this status; gives its messages.
  Texts failure(const std::string& arguments, KStatusCode status) {
    const std::string before = stored();
    EXPECT_EQ(host.status("orvCompound " + arguments), status) << arguments;
    EXPECT_EQ(stored(), before) << arguments;
    EXPECT_THAT(host.steps(), IsEmpty());
    return host.takeMessages();
  }
};

TEST_F(CompoundParsing, OfNoArgumentsAtAllLooksForAContainerOfNoName) {
  EXPECT_THAT(failure("", StatusFailure), ElementsAre("!  is not a DG ORV container"));
}

TEST_F(CompoundParsing, ALineThatDoesNotFitGivesTheHostsStatus) {
  EXPECT_THAT(failure("g \"/\" -nonsense", StatusBadArgument),
              ElementsAre("! orvCompound: unknown flag -nonsense", kParsingError));
  EXPECT_THAT(failure("g \"/\" extra", StatusBadArgument),
              ElementsAre(HasSubstr("\"extra\""), kParsingError));
}

TEST_F(CompoundParsing, ALineThatDoesNotFitIsToldAheadOfAMissingContainer) {
  EXPECT_THAT(failure("nothing \"/nothing\" -nonsense", StatusBadArgument),
              ElementsAre("! orvCompound: unknown flag -nonsense", kParsingError));
  EXPECT_THAT(failure("-nonsense", StatusBadArgument),
              ElementsAre("! orvCompound: unknown flag -nonsense", kParsingError));
}

TEST_F(CompoundParsing, WithoutAContainerThereAreTwoMessages) {
  EXPECT_THAT(failure("-listNodes", StatusFailure), ElementsAre(kTooFew, kParsingError));
}

TEST_F(CompoundParsing, WithoutAPathThereIsOneMessage) {
  EXPECT_THAT(failure("g", StatusFailure), ElementsAre(kTooFew));
  EXPECT_THAT(failure("g -addNode core::math::add", StatusFailure), ElementsAre(kTooFew));
}

TEST_F(CompoundParsing, AMissingPathIsToldAheadOfAWrongContainer) {
  EXPECT_THAT(failure("nothing", StatusFailure), ElementsAre(kTooFew));
}

TEST_F(CompoundParsing, AContainerThatIsNotThereIsNamed) {
  EXPECT_THAT(failure("nothing \"/\"", StatusFailure),
              ElementsAre("! nothing is not a DG ORV container"));
}

TEST_F(CompoundParsing, ASceneNodeThatHoldsNoGraphIsNoContainer) {
  host.run("createNode group -name plain");
  host.session().undoQueue().clear();
  EXPECT_THAT(failure("plain \"/\"", StatusFailure),
              ElementsAre("! plain is not a DG ORV container"));
}

TEST_F(CompoundParsing, TheContainerIsFoundByItsIdentifierToo) {
  const std::string uuid = host.session().scene().find("g")->uuid();
  EXPECT_EQ(host.run("orvCompound \"" + uuid + "\" \"/\" -listPorts"), "[\"p\",\"q\"]");
}

TEST_F(CompoundParsing, TheContainerIsLookedForAheadOfTheCompound) {
  EXPECT_THAT(failure("nothing \"/nothing\"", StatusFailure),
              ElementsAre("! nothing is not a DG ORV container"));
}

TEST_F(CompoundParsing, WhatIsNoCompoundIsNamedByItsPath) {
  run("/", "-addNode core::math::add");
  host.session().undoQueue().clear();
  for (const char* path : {"/nothing", "/add", "/add.result", "add", "", "/p", "//"}) {
    EXPECT_THAT(failure("g \"" + std::string(path) + "\"", StatusFailure),
                ElementsAre("! " + std::string(path) + " is not a compound name"));
  }
}

TEST_F(CompoundParsing, ACompoundInsideAnotherIsFound) {
  run("/", "-create outer");
  run("/outer", "-create inner");
  run("/outer/inner", "-addNode core::math::add");
  EXPECT_EQ(run("/outer/inner", "-listNodes"), "[\"add\"]");
}

TEST_F(CompoundParsing, TheCompoundIsLookedForAheadOfTheMetadata) {
  EXPECT_THAT(failure("g \"/nothing\" -queryMetaData \"\"", StatusFailure),
              ElementsAre("! /nothing is not a compound name"));
}

TEST_F(CompoundParsing, MetadataThatAreRefusedGiveTwoMessages) {
  EXPECT_THAT(failure("g \"/\" -setMetaData \"\" v", StatusFailure),
              ElementsAre("! The metadata name cannot be empty", kParsingError));
  EXPECT_THAT(failure("g \"/\" -setMetaDataFromString \"{\"", StatusFailure),
              ElementsAre("! Invalid metadata string format", kParsingError));
}

TEST_F(CompoundParsing, MetadataAreReadAheadOfAllOtherFlags) {
  const ReadCompound& read =
      readRefused("-create c -setAnnotationMetaDataValue \"\" \"\" \"\" -clearMetaData \"\"");
  EXPECT_EQ(read.edit, 0u);
  EXPECT_EQ(read.newCompound, "");
  EXPECT_THAT(host.takeMessages(),
              ElementsAre("! The metadata name cannot be empty", kParsingError));
}

TEST_F(CompoundParsing, AMetadataEditThatWasReadAheadOfARefusalIsNotCarriedOut) {
  EXPECT_THAT(failure("g \"/\" -setMetaData k v -queryPortDataType \"\"", StatusFailure),
              ElementsAre("! The port name  cannot be empty"));
  EXPECT_EQ(run("/", "-queryMetaDatas"), "[]");
}

TEST_F(CompoundParsing, KeepsTheContainerAndThePathAsTheyWereWritten) {
  const ReadCompound& read = this->read("");
  EXPECT_EQ(read.container, "g");
  EXPECT_EQ(read.path, "/");
}

// What is recorded goes to the compound of the path and no other.
TEST_F(CompoundParsing, TheEditsAreBoundToTheCompoundOfThePath) {
  run("/", "-create inner");
  run("/inner", "-createInputPort w float -addBackdrop note -sam note k v");
  run("/inner", "-setPortDefaultValues w 4");
  EXPECT_EQ(run("/inner", "-listPorts"), "[\"w\"]");
  EXPECT_EQ(run("/inner", "-queryPortDefaultValues w"), "\"4\"");
  EXPECT_EQ(run("/inner", "-qam note k"), "\"v\"");
  EXPECT_EQ(run("/", "-listPorts"), "[\"p\",\"q\"]");
  EXPECT_EQ(run("/", "-qam note k"), "");
}

/// Reads its line twice before it is carried out.
class ReadTwiceCmd : public OpenCompoundCmd {
 public:
  static KPxCommand* creator() { return new ReadTwiceCmd; }
  KStatus doIt(const KArgList& args) override {
    carriesOut = false;
    orvCompoundCmd::doIt(args);
    carriesOut = true;
    const KStatus status = orvCompoundCmd::doIt(args);
    renameCount = renames.size();
    return status;
  }
  KStatus redoIt() override { return carriesOut ? orvCompoundCmd::redoIt() : StatusSuccess; }

  static inline std::size_t renameCount = 0;

 private:
  bool carriesOut = true;
};

TEST_F(CompoundParsing, HoldsOneRenameAUseHoweverOftenALineIsRead) {
  addCommand("readTwice", ReadTwiceCmd::creator);
  run("/", "-create a");
  host.run("readTwice g \"/\" -renameNode a b -renameNode b c");
  EXPECT_EQ(ReadTwiceCmd::renameCount, 2u);
  EXPECT_EQ(run("/", "-listNodes"), "[\"c\"]");
}

}  // namespace
