// What the program brings up: modules, libraries, settings, journal, language.

#include <gmock/gmock.h>

#include "testPaths.h"
#include "tests/standalone/vesk/ProgramRun.h"

namespace {

using testing::EndsWith;
using testing::HasSubstr;

const std::string kModule = VESK_BUILD_DIR "/plug-ins/veskOrvPlugin.so";

TEST(StartupModules, AreTheOrvModuleAlone) {
  EXPECT_EQ(runVesk({"-c", "pluginInfo"}).out, "veskOrvPlugin\n");
}

TEST(StartupModules, CanBeLeftOut) {
  EXPECT_EQ(runVesk({"--no-plugin", "-c", "pluginInfo"}).out, "");
}

TEST(StartupModules, CanBeNamed) {
  EXPECT_EQ(runVesk({"--plugin", kModule, "-c", "pluginInfo"}).out, "veskOrvPlugin\n");
}

TEST(StartupModules, MayComeFromAPathRelativeToTheWorkingFolder) {
  const ProgramRun run = runVesk({"--plugin", "plug-ins/veskOrvPlugin.so", "-c", "orv -rt"},
                                 {.folder = VESK_BUILD_DIR});
  EXPECT_EQ(run.out, "standard\n");
}

TEST(StartupModules, OfANameAreLoadedOnce) {
  const ProgramRun run = runVesk({"--plugin", kModule, "--plugin", kModule, "-c", "echo never"});
  EXPECT_THAT(run.err, HasSubstr("a plug-in of the name \"veskOrvPlugin\" is loaded already"));
  EXPECT_EQ(run.out, "");
  EXPECT_EQ(run.status, 2);
}

/// The program must not start, and must say why, naming the file.
void expectNoModule(const std::string& path, const std::string& reason) {
  const ProgramRun run = runVesk({"--plugin", path, "-c", "echo never"});
  EXPECT_EQ(run.out, "");
  EXPECT_THAT(run.err, HasSubstr("Error: cannot load the plug-in \"" + path + "\": "));
  EXPECT_THAT(run.err, HasSubstr(reason));
  EXPECT_THAT(run.err, EndsWith("vesk: the plug-in \"" + path + "\" could not be loaded\n"));
  EXPECT_EQ(run.status, 2);
}

TEST(StartupModules, AreNoTextFiles) {
  const TemporaryFolder folder;
  expectNoModule(folder.write("text.so", "a text"), "text.so");
}

TEST(StartupModules, AreNoEmptyFiles) {
  const TemporaryFolder folder;
  expectNoModule(folder.write("empty.so", ""), "empty.so");
}

TEST(StartupModules, AreNoFolders) { expectNoModule("/tmp", "it is no file"); }

TEST(StartupModules, MustBeThere) { expectNoModule("nowhere.so", "there is no such file"); }

TEST(StartupModules, HaveTheEntryPoints) {
  expectNoModule(VESK_BUILD_DIR "/lib/libFoundation.so",
                 "it is no module: it does not export initializePlugin");
}

TEST(StartupLibraries, AreTheShippedOnes) {
  EXPECT_EQ(runVesk({"-c", "orv -rt"}).out, "standard\n");
}

TEST(StartupLibraries, CanBeReplaced) {
  EXPECT_EQ(runVesk({"--library", VESK_SOURCE_DIR "/tests/data/library", "-c", "orv -rt"}).out,
            "empty\nsingle\n");
}

TEST(StartupLibraries, CanComeFromSeveralFolders) {
  EXPECT_EQ(runVesk({"--library", VESK_SOURCE_DIR "/tests/data/library", "--library",
                     VESK_SOURCE_DIR "/library", "-c", "orv -rt"})
                .out,
            "empty\nsingle\nstandard\n");
}

TEST(StartupLibraries, MustBeFolders) {
  const TemporaryFolder folder;
  for (const std::string& path : {std::string("nowhere"), folder.write("file", "text")}) {
    const ProgramRun run = runVesk({"--library", path, "-c", "echo never"});
    EXPECT_EQ(run.err, "vesk: the library \"" + path + "\" is no folder\n");
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.status, 2);
  }
}

class PublishedFolder : public testing::Test {
 protected:
  /// The warnings of a program whose published compound of the runtime is damaged.
  std::string warnings(std::vector<std::string> arguments, const std::string& variable) {
    folder_.write("standard/soft.yaml", "nonsense\n");
    arguments.insert(arguments.end(), {"-c", "echo done"});
    return runVesk(arguments, {.variables = {{"VESK_PUBLISHED_DIR", variable}}}).err;
  }

  std::string path() const { return folder_.path().string(); }

  static constexpr const char* kReason = "a compound must be a mapping";
  TemporaryFolder folder_;
};

