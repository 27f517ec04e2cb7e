#include <dlfcn.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/OpenVesk/KGlobal.h"
#include "standalone/host/engine/PluginLoader.h"
#include "standalone/host/language/Tokenizer.h"
#include "testPaths.h"
#include "tests/support/ProbeCommand.h"

namespace {

using namespace hosttest;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* kUntidyIsGone =
    "? the plug-in \"untidyModule\" was unloaded, though its uninitializePlugin failed";

std::string pathOf(const std::string& module) {
  return VESK_BUILD_DIR "/test-modules/" + module + ".so";
}

bool isMapped(const std::string& module) {
  void* library = dlopen(pathOf(module).c_str(), RTLD_NOW | RTLD_NOLOAD);
  if (library) dlclose(library);
  return library != nullptr;
}

void load(Host& host, const std::string& module) {
  host.run("loadPlugin " + vesk::quoted(pathOf(module)));
}

std::string cannotUnload(const std::string& module, const std::string& reason) {
  return "! cannot unload the plug-in \"" + module + "\": " + reason;
}

TEST(PluginUnloading, CallsTheModuleAndUnmapsIt) {
  Host host;
  load(host, "goodModule");
  EXPECT_TRUE(isMapped("goodModule"));
  host.run("unloadPlugin goodModule");
  EXPECT_THAT(host.takeMessages(), ElementsAre("? good: unloading"));
  EXPECT_FALSE(isMapped("goodModule"));
  EXPECT_THAT(host.refusal("good"), ElementsAre("! unknown command \"good\""));
}

TEST(PluginUnloading, AModuleCanBeLoadedAgain) {
  Host host;
  for (int i = 0; i < 3; ++i) {
    load(host, "goodModule");
    host.run("good; unloadPlugin goodModule");
    EXPECT_THAT(host.takeMessages(), ElementsAre("? good: unloading"));
  }
}

TEST(PluginUnloading, TakesTheModulesEditsOffTheUndoQueueAndNoOthers) {
  ProbeHost host;
  load(host, "goodModule");
  host.run("edit a; good; edit b; good; undo; undo; unloadPlugin goodModule");
  EXPECT_THAT(host.takeMessages(), ElementsAre("? undone", "? good: unloading"));
  EXPECT_THAT(host.steps(), ElementsAre("edit a"));
  EXPECT_THAT(host.session().undoQueue().undoneNames(), ElementsAre("edit b"));
}

TEST(PluginUnloading, TakesTheModulesEditsOutOfStepsThatHoldOthersToo) {
  ProbeHost host;
  load(host, "goodModule");
  host.run("undoInfo -ock -cn mixed; good \"edit a\"; good; undoInfo -cck");
  host.run("unloadPlugin goodModule");
  host.takeMessages();
  EXPECT_THAT(host.steps(), ElementsAre("mixed"));
  takeDiary();
  host.run("undo");
  EXPECT_THAT(takeDiary(), ElementsAre("undoIt edit a"));
}

TEST(PluginUnloading, TakesTheModulesEditsOutOfTheOpenChunk) {
  ProbeHost host;
  load(host, "goodModule");
  host.run("undoInfo -ock -cn open; good; edit a; unloadPlugin goodModule");
  host.run("undoInfo -cck; undo");
  EXPECT_THAT(host.takeMessages(), ElementsAre("? good: unloading"));
}

TEST(PluginUnloading, KeepsEmptyStepsThatHeldNothingOfTheModule) {
  ProbeHost host;
  load(host, "goodModule");
  host.run("undoInfo -ock -cn empty; undoInfo -cck; good; unloadPlugin goodModule");
  host.takeMessages();
  EXPECT_THAT(host.steps(), ElementsAre("empty"));
}

TEST(PluginUnloading, IsRefusedWhileOneOfItsCommandsRuns) {
  Host host;
  load(host, "goodModule");
  EXPECT_THAT(host.refusal("good \"unloadPlugin goodModule\""),
              ElementsAre(cannotUnload("goodModule", "one of its commands is running")));
  EXPECT_TRUE(isMapped("goodModule"));
  host.run("unloadPlugin goodModule");
  host.takeMessages();
}

TEST(PluginUnloading, OfAnotherModuleIsAllowedWhileACommandRuns) {
  Host host;
  load(host, "goodModule");
  load(host, "untidyModule");
  host.status("good \"unloadPlugin untidyModule\"");
  EXPECT_THAT(host.takeMessages(), ElementsAre(kUntidyIsGone));
  EXPECT_FALSE(isMapped("untidyModule"));
  host.run("unloadPlugin goodModule");
  host.takeMessages();
}

TEST(PluginUnloading, IsRefusedWhileAnUndoRuns) {
  ProbeHost host;
  const auto unload = [] {
    return KGlobal::executeCommand("unloadPlugin goodModule", false, false);
  };
  addProbe(host, "unloader", {.undoIt = unload, .redoIt = unload, .undoable = true});
  load(host, "goodModule");
  host.run("unloader");
  EXPECT_EQ(host.refusal("undo").front(), cannotUnload("goodModule", "an undo or redo is running"));
  EXPECT_EQ(host.refusal("redo").front(), cannotUnload("goodModule", "an undo or redo is running"));
  EXPECT_TRUE(isMapped("goodModule"));
  host.run("unloadPlugin goodModule");
  host.takeMessages();
}

TEST(PluginUnloading, IsRefusedWhileSceneCallbacksRun) {
  Host host;
  load(host, "goodModule");
  const auto unload = [](void*) {
    KGlobal::executeCommand("unloadPlugin goodModule", false, false);
  };
  host.session().sceneEvents().add(vesk::SceneEvent::AfterNew, unload, nullptr);
  host.session().sceneEvents().send(vesk::SceneEvent::AfterNew);
  EXPECT_THAT(host.takeMessages(),
              ElementsAre(cannotUnload("goodModule", "scene callbacks are running")));
  host.run("unloadPlugin goodModule");
  host.takeMessages();
}

TEST(PluginUnloading, OfAnUnknownNameIsRefused) {
  Host host;
  EXPECT_THAT(host.refusal("unloadPlugin nothing"),
              ElementsAre(cannotUnload("nothing", "no plug-in of that name is loaded")));
}

TEST(PluginUnloading, RemovesWhatTheModuleLeavesBehind) {
  Host host;
  load(host, "untidyModule");
  host.run("untidy; untidyToo");
  EXPECT_EQ(host.status("unloadPlugin untidyModule"), StatusFailure);
  EXPECT_THAT(host.takeMessages(), ElementsAre(kUntidyIsGone));
  EXPECT_FALSE(isMapped("untidyModule"));
  EXPECT_THAT(host.steps(), IsEmpty());
  EXPECT_THAT(host.refusal("untidy"), ElementsAre("! unknown command \"untidy\""));
  EXPECT_THAT(host.refusal("untidyToo"), ElementsAre("! unknown command \"untidyToo\""));
  host.session().exit();
}

TEST(HostExit, TellsTheSceneAheadOfUnloading) {
  Host host;
  load(host, "goodModule");
  host.session().exit();
  EXPECT_THAT(host.takeMessages(), ElementsAre("? good: the program exits", "? good: unloading"));
  EXPECT_FALSE(isMapped("goodModule"));
}

TEST(HostExit, UnloadsTheModuleThatWasLoadedLastFirst) {
  Host host;
  load(host, "goodModule");
  load(host, "untidyModule");
  host.session().exit();
  EXPECT_THAT(host.takeMessages(),
              ElementsAre("? good: the program exits", "? untidy: the program exits", kUntidyIsGone,
                          "? good: unloading"));
}

TEST(HostExit, WithAModulesEditsOnTheQueueEndsWell) {
  ProbeHost host;
  load(host, "goodModule");
  host.run("good; edit a; good \"edit b\"; undo");
  host.end();
  host.takeMessages();
  EXPECT_EQ(aliveProbes(), 0);
}

TEST(HostExit, WhileAModulesCommandRunsComesBack) {
  ProbeHost host;
  load(host, "goodModule");
  addProbe(host, "leave", {.doIt = [&](KPxCommand&, const KArgList&) {
             host.session().exit();
             return KStatus();
           }});
  host.run("good leave");
  EXPECT_THAT(host.takeMessages(),
              ElementsAre("? good: the program exits",
                          cannotUnload("goodModule", "one of its commands is running")));
  EXPECT_TRUE(isMapped("goodModule"));
  host.end();
  EXPECT_THAT(host.takeMessages(), ElementsAre("? good: unloading"));
}

}  // namespace
