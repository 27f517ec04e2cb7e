// The order in which the flags of a line are read, wherever they stand on it.

#include <ranges>

#include "tests/commands/compound/CompoundReading.h"

namespace {

using hosttest::Texts;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using Cmd = orvCompoundCmd;

/// A flag that is refused, what the user is told, and the bits that the flags ahead of it have set
/// on a line that has them all.
struct Refusal {
  std::string_view name;
  const char* flags;
  const char* message;
  unsigned edit;
  unsigned query;
};

constexpr unsigned kFirst =
    Cmd::kEditCreate | Cmd::kEditExplode | Cmd::kEditAddNodes | Cmd::kEditAnnotations;
constexpr unsigned kNodes = kFirst | Cmd::kEditRemoveNodes;
constexpr unsigned kPorts = kNodes | Cmd::kEditPorts | Cmd::kEditRenameNodes;
constexpr unsigned kValues = kPorts | Cmd::kEditPortValues;
constexpr unsigned kAnnotation = Cmd::kQueryAnnotationMetaDataValue;
constexpr unsigned kValueQueries =
    kAnnotation | Cmd::kQueryPortDataType | Cmd::kQueryPortDefaultValues;

/// All flags that can be refused, in the order in which they are read.
constexpr Refusal kRefusals[] = {
    {"setAnnotationMetaDataValue", "-sam \"\" k v",
     "! The backdrop/sticky name  and the metadata name k cannot be empty", kFirst, 0},
    {"queryAnnotationMetaDataValue", "-qam x \"\"",
     "! The backdrop/sticky name x and the metadata name ^2s cannot be empty", kFirst, 0},
    {"portOptions", "-cpo \"{\"", "! Invalid port options \"{\"", kNodes, kAnnotation},
    {"renamePort", "-rp no1 x", "! A port named no1 was not found on top", kPorts, kAnnotation},
    {"movePort", "-mp no2 0", "! A port named no2 was not found on top", kPorts, kAnnotation},
    {"movePortToIONode", "-mpn no3 input", "! A port named no3 was not found on top", kPorts,
     kAnnotation},
    {"hidePort", "-hp no4 true", "! A port named no4 was not found on top", kPorts, kAnnotation},
    {"setPortDataType", "-spt no5 \"\"", "! The port name no5 and the data type  cannot be empty",
     kPorts, kAnnotation},
    {"setPortDefaultValues", "-spv no6 1", "! A port named no6 was not found on top", kPorts,
     kAnnotation},
    {"resetPortDefaultValues", "-rpv no7", "! A port named no7 was not found on top", kValues,
     kAnnotation},
    {"queryPortDataType", "-qpt \"\"", "! The port name  cannot be empty", kValues, kAnnotation},
    {"queryPortDefaultValues", "-qpv \"\"", "! The port name  cannot be empty", kValues,
     kAnnotation | Cmd::kQueryPortDataType},
    {"setPortMetaDataValue", "-spm no8 \"\" v",
     "! The port name no8 and the metadata name  cannot be empty", kValues, kValueQueries},
    {"queryPortMetaDataValue", "-qpm no9 \"\"", "! The port name no9 cannot be empty", kValues,
     kValueQueries},
    {"listPortChildren", "-lpc \"\"", "! The port name  cannot be empty", kValues,
     kValueQueries | Cmd::kQueryPortMetaDataValue},
    {"deletePort", "-dp no10", "! A port named no10 was not found on top", kValues,
     kValueQueries | Cmd::kQueryPortMetaDataValue | Cmd::kQueryListPortChildren},
};

std::string nameOf(const testing::TestParamInfo<Refusal>& refusal) {
  return std::string(refusal.param.name);
}

void PrintTo(const Refusal& refusal, std::ostream* out) { *out << refusal.name; }

/// A line with each flag once, the last that is read first, so that nothing is read in its order.
/// Those that `refusal` has are left to it.
std::string everythingBut(const Refusal& refusal) {
  static constexpr const char* kFlags[] = {"-crf c",
                                           "-rtf r",
                                           "-ln",
                                           "-sir true",
                                           "-qie",
                                           "-qii",
                                           "-qir",
                                           "-stn",
                                           "-asp s t float",
                                           "-pbg a b c d",
                                           "-pub a b c true",
                                           "-sa a",
                                           "-lp",
                                           "-dp p",
                                           "-lpc p",
                                           "-qpm p k",
                                           "-spm p k v",
                                           "-qpv p",
                                           "-qpt p",
                                           "-rpv q",
                                           "-spv p 1",
                                           "-spt p float",
                                           "-hp p true",
                                           "-mpn p input",
                                           "-mp p 0",
                                           "-rp p p",
                                           "-rn a b",
                                           "-cop o float",
                                           "-cip i float",
                                           "-mi m",
                                           "-rmn n",
                                           "-mai m",
                                           "-qam a k",
                                           "-sam a k v",
                                           "-ra a b",
                                           "-rma a",
                                           "-asn a",
                                           "-ab a",
                                           "-aio true",
                                           "-an core::math::add",
                                           "-cot c",
                                           "-ec group",
                                           "-c n"};
  const std::string_view refused = refusal.flags;
  const std::string_view name = refused.substr(0, refused.find(' '));
  std::string line;
  for (const std::string_view flag : kFlags) {
    if (flag.substr(0, flag.find(' ')) != name) line.append(flag).append(" ");
  }
  return line;
}

class CompoundOrder : public CompoundReadingTest {
 protected:
  CompoundOrder() {
    run("/", "-create group");
    run("/", "-addIONode true");
    host.session().undoQueue().clear();
  }
};

class CompoundRefusalOrder : public CompoundOrder, public testing::WithParamInterface<Refusal> {};

INSTANTIATE_TEST_SUITE_P(All, CompoundRefusalOrder, testing::ValuesIn(kRefusals), nameOf);

TEST_P(CompoundRefusalOrder, OfSeveralRefusedFlagsTheFirstThatIsReadIsTold) {
  std::string line = "-cip i float";
  for (const Refusal& refusal : std::views::reverse(kRefusals)) {
    line.append(" ").append(refusal.flags);
    if (refusal.name == GetParam().name) break;
  }
  readRefused(line);
  EXPECT_THAT(host.takeMessages(), ElementsAre(GetParam().message));
}

TEST_P(CompoundRefusalOrder, WhatIsReadAheadOfItStaysInTheObjectAndNoMoreIsRead) {
  const ReadCompound& read = readRefused(everythingBut(GetParam()) + GetParam().flags);
  EXPECT_EQ(read.edit, GetParam().edit);
  EXPECT_EQ(read.query, GetParam().query);
  EXPECT_THAT(host.takeMessages(), ElementsAre(GetParam().message));
}

TEST_P(CompoundRefusalOrder, NothingOfItsLineIsCarriedOut) {
  const std::string before = stored();
  EXPECT_EQ(host.status(line("/", everythingBut(GetParam()) + GetParam().flags)), StatusFailure);
  EXPECT_EQ(stored(), before);
  EXPECT_THAT(host.steps(), testing::IsEmpty());
  EXPECT_THAT(host.takeMessages(), ElementsAre(GetParam().message));
}

TEST_F(CompoundOrder, WhatIsMovedInIsReadBetweenTheAnnotationsAndThePorts) {
  const std::string lists = "-mi n -mai a -rn a b -rmn n ";
  const ReadCompound early = readRefused(lists + "-qam \"\" k");
  EXPECT_TRUE(early.moved.empty() && early.movedAnnotations.empty());
  const ReadCompound late = readRefused(lists + "-cip i float -cpo \"{\"");
  EXPECT_THAT(late.moved, ElementsAre("n"));
  EXPECT_THAT(late.movedAnnotations, ElementsAre("a"));
  EXPECT_TRUE(late.renames.empty());
  EXPECT_EQ(host.takeMessages().size(), 2u);
}

TEST_F(CompoundOrder, RenamesAreReadBehindThePortsThatAreMade) {
  for (const char* port : {"-cip", "-cop"}) {
    const ReadCompound& read = readRefused(std::string("-rn a b -cpo \"{\" ") + port + " w float");
    EXPECT_TRUE(read.renames.empty()) << port;
    EXPECT_EQ(read.edit, 0u) << port;
    EXPECT_THAT(host.takeMessages(), ElementsAre("! Invalid port options \"{\"")) << port;
  }
}

TEST_F(CompoundOrder, RenamesAreReadAheadOfThePortsThatMustBeThere) {
  const ReadCompound& read = readRefused("-rp nothing x -rn a b");
  EXPECT_THAT(read.renames, ElementsAre("a>b"));
  EXPECT_EQ(read.edit, Cmd::kEditRenameNodes);
  EXPECT_THAT(host.takeMessages(), ElementsAre("! A port named nothing was not found on top"));
}

TEST_F(CompoundOrder, ARefusedUseEndsTheFlagAndSetsNoBitForIt) {
  for (const char* flags : {"-rp nothing x -rp p r", "-dp nothing -dp p"}) {
    EXPECT_EQ(readRefused(flags).edit, 0u) << flags;
    EXPECT_EQ(host.takeMessages().size(), 1u) << flags;
  }
}

TEST_F(CompoundOrder, ARefusedFlagKeepsWhatItReadOfItself) {
  const ReadCompound query = readRefused("-qpm \"\" key");
  EXPECT_EQ(query.portKey, "key");
  const ReadCompound annotation = readRefused("-qam \"\" key");
  EXPECT_EQ(annotation.annotationKey, "key");
  EXPECT_THAT(host.takeMessages(),
              ElementsAre("! The port name  cannot be empty",
                          "! The backdrop/sticky name  and the metadata name ^2s cannot be empty"));
}

TEST_F(CompoundOrder, InputsAreReadAheadOfOutputs) {
  readRefused("-cop o type2 -cip i type1 -qpt \"\"");
  EXPECT_THAT(host.takeMessages(),
              ElementsAre("! Unknown port type type1", "! Unknown port type type2",
                          "! The port name  cannot be empty"));
}

TEST_F(CompoundOrder, ThePortThatNodesConnectToIsReadAheadOfThem) {
  run("/group", "-create first");
  run("/group/first", "-cop w float");
  EXPECT_EQ(run("/group", "-addNode core::math::add -connectTo first.w"), "[\"add\"]");
  EXPECT_EQ(run("/group", "-listNodes -connected true"), "[\"first\",\"add\"]");
}

TEST_F(CompoundOrder, AllNodesOfALineConnectToTheOnePort) {
  run("/group", "-create first");
  run("/group/first", "-cop w float");
  EXPECT_EQ(run("/group", "-an core::math::add -an core::math::subtract -aio false -cot first.w"),
            "[\"add\",\"subtract\",\"output\"]");
  EXPECT_EQ(run("/group", "-listNodes -connected true"),
            "[\"first\",\"add\",\"subtract\",\"output\"]");
  EXPECT_EQ(run("/group", "-listPorts -outputPort"), "[\"w\"]");
}

TEST_F(CompoundOrder, NodesAreRecordedAheadOfInputAndOutputNodes) {
  EXPECT_EQ(run("/group", "-aio false -aio true -an core::math::add"),
            "[\"add\",\"output\",\"input\"]");
}

TEST_F(CompoundOrder, ABackdropTakesItsNameAheadOfAStickyNote) {
  run("/", "-asn x -ab note");
  EXPECT_THAT(stored(), HasSubstr(" backdrop note\n"));
  EXPECT_THAT(stored(), HasSubstr(" note note1\n"));
}

TEST_F(CompoundOrder, AnnotationsAreMadeRemovedRenamedAndSetInThisOrder) {
  run("/", "-sam last k v -ra second last -rma note -rma first -asn x -ab second -ab first");
  EXPECT_EQ(run("/", "-qam last k"), "\"v\"") << "made, then renamed, then set";
  EXPECT_THAT(stored(), Not(HasSubstr("first"))) << "made, then removed";
  EXPECT_THAT(stored(), Not(HasSubstr("note"))) << "made, then removed";
}

TEST_F(CompoundOrder, ARenameComesBehindARemoval) {
  run("/", "-ab a");
  run("/", "-ab b");
  run("/", "-ra a b -rma b");
  run("/", "-sam b k v");
  EXPECT_EQ(run("/", "-qam b k"), "\"v\"") << "the name was free";
}

TEST_F(CompoundOrder, InputsAreRecordedAheadOfOutputs) {
  run("/group", "-cop w float -cip w float");
  EXPECT_EQ(run("/group", "-lp -ip"), "[\"w\"]");
  EXPECT_EQ(run("/group", "-lp -op"), "[\"w1\"]");
}

// Each step edits the port that the one ahead of it has left.
TEST_F(CompoundOrder, APortIsMadeRenamedMovedHiddenTypedAndDeletedInThisOrder) {
  run("/", "-dp b -spm b k v -spt b int -hp b true -mpn b input -mp b 0 -rp a b -cip a float");
  EXPECT_EQ(run("/", "-listPorts"), "[\"p\",\"q\"]");
  run("/", "-spm b k v -spt b int -hp b true -mpn b input -mp b 0 -rp a b -cip a float");
  EXPECT_EQ(run("/", "-listPorts"), "[\"b\",\"p\",\"q\"]");
  EXPECT_EQ(run("/", "-qpt b"), "\"int\"");
  EXPECT_EQ(run("/", "-qpm b k"), "\"v\"");
}

TEST_F(CompoundOrder, ValuesAreSetAheadOfTheirReset) {
  run("/", "-resetPortDefaultValues p -setPortDefaultValues p 5");
  EXPECT_EQ(run("/", "-queryPortDefaultValues p"), "\"0\"");
}

}  // namespace
