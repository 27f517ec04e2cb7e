#include "standalone/vesk/ProgramOptions.h"

#include <gmock/gmock.h>

namespace vesk {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;

using Kind = ProgramOptions::Input::Kind;

std::string read(std::vector<std::string> arguments, ProgramOptions& options) {
  arguments.insert(arguments.begin(), "vesk");
  std::vector<char*> pointers;
  for (std::string& argument : arguments) pointers.push_back(argument.data());
  pointers.push_back(nullptr);
  const std::string problem =
      readProgramOptions(static_cast<int>(arguments.size()), pointers.data(), options);
  return problem;
}

ProgramOptions readWell(const std::vector<std::string>& arguments) {
  ProgramOptions options;
  EXPECT_EQ(read(arguments, options), "");
  return options;
}

std::string problemOf(const std::vector<std::string>& arguments) {
  ProgramOptions options;
  return read(arguments, options);
}

std::vector<std::pair<Kind, std::string>> inputsOf(const ProgramOptions& options) {
  std::vector<std::pair<Kind, std::string>> inputs;
  for (const auto& input : options.inputs) inputs.emplace_back(input.kind, input.text);
  return inputs;
}

TEST(ProgramOptions, AreAllOffWithoutArguments) {
  const ProgramOptions options = readWell({});
  EXPECT_TRUE(options.inputs.empty());
  EXPECT_FALSE(options.batch || options.transcript || options.check || options.update ||
               options.keepGoing || options.noPlugin || options.help || options.version);
}

TEST(ProgramOptions, KeepLinesAndScriptsInTheOrderGiven) {
  const ProgramOptions options =
      readWell({"a.vesk", "-c", "echo 1", "b.vesk", "--command", "echo 2", "--command=echo 3"});
  EXPECT_THAT(inputsOf(options),
              ElementsAre(std::pair(Kind::Script, "a.vesk"), std::pair(Kind::Line, "echo 1"),
                          std::pair(Kind::Script, "b.vesk"), std::pair(Kind::Line, "echo 2"),
                          std::pair(Kind::Line, "echo 3")));
}

TEST(ProgramOptions, TakeAllBehindTwoHyphensForScripts) {
  const ProgramOptions options = readWell({"--", "--batch", "-c"});
  EXPECT_THAT(inputsOf(options),
              ElementsAre(std::pair(Kind::Script, "--batch"), std::pair(Kind::Script, "-c")));
  EXPECT_FALSE(options.batch);
}

TEST(ProgramOptions, ReadEachSwitch) {
  EXPECT_TRUE(readWell({"--batch"}).batch);
  EXPECT_TRUE(readWell({"--keep-going"}).keepGoing);
  EXPECT_TRUE(readWell({"--transcript"}).transcript);
  EXPECT_TRUE(readWell({"--no-plugin"}).noPlugin);
  EXPECT_TRUE(readWell({"--version"}).version);
  EXPECT_TRUE(readWell({"--help"}).help);
  EXPECT_TRUE(readWell({"-h"}).help);
  EXPECT_TRUE(readWell({"--check", "a.vtr"}).check);
  EXPECT_TRUE(readWell({"--check", "--update", "a.vtr"}).update);
}

TEST(ProgramOptions, ReadEachValue) {
  const ProgramOptions options = readWell({"--plugin", "a.so", "--plugin=b.so", "--library", "one",
                                           "--library", "two", "--prefs", "settings", "--published",
                                           "own", "--journal", "log", "--language", "de_AT"});
  EXPECT_THAT(options.plugins, ElementsAre("a.so", "b.so"));
  EXPECT_THAT(options.libraries, ElementsAre("one", "two"));
  EXPECT_EQ(options.preferencesFolder, "settings");
  EXPECT_EQ(options.publishedFolder, "own");
  EXPECT_EQ(options.journal, "log");
  EXPECT_EQ(options.language, "de_AT");
}

TEST(ProgramOptions, NameAnUnknownOptionAsItWasWritten) {
  EXPECT_EQ(problemOf({"--nonsense"}), "unknown option --nonsense");
  EXPECT_EQ(problemOf({"-x"}), "unknown option -x");
  EXPECT_EQ(problemOf({"a.vesk", "-x", "b.vesk"}), "unknown option -x");
  EXPECT_EQ(problemOf({"--batch=1"}), "unknown option --batch=1");
}

TEST(ProgramOptions, NameAnUnknownLetterAmongOthers) {
  EXPECT_EQ(problemOf({"-xh"}), "unknown option -x");
  EXPECT_EQ(problemOf({"-hx"}), "unknown option -x");
}

TEST(ProgramOptions, RefuseAnAbbreviationThatFitsTwoOptions) {
  EXPECT_EQ(problemOf({"--p", "x"}), "unknown option --p");
}

class NeedsAnArgument : public ::testing::TestWithParam<const char*> {};

TEST_P(NeedsAnArgument, IsToldWithItsName) {
  EXPECT_EQ(problemOf({"--batch", GetParam()}), std::string(GetParam()) + " needs an argument");
}

INSTANTIATE_TEST_SUITE_P(Each, NeedsAnArgument,
                         ::testing::Values("-c", "--command", "--plugin", "--library", "--prefs",
                                           "--published", "--journal", "--language"));

TEST(ProgramOptions, RefuseWhatContradictsItself) {
  EXPECT_EQ(problemOf({"--update", "a.vtr"}), "--update goes with --check");
  EXPECT_EQ(problemOf({"--check", "--transcript", "a.vtr"}),
            "--check and --transcript exclude each other");
  EXPECT_EQ(problemOf({"--plugin", "a.so", "--no-plugin"}),
            "--plugin and --no-plugin exclude each other");
  EXPECT_EQ(problemOf({"--check", "-c", "ls"}), "--check takes transcript files, not -c");
  EXPECT_EQ(problemOf({"--check"}), "--check needs a transcript file");
}

TEST(ProgramHelp, BeginsWithTheUsage) {
  EXPECT_THAT(programHelp(), StartsWith("Usage: vesk [options] [script...]\n"));
}

TEST(ProgramHelp, NamesEveryOption) {
  for (const char* option :
       {"-c, --command LINE", "--batch", "--keep-going", "--transcript", "--check", "--update",
        "--plugin PATH", "--no-plugin", "--library DIR", "--prefs DIR", "--published DIR",
        "--journal FILE", "--language NAME", "--version", "-h, --help"}) {
    EXPECT_THAT(programHelp(), HasSubstr(option));
  }
}

TEST(ProgramHelp, FitsATerminal) {
  const std::string help = programHelp();
  for (std::size_t at = 0; at < help.size();) {
    const std::size_t end = help.find('\n', at);
    EXPECT_LE(end - at, 100u) << help.substr(at, end - at);
    at = end + 1;
  }
}

TEST(ProgramOptions, TakeAWindowAndItsScale) {
  const ProgramOptions options = readWell({"--gui", "--scale", "150"});
  EXPECT_TRUE(options.gui);
  EXPECT_EQ(options.scale, "150");
  EXPECT_FALSE(readWell({}).gui);
}

TEST(ProgramOptions, RefuseAScaleThatIsNotOfferedOrHasNoWindow) {
  EXPECT_EQ(problemOf({"--scale", "150"}), "--scale goes with --gui");
  for (const char* scale : {"110", "0150", "150.0", "big", "-100", "1e2", "100000000000000"}) {
    EXPECT_EQ(problemOf({"--gui", "--scale", scale}),
              std::string("--scale takes 100, 125, 150, 175 or 200, not ") + scale);
  }
}

}  // namespace
}  // namespace vesk
