// The syntax, what a line leaves in the command, and the lines that are refused.

#include <algorithm>
#include <functional>
#include <type_traits>

#include "standalone/host/engine/SyntaxData.h"
#include "standalone/host/scene/Scene.h"
#include "tests/commands/clipboard/WatchPointTesting.h"
#include "tests/support/VirtualTable.h"

namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::IsEmpty;

// The flag words hold these very numbers.
using Cmd = orvWatchPointCmd;
static_assert(Cmd::kEditCreate == 1);
static_assert(Cmd::kEditRemove == 2);
static_assert(Cmd::kEditSetUp == 4);
static_assert(Cmd::kQueryHasWatchPoint == 1);
static_assert(Cmd::kQueryIsEnabled == 2);
static_assert(Cmd::kQueryParameters == 4);
static_assert(Cmd::kQueryParameterDescription == 8);
static_assert(Cmd::kQueryParameterValues == 16);
static_assert(Cmd::kQueryParameterValueDescription == 32);
static_assert(Cmd::kQueryParameterValue == 64);
static_assert(Cmd::kQueryRecordedValues == 128);

static_assert(std::is_base_of_v<orvMetadataCmd, Cmd>);
static_assert(std::is_base_of_v<KPxCommand, Cmd>);
static_assert(std::is_same_v<decltype(&Cmd::creator), KPxCommand* (*)()>);
static_assert(std::is_same_v<decltype(&Cmd::hasSyntax), decltype(&KPxCommand::hasSyntax)>,
              "the host's own");

/// What reading a line left in the command.
struct ReadLine {
  unsigned edit = 0, query = 0;
  std::string container, path, port, name, value;
  bool undoable = false;
  bool executed = false;  ///< whether `doIt` went on to `redoIt`
};

/// The command, which reads its line and carries nothing out.
class ReadWatchPoint final : public orvWatchPointCmd {
 public:
  static KPxCommand* creator() { return new ReadWatchPoint; }

  KStatus doIt(const KArgList& args) override {
    last = {};
    const KStatus status = orvWatchPointCmd::doIt(args);
    last.edit = editFlags.getFlags();
    last.query = queryFlags.getFlags();
    last.container = containerName.asUTF8();
    last.path = nodePath.asUTF8();
    last.port = portName.asUTF8();
    last.name = parameterName.asUTF8();
    last.value = parameterValue.asUTF8();
    last.undoable = isUndoable();
    return status;
  }
  KStatus redoIt() override {
    last.executed = true;
    return StatusSuccess;
  }
  KStatus undoIt() override { return StatusSuccess; }

  static std::vector<const void*> fieldsOf(const ReadWatchPoint& command) {
    return {static_cast<const KPxCommand*>(&command),
            &command.queryFlags,
            &command.editFlags,
            &command.nodePath,
            &command.portName,
            &command.parameterName,
            &command.parameterValue,
            &command.watchPointCommand};
  }

  static inline ReadLine last;
};

TEST(WatchPointLayout, TheMetadataBaseComesFirstThenTheHostsThenTheFieldsInOrder) {
  const ReadWatchPoint command;
  std::vector<const void*> parts = ReadWatchPoint::fieldsOf(command);
  parts.insert(parts.begin(), static_cast<const orvMetadataCmd*>(&command));
  EXPECT_EQ(parts.front(), &command);
  EXPECT_TRUE(std::is_sorted(parts.begin(), parts.end(), std::less<const void*>()));
  EXPECT_FALSE(command.isUndoable());
}

TEST(WatchPointLayout, TheOperationsComeInTheHostsOrder) {
  EXPECT_EQ(slotOf(&KPxCommand::doIt), 0);
  EXPECT_EQ(slotOf(&KPxCommand::undoIt), 1);
  EXPECT_EQ(slotOf(&KPxCommand::redoIt), 2);
  EXPECT_EQ(slotOf(&KPxCommand::isUndoable), 3);
}

