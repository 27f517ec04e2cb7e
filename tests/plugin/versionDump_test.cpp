#include <dlfcn.h>
#include <gmock/gmock.h>

#include <cstdlib>
#include <regex>

#include "testPaths.h"
#include "tests/standalone/vesk/ProgramRun.h"

namespace {

constexpr const char* kVariable = "KESTRIM_DUMP_VERSION_INFO";

const std::regex kVersionLine(
    "   veskOrvPlugin: Vesk-ORV-Plugin version 2\\.1\\.0\\.178 "
    "\\((Mon|Tue|Wed|Thu|Fri|Sat|Sun) (\\d\\d)/(\\d\\d)/(\\d{4}), (\\d{8})\\d{4}, "
    "build 131, commit [0-9a-f]{7}, branch release\\)\n");

ProgramRun runWith(const char* value) {
  return runVesk({"-c", "about -version"}, {.variables = {{kVariable, value}}});
}

class VersionDumpOn : public testing::TestWithParam<const char*> {};
class VersionDumpOff : public testing::TestWithParam<const char*> {};

TEST_P(VersionDumpOn, WritesOneLineToStandardError) {
  const ProgramRun run = runWith(GetParam());
  EXPECT_TRUE(std::regex_match(run.err, kVersionLine)) << run.err;
}

TEST_P(VersionDumpOn, LeavesTheOutputAndTheExitStatus) {
  const ProgramRun run = runWith(GetParam());
  EXPECT_EQ(run.out, "2.1.0\n");
  EXPECT_EQ(run.status, 0);
}

TEST_P(VersionDumpOff, WritesNothing) {
  const ProgramRun run = runWith(GetParam());
  EXPECT_EQ(run.err, "");
  EXPECT_EQ(run.out, "2.1.0\n");
  EXPECT_EQ(run.status, 0);
}

INSTANTIATE_TEST_SUITE_P(Values, VersionDumpOn,
                         testing::Values("1", "2", "-1", "1abc", " 7", "+1", "01"));
INSTANTIATE_TEST_SUITE_P(Values, VersionDumpOff,
                         testing::Values("", "0", "abc", "00", "-0", "a1", "on", "true"));

TEST(VersionDump, IsOffWithoutTheVariable) {
  const ProgramRun run = runVesk({"-c", "about -version"});
  EXPECT_EQ(run.err, "");
  EXPECT_EQ(run.out, "2.1.0\n");
}

TEST(VersionDump, TellsTheSameDayTwice) {
  const ProgramRun run = runWith("1");
  std::smatch parts;
  ASSERT_TRUE(std::regex_match(run.err, parts, kVersionLine)) << run.err;
  EXPECT_EQ(parts[5].str(), parts[4].str() + parts[2].str() + parts[3].str());
}

TEST(VersionDump, IsTheModulesOwn) {
  const ProgramRun run =
      runVesk({"--no-plugin", "-c", "about -version"}, {.variables = {{kVariable, "1"}}});
  EXPECT_EQ(run.err, "");
}

TEST(VersionDump, ComesAgainWithEachLoad) {
  const ProgramRun run = runVesk({"-c", "unloadPlugin veskOrvPlugin", "-c",
                                  "loadPlugin \"" VESK_BUILD_DIR "/plug-ins/veskOrvPlugin.so\""},
                                 {.variables = {{kVariable, "1"}}});
  const std::size_t half = run.err.size() / 2;
  EXPECT_TRUE(std::regex_match(run.err.substr(half), kVersionLine)) << run.err;
  EXPECT_EQ(run.err.substr(0, half), run.err.substr(half));
}

TEST(VersionDump, WithStandardErrorClosedTheProgramRunsAllTheSame) {
  const ProgramRun run =
      runShell(std::string(kVariable) + "=1 '" + kVesk + "' -c 'about -version' -c 'orv -rt' 2>&-");
  EXPECT_EQ(run.out, "2.1.0\nstandard\n");
  EXPECT_EQ(run.status, 0);
}

TEST(VersionDump, WithEveryStreamClosedTheProgramRunsAllTheSame) {
  const ProgramRun run =
      runShell(std::string(kVariable) + "=1 '" + kVesk + "' -c 'about -version' <&- >&- 2>&-");
  EXPECT_EQ(run.status, 0);
}

TEST(VersionDump, IsNotTriedWithoutAFileBehindStandardError) {
  const ProgramRun run =
      runProcess(VESK_BUILD_DIR "/bin/versionDumpClosedStream",
                 {VESK_BUILD_DIR "/plug-ins/veskOrvPlugin.so"}, {.variables = {{kVariable, "1"}}});
  EXPECT_EQ(run.out + run.err, "");
  EXPECT_EQ(run.status, 0);
}

TEST(VersionDump, HappensWhileTheModuleIsMappedBeforeAnyEntryPointIsCalled) {
  setenv(kVariable, "1", 1);
  testing::internal::CaptureStderr();
  void* module = dlopen(VESK_BUILD_DIR "/plug-ins/veskOrvPlugin.so", RTLD_NOW | RTLD_LOCAL);
  const std::string text = testing::internal::GetCapturedStderr();
  unsetenv(kVariable);
  ASSERT_TRUE(module) << dlerror();
  dlclose(module);
  EXPECT_TRUE(std::regex_match(text, kVersionLine)) << text;
}

}  // namespace
