#include "standalone/host/engine/PluginLoader.h"

#include <dlfcn.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "standalone/host/language/Tokenizer.h"
#include "testPaths.h"
#include "tests/support/ProbeCommand.h"
#include "tests/support/TemporaryFiles.h"

namespace {

using namespace hosttest;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

std::string pathOf(const std::string& module) {
  return VESK_BUILD_DIR "/test-modules/" + module + ".so";
}

std::string loading(const std::string& path) { return "loadPlugin " + vesk::quoted(path); }

std::string refusalOf(const std::string& path, const std::string& reason) {
  return "! cannot load the plug-in \"" + path + "\": " + reason;
}

/// Whether the module's code is in memory.
bool isMapped(const std::string& module) {
  void* library = dlopen(pathOf(module).c_str(), RTLD_NOW | RTLD_NOLOAD);
  if (library) dlclose(library);
  return library != nullptr;
}

/// Unloads the good module, which tells of it.
void unloadGood(Host& host) {
  host.run("unloadPlugin goodModule");
  EXPECT_THAT(host.takeMessages(), ElementsAre("? good: unloading"));
}

/// The message of a load that is refused; nothing of the module must stay.
std::string refusalOfLoading(const std::string& path) {
  Host host;
  const std::size_t commands = host.session().registry().names().size();
  const Texts messages = host.refusal(loading(path));
  EXPECT_EQ(messages.size(), 1u);
  EXPECT_THAT(host.session().plugins().plugins(), IsEmpty());
  EXPECT_EQ(host.session().registry().names().size(), commands);
  return messages.empty() ? "" : messages.front();
}

TEST(PluginLoader, LoadsAModuleUnderTheNameOfItsFile) {
  Host host;
  EXPECT_EQ(host.run(loading(pathOf("goodModule"))), "\"goodModule\"");
  const auto plugin = host.session().plugins().find("goodModule");
  ASSERT_NE(plugin, nullptr);
  EXPECT_EQ(plugin->path(), pathOf("goodModule"));
  EXPECT_EQ(plugin->vendor, "A vendor");
  EXPECT_EQ(plugin->version, "1.2.3");
  EXPECT_TRUE(plugin->initialized);
  unloadGood(host);
}

TEST(PluginLoader, AModulesCommandsCanBeRun) {
  Host host;
  host.run(loading(pathOf("goodModule")));
  host.run("good; undo; redo");
  EXPECT_THAT(host.takeMessages(), ElementsAre("? undone", "? redone"));
  unloadGood(host);
}

TEST(PluginLoader, AModuleThatIsLoadedIsNotLoadedAgain) {
  Host host;
  host.run(loading(pathOf("goodModule")));
  EXPECT_THAT(host.refusal(loading(pathOf("goodModule"))),
              ElementsAre(refusalOf(pathOf("goodModule"),
                                    "a plug-in of the name \"goodModule\" is loaded already")));
  EXPECT_EQ(host.session().plugins().plugins().size(), 1u);
  unloadGood(host);
}

TEST(PluginLoader, AnotherFileOfTheSameNameIsRefused) {
  const TemporaryFiles files;
  std::filesystem::copy_file(pathOf("untidyModule"), files.path("goodModule.so"));
  Host host;
  host.run(loading(pathOf("goodModule")));
  EXPECT_THAT(host.refusal(loading(files.path("goodModule.so"))),
              ElementsAre(HasSubstr("is loaded already")));
  unloadGood(host);
}

TEST(PluginLoader, RefusesAFileThatIsNotThere) {
  EXPECT_EQ(refusalOfLoading("/no/such.so"), refusalOf("/no/such.so", "there is no such file"));
}

TEST(PluginLoader, RefusesAFolder) {
  const TemporaryFiles files;
  std::filesystem::create_directory(files.path("folder.so"));
  EXPECT_EQ(refusalOfLoading(files.path("folder.so")),
            refusalOf(files.path("folder.so"), "it is no file"));
}

TEST(PluginLoader, RefusesAnEmptyPath) {
  EXPECT_EQ(refusalOfLoading(""), refusalOf("", "there is no such file"));
}

TEST(PluginLoader, RefusesAFileThatIsNoLibrary) {
  const TemporaryFiles files;
  const std::string path = files.write("text.so", std::string(5000, 'x'));
  EXPECT_THAT(refusalOfLoading(path), HasSubstr("invalid ELF header"));
}

TEST(PluginLoader, RefusesAModuleWithoutItsEnd) {
  EXPECT_EQ(
      refusalOfLoading(pathOf("endlessModule")),
      refusalOf(pathOf("endlessModule"), "it is no module: it does not export uninitializePlugin"));
  EXPECT_FALSE(isMapped("endlessModule"));
}

TEST(PluginLoader, RefusesAModuleThatDoesNotSayForWhichInterfaceItIs) {
  EXPECT_EQ(
      refusalOfLoading(pathOf("versionlessModule")),
      refusalOf(pathOf("versionlessModule"), "it is no module: it does not export KApiVersion"));
}

TEST(PluginLoader, RefusesAModuleForAnotherInterface) {
  EXPECT_EQ(refusalOfLoading(pathOf("oldModule")),
            refusalOf(pathOf("oldModule"),
                      "it was built for interface 20240000, and this host offers 20250000"));
}

TEST(PluginLoader, AModuleThatCannotStartIsUnmappedAgain) {
  EXPECT_EQ(refusalOfLoading(pathOf("emptyFailingModule")),
            refusalOf(pathOf("emptyFailingModule"), "its initializePlugin failed with status 3"));
  EXPECT_FALSE(isMapped("emptyFailingModule"));
}

TEST(PluginLoader, AModuleThatLeavesACommandAndCannotStartStaysUntilItIsUnloaded) {
  Host host;
  EXPECT_THAT(
      host.refusal(loading(pathOf("leavingFailingModule"))),
      ElementsAre(refusalOf(pathOf("leavingFailingModule"),
                            "its initializePlugin failed with status 3; what it registered stays "
                            "until it is unloaded")));
  EXPECT_EQ(host.run("pluginInfo -q -loaded leavingFailingModule"), "false");
  host.run("leftover; unloadPlugin leavingFailingModule");
  EXPECT_THAT(host.refusal("leftover"), ElementsAre("! unknown command \"leftover\""));
  EXPECT_FALSE(isMapped("leavingFailingModule"));
}

TEST(PluginLoader, AModuleThatCannotStartTakesItsEditsWithIt) {
  Host host;
  host.refusal(loading(pathOf("editingFailingModule")));
  EXPECT_FALSE(isMapped("editingFailingModule"));
  EXPECT_THAT(host.steps(), IsEmpty());
  EXPECT_THAT(host.refusal("undo"), ElementsAre("! cannot undo: there is nothing to undo"));
}

TEST(PluginLoader, AModuleCannotUnloadItselfInItsEntryPoints) {
  const std::string refusal =
      "! cannot unload the plug-in \"leavingModule\": one of its entry points is running";
  Host host;
  EXPECT_EQ(host.run(loading(pathOf("leavingModule"))), "\"leavingModule\"");
  EXPECT_THAT(host.takeMessages(), ElementsAre(refusal));
  host.run("fleeting; unloadPlugin leavingModule");
  EXPECT_THAT(host.takeMessages(), ElementsAre(refusal));
  EXPECT_FALSE(isMapped("leavingModule"));
}

TEST(PluginLoader, AModuleIsNotLoadedAgainUnderTheNameOfALink) {
  const TemporaryFiles files;
  std::filesystem::create_symlink(pathOf("goodModule"), files.path("other.so"));
  Host host;
  host.run(loading(pathOf("goodModule")));
  EXPECT_THAT(
      host.refusal(loading(files.path("other.so"))),
      ElementsAre(refusalOf(files.path("other.so"),
                            "it is the module of the plug-in \"goodModule\", loaded already")));
  unloadGood(host);
  EXPECT_FALSE(isMapped("goodModule"));
}

TEST(PluginLoader, WhatIsRefusedCanBeLoadedLater) {
  const TemporaryFiles files;
  Host host;
  host.refusal(loading(files.path("goodModule.so")));
  std::filesystem::copy_file(pathOf("goodModule"), files.path("goodModule.so"));
  host.run(loading(files.path("goodModule.so")));
  unloadGood(host);
}

}  // namespace