TEST(WatchPointSyntax, DeclaresItsFlagsWithoutADashBehindThoseOfMetadata) {
  const KSyntax syntax = Cmd::createSyntax();
  const vesk::SyntaxData& data = HostAccess::data(syntax);
  hosttest::Texts declared;
  for (const vesk::FlagSpec& flag : data.flags()) {
    std::string text = flag.shortName + " " + flag.longName + " ";
    for (const auto type : flag.arguments) text += type == KSyntax::ArgBoolean ? "B" : "T";
    declared.push_back(text + (flag.multiUse ? "multi" : ""));
  }
  const hosttest::Texts expected = {"-qmd -queryMetaData T",
                                    "-qms -queryMetaDatas ",
                                    "-smd -setMetaData TT",
                                    "-amd -addMetaData TT",
                                    "-rmd -removeMetaData TT",
                                    "-cmd -clearMetaData T",
                                    "-mfs -setMetaDataFromString T",
                                    "-mas -queryMetaDataAsString ",
                                    "c create ",
                                    "r remove ",
                                    "e enable B",
                                    "spv setParameterValue TT",
                                    "qw queryHasWatchPoint ",
                                    "qe queryIsEnabled ",
                                    "qps queryParameters ",
                                    "qpd queryParameterDescription T",
                                    "qvs queryParameterValues T",
                                    "qvd queryParameterValueDescription TT",
                                    "qpv queryParameterValue T",
                                    "qrv queryRecordedValues T"};
  EXPECT_THAT(declared, ElementsAreArray(expected));
  EXPECT_THAT(data.arguments(),
              ElementsAre(KSyntax::ArgString, KSyntax::ArgString, KSyntax::ArgString));
  EXPECT_FALSE(data.hasQuery());
  EXPECT_FALSE(data.hasEdit());
}

class WatchPointParsing : public WatchPointTest {
 protected:
  WatchPointParsing() {
    addCommand("readWatchPoint", ReadWatchPoint::creator, Cmd::createSyntax());
  }

  /// Reads `g /add result FLAGS`, which must be accepted.
  const ReadLine& read(const std::string& flags) {
    host.run("readWatchPoint g /add result " + flags);
    EXPECT_TRUE(ReadWatchPoint::last.executed) << flags;
    return ReadWatchPoint::last;
  }

  /// Runs `orvWatchPoint ARGUMENTS`, which must fail and change nothing; gives its messages.
  Texts failure(const std::string& arguments, KStatusCode status = StatusFailure) {
    const std::string before = stored();
    EXPECT_EQ(host.status("orvWatchPoint " + arguments), status) << arguments;
    EXPECT_EQ(stored(), before) << arguments;
    EXPECT_THAT(host.steps(), IsEmpty());
    return host.takeMessages();
  }
};

TEST_F(WatchPointParsing, EachFlagSetsItsBit) {
  struct Row {
    const char* shortFlag;
    const char* longFlag;
    const char* arguments;
    unsigned edit, query;
  };
  const Row rows[] = {{"-c", "-create", "", 1, 0},
                      {"-r", "-remove", "", 2, 0},
                      {"-e", "-enable", " true", 4, 0},
                      {"-e", "-enable", " false", 4, 0},
                      {"-spv", "-setParameterValue", " limit 3", 4, 0},
                      {"-qw", "-queryHasWatchPoint", "", 0, 1},
                      {"-qe", "-queryIsEnabled", "", 0, 2},
                      {"-qps", "-queryParameters", "", 0, 4},
                      {"-qpd", "-queryParameterDescription", " n", 0, 8},
                      {"-qvs", "-queryParameterValues", " n", 0, 16},
                      {"-qvd", "-queryParameterValueDescription", " n v", 0, 32},
                      {"-qpv", "-queryParameterValue", " n", 0, 64},
                      {"-qrv", "-queryRecordedValues", " n", 0, 128},
                      {"-qms", "-queryMetaDatas", "", 0, 0},
                      {"-mas", "-queryMetaDataAsString", "", 0, 0},
                      {"-qmd", "-queryMetaData", " n", 0, 0}};
  for (const Row& row : rows) {
    for (const char* flag : {row.shortFlag, row.longFlag}) {
      const ReadLine& left = read(std::string(flag) + row.arguments);
      EXPECT_EQ(left.edit, row.edit) << flag;
      EXPECT_EQ(left.query, row.query) << flag;
      EXPECT_EQ(left.undoable, row.edit != 0) << flag;
    }
  }
}

