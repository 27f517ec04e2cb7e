#include <algorithm>

#include "standalone/host/engine/HostAccess.h"
#include "tests/plugin/ModuleTesting.h"

namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

using Texts = std::vector<std::string>;

/// The module's commands, in the order in which they come up and go down.
const Texts kCommands = {"orvCompoundEditor",
                         "orvCompoundEditorWindow",
                         "orvParameterEditor",
                         "orv",
                         "orvChangeBracket",
                         "orvCompound",
                         "orvConnect",
                         "orvCopy",
                         "orvNode",
                         "orvPaste",
                         "orvWatchPoint",
                         "orvPort"};

/// A second name of the first command: it does not count whether it comes up and goes down.
const char* const kAlias = "orvCompoundEditorWindow";

/// The last command, whose status is that of the load and of the unload.
const char* const kLast = kCommands.back().c_str();

/// The calls of that name for all commands.
Texts callsOf(const std::string& call) {
  Texts calls;
  for (const std::string& name : kCommands) calls.push_back(call + " " + name);
  return calls;
}

/// All names but one as JSON, sorted as the host lists them.
std::string listed(const std::string& without = {}) {
  Texts names = kCommands;
  std::erase(names, without);
  std::sort(names.begin(), names.end());
  return vesk::toJson(names);
}

using EntryPoint = KStatus (*)(KObject);

class PluginMain : public ModuleTest {
 protected:
  /// Calls an entry point as the host does, without what the host does around it.
  KStatus call(const char* entryPoint) {
    const auto function = reinterpret_cast<EntryPoint>(module()->symbol(entryPoint));
    return function(HostAccess::object(module()));
  }

  /// Takes the name of one of the module's commands.
  void takeName(const char* name) {
    const auto help = session_->registry().find("help");
    session_->registry().add({name, help->creator, help->syntax, nullptr, {}});
  }

  bool listensToTheScene() { return session_->sceneEvents().hasCallbackIn(module()->base()); }
};

TEST_F(PluginMain, LoadsUnderTheNameOfItsFile) {
  ASSERT_TRUE(load());
  EXPECT_EQ(resultOf("pluginInfo -listPlugins"), R"(["veskOrvPlugin"])");
}

TEST_F(PluginMain, TellsItsVendorAndVersion) {
  ASSERT_TRUE(load());
  EXPECT_EQ(resultOf("pluginInfo -vendor veskOrvPlugin"), R"("Tolvane, Inc.")");
  EXPECT_EQ(resultOf("pluginInfo -version veskOrvPlugin"), R"("2.1.0.178")");
}

TEST_F(PluginMain, RegistersItsCommands) {
  ASSERT_TRUE(load());
  EXPECT_EQ(resultOf("pluginInfo -command veskOrvPlugin"), listed());
}

TEST_F(PluginMain, RegistersMessagesThenCommandsThenTheSceneCallback) {
  ASSERT_TRUE(load());
  Texts calls = takeRecordedCalls();
  ASSERT_EQ(calls.size(), 33 + kCommands.size());
  EXPECT_EQ(calls[0], "registerString rParsingError");
  EXPECT_EQ(calls[31], "registerString rFlagIsNotQuery");
  EXPECT_EQ(calls.back(), "addCallback 30");
  calls.pop_back();
  calls.erase(calls.begin(), calls.begin() + 32);
  EXPECT_EQ(calls, callsOf("registerCommand"));
}

TEST_F(PluginMain, RemovesTheSceneCallbackThenDeregistersItsCommands) {
  ASSERT_TRUE(load());
  takeRecordedCalls();
  ASSERT_TRUE(unload());
  Texts expected = callsOf("deregisterCommand");
  expected.insert(expected.begin(), "removeCallback");
  EXPECT_EQ(takeRecordedCalls(), expected);
}

TEST_F(PluginMain, LeavesNoCommandAndNoCallbackBehind) {
  ASSERT_TRUE(load());
  ASSERT_TRUE(call("uninitializePlugin"));
  EXPECT_FALSE(session_->registry().hasCommandOf(module().get()));
  EXPECT_FALSE(listensToTheScene());

  ASSERT_TRUE(call("initializePlugin"));
}

TEST_F(PluginMain, ATakenLastNameIsToldAndIsTheStatusOfTheLoad) {
  takeName(kLast);
  EXPECT_EQ(load().statusCode(), StatusFailure);
  EXPECT_THAT(takeMessages(),
              ElementsAre(std::string("! Failed to register plugin command: ") + kLast,
                          AllOf(HasSubstr("cannot load the plug-in"),
                                HasSubstr("initializePlugin failed with status 1"))));

  EXPECT_FALSE(unload());
  takeMessages();
}

TEST_F(PluginMain, ATakenLastNameLeavesTheOtherCommands) {
  takeName(kLast);
  EXPECT_FALSE(load());
  EXPECT_EQ(resultOf("orv -rt"), R"(["empty","single"])");
  EXPECT_FALSE(unload());
  takeMessages();
}

