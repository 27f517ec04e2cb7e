#include <algorithm>
#include <iterator>
#include <map>

#include "standalone/host/engine/SyntaxData.h"
#include "tests/commands/compound/CompoundReading.h"

namespace {

using hosttest::Texts;
using testing::Each;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

// The flag words hold these very numbers.
using Cmd = orvCompoundCmd;
static_assert(Cmd::kEditCreate == 1);
static_assert(Cmd::kEditExplode == 2);
static_assert(Cmd::kEditAddNodes == 4);
static_assert(Cmd::kEditRemoveNodes == 8);
static_assert(Cmd::kEditRenameNodes == 16);
static_assert(Cmd::kEditPorts == 32);
static_assert(Cmd::kEditPortValues == 64);
static_assert(Cmd::kEditAddStatePorts == 128);
static_assert(Cmd::kEditSetIsReferenced == 256);
static_assert(Cmd::kEditResetToFactory == 512);
static_assert(Cmd::kEditAnnotations == 1024);
static_assert(Cmd::kQuerySpecializedTypeName == 1);
static_assert(Cmd::kQueryIsReferenced == 2);
static_assert(Cmd::kQueryIsImported == 4);
static_assert(Cmd::kQueryListNodes == 8);
static_assert(Cmd::kQueryListPorts == 16);
static_assert(Cmd::kQueryPortDataType == 32);
static_assert(Cmd::kQueryPortDefaultValues == 64);
static_assert(Cmd::kQueryPortMetaDataValue == 128);
static_assert(Cmd::kQueryListPortChildren == 256);
static_assert(Cmd::kQueryCanResetToFactory == 512);
static_assert(Cmd::kQuerySaveAs == 1024);
static_assert(Cmd::kQueryPublish == 2048);
static_assert(Cmd::kQueryPublishGraph == 4096);
static_assert(Cmd::kQueryAnnotationMetaDataValue == 8192);
static_assert(Cmd::kQueryIsEditable == 16384);
static_assert(Cmd::kListNodeType == 1);
static_assert(Cmd::kListConnected == 2);
static_assert(Cmd::kListConnectedToInput == 4);
static_assert(Cmd::kListConnectedToOutput == 8);
static_assert(Cmd::kListConnectedTo == 16);
static_assert(Cmd::kListPortConnected == 1);
static_assert(Cmd::kListPortInputs == 2);
static_assert(Cmd::kListPortOutputs == 4);

/// A flag, its arguments as one letter each (T text, B boolean, U unsigned), whether it may be
/// given repeatedly, and the bits that it sets when it is given alone.
struct Flag {
  const char* shortName;
  const char* longName;
  const char* kinds;
  bool multiUse;
  unsigned edit;
  unsigned query;
};

constexpr bool kMulti = true;
constexpr bool kOnce = false;

constexpr Flag kMetadataFlags[] = {
    {"-qmd", "-queryMetaData", "T", kOnce, 0, 0},
    {"-qms", "-queryMetaDatas", "", kOnce, 0, 0},
    {"-smd", "-setMetaData", "TT", kOnce, 0, 0},
    {"-amd", "-addMetaData", "TT", kOnce, 0, 0},
    {"-rmd", "-removeMetaData", "TT", kOnce, 0, 0},
    {"-cmd", "-clearMetaData", "T", kOnce, 0, 0},
    {"-mfs", "-setMetaDataFromString", "T", kOnce, 0, 0},
    {"-mas", "-queryMetaDataAsString", "", kOnce, 0, 0},
};

constexpr Flag kFlags[] = {
    {"-c", "-create", "T", kOnce, 1, 0},
    {"-ec", "-explode", "T", kMulti, 2, 0},
    {"-an", "-addNode", "T", kMulti, 4, 0},
    {"-aio", "-addIONode", "B", kMulti, 4, 0},
    {"-ab", "-addBackdrop", "T", kMulti, 1024, 0},
    {"-rma", "-removeAnnotation", "T", kMulti, 1024, 0},
    {"-ra", "-renameAnnotation", "TT", kMulti, 1024, 0},
    {"-sam", "-setAnnotationMetaDataValue", "TTT", kOnce, 1024, 0},
    {"-qam", "-queryAnnotationMetaDataValue", "TT", kOnce, 0, 8192},
    {"-asn", "-addStickyNote", "T", kMulti, 1024, 0},
    {"-mai", "-moveAnnotationIn", "T", kMulti, 0, 0},
    {"-rmn", "-removeNode", "T", kMulti, 8, 0},
    {"-mi", "-moveNodeIn", "T", kMulti, 0, 0},
    {"-cpo", "-portOptions", "T", kOnce, 0, 0},
    {"-cpf", "-portFlags", "U", kOnce, 0, 0},
    {"-cpv", "-portValues", "T", kOnce, 0, 0},
    {"-cip", "-createInputPort", "TT", kMulti, 32, 0},
    {"-cop", "-createOutputPort", "TT", kMulti, 32, 0},
    {"-rp", "-renamePort", "TT", kMulti, 32, 0},
    {"-mp", "-movePort", "TU", kOnce, 32, 0},
    {"-mpn", "-movePortToIONode", "TT", kOnce, 32, 0},
    {"-hp", "-hidePort", "TB", kOnce, 32, 0},
    {"-dp", "-deletePort", "T", kMulti, 32, 0},
    {"-spt", "-setPortDataType", "TT", kOnce, 32, 0},
    {"-qpt", "-queryPortDataType", "T", kOnce, 0, 32},
    {"-spv", "-setPortDefaultValues", "TT", kOnce, 64, 0},
    {"-rpv", "-resetPortDefaultValues", "T", kOnce, 64, 0},
    {"-qpv", "-queryPortDefaultValues", "T", kOnce, 0, 64},
    {"-spm", "-setPortMetaDataValue", "TTT", kOnce, 32, 0},
    {"-qpm", "-queryPortMetaDataValue", "TT", kOnce, 0, 128},
    {"-lpc", "-listPortChildren", "T", kOnce, 0, 256},
    {"-rn", "-renameNode", "TT", kMulti, 16, 0},
    {"-sa", "-saveAs", "T", kOnce, 0, 1024},
    {"-pub", "-publish", "TTTB", kOnce, 0, 2048},
    {"-pbg", "-publishGraph", "TTTT", kOnce, 0, 4096},
    {"-asp", "-addStatePorts", "TTT", kOnce, 128, 0},
    {"-stn", "-specializedTypeName", "", kOnce, 0, 1},
    {"-qir", "-queryIsReferenced", "", kOnce, 0, 2},
    {"-qii", "-queryIsImported", "", kOnce, 0, 4},
    {"-qie", "-queryIsEditable", "", kOnce, 0, 16384},
    {"-sir", "-setIsReferenced", "B", kOnce, 256, 0},
    {"-ln", "-listNodes", "", kOnce, 0, 8},
    {"-nt", "-nodeType", "T", kOnce, 0, 0},
    {"-cn", "-connected", "B", kOnce, 0, 0},
    {"-cti", "-connectedToInput", "", kOnce, 0, 0},
    {"-cto", "-connectedToOutput", "", kOnce, 0, 0},
    {"-ct", "-connectedTo", "T", kOnce, 0, 0},
    {"-lp", "-listPorts", "", kOnce, 0, 16},
    {"-ip", "-inputPort", "", kOnce, 0, 0},
    {"-op", "-outputPort", "", kOnce, 0, 0},
    {"-rtf", "-resetToFactory", "T", kMulti, 512, 0},
    {"-crf", "-canResetToFactory", "T", kOnce, 0, 512},
    {"-cot", "-connectTo", "T", kOnce, 0, 0},
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
      {"-ec", " group"}, {"-an", " core::math::add"}, {"-mfs", " \"{}\""},  {"-cpo", " \"{}\""},
      {"-cpv", " 0"},    {"-cip", " p float"},        {"-cop", " p float"}, {"-spt", " p float"},
      {"-spv", " p 0"},  {"-mpn", " p input"},
  };
  if (const auto found = kOf.find(flag.shortName); found != kOf.end()) return found->second;
  std::string text;
  for (const char kind : std::string_view(flag.kinds)) {
    text += kind == 'T' ? " p" : kind == 'B' ? " true" : " 0";
  }
  return text;
}

