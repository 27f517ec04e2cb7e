#include "standalone/colour/Configuration.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

#include "testPaths.h"
#include "tests/standalone/colour/ColourTesting.h"
#include "tests/support/Unprivileged.h"

namespace vesk::colour {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using testing::kPlainConfiguration;
using testing::TemporaryFolder;
using testing::WarningLog;

class ConfigurationTest : public ::testing::Test {
 protected:
  ConfigurationTest() { unsetenv("OCIO"); }
  ~ConfigurationTest() override { unsetenv("OCIO"); }

  void expectFallback(const std::string& path, const std::string& reason) {
    const Configuration loaded = loadConfiguration(path, warnings.sink());
    EXPECT_EQ("", loaded.path);
    EXPECT_STREQ("ACEScg", loaded.config->getColorSpace("scene_linear")->getName());
    EXPECT_THAT(warnings.texts, ElementsAre(AllOf(HasSubstr("'" + path + "'"), HasSubstr(reason))));
  }

  TemporaryFolder folder;
  WarningLog warnings;
};

TEST_F(ConfigurationTest, ShipsOneThatIsValidWithoutWarnings) {
  const Configuration shipped = loadConfiguration("", warnings.sink());
  ASSERT_NO_THROW(shipped.config->validate());
  EXPECT_EQ("", shipped.path);
  EXPECT_THAT(warnings.texts, IsEmpty());
}

TEST_F(ConfigurationTest, ShipsTheFileOfTheSourceTree) {
  std::ifstream file(VESK_SOURCE_DIR "/colour/config.ocio");
  const std::string text(std::istreambuf_iterator<char>(file), {});
  EXPECT_EQ(text, kShippedConfiguration);
}

TEST_F(ConfigurationTest, ShipsEveryRoleAndSeveralDisplaysAndViews) {
  const auto config = loadConfiguration("", warnings.sink()).config;
  for (const char* role : {OCIO::ROLE_SCENE_LINEAR, OCIO::ROLE_COLOR_PICKING, OCIO::ROLE_DEFAULT,
                           OCIO::ROLE_COMPOSITING_LOG, OCIO::ROLE_COLOR_TIMING, OCIO::ROLE_DATA,
                           OCIO::ROLE_TEXTURE_PAINT, OCIO::ROLE_MATTE_PAINT}) {
    EXPECT_TRUE(config->hasRole(role)) << role;
  }
  ASSERT_GE(config->getNumDisplays(), 2);
  for (int i = 0; i < config->getNumDisplays(); ++i) {
    EXPECT_GE(config->getNumViews(config->getDisplay(i)), 2) << config->getDisplay(i);
  }
}

TEST_F(ConfigurationTest, NamesTheOptionBeforeTheEnvironment) {
  setenv("OCIO", "/from/environment.ocio", 1);
  EXPECT_EQ("/from/option.ocio", configurationPath("/from/option.ocio"));
  EXPECT_EQ("/from/environment.ocio", configurationPath(""));
  unsetenv("OCIO");
  EXPECT_EQ("", configurationPath(""));
}

TEST_F(ConfigurationTest, ReadsAFile) {
  const std::string path = folder.write("plain.ocio", kPlainConfiguration);
  const Configuration loaded = loadConfiguration(path, warnings.sink());
  EXPECT_EQ(path, loaded.path);
  EXPECT_STREQ("Light", loaded.config->getColorSpace("scene_linear")->getName());
  EXPECT_THAT(warnings.texts, IsEmpty());
}

TEST_F(ConfigurationTest, FallsBackFromAMissingFile) {
  expectFallback(folder.path() + "/nowhere.ocio", "there is no such file");
}

TEST_F(ConfigurationTest, FallsBackFromAFolder) { expectFallback(folder.path(), "not a file"); }

TEST_F(ConfigurationTest, FallsBackFromAFileThatMayNotBeRead) {
  const std::string path = folder.write("secret.ocio", kPlainConfiguration);
  std::filesystem::permissions(path, std::filesystem::perms::none);
  const Unprivileged user;
  expectFallback(path, path);
}

TEST_F(ConfigurationTest, FallsBackFromALinkThatLeadsNowhere) {
  const std::string path = folder.path() + "/loop.ocio";
  std::filesystem::create_symlink(path, path);
  expectFallback(path, "symbolic links");
}

TEST_F(ConfigurationTest, FallsBackFromAPipeWithoutWaitingForIt) {
  const std::string path = folder.path() + "/pipe.ocio";
  ASSERT_EQ(0, mkfifo(path.c_str(), 0600));
  expectFallback(path, "not a file");
}

TEST_F(ConfigurationTest, FallsBackFromAnEmptyFile) {
  expectFallback(folder.write("empty.ocio", ""), ": ");
}

TEST_F(ConfigurationTest, FallsBackFromWhatIsNoConfiguration) {
  expectFallback(folder.write("text.ocio", "Dear reader,\n- this: is [not a configuration\n"),
                 ": ");
}

TEST_F(ConfigurationTest, FallsBackFromBinaryData) {
  const std::string noise("\x00\xff\xfe\x01{[", 6);
  expectFallback(folder.write("noise.ocio", noise), "not UTF-8 at byte 1");
}

TEST_F(ConfigurationTest, WarnsInValidTextOfAPathThatIsNone) {
  loadConfiguration(folder.path() + "/caf\xe9.ocio", warnings.sink());
  EXPECT_THAT(warnings.texts, ElementsAre(HasSubstr("caf\uFFFD.ocio")));
}

TEST_F(ConfigurationTest, FallsBackFromAFileThatBreaksOff) {
  const std::string whole = kPlainConfiguration;
  const std::string half = whole.substr(0, whole.find("colorspaces"));
  expectFallback(folder.write("half.ocio", half), ": ");
}

TEST_F(ConfigurationTest, FallsBackFromAVersionItDoesNotKnow) {
  std::string text = kPlainConfiguration;
  text.replace(text.find("version: 1"), 10, "version: 9");
  expectFallback(folder.write("future.ocio", text), "9");
}

TEST_F(ConfigurationTest, FallsBackWhenTheSceneLinearRoleIsMissing) {
  expectFallback(folder.write("roles.ocio", testing::withoutSceneLinear()),
                 "lacks the role 'scene_linear'");
}

TEST_F(ConfigurationTest, FallsBackWhenARoleNamesAnUnknownSpace) {
  std::string text = kPlainConfiguration;
  text.replace(text.find("scene_linear: Light"), 19, "scene_linear: Dusk!");
  expectFallback(folder.write("roles.ocio", text), "Dusk!");
}

TEST_F(ConfigurationTest, FallsBackWhenThereIsNoDisplay) {
  std::string text = kPlainConfiguration;
  const std::size_t displays = text.find("displays:");
  text.erase(displays, text.find("colorspaces:") - displays);
  expectFallback(folder.write("displays.ocio", text), "display");
}

TEST_F(ConfigurationTest, WarnsOfWhatIsOddInAFileThatCanBeUsed) {
  const std::string text = std::string(kPlainConfiguration) + "favourite_colour: green\n";
  const std::string path = folder.write("odd.ocio", text);
  EXPECT_EQ(path, loadConfiguration(path, warnings.sink()).path);
  EXPECT_THAT(warnings.texts, ElementsAre(AllOf(HasSubstr(path), HasSubstr("favourite_colour"))));
}

}  // namespace
}  // namespace vesk::colour