TEST_F(WatchPointParsing, BitsOfOneLineAddUp) {
  const ReadLine& left = read("-qrv x -r -qw -e true -c -spv a b -qps");
  EXPECT_EQ(left.edit, 7u);
  EXPECT_EQ(left.query, 128u + 1 + 4);
}

TEST_F(WatchPointParsing, ALineWithoutFlagsSetsNone) {
  const ReadLine& left = read("");
  EXPECT_EQ(left.edit + left.query, 0u);
  EXPECT_EQ(left.container, "g");
  EXPECT_EQ(left.path, "/add");
  EXPECT_EQ(left.port, "result");
  EXPECT_FALSE(left.undoable);
}

TEST_F(WatchPointParsing, AMetadataEditIsUndoableAndSetsNoBit) {
  for (const char* flags : {"-smd k v", "-amd k v", "-rmd k v", "-cmd k", "-mfs {k=v}"}) {
    const ReadLine& left = read(flags);
    EXPECT_TRUE(left.undoable) << flags;
    EXPECT_EQ(left.edit, 0u) << flags;
  }
}

TEST_F(WatchPointParsing, EachFlagWithATextPutsItInTheSharedFields) {
  for (const char* flag : {"-qpd", "-qvs", "-qpv", "-qrv"}) {
    const ReadLine& left = read(std::string(flag) + " name");
    EXPECT_EQ(left.name, "name") << flag;
    EXPECT_EQ(left.value, "") << flag;
  }
  for (const char* flag : {"-spv", "-qvd"}) {
    const ReadLine& left = read(std::string(flag) + " name value");
    EXPECT_EQ(left.name, "name") << flag;
    EXPECT_EQ(left.value, "value") << flag;
  }
}

/// The order of the table counts, not that of the line.
TEST_F(WatchPointParsing, TheLaterReadWins) {
  EXPECT_EQ(read("-qvd n2 v2 -spv n1 v1").name, "n2");
  EXPECT_EQ(ReadWatchPoint::last.value, "v2");
  EXPECT_EQ(read("-qrv last -qpv d -qvd c v -qvs b -qpd a -spv s t").name, "last");
  EXPECT_EQ(ReadWatchPoint::last.value, "v");
  EXPECT_EQ(read("-qpv d -qvd c v -qvs b -qpd a").name, "d");
  EXPECT_EQ(read("-qvd c v -qvs b -qpd a").name, "c");
  EXPECT_EQ(read("-qvs b -qpd a").name, "b");
  EXPECT_EQ(read("-qpd a -spv s t").name, "a");
  EXPECT_EQ(ReadWatchPoint::last.value, "t");
}

TEST_F(WatchPointParsing, KeepsTextsAsTheyAre) {
  for (const std::string text : {"", " ", "日本 ñ", "a=b,{c}", "-create", "'"}) {
    EXPECT_EQ(read("-qrv \"" + text + "\"").name, text);
  }
  EXPECT_EQ(read("-qrv \"a\\nb\\\"c\\\\\"").name, "a\nb\"c\\");
  EXPECT_EQ(read("-qrv " + std::string(1000, 'x')).name, std::string(1000, 'x'));
}

// Refusals.

/// Of these only the messages tell: there is nothing to carry out, and that succeeds.
TEST_F(WatchPointParsing, ALineThatDoesNotFitIsToldAndSucceeds) {
  EXPECT_THAT(failure("g /add result -nonsense", StatusSuccess),
              ElementsAre("! orvWatchPoint: unknown flag -nonsense", kParsingError));
  EXPECT_THAT(failure("g /add result -create extra", StatusSuccess),
              ElementsAre(HasSubstr("\"extra\""), kParsingError));
  EXPECT_THAT(failure("g /add result -enable maybe -create", StatusSuccess),
              ElementsAre(HasSubstr("\"maybe\""), kParsingError));
  EXPECT_THAT(failure("nothing /nothing nothing -qpd", StatusSuccess),
              ElementsAre(HasSubstr("-queryParameterDescription"), kParsingError));
  EXPECT_THAT(failure("g /add result -spv limit", StatusSuccess),
              ElementsAre(HasSubstr("-setParameterValue"), kParsingError));
}