/// Arguments with which each flag that may be repeated is accepted behind those of `argumentsOf`.
std::string moreArgumentsOf(const Flag& flag) {
  static const std::map<std::string_view, std::string> kOf = {
      {"-ec", " other"},
      {"-dp", " q"},
      {"-rp", " q r"},
  };
  const auto found = kOf.find(flag.shortName);
  return found != kOf.end() ? found->second : argumentsOf(flag);
}

template <class Wanted>
std::vector<Flag> flagsWhere(Wanted wanted) {
  std::vector<Flag> flags;
  std::copy_if(std::begin(kFlags), std::end(kFlags), std::back_inserter(flags), wanted);
  return flags;
}

void PrintTo(const Flag& flag, std::ostream* out) { *out << flag.longName; }

std::string nameOf(const testing::TestParamInfo<Flag>& flag) { return flag.param.longName + 1; }

TEST(CompoundSyntax, DeclaresAllFlagsInOrderBehindThoseOfMetadata) {
  const KSyntax syntax = orvCompoundCmd::createSyntax();
  Texts declared, expected;
  for (const vesk::FlagSpec& flag : HostAccess::data(syntax).flags()) {
    declared.push_back(described(flag));
  }
  for (const Flag& flag : kMetadataFlags) expected.push_back(described(flag));
  for (const Flag& flag : kFlags) expected.push_back(described(flag));
  EXPECT_THAT(declared, ElementsAreArray(expected));
  EXPECT_THAT(declared, SizeIs(8 + 53));
}