TEST_F(PublishedFolder, IsThatOfTheOption) {
  EXPECT_THAT(warnings({"--published", path()}, "nowhere"), testing::HasSubstr(kReason));
}

TEST_F(PublishedFolder, IsThatOfTheVariableOtherwise) {
  EXPECT_THAT(warnings({}, path()), testing::HasSubstr(kReason));
}

class DamagedLibrary : public testing::Test {
 protected:
  DamagedLibrary() {
    folder_.write("shop/runtime.yaml",
                  "name: shop\nniceName: Shop\ndescription: It.\nrootLibrary: base\n"
                  "portTypes:\n  - {name: float, niceName: F, description: It., scalar: float}\n");
    folder_.write("shop/base.yaml", "library: base\nniceName: Base\ndescription: It.\n");
    bad_ = folder_.write("shop/base.bad.yaml",
                         "library: base::bad\nniceName: Bad\ndescription: It.\nnodes:\n"
                         "  - name: a\n    niceName: A\n    description: It.\n    inputs:\n"
                         "      - {name: x, type: nonsense, description: It.}\n");
  }

  std::string libraries() const { return folder_.path().string(); }

  TemporaryFolder folder_;
  std::string bad_;
};

TEST_F(DamagedLibrary, IsToldWithFileAndLine) {
  const ProgramRun run = runVesk({"--library", libraries(), "-c", "echo on"});
  EXPECT_THAT(run.err, HasSubstr("Warning: " + bad_ + ":9:"));
  EXPECT_THAT(run.err, HasSubstr("nonsense"));
  EXPECT_EQ(run.out, "on\n");
  EXPECT_EQ(run.status, 0);
}

TEST_F(DamagedLibrary, LeavesTheRest) {
  EXPECT_EQ(runVesk({"--library", libraries(), "-c", "orv -lib shop"}).out, "base\n");
}

TEST_F(DamagedLibrary, IsToldAgainWhenItIsReadAgain) {
  const ProgramRun run = runVesk({"--library", libraries(), "--transcript", "-c", "orv -fp shop"});
  EXPECT_THAT(run.out, HasSubstr("> orv -fp shop\n? " + bad_ + ":9:"));
}

TEST_F(DamagedLibrary, IsToldBesideATranscript) {
  const ProgramRun run = runVesk({"--library", libraries(), "--transcript", "-c", "orv -rt"});
  EXPECT_EQ(run.out, "> orv -rt\n= [\"shop\"]\n");
  EXPECT_THAT(run.err, HasSubstr(bad_ + ":9:"));
}

TEST_F(DamagedLibrary, OfARuntimeIsToldToo) {
  folder_.write("worse/runtime.yaml", "name: worse\n  nonsense: [\n");
  const ProgramRun run = runVesk({"--library", libraries(), "-c", "orv -rt"});
  EXPECT_THAT(run.err, HasSubstr("worse/runtime.yaml:"));
  EXPECT_EQ(run.out, "shop\n");
  EXPECT_EQ(run.status, 0);
}

TEST(StartupLanguage, IsThatOfTheOption) {
  const ProgramRun run = runVesk({"--language", "de", "-c", "orv -nonsense"});
  EXPECT_THAT(run.err, HasSubstr("Error: Ungültige Parameter.  Abbruch.\n"));
}

TEST(StartupLanguage, MayHaveARegion) {
  const ProgramRun run = runVesk({"--language", "de_AT", "-c", "orv -nonsense"});
  EXPECT_THAT(run.err, HasSubstr("Abbruch."));
}

TEST(StartupLanguage, IsThatOfTheLocaleOtherwise) {
  const ProgramRun german =
      runVesk({"-c", "orv -nonsense"}, {.variables = {{"LANG", "de_DE.UTF-8"}}});
  EXPECT_THAT(german.err, HasSubstr("Abbruch."));
  const ProgramRun plain = runVesk({"-c", "orv -nonsense"}, {.variables = {{"LANG", "C"}}});
  EXPECT_THAT(plain.err, HasSubstr("Exiting."));
}

TEST(StartupLanguage, OfTheLocaleDoesNotTouchTranscripts) {
  const ProgramRun run =
      runVesk({"--transcript", "-c", "orv -nonsense"}, {.variables = {{"LANG", "de_DE.UTF-8"}}});
  EXPECT_THAT(run.out, HasSubstr("Exiting."));
}

TEST(StartupLanguage, WithoutTranslationIsEnglish) {
  const ProgramRun run = runVesk({"--language", "xx", "-c", "orv -nonsense"});
  EXPECT_THAT(run.err, HasSubstr("Exiting."));
}

}  // namespace
