#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "standalone/host/language/Tokenizer.h"
#include "testPaths.h"
#include "tests/support/HostTest.h"

namespace {

using namespace hosttest;
using ::testing::ElementsAre;

const std::string kPath = VESK_BUILD_DIR "/test-modules/goodModule.so";

/// A host with the good module.
class PluginInfoCommand : public ::testing::Test {
 protected:
  PluginInfoCommand() { host.run("loadPlugin " + vesk::quoted(kPath)); }
  ~PluginInfoCommand() override {
    host.end();
    EXPECT_EQ(host.takeMessages().size(), 2u) << "the module tells of exit and unloading";
  }

  Host host;
};

TEST_F(PluginInfoCommand, ListsThePluginsInTheOrderOfLoading) {
  EXPECT_EQ(host.run("pluginInfo"), R"(["goodModule"])");
  EXPECT_EQ(host.run("pluginInfo -q -listPlugins"), R"(["goodModule"])");
}

TEST_F(PluginInfoCommand, TellsWhetherAPluginIsLoaded) {
  EXPECT_EQ(host.run("pluginInfo -q -loaded goodModule"), "true");
  EXPECT_EQ(host.run("pluginInfo -q -loaded other"), "false");
}

TEST_F(PluginInfoCommand, TellsVendorVersionAndPath) {
  EXPECT_EQ(host.run("pluginInfo -q -vendor goodModule"), "\"A vendor\"");
  EXPECT_EQ(host.run("pluginInfo -q -version goodModule"), "\"1.2.3\"");
  EXPECT_EQ(host.run("pluginInfo -q goodModule"), "\"1.2.3\"");
  EXPECT_EQ(host.run("pluginInfo -q -path goodModule"), "\"" + kPath + "\"");
}

TEST_F(PluginInfoCommand, ListsTheCommandsOfAPlugin) {
  EXPECT_EQ(host.run("pluginInfo -q -command goodModule"), R"(["good"])");
}

TEST_F(PluginInfoCommand, RefusesAPluginThatIsNotLoaded) {
  EXPECT_THAT(host.refusal("pluginInfo -q -vendor other"),
              ElementsAre("! pluginInfo: no plug-in \"other\" is loaded"));
}

TEST_F(PluginInfoCommand, AnswersOneQuestionAtATime) {
  EXPECT_THAT(host.refusal("pluginInfo -q -vendor -path goodModule"),
              ElementsAre("! pluginInfo: its flags exclude each other"));
}

TEST_F(PluginInfoCommand, AQuestionNeedsAPlugin) {
  EXPECT_THAT(host.refusal("pluginInfo -q -vendor"),
              ElementsAre("! pluginInfo: the name of the plug-in is missing"));
}

TEST(PluginInfoWithoutPlugins, ListsNone) { EXPECT_EQ(Host().run("pluginInfo"), "[]"); }

TEST(LoadPluginCommand, WithoutPathSaysWhatIsMissing) {
  Host host;
  EXPECT_THAT(host.refusal("loadPlugin"),
              ElementsAre("! loadPlugin: the path of the module is missing"));
}

TEST(UnloadPluginCommand, WithoutNameSaysWhatIsMissing) {
  Host host;
  EXPECT_THAT(host.refusal("unloadPlugin"),
              ElementsAre("! unloadPlugin: the name of the plug-in is missing"));
}

}  // namespace
