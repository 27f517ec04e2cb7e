// What the module shows to the dynamic linker and what it takes from the platform.

#include <dlfcn.h>
#include <gmock/gmock.h>

#include <cstring>
#include <set>

#include "testPaths.h"
#include "tests/standalone/vesk/ProgramRun.h"

namespace {

using testing::IsEmpty;
using testing::UnorderedElementsAre;

constexpr const char* kModule = VESK_BUILD_DIR "/plug-ins/veskOrvPlugin.so";
const std::string kSurface = VESK_SOURCE_DIR "/tests/platform/surface/";

using Names = std::set<std::string>;

Names linesOf(const std::string& text) {
  std::istringstream lines(text);
  Names names;
  for (std::string line; std::getline(lines, line);) names.insert(line);
  return names;
}

Names output(const std::string& shellLine) {
  const ProgramRun run = runShell(shellLine);
  EXPECT_EQ(run.status, 0) << run.err;
  return linesOf(run.out);
}

Names listed(const std::string& library) {
  return linesOf(readWholeFile(kSurface + library + ".txt"));
}

Names without(const Names& names, const Names& others) {
  Names rest;
  for (const std::string& name : names) {
    if (!others.contains(name)) rest.insert(name);
  }
  return rest;
}

/// The symbols of the platform that the module takes.
Names taken() {
  return output(std::string("nm -D -C --undefined-only ") + kModule +
                " | sed -nE 's/^ +[Uw] //p' | grep -E '(Vesk20250000|ORV_v1|orvUI_v1)::'");
}

TEST(ModuleExports, AreTheFourThatAHostLooksFor) {
  EXPECT_THAT(output(std::string("nm -D --defined-only ") + kModule + " | sed 's/.* //'"),
              UnorderedElementsAre("initializePlugin", "uninitializePlugin", "KApiVersion",
                                   "TLVN_PLUGIN_SIGNATURE"));
}

TEST(ModuleExports, AreTwoFunctionsAndTwoBlocksOfTheirSizes) {
  EXPECT_THAT(output(std::string("nm -D -S --defined-only ") + kModule +
                     " | awk '{ print $4, $3, $3 == \"T\" ? \"\" : $2 }'"),
              UnorderedElementsAre("initializePlugin T ", "uninitializePlugin T ",
                                   "KApiVersion R 0000000000000010",
                                   "TLVN_PLUGIN_SIGNATURE R 0000000000000040"));
}

TEST(ModuleExports, TellTheVersionOfTheInterface) {
  void* module = dlopen(kModule, RTLD_NOW | RTLD_LOCAL);
  ASSERT_TRUE(module) << dlerror();
  constexpr char kExpected[16] = "20250000";
  const void* version = dlsym(module, "KApiVersion");
  ASSERT_TRUE(version);
  EXPECT_EQ(std::memcmp(version, kExpected, sizeof kExpected), 0);
  dlclose(module);
}

TEST(ModuleImports, AreListedForTheInterfaces) {
  Names offered;
  for (const char* library :
       {"Foundation", "OpenVesk", "OpenVeskUI", "OpenVeskRender", "ORV_1_0", "orvUI_1_0"}) {
    offered.merge(listed(library));
  }
  EXPECT_THAT(taken(), testing::Not(IsEmpty()));
  EXPECT_THAT(without(taken(), offered), IsEmpty());
}

TEST(ModuleImports, KnowNothingOfTheStandalonePlatform) {
  EXPECT_THAT(output(std::string("nm -D -C --undefined-only ") + kModule +
                     " | grep -E '\\b(vesk|orvlib|HostAccess|GraphAccess)::' || true"),
              IsEmpty());
}

class PlatformLibrary : public testing::TestWithParam<const char*> {
 protected:
  Names exported() {
    return output(kSurface + "list-symbols " VESK_BUILD_DIR "/lib/lib" + GetParam() + ".so");
  }
};

TEST_P(PlatformLibrary, OffersWhatIsListed) {
  EXPECT_THAT(without(listed(GetParam()), exported()), IsEmpty());
}

TEST_P(PlatformLibrary, OffersNothingElse) {
  EXPECT_THAT(without(exported(), listed(GetParam())), IsEmpty());
}

/// The class and the operation of "ns::Class::operation(arguments) const"; empty for a table and
/// for a function of no class.
std::pair<std::string, std::string> classAndOperation(const std::string& whole) {
  const std::string symbol = whole.substr(0, whole.find('('));
  const std::size_t first = symbol.find("::");
  const std::size_t second = symbol.find("::", first + 2);
  if (second == symbol.npos || symbol.find(' ') < first) return {};
  return {symbol.substr(first + 2, second - first - 2), symbol.substr(second + 2)};
}

TEST_P(PlatformLibrary, HasAHeaderForWhatIsListed) {
  const std::string folder = VESK_SOURCE_DIR "/src/platform/" + std::string(GetParam()) + "/";
  for (const std::string& symbol : listed(GetParam())) {
    const auto [name, operation] = classAndOperation(symbol);
    if (name.empty()) continue;
    EXPECT_NE(readWholeFile(folder + name + ".h").find(operation), std::string::npos) << symbol;
  }
}

INSTANTIATE_TEST_SUITE_P(All, PlatformLibrary,
                         testing::Values("Foundation", "OpenVesk", "OpenVeskUI", "OpenVeskRender",
                                         "ORV_1_0", "orvUI_1_0"),
                         [](const auto& library) { return std::string(library.param); });

}  // namespace