TEST_F(PluginMain, AnotherTakenNameIsToldAndTheLoadSucceeds) {
  takeName("orv");
  EXPECT_TRUE(load());
  EXPECT_THAT(takeMessages(), ElementsAre("! Failed to register plugin command: orv"));
  EXPECT_EQ(resultOf("pluginInfo -command veskOrvPlugin"), listed("orv"));
}

TEST_F(PluginMain, ATakenSecondNameIsPassedOver) {
  takeName(kAlias);
  EXPECT_TRUE(load());
  EXPECT_EQ(resultOf("pluginInfo -command veskOrvPlugin"), listed(kAlias));
  EXPECT_TRUE(unload());
}

TEST_F(PluginMain, ATakenNameKeepsItsCommand) {
  for (const char* name : {"orv", kAlias, kLast}) {
    takeName(name);
    load();
    EXPECT_EQ(session_->registry().find(name)->owner, nullptr) << name;
    unload();
    EXPECT_EQ(session_->registry().find(name)->owner, nullptr) << name;
  }
  takeMessages();
}

TEST_F(PluginMain, AfterATakenNameTheSceneCallbackIsThereAllTheSame) {
  takeName(kLast);
  EXPECT_FALSE(load());
  EXPECT_TRUE(listensToTheScene());
  EXPECT_FALSE(unload());
  takeMessages();
}

TEST_F(PluginMain, AFailedLastDeregistrationIsTheStatusOfTheUnloadAndShowsNothing) {
  ASSERT_TRUE(load());
  session_->registry().remove(kLast, module().get());
  EXPECT_EQ(call("uninitializePlugin").statusCode(), StatusFailure);
  EXPECT_THAT(takeMessages(), IsEmpty());

  EXPECT_TRUE(call("initializePlugin"));
}

TEST_F(PluginMain, AnotherFailedDeregistrationIsNotTheStatusOfTheUnload) {
  ASSERT_TRUE(load());
  session_->registry().remove("orv", module().get());
  EXPECT_TRUE(call("uninitializePlugin"));
  EXPECT_THAT(takeMessages(), IsEmpty());

  EXPECT_TRUE(call("initializePlugin"));
}

TEST_F(PluginMain, IsLoadedOnce) {
  ASSERT_TRUE(load());
  takeRecordedCalls();
  EXPECT_EQ(load().statusCode(), StatusFailure);
  EXPECT_THAT(takeMessages(), ElementsAre(HasSubstr("is loaded already")));
  EXPECT_THAT(takeRecordedCalls(), IsEmpty());
  EXPECT_EQ(resultOf("orv -rt"), R"(["empty","single"])");
}

TEST_F(PluginMain, CanBeUnloadedAndLoadedAgain) {
  for (int i = 0; i < 3; ++i) {
    ASSERT_TRUE(load());
    EXPECT_EQ(resultOf("orv -rt"), R"(["empty","single"])");
    ASSERT_TRUE(unload());
    EXPECT_EQ(run("orv -rt").statusCode(), StatusBadArgument);
    EXPECT_THAT(takeMessages(), ElementsAre("! unknown command \"orv\""));
  }
}

TEST_F(PluginMain, ListensToTheSceneFromItsLoadOn) {
  ASSERT_TRUE(load());
  EXPECT_TRUE(listensToTheScene());
}

TEST_F(PluginMain, RemovesItsCallbackWhenTheProgramExits) {
  ASSERT_TRUE(load());
  takeRecordedCalls();
  session_->sceneEvents().send(vesk::SceneEvent::Exiting);
  EXPECT_THAT(takeRecordedCalls(), ElementsAre("removeCallback"));
  EXPECT_FALSE(listensToTheScene());
}

TEST_F(PluginMain, KeepsItsCommandsWhenTheProgramExits) {
  ASSERT_TRUE(load());
  session_->sceneEvents().send(vesk::SceneEvent::Exiting);
  EXPECT_EQ(resultOf("orv -rt"), R"(["empty","single"])");
}

TEST_F(PluginMain, RemovesItsCallbackNoSecondTime) {
  ASSERT_TRUE(load());
  session_->sceneEvents().send(vesk::SceneEvent::Exiting);
  session_->sceneEvents().send(vesk::SceneEvent::Exiting);
  takeRecordedCalls();
  ASSERT_TRUE(unload());
  EXPECT_EQ(takeRecordedCalls(), callsOf("deregisterCommand"));
}

TEST_F(PluginMain, IgnoresTheOtherEventsOfTheScene) {
  ASSERT_TRUE(load());
  takeRecordedCalls();
  ASSERT_TRUE(run("file -new"));
  EXPECT_THAT(takeRecordedCalls(), IsEmpty());
  EXPECT_TRUE(listensToTheScene());
}

TEST_F(PluginMain, GoesInOrderWhenTheSessionEnds) {
  ASSERT_TRUE(load());
  takeRecordedCalls();
  session_->exit();
  Texts expected = callsOf("deregisterCommand");
  expected.insert(expected.begin(), "removeCallback");
  EXPECT_EQ(takeRecordedCalls(), expected);
}

}  // namespace
