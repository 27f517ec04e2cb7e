#include <algorithm>
#include <iterator>
#include <map>

#include "standalone/host/engine/SyntaxData.h"
#include "tests/commands/graph/NodeReading.h"

namespace {

using hosttest::Texts;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

/// A flag, its arguments as one letter each (T text, B boolean, U unsigned), whether it may be
/// given repeatedly, and the field that it sets when it is given alone; "" for none.
struct Flag {
  const char* shortName;
  const char* longName;
  const char* kinds;
  bool multiUse;
  const char* sets;
};

constexpr bool kMulti = true;
constexpr bool kOnce = false;

constexpr Flag kMetadataFlags[] = {
    {"-qmd", "-queryMetaData", "T", kOnce, ""},
    {"-qms", "-queryMetaDatas", "", kOnce, ""},
    {"-smd", "-setMetaData", "TT", kOnce, ""},
    {"-amd", "-addMetaData", "TT", kOnce, ""},
    {"-rmd", "-removeMetaData", "TT", kOnce, ""},
    {"-cmd", "-clearMetaData", "T", kOnce, ""},
    {"-mfs", "-setMetaDataFromString", "T", kOnce, ""},
    {"-mas", "-queryMetaDataAsString", "", kOnce, ""},
};

constexpr Flag kFlags[] = {
    {"-c", "-connected", "B", kOnce, ""},
    {"-ct", "-connectedTo", "T", kMulti, ""},
    {"-cip", "-createInputPort", "TT", kOnce, "hasNodeEdits"},
    {"-cop", "-createOutputPort", "TT", kOnce, "hasNodeEdits"},
    {"-cpo", "-portOptions", "T", kOnce, ""},
    {"-cpf", "-portFlags", "U", kOnce, ""},
    {"-cpv", "-portValues", "T", kOnce, ""},
    {"-dp", "-deletePort", "T", kOnce, "hasNodeEdits"},
    {"-lcn", "-listConnectedNodes", "", kOnce, "listConnectedNodes"},
    {"-lp", "-listPorts", "", kOnce, "listPorts"},
    {"-spv", "-setPortDefaultValues", "TT", kOnce, "hasNodeEdits"},
    {"-rpv", "-resetPortDefaultValues", "T", kOnce, "hasNodeEdits"},
    {"-qpv", "-queryPortDefaultValues", "T", kOnce, "queryPortDefaultValues"},
    {"-qpt", "-queryPortDataType", "T", kOnce, "queryPortDataType"},
    {"-spt", "-setPortDataType", "TT", kOnce, "hasNodeEdits"},
    {"-qtn", "-queryTypeName", "", kOnce, "queryTypeName"},
    {"-spm", "-setPortMetaDataValue", "TTT", kOnce, "hasNodeEdits"},
    {"-qpm", "-queryPortMetaDataValue", "TT", kOnce, "queryPortMetaDataValue"},
    {"-lpc", "-listPortChildren", "T", kOnce, "listPortChildren"},
    {"-ssf", "-setStateFlag", "TB", kMulti, "hasNodeEdits"},
};

std::string kindOf(KSyntax::KArgType type) {
  switch (type) {
    case KSyntax::ArgString:
      return "T";
    case KSyntax::ArgBoolean:
      return "B";
    case KSyntax::ArgUnsigned:
      return "U";
    default:
      return "?";
  }
}

std::string described(const vesk::FlagSpec& flag) {
  std::string text = flag.shortName + " " + flag.longName + " ";
  for (const KSyntax::KArgType type : flag.arguments) text += kindOf(type);
  return text + (flag.multiUse ? " multi" : "") + (flag.keepsArgumentsInQuery ? " kept" : "");
}

std::string described(const Flag& flag) {
  return std::string(flag.shortName) + " " + flag.longName + " " + flag.kinds +
         (flag.multiUse ? " multi" : "");
}

/// Arguments with which each flag is accepted.
std::string argumentsOf(const Flag& flag) {
  static const std::map<std::string_view, std::string> kOf = {
      {"-mfs", " \"{}\""},  {"-cpo", " \"{}\""},  {"-cpv", " 0"},     {"-cip", " p float"},
      {"-cop", " p float"}, {"-spt", " own int"}, {"-spv", " own 0"}, {"-ssf", " e true"},
  };
  if (const auto found = kOf.find(flag.shortName); found != kOf.end()) return found->second;
  std::string text;
  for (const char kind : std::string_view(flag.kinds)) {
    text += kind == 'T' ? " own" : kind == 'B' ? " true" : " 0";
  }
  return text;
}

template <class Wanted>
std::vector<Flag> flagsWhere(Wanted wanted) {
  std::vector<Flag> flags;
  std::copy_if(std::begin(kFlags), std::end(kFlags), std::back_inserter(flags), wanted);
  return flags;
}

void PrintTo(const Flag& flag, std::ostream* out) { *out << flag.longName; }

std::string nameOf(const testing::TestParamInfo<Flag>& flag) { return flag.param.longName + 1; }

TEST(NodeSyntax, DeclaresAllFlagsInOrderBehindThoseOfMetadata) {
  const KSyntax syntax = orvNodeCmd::createSyntax();
  Texts declared, expected;
  for (const vesk::FlagSpec& flag : HostAccess::data(syntax).flags()) {
    declared.push_back(described(flag));
  }
  for (const Flag& flag : kMetadataFlags) expected.push_back(described(flag));
  for (const Flag& flag : kFlags) expected.push_back(described(flag));
  EXPECT_THAT(declared, ElementsAreArray(expected));
  EXPECT_THAT(declared, SizeIs(8 + 20));
}

TEST(NodeSyntax, DeclaresAContainerAndAPathAndNoModes) {
  const KSyntax syntax = orvNodeCmd::createSyntax();
  const vesk::SyntaxData& data = HostAccess::data(syntax);
  EXPECT_THAT(data.arguments(), ElementsAre(KSyntax::ArgString, KSyntax::ArgString));
  EXPECT_FALSE(data.repeatsLastArgument());
  EXPECT_FALSE(data.hasQuery());
  EXPECT_FALSE(data.hasEdit());
}

class NodeSyntaxLines : public NodeReadingTest {
 protected:
  /// Reads a line that must not fit the syntax; gives what the host says of it. The command goes on
  /// to carry it out.
  std::string misfit(const std::string& flags) {
    host.status(readLine(flags, "/a"));
    EXPECT_TRUE(ReadNodeCmd::last.executed) << flags;
    const Texts messages = host.takeMessages();
    EXPECT_THAT(messages, SizeIs(2)) << flags;
    if (messages.size() != 2) return {};
    EXPECT_EQ(messages[1], kParsingError);
    return messages[0];
  }
};

class NodeFlag : public NodeSyntaxLines, public testing::WithParamInterface<Flag> {
 protected:
  void expectFields(const ReadNode& read) {
    const std::string sets = GetParam().sets;
    EXPECT_THAT(read.flags, ElementsAreArray(sets.empty() ? Texts{} : Texts{sets}));
    EXPECT_EQ(read.undoable, sets == "hasNodeEdits");
  }
};

INSTANTIATE_TEST_SUITE_P(All, NodeFlag, testing::ValuesIn(kFlags), nameOf);

TEST_P(NodeFlag, SetsItsFieldAloneUnderEitherName) {
  const Flag& flag = GetParam();
  expectFields(read(flag.shortName + argumentsOf(flag)));
  expectFields(read(flag.longName + argumentsOf(flag)));
}

TEST_P(NodeFlag, IsGivenOnceOrRepeatedlyAsDeclared) {
  const Flag& flag = GetParam();
  const std::string twice =
      flag.shortName + argumentsOf(flag) + " " + flag.longName + argumentsOf(flag);
  if (flag.multiUse) {
    expectFields(read(twice));
  } else {
    EXPECT_EQ(misfit(twice),
              "! readNode: flag " + std::string(flag.longName) + " is given more than once");
  }
}

TEST_P(NodeFlag, TakesAllItsArgumentsAndNoMore) {
  const Flag& flag = GetParam();
  const std::string arguments = argumentsOf(flag);
  EXPECT_THAT(misfit(flag.shortName + arguments + " extra"), HasSubstr("extra"));
  if (arguments.empty()) return;
  const std::string fewer = flag.shortName + arguments.substr(0, arguments.rfind(' '));
  EXPECT_THAT(misfit(fewer), HasSubstr(flag.longName));
}

TEST_P(NodeFlag, RefusesAnotherKindOfLastArgumentWhereItIsNoText) {
  const std::string_view kinds = GetParam().kinds;
  if (kinds.empty() || kinds.back() == 'T') return;
  std::string arguments = argumentsOf(GetParam());
  arguments = arguments.substr(0, arguments.rfind(' ')) + " nonsense";
  EXPECT_THAT(misfit(GetParam().shortName + arguments), HasSubstr("nonsense"));
}

TEST_F(NodeSyntaxLines, PortFlagsHaveNoSign) {
  EXPECT_THAT(misfit("-portFlags -1"), HasSubstr("-1"));
}

TEST_F(NodeSyntaxLines, ThereIsNoQueryAndNoEditMode) {
  for (const char* mode : {"-q", "-e", "-edit"}) {
    EXPECT_THAT(misfit(std::string(mode) + " -listPorts"), HasSubstr(mode)) << mode;
  }
}

TEST_F(NodeSyntaxLines, NothingRefusesACombination) {
  std::string line;
  for (const Flag& flag : kMetadataFlags) line += flag.longName + argumentsOf(flag) + " ";
  for (const Flag& flag : kFlags) line += flag.longName + argumentsOf(flag) + " ";
  EXPECT_THAT(
      read(line).flags,
      ElementsAre("queryTypeName", "filterConnected", "connectedValue", "listConnectedNodes",
                  "listPorts", "queryPortDefaultValues", "queryPortDataType",
                  "queryPortMetaDataValue", "listPortChildren", "hasNodeEdits"));
}

TEST_F(NodeSyntaxLines, OfNothingSetsNothing) {
  const ReadNode& none = read("");
  EXPECT_THAT(none.flags, IsEmpty());
  EXPECT_FALSE(none.undoable);
}

/// Flags that say something of another one: without it they are accepted, and nothing comes of
/// them.
class NodeIdleFlag : public NodeSyntaxLines, public testing::WithParamInterface<Flag> {};

INSTANTIATE_TEST_SUITE_P(All, NodeIdleFlag, testing::ValuesIn(flagsWhere([](const Flag& flag) {
                           return *flag.sets == '\0';
                         })),
                         nameOf);

TEST_P(NodeIdleFlag, AloneGivesNothingAndChangesNothing) {
  const std::string before = stored();
  EXPECT_EQ(run("/a", GetParam().longName + argumentsOf(GetParam())), "");
  EXPECT_EQ(stored(), before);
  EXPECT_THAT(host.steps(), IsEmpty());
}

TEST_F(NodeSyntaxLines, AnIdleFlagIsNotLookedInto) {
  EXPECT_THAT(read("-portOptions \"{broken\" -portValues \"{broken\"").flags, IsEmpty());
  EXPECT_THAT(read("-connectedTo own").connectedTo, IsEmpty());
}

}  // namespace