TEST(CompoundSyntax, DeclaresAContainerAndAPathAndNoModes) {
  const KSyntax syntax = orvCompoundCmd::createSyntax();
  const vesk::SyntaxData& data = HostAccess::data(syntax);
  EXPECT_THAT(data.arguments(), ElementsAre(KSyntax::ArgString, KSyntax::ArgString));
  EXPECT_FALSE(data.repeatsLastArgument());
  EXPECT_FALSE(data.hasQuery());
  EXPECT_FALSE(data.hasEdit());
}

/// A graph in which each flag is accepted with the arguments of `argumentsOf`.
class CompoundSyntaxLines : public CompoundReadingTest {
 protected:
  CompoundSyntaxLines() {
    run("/", "-create group");
    run("/", "-create other");
    run("/", "-addIONode true");
    host.session().undoQueue().clear();
  }

  /// Reads a line that must not fit the syntax; gives what the host says of it.
  std::string misfit(const std::string& flags) {
    EXPECT_EQ(host.status(readLine(flags, "/")), StatusBadArgument) << flags;
    const Texts messages = host.takeMessages();
    EXPECT_THAT(messages, SizeIs(2)) << flags;
    if (messages.size() != 2) return {};
    EXPECT_EQ(messages[1], "! Invalid parameters detected.  Exiting.");
    return messages[0];
  }
};

class CompoundFlag : public CompoundSyntaxLines, public testing::WithParamInterface<Flag> {
 protected:
  void expectWords(const ReadCompound& read) {
    const Flag& flag = GetParam();
    EXPECT_EQ(read.edit, flag.edit);
    EXPECT_EQ(read.query, flag.query);
    EXPECT_EQ(read.undoable, flag.edit != 0);
    const bool lists = flag.shortName == std::string_view("-lp");
    EXPECT_EQ(read.listPorts, lists ? Cmd::kListPortInputs | Cmd::kListPortOutputs : 0u);
    EXPECT_EQ(read.listNodes, 0u);
  }
};

INSTANTIATE_TEST_SUITE_P(All, CompoundFlag, testing::ValuesIn(kFlags), nameOf);

TEST_P(CompoundFlag, SetsItsBitsAloneUnderEitherName) {
  const Flag& flag = GetParam();
  expectWords(read(flag.shortName + argumentsOf(flag)));
  expectWords(read(flag.longName + argumentsOf(flag)));
}

TEST_P(CompoundFlag, IsGivenOnceOrRepeatedlyAsDeclared) {
  const Flag& flag = GetParam();
  const std::string twice =
      flag.shortName + argumentsOf(flag) + " " + flag.longName + moreArgumentsOf(flag);
  if (flag.multiUse) {
    expectWords(read(twice));
  } else {
    EXPECT_EQ(misfit(twice),
              "! readCompound: flag " + std::string(flag.longName) + " is given more than once");
  }
}

TEST_P(CompoundFlag, TakesAllItsArgumentsAndNoMore) {
  const Flag& flag = GetParam();
  const std::string arguments = argumentsOf(flag);
  EXPECT_THAT(misfit(flag.shortName + arguments + " extra"), HasSubstr("extra"));
  if (arguments.empty()) return;
  const std::string fewer = flag.shortName + arguments.substr(0, arguments.rfind(' '));
  EXPECT_THAT(misfit(fewer), HasSubstr(flag.longName));
}