TEST_F(WatchPointParsing, WhatIsNoFailureGoesOnToCarryingOut) {
  host.run("readWatchPoint g /add result -nonsense");
  host.takeMessages();
  EXPECT_TRUE(ReadWatchPoint::last.executed);
  EXPECT_EQ(ReadWatchPoint::last.container, "");
}

TEST_F(WatchPointParsing, AFailureDoesNotGoOnToCarryingOut) {
  for (const char* arguments : {"", "g", "g /add", "nothing /add result", "g /nothing result",
                                "g /add nothing", "g /add result -smd \"\" v"}) {
    EXPECT_EQ(host.status(std::string("readWatchPoint ") + arguments), StatusFailure);
    host.takeMessages();
    EXPECT_FALSE(ReadWatchPoint::last.executed) << arguments;
  }
}

TEST_F(WatchPointParsing, WithoutAContainerThereAreTwoMessages) {
  EXPECT_THAT(failure(""), ElementsAre(kTooFew, kParsingError));
  EXPECT_THAT(failure("-create"), ElementsAre(kTooFew, kParsingError));
}

TEST_F(WatchPointParsing, WithoutANodeOrAPortThereIsOneMessage) {
  EXPECT_THAT(failure("g"), ElementsAre(kTooFew));
  EXPECT_THAT(failure("g /add"), ElementsAre(kTooFew));
  EXPECT_THAT(failure("nothing /nothing -create"), ElementsAre(kTooFew)) << "it goes first";
}

TEST_F(WatchPointParsing, AContainerThatIsNotThereIsNamed) {
  EXPECT_THAT(failure("nothing /nothing nothing"),
              ElementsAre("! nothing is not a DG ORV container"));
  EXPECT_THAT(failure("\"\" /add result"), ElementsAre("!  is not a DG ORV container"));
}

TEST_F(WatchPointParsing, TheContainerIsFoundByItsIdentifierToo) {
  const std::string uuid = host.session().scene().find("g")->uuid();
  EXPECT_EQ(host.run("orvWatchPoint \"" + uuid + "\" /add result -qw"), "false");
}

TEST_F(WatchPointParsing, WhatIsNoNodeIsNamedByItsPath) {
  for (const std::string path : {"/nothing", "add", "", "/add.result", "//", "/group/none", "/ä"}) {
    EXPECT_THAT(failure("g \"" + path + "\" nothing -create"),
                ElementsAre("! " + path + " is not a node name"));
  }
}

TEST_F(WatchPointParsing, APortThatIsNotThereIsNamedWithItsNode) {
  for (const std::string port : {"nothing", "", ".result", "/add.result", "result.x", "ö", "a b"}) {
    EXPECT_THAT(failure("g /add \"" + port + "\" -create"),
                ElementsAre("! A port named " + port + " was not found on /add"));
  }
  EXPECT_THAT(failure("g \"/\" result"), ElementsAre("! A port named result was not found on /"));
}

TEST_F(WatchPointParsing, ThePortIsLookedForAheadOfTheMetadata) {
  EXPECT_THAT(failure("g /add nothing -smd \"\" v"),
              ElementsAre("! A port named nothing was not found on /add"));
}

TEST_F(WatchPointParsing, MetadataThatAreRefusedGiveTwoMessages) {
  for (const char* flags :
       {"-smd \"\" v", "-amd \"\" v", "-rmd \"\" v", "-cmd \"\"", "-qmd \"\""}) {
    EXPECT_THAT(failure("g /add result -create " + std::string(flags)),
                ElementsAre("! The metadata name cannot be empty", kParsingError));
  }
  for (const char* text : {"\"\"", "\"{\""}) {
    EXPECT_THAT(failure("g /add result -mfs " + std::string(text)),
                ElementsAre("! Invalid metadata string format", kParsingError));
  }
}

TEST_F(WatchPointParsing, MetadataAreReadAheadOfTheOtherFlags) {
  EXPECT_EQ(host.status("readWatchPoint g /add result -create -qrv x -smd \"\" v"), StatusFailure);
  host.takeMessages();
  EXPECT_EQ(ReadWatchPoint::last.edit + ReadWatchPoint::last.query, 0u);
  EXPECT_EQ(ReadWatchPoint::last.name, "");
}

}  // namespace