/// The flags whose last argument is a boolean or a number: any text is a text.
class CompoundTypedFlag : public CompoundSyntaxLines, public testing::WithParamInterface<Flag> {};

INSTANTIATE_TEST_SUITE_P(All, CompoundTypedFlag, testing::ValuesIn(flagsWhere([](const Flag& flag) {
                           return std::string_view(flag.kinds).find_last_of("BU") !=
                                  std::string_view::npos;
                         })),
                         nameOf);

TEST_P(CompoundTypedFlag, RefusesAnArgumentOfAnotherKind) {
  std::string arguments = argumentsOf(GetParam());
  arguments = arguments.substr(0, arguments.rfind(' ')) + " nonsense";
  EXPECT_THAT(misfit(GetParam().shortName + arguments), HasSubstr("nonsense"));
}

TEST_F(CompoundSyntaxLines, AnUnsignedArgumentHasNoSign) {
  EXPECT_THAT(misfit("-portFlags -1"), HasSubstr("-1"));
  EXPECT_THAT(misfit("-movePort p -1"), HasSubstr("-1"));
}

TEST_F(CompoundSyntaxLines, ThereIsNoQueryAndNoEditMode) {
  for (const char* mode : {"-q", "-e", "-edit"}) {
    EXPECT_THAT(misfit(std::string(mode) + " -listNodes"), HasSubstr(mode)) << mode;
  }
}

TEST_F(CompoundSyntaxLines, NothingRefusesACombination) {
  std::string line;
  for (const Flag& flag : kMetadataFlags) line += flag.longName + argumentsOf(flag) + " ";
  for (const Flag& flag : kFlags) line += flag.longName + argumentsOf(flag) + " ";
  const ReadCompound& all = read(line);
  EXPECT_EQ(all.edit, 2047u);
  EXPECT_EQ(all.query, 32767u);
  EXPECT_EQ(all.listNodes, 31u);
  EXPECT_EQ(all.listPorts, 7u);
  EXPECT_THAT(host.takeMessages(), Each(testing::StartsWith("? ")));
}

TEST_F(CompoundSyntaxLines, OfNothingSetsNothing) {
  const ReadCompound& none = read("");
  EXPECT_EQ(none.edit, 0u);
  EXPECT_EQ(none.query, 0u);
  EXPECT_FALSE(none.undoable);
}

/// Flags that need another one: without it they are accepted, and nothing comes of them.
class CompoundIdleFlag : public CompoundSyntaxLines, public testing::WithParamInterface<Flag> {};

INSTANTIATE_TEST_SUITE_P(All, CompoundIdleFlag, testing::ValuesIn(flagsWhere([](const Flag& flag) {
                           return flag.edit == 0 && flag.query == 0;
                         })),
                         nameOf);

TEST_P(CompoundIdleFlag, DoesNothingByItselfAndIsNoStep) {
  const std::string before = stored();
  EXPECT_EQ(run("/", GetParam().longName + argumentsOf(GetParam())), "");
  EXPECT_EQ(stored(), before);
  EXPECT_THAT(host.steps(), IsEmpty());
}

TEST_F(CompoundSyntaxLines, APortOfAnUnknownTypeSetsNoBit) {
  for (const char* flag : {"-createInputPort", "-createOutputPort"}) {
    const ReadCompound& refused = read(std::string(flag) + " p nonsense");
    EXPECT_EQ(refused.edit, 0u) << flag;
    EXPECT_FALSE(refused.undoable) << flag;
    EXPECT_THAT(host.takeMessages(), ElementsAre("! Unknown port type nonsense")) << flag;
  }
}

TEST_F(CompoundSyntaxLines, AFilterOfTheOtherListIsNotRead) {
  const ReadCompound ports = read("-lp -nt t -cti -cto -ct p");
  EXPECT_EQ(ports.listNodes, 0u);
  EXPECT_EQ(ports.listType, "");
  EXPECT_EQ(ports.listConnectedTo, "");
  const ReadCompound nodes = read("-ln -ip -op");
  EXPECT_EQ(nodes.listPorts, 0u);
  EXPECT_EQ(nodes.listNodes, 0u);
}

}  // namespace
